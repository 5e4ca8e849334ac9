// The handbook as it is built into the program.
#include "help/Handbuch.h"

#include <QDir>
#include <QFile>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace altardienst {
namespace {

constexpr const char *Verzeichnis = ":/docs/handbuch/"; // the pictures lie in ../bilder

QString Gelesen(const Text &name)
{
    QFile datei(Verzeichnis + QString::fromStdString(name));
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
}

} // namespace

Text Handbuchseite::Titel() const
{
    return Überschriften.empty() ? Name : Überschriften.front().Worte;
}

int Handbuchseite::Abschnitt(const Text &anker) const
{
    const auto überschrift = std::ranges::find(Überschriften, anker, &Titelzeile::Anker);
    return überschrift == Überschriften.end()
               ? -1
               : static_cast<int>(überschrift - Überschriften.begin());
}

std::vector<Handbuchseite> HandbuchLesen()
{
    std::vector<Text> namen;
    for (const QString &name : QDir(Verzeichnis).entryList({"*.md"}, QDir::Files, QDir::Name))
        namen.push_back(name.toStdString());
    std::vector<Handbuchseite> seiten;
    for (const Text &name : Seitenfolge(Gelesen(ErsteSeite).toStdString(), namen)) {
        const QString markdown = Gelesen(name);
        seiten.push_back({name, markdown, Überschriften(markdown.toStdString())});
    }
    return seiten;
}

QString Bilddatei(const QString &aufDerSeite)
{
    return QDir::cleanPath(Verzeichnis + aufDerSeite);
}

std::vector<Absatz> AbsätzeVon(const std::vector<Handbuchseite> &seiten)
{
    std::vector<Absatz> absätze;
    for (std::size_t seite = 0; seite < seiten.size(); ++seite) {
        QTextDocument dokument;
        dokument.setUndoRedoEnabled(false);
        dokument.setMarkdown(seiten[seite].Markdown);
        int abschnitt = -1;
        for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
            abschnitt += block.blockFormat().headingLevel() > 0;
            const QString text = block.text();
            if (std::ranges::any_of(text, [](QChar zeichen) { return zeichen.isPrint(); }))
                absätze.push_back(
                    {static_cast<int>(seite), abschnitt, block.blockNumber(), text.toStdString()});
        }
    }
    return absätze;
}

} // namespace altardienst

// The German of Qt's own dialogs, menus and keys.
#include "application/Deutsch.h"

#include <QFile>
#include <QXmlStreamReader>

namespace altardienst {
namespace {

QString Schlüssel(const QString &kontext, const QString &quelle, const QString &unterscheidung)
{
    return kontext + QChar(0) + quelle + QChar(0) + unterscheidung;
}

} // namespace

/// The format is that of Qt's translation sources: contexts, each with its messages.
Deutsch::Deutsch(QObject *eigner) : QTranslator(eigner)
{
    QFile datei(":/texte/deutsch.ts");
    if (!datei.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader xml(&datei);
    QString kontext;
    QString quelle;
    QString unterscheidung;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            kontext = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            quelle.clear();
            unterscheidung.clear();
        } else if (xml.name() == QLatin1String("source")) {
            quelle = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            unterscheidung = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            texte.insert(Schlüssel(kontext, quelle, unterscheidung), xml.readElementText());
        }
    }
}

QString Deutsch::translate(const char *kontext, const char *quelle, const char *unterscheidung,
                           int) const
{
    const QString vonWo = QString::fromUtf8(kontext);
    const QString was = QString::fromUtf8(quelle);
    if (unterscheidung && *unterscheidung) {
        const auto treffer =
            texte.constFind(Schlüssel(vonWo, was, QString::fromUtf8(unterscheidung)));
        if (treffer != texte.constEnd())
            return *treffer;
    }
    return texte.value(Schlüssel(vonWo, was, {}));
}

} // namespace altardienst

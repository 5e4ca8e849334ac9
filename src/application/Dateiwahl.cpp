// The platform's own file dialogs.
#include "application/Dateiwahl.h"

#include "application/Gemerktes.h"
#include "controls/Bausteine.h"
#include "platform/Laufwerke.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace altardienst {
namespace {

using Auswahl = std::optional<std::filesystem::path>;

constexpr const char *Verzeichnisschlüssel = "Dateiwahl/Verzeichnis";

/// The directory used last; where it has disappeared in the meantime, the documents.
QDir Zuletzt()
{
    const QDir verzeichnis(Gemerktes().value(Verzeichnisschlüssel).toString());
    if (!verzeichnis.path().isEmpty() && verzeichnis.isAbsolute() && verzeichnis.exists())
        return verzeichnis;
    const QDir dokumente = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return dokumente.exists() ? dokumente : QDir::home();
}

QString Filter(const Dateiwunsch &wunsch)
{
    QStringList muster;
    for (const Text &endung : wunsch.Endungen)
        muster << "*." + Anzeige(endung);
    return Anzeige(wunsch.Art) + " (" + muster.join(' ') + ");;Alle Dateien (*)";
}

Auswahl Gewählt(const QString &datei, const QString &verzeichnis)
{
    if (datei.isEmpty())
        return std::nullopt;
    Gemerktes().setValue(Verzeichnisschlüssel, verzeichnis);
    return PfadAus(datei.toStdString());
}

Auswahl ZumSpeichern(QWidget *über, const Dateiwunsch &wunsch)
{
    QFileDialog dialog(über, Anzeige(wunsch.Titel), Zuletzt().path(), Filter(wunsch));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(wunsch.Endungen.empty() ? QString() : Anzeige(wunsch.Endungen.front()));
    dialog.selectFile(Anzeige(wunsch.Name));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return Gewählt(dialog.selectedFiles().value(0), dialog.directory().absolutePath());
}

Auswahl ZumLesen(QWidget *über, const Dateiwunsch &wunsch)
{
    const QString datei =
        QFileDialog::getOpenFileName(über, Anzeige(wunsch.Titel), Zuletzt().path(), Filter(wunsch));
    return Gewählt(datei, QFileInfo(datei).absolutePath());
}

Auswahl EinVerzeichnis(QWidget *über, const Dateiwunsch &wunsch)
{
    const QString verzeichnis =
        QFileDialog::getExistingDirectory(über, Anzeige(wunsch.Titel), Zuletzt().path());
    return Gewählt(verzeichnis, verzeichnis);
}

Auswahl Keine(QWidget *, const Dateiwunsch &)
{
    return std::nullopt;
}

} // namespace

DateiwahlDienst Dateiwahl{Keine, Keine, Keine};

void DateiwahlEinrichten()
{
    Dateiwahl = {ZumSpeichern, ZumLesen, EinVerzeichnis};
}

} // namespace altardienst

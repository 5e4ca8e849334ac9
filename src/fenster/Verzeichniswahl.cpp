// The directory picker that several dialogs share.
#include "fenster/Verzeichniswahl.h"

#include "fenster/Bausteine.h"
#include "fenster/Handler.h"
#include "platform/Laufwerke.h"

namespace altardienst {

Verzeichniswahl::Verzeichniswahl(const char *laufwerkName, const char *verzeichnisName,
                                 const char *dateienName)
    : Laufwerk(Benannt(new QComboBox, laufwerkName)),
      Verzeichnis(Benannt(new QListWidget, verzeichnisName)),
      Dateien(Benannt(new QListWidget, dateienName))
{
    Laufwerk->setAccessibleName("Laufwerk");
    Verzeichnis->setAccessibleName("Verzeichnis");
    Dateien->setAccessibleName("Dateien");
    for (const Wurzel &wurzel : Laufwerke.Wurzeln())
        Laufwerk->addItem(Anzeige(wurzel.Name), Anzeige(TextVon(wurzel.Pfad)));
    // A drive that cannot be read leaves the lists as they are.
    QObject::connect(Laufwerk, &QComboBox::activated, Laufwerk, Abgefangen([this] {
                         Öffnen(PfadAus(Laufwerk->currentData().toString().toStdString()));
                     }));
    QObject::connect(
        Verzeichnis, &QListWidget::itemActivated, Verzeichnis,
        [this](QListWidgetItem *eintrag) { Abgefangen([&] { EintragÖffnen(eintrag); })(); });
}

void Verzeichniswahl::EintragÖffnen(const QListWidgetItem *eintrag)
{
    const Text name = eintrag->text().toStdString();
    Öffnen(name == ".." ? pfad.parent_path() : pfad / PfadAus(name));
}

void Verzeichniswahl::Öffnen(const std::filesystem::path &neu)
{
    Füllen(neu.has_filename() || neu == neu.root_path() ? neu : neu.parent_path());
    BeiWechsel();
}

void Verzeichniswahl::Auffrischen()
{
    Füllen(pfad);
}

void Verzeichniswahl::Füllen(const std::filesystem::path &neu)
{
    const Verzeichnisinhalt inhalt = Laufwerke.Auflisten(neu);
    pfad = neu;
    Verzeichnis->clear();
    Dateien->clear();
    if (neu != neu.root_path())
        Verzeichnis->addItem("..");
    for (const Text &name : inhalt.Verzeichnisse)
        Verzeichnis->addItem(Anzeige(name));
    for (const Text &name : inhalt.Dateien)
        Dateien->addItem(Anzeige(name));
}

} // namespace altardienst

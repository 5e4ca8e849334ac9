// The directory picker that several dialogs share.
#include "fenster/Verzeichniswahl.h"

#include "fenster/Bausteine.h"
#include "fenster/Handler.h"
#include "platform/Laufwerke.h"

namespace altardienst {
namespace {

/// The name goes along as it is stored: one that is no valid text looks different on the screen.
void Hinzufügen(QListWidget *liste, const Text &name)
{
    auto *eintrag = new QListWidgetItem(Anzeige(name), liste);
    eintrag->setData(Qt::UserRole, QByteArray::fromStdString(name));
}

} // namespace

Verzeichniswahl::Verzeichniswahl(const char *laufwerkName, const char *verzeichnisName,
                                 const char *dateienName)
    : Laufwerk(Benannt(new QComboBox, laufwerkName)),
      Verzeichnis(Benannt(new QListWidget, verzeichnisName)),
      Dateien(Benannt(new QListWidget, dateienName))
{
    Laufwerk->setAccessibleName("Laufwerk");
    Verzeichnis->setAccessibleName("Verzeichnis");
    Dateien->setAccessibleName("Dateien");
    for (QListWidget *liste : {Verzeichnis, Dateien})
        liste->setUniformItemSizes(true); // thousands of entries are laid out at once
    for (const Wurzel &wurzel : Laufwerke.Wurzeln())
        Laufwerk->addItem(Anzeige(wurzel.Name), Anzeige(TextVon(wurzel.Pfad)));
    // A drive that cannot be read leaves the lists as they are.
    QObject::connect(Laufwerk, &QComboBox::activated, Laufwerk,
                     Abgefangen([this] { LaufwerkÖffnen(); }));
    QObject::connect(
        Verzeichnis, &QListWidget::itemActivated, Verzeichnis,
        [this](QListWidgetItem *eintrag) { Abgefangen([&] { EintragÖffnen(eintrag); })(); });
}

Text Verzeichniswahl::Name(const QListWidgetItem *eintrag)
{
    return eintrag->data(Qt::UserRole).toByteArray().toStdString();
}

void Verzeichniswahl::EintragÖffnen(const QListWidgetItem *eintrag)
{
    const Text name = Name(eintrag);
    Öffnen(name == ".." ? pfad.parent_path() : pfad / PfadAus(name));
}

void Verzeichniswahl::LaufwerkÖffnen()
{
    Öffnen(PfadAus(Laufwerk->currentData().toString().toStdString()));
}

void Verzeichniswahl::Öffnen(const std::filesystem::path &neu)
{
    Füllen(neu.has_filename() || neu == neu.root_path() ? neu : neu.parent_path());
    BeiWechsel();
}

void Verzeichniswahl::Beginnen()
{
    for (int i = 0; i < Laufwerk->count() && pfad.empty(); ++i) {
        Laufwerk->setCurrentIndex(i);
        Abgefangen([this] { LaufwerkÖffnen(); })();
    }
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
        Hinzufügen(Verzeichnis, "..");
    for (const Text &name : inhalt.Verzeichnisse)
        Hinzufügen(Verzeichnis, name);
    for (const Text &name : inhalt.Dateien)
        Hinzufügen(Dateien, name);
}

} // namespace altardienst

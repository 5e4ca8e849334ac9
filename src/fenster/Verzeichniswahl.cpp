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

std::filesystem::path OhneTrenner(const std::filesystem::path &verzeichnis)
{
    return verzeichnis.has_filename() || verzeichnis == verzeichnis.root_path()
               ? verzeichnis
               : verzeichnis.parent_path();
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
    QObject::connect(Laufwerk, &QComboBox::activated, Laufwerk,
                     Abgefangen([this] { LaufwerkGewählt(); }));
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

void Verzeichniswahl::LaufwerkGewählt()
{
    try {
        LaufwerkÖffnen();
    } catch (const Laufzeitfehler &) {
        Laufwerk->setCurrentIndex(offenesLaufwerk); // what the lists show
        BeiUnlesbaremLaufwerk();
    }
}

void Verzeichniswahl::LaufwerkÖffnen()
{
    const int gewählt = Laufwerk->currentIndex();
    Öffnen(PfadAus(Laufwerk->currentData().toString().toStdString()));
    offenesLaufwerk = gewählt;
}

void Verzeichniswahl::Öffnen(const std::filesystem::path &neu)
{
    Füllen(OhneTrenner(neu));
    BeiWechsel();
}

void Verzeichniswahl::Beginnen()
{
    for (int i = 0; i < Laufwerk->count() && pfad.empty(); ++i) {
        Laufwerk->setCurrentIndex(i);
        Abgefangen([this] { LaufwerkÖffnen(); })();
    }
}

void Verzeichniswahl::Anlegen(const Text &name) const
{
    if (pfad.empty()) // else it would come to be wherever the program was started
        throw Laufzeitfehler(Laufzeitfehler::PfadNichtGefunden);
    const auto neu = OhneTrenner(PfadAus(OrdnerText(pfad) + name));
    Laufwerke.Auflisten(neu.parent_path()); // fails if it is gone, as with a stick pulled out
    Laufwerke.VerzeichnisAnlegen(neu);
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

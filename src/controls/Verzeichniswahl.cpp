// The directory picker that several dialogs share.
#include "controls/Verzeichniswahl.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Kurztext.h"

#include <QScrollBar>

namespace altardienst {
namespace {

/// The entry carries the name as it is stored: one that is not valid text looks different on the
/// screen.
void Hinzufügen(QListWidget *liste, const Text &name)
{
    auto *eintrag = new QListWidgetItem(Anzeige(name), liste);
    eintrag->setData(Qt::UserRole, QByteArray::fromStdString(name));
}

std::vector<Text> Namen(const QListWidget *liste)
{
    std::vector<Text> namen;
    namen.reserve(static_cast<std::size_t>(liste->count()));
    for (int i = 0; i < liste->count(); ++i)
        namen.push_back(Verzeichniswahl::Name(liste->item(i)));
    return namen;
}

/// Only if something has changed; the selected row and the visible part stay.
void Füllen(QListWidget *liste, const std::vector<Text> &namen)
{
    if (Namen(liste) == namen)
        return;
    const QListWidgetItem *eintrag = liste->currentItem();
    const Text markiert = eintrag ? Verzeichniswahl::Name(eintrag) : "";
    const int gerollt = liste->verticalScrollBar()->value();
    liste->clear();
    for (const Text &name : namen) {
        Hinzufügen(liste, name);
        if (name == markiert)
            liste->setCurrentRow(liste->count() - 1);
    }
    liste->doItemsLayout(); // otherwise there is nothing to scroll yet
    liste->verticalScrollBar()->setValue(gerollt);
}

std::filesystem::path OhneTrenner(const std::filesystem::path &verzeichnis)
{
    return verzeichnis.has_filename() || verzeichnis == verzeichnis.root_path()
               ? verzeichnis
               : verzeichnis.parent_path();
}

} // namespace

QLabel *Pfadanzeige(const char *name)
{
    auto *pfad = new Kurztext(name, Qt::ElideMiddle);
    pfad->setTextInteractionFlags(Qt::TextSelectableByMouse);
    pfad->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return pfad;
}

QLineEdit *Verzeichnisname(const char *name)
{
    QLineEdit *feld = Textfeld(name);
    feld->setAccessibleName("Name des neuen Verzeichnisses");
    feld->setPlaceholderText("neues Verzeichnis");
    return feld;
}

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
    const std::filesystem::path verzeichnis = OhneTrenner(neu);
    const Verzeichnisinhalt inhalt = Laufwerke.Auflisten(verzeichnis);
    pfad = verzeichnis;
    for (QListWidget *liste : {Verzeichnis, Dateien})
        liste->clear(); // a selection does not carry over into another directory
    Zeigen(inhalt);
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
    if (pfad.empty()) // otherwise it would be made wherever the program was started
        throw Laufzeitfehler(Laufzeitfehler::PfadNichtGefunden);
    const auto neu = OhneTrenner(PfadAus(OrdnerText(pfad) + name));
    Laufwerke.Auflisten(neu.parent_path()); // fails if it is gone, as when a stick was pulled out
    Laufwerke.VerzeichnisAnlegen(neu);
}

void Verzeichniswahl::Auffrischen()
{
    Zeigen(Laufwerke.Auflisten(pfad));
}

void Verzeichniswahl::Zeigen(const Verzeichnisinhalt &inhalt) const
{
    std::vector<Text> verzeichnisse = inhalt.Verzeichnisse;
    if (pfad != pfad.root_path())
        verzeichnisse.insert(verzeichnisse.begin(), "..");
    Füllen(Verzeichnis, verzeichnisse);
    Füllen(Dateien, inhalt.Dateien);
}

} // namespace altardienst

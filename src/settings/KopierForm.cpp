// The three dialogs that copy the eight data files.
#include "settings/KopierForm.h"

#include "application/Anwendung.h"
#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Allgemein.h"
#include "history/Rückgängig.h"
#include "history/Schreibhindernis.h"
#include "platform/Laufwerke.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

constexpr int NachKopieImErststart = 12;

void InsHauptfenster(bool)
{
    HauptfensterZurück();
}

void Neuladen()
{
    NachKopie = NachKopieImErststart;
    VonFestplatteLaden();
}

constexpr const char *Holen = "Datendateien kopieren";

/// The data of the program are offered only where they are installed.
Text ErsterStart()
{
    const std::vector<Wurzel> wurzeln = Laufwerke.Wurzeln();
    if (std::ranges::find(wurzeln, MitgelieferteDatenName, &Wurzel::Name) == wurzeln.end())
        return "Wählen Sie das Laufwerk und das Verzeichnis, in dem Ihre acht Dateien oder Ihre "
               "Sicherung liegen.";
    return "Wählen Sie das Laufwerk „" + Text(MitgelieferteDatenName) +
           "“ und öffnen Sie mit Doppelklick „leer“ für eine neue Gemeinde, „beispiel“ zum "
           "Ausprobieren; oder öffnen Sie das Verzeichnis Ihrer Sicherung.";
}

const Kopierdialog Datensicherung{"Datensicherung", "Daten sichern", true, [] {}};
const Kopierdialog Dateikopie{"Dateikopie", Holen, false, VonFestplatteLaden};
const Kopierdialog DateienKopieren{"DateienKopieren", Holen, false, Neuladen, ErsterStart};

/// Makes the control keep its space while it is hidden.
void PlatzBehalten(QWidget *control)
{
    QSizePolicy platz = control->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    control->setSizePolicy(platz);
}

QRadioButton *Option(const Text &name, const char *beschriftung)
{
    return Benannt(new QRadioButton(QString::fromUtf8(beschriftung)), name.c_str());
}

} // namespace

DatensicherungForm::DatensicherungForm() : KopierForm(Datensicherung, InsHauptfenster) {}
DateikopieForm::DateikopieForm() : KopierForm(Dateikopie, InsHauptfenster) {}
DateienKopierenForm::DateienKopierenForm(std::function<void(bool)> danach)
    : KopierForm(DateienKopieren, std::move(danach))
{
}

KopierForm::KopierForm(const Kopierdialog &dialog, std::function<void(bool)> danach)
    : Wahl("Drive1", "Dir1", "Dateien"), EoA(Benannt(new QGroupBox("Daten ?"), "EoA")),
      Alle(Option("Alle", "Alle")), Einzel(Option("Einzel", "Einzel")),
      Welche(Benannt(new QGroupBox("Welche ?"), "Welche")), Datei(Pfadanzeige("Datei")),
      Gegenort(new Kurztext("Gegenort", Qt::ElideMiddle)), Hinweis(new Kurztext("Hinweis")),
      Berichtigen(Knopf("Berichtigen", "Namen berichtigen")), OKButton(Knopf("OKButton", "OK")),
      CancelButton(Knopf("CancelButton", "Abbrechen")), dialog(dialog), danach(std::move(danach))
{
    Benannt(this, dialog.Name);
    setWindowTitle(dialog.Titel);
    for (std::size_t k = 0; k < O.size(); ++k)
        O[k] = Option("O" + std::to_string(k + 1), Kopierdateien[k].Beschriftung);
    if (dialog.Hinaus) {
        VZ = Verzeichnisname("VZ");
        Verzeichnis = Knopf("Verzeichnis", "Verzeichnis erstellen");
    }
    Anordnen();
    Verbinden();
    OKButton->hide();
    Berichtigen->hide();
    Setzen(Gegenort, OrdnerText(Laufwerke.Programmverzeichnis()));
    Alle->setChecked(true);
    Wahl.Beginnen();
    if (Wahl.Pfad().empty()) // no drive can be read
        VerzeichnisGewechselt();
}

void KopierForm::Anordnen()
{
    auto *links = new QVBoxLayout;
    links->addWidget(Wahl.Laufwerk);
    links->addWidget(Wahl.Verzeichnis);
    if (VZ) {
        // Light on a dark screen, too, and its text dark.
        VZ->setStyleSheet("QLineEdit { background-color: #ffffff; color: #000000; }"
                          "QLineEdit:focus { background-color: #00ff00; }");
        links->addWidget(VZ);
        links->addWidget(Verzeichnis);
    }

    auto *umfang = new QHBoxLayout(EoA);
    umfang->addWidget(Alle);
    umfang->addWidget(Einzel);
    umfang->addStretch();
    auto *welche = new QVBoxLayout(Welche);
    welche->setSpacing(4); // eight of them, below what may be a long text
    for (QRadioButton *option : O)
        welche->addWidget(option);
    auto *rechts = new QVBoxLayout;
    rechts->addWidget(EoA);
    rechts->addWidget(Welche);
    rechts->addStretch();

    auto *oben = new QHBoxLayout;
    oben->setSpacing(12);
    oben->addLayout(links, 1);
    oben->addWidget(Wahl.Dateien, 1);
    oben->addLayout(rechts);

    PlatzBehalten(Welche);
    PlatzBehalten(OKButton);

    auto *spalte = Fensterspalte(this, Luft::Mittel);
    if (dialog.Anleitung) {
        const Text hindernis = Schreibhindernis();
        const Text satz = hindernis.empty() ? dialog.Anleitung() : hindernis;
        QLabel *anleitung = Beschriftung("Anleitung", satz.c_str());
        anleitung->setWordWrap(true);
        spalte->addWidget(anleitung);
    }
    spalte->addLayout(oben, 1);
    spalte->addLayout(Wege());
    spalte->addLayout(Knopfreihe({OKButton, CancelButton}));
    resize(660, 440);
    Wahl.Verzeichnis->setFocus();
}

/// From where to where, and below the source what is the matter with it.
QLayout *KopierForm::Wege()
{
    auto *befund = new QHBoxLayout;
    befund->addWidget(Hinweis, 1);
    befund->addWidget(Berichtigen);
    PlatzBehalten(Berichtigen);

    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(4);
    raster->setColumnStretch(1, 1);
    raster->addWidget(Beschriftung("QuelleText", "Quelle:"), 0, 0);
    raster->addWidget(dialog.Hinaus ? Gegenort : Datei, 0, 1);
    raster->addLayout(befund, 1, 1);
    raster->addWidget(Beschriftung("ZielText", "Ziel:"), 2, 0);
    raster->addWidget(dialog.Hinaus ? Datei : Gegenort, 2, 1);
    return raster;
}

void KopierForm::Verbinden()
{
    for (QRadioButton *option : {Alle, Einzel})
        connect(option, &QRadioButton::toggled, this, Abgefangen([this] { UmfangGewählt(); }));
    Wahl.BeiWechsel = [this] { VerzeichnisGewechselt(); };
    // The current directory is checked again: a stick may have been swapped.
    Wahl.BeiUnlesbaremLaufwerk =
        Schrittweise([this] { Wahl.Auffrischen(); }, [this] { VerzeichnisGewechselt(); });
    if (VZ) {
        auto erstellen = Abgefangen([this] { VerzeichnisErstellen(); });
        connect(Verzeichnis, &QPushButton::clicked, this, erstellen);
        BeiEingabetaste(VZ, erstellen);
    }
    connect(Berichtigen, &QPushButton::clicked, this, Offen([this] { NamenÄndern(); }));
    connect(OKButton, &QPushButton::clicked, this, Offen([this] { Kopieren(); }));
    connect(CancelButton, &QPushButton::clicked, this, [this] { close(); });
}

void KopierForm::UmfangGewählt()
{
    Welche->setVisible(Einzel->isChecked());
    if (Einzel->isChecked())
        O.front()->setChecked(true);
}

void KopierForm::VerzeichnisGewechselt()
{
    Setzen(Datei, OrdnerText(Wahl.Pfad()));
    OKButton->setVisible(!Wahl.Pfad().empty() && AlleDateienVorhanden(Quelle()));
    if (Wahl.Pfad().empty())
        return Setzen(Hinweis, "Kein Laufwerk lässt sich lesen.");
    const Dateimängel mängel = DateimängelIn(Quelle());
    Setzen(Hinweis, DateimängelSatz(mängel));
    Berichtigen->setVisible(mängel.SindNurNamen());
}

/// Says beside it what it did, even if not every file could be renamed.
void KopierForm::NamenÄndern()
{
    const Text satz = NamenBerichtigen(Quelle());
    Wahl.Auffrischen();
    VerzeichnisGewechselt();
    Setzen(Hinweis, satz);
    if (OKButton->isVisible())
        OKButton->setFocus();
}

/// The new directory is shown but not entered; if it cannot be made, nothing happens.
void KopierForm::VerzeichnisErstellen()
{
    const Text name = TextVon(VZ);
    if (name.empty())
        return;
    Schrittweise([&] { Wahl.Anlegen(name); }, [&] { Wahl.Auffrischen(); })();
}

std::filesystem::path KopierForm::Quelle() const
{
    return dialog.Hinaus ? Laufwerke.Programmverzeichnis() : Wahl.Pfad();
}

void KopierForm::Kopieren()
{
    const auto ziel = dialog.Hinaus ? Wahl.Pfad() : Laufwerke.Programmverzeichnis();
    const auto neue = dialog.Hinaus ? NeueDatei::Klein : NeueDatei::WieGespeichert;
    if (Alle->isChecked())
        AlleDateienKopieren(Quelle(), ziel, neue);
    else
        for (std::size_t k = 0; k < O.size(); ++k)
            if (O[k]->isChecked())
                DateiKopieren(Kopierdateien[k], Quelle(), ziel, neue);
    Ladebericht bericht;
    Schritt("Daten holen", [&] { bericht = LadenMitBericht(dialog.NachKopie); });
    const int anzahl = Alle->isChecked() ? static_cast<int>(Kopierdateien.size()) : 1;
    Mitteilen(dialog.Hinaus ? KopiertSatz(anzahl, ziel) : GeholtSatz(anzahl, Quelle(), bericht));
    kopiert = true;
    close();
}

void KopierForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    hide(); // what comes next checks whether this dialog is still there
    Offen([this] { danach(kopiert); })();
}

} // namespace altardienst

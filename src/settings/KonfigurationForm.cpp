// The settings of the parish, of the plan and of everything printed.
#include "settings/KonfigurationForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Textwahl.h"
#include "core/Umwandlung.h"
#include "platform/Drucker.h"
#include "settings/Einstellungen.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace altardienst {
namespace {

/// A row of a grid: label, box, spin button and unit.
void Zahlzeile(QGridLayout *raster, int zeile, const char *text, const Zahlbox &box,
               const char *einheit)
{
    ZahlboxAnordnen(raster, zeile, 0, text, box);
    if (*einheit)
        raster->addWidget(Beschriftung("", einheit), zeile, 3);
    raster->setColumnStretch(4, 1);
}

void TextVerbinden(QLineEdit *feld, Text &wert)
{
    QObject::connect(feld, &QLineEdit::textChanged, feld,
                     Abgefangen([feld, &wert] { wert = TextVon(feld); }));
}

/// What belongs together, under a heading.
QLayout *Abschnitt(const char *titel, QLayout *inhalt)
{
    auto *spalte = new QVBoxLayout;
    spalte->setSpacing(4);
    spalte->addWidget(Benannt(Überschrift(titel), "Abschnitt"));
    spalte->addLayout(inhalt);
    return spalte;
}

QGroupBox *Rahmen(const char *titel, QLayout *inhalt)
{
    auto *rahmen = new QGroupBox(QString::fromUtf8(titel));
    inhalt->setContentsMargins(8, 4, 8, 4);
    rahmen->setLayout(inhalt);
    return rahmen;
}

} // namespace

KonfigurationForm::KonfigurationForm()
    : Bezeichnung(Textfeld("Bezeichnung")), Straß(Textfeld("Straß")), Örtchus(Textfeld("Örtchus")),
      DiffG(ZahlboxAnlegen("DiffG", "Änderung6", "Größendifferenz")),
      GrenzAuslos(ZahlboxAnlegen("GrenzAuslos", "ÄLF", "Grenze Auslöse")),
      Schriftartig(Textwahl("Schriftartig", "Schriftart")),
      Schriftg(ZahlboxAnlegen("Schriftg", "Änderung2", "Schriftgröße")),
      Über(ZahlboxAnlegen("Über", "Änderung4", "Überschriftgröße")),
      Linker(ZahlboxAnlegen("Linker", "Änderung3", "Rand links")),
      Unt(ZahlboxAnlegen("Unt", "Änderung5", "Rand unten")),
      OB(ZahlboxAnlegen("OB", "Änderung7", "Rand oben")), DiffJahr(Textfeld("DiffJahr")),
      Hochformat(Benannt(new QRadioButton("Hochformat"), "Hochformat")),
      Querformat(Benannt(new QRadioButton("Querformat"), "Querformat")),
      Flags8("Flags8", "Taufe im Zeitraum",
             {{"Check1", "1.-7."},
              {"Check2", "8.-14."},
              {"Check3", "15.-21."},
              {"Check4", "22.-28."},
              {"Check5", "29.-31."}}),
      Flags6("Flags6", "Druck von Meßdiener- und Helferdaten",
             {{"Dress", "Adresse"},
              {"Teflonie", "Telefon"},
              {"Gebteg", "Geburtstag"},
              {"Numm", "Nummerierung"}}),
      Flags11("Flags11", "Druck von Messendaten",
              {{"Diner", "Meßdienerdienste"}, {"Help", "Helferdienste"}}),
      Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Konfiguration");
    setWindowTitle("Konfiguration");
    Anordnen();
    Verbinden();
    Füllen();
    GrößeAnpassen(this);
}

void KonfigurationForm::Anordnen()
{
    auto *links = new QVBoxLayout;
    links->addLayout(Abschnitt("Anschrift", Gemeinde()));
    links->addLayout(Abschnitt("Zeitraum", Zeitraum.Anordnen()));
    links->addLayout(Abschnitt("Verlosung", Zuweisung()));
    links->addStretch();
    auto *rechts = new QVBoxLayout;
    rechts->addLayout(Abschnitt("Schrift und Ränder", Schrift()));
    rechts->addWidget(Ausrichtung());
    rechts->addStretch();
    for (QVBoxLayout *spalte : {links, rechts})
        spalte->setSpacing(8);
    auto *oben = new QHBoxLayout;
    oben->setSpacing(20);
    oben->addLayout(links, 1);
    oben->addLayout(rechts);

    auto *inhalt = new QVBoxLayout;
    inhalt->setSpacing(8);
    inhalt->addLayout(oben);
    inhalt->addLayout(Flags());
    inhalt->addStretch();
    auto *spalte = Fensterspalte(this, Luft::Wenig);
    spalte->addWidget(Rollbar(inhalt), 1);
    spalte->addLayout(Knopfreihe({Ende}));
    DiffJahr->setParent(this);
    DiffJahr->hide();
    Bezeichnung->setFocus();
}

QLayout *KonfigurationForm::Gemeinde()
{
    auto *raster = new QGridLayout;
    raster->setVerticalSpacing(6);
    int zeile = 0;
    for (const auto &[text, feld] :
         {std::pair{"Gemeinde:", Bezeichnung}, {"Straße:", Straß}, {"PLZ und Ort:", Örtchus}}) {
        raster->addWidget(Beschriftung("", text, feld), zeile, 0);
        raster->addWidget(feld, zeile++, 1);
    }
    return raster;
}

QLayout *KonfigurationForm::Zuweisung()
{
    auto *raster = new QGridLayout;
    Zahlzeile(raster, 0, "Größendifferenz:", DiffG, "cm");
    Zahlzeile(raster, 1, "Grenze Auslöse:", GrenzAuslos, "%");
    return raster;
}

QLayout *KonfigurationForm::Schrift()
{
    auto *raster = new QGridLayout;
    raster->addWidget(Beschriftung("", "Schriftart:", Schriftartig), 0, 0);
    raster->addWidget(Schriftartig, 0, 1, 1, 4);
    Schriftartig->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Schriftartig->setMinimumContentsLength(16);
    Zahlzeile(raster, 1, "Schriftgröße :", Schriftg, "");
    Zahlzeile(raster, 2, "Überschriftgröße:", Über, "");
    Zahlzeile(raster, 3, "Rand links ca.:", Linker, "mm");
    Zahlzeile(raster, 4, "Rand unten ca.:", Unt, "mm");
    Zahlzeile(raster, 5, "Rand oben ca.:", OB, "mm");
    return raster;
}

QWidget *KonfigurationForm::Ausrichtung()
{
    auto *reihe = new QHBoxLayout;
    reihe->addWidget(Hochformat);
    reihe->addWidget(Querformat);
    reihe->addStretch();
    return Rahmen("Druck von Meßdiener- und Helferdaten in", reihe);
}

QLayout *KonfigurationForm::Flags()
{
    auto *taufe = new QHBoxLayout;
    taufe->setSpacing(20);
    taufe->addWidget(Beschriftung("", "jeden Monat"));
    taufe->addLayout(Flags8.Anordnen(this, 5), 1);
    auto *reihe = new QHBoxLayout;
    reihe->addWidget(Rahmen("Druck von Meßdiener- und Helferdaten :", Flags6.Anordnen(this, 4)));
    reihe->addWidget(Rahmen("Druck von Messendaten:", Flags11.Anordnen(this, 1)));
    auto *spalte = new QVBoxLayout;
    spalte->setSpacing(6);
    spalte->addWidget(Rahmen("Taufe im Zeitraum:", taufe));
    spalte->addLayout(reihe);
    return spalte;
}

void KonfigurationForm::Verbinden()
{
    TextVerbinden(Bezeichnung, Konfig.Gemeinde);
    TextVerbinden(Straß, Konfig.Straße);
    BeiFokusVerlust(Örtchus, Abgefangen([this] { PlzOrtVerlassen(); }));

    Zeitraum.Verbinden();
    BeiFokusVerlust(Zeitraum.tagilein.Feld, Abgefangen([this] {
                        if (!geschlossen)
                            Zeitraum.TageVerlassen();
                    }));

    const std::function<void()> größe = Abgefangen([this] { GrößendifferenzGeändert(); });
    connect(DiffG.Feld, &QLineEdit::textChanged, this, größe);
    BeiFokusVerlust(DiffG.Feld, größe);
    BegrenztVerbinden(GrenzAuslos.Feld, Konfig.GrenzeAuslöse, 1, 99);

    connect(Schriftartig, &QComboBox::editTextChanged, this,
            Abgefangen([this] { Konfig.Schriftart = TextVon(Schriftartig); }));
    Schriftartig->installEventFilter(this);
    BegrenztVerbinden(Schriftg.Feld, Konfig.Schriftgröße, 1, 30);
    BegrenztVerbinden(Über.Feld, Konfig.Überschriftgröße, 1, 50);
    BegrenztVerbinden(Linker.Feld, Konfig.RandLinks, 1, 55);
    BegrenztVerbinden(Unt.Feld, Konfig.RandUnten, 5, 50);
    BegrenztVerbinden(OB.Feld, Konfig.RandOben, 1, 55);
    for (const Zahlbox &box : {DiffG, GrenzAuslos, Schriftg, Über, Linker, Unt, OB})
        DrehenMitFokus(box);

    BegrenztVerbinden(DiffJahr, Konfig.DiffJahr, DruckerDienst::Hochformat,
                      DruckerDienst::Querformat);
    connect(Hochformat, &QRadioButton::clicked, this, Abgefangen([this](bool an) {
                ZahlSetzen(DiffJahr, an ? DruckerDienst::Hochformat : DruckerDienst::Querformat);
            }));
    connect(Querformat, &QRadioButton::clicked, this, Abgefangen([this](bool an) {
                ZahlSetzen(DiffJahr, an ? DruckerDienst::Querformat : DruckerDienst::Hochformat);
            }));

    for (const auto &[flags, wert] : {std::pair{&Flags8, &Konfig.Flags8},
                                      {&Flags6, &Konfig.Flags6},
                                      {&Flags11, &Konfig.Flags11}}) {
        flags->Verbinden();
        TextVerbinden(flags->Feld, *wert);
    }
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

/// An out-of-range number is clipped here too, since filling a box is a change.
void KonfigurationForm::Füllen()
{
    Setzen(Bezeichnung, Konfig.Gemeinde);
    Setzen(Straß, Konfig.Straße);
    Setzen(Örtchus, Konfig.PlzOrt);
    Zeitraum.Zeigen();
    ZahlSetzen(DiffG.Feld, 2 * static_cast<int>(Konfig.DiffGröße));
    ZahlSetzen(GrenzAuslos.Feld, Konfig.GrenzeAuslöse);
    ZahlSetzen(Schriftg.Feld, Konfig.Schriftgröße);
    ZahlSetzen(Über.Feld, Konfig.Überschriftgröße);
    ZahlSetzen(Linker.Feld, Konfig.RandLinks);
    ZahlSetzen(Unt.Feld, Konfig.RandUnten);
    ZahlSetzen(OB.Feld, Konfig.RandOben);
    // First the options: if the orientation is neither of the two, none is selected.
    Hochformat->setChecked(Konfig.DiffJahr == DruckerDienst::Hochformat);
    Querformat->setChecked(Konfig.DiffJahr == DruckerDienst::Querformat);
    ZahlSetzen(DiffJahr, Konfig.DiffJahr);
    Setzen(Flags8.Feld, Konfig.Flags8);
    Setzen(Flags6.Feld, Konfig.Flags6);
    Setzen(Flags11.Feld, Konfig.Flags11);
    SchriftenFüllen();
    Zeitraum.Berechnen();
}

void KonfigurationForm::PlzOrtVerlassen()
{
    if (geschlossen)
        return;
    PlzOrtSetzen(TextVon(Örtchus));
    Setzen(Örtchus, Konfig.PlzOrt);
}

void KonfigurationForm::GrößendifferenzGeändert()
{
    const Single band = SingleLesen(TextVon(DiffG.Feld));
    const Single erlaubt = GrößendifferenzBegrenzt(band);
    if (erlaubt != band)
        Setzen(DiffG.Feld, ZahlText(erlaubt));
    GrößendifferenzSetzen(erlaubt);
}

void KonfigurationForm::SchriftenFüllen()
{
    QStringList schriften;
    for (const Text &name : Drucker->Schriften())
        schriften.append(Anzeige(name));
    ListeSetzen(Schriftartig, schriften);
    const auto stelle = schriften.indexOf(Anzeige(Konfig.Schriftart));
    if (stelle >= 0)
        Schriftartig->setCurrentIndex(static_cast<int>(stelle)); // where the arrow keys start
    else
        Setzen(Schriftartig, Konfig.Schriftart);
}

/// Fills the list of fonts when its box gets the focus, unless it gets it back from its own list.
bool KonfigurationForm::eventFilter(QObject *control, QEvent *ereignis)
{
    if (control == Schriftartig && ereignis->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent *>(ereignis)->reason() != Qt::PopupFocusReason)
        Nebenbei([this] { SchriftenFüllen(); })(); // a message would return the focus here
    return QWidget::eventFilter(control, ereignis);
}

void KonfigurationForm::VorDemSchließen()
{
    geschlossen = true; // boxes lose the focus after this; nothing is checked any more
}

} // namespace altardienst

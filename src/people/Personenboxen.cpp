// The boxes for name and address, which the forms of servers and helpers share.
#include "people/Personenboxen.h"

#include "controls/Handler.h"
#include "controls/Zahlbox.h"

#include <algorithm>

namespace altardienst {
namespace {

constexpr int HöchstePostleitzahl = 99999;

/// Compared as a floating-point number, since the box may hold a number of any length.
void PostleitzahlBegrenzen(QLineEdit *feld)
{
    const Single zahl = SingleLesen(TextVon(feld));
    if (zahl < 0)
        Setzen(feld, ZahlText(0));
    else if (zahl > HöchstePostleitzahl)
        Setzen(feld, PlzDerGemeinde());
}

} // namespace

Personenboxen::Personenboxen(const std::array<const char *, 7> &namen)
    : Vorname(Textfeld(namen[0])), Nachname(Textfeld(namen[1])), Straße(Textfeld(namen[2])),
      PLZ(Zahleneingabe(namen[3], KeinePostleitzahl)), Ort(Textfeld(namen[4])),
      Telefon(Textfeld(namen[5])), EMail(Textfeld(namen[6]))
{
}

void Personenboxen::Anordnen(QGridLayout *raster, int zeile, int breite) const
{
    const auto reihe = [&](const char *text, QLineEdit *feld) {
        raster->addWidget(Beschriftung("", text, feld), zeile, 0);
        raster->addWidget(feld, zeile, 1, 1, breite);
        ++zeile;
    };
    reihe("Vorname:", Vorname);
    reihe("Nachname:", Nachname);
    reihe("Straße:", Straße);
    reihe("Postleitzahl:", PLZ);
    reihe("Ort:", Ort);
    reihe("Telefon:", Telefon);
    reihe("EMail:", EMail);
    PLZ->setMaximumWidth(PLZ->fontMetrics().horizontalAdvance("000000000") + 36);
}

void Personenboxen::Verbinden() const
{
    BeiFokusVerlust(PLZ, Abgefangen([feld = PLZ] { PostleitzahlBegrenzen(feld); }));
}

void Personenboxen::OrtVorschlagen() const
{
    Setzen(PLZ, PlzDerGemeinde());
    Setzen(Ort, OrtDerGemeinde());
}

int NummerBegrenzen(QLineEdit *feld, int letzter, int anzahl)
{
    Begrenzen(feld, 0, letzter);
    anzahl = std::max(anzahl, 0);                // a file may claim anything
    if (SingleLesen(TextVon(feld)) > anzahl + 1) // before it is rounded
        ZahlSetzen(feld, anzahl);
    return ZahlIn(feld);
}

void KnöpfeBeschriften(Datensatzwahl *wahl)
{
    wahl->Plus->setText("Plus");
    wahl->Minus->setText("Minus");
    for (QPushButton *knopf : {wahl->Minus, wahl->Plus})
        knopf->setFixedWidth(knopf->fontMetrics().horizontalAdvance("Minus") + 40);
}

QLineEdit *Gruppenfeld()
{
    QLineEdit *feld = Textfeld("GBezeichnung");
    FeldPrüfen(
        feld, ZerreißtDieDatei("fehlen alle Meßdiener ab dem ersten, der zu dieser Gruppe gehört"));
    return feld;
}

} // namespace altardienst

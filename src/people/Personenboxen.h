// The boxes for name and address, which the forms of servers and helpers share.
#pragma once

#include "controls/Bausteine.h"
#include "controls/Datensatzwahl.h"
#include "controls/LesenOderFokus.h"
#include "core/Umwandlung.h"
#include "people/Personen.h"
#include "values/Text.h"

#include <QGridLayout>

#include <array>

namespace altardienst {

/// Each form gives the seven boxes names of its own.
class Personenboxen {
  public:
    explicit Personenboxen(const std::array<const char *, 7> &namen);

    QLineEdit *Vorname;
    QLineEdit *Nachname;
    QLineEdit *Straße;
    QLineEdit *PLZ;
    QLineEdit *Ort;
    QLineEdit *Telefon;
    QLineEdit *EMail;

    /// Seven rows of label and box; the boxes take `breite` columns of the grid.
    void Anordnen(QGridLayout *raster, int zeile, int breite) const;

    /// Leaving the postal code brings it within its limits: above them it becomes that of the
    /// parish.
    void Verbinden() const;

    Personenname Name() const { return {TextVon(Vorname), TextVon(Nachname)}; }

    /// New people live in the town of the parish unless the user says otherwise.
    void OrtVorschlagen() const;

    /// Shows or writes record `i` of `Meßdiener` or `Helfer`.
    template <class Tabelle> void NameZeigen(Tabelle &t, int i) const
    {
        Setzen(Vorname, t.Vorname[i]);
        Setzen(Nachname, t.Nachname[i]);
    }
    template <class Tabelle> void Zeigen(Tabelle &t, int i) const
    {
        NameZeigen(t, i);
        Setzen(Straße, t.Straße[i]);
        Setzen(PLZ, ZahlText(t.PLZ[i]));
        Setzen(Ort, t.Ort[i]);
        Setzen(Telefon, t.Telefon[i]);
        Setzen(EMail, t.EMail[i]);
    }
    template <class Tabelle> void Schreiben(Tabelle &t, int i) const
    {
        t.Vorname[i] = TextVon(Vorname);
        t.Nachname[i] = TextVon(Nachname);
        t.Straße[i] = TextVon(Straße);
        t.PLZ[i] = LesenOderFokus(PLZ, Int32Lesen);
        t.Ort[i] = TextVon(Ort);
        t.Telefon[i] = TextVon(Telefon);
        t.EMail[i] = TextVon(EMail);
    }

    /// Whether one of the records in use has the name in the boxes.
    template <class Tabelle> bool DoppeltEingegeben(Tabelle &t) const
    {
        for (int i = 0; i < t.Anzahl; ++i)
            if (t.Vorname[i] == TextVon(Vorname) && t.Nachname[i] == TextVon(Nachname))
                return true;
        return false;
    }
};

/// The rule of the number box of the three editors: below 0 it becomes 0, above `letzter` it
/// becomes `letzter`, beyond the place after the blank slot it falls back to the blank slot,
/// however large the number is. Returns the number. Failure 13 if the box does not hold one.
int NummerBegrenzen(QLineEdit *feld, int letzter, int anzahl);

/// The buttons of the record mover say "Plus" and "Minus" in these editors.
void KnöpfeBeschriften(Datensatzwahl *wahl);

/// The name of a group, which becomes part of the records of its servers.
QLineEdit *Gruppenfeld();

} // namespace altardienst

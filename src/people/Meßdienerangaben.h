// What is asked of every server, in the editor and in the dialog that adds one.
#pragma once

#include "controls/Datumsfeld.h"
#include "controls/Textwahl.h"
#include "controls/Zahlbox.h"
#include "people/Personenboxen.h"

namespace altardienst {

class Meßdienerangaben {
  public:
    Meßdienerangaben();

    Personenboxen Person; // Vornamen, Nachnamen, Straßen, Postleit, Gemeinde, Teflon, Emeil
    Datumsfeld Gebutag;   // Änderung1 to 3
    QComboBox *Geschl;
    Zahlbox Groß;              // Änderung7: in cm, 5 to 250
    Datumsfeld Eintritttdatum; // Änderung4 to 6
    QComboBox *Dieenst;

    /// Starts in the first row of a grid; the boxes take `breite` columns.
    void Anordnen(QGridLayout *raster, int breite) const;

    /// When dates are rewritten is up to the form.
    void Verbinden() const;

    void GruppenlisteFüllen() const;

    /// Shows or writes server `i`.
    void Zeigen(int i) const;
    void Schreiben(int i) const;
};

} // namespace altardienst

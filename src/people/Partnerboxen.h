// The wish partner of a server: chosen from a list, kept as first name and surname.
#pragma once

#include "controls/Textwahl.h"
#include "people/Personen.h"

#include <QLayout>
#include <QLineEdit>

namespace altardienst {

class Partnerboxen {
  public:
    Partnerboxen();

    QComboBox *Partner;
    QLineEdit *VName;
    QLineEdit *NName;

    QLayout *Anordnen() const;

    /// The servers that have both names.
    void ListeFüllen() const;

    /// Shows in the list box whom the two names refer to; nobody unless both are there.
    void PartnerZeigen() const;

    /// Takes over the list box for the server in the number box, whose name is `selbst`. An unknown
    /// person is undone with a message; the server himself and anyone who is already the partner of
    /// another server empty the boxes, with a message only after a pick from the list. Failure 13
    /// if the number box does not hold a number.
    void Prüfen(const QLineEdit *nummer, const Personenname &selbst, bool ausgewählt) const;

    /// Shows or writes the two names of server `i`.
    void Zeigen(int i) const;
    void Schreiben(int i) const;

  private:
    void Leeren() const;
};

} // namespace altardienst

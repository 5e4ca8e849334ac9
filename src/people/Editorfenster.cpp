// What the editors of the groups, the servers and the helpers have in common.
#include "people/Editorfenster.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Zahlbox.h"
#include "history/Rücknahme.h"

#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace altardienst {

Editorfenster::Editorfenster(Datensatzwahl *wahl, Datensatzliste::Quelle quelle)
    : Wahl(wahl), Liste(nullptr), Ende(Knopf("Ende", "Ende")), anzahl(quelle.Anzahl)
{
    quelle.BeiWahl = Offen([this](int satz) { Aufschlagen(satz); });
    Liste = new Datensatzliste(wahl, std::move(quelle));
    SchritteZurückIn(this, {[this] { return Wahl->Nummer->text(); }, [this] { Sichern(); },
                            [this] { Erneuern(); }});
}

/// The number counts as changed, so that all that belongs to the record follows.
void Editorfenster::Erneuern()
{
    const int satz = std::min(Nummer(), anzahl());
    {
        const QSignalBlocker still(Wahl->Nummer);
        Wahl->Nummer->clear();
    }
    ZahlSetzen(Wahl->Nummer, satz);
    Liste->Folgen();
}

void Editorfenster::EndeVerbinden()
{
    connect(Ende, &QPushButton::clicked, this, Offen([this] {
                Umbenennen();
                Speichern();
                close();
            }));
}

void Editorfenster::Aufschlagen(int satz)
{
    const int i = Sichern();
    const bool kannWeg = i == anzahl() ? LeerenPlatzVerlassen(i) : satz <= i || IstBenannt(i);
    if (!kannWeg)
        return;
    Zeigen(satz);
    ZahlSetzen(Wahl->Nummer, satz);
}

/// A record typed into the place after the last one is added, as by "Plus". Where that is not
/// possible yet, it is not left: the next new record would take its place.
bool Editorfenster::LeerenPlatzVerlassen(int i) const
{
    if (IstBenannt(i)) {
        ZahlSetzen(Wahl->Nummer, i + 1);
        return anzahl() > i;
    }
    QWidget *feld = Fehlendes(i);
    if (feld)
        feld->setFocus();
    return !feld;
}

int Editorfenster::Nummer() const
{
    return ZahlIn(Wahl->Nummer);
}

void Editorfenster::NullStattLeer() const
{
    if (Wahl->Nummer->text().isEmpty())
        ZahlSetzen(Wahl->Nummer, 0);
}

void Editorfenster::Speichern()
{
    Abschließen();
    abgeschlossen = true;
}

/// Closing by the window's close box writes without renaming. A box that cannot be converted keeps
/// the form open, with the failure shown.
void Editorfenster::VorDemSchließen()
{
    if (!abgeschlossen)
        Speichern();
}

} // namespace altardienst

// What the editors of the groups, the servers and the helpers have in common.
#include "people/Editorfenster.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Zahlbox.h"

namespace altardienst {

Editorfenster::Editorfenster(Datensatzwahl *wahl) : Wahl(wahl), Ende(Knopf("Ende", "Ende")) {}

void Editorfenster::EndeVerbinden()
{
    connect(Ende, &QPushButton::clicked, this, Offen([this] {
                Umbenennen();
                Speichern();
                close();
            }));
}

int Editorfenster::Nummer() const
{
    return ZahlIn(Wahl->Nummer);
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

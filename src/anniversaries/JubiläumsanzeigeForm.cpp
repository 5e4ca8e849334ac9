// The servers of a jubilee, one by one.
#include "anniversaries/JubiläumsanzeigeForm.h"

#include "anniversaries/JubiGebu.h"

namespace altardienst {

JubiläumsanzeigeForm::JubiläumsanzeigeForm()
    : Listenansicht({"Jubiläumsanzeige", "Jubiläum Meßdiener", "Eintrittsdatum:", "Jahre:"},
                    Jubiläumsliste.Anzahl, [liste = &Jubiläumsliste](int i) {
                        return Listenzeile{liste->Vorname[i] + " " + liste->Nachname[i],
                                           liste->Eintrittsdatum[i], liste->Jahre[i],
                                           liste->Telefon[i]};
                    })
{
}

} // namespace altardienst

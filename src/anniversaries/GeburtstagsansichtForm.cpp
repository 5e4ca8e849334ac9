// The birthdays of a month, one by one.
#include "anniversaries/GeburtstagsansichtForm.h"

#include "anniversaries/JubiGebu.h"

namespace altardienst {

GeburtstagsansichtForm::GeburtstagsansichtForm()
    : Listenansicht({"Geburtstagsansicht", "Geburtstage", "Geburtstag:", "Alter:"},
                    Geburtstagsliste.Anzahl, [liste = &Geburtstagsliste](int i) {
                        return Listenzeile{liste->Vorname[i] + " " + liste->Nachname[i],
                                           liste->Geburtstag[i], liste->Alter[i],
                                           liste->Telefon[i]};
                    })
{
}

} // namespace altardienst

// The wish partner of a server.
#include "people/Partnerboxen.h"

#include "controls/Bausteine.h"
#include "controls/Feldmarke.h"
#include "controls/Zahlbox.h"
#include "core/Namen.h"
#include "core/tables.h"
#include "people/Personenboxen.h"
#include "platform/Meldungen.h"

namespace altardienst {
namespace {

bool IstBekannt(const Text &listenname)
{
    for (int i = 0; i <= Meßdiener.Anzahl; ++i)
        if (Listenname(Meßdiener.Nachname[i], Meßdiener.Vorname[i]) == listenname)
            return true;
    return false;
}

/// A server can be the wish partner of only one other.
bool IstVergeben(const Personenname &partner, int außerAn)
{
    for (int i = 0; i <= Meßdiener.Anzahl; ++i)
        if (i != außerAn && Meßdiener.WunschNachname[i] == partner.Nachname &&
            Meßdiener.WunschVorname[i] == partner.Vorname)
            return true;
    return false;
}

} // namespace

Partnerboxen::Partnerboxen()
    : Partner(Textwahl("Partner", "Wunschpartner")), VName(Textfeld("VName")),
      NName(Textfeld("NName"))
{
}

QLayout *Partnerboxen::Anordnen() const
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(8);
    raster->setVerticalSpacing(4);
    raster->addWidget(Überschrift("Der Wunschpartner:"), 0, 0, 1, 3);
    raster->addWidget(Beschriftung("", "Nachname,Vorname", Partner), 1, 0);
    raster->addWidget(Beschriftung("", "Vorname", VName), 1, 1);
    raster->addWidget(Beschriftung("", "Nachname", NName), 1, 2);
    raster->addWidget(Partner, 2, 0);
    raster->addWidget(VName, 2, 1);
    raster->addWidget(NName, 2, 2);
    Partner->setMinimumContentsLength(20);
    // The names are set by choosing the partner.
    for (QLineEdit *feld : {VName, NName}) {
        FeldPrüfen(feld, ZerreißtDieDatei("fehlen alle Meßdiener ab hier"));
        feld->setReadOnly(true);
        feld->setFocusPolicy(Qt::ClickFocus);
    }
    raster->setColumnStretch(1, 1);
    raster->setColumnStretch(2, 1);
    return raster;
}

void Partnerboxen::ListeFüllen() const
{
    QStringList namen;
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        if (!Meßdiener.Vorname[i].empty() && !Meßdiener.Nachname[i].empty())
            namen.append(Anzeige(Listenname(Meßdiener.Nachname[i], Meßdiener.Vorname[i])));
    ListeSetzen(Partner, namen);
}

void Partnerboxen::PartnerZeigen() const
{
    const Text nachname = TextVon(NName);
    const Text vorname = TextVon(VName);
    const bool beide = !nachname.empty() && !vorname.empty();
    Setzen(Partner, beide ? Listenname(nachname, vorname) : Text());
}

void Partnerboxen::Prüfen(const QLineEdit *nummer, const Personenname &selbst,
                          bool ausgewählt) const
{
    const Text text = TextVon(Partner);
    if (!text.empty() && !IstBekannt(text)) {
        Meldungen.Zeigen("Meßdiener ist unbekannt!! Auswählen oder neu eingeben!!");
        return PartnerZeigen();
    }
    Text nachname = TextVon(NName);
    Text vorname = TextVon(VName);
    if (!text.starts_with(','))
        NameTeilen(text, nachname, vorname);
    Setzen(NName, nachname);
    Setzen(VName, vorname);
    const Personenname partner = {vorname, nachname};
    if (partner == selbst) {
        Leeren();
        if (ausgewählt)
            Meldungen.Zeigen("Ein und dieselbe Person!!!");
    } else if (IstVergeben(partner, ZahlIn(nummer))) {
        if (ausgewählt && !text.empty())
            Meldungen.Zeigen("Schon mal zugeordnet!!!!!");
        Leeren();
    }
}

void Partnerboxen::Zeigen(int i) const
{
    Setzen(VName, Meßdiener.WunschVorname[i]);
    Setzen(NName, Meßdiener.WunschNachname[i]);
}

void Partnerboxen::Schreiben(int i) const
{
    Meßdiener.WunschVorname[i] = TextVon(VName);
    Meßdiener.WunschNachname[i] = TextVon(NName);
}

void Partnerboxen::Leeren() const
{
    VName->clear();
    NName->clear();
    Partner->clearEditText();
}

} // namespace altardienst

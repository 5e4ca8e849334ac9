// How the services that the helpers offer are distributed.
#include "statistics/StatistikAllgForm.h"

#include "controls/Bausteine.h"
#include "core/Umwandlung.h"
#include "core/Zahlenmuster.h"
#include "platform/Uhr.h"
#include "statistics/Messendienste.h"
#include "statistics/Zahlentafel.h"

namespace altardienst {

StatistikAllgForm::StatistikAllgForm()
    : DD1(Beschriftung("DD1", "")), LE1(Zahlfeld("LE1")), Le2(Zahlfeld("Le2")),
      Kom1(Zahlfeld("Kom1")), Kom2(Zahlfeld("Kom2")), Ka1(Zahlfeld("Ka1")), Ka2(Zahlfeld("Ka2")),
      Kol1(Zahlfeld("Kol1")), Kol2(Zahlfeld("Kol2")), I1(Zahlfeld("I1")), I2(Zahlfeld("I2")),
      Druck(Knopf("Druck", "Drucken")), Ente(Knopf("Ente", "Ende"))
{
    Benannt(this, "StatistikAllg");
    setWindowTitle("Statistik Helfer allgemein");
    Anordnen();
    DruckUndEndeVerbinden(this, Druck, Ente);
    Füllen();
}

StatistikAllgForm::Labels StatistikAllgForm::Anzahl() const
{
    return {LE1, Kom1, Ka1, Kol1};
}

StatistikAllgForm::Labels StatistikAllgForm::Anteil() const
{
    return {Le2, Kom2, Ka2, Kol2};
}

void StatistikAllgForm::Anordnen()
{
    auto *tafel = new Zahlentafel({"Dienste", "Anzahl Wert", "Anzahl Prozentual"});
    for (std::size_t k = 0; k < Helferarten.size(); ++k)
        tafel->Zeile(Helferarten[k].Name.c_str(), {Anzahl()[k], Anteil()[k]});
    tafel->Zeile("Insgesamt", {I1, I2});

    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(Satz({Beschriftung("", "Dienste der Helfer in Verteilung am"), DD1}));
    spalte->addLayout(tafel);
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({Druck, Ente}));
    setMinimumWidth(420);
    Ente->setFocus();
}

void StatistikAllgForm::Füllen()
{
    Setzen(DD1, KurzesDatum(Uhr.Heute()));
    const Helferangebot d = HelferangebotAuswerten();
    for (std::size_t k = 0; k < Helferarten.size(); ++k) {
        Setzen(Anzahl()[k], ZahlText(d.Anzahl[k]));
        Setzen(Anteil()[k], Format(d.Anteil[k], "##,##0.00%"));
    }
    Setzen(I1, ZahlText(d.Insgesamt));
    Setzen(I2, Format(d.AnteilInsgesamt, "##,##0.00%"));
}

} // namespace altardienst

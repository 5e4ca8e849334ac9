// The services of helpers that the masses of the plan call for.
#include "statistics/StatistikHelferForm.h"

#include "controls/Bausteine.h"
#include "core/Umwandlung.h"
#include "core/Zahlenmuster.h"
#include "statistics/Messendienste.h"
#include "statistics/Zahlentafel.h"

namespace altardienst {

StatistikHelferForm::StatistikHelferForm()
    : LL1(Zahlfeld("LL1")), LL2(Zahlfeld("LL2")), KOR1(Zahlfeld("KOR1")), KOR2(Zahlfeld("KOR2")),
      KAR1(Zahlfeld("KAR1")), KAR2(Zahlfeld("KAR2")), KLR1(Zahlfeld("KLR1")),
      KLR2(Zahlfeld("KLR2")), DHI(Zahlfeld("DHI")), DHM(Zahlfeld("DHM")), DHH(Zahlfeld("DHH")),
      Druck(Knopf("Druck", "Drucken")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "StatistikHelfer");
    setWindowTitle("Statistik Helferdienste Messe");
    Anordnen();
    DruckUndEndeVerbinden(this, Druck, Ende);
    Füllen();
}

StatistikHelferForm::Labels StatistikHelferForm::Gesamt() const
{
    return {LL1, KOR1, KAR1, KLR1};
}

StatistikHelferForm::Labels StatistikHelferForm::Anteil() const
{
    return {LL2, KOR2, KAR2, KLR2};
}

void StatistikHelferForm::Anordnen()
{
    auto *tafel = new Zahlentafel({"Messendienst", "Insgesamt", "pro Messe"});
    for (std::size_t k = 0; k < Helferarten.size(); ++k) {
        const bool kollektant = &Helferarten[k] == &Kollektant; // is called something else here
        tafel->Zeile(kollektant ? "Kollektor" : Helferarten[k].Name.c_str(),
                     {Gesamt()[k], Anteil()[k]});
    }
    tafel->Zeile("Dienste Helfer insgesamt", {DHI});
    tafel->Zeile("Dienste je Messe", {nullptr, DHM});
    tafel->Zeile("Dienste je Helfer", {nullptr, DHH});
    TafelAnordnen(this, "Helferdienste", tafel, Druck, Ende);
}

void StatistikHelferForm::Füllen()
{
    const Helferdienste d = HelferdiensteAuswerten();
    for (std::size_t k = 0; k < Helferarten.size(); ++k) {
        Setzen(Gesamt()[k], ZahlText(d.Gesamt[k]));
        Setzen(Anteil()[k], Format(d.Anteil[k], "##,##0.00%"));
    }
    Setzen(DHI, ZahlText(d.Dienste));
    Setzen(DHM, Format(d.DiensteJeMesse, "##,####0.000"));
    Setzen(DHH, Format(d.DiensteJeHelfer, "##,####0.000"));
}

} // namespace altardienst

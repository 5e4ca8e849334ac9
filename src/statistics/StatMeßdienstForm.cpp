// The services of servers that the masses of the plan call for.
#include "statistics/StatMeßdienstForm.h"

#include "controls/Bausteine.h"
#include "core/Umwandlung.h"
#include "core/Zahlenmuster.h"
#include "statistics/Messendienste.h"
#include "statistics/Zahlentafel.h"

namespace altardienst {

StatMeßdienstForm::StatMeßdienstForm()
    : MGges(Zahlfeld("MGges")), MGMes(Zahlfeld("MGMes")), MLges(Zahlfeld("MLges")),
      MLMes(Zahlfeld("MLMes")), MFges(Zahlfeld("MFges")), MFMes(Zahlfeld("MFMes")),
      MWges(Zahlfeld("MWges")), MWMes(Zahlfeld("MWMes")), MKges(Zahlfeld("MKges")),
      MKMes(Zahlfeld("MKMes")), MAges(Zahlfeld("MAges")), MAMes(Zahlfeld("MAMes")),
      DMges(Zahlfeld("DMges")), DMm(Zahlfeld("DMm")), DjM(Zahlfeld("DjM")),
      Druck(Knopf("Druck", "Drucken")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "StatMeßdienst");
    setWindowTitle("Statistik Messendienst");
    Anordnen();
    DruckUndEndeVerbinden(this, Druck, Ende);
    Füllen();
}

StatMeßdienstForm::Labels StatMeßdienstForm::Gesamt() const
{
    return {MGges, MLges, MFges, MWges, MKges, MAges};
}

StatMeßdienstForm::Labels StatMeßdienstForm::JeMesse() const
{
    return {MGMes, MLMes, MFMes, MWMes, MKMes, MAMes};
}

void StatMeßdienstForm::Anordnen()
{
    auto *tafel = new Zahlentafel({"Messendienst", "Insgesamt", "pro Messe"});
    for (std::size_t k = 0; k < Dienstarten.size(); ++k)
        tafel->Zeile(Dienstarten[k].Name.c_str(), {Gesamt()[k], JeMesse()[k]});
    tafel->Zeile("Dienste Meßdiener gesamt", {DMges});
    tafel->Zeile("Dienste je Messe", {nullptr, DMm});
    tafel->Zeile("Dienste je Meßdiener", {nullptr, DjM});
    TafelAnordnen(this, "Meßdienerdienste", tafel, Druck, Ende);
}

void StatMeßdienstForm::Füllen()
{
    const Messendienste d = MessendiensteAuswerten();
    for (std::size_t k = 0; k < Dienstarten.size(); ++k) {
        Setzen(Gesamt()[k], ZahlText(d.Gesamt[k]));
        Setzen(JeMesse()[k], Format(d.JeMesse[k], "##,####0.000"));
    }
    Setzen(DMges, Format(d.Dienste, "###,#000.0"));
    Setzen(DMm, Format(d.DiensteJeMesse, "##,####0.000"));
    Setzen(DjM, Format(d.DiensteJeMeßdiener, "##,####0.000"));
}

} // namespace altardienst

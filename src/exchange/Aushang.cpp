// The plan on one sheet for the wall.
#include "exchange/Aushang.h"

#include "core/Umwandlung.h"
#include "exchange/Aushangdruck.h"
#include "exchange/Aushangsatz.h"
#include "platform/Lebenszeichen.h"
#include "printing/Druckrahmen.h"
#include "values/Laufzeitfehler.h"

#include <optional>
#include <unordered_map>

namespace altardienst {
namespace {

constexpr Single Maßgröße = 100; // points: measured once, since texts grow with their type
constexpr double TwipsProPunkt = 20;

/// What texts measure per point in the font of the report, each measured once.
class Maßband {
  public:
    Satzmaße Maße()
    {
        Drucker->FontSizeFein(Maßgröße);
        return {[this](const Text &text, bool fett) { return Breite(text, fett); },
                static_cast<double>(Drucker->TextHeight() / Maßgröße), TwipsProPunkt};
    }

  private:
    double Breite(const Text &text, bool fett)
    {
        auto &bekannte = fett ? fette : magere;
        const auto [stelle, neu] = bekannte.try_emplace(text, 0);
        if (neu) {
            Drucker->FontSizeFein(Maßgröße);
            Drucker->FontBold(fett);
            stelle->second = static_cast<double>(Drucker->TextWidth(text) / Maßgröße);
        }
        return stelle->second;
    }

    std::unordered_map<Text, double> magere;
    std::unordered_map<Text, double> fette;
};

struct Satz {
    Aushangtafel Tafel;
    Satzform Form;
    bool Gekürzt = false; // although whole names were wanted
};

/// The plan with names in one form, set with a column for each service and with one for the rare
/// ones together, if there are any.
class Fassung {
  public:
    Fassung(Namenform namen, const Satzmaße &maße)
        : getrennt(AushangtafelVon(GemeinsameTabellen(), namen)),
          zusammen(Zusammengelegt(getrennt)), getrennteSuche(getrennt, maße)
    {
        if (zusammen)
            zusammenSuche.emplace(*zusammen, maße);
    }

    int Messen() const { return static_cast<int>(getrennt.Reihen.size()); }

    /// Columns are joined only where it pays.
    std::optional<Satz> Setzen(int blätter, double kleinste)
    {
        constexpr double Nennenswert = 0.5; // points
        const Satzplatz platz = Aushangplatz();
        const auto form = getrennteSuche.Größter(platz, blätter, kleinste);
        if (zusammenSuche)
            if (const auto andere = zusammenSuche->Größter(platz, blätter, kleinste);
                andere && (!form || andere->Größe >= form->Größe + Nennenswert))
                return Satz{*zusammen, *andere};
        if (!form)
            return std::nullopt;
        return Satz{getrennt, *form};
    }

    /// On as few sheets as this size allows.
    std::optional<Satz> AufBlättern(double kleinste)
    {
        if (!Setzen(Messen(), kleinste)) // each mass on a sheet of its own
            return std::nullopt;
        for (int blätter = 1;; ++blätter)
            if (auto satz = Setzen(blätter, kleinste))
                return satz;
    }

  private:
    Aushangtafel getrennt;
    std::optional<Aushangtafel> zusammen;
    Satzsuche getrennteSuche;
    std::optional<Satzsuche> zusammenSuche;
};

/// On one sheet with the names as wanted, else with short ones, else on as few sheets as readable
/// type needs. What is too wide even so makes the type smaller: nothing is cut.
Satz SatzFinden(Namenform form, Maßband &band)
{
    const Satzmaße maße = band.Maße();
    Fassung gewünschte(form, maße);
    if (auto satz = gewünschte.Setzen(1, KleinsterAushang))
        return *satz;
    std::optional<Fassung> kurze;
    if (form == Namenform::Ganz)
        kurze.emplace(Namenform::VornameUndBuchstabe, maße);
    const auto gekürzt = [](std::optional<Satz> satz) {
        if (satz)
            satz->Gekürzt = true;
        return satz;
    };
    if (kurze)
        if (auto satz = gekürzt(kurze->Setzen(1, KleinsterAushang)))
            return *satz;
    if (auto satz = gewünschte.AufBlättern(KleinsterAushang))
        return *satz;
    if (kurze)
        if (auto satz = gekürzt(kurze->AufBlättern(KleinsterAushang)))
            return *satz;
    for (double kleinste = KleinsterAushang - 1; kleinste >= 1; --kleinste)
        if (auto satz = gewünschte.AufBlättern(kleinste))
            return *satz;
    throw Laufzeitfehler(Laufzeitfehler::Druckerfehler);
}

Text SatzÜber(const Satz &satz)
{
    const Text kleinste = "kleiner als " + ZahlText(static_cast<int>(KleinsterAushang)) + " Punkt";
    if (satz.Form.Größe < KleinsterAushang)
        return "Aushang: Schrift " + kleinste + ", weil ein Text sehr lang ist";
    const int blätter = satz.Form.Blätter();
    if (blätter == 1)
        return satz.Gekürzt ? "Aushang: Nachnamen gekürzt, sonst wäre die Schrift " + kleinste
                            : Text();
    return Text("Aushang") + (satz.Gekürzt ? " mit gekürzten Nachnamen" : "") + " auf " +
           ZahlText(blätter) + " Blättern, sonst wäre die Schrift " + kleinste;
}

} // namespace

Text AushangDrucken()
{
    if (GemeinsameTabellen().Messenzahl() == 0)
        return "kein Aushang: es gibt keine Messen";
    Text darüber;
    BerichtDrucken({"ganze Namen", "Vorname und erster Buchstabe", "Aushang", ""}, [&](int modus) {
        Drucker->Orientation(DruckerDienst::Querformat);
        Drucker->FontName(Konfig.Schriftart);
        Drucker->FontItalic(false);
        Drucker->FontStrikethru(false);
        Drucker->FontUnderline(false);
        VorLangemSchritt();
        Maßband band;
        const Satz satz = SatzFinden(
            modus == DruckerDienst::ZweiteForm ? Namenform::VornameUndBuchstabe : Namenform::Ganz,
            band);
        AushangZeichnen(satz.Tafel, satz.Form, band.Maße());
        Drucker->EndDoc();
        Drucker->Orientation(DruckerDienst::Hochformat);
        darüber = SatzÜber(satz);
    });
    return darüber;
}

} // namespace altardienst

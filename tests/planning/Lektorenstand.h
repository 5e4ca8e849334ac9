// The fixture of the tests of the helpers of a mass.
#pragma once

#include "Formstand.h"
#include "planning/LektorrenuswForm.h"
#include "planning/Messenbild.h"

namespace altardienst {

struct Lektorenplatz {
    const char *Beschriftung;
    const char *LH;
    const char *Vor;
    const char *Nach;
};

inline constexpr std::array<Lektorenplatz, 8> Plätze = {{
    {"Lektor 1:", "LH1", "Lecki1Vor", "Lecki1nach"},
    {"Lektor 2:", "LH2", "Lecki2Vor", "Lecki2Nach"},
    {"Kommunionhelfer 1:", "LH3", "Komm1Vor", "Komm1Nach"},
    {"Kommunionhelfer 2:", "LH4", "Kommt2Vor", "Kommt2Nach"},
    {"Kantor 1:", "LH5", "Kant1Vor", "Kant1Nach"},
    {"Kantor 2:", "LH6", "Kant2Vor", "Kant2Nach"},
    {"Kollektant 1:", "LH7", "Ko1Vor", "Ko1Nach"},
    {"Kollektant 2:", "LH8", "Ko2Vor", "Ko2Nach"},
}};
inline constexpr std::array Zahlboxen = {"Lecki", "Kommi", "Kanto", "Kolt"};

/// Mass 2 of four is on the screen. The helpers are Abel, Bauer, ... Zoller; the first eight are in
/// the eight places, in the order of the screen, and every count is 2.
class Lektorenstand : public Formstand<> {
  protected:
    Lektorenstand()
    {
        for (const auto &[vor, nach] : {std::pair("Anna", "Abel"),
                                        {"Bernd", "Bauer"},
                                        {"Clara", "Conrad"},
                                        {"Doris", "Dahl"},
                                        {"Egon", "Ebert"},
                                        {"Frieda", "Funk"},
                                        {"Georg", "Groß"},
                                        {"Hanna", "Höß"},
                                        {"Yvonne", "Yilmaz"},
                                        {"Zita", "Zoller"}})
            HelferAnlegen(vor, nach, "Lektor");
        MessenFüllen(4);
        for (auto *zahl :
             {&Messe.LektorZahl, &Messe.KommZahl, &Messe.KantorZahl, &Messe.KollektZahl})
            (*zahl)[2] = 2;
        for (std::size_t p = 0; p < Plätze.size(); ++p) {
            const int h = static_cast<int>(p);
            (*Vor[p])[2] = Helfer.Vorname[h];
            (*Nach[p])[2] = Helfer.Nachname[h];
        }
        Messe.Cursor = 2;
    }

    void Öffnen()
    {
        vorher = MessenJetzt();
        form = new LektorrenuswForm([this] { ++geschlossen; });
        Zeigen(form);
    }

    QComboBox *LH(std::size_t p) const { return Finden<QComboBox>(Plätze[p].LH); }
    Text Gewählt(std::size_t p) const { return Zeigt(LH(p)); }

    /// Puts a text into a combo that has the focus, and leaves it.
    void Wählen(std::size_t p, const Text &text) const
    {
        FokusAuf(LH(p));
        Einsetzen(LH(p), text);
        FokusAuf("Ende");
    }

    /// "Vorname|Nachname" of a place, on the screen and in the table.
    Text Name(std::size_t p) const { return Zeigt(Plätze[p].Vor) + "|" + Zeigt(Plätze[p].Nach); }
    Text Gespeichert(std::size_t p) const { return (*Vor[p])[2] + "|" + (*Nach[p])[2]; }

    bool IstAktiv(std::size_t p) const
    {
        const bool aktiv = LH(p)->isEnabled();
        QWidget *label = nullptr;
        for (QLabel *eines : form->findChildren<QLabel *>())
            if (eines->buddy() == LH(p))
                label = eines;
        EXPECT_TRUE(label);
        for (const QWidget *control : {Finden(Plätze[p].Vor), Finden(Plätze[p].Nach), label})
            EXPECT_EQ(control->isEnabled(), aktiv) << p;
        return aktiv;
    }

    using Spalte = MesseTabelle::Spalte<Text>;
    const std::array<Spalte *, 8> Vor = {&Messe.Lektor1Vor,  &Messe.Lektor2Vor, &Messe.Komm1Vor,
                                         &Messe.Komm2Vor,    &Messe.Kantor1Vor, &Messe.Kantor2Vor,
                                         &Messe.Kollekt1Vor, &Messe.Kollekt2Vor};
    const std::array<Spalte *, 8> Nach = {
        &Messe.Lektor1Nach, &Messe.Lektor2Nach, &Messe.Komm1Nach,    &Messe.Komm2Nach,
        &Messe.Kantor1Nach, &Messe.Kantor2Nach, &Messe.Kollekt1Nach, &Messe.Kollekt2Nach};

    const Text Schon = "Meßhelfer ist schon dieser Messe zugeordnet!!!";
    const Text Unbekannt = "Meßhelfer ist unbekannt!! Auswählen oder neu eingeben!!";

    Messenbild vorher;
    int geschlossen = 0;
};

} // namespace altardienst

// Writes web pages of plans small and large for a browser to lay out and print, and a list of how
// many sheets the program expects of each. webseite_pruefen.py compares.
#include "exchange/Webseite.h"

#include "overview/Platz.h"
#include "platform/Laufwerke.h"
#include "platform/Uhr.h"

#include <array>
#include <fstream>
#include <random>

using namespace altardienst;

namespace {

namespace fs = std::filesystem;

constexpr int Leute = 60;

void Anlegen()
{
    Konfig.Gemeinde = "St. Änne am Öhrchen";
    const std::array vornamen = {"Anna", "Maximilian", "Li",  "Änne", "Jörg-Uwe",
                                 "Zoë",  "Elisabeth",  "Ben", "Cem",  "Friederike"};
    const std::array nachnamen = {"Adler", "Öttinger-Übermann",  "Wu", "von der Au",
                                  "Groß",  "Müller-Lüdenscheidt"};
    for (const char *nachname : nachnamen)
        for (const char *vorname : vornamen) {
            Meßdiener.Vorname[Meßdiener.Anzahl] = vorname;
            Meßdiener.Nachname[Meßdiener.Anzahl] = nachname;
            ++Meßdiener.Anzahl;
        }
}

/// Three masses a week; each fourth one is large.
void Planen(int messen, int diener)
{
    std::mt19937 zufall(20261121);
    const std::array arten = {"Hochamt", "Vorabendmesse", "Messe",
                              "Hochamt mit anschließender Prozession zum Friedhof"};
    Messe.Anzahl = static_cast<Int16>(messen);
    for (int i = 0; i < messen; ++i) {
        Messe.Datum[i] = DatumAus({2026, 11, 28}) + i / 3 * 7 + i % 3;
        Messe.Uhrzeit[i] = ZeitAus((8 + i % 3 * 5) * 3600 + i % 2 * 1800);
        Messe.Messeart[i] = arten.at(static_cast<std::size_t>(i % 4));
        Messe.Dienerzahl[i] = static_cast<Int16>(i % 4 == 0 ? diener : std::min(diener, 4));
        Messe.Leuchter[i] = 2;
        Messe.Weihrauch[i] = static_cast<Int16>(i % 4 == 0 ? 2 : 0);
        Messe.LektorZahl[i] = 1;
        Messe.KommZahl[i] = 2;
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot) {
            const int wer = static_cast<int>(zufall() % Leute);
            Besetzen(Messe, Dienerplatznr(i, slot), Meßdiener.Vorname[wer],
                     Meßdiener.Nachname[wer]);
        }
        for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
            Besetzen(Messe, Helferplatznr(i, nr), "Maria", "Linde");
    }
}

} // namespace

int main(int anzahl, char *worte[])
{
    if (anzahl != 2)
        return 2;
    const fs::path verzeichnis = worte[1];
    Uhr.Heute = [] { return DatumAus({2026, 11, 21}); };
    Anlegen();
    std::ofstream liste(verzeichnis / "seiten.tsv", std::ios::binary);
    for (const int messen : {1, 9, 27, 60, 113, 300, 602})
        for (const int diener : {4, 12})
            for (const auto &[form, kurz] : {std::pair(Namenform::Ganz, "ganz"),
                                             std::pair(Namenform::VornameUndBuchstabe, "kurz")}) {
                Planen(messen, diener);
                const Webseite seite = PlanAlsWebseite(
                    GemeinsameTabellen(),
                    {.Titel = "Messdienerplan St. Änne", .Namen = form, .MitHelfern = true});
                const std::string name =
                    std::to_string(messen) + "-" + std::to_string(diener) + "-" + kurz + ".html";
                std::ofstream(verzeichnis / name, std::ios::binary) << seite.Bytes;
                liste << name << '\t' << seite.Druckseiten << '\n';
            }
    return 0;
}

// Writes calendars of a random plan for a foreign parser to read, and the plan itself as a table:
// once, and again a minute later after a new draw. kalender_lesen.py compares them.
#include "exchange/Kalender.h"

#include "exchange/Kalenderschreiber.h"
#include "overview/Platz.h"
#include "platform/Laufwerke.h"
#include "platform/Uhr.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <random>

using namespace altardienst;

namespace {

namespace fs = std::filesystem;

constexpr int Messen = 320;
constexpr std::array<const char *, 8> Arten = {
    "Hochamt",
    "Vorabendmesse",
    "Wochendienst",
    "",
    "Öffnung: \"Tür\"",
    "Chor; Orgel, Pauken",
    "mit Rückstrich \\ und",
    "Sehr lange Überschrift über "
    "einen Gottesdienst mit Prozession, Segnung der Äpfel und anschließender Begegnung"};

/// Days with a change of the clock and those around them, and others between them.
Datum EinTag(std::mt19937 &zufall)
{
    static const std::array umstellungen = {DatumAus({2026, 3, 29}), DatumAus({2026, 10, 25}),
                                            DatumAus({2027, 3, 28}), DatumAus({2027, 10, 31}),
                                            DatumAus({2028, 3, 26})};
    if (zufall() % 4 != 0)
        return DatumAus({2026, 3, 20}) + static_cast<int>(zufall() % 740);
    return umstellungen.at(zufall() % umstellungen.size()) + static_cast<int>(zufall() % 3) - 1;
}

void Anlegen(std::mt19937 &zufall)
{
    Konfig.Gemeinde = "St. Änne, am Öhrchen; \\ und mehr";
    const std::array vornamen = {"Anna", "Änne", "Ben", "Cem", "Jörg-Uwe", "Zoë"};
    const std::array nachnamen = {"Adler", "Müller", "von der Au", "Šimić", "O'Neill", "Groß, jun"};
    for (const char *vorname : vornamen)
        for (const char *nachname : nachnamen) {
            Meßdiener.Vorname[Meßdiener.Anzahl] = vorname;
            Meßdiener.Nachname[Meßdiener.Anzahl] = nachname;
            ++Meßdiener.Anzahl;
        }
    for (int h = 0; h < 6; ++h) {
        Helfer.Vorname[h] = vornamen.at(static_cast<std::size_t>(h)); // two of them servers too
        Helfer.Nachname[h] = h < 2 ? "Adler" : "Helferin";
        ++Helfer.Anzahl;
    }
    Messe.Anzahl = Messen;
    for (int i = 0; i < Messen; ++i) {
        Messe.Datum[i] = EinTag(zufall);
        const int stunde = static_cast<int>(zufall() % 3 == 0 ? zufall() % 5 : zufall() % 24);
        Messe.Uhrzeit[i] = ZeitAus(stunde * 3600 + static_cast<int>(zufall() % 12) * 300);
        Messe.Messeart[i] = Arten.at(zufall() % Arten.size());
        Messe.Dienerzahl[i] = static_cast<int>(zufall() % 21);
        Messe.Leuchter[i] = 2;
        Messe.Weihrauch[i] = static_cast<int>(zufall() % 3);
        Messe.LektorZahl[i] = 2;
        Messe.KantorZahl[i] = 1;
    }
}

void Verlosen(std::mt19937 &zufall)
{
    for (int i = 0; i < Messen; ++i) {
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot) {
            const int j = static_cast<int>(zufall() % static_cast<unsigned>(Meßdiener.Anzahl));
            Besetzen(Messe, Dienerplatznr(i, slot), Meßdiener.Vorname[j], Meßdiener.Nachname[j]);
        }
        for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr) {
            const int h = static_cast<int>(zufall() % 6);
            Besetzen(Messe, Helferplatznr(i, nr), Helfer.Vorname[h], Helfer.Nachname[h]);
        }
    }
}

void Schreiben(const fs::path &datei, const std::string &bytes)
{
    std::ofstream strom(datei, std::ios::binary);
    strom << bytes;
}

/// One service a line; a mass without any has a line of its own.
std::string PlanAlsTabelle()
{
    std::string tabelle;
    for (int i = 0; i < Messen; ++i) {
        const Kalendertag tag = KalendertagVon(Messe.Datum[i]);
        const int sekunden = SekundenVon(Messe.Uhrzeit[i]);
        char termin[64];
        std::snprintf(termin, sizeof termin, "%04d-%02d-%02dT%02d:%02d:%02d", tag.Jahr, tag.Monat,
                      tag.Tag, sekunden / 3600, sekunden / 60 % 60, sekunden % 60);
        const std::string messe = std::to_string(i) + "\t" + termin + "\t" + Messe.Messeart[i];
        tabelle += messe + "\t\t\n";
        const auto zeile = [&](Planplatz platz) {
            if (!IstGewünscht(Messe, platz))
                return;
            const Platzname name = NameAm(Messe, platz);
            tabelle += messe + "\t" + DienstAm(Messe, platz) + "\t" +
                       VollerName(name.Vorname, name.Nachname) + "\n";
        };
        for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
            zeile(Dienerplatznr(i, slot));
        for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
            zeile(Helferplatznr(i, nr));
    }
    return tabelle;
}

void AllesSchreiben(const fs::path &verzeichnis)
{
    fs::create_directories(verzeichnis / "personen");
    Schreiben(verzeichnis / "plan.tsv", PlanAlsTabelle());
    const Plantabellen tabellen = GemeinsameTabellen();
    Schreiben(verzeichnis / "alle.ics",
              MessenAlsKalender(tabellen, Namenform::Ganz).Dateien.at(0).Bytes);
    for (const Kalenderdatei &datei : KalenderJePerson(tabellen, {}, Namenform::Ganz).Dateien)
        Schreiben(verzeichnis / "personen" / PfadAus(datei.Name), datei.Bytes);
}

} // namespace

int main(int anzahl, char *worte[])
{
    if (anzahl != 2)
        return 2;
    const fs::path verzeichnis = worte[1];
    int sekunden = 12 * 3600;
    Uhr.Heute = [] { return DatumAus({2026, 11, 21}); };
    Uhr.Sekunden = [&] { return sekunden; };
    std::mt19937 zufall(20261121);
    Anlegen(zufall);
    Verlosen(zufall);
    AllesSchreiben(verzeichnis / "1");
    sekunden += 60;
    Verlosen(zufall);
    AllesSchreiben(verzeichnis / "2");
    return 0;
}

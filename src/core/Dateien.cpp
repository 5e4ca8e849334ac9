// Readers and writers of the eight data files.
#include "core/Dateien.h"

#include "core/SchleifenZähler.h"
#include "core/tables.h"

#include <algorithm>

namespace altardienst {
namespace {

template <class Tabelle, class Lesart>
void DatensätzeLesen(Tabelle &tabelle, Zeilenleser &zeilen, Lesart feldleser)
{
    SchleifenZähler = 0;
    for (; SchleifenZähler <= Tabelle::HöchsterInDatei && !zeilen.AmEnde(); ++SchleifenZähler)
        FürJedesFeld(tabelle.Felder(), SchleifenZähler, feldleser);
}

template <class Tabelle> void DatensätzeSchreiben(Tabelle &tabelle, Feldschreiber schreiben)
{
    for (SchleifenZähler = 0; SchleifenZähler <= Tabelle::HöchsterInDatei; ++SchleifenZähler)
        FürJedesFeld(tabelle.Felder(), SchleifenZähler, schreiben);
}

/// Header lines: the record shown last and the number of records.
template <class Tabelle> void KopfLesen(Tabelle &tabelle, Feldleser lesen)
{
    lesen(tabelle.Cursor);
    lesen(tabelle.Anzahl);
}

template <class Tabelle> void KopfSchreiben(Tabelle &tabelle, Feldschreiber schreiben)
{
    schreiben(tabelle.Cursor);
    schreiben(tabelle.Anzahl);
}

void KonfigLesen(Zeilenleser &zeilen)
{
    // Files from older versions end before one of these lines.
    constexpr std::array<int, 6> Gruppenanfänge = {16, 17, 19, 20, 21, 29};
    Feldleser lesen(zeilen);
    int zeile = 0;
    bool beendet = false;
    auto feldLesen = [&](auto &&feld) {
        ++zeile;
        beendet = beendet || (zeilen.AmEnde() && std::ranges::count(Gruppenanfänge, zeile) > 0);
        if (!beendet)
            lesen(feld);
    };
    std::apply([&](auto &&...felder) { (feldLesen(felder), ...); }, Konfig.Felder());
}

void KonfigSchreiben(std::string &inhalt)
{
    Feldschreiber schreiben(inhalt);
    std::apply([&](auto &&...felder) { (schreiben(felder), ...); }, Konfig.Felder());
}

void StandardmesseLesen(Zeilenleser &zeilen)
{
    Feldleser lesen(zeilen);
    lesen(Standardmesse.Anzahl);
    DatensätzeLesen(Standardmesse, zeilen, lesen);
}

void StandardmesseSchreiben(std::string &inhalt)
{
    Feldschreiber schreiben(inhalt);
    schreiben(Standardmesse.Anzahl);
    DatensätzeSchreiben(Standardmesse, schreiben);
}

/// The only file that is read by delimiters, although it is written without quotes: a comma in a
/// text splits that text in two on the next load.
void MeßdienerLesen(Zeilenleser &zeilen)
{
    MeßdienerKopfLesen(zeilen);
    DatensätzeLesen(Meßdiener, zeilen, Feldleser(zeilen, &Zeilenleser::Abgegrenzt));
}

/// Only the helpers' file is read without checking for its end, so a short one fails.
void HelferLesen(Zeilenleser &zeilen)
{
    Feldleser lesen(zeilen);
    KopfLesen(Helfer, lesen);
    for (SchleifenZähler = 0; SchleifenZähler <= HelferTabelle::HöchsterInDatei; ++SchleifenZähler)
        FürJedesFeld(Helfer.Felder(), SchleifenZähler, lesen);
}

void EtikettLesen(Zeilenleser &zeilen)
{
    Feldleser lesen(zeilen);
    lesen(Etikett.Anzahl);
    DatensätzeLesen(Etikett, zeilen, lesen);
}

void EtikettSchreiben(std::string &inhalt)
{
    Feldschreiber schreiben(inhalt);
    schreiben(Etikett.Anzahl);
    DatensätzeSchreiben(Etikett, schreiben);
}

/// The files whose header is Cursor and Anzahl and whose lines are read whole.
template <auto &Tabelle> void TabelleLesen(Zeilenleser &zeilen)
{
    Feldleser lesen(zeilen);
    KopfLesen(Tabelle, lesen);
    DatensätzeLesen(Tabelle, zeilen, lesen);
}

/// Only the loop over the masses continues past the end of its file, with nothing to read.
void MesseLesen(Zeilenleser &zeilen)
{
    TabelleLesen<Messe>(zeilen);
    SchleifenZähler = MesseTabelle::HöchsterInDatei + 1;
}

template <auto &Tabelle> void TabelleSchreiben(std::string &inhalt)
{
    Feldschreiber schreiben(inhalt);
    KopfSchreiben(Tabelle, schreiben);
    DatensätzeSchreiben(Tabelle, schreiben);
}

} // namespace

const std::array<Datei, 8> Dateien = {{
    {"Konfig.cfg", "konfig.cfg", KonfigLesen, KonfigSchreiben},
    {"Standard.dat", "standard.dat", StandardmesseLesen, StandardmesseSchreiben},
    {"Meßdiener.dat", "meßdiener.dat", MeßdienerLesen, TabelleSchreiben<Meßdiener>},
    {"Messen.dat", "messen.dat", MesseLesen, TabelleSchreiben<Messe>},
    {"Gruppen.dat", "gruppen.dat", TabelleLesen<Gruppe>, TabelleSchreiben<Gruppe>},
    {"Helfer.dat", "helfer.dat", HelferLesen, TabelleSchreiben<Helfer>},
    {"Etiketten.dat", "etiketten.dat", EtikettLesen, EtikettSchreiben},
    {"MeßdienerMesse.dat", "meßdienermesse.dat", TabelleLesen<MesseDienerFest>,
     TabelleSchreiben<MesseDienerFest>},
}};

void MeßdienerKopfLesen(Zeilenleser &zeilen)
{
    KopfLesen(Meßdiener, Feldleser(zeilen, &Zeilenleser::Abgegrenzt));
}

void SkalenBegrenzen()
{
    auto achse = [](Single &skala) {
        if (!(skala >= 49.9999F && skala <= 60.0001F))
            skala = KonfigDatensatz::SkalaVorgabe;
    };
    auto höchstzahl = [](Int16 &skal, int vorgabe) {
        if (skal < 10 || skal > 10000)
            skal = vorgabe;
    };
    achse(Konfig.XSkala);
    achse(Konfig.YSkala);
    höchstzahl(Konfig.Skal1, 302);
    höchstzahl(Konfig.Skal2, 302);
    höchstzahl(Konfig.Skal3, 602);
    höchstzahl(Konfig.Skal4, 102);
    höchstzahl(Konfig.Skal5, Konfig.Skal1 + Konfig.Skal2);
    höchstzahl(Konfig.Skal6, 202);
}

} // namespace altardienst

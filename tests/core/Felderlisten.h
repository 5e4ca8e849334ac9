// The fields of each table and the kinds of the lines of each file, written out a second time by
// hand: the tests compare the program's own lists with these.
#pragma once

#include "core/Dateien.h"
#include "core/tables.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace altardienst {

/// What is on a line: T text, N Int16, L Int32, S Single, D date, Z time of day; 6, 8 and A are
/// flag strings of 6, 8 and 11 positions.
struct Dateiform {
    const char *Name;
    std::string Kopf;      // kinds of the header lines
    std::string Datensatz; // kinds of the lines of a record
    int Datensätze;
    int Zeilen; // in all

    char Art(int zeile) const // from 0
    {
        auto stelle = static_cast<std::size_t>(zeile);
        return stelle < Kopf.size() ? Kopf[stelle]
                                    : Datensatz[(stelle - Kopf.size()) % Datensatz.size()];
    }
    int Kopfzeilen() const { return static_cast<int>(Kopf.size()); }
    int Satzzeilen() const { return static_cast<int>(Datensatz.size()); }
};

inline std::string Mal(int anzahl, const std::string &text)
{
    std::string alle;
    for (int i = 0; i < anzahl; ++i)
        alle += text;
    return alle;
}

inline const std::array<Dateiform, 8> &Dateiformen()
{
    static const std::array<Dateiform, 8> formen = {{
        {"Konfig.cfg", "", "TTTNNNT8NN6ANNNNNNNNSSNNNNNNT", 1, 29},
        {"Standard.dat", "N", "TZTNNNNNNNNNNN", 21, 295},
        {"Meßdiener.dat", "NN", "TTTLTTTDTNDT68DDDDDDDDDDTTN", 401, 10829},
        {"Messen.dat", "NN", "TDZTNNNNNNN" + Mal(63, "T") + "T" + Mal(4, "NTTTT"), 603, 57287},
        {"Gruppen.dat", "NN", "T", 103, 105},
        {"Helfer.dat", "NN", "TTTLTTTDTTDDDDDD", 201, 3218},
        {"Etiketten.dat", "N", "TSSSSSNN", 21, 169},
        {"MeßdienerMesse.dat", "NN", "DZ" + Mal(60, "T"), 401, 24864},
    }};
    return formen;
}

// One visit per field of a record, in the order of the file. A time field is distinguished from a
// date by name (`f.Zeit`), since the type is the same.

template <class F> void KonfigFelder(F &&f)
{
    f(Konfig.Gemeinde);
    f(Konfig.Straße);
    f(Konfig.PlzOrt);
    f(Konfig.DiffJahr);
    f(Konfig.DiffGröße);
    f(Konfig.Tage);
    f(Konfig.Schriftart);
    f(Konfig.Flags8);
    f(Konfig.Schriftgröße);
    f(Konfig.Überschriftgröße);
    f(Konfig.Flags6);
    f(Konfig.Flags11);
    f(Konfig.RandLinks);
    f(Konfig.RandUnten);
    f(Konfig.RandOben);
    f(Konfig.GrenzeAuslöse);
    f(Konfig.ManuellKreuzträger);
    f(Konfig.ManuellWeihrauch);
    f(Konfig.StartWochentag);
    f(Konfig.VorlaufWochen);
    f(Konfig.XSkala);
    f(Konfig.YSkala);
    f(Konfig.Skal1);
    f(Konfig.Skal2);
    f(Konfig.Skal3);
    f(Konfig.Skal4);
    f(Konfig.Skal5);
    f(Konfig.Skal6);
    f(Konfig.Hintergrund);
}

template <class F> void StandardmesseFelder(int i, F &&f)
{
    f(Standardmesse.Wochentag[i]);
    f.Zeit(Standardmesse.Uhrzeit[i]);
    f(Standardmesse.Messeart[i]);
    f(Standardmesse.Dienerzahl[i]);
    f(Standardmesse.Gabenbereitung[i]);
    f(Standardmesse.Leuchter[i]);
    f(Standardmesse.Flambeau[i]);
    f(Standardmesse.Weihrauch[i]);
    f(Standardmesse.Kreuzträger[i]);
    f(Standardmesse.Allgemein[i]);
    f(Standardmesse.Lektor[i]);
    f(Standardmesse.Kommunion[i]);
    f(Standardmesse.Kantor[i]);
    f(Standardmesse.Kollektant[i]);
}

template <class F> void MeßdienerFelder(int i, F &&f)
{
    f(Meßdiener.Vorname[i]);
    f(Meßdiener.Nachname[i]);
    f(Meßdiener.Straße[i]);
    f(Meßdiener.PLZ[i]);
    f(Meßdiener.Ort[i]);
    f(Meßdiener.Telefon[i]);
    f(Meßdiener.EMail[i]);
    f(Meßdiener.Geburtstag[i]);
    f(Meßdiener.Geschlecht[i]);
    f(Meßdiener.Größe[i]);
    f(Meßdiener.Eintrittsdatum[i]);
    f(Meßdiener.Gruppe[i]);
    f(Meßdiener.Qualifikation[i]);
    f(Meßdiener.Wochendienst[i]);
    f(Meßdiener.Von1[i]);
    f(Meßdiener.Bis1[i]);
    f(Meßdiener.Von2[i]);
    f(Meßdiener.Bis2[i]);
    f(Meßdiener.Von3[i]);
    f(Meßdiener.Bis3[i]);
    f(Meßdiener.Von4[i]);
    f(Meßdiener.Bis4[i]);
    f(Meßdiener.Von5[i]);
    f(Meßdiener.Bis5[i]);
    f(Meßdiener.WunschVorname[i]);
    f(Meßdiener.WunschNachname[i]);
    f(Meßdiener.Häufigkeit[i]);
}

template <class F> void MesseFelder(int i, F &&f)
{
    f(Messe.Wochentag[i]);
    f(Messe.Datum[i]);
    f.Zeit(Messe.Uhrzeit[i]);
    f(Messe.Messeart[i]);
    f(Messe.Dienerzahl[i]);
    f(Messe.Gabenbereitung[i]);
    f(Messe.Leuchter[i]);
    f(Messe.Flambeau[i]);
    f(Messe.Weihrauch[i]);
    f(Messe.Kreuzträger[i]);
    f(Messe.Allgemein[i]);
    for (int k = 0; k <= 20; ++k) {
        f(Messe.DienerVor[i][k]);
        f(Messe.DienerNach[i][k]);
        f(Messe.DienerDienst[i][k]);
    }
    f(Messe.Kennung[i]);
    f(Messe.LektorZahl[i]);
    f(Messe.Lektor1Vor[i]);
    f(Messe.Lektor1Nach[i]);
    f(Messe.Lektor2Vor[i]);
    f(Messe.Lektor2Nach[i]);
    f(Messe.KommZahl[i]);
    f(Messe.Komm1Vor[i]);
    f(Messe.Komm1Nach[i]);
    f(Messe.Komm2Vor[i]);
    f(Messe.Komm2Nach[i]);
    f(Messe.KantorZahl[i]);
    f(Messe.Kantor1Vor[i]);
    f(Messe.Kantor1Nach[i]);
    f(Messe.Kantor2Vor[i]);
    f(Messe.Kantor2Nach[i]);
    f(Messe.KollektZahl[i]);
    f(Messe.Kollekt1Vor[i]);
    f(Messe.Kollekt1Nach[i]);
    f(Messe.Kollekt2Vor[i]);
    f(Messe.Kollekt2Nach[i]);
}

template <class F> void GruppeFelder(int i, F &&f)
{
    f(Gruppe.Bezeichnung[i]);
}

template <class F> void HelferFelder(int i, F &&f)
{
    f(Helfer.Vorname[i]);
    f(Helfer.Nachname[i]);
    f(Helfer.Straße[i]);
    f(Helfer.PLZ[i]);
    f(Helfer.Ort[i]);
    f(Helfer.Telefon[i]);
    f(Helfer.EMail[i]);
    f(Helfer.Geburtstag[i]);
    f(Helfer.Dienst1[i]);
    f(Helfer.Dienst2[i]);
    f(Helfer.Von1[i]);
    f(Helfer.Bis1[i]);
    f(Helfer.Von2[i]);
    f(Helfer.Bis2[i]);
    f(Helfer.Von3[i]);
    f(Helfer.Bis3[i]);
}

template <class F> void EtikettFelder(int i, F &&f)
{
    f(Etikett.Name[i]);
    f(Etikett.RandOU[i]);
    f(Etikett.RandLR[i]);
    f(Etikett.Breite[i]);
    f(Etikett.Höhe[i]);
    f(Etikett.Steg[i]);
    f(Etikett.Reihen[i]);
    f(Etikett.Spalten[i]);
}

template <class F> void MesseDienerFestFelder(int i, F &&f)
{
    f(MesseDienerFest.Datum[i]);
    f.Zeit(MesseDienerFest.Uhrzeit[i]);
    for (int k = 1; k <= 20; ++k) {
        f(MesseDienerFest.Vorname[i][k]);
        f(MesseDienerFest.Nachname[i][k]);
        f(MesseDienerFest.Dienst[i][k]);
    }
}

/// The header fields, then record `i` of the table of a file.
template <class F> void KopfFelder(int datei, F &&f)
{
    switch (datei) {
    case DateiStandardmesse:
        return f(Standardmesse.Anzahl);
    case DateiMeßdiener:
        return f(Meßdiener.Cursor), f(Meßdiener.Anzahl);
    case DateiMesse:
        return f(Messe.Cursor), f(Messe.Anzahl);
    case DateiGruppe:
        return f(Gruppe.Cursor), f(Gruppe.Anzahl);
    case DateiHelfer:
        return f(Helfer.Cursor), f(Helfer.Anzahl);
    case DateiEtikett:
        return f(Etikett.Anzahl);
    case DateiMesseDienerFest:
        return f(MesseDienerFest.Cursor), f(MesseDienerFest.Anzahl);
    default:
        return;
    }
}

template <class F> void SatzFelder(int datei, int i, F &&f)
{
    switch (datei) {
    case DateiKonfig:
        return KonfigFelder(f);
    case DateiStandardmesse:
        return StandardmesseFelder(i, f);
    case DateiMeßdiener:
        return MeßdienerFelder(i, f);
    case DateiMesse:
        return MesseFelder(i, f);
    case DateiGruppe:
        return GruppeFelder(i, f);
    case DateiHelfer:
        return HelferFelder(i, f);
    case DateiEtikett:
        return EtikettFelder(i, f);
    case DateiMesseDienerFest:
        return MesseDienerFestFelder(i, f);
    default:
        return;
    }
}

/// The lines of a file's content, without their ends.
inline std::vector<std::string> ZeilenVon(const std::string &inhalt)
{
    std::vector<std::string> zeilen;
    for (std::size_t von = 0; von < inhalt.size();) {
        std::size_t ende = inhalt.find("\r\n", von);
        if (ende == std::string::npos)
            ende = inhalt.size();
        zeilen.push_back(inhalt.substr(von, ende - von));
        von = ende + 2;
    }
    return zeilen;
}

/// The content of a file if the tables were written now.
inline std::string InhaltVon(int datei)
{
    std::string inhalt;
    Dateien[static_cast<std::size_t>(datei)].Schreiben(inhalt);
    return inhalt;
}

/// Reads a file's content into its table. Returns the number of the failure, 0 if there is none.
inline int Einlesen(int datei, std::string_view inhalt)
{
    Zeilenleser zeilen(inhalt);
    try {
        Dateien[static_cast<std::size_t>(datei)].Lesen(zeilen);
    } catch (const Laufzeitfehler &fehler) {
        return fehler.Nummer();
    }
    return 0;
}

} // namespace altardienst

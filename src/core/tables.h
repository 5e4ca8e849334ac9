// All data of the program: the shared tables, reached directly by every routine and form. A table
// is a set of parallel columns, a record is one index across them; records 0 to Anzahl - 1 are in
// use. Each table lists its fields once, in file order (`Felder()`); whatever reads, writes, moves
// or swaps records walks that list.
//
// Three limits exist side by side and must not be merged: the array bound (the top index here), the
// range in the file (`HöchsterInDatei`), and the limit of the dialog that adds records.
#pragma once

#include "values/Datum.h"
#include "values/Int16.h"
#include "values/Spalte.h"
#include "values/Text.h"

#include <array>
#include <tuple>

namespace altardienst {

/// The settings, one record. `Felder()` lists them in file order.
struct KonfigDatensatz {
    Text Gemeinde;                 // parish name, in headings
    Text Straße;                   // of the parish
    Text PlzOrt;                   // postal code and town of the parish
    Int16 DiffJahr;                // page orientation of the people lists: 1 portrait, 2 landscape
    Int16 DiffGröße;               // height tolerance on either side, cm
    Int16 Tage;                    // days of the plan period after the start date
    Text Schriftart;               // font of everything printed
    Text Flags8 = Flags8Vorgabe;   // 1 to 5: parts of the month in which baptisms are held
    Int16 Schriftgröße;            // points, body
    Int16 Überschriftgröße;        // points, headings
    Text Flags6 = Flags6Vorgabe;   // 1 address, 2 telephone, 3 birthday, 4 numbering
    Text Flags11 = Flags11Vorgabe; // 2 helper services on the helper form
    Int16 RandLinks;               // mm
    Int16 RandUnten;               // mm
    Int16 RandOben;                // mm
    Int16 GrenzeAuslöse = 60;      // per cent of servers taken at which a new cycle begins
    Int16 ManuellKreuzträger;      // 1: set by hand, not drawn
    Int16 ManuellWeihrauch;        // 1: set by hand, not drawn
    Int16 StartWochentag = 7;      // 1 Sunday to 7 Saturday
    Int16 VorlaufWochen = 1;       // weeks ahead of the proposed start date
    Single XSkala = SkalaVorgabe;  // twips per mm
    Single YSkala = SkalaVorgabe;  // twips per mm
    Int16 Skal1 = 302;             // Skal1 to Skal6 are stored and shown, and limit nothing
    Int16 Skal2 = 302;
    Int16 Skal3 = 602;
    Int16 Skal4 = 102;
    Int16 Skal5 = 604;
    Int16 Skal6 = 202;
    Text Hintergrund; // path of the picture behind the main window

    Datum StartDatum = 0; // first day of the plan period; never saved

    static constexpr const char *Flags8Vorgabe = "jjjjjjjj";
    static constexpr const char *Flags6Vorgabe = "jjjjjj";
    static constexpr const char *Flags11Vorgabe = "jjjjjjjjjjj";
    static constexpr Single SkalaVorgabe = 56.6857F;

    auto Felder()
    {
        return std::tuple_cat(
            std::tie(Gemeinde, Straße, PlzOrt, DiffJahr, DiffGröße, Tage, Schriftart),
            std::tuple(Flagfeld{Flags8, Flags8Vorgabe}), std::tie(Schriftgröße, Überschriftgröße),
            std::tuple(Flagfeld{Flags6, Flags6Vorgabe}, Flagfeld{Flags11, Flags11Vorgabe}),
            std::tie(RandLinks, RandUnten, RandOben, GrenzeAuslöse, ManuellKreuzträger,
                     ManuellWeihrauch, StartWochentag, VorlaufWochen, XSkala, YSkala, Skal1, Skal2,
                     Skal3, Skal4, Skal5, Skal6, Hintergrund));
    }
};

/// A mass that recurs every week. An empty `Wochentag` marks a row that holds no mass.
struct StandardmesseTabelle {
    static constexpr int HöchsterIndex = 22;
    static constexpr int HöchsterInDatei = 20;
    template <class T> using Spalte = altardienst::Spalte<T, HöchsterIndex>;

    Int16 Anzahl; // not a count: the record shown last in its dialog

    Spalte<Text> Wochentag;
    Spalte<Datum> Uhrzeit;
    Spalte<Text> Messeart;
    Spalte<Int16> Dienerzahl; // below 1: never turned into masses
    Spalte<Int16> Gabenbereitung, Leuchter, Flambeau, Weihrauch, Kreuzträger, Allgemein;
    Spalte<Int16> Lektor, Kommunion, Kantor, Kollektant;

    auto Felder()
    {
        return std::tie(Wochentag, Uhrzeit, Messeart, Dienerzahl, Gabenbereitung, Leuchter,
                        Flambeau, Weihrauch, Kreuzträger, Allgemein, Lektor, Kommunion, Kantor,
                        Kollektant);
    }
};

/// An altar server.
struct MeßdienerTabelle {
    static constexpr int HöchsterIndex = 402;
    static constexpr int HöchsterInDatei = 400;
    static constexpr const char *QualifikationVorgabe = "jjjjjj";
    static constexpr const char *WochendienstVorgabe = "jjjjjjjj";
    template <class T> using Spalte = altardienst::Spalte<T, HöchsterIndex>;

    Int16 Cursor;
    Int16 Anzahl;

    Spalte<Text> Vorname, Nachname, Straße;
    Spalte<Int32> PLZ;
    Spalte<Text> Ort, Telefon, EMail;
    Spalte<Datum> Geburtstag;
    Spalte<Text> Geschlecht; // "männlich" or "weiblich"
    Spalte<Int16> Größe;     // cm
    Spalte<Datum> Eintrittsdatum;
    Spalte<Text> Gruppe;
    Spalte<Text> Qualifikation{QualifikationVorgabe}; // "j": may do it
    Spalte<Text> Wochendienst{WochendienstVorgabe};   // "j": wishes not to serve
    Spalte<Datum> Von1, Bis1, Von2, Bis2, Von3, Bis3, Von4, Bis4, Von5, Bis5; // absences
    Spalte<Text> WunschVorname, WunschNachname;
    Spalte<Int16> Häufigkeit; // 0 normal, 2 often

    // Used by assignments: never saved, kept from run to run while the program is open.
    Spalte<Int16> Belegt;        // 1 while the server counts as taken
    Spalte<Datum> LetzterDienst; // date of the mass of the last placement
    Spalte<Int16> DienstZähler;  // placements as part of a pair

    auto Felder()
    {
        return std::tuple_cat(
            std::tie(Vorname, Nachname, Straße, PLZ, Ort, Telefon, EMail, Geburtstag, Geschlecht,
                     Größe, Eintrittsdatum, Gruppe),
            std::tuple(Flagspalte<HöchsterIndex>{Qualifikation, QualifikationVorgabe},
                       Flagspalte<HöchsterIndex>{Wochendienst, WochendienstVorgabe}),
            std::tie(Von1, Bis1, Von2, Bis2, Von3, Bis3, Von4, Bis4, Von5, Bis5, WunschVorname,
                     WunschNachname, Häufigkeit));
    }
};

/// A concrete mass of the plan. The names of slot n (1 to 20) are at index n of `DienerVor` and
/// `DienerNach`, but its service is at index n - 1 of `DienerDienst`.
struct MesseTabelle {
    static constexpr int HöchsterIndex = 602;
    static constexpr int HöchsterInDatei = 602;
    static constexpr int HöchsterSlot = 20;
    template <class T> using Spalte = altardienst::Spalte<T, HöchsterIndex>;
    using JeSlot = altardienst::Spalte<Text, HöchsterSlot>;

    Int16 Cursor;
    Int16 Anzahl;

    Spalte<Text> Wochentag;
    Spalte<altardienst::Datum> Datum, Uhrzeit;
    Spalte<Text> Messeart;
    Spalte<Int16> Dienerzahl;
    Spalte<Int16> Gabenbereitung, Leuchter, Flambeau, Weihrauch, Kreuzträger, Allgemein;
    Spalte<JeSlot> DienerVor, DienerNach, DienerDienst;
    Spalte<Text> Kennung; // "s": made from a standard mass
    Spalte<Int16> LektorZahl;
    Spalte<Text> Lektor1Vor, Lektor1Nach, Lektor2Vor, Lektor2Nach;
    Spalte<Int16> KommZahl;
    Spalte<Text> Komm1Vor, Komm1Nach, Komm2Vor, Komm2Nach;
    Spalte<Int16> KantorZahl;
    Spalte<Text> Kantor1Vor, Kantor1Nach, Kantor2Vor, Kantor2Nach;
    Spalte<Int16> KollektZahl;
    Spalte<Text> Kollekt1Vor, Kollekt1Nach, Kollekt2Vor, Kollekt2Nach;

    auto Felder()
    {
        return std::tuple_cat(
            std::tie(Wochentag, Datum, Uhrzeit, Messeart, Dienerzahl, Gabenbereitung, Leuchter,
                     Flambeau, Weihrauch, Kreuzträger, Allgemein),
            std::tuple(Slotspalten<HöchsterIndex, HöchsterSlot, 3>{
                {&DienerVor, &DienerNach, &DienerDienst}, 0, HöchsterSlot}),
            std::tie(Kennung, LektorZahl, Lektor1Vor, Lektor1Nach, Lektor2Vor, Lektor2Nach,
                     KommZahl, Komm1Vor, Komm1Nach, Komm2Vor, Komm2Nach, KantorZahl, Kantor1Vor,
                     Kantor1Nach, Kantor2Vor, Kantor2Nach, KollektZahl, Kollekt1Vor, Kollekt1Nach,
                     Kollekt2Vor, Kollekt2Nach));
    }
};

/// A group of servers.
struct GruppeTabelle {
    static constexpr int HöchsterIndex = 102;
    static constexpr int HöchsterInDatei = 102;

    Int16 Cursor;
    Int16 Anzahl;

    Spalte<Text, HöchsterIndex> Bezeichnung;

    auto Felder() { return std::tie(Bezeichnung); }
};

/// A helper at mass.
struct HelferTabelle {
    static constexpr int HöchsterIndex = 202;
    static constexpr int HöchsterInDatei = 200;
    static constexpr int HöchsterLauf = 300; // the columns of a run are longer
    template <class T> using Spalte = altardienst::Spalte<T, HöchsterIndex>;

    Int16 Cursor;
    Int16 Anzahl;

    Spalte<Text> Vorname, Nachname, Straße;
    Spalte<Int32> PLZ;
    Spalte<Text> Ort, Telefon, EMail;
    Spalte<Datum> Geburtstag;
    Spalte<Text> Dienst1, Dienst2;
    Spalte<Datum> Von1, Bis1, Von2, Bis2, Von3, Bis3; // absences

    // Used by assignments, never saved.
    altardienst::Spalte<Int16, HöchsterLauf> Belegt;
    altardienst::Spalte<Datum, HöchsterLauf> LetzterDienst;

    auto Felder()
    {
        return std::tie(Vorname, Nachname, Straße, PLZ, Ort, Telefon, EMail, Geburtstag, Dienst1,
                        Dienst2, Von1, Bis1, Von2, Bis2, Von3, Bis3);
    }
};

/// A label sheet format; lengths in mm.
struct EtikettTabelle {
    static constexpr int HöchsterIndex = 22;
    static constexpr int HöchsterInDatei = 20;
    template <class T> using Spalte = altardienst::Spalte<T, HöchsterIndex>;

    Int16 Anzahl; // not a count: the format selected for printing

    Spalte<Text> Name;
    Spalte<Single> RandOU, RandLR; // margins top/bottom and left/right
    Spalte<Single> Breite, Höhe;   // of one label
    Spalte<Single> Steg;           // gutter
    Spalte<Int16> Reihen, Spalten;

    auto Felder() { return std::tie(Name, RandOU, RandLR, Breite, Höhe, Steg, Reihen, Spalten); }
};

/// Servers fixed in advance for the mass of a date and time. Slot 0 exists but is not saved.
struct MesseDienerFestTabelle {
    static constexpr int HöchsterIndex = 602;
    static constexpr int HöchsterInDatei = 400;
    static constexpr int HöchsterSlot = 20;
    template <class T> using Spalte = altardienst::Spalte<T, HöchsterIndex>;
    using JeSlot = altardienst::Spalte<Text, HöchsterSlot>;

    Int16 Cursor;
    Int16 Anzahl;

    Spalte<altardienst::Datum> Datum, Uhrzeit;
    Spalte<JeSlot> Vorname, Nachname, Dienst;
    Spalte<Int16> Index; // servers of the matching mass; only while working

    auto Felder()
    {
        return std::tuple_cat(std::tie(Datum, Uhrzeit),
                              std::tuple(
                                  Slotspalten<HöchsterIndex, HöchsterSlot, 3>{
                                      {&Vorname, &Nachname, &Dienst}, 1, HöchsterSlot},
                                  NurImSpeicher<Int16, HöchsterIndex>{Index}));
    }
};

extern KonfigDatensatz Konfig;
extern StandardmesseTabelle Standardmesse;
extern MeßdienerTabelle Meßdiener;
extern MesseTabelle Messe;
extern GruppeTabelle Gruppe;
extern HelferTabelle Helfer;
extern EtikettTabelle Etikett;
extern MesseDienerFestTabelle MesseDienerFest;

/// Puts all tables into the state they have when the program starts.
void TabellenLeeren();

} // namespace altardienst

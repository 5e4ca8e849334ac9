// The plan as calendar files; a foreign parser reads them in another test.
#include "exchange/Kalender.h"

#include "exchange/Kalenderschreiber.h"
#include "exchange/Planstücke.h"

#include <algorithm>
#include <set>

namespace altardienst {
namespace {

using Zeilen = std::vector<std::string>;

class KalenderdateiTest : public Planstücke {
  protected:
    static Kalenderausgabe Alle(Namenform form = Namenvorschlag)
    {
        return MessenAlsKalender(GemeinsameTabellen(), form);
    }
    static Kalenderausgabe JePerson(const Personenkreis &kreis = {},
                                    Namenform form = Namenvorschlag)
    {
        return KalenderJePerson(GemeinsameTabellen(), kreis, form);
    }

    /// The lines with that beginning, put together where they are folded.
    static Zeilen Mit(const std::string &anfang, std::string bytes)
    {
        for (auto ort = bytes.find("\r\n "); ort != std::string::npos; ort = bytes.find("\r\n "))
            bytes.erase(ort, 3);
        Zeilen zeilen;
        for (std::size_t von = 0; von < bytes.size();) {
            const std::size_t ende = bytes.find("\r\n", von);
            const std::string zeile = bytes.substr(von, ende - von);
            if (zeile.starts_with(anfang))
                zeilen.push_back(zeile);
            von = ende + 2;
        }
        return zeilen;
    }

    static Zeilen Kennungen(const Kalenderausgabe &ausgabe)
    {
        Zeilen alle;
        for (const Kalenderdatei &datei : ausgabe.Dateien)
            for (std::string &zeile : Mit("UID:", datei.Bytes))
                alle.push_back(std::move(zeile));
        return alle;
    }

    static Zeilen Namen(const Kalenderausgabe &ausgabe)
    {
        Zeilen namen;
        for (const Kalenderdatei &datei : ausgabe.Dateien)
            namen.push_back(datei.Name);
        return namen;
    }
};

TEST_F(KalenderdateiTest, EinEintragJeMesseInDerFolgeDerZeit)
{
    const Kalenderausgabe ausgabe = Alle();
    ASSERT_EQ(ausgabe.Dateien.size(), 1U);
    const Kalenderdatei &datei = ausgabe.Dateien[0];
    EXPECT_EQ(datei.Name, "Altardienst 2026-11-28.ics");
    EXPECT_EQ(datei.Einträge, 2);
    EXPECT_EQ(Mit("DTSTART;TZID", datei.Bytes),
              (Zeilen{"DTSTART;TZID=Europe/Berlin:20261128T183000",
                      "DTSTART;TZID=Europe/Berlin:20261129T100000"}));
    EXPECT_EQ(Mit("DTEND", datei.Bytes), (Zeilen{"DTEND;TZID=Europe/Berlin:20261128T193000",
                                                 "DTEND;TZID=Europe/Berlin:20261129T110000"}));
    EXPECT_EQ(Mit("SUMMARY", datei.Bytes), (Zeilen{"SUMMARY:Vorabendmesse", "SUMMARY:Hochamt"}));
    EXPECT_EQ(Mit("DESCRIPTION", datei.Bytes),
              (Zeilen{"DESCRIPTION:Allgemein: Cem C.",
                      "DESCRIPTION:Leuchter: Anna A.\\nAllgemein: Änne Ü.\\nLektor: Lea L."}));
    EXPECT_EQ(Mit("X-WR-CALNAME", datei.Bytes), Zeilen{"X-WR-CALNAME:Messen der Pfarrei St. Änne"});
}

/// To the last byte: calendars differ in what they forgive.
TEST_F(KalenderdateiTest, DieGanzeDatei)
{
    Messe.Anzahl = 1;
    EXPECT_EQ(Alle().Dateien.at(0).Bytes,
              "BEGIN:VCALENDAR\r\n"
              "VERSION:2.0\r\n"
              "PRODID:-//Altardienst//Altardienst//DE\r\n"
              "CALSCALE:GREGORIAN\r\n"
              "X-WR-CALNAME:Messen der Pfarrei St. Änne\r\n"
              "X-WR-TIMEZONE:Europe/Berlin\r\n"
              "BEGIN:VTIMEZONE\r\n"
              "TZID:Europe/Berlin\r\n"
              "X-LIC-LOCATION:Europe/Berlin\r\n"
              "BEGIN:DAYLIGHT\r\n"
              "TZNAME:CEST\r\n"
              "DTSTART:19960331T020000\r\n"
              "TZOFFSETFROM:+0100\r\n"
              "TZOFFSETTO:+0200\r\n"
              "RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=3\r\n"
              "END:DAYLIGHT\r\n"
              "BEGIN:STANDARD\r\n"
              "TZNAME:CET\r\n"
              "DTSTART:19961027T030000\r\n"
              "TZOFFSETFROM:+0200\r\n"
              "TZOFFSETTO:+0100\r\n"
              "RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10\r\n"
              "END:STANDARD\r\n"
              "END:VTIMEZONE\r\n"
              "BEGIN:VEVENT\r\n"
              "UID:20261129T100000-ec4f738fd498a682-1@altardienst\r\n"
              "DTSTAMP:20261121T110000Z\r\n"
              "LAST-MODIFIED:20261121T110000Z\r\n"
              "SEQUENCE:217422000\r\n"
              "DTSTART;TZID=Europe/Berlin:20261129T100000\r\n"
              "DTEND;TZID=Europe/Berlin:20261129T110000\r\n"
              "SUMMARY:Hochamt\r\n"
              "DESCRIPTION:Leuchter: Anna A.\\nAllgemein: Änne Ü.\\nLektor: Lea L.\r\n"
              "END:VEVENT\r\n"
              "END:VCALENDAR\r\n");
    Messe.Messeart[0] = "Wochendienst";
    const std::string woche = Alle().Dateien.at(0).Bytes;
    EXPECT_EQ(woche.substr(woche.find("BEGIN:VEVENT")),
              "BEGIN:VEVENT\r\n"
              "UID:20261129T100000-d139951ddd0a6d1d-1@altardienst\r\n"
              "DTSTAMP:20261121T110000Z\r\n"
              "LAST-MODIFIED:20261121T110000Z\r\n"
              "SEQUENCE:217422000\r\n"
              "DTSTART;VALUE=DATE:20261129\r\n"
              "DTEND;VALUE=DATE:20261206\r\n"
              "TRANSP:TRANSPARENT\r\n"
              "SUMMARY:Wochendienst\r\n"
              "DESCRIPTION:Leuchter: Anna A.\\nAllgemein: Änne Ü.\\nLektor: Lea L.\r\n"
              "END:VEVENT\r\n"
              "END:VCALENDAR\r\n");
}

TEST_F(KalenderdateiTest, DieZeitzoneStehtMitIhrenRegelnInDerDatei)
{
    const std::string bytes = Alle().Dateien.at(0).Bytes;
    EXPECT_EQ(Mit("RRULE", bytes), (Zeilen{"RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=3",
                                           "RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10"}));
    EXPECT_EQ(Mit("TZOFFSETTO", bytes), (Zeilen{"TZOFFSETTO:+0200", "TZOFFSETTO:+0100"}));
    EXPECT_EQ(Mit("TZID", bytes), Zeilen{"TZID:Europe/Berlin"});
    EXPECT_TRUE(bytes.starts_with("BEGIN:VCALENDAR\r\n"));
    EXPECT_TRUE(bytes.ends_with("END:VEVENT\r\nEND:VCALENDAR\r\n"));
    EXPECT_EQ(Zähle(bytes, "\n"), Zähle(bytes, "\r\n"));
}

TEST_F(KalenderdateiTest, KeineMesseOhneTermin)
{
    EXPECT_EQ(Alle().OhneTermin, 1);
    Messe.Datum[1] = DatumAus({2026, 11, 28}) + 0.25;
    Messe.Uhrzeit[0] = 1;
    const Kalenderausgabe ausgabe = Alle();
    EXPECT_EQ(ausgabe.OhneTermin, 3);
    EXPECT_TRUE(ausgabe.Dateien.empty());
    EXPECT_EQ(JePerson().OhneTermin, 3);
}

TEST_F(KalenderdateiTest, MitternachtIstEineUhrzeit)
{
    Messe.Uhrzeit[0] = 0;
    EXPECT_EQ(Mit("DTSTART;TZID", Alle().Dateien.at(0).Bytes).at(1),
              "DTSTART;TZID=Europe/Berlin:20261129T000000");
}

TEST_F(KalenderdateiTest, NachNeuerVerlosungBleibenDieKennungen)
{
    const Kalenderausgabe vorher = Alle();
    const Kalenderausgabe jePersonVorher = JePerson();
    Stellen(0, 1, 1);
    Stellen(0, 2, 0);
    Stellen(1, 2, 3);
    std::swap(Meßdiener.Vorname[0], Meßdiener.Vorname[2]);
    std::swap(Meßdiener.Nachname[0], Meßdiener.Nachname[2]);
    Sekunden += 60;
    const Kalenderausgabe nachher = Alle();
    EXPECT_EQ(Kennungen(vorher), Kennungen(nachher));
    EXPECT_NE(vorher.Dateien[0].Bytes, nachher.Dateien[0].Bytes);
    const Zeilen jePerson = Kennungen(JePerson());
    for (const std::string &kennung : Kennungen(jePersonVorher))
        EXPECT_EQ(std::ranges::count(jePerson, kennung), 1) << kennung;
}

TEST_F(KalenderdateiTest, DieKennungHängtAnMesseUndGemeinde)
{
    const Zeilen vorher = Kennungen(Alle());
    const auto andere = [&](const auto &ändern) {
        ändern();
        const Zeilen nachher = Kennungen(Alle());
        return std::ranges::count_if(nachher, [&](const std::string &kennung) {
            return std::ranges::find(vorher, kennung) == vorher.end();
        });
    };
    EXPECT_EQ(andere([] { Messe.Messeart[0] = "Familienmesse"; }), 1);
    Messe.Messeart[0] = "Hochamt";
    EXPECT_EQ(andere([] { Messe.Uhrzeit[0] = ZeitAus(11 * 3600); }), 1);
    Messe.Uhrzeit[0] = ZeitAus(10 * 3600);
    EXPECT_EQ(andere([] { Messe.Datum[0] = Messe.Datum[0] + 7; }), 1);
    Messe.Datum[0] = Messe.Datum[0] - 7;
    EXPECT_EQ(andere([] { Messe.Dienerzahl[0] = 1; }), 0);
    EXPECT_EQ(andere([] { Konfig.Gemeinde = "St. Martin"; }), 2);
}

/// What was passed on once is known by these for good: another version may not make others.
TEST_F(KalenderdateiTest, DieKennungenBleibenAuchInSpäterenFassungen)
{
    EXPECT_EQ(Kennungen(Alle()), (Zeilen{"UID:20261128T183000-6d8b4186a9a04e92-1@altardienst",
                                         "UID:20261129T100000-ec4f738fd498a682-1@altardienst"}));
    EXPECT_EQ(Kennungen(JePerson()).at(0), "UID:20261129T100000-76b0e0921e30bda8-1@altardienst");
}

TEST_F(KalenderdateiTest, JedeKennungGibtEsNurEinmal)
{
    const int gleiche = MesseMitDienern(Messe.Datum[0], 1);
    Messe.Messeart[gleiche] = "Hochamt";
    Stellen(gleiche, 1, 0);
    Zeilen alle = Kennungen(Alle());
    for (std::string &kennung : Kennungen(JePerson()))
        alle.push_back(kennung);
    EXPECT_EQ(alle.size(), 3U + 5U);
    EXPECT_EQ(std::set<std::string>(alle.begin(), alle.end()).size(), alle.size());
    for (const std::string &kennung : alle)
        EXPECT_FALSE(Enthält(kennung, "Anna")) << "names are not passed on by the way";
}

TEST_F(KalenderdateiTest, EineSpätereDateiIstFürKalenderDieNeuere)
{
    const std::string vorher = Alle().Dateien[0].Bytes;
    EXPECT_EQ(Mit("DTSTAMP", vorher).at(0), "DTSTAMP:20261121T110000Z"); // at noon
    EXPECT_EQ(Mit("LAST-MODIFIED", vorher).at(0), "LAST-MODIFIED:20261121T110000Z");
    Sekunden += 1;
    const std::string nachher = Alle().Dateien[0].Bytes;
    const auto folge = [&](const std::string &bytes) {
        return std::stol(Mit("SEQUENCE:", bytes).at(1).substr(9));
    };
    EXPECT_EQ(folge(nachher), folge(vorher) + 1);
    EXPECT_EQ(Mit("DTSTAMP", nachher).at(1), "DTSTAMP:20261121T110001Z");
}

TEST_F(KalenderdateiTest, DieStundeDieDieUhrAuslässtWirdDieNächste)
{
    Messe.Datum[0] = DatumAus({2027, 3, 28});
    Messe.Uhrzeit[0] = ZeitAus(2 * 3600 + 1800);
    Messe.Datum[1] = Messe.Datum[0];
    Messe.Uhrzeit[1] = ZeitAus(3600 + 1800);
    const std::string bytes = Alle().Dateien.at(0).Bytes;
    EXPECT_EQ(Mit("DTSTART;TZID", bytes), (Zeilen{"DTSTART;TZID=Europe/Berlin:20270328T013000",
                                                  "DTSTART;TZID=Europe/Berlin:20270328T033000"}));
    EXPECT_EQ(Mit("DTEND", bytes), (Zeilen{"DTEND;TZID=Europe/Berlin:20270328T033000",
                                           "DTEND;TZID=Europe/Berlin:20270328T043000"}));
}

TEST_F(KalenderdateiTest, EinWochendienstDauertEineWoche)
{
    Messe.Messeart[0] = "Wochendienst";
    const std::string bytes = Alle().Dateien.at(0).Bytes;
    EXPECT_EQ(Mit("DTSTART;VALUE", bytes), Zeilen{"DTSTART;VALUE=DATE:20261129"});
    EXPECT_EQ(Mit("DTEND;VALUE", bytes), Zeilen{"DTEND;VALUE=DATE:20261206"});
    EXPECT_EQ(Zähle(bytes, "TRANSP:TRANSPARENT"), 1);
}

TEST_F(KalenderdateiTest, WasImTextSteuertWirdEntschärft)
{
    Messe.Messeart[0] = "Hochamt; mit Chor, \\laut\x07";
    EXPECT_EQ(Mit("SUMMARY", Alle().Dateien.at(0).Bytes).at(1),
              "SUMMARY:Hochamt\\; mit Chor\\, \\\\laut");
    Messe.Messeart[0] = "";
    EXPECT_EQ(Mit("SUMMARY", Alle().Dateien.at(0).Bytes).at(1), "SUMMARY:Messe");
}

TEST_F(KalenderdateiTest, JederBekommtEineDateiMitSeinenMessen)
{
    const Kalenderausgabe ausgabe = JePerson();
    EXPECT_EQ(Namen(ausgabe),
              (Zeilen{"Anna Adler.ics", "Änne Übel.ics", "Cem Cohn.ics", "Lea Lang.ics"}));
    EXPECT_EQ(ausgabe.OhneDienst, 1);
    EXPECT_EQ(ausgabe.NurOhneTermin, 0);
    EXPECT_EQ(ausgabe.OhneTermin, 1);
    const std::string &anna = ausgabe.Dateien[0].Bytes;
    EXPECT_EQ(ausgabe.Dateien[0].Einträge, 1);
    EXPECT_EQ(Mit("SUMMARY", anna), Zeilen{"SUMMARY:Hochamt (Leuchter)"});
    EXPECT_EQ(Mit("DESCRIPTION", anna), Zeilen{"DESCRIPTION:Dienst: Leuchter\\nMit dabei:\\n"
                                               "Allgemein: Änne Ü.\\nLektor: Lea L."});
    EXPECT_EQ(Mit("X-WR-CALNAME", anna), Zeilen{"X-WR-CALNAME:Altardienst Anna A."});
    EXPECT_EQ(Mit("DESCRIPTION", ausgabe.Dateien[2].Bytes),
              Zeilen{"DESCRIPTION:Dienst: Allgemein"});
}

TEST_F(KalenderdateiTest, AuchWerNurImPlanStehtBekommtEine)
{
    Besetzen(Messe, Dienerplatznr(1, 2), "Gast", "Groß");
    Messe.KantorZahl[0] = 1;
    Messe.Kantor1Vor[0] = "Paul";
    Messe.Kantor1Nach[0] = "Quast";
    EXPECT_EQ(Namen(JePerson()), (Zeilen{"Anna Adler.ics", "Änne Übel.ics", "Cem Cohn.ics",
                                         "Lea Lang.ics", "Gast Groß.ics", "Paul Quast.ics"}));
    EXPECT_EQ(Namen(JePerson({.Diener = false, .Helfer = true, .Gruppe = ""})),
              (Zeilen{"Lea Lang.ics", "Paul Quast.ics"}));
    Meßdiener.Gruppe[1] = "Große";
    EXPECT_EQ(Namen(JePerson({.Diener = true, .Helfer = false, .Gruppe = "Große"})),
              Zeilen{"Änne Übel.ics"});
}

TEST_F(KalenderdateiTest, WerNurOhneTerminDientHatTrotzdemEinenDienst)
{
    Stellen(2, 1, 3);
    const Kalenderausgabe ausgabe = JePerson();
    EXPECT_EQ(ausgabe.OhneDienst, 0);
    EXPECT_EQ(ausgabe.NurOhneTermin, 1);
    EXPECT_EQ(ausgabe.Dateien.size(), 4U);
}

TEST_F(KalenderdateiTest, NurDieGewählten)
{
    Meßdiener.Gruppe[1] = "Große";
    EXPECT_EQ(Namen(JePerson({.Diener = false, .Helfer = true, .Gruppe = ""})),
              Zeilen{"Lea Lang.ics"});
    EXPECT_EQ(Namen(JePerson({.Diener = true, .Helfer = false, .Gruppe = ""})).size(), 3U);
    EXPECT_EQ(Namen(JePerson({.Diener = true, .Helfer = false, .Gruppe = "Große"})),
              Zeilen{"Änne Übel.ics"});
}

TEST_F(KalenderdateiTest, WerDienerUndHelferIstBekommtEine)
{
    HelferAnlegen("Cem", "Cohn", "Kantor");
    Messe.KantorZahl[1] = 1;
    Messe.Kantor1Vor[1] = "Cem";
    Messe.Kantor1Nach[1] = "Cohn";
    const Kalenderausgabe ausgabe = JePerson();
    EXPECT_EQ(Namen(ausgabe),
              (Zeilen{"Anna Adler.ics", "Änne Übel.ics", "Cem Cohn.ics", "Lea Lang.ics"}));
    EXPECT_EQ(Mit("SUMMARY", ausgabe.Dateien.at(2).Bytes),
              Zeilen{"SUMMARY:Vorabendmesse (Allgemein\\, Kantor)"});
}

TEST_F(KalenderdateiTest, DerPlatzEinerGruppeGiltFürAlleInIhr)
{
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    Meßdiener.Gruppe[3] = "Große";
    Besetzen(Messe, Dienerplatznr(1, 2), "Gruppe", "Große");
    const Kalenderausgabe ausgabe = JePerson();
    ASSERT_EQ(ausgabe.Dateien.size(), 5U);
    EXPECT_EQ(ausgabe.Dateien[3].Name, "Doris Dorn.ics");
    EXPECT_EQ(Mit("DESCRIPTION", ausgabe.Dateien[3].Bytes),
              Zeilen{"DESCRIPTION:Dienst: Allgemein\\nMit dabei:\\nAllgemein: Cem C.\\, Gruppe "
                     "Große"});
}

TEST_F(KalenderdateiTest, KeineZweiDateienMitDemselbenNamen)
{
    Meßdiener.Vorname[1] = "ANNA";
    Meßdiener.Nachname[1] = "ADLER";
    Meßdiener.Vorname[2] = "Anna";
    Meßdiener.Nachname[2] = "Adler?";
    Stellen(0, 2, 1);
    Stellen(1, 1, 2);
    EXPECT_EQ(Namen(JePerson({.Diener = true, .Helfer = false, .Gruppe = ""})),
              (Zeilen{"Anna Adler.ics", "ANNA ADLER 2.ics", "Anna Adler-.ics"}));
}

/// Some systems have names of their own, and none takes names of any length.
TEST_F(KalenderdateiTest, JederNameGibtEinenDateinamenDerÜberallGeht)
{
    const Text lang(300, 'x');
    Meßdiener.Vorname[0] = "Aux";
    Meßdiener.Nachname[0] = "";
    Meßdiener.Vorname[1] = "";
    Meßdiener.Nachname[1] = lang + "a";
    Meßdiener.Vorname[2] = "";
    Meßdiener.Nachname[2] = lang + "b";
    Stellen(0, 1, 0);
    Stellen(0, 2, 1);
    Stellen(1, 1, 2);
    EXPECT_EQ(Namen(JePerson({.Diener = true, .Helfer = false, .Gruppe = ""})),
              (Zeilen{"Aux-.ics", lang.substr(0, 150) + ".ics", lang.substr(0, 150) + " 2.ics"}));
}

TEST_F(KalenderdateiTest, EinNameAusPunktenGibtTrotzdemEinenDateinamen)
{
    Meßdiener.Vorname[0] = "...";
    Meßdiener.Nachname[0] = "";
    Stellen(0, 1, 0);
    EXPECT_EQ(Namen(JePerson()).front(), "Person.ics");
}

/// Names that are the same when written together are not the same people.
TEST_F(KalenderdateiTest, DieKennungTrenntVorUndNachnamen)
{
    Meßdiener.Vorname[0] = "Kim";
    Meßdiener.Nachname[0] = "Busch";
    Meßdiener.Vorname[1] = "KimB";
    Meßdiener.Nachname[1] = "usch";
    Stellen(0, 1, 0);
    Stellen(0, 2, 1);
    const Kalenderausgabe ausgabe = JePerson({.Diener = true, .Helfer = false, .Gruppe = ""});
    const Zeilen alle = Kennungen(ausgabe);
    ASSERT_GE(alle.size(), 2U);
    EXPECT_EQ(std::set<std::string>(alle.begin(), alle.end()).size(), alle.size());
}

/// A record without any name is nobody, and a file may claim any number of records.
TEST_F(KalenderdateiTest, WerKeinenNamenHatBekommtKeine)
{
    Meßdiener.Vorname[3] = Meßdiener.Nachname[3] = "";
    EXPECT_EQ(JePerson().OhneDienst, 0);
    Meßdiener.Vorname[4] = "Rest"; // after the last one
    EXPECT_EQ(JePerson().OhneDienst, 0);
    Meßdiener.Anzahl = Helfer.Anzahl = 30000;
    EXPECT_EQ(JePerson().OhneDienst, 1);
}

TEST_F(KalenderdateiTest, NurSoVielVomNamenWieGewählt)
{
    for (const std::string &bytes : {Alle(Namenform::Anfangsbuchstaben).Dateien[0].Bytes,
                                     JePerson({}, Namenform::Anfangsbuchstaben).Dateien[0].Bytes})
        for (const char *name : {"Anna", "Adler", "Übel", "Lang"})
            EXPECT_FALSE(Enthält(bytes, name)) << name;
    EXPECT_TRUE(Enthält(Alle(Namenform::Ganz).Dateien[0].Bytes, "Anna Adler"));
}

TEST_F(KalenderdateiTest, DieEigenenDateienErkenntDasProgramm)
{
    EXPECT_TRUE(IstEigenerKalender(Alle().Dateien[0].Bytes));
    EXPECT_FALSE(IstEigenerKalender("BEGIN:VCALENDAR\r\nPRODID:-//Andere//DE\r\n"));
    EXPECT_FALSE(IstEigenerKalender(""));
}

} // namespace
} // namespace altardienst

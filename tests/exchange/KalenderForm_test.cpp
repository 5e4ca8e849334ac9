// "Kalender": what is written where, and what is told.
#include "exchange/KalenderForm.h"

#include "Formstand.h"
#include "application/Mitteilung.h"
#include "overview/Platz.h"
#include "platform/Uhr.h"
#include "values/Laufzeitfehler.h"

#include <QApplication>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

const Text Verweigert = Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert).what();

class KalenderFormTest : public Formstand<KalenderForm> {
  protected:
    KalenderFormTest()
    {
        MeßdienerAnlegen("Anna", "Adler");
        MeßdienerAnlegen("Ben", "Busch");
        MeßdienerAnlegen("Cem", "Cohn");
        HelferAnlegen("Lea", "Lang", "Lektor");
        Gruppe.Anzahl = 2;
        Gruppe.Bezeichnung[1] = "Große";
        Meßdiener.Gruppe[1] = "Große";
        Konfig.Gemeinde = "St. Änne";
        for (const int tag : {28, 29}) {
            const int i = MesseMitDienern(DatumAus({2026, 11, tag}), 1);
            Messe.Messeart[i] = "Hochamt";
            Besetzen(Messe, Dienerplatznr(i, 1), Meßdiener.Vorname[i], Meßdiener.Nachname[i]);
        }
        Messe.LektorZahl[1] = 1;
        Besetzen(Messe, Helferplatznr(1, 0), "Lea", "Lang");
    }

    void Öffnen()
    {
        form = new KalenderForm;
        Zeigen(form);
    }

    Liste Dateien() const { return Laufwerke.Auflisten(Festplatte).Dateien; }
};

TEST_F(KalenderFormTest, BeginntMitAllenMessenUndAnnaA)
{
    Öffnen();
    EXPECT_TRUE(Angekreuzt("AlleMessen"));
    EXPECT_EQ(Zeigt("Namen"), "Vorname und erster Buchstabe (Anna A.)");
    EXPECT_FALSE(form->FürWen->isEnabled());
    EXPECT_EQ(Zeigt("Inhalt"), "2 Messen.");
    EXPECT_EQ(Zeigt("Hinweis"), "");
    EXPECT_EQ(Beschriftungen(), (std::map<Text, Text>{{"FürWen", "&Für"}, {"Namen", "&Namen"}}));
}

TEST_F(KalenderFormTest, SchreibtAlleMessenInDieGewählteDatei)
{
    Öffnen();
    GewählteDatei = Festplatte / PfadAus("Plan Änne.ics");
    Klick("Speichern");
    ASSERT_EQ(Dateiwünsche.size(), 1U);
    EXPECT_EQ(Dateiwünsche[0].Name, "Altardienst 2026-11-28.ics");
    EXPECT_EQ(Dateiwünsche[0].Endungen, Liste{"ics"});
    EXPECT_EQ(Dateien(), Liste{"Plan Änne.ics"});
    const std::string bytes = DateiLesen(*GewählteDatei);
    EXPECT_TRUE(bytes.starts_with("BEGIN:VCALENDAR"));
    EXPECT_NE(bytes.find("Anna A."), std::string::npos);
    EXPECT_EQ(bytes.find("Adler"), std::string::npos);
    EXPECT_EQ(Zeigt("Hinweis"), "Kalender geschrieben: " + TextVon(*GewählteDatei) + ".");
    EXPECT_EQ(Mitteilungen().Letzte, "12:00 Kalender geschrieben: " + TextVon(*GewählteDatei));
}

TEST_F(KalenderFormTest, WerAbbrichtBekommtNichts)
{
    Öffnen();
    Klick("Speichern");
    Ankreuzen("JePerson");
    Klick("Speichern");
    EXPECT_EQ(Dateiwünsche.size(), 2U);
    EXPECT_TRUE(Dateien().empty());
    EXPECT_EQ(Zeigt("Hinweis"), "");
}

TEST_F(KalenderFormTest, EineDateiJePersonImGewähltenVerzeichnis)
{
    Öffnen();
    Ankreuzen("JePerson");
    EXPECT_TRUE(form->FürWen->isEnabled());
    MeßdienerAnlegen("Doris", "Dorn");
    form->FürWen->setCurrentIndex(1);
    EXPECT_EQ(Zeigt("Inhalt"), "2 Dateien. 2 Personen haben keinen Dienst und bekommen keine.");
    --Meßdiener.Anzahl;
    form->FürWen->setCurrentIndex(0);
    EXPECT_EQ(Zeigt("Inhalt"), "3 Dateien. Eine Person hat keinen Dienst und bekommt keine.");
    GewählteDatei = Festplatte;
    Klick("Speichern");
    EXPECT_EQ(Dateien(), (Liste{"Anna Adler.ics", "Ben Busch.ics", "Lea Lang.ics"}));
    EXPECT_EQ(Zeigt("Hinweis"), "3 Kalender geschrieben: " + TextVon(Festplatte) + ".");
    EXPECT_TRUE(GestellteFragen.empty());
}

TEST_F(KalenderFormTest, FürWenBegrenztDieDateien)
{
    Öffnen();
    Ankreuzen("JePerson");
    Liste wahl;
    for (int i = 0; i < form->FürWen->count(); ++i)
        wahl.push_back(form->FürWen->itemText(i).toStdString());
    EXPECT_EQ(wahl, (Liste{"alle", "alle Meßdiener", "alle Helfer", "Gruppe Große"}));
    GewählteDatei = Festplatte;
    const std::vector<Liste> erwartet = {{"Anna Adler.ics", "Ben Busch.ics", "Lea Lang.ics"},
                                         {"Anna Adler.ics", "Ben Busch.ics"},
                                         {"Lea Lang.ics"},
                                         {"Ben Busch.ics"}};
    for (int i = 0; i < form->FürWen->count(); ++i) {
        for (const Text &datei : Dateien())
            Laufwerke.Löschen(Festplatte / PfadAus(datei));
        form->FürWen->setCurrentIndex(i);
        Klick("Speichern");
        EXPECT_EQ(Dateien(), erwartet.at(static_cast<std::size_t>(i)));
    }
}

TEST_F(KalenderFormTest, DieEigenenErsetztEsOhneFrageFremdesNicht)
{
    Öffnen();
    Ankreuzen("JePerson");
    GewählteDatei = Festplatte;
    Klick("Speichern");
    Klick("Speichern");
    EXPECT_TRUE(GestellteFragen.empty());
    DateiSchreiben(Festplatte / "Anna Adler.ics", "BEGIN:VCALENDAR\r\nGeburtstage");
    Klick("Speichern");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut,
              "In diesem Verzeichnis heißt schon etwas so, was kein Kalender von Altardienst ist: "
              "Anna Adler.ics. Überschreiben?");
    EXPECT_EQ(DateiLesen(Festplatte / "Anna Adler.ics"), "BEGIN:VCALENDAR\r\nGeburtstage");
    Antworten = {true};
    Klick("Speichern");
    EXPECT_NE(DateiLesen(Festplatte / "Anna Adler.ics"), "BEGIN:VCALENDAR\r\nGeburtstage");
}

TEST_F(KalenderFormTest, WasNichtGehtStehtImFenster)
{
    Öffnen();
    GewählteDatei = Festplatte / "Ordner.ics";
    Laufwerke.VerzeichnisAnlegen(*GewählteDatei);
    Klick("Speichern");
    EXPECT_TRUE(Zeigt("Hinweis").starts_with("Nicht geschrieben: " + TextVon(*GewählteDatei)))
        << Zeigt("Hinweis");
    Ankreuzen("JePerson");
    EXPECT_EQ(Zeigt("Hinweis"), "");
    Laufwerke.VerzeichnisAnlegen(Festplatte / "Ben Busch.ics");
    GewählteDatei = Festplatte;
    Klick("Speichern");
    EXPECT_EQ(Zeigt("Hinweis"), "2 von 3 Dateien geschrieben. Nicht geschrieben: Ben Busch.ics (" +
                                    Verweigert + ").");
    EXPECT_TRUE(Laufwerke.Suchen(Festplatte, "Lea Lang.ics")) << "after the one that failed";
    Laufwerke.Löschen(Festplatte / "Anna Adler.ics");
    Laufwerke.VerzeichnisAnlegen(Festplatte / "Anna Adler.ics");
    Klick("Speichern");
    EXPECT_EQ(Zeigt("Hinweis"), "1 von 3 Dateien geschrieben. Nicht geschrieben: Anna Adler.ics, "
                                "Ben Busch.ics (" +
                                    Verweigert + ").");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Mitteilungen().Letzte, "");
}

TEST_F(KalenderFormTest, VonVielenDieNichtGehenStehenAchtDa)
{
    Messe.Anzahl = 1;
    Meßdiener.Anzahl = 0;
    Helfer.Anzahl = 0;
    Messe.Dienerzahl[0] = 10;
    for (int i = 0; i < 10; ++i) {
        const Text name(1, static_cast<char>('A' + i));
        Besetzen(Messe, Dienerplatznr(0, i + 1), name, "Q");
        Laufwerke.VerzeichnisAnlegen(Festplatte / (name + " Q.ics"));
    }
    Öffnen();
    Ankreuzen("JePerson");
    form->FürWen->setCurrentIndex(1);
    GewählteDatei = Festplatte;
    Klick("Speichern");
    EXPECT_EQ(Zeigt("Hinweis"), "0 von 10 Dateien geschrieben. Nicht geschrieben: A Q.ics, "
                                "B Q.ics, C Q.ics, D Q.ics, E Q.ics, F Q.ics, G Q.ics, H Q.ics "
                                "und 2 weitere (" +
                                    Verweigert + ").");
}

TEST_F(KalenderFormTest, WasFehltSagtDerInhalt)
{
    Messe.Datum[0] = 0;
    Öffnen();
    EXPECT_EQ(Zeigt("Inhalt"),
              "Eine Messe. Eine Messe hat keinen lesbaren Termin und fehlt darin.");
    Messe.Datum[1] = 0;
    Ankreuzen("JePerson");
    EXPECT_EQ(Zeigt("Inhalt"),
              "Von ihnen hat niemand einen Dienst mit lesbarem Termin. 2 Messen haben "
              "keinen lesbaren Termin und fehlen darin.");
    EXPECT_FALSE(form->Speichern->isEnabled());
    Messe.Datum[0] = DatumAus({2026, 11, 28});
    form->FürWen->setCurrentIndex(1);
    EXPECT_EQ(Zeigt("Inhalt"), "Eine Datei. Eine Person hat keinen Dienst und bekommt keine. "
                               "Eine Person dient nur ohne lesbaren Termin und bekommt keine. Eine "
                               "Messe hat keinen lesbaren Termin und fehlt darin.");
    Messe.Anzahl = 0;
    Ankreuzen("AlleMessen");
    EXPECT_EQ(Zeigt("Inhalt"), "Der Plan hat keine Messen.");
    EXPECT_FALSE(form->Speichern->isEnabled());
}

TEST_F(KalenderFormTest, DieKalenderEntstehenUnterDemWartezeiger)
{
    Öffnen();
    int gewartet = 0;
    const auto sonst = Uhr.Heute; // asked while a calendar is made
    Uhr.Heute = [&] {
        gewartet += QApplication::overrideCursor() ? 1 : 100;
        return sonst();
    };
    Ankreuzen("JePerson");
    EXPECT_EQ(gewartet, 1);
    Uhr.Heute = sonst;
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(KalenderFormTest, DieNamenMerktSichDasProgramm)
{
    Öffnen();
    form->Namen->setCurrentIndex(static_cast<int>(Namenform::Ganz));
    delete form;
    Öffnen();
    EXPECT_EQ(Zeigt("Namen"), "ganzer Name (Anna Adler)");
    GewählteDatei = Festplatte / "Plan.ics";
    Klick("Speichern");
    EXPECT_NE(DateiLesen(*GewählteDatei).find("Anna Adler"), std::string::npos);
}

} // namespace
} // namespace altardienst

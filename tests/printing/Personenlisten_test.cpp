// The three people lists in both layouts, operation by operation.
#include "printing/Listen.h"

#include "printing/Druckstand.h"

namespace altardienst {
namespace {

class PersonenlistenTest : public Druckstand {
  protected:
    PersonenlistenTest()
    {
        const int anna = MeßdienerAnlegen("Anna", "Berg", 158, "weiblich");
        Meßdiener.Straße[anna] = "Hauptstraße 5";
        Meßdiener.PLZ[anna] = 43217;
        Meßdiener.Ort[anna] = "Quellersheim";
        Meßdiener.Telefon[anna] = "(01234) 567";
        Meßdiener.EMail[anna] = "anna@example.org";
        Meßdiener.Geburtstag[anna] = DatumAus({2012, 3, 7});
        Meßdiener.Eintrittsdatum[anna] = DatumAus({2021, 5, 30});
        Meßdiener.Gruppe[anna] = "Die Großen";
        Meßdiener.Qualifikation[anna] = "jnjnjj";
        MeßdienerAnlegen("Jörg", "Groß"); // everything else empty
        Meßdiener.Größe[1] = 0;
        Meßdiener.Qualifikation[1] = "nnnnnj";

        HelferAnlegen("Lea", "Lang", "Lektor", "Kantor");
        Helfer.Straße[0] = "Am Bach 1";
        Helfer.PLZ[0] = 43218;
        Helfer.Ort[0] = "Oberquell";
        Helfer.Telefon[0] = "99";
        Helfer.EMail[0] = "lea@example.org";
        Helfer.Geburtstag[0] = DatumAus({1970, 12, 24});
    }

    static Ablauf Anfang(const std::vector<Text> &titel)
    {
        Ablauf ablauf;
        ablauf.Tut("Dialog").Tut("Orientation 2").Eröffnung(titel);
        return ablauf;
    }

    static std::vector<Text> MitSchluss(Ablauf &ablauf)
    {
        return ablauf.Tut("NewPage").Tut("EndDoc").Tut("Orientation 1").Zeilen;
    }

    /// The compact lines of all servers under these flags.
    std::vector<Text> KompakteZeilen(const Text &flags)
    {
        Konfig.Flags6 = flags;
        Papier.Leeren();
        Papier.Antwort = 1;
        AlleMeßdienerDrucken();
        std::vector<Text> zeilen;
        for (const Text &zeile : Papier.Zeilen)
            if (zeile.starts_with("Print") && zeile != "Print \"\"" &&
                zeile.find("Pfarrei") == Text::npos)
                zeilen.push_back(zeile);
        return zeilen;
    }
};

TEST_F(PersonenlistenTest, AlleMeßdienerAusführlich)
{
    AlleMeßdienerDrucken();
    Ablauf ablauf = Anfang({"Meßdiener der Pfarrei St. Ägid"});
    ablauf
        .Mehrere({"Anna Berg , Hauptstraße 5 ,  43217 Quellersheim , Tel:(01234) 567 , "
                  "anna@example.org",
                  "Geb.-tag:07.03.2012  , weiblich ,  158 cm , Aufnahme:30.05.2021  , "
                  "Gruppe:Die Großen",
                  "Qualifikationen: Gabenbereitung, Flambeau, Kreuzträger"})
        .Leerzeile()
        .Mehrere({"Jörg Groß ,  ,  0  , Tel: , ",
                  "Geb.-tag:00:00:00  , männlich ,  0 cm , Aufnahme:00:00:00  , Gruppe:",
                  "Qualifikationen: "})
        .Leerzeile();
    EXPECT_EQ(Papier.Zeilen, MitSchluss(ablauf));
}

TEST_F(PersonenlistenTest, QualifikationenTragenIhreKommasVorSich)
{
    Meßdiener.Anzahl = 1;
    Meßdiener.Qualifikation[0] = "njnjnj"; // the sixth is not printed
    AlleMeßdienerDrucken();
    EXPECT_EQ(Papier.WieOft("Print \"Qualifikationen: , Leuchter, Weihrauch\""), 1);
}

TEST_F(PersonenlistenTest, AlleMeßdienerKompakt)
{
    Papier.Antwort = 1;
    AlleMeßdienerDrucken();
    Ablauf ablauf = Anfang({"Meßdiener der Pfarrei St. Ägid"});
    ablauf
        .Zeile(" 0 : Anna Berg , Hauptstraße 5 ,  43217  Quellersheim , Tel:(01234) 567 , "
               "Geb.-tag:07.03.2012 ")
        .Leerzeile()
        .Zeile(" 1 : Jörg Groß ,  ,  0   , Tel: , Geb.-tag:00:00:00 ")
        .Leerzeile();
    EXPECT_EQ(Papier.Zeilen, MitSchluss(ablauf));
}

TEST_F(PersonenlistenTest, DieKompakteZeileFolgtDenEinstellungen)
{
    Meßdiener.Anzahl = 1;
    using Zeilen = std::vector<Text>;
    EXPECT_EQ(KompakteZeilen("nnnnnn"), Zeilen{"Print \"Anna Berg\""});
    EXPECT_EQ(KompakteZeilen("jnnnnn"),
              Zeilen{"Print \"Anna Berg , Hauptstraße 5 ,  43217  Quellersheim\""});
    EXPECT_EQ(KompakteZeilen("njnnnn"), Zeilen{"Print \"Anna Berg , Tel:(01234) 567\""});
    EXPECT_EQ(KompakteZeilen("nnjnnn"), Zeilen{"Print \"Anna Berg , Geb.-tag:07.03.2012 \""});
    EXPECT_EQ(KompakteZeilen("nnnjnn"), Zeilen{"Print \" 0 : Anna Berg\""});
    EXPECT_EQ(KompakteZeilen("nnnnjj"), Zeilen{"Print \"Anna Berg\""});
}

TEST_F(PersonenlistenTest, EineGruppeAusführlich)
{
    MeßdienerAnlegen("Mia", "Moos");
    Meßdiener.Gruppe[2] = "Die Großen";
    MeßdienergruppeDrucken("Die Großen");
    Ablauf ablauf = Anfang({"Meßdiener der Pfarrei St. Ägid", "", "der Gruppe Die Großen", ""});
    ablauf
        .Mehrere({"Anna Berg , Hauptstraße 5 ,  43217 Quellersheim , Tel:(01234) 567 , "
                  "anna@example.org",
                  "Geb.-tag:07.03.2012 "})
        .Leerzeile()
        .Mehrere({"Mia Moos ,  ,  0  , Tel: , ", "Geb.-tag:00:00:00 "})
        .Leerzeile();
    EXPECT_EQ(Papier.Zeilen, MitSchluss(ablauf));
}

// The number is the server's record number, not a count within the group.
TEST_F(PersonenlistenTest, EineGruppeKompakt)
{
    Meßdiener.Gruppe[0] = "Die Kleinen";
    Meßdiener.Gruppe[1] = "Die Großen";
    Konfig.Flags6 = "nnnjnn";
    Papier.Antwort = 1;
    MeßdienergruppeDrucken("Die Großen");
    Ablauf ablauf = Anfang({"Meßdiener der Pfarrei St. Ägid", "", "der Gruppe Die Großen", ""});
    ablauf.Zeile(" 1 : Jörg Groß").Leerzeile();
    EXPECT_EQ(Papier.Zeilen, MitSchluss(ablauf));
}

TEST_F(PersonenlistenTest, WerKeineGruppeHatStehtInKeiner)
{
    Meßdiener.Gruppe[0] = "";
    MeßdienergruppeDrucken("Die Großen");
    Ablauf ablauf = Anfang({"Meßdiener der Pfarrei St. Ägid", "", "der Gruppe Die Großen", ""});
    EXPECT_EQ(Papier.Zeilen, MitSchluss(ablauf));
}

// A row that is skipped is not counted, and no page is turned for it.
TEST_F(PersonenlistenTest, AndereGruppenZählenNicht)
{
    for (int i = 0; i < 200; ++i)
        MeßdienerAnlegen("Max", "Moos");
    MeßdienergruppeDrucken("Die Großen");
    EXPECT_EQ(Papier.WieOft("NewPage"), 1);
}

// A page just turned has no lines counted when the next row is skipped.
TEST_F(PersonenlistenTest, AndereGruppenPrüfenDieSeiteNicht)
{
    const int mia = MeßdienerAnlegen("Mia", "Moos");
    Meßdiener.Gruppe[mia] = "Die Großen"; // after Jörg, who is in none
    Papier.Seitenhöhe = 3400;
    for (const int modus : {0, 1}) {
        Papier.Leeren();
        Papier.Antwort = modus;
        Konfig.Flags6 = "nnnnnn";
        MeßdienergruppeDrucken("Die Großen");
        std::vector<Text> folge;
        for (const Text &zeile : Papier.Zeilen)
            for (const char *wort : {"Anna", "Jörg", "Mia", "NewPage", "EndDoc", "Verwerfen"})
                if (zeile.find(wort) != Text::npos)
                    folge.emplace_back(wort);
        EXPECT_EQ(folge, (std::vector<Text>{"Anna", "NewPage", "Mia", "NewPage", "EndDoc"}));
    }
}

TEST_F(PersonenlistenTest, OhneGewählteGruppeStehtNiemandDa)
{
    Meßdiener.Gruppe[0] = "";
    MeßdienergruppeDrucken("");
    Ablauf ablauf = Anfang({"Meßdiener der Pfarrei St. Ägid", "", "der Gruppe ", ""});
    EXPECT_EQ(Papier.Zeilen, MitSchluss(ablauf));
}

TEST_F(PersonenlistenTest, JederAndereModusIstDieAusführlicheListe)
{
    const auto listen = {+[] { AlleMeßdienerDrucken(); },
                         +[] { MeßdienergruppeDrucken("Die Großen"); },
                         +[] { AlleHelferDrucken(); }};
    for (const auto liste : listen) {
        std::vector<std::vector<Text>> läufe;
        for (const int modus : {0, -1, 2, 7}) {
            Papier.Leeren();
            Papier.Antwort = modus;
            liste();
            läufe.push_back(Papier.Zeilen);
            EXPECT_EQ(läufe.back(), läufe.front()) << modus;
        }
        Papier.Leeren();
        Papier.Antwort = 1;
        liste();
        EXPECT_NE(Papier.Zeilen, läufe.front());
    }
}

TEST_F(PersonenlistenTest, DieHelferAusführlich)
{
    AlleHelferDrucken();
    Ablauf ablauf = Anfang({"Meßhelfer der Pfarrei St. Ägid"});
    ablauf
        .Mehrere({"Lea Lang , Am Bach 1 ,  43218 Oberquell , Tel:99 , lea@example.org",
                  "Geb.-tag:24.12.1970  , Dienst 1:Lektor , Dienst 2:Kantor"})
        .Leerzeile();
    EXPECT_EQ(Papier.Zeilen, MitSchluss(ablauf));
}

TEST_F(PersonenlistenTest, DieHelferKompakt)
{
    Papier.Antwort = 1;
    AlleHelferDrucken();
    Ablauf ablauf = Anfang({"Meßhelfer der Pfarrei St. Ägid"});
    ablauf.Zeile(" 0 : Lea Lang , Am Bach 1 ,  43218  Oberquell , Tel:99 , Geb.-tag:24.12.1970 ")
        .Leerzeile();
    EXPECT_EQ(Papier.Zeilen, MitSchluss(ablauf));
}

TEST_F(PersonenlistenTest, DieSeiteLiegtWieEingestelltUndStehtDanachWiederHoch)
{
    const auto listen = {+[] { AlleMeßdienerDrucken(); }, +[] { MeßdienergruppeDrucken("x"); },
                         +[] { AlleHelferDrucken(); }};
    for (const auto liste : listen) {
        Papier.Leeren();
        Konfig.DiffJahr = 1;
        liste();
        EXPECT_EQ(Papier.Zeilen[1], "Orientation 1");
        EXPECT_EQ(Papier.Zeilen.back(), "Orientation 1");
        EXPECT_EQ(Papier.WieOft("Orientation 1"), 2);
    }
}

TEST_F(PersonenlistenTest, BeideAusführungenStehenZurWahl)
{
    const auto listen = {+[] { AlleMeßdienerDrucken(); }, +[] { MeßdienergruppeDrucken("x"); },
                         +[] { AlleHelferDrucken(); }};
    for (const auto liste : listen) {
        liste();
        EXPECT_EQ(Papier.Anfrage.ErsteForm, "ausführlich");
        EXPECT_EQ(Papier.Anfrage.ZweiteForm, "eine Zeile je Person");
        Papier.Anfrage = {};
    }
}

TEST_F(PersonenlistenTest, EineLeereTabelleErgibtKeineZeile)
{
    Meßdiener.Anzahl = 0;
    AlleMeßdienerDrucken();
    for (const Text &zeile : Papier.Zeilen)
        EXPECT_FALSE(zeile.starts_with("Print")) << zeile;
    EXPECT_EQ(Papier.WieOft("EndDoc"), 1);
}

} // namespace
} // namespace altardienst

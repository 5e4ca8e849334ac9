// The lists of wish partners, standard masses and label formats, operation by operation.
#include "printing/Listen.h"

#include "printing/Druckstand.h"

namespace altardienst {
namespace {

class ListenTest : public Druckstand {};

TEST_F(ListenTest, Wunschpartner)
{
    MeßdienerAnlegen("Anna", "Berg");
    Meßdiener.WunschVorname[0] = "Jörg";
    Meßdiener.WunschNachname[0] = "Groß";
    MeßdienerAnlegen("Mia", "Moos"); // wishes nobody
    WunschpartnerlisteDrucken();
    Ablauf ablauf;
    ablauf.Tut("Dialog")
        .Eröffnung({"Wunschpartnerliste", "Nachname, Vorname; Wunschpartner: Nachname, Vorname"})
        .Zeile("Berg,Anna;Groß,Jörg")
        .Tut("Print \" \"")
        .Zeile("Moos,Mia;,")
        .Tut("Print \" \"")
        .Tut("NewPage")
        .Tut("EndDoc");
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(ListenTest, StandardmessenSindImmerElfZuDreiZeilen)
{
    Standardmesse.Anzahl = 2; // the record shown last, not a count
    Standardmesse.Wochentag[0] = "Sonntag";
    Standardmesse.Uhrzeit[0] = ZeitAus(9 * 3600 + 30 * 60);
    Standardmesse.Messeart[0] = "Hochamt";
    int wert = 1;
    for (auto *zahl : {&Standardmesse.Dienerzahl, &Standardmesse.Gabenbereitung,
                       &Standardmesse.Leuchter, &Standardmesse.Flambeau, &Standardmesse.Weihrauch,
                       &Standardmesse.Kreuzträger, &Standardmesse.Allgemein, &Standardmesse.Lektor,
                       &Standardmesse.Kommunion, &Standardmesse.Kantor, &Standardmesse.Kollektant})
        (*zahl)[0] = wert++;
    Standardmesse.Wochentag[10] = "Freitag";
    Standardmesse.Wochentag[11] = "Samstag"; // beyond what the dialog shows
    StandardmessenDrucken();

    const std::vector<Text> leer = {", 00:00:00 Uhr, ",
                                    "a: 0 , b: 0 , c: 0 , d: 0 , e: 0 , f: 0 , g: 0 ",
                                    "Lektor: 0 , Kom.-Helfer: 0 , Kantor/in: 0 , Kollektant: 0 "};
    Ablauf ablauf;
    ablauf.Tut("Dialog")
        .Eröffnung({"Standardmessen der Pfarrei St. Ägid"})
        .Mehrere({"", "a=Meßdienerzahl, b=Gabenbereitung, c=Leuchter, d=Flambeaus",
                  "e=Weihrauch, f=Kreuzträger, g=Allgemein", ""})
        .Mehrere({"Sonntag, 09:30:00 Uhr, Hochamt",
                  "a: 1 , b: 2 , c: 3 , d: 4 , e: 5 , f: 6 , g: 7 ",
                  "Lektor: 8 , Kom.-Helfer: 9 , Kantor/in: 10 , Kollektant: 11 "});
    for (int i = 1; i <= 9; ++i)
        ablauf.Mehrere(leer);
    ablauf.Mehrere({"Freitag, 00:00:00 Uhr, ", leer[1], leer[2]}).Tut("NewPage").Tut("EndDoc");
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(ListenTest, StandardmessenPrüfenDieSeiteNicht)
{
    Papier.Seitenhöhe = 3000;
    StandardmessenDrucken();
    EXPECT_EQ(Papier.WieOft("NewPage"), 1);
}

TEST_F(ListenTest, EtikettengrößenSindEinundzwanzigZeilen)
{
    Etikett.Anzahl = 1;
    Etikett.Name[0] = "Große Löcher";
    Etikett.RandOU[0] = 15.5F;
    Etikett.RandLR[0] = 7;
    Etikett.Höhe[0] = 38.1F;
    Etikett.Breite[0] = 63.5F;
    Etikett.Steg[0] = 2.5F;
    Etikett.Reihen[0] = 7;
    Etikett.Spalten[0] = 3;
    Etikett.Name[20] = "letzte";
    Etikett.Name[21] = "nicht mehr";
    EtikettengrößenDrucken();

    const Text leer = ", 000,0 mm, 000,0 mm, 000,0 mm, 000,0 mm, 000,0 mm, 0 , 0 ";
    Ablauf ablauf;
    ablauf.Tut("Dialog")
        .Eröffnung({"Etikettengrößen"})
        .Zeile("Etikettenname, Rand O/U, Rand R/L, Höhe, Breite, Steg, Reihen, Spalten")
        .Zeile("")
        .Zeile("Große Löcher, 015,5 mm, 007,0 mm, 038,1 mm, 063,5 mm, 002,5 mm, 7 , 3 ");
    for (int i = 1; i <= 19; ++i)
        ablauf.Zeile(leer);
    ablauf.Zeile("letzte" + leer).Tut("EndDoc");
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(ListenTest, KeineDieserListenHatZweiAusführungen)
{
    for (const auto liste :
         {WunschpartnerlisteDrucken, StandardmessenDrucken, EtikettengrößenDrucken}) {
        liste();
        EXPECT_FALSE(Papier.Anfrage.HatZweiFormen());
    }
}

} // namespace
} // namespace altardienst

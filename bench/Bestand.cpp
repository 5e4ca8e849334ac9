// Full tables, as the measurements need them.
#include "Bestand.h"

#include "assignment/Dienste.h"
#include "core/Plätze.h"

#include <array>
#include <string>

namespace altardienst {
namespace {

template <std::size_t anzahl> Text Reihum(const std::array<const char *, anzahl> &auswahl, int i)
{
    return auswahl[static_cast<std::size_t>(i) % anzahl];
}

constexpr std::array<const char *, 12> Mädchennamen = {
    "Anna",      "Maria",  "Theresia", "Käthe",    "Elisabeth", "Johanna",
    "Magdalena", "Sophie", "Clara",    "Brünhild", "Veronika",  "Anna-Katharina"};
constexpr std::array<const char *, 11> Jungennamen = {
    "Jakob",  "Matthias", "Jürgen", "Lukas",    "Simon",           "Andreas",
    "Markus", "Björn",    "Thomas", "Johannes", "Karl-Heinz Maria"};
constexpr std::array<const char *, 19> Nachnamen = {"Müller",
                                                    "Brückner",
                                                    "Schäfer",
                                                    "Weiß",
                                                    "Dornseif",
                                                    "Hofmann",
                                                    "Lehnert",
                                                    "Großmann",
                                                    "Bauer",
                                                    "Zöllner",
                                                    "Wiesner",
                                                    "Kaufmann",
                                                    "Schürmann",
                                                    "Thönnes",
                                                    "Ebert",
                                                    "Kirchhof",
                                                    "Oberndörfer",
                                                    "Hansen",
                                                    "Steinhäuser-Wagenbach"};
constexpr std::array<const char *, 7> Straßen = {
    "Am Kirchberg", "Mühlbachweg",  "Bahnhofstraße",  "Sankt-Georgen-Platz",
    "Gartenstraße", "Hinterm Holz", "Alte Schulgasse"};
constexpr std::array<const char *, 5> Orte = {"Quellersheim", "Oberwiesenbach", "Niederau",
                                              "Sankt Leonhard", "Füllenbrück"};
constexpr std::array<const char *, 7> Wochentage = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                                    "Donnerstag", "Freitag", "Samstag"};
constexpr std::array<const char *, 6> Messearten = {
    "Hochamt", "Vorabendmesse", "Wochendienst", "Familienmesse", "Taufe", "Rorate"};
constexpr std::array<const char *, 6> Dienstnamen = {"Gabenbereitung", "Leuchter",    "Flambeau",
                                                     "Weihrauch",      "Kreuzträger", "Allgemein"};
constexpr std::array<const char *, 4> Helferdienste = {"Lektor", "Kommunionhelfer", "Kantor",
                                                       "Kollektant"};

constexpr Datum ErsterTag = 45990; // a Sunday

Text VornameNr(int i)
{
    return i % 2 == 0 ? Reihum(Mädchennamen, i / 2) : Reihum(Jungennamen, i / 2);
}

Text NachnameNr(int i)
{
    return Reihum(Nachnamen, i * 5); // combined with the first name, unique among 437 people
}

/// What servers and helpers have in common.
template <class Tabelle> void PersonAnlegen(Tabelle &tabelle, int i)
{
    tabelle.Vorname[i] = VornameNr(i);
    tabelle.Nachname[i] = NachnameNr(i);
    tabelle.Straße[i] = Reihum(Straßen, i) + " " + std::to_string(i % 120 + 1);
    tabelle.PLZ[i] = 43200 + i % 50;
    tabelle.Ort[i] = Reihum(Orte, i);
    tabelle.Telefon[i] = "0221 47" + std::to_string(10000 + 37 * i);
    tabelle.EMail[i] = "person" + std::to_string(i) + "@example.org";
    tabelle.Geburtstag[i] = 38000 + 13 * i;
}

/// A period of a fortnight.
void Abwesend(MeßdienerTabelle::Spalte<Datum> &von, MeßdienerTabelle::Spalte<Datum> &bis, int i,
              Datum tag)
{
    von[i] = tag;
    bis[i] = tag + 13;
}

void MeßdienerAnlegen(int i)
{
    PersonAnlegen(Meßdiener, i);
    Meßdiener.Geschlecht[i] = i % 2 == 0 ? "weiblich" : "männlich";
    Meßdiener.Größe[i] = 150 + i * 11 % 29;
    Meßdiener.Eintrittsdatum[i] = 42000 + 5 * i;
    Meßdiener.Gruppe[i] = "Gruppe " + std::to_string(i % 12 + 1);
    Meßdiener.Qualifikation[i] = i % 5 == 0 ? "jjjnnn" : "jjjjjj";
    Meßdiener.Wochendienst[i] = i % 4 == 0 ? "njnnnnnn" : i % 7 == 0 ? "jnnjnnnn" : "nnnnnnnn";
    Meßdiener.WunschVorname[i] = VornameNr(i + 1);
    Meßdiener.WunschNachname[i] = NachnameNr(i + 1);
    Meßdiener.Häufigkeit[i] = i % 6 == 0 ? 2 : 0;
    Abwesend(Meßdiener.Von1, Meßdiener.Bis1, i, ErsterTag + i % 90);
    Abwesend(Meßdiener.Von2, Meßdiener.Bis2, i, ErsterTag + 90 + i % 60);
}

void MesseAnlegen(int i, int dienerzahl)
{
    Messe.Datum[i] = ErsterTag + i / 2;
    Messe.Uhrzeit[i] = ZeitAus((i % 2 == 0 ? 9 : 18) * 3600 + 30 * 60);
    Messe.Wochentag[i] = WochentagName(Messe.Datum[i]);
    Messe.Messeart[i] = Reihum(Messearten, i);
    Messe.Dienerzahl[i] = dienerzahl;
    Messe.Gabenbereitung[i] = 2;
    Messe.Leuchter[i] = 2;
    Messe.Flambeau[i] = 4;
    Messe.Weihrauch[i] = 1;
    Messe.Kreuzträger[i] = 1;
    Messe.Allgemein[i] = 2;
    Messe.Kennung[i] = "s";
}

void SlotsFüllen(MesseTabelle::JeSlot &vor, MesseTabelle::JeSlot &nach,
                 MesseTabelle::JeSlot &dienst, int i, int dienstversatz)
{
    for (int n = 1; n <= MesseTabelle::HöchsterSlot; ++n) {
        vor[n] = VornameNr(i + 3 * n);
        nach[n] = NachnameNr(i + 3 * n);
        dienst[n - dienstversatz] = Reihum(Dienstnamen, n - 1);
    }
}

/// The four kinds of helpers of a mass.
void MessehelferFüllen(int i)
{
    Messe.LektorZahl[i] = Messe.KommZahl[i] = Messe.KantorZahl[i] = Messe.KollektZahl[i] = 2;
    int person = i;
    for (const Helferplatz &platz : Helferplätze) {
        ++person;
        (Messe.*platz.Vor)[i] = VornameNr(person);
        (Messe.*platz.Nach)[i] = NachnameNr(person);
    }
}

void KonfigAnlegen()
{
    Konfig.Gemeinde = "Pfarrgemeinde Sankt Georg";
    Konfig.Straße = "Am Kirchberg 1";
    Konfig.PlzOrt = "43217 Quellersheim";
    Konfig.DiffJahr = 1;
    Konfig.DiffGröße = 15;
    Konfig.Tage = 150;
    Konfig.Schriftart = "Times New Roman";
    Konfig.Schriftgröße = 10;
    Konfig.Überschriftgröße = 16;
    Konfig.RandLinks = Konfig.RandUnten = Konfig.RandOben = 15;
    Konfig.Hintergrund = "c:\\programm\\Altardienst\\Kirche.bmp";
}

void StandardmesseAnlegen(int i)
{
    Standardmesse.Wochentag[i] = Reihum(Wochentage, i);
    Standardmesse.Uhrzeit[i] = ZeitAus((8 + i % 12) * 3600);
    Standardmesse.Messeart[i] = Reihum(Messearten, i);
    Standardmesse.Dienerzahl[i] = 12;
    Standardmesse.Gabenbereitung[i] = Standardmesse.Leuchter[i] = 2;
    Standardmesse.Flambeau[i] = 4;
    Standardmesse.Weihrauch[i] = Standardmesse.Kreuzträger[i] = 1;
    Standardmesse.Allgemein[i] = 2;
    Standardmesse.Lektor[i] = Standardmesse.Kommunion[i] = 2;
    Standardmesse.Kantor[i] = Standardmesse.Kollektant[i] = 1;
}

void HelferAnlegen(int i)
{
    PersonAnlegen(Helfer, i);
    Helfer.Dienst1[i] = Reihum(Helferdienste, i);
    Helfer.Dienst2[i] = Reihum(Helferdienste, i + 1);
    int abstand = 0;
    for (auto *tag :
         {&Helfer.Von1, &Helfer.Bis1, &Helfer.Von2, &Helfer.Bis2, &Helfer.Von3, &Helfer.Bis3})
        (*tag)[i] = ErsterTag + i % 30 + 10 * abstand++;
}

void EtikettAnlegen(int i)
{
    Etikett.Name[i] = "Bogen " + std::to_string(i + 1);
    Etikett.RandOU[i] = 13.5F;
    Etikett.RandLR[i] = 7.25F;
    Etikett.Breite[i] = 63.5F;
    Etikett.Höhe[i] = 38.1F + static_cast<Single>(i);
    Etikett.Steg[i] = 2.5F;
    Etikett.Reihen[i] = 7;
    Etikett.Spalten[i] = 3;
}

} // namespace

void VollerBestand()
{
    TabellenLeeren();
    KonfigAnlegen();
    for (int i = 0; i <= Standardmesse.HöchsterInDatei; ++i)
        StandardmesseAnlegen(i);
    for (int i = 0; i <= Meßdiener.HöchsterInDatei; ++i) {
        MeßdienerAnlegen(i);
        Abwesend(Meßdiener.Von3, Meßdiener.Bis3, i, ErsterTag + 200 + i % 30);
        Abwesend(Meßdiener.Von4, Meßdiener.Bis4, i, ErsterTag + 250 + i % 30);
        Abwesend(Meßdiener.Von5, Meßdiener.Bis5, i, ErsterTag + 300 + i % 30);
    }
    for (int i = 0; i <= Messe.HöchsterInDatei; ++i) {
        MesseAnlegen(i, MesseTabelle::HöchsterSlot);
        SlotsFüllen(Messe.DienerVor[i], Messe.DienerNach[i], Messe.DienerDienst[i], i, 1);
        Messe.DienerDienst[i][MesseTabelle::HöchsterSlot] = "Allgemein";
        MessehelferFüllen(i);
    }
    for (int i = 0; i <= Gruppe.HöchsterInDatei; ++i)
        Gruppe.Bezeichnung[i] = "Gruppe " + std::to_string(i + 1);
    for (int i = 0; i <= Helfer.HöchsterInDatei; ++i)
        HelferAnlegen(i);
    for (int i = 0; i <= Etikett.HöchsterInDatei; ++i)
        EtikettAnlegen(i);
    for (int i = 0; i <= MesseDienerFest.HöchsterInDatei; ++i) {
        MesseDienerFest.Datum[i] = ErsterTag + i / 2;
        MesseDienerFest.Uhrzeit[i] = ZeitAus((i % 2 == 0 ? 9 : 18) * 3600);
        SlotsFüllen(MesseDienerFest.Vorname[i], MesseDienerFest.Nachname[i],
                    MesseDienerFest.Dienst[i], i, 0);
    }
    Standardmesse.Anzahl = 10;
    Meßdiener.Anzahl = Meßdiener.HöchsterInDatei + 1;
    Messe.Anzahl = Messe.HöchsterInDatei + 1;
    Gruppe.Anzahl = Gruppe.HöchsterInDatei + 1;
    Helfer.Anzahl = Helfer.HöchsterInDatei + 1;
    MesseDienerFest.Anzahl = MesseDienerFest.HöchsterInDatei + 1;
}

void BestandFürZuweisung()
{
    TabellenLeeren();
    KonfigAnlegen();
    Meßdiener.Anzahl = 200;
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        MeßdienerAnlegen(i);
    Messe.Anzahl = 300;
    for (int i = 0; i < Messe.Anzahl; ++i)
        MesseAnlegen(i, 12);
    DiensteVerteilen();
}

} // namespace altardienst

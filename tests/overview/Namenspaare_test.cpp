// Names as keys.
#include "overview/Namenspaare.h"
#include "overview/Namensregister.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <string>

namespace altardienst {
namespace {

/// Names of every length from none to more than a key holds, many of them nearly the same.
Text ZufälligerName(std::mt19937 &zufall)
{
    Text name(zufall() % 25, 'a');
    if (!name.empty())
        for (unsigned mal = zufall() % 3; mal > 0; --mal)
            name[zufall() % name.size()] = static_cast<char>('a' + zufall() % 3);
    return name;
}

TEST(NamenszahlenTest, GleichSindNurDieselbenNamen)
{
    std::mt19937 zufall(3);
    for (int mal = 0; mal < 200000; ++mal) {
        const Text vor = ZufälligerName(zufall);
        const Text nach = ZufälligerName(zufall);
        Text anderer = vor;
        if (!anderer.empty())
            anderer[zufall() % anderer.size()] = static_cast<char>('a' + zufall() % 3);
        const Namenszahlen zahlen(vor, nach);
        ASSERT_EQ(zahlen.SagtAlles(), vor.size() <= 16 && nach.size() <= 16);
        ASSERT_EQ(zahlen.IstLeer(), vor.empty() && nach.empty());
        ASSERT_EQ(zahlen, Namenszahlen(Text(vor), Text(nach)));
        if (zahlen.SagtAlles()) {
            ASSERT_EQ(zahlen == Namenszahlen(anderer, nach), vor == anderer);
            ASSERT_EQ(zahlen == Namenszahlen(nach, vor), vor == nach);
        }
    }
}

TEST(NamenspaareTest, JederNameHatDasSeine)
{
    std::mt19937 zufall(4);
    Namenspaare<int> paare;
    std::map<std::pair<Text, Text>, int> erwartet;
    for (int mal = 0; mal < 20000; ++mal) {
        const std::pair<Text, Text> name = {ZufälligerName(zufall), ZufälligerName(zufall)};
        const int *gefunden = paare.Finden(name.first, name.second);
        const auto dort = erwartet.find(name);
        ASSERT_EQ(gefunden != nullptr, dort != erwartet.end());
        if (gefunden) {
            ASSERT_EQ(*gefunden, dort->second);
        }
        const auto [wert, neu] = paare.Eintragen(name.first, name.second);
        ASSERT_EQ(neu, !gefunden);
        ASSERT_EQ(wert, gefunden ? dort->second : 0);
        wert = mal;
        erwartet[name] = mal;
    }
    for (const auto &[name, wert] : erwartet)
        ASSERT_EQ(*paare.Finden(name.first, name.second), wert);
    paare.Leeren();
    EXPECT_EQ(paare.Finden(erwartet.begin()->first.first, erwartet.begin()->first.second), nullptr);
}

TEST(NamenspaareTest, UmlauteSindBuchstabenWieAndere)
{
    Namenspaare<int> paare;
    paare.Eintragen("Änne", "Öhlschläger").first = 1;
    paare.Eintragen("Änne", "Ohlschläger").first = 2;
    paare.Eintragen("Ä", "Ö").first = 3;
    EXPECT_EQ(*paare.Finden("Änne", "Öhlschläger"), 1);
    EXPECT_EQ(*paare.Finden("Änne", "Ohlschläger"), 2);
    EXPECT_EQ(*paare.Finden("Ä", "Ö"), 3);
    EXPECT_EQ(paare.Finden("Ö", "Ä"), nullptr);
}

TEST(NamenspaareTest, WasEingetragenIstBleibtWoEsIst)
{
    Namenspaare<Text> paare;
    Text &erster = paare.Eintragen("Anna", "Adler").first;
    erster = "Anna A.";
    for (int i = 0; i < 5000; ++i)
        paare.Eintragen("Anna", std::to_string(i));
    EXPECT_EQ(paare.Finden("Anna", "Adler"), &erster);
    EXPECT_EQ(erster, "Anna A.");
}

TEST(NamensregisterTest, LangeNamenWerdenGanzVerglichen)
{
    const auto diener = std::make_unique<MeßdienerTabelle>();
    diener->Anzahl = 4;
    diener->Vorname[0] = "Annaaaaa-Maximiliane-Theresa";
    diener->Vorname[1] = "Annaaaaa-Wilhelmine-m-Theresa";
    diener->Vorname[2] = "Annaaaaa-Maximilians-Theresa"; // as long as the first, same ends
    diener->Vorname[3] = "Kim";
    for (int j = 0; j < 3; ++j)
        diener->Nachname[j] = "Adler";
    const auto namen = std::make_unique<Namensregister>();
    namen->Neu(*diener);
    for (int j = 0; j < 4; ++j)
        EXPECT_EQ(namen->Finden(diener->Vorname[j], diener->Nachname[j]), j);
    EXPECT_EQ(namen->Finden("Annaaaaa-Maximilianx-Theresa", "Adler"), Namensregister::Unbekannt);
    EXPECT_EQ(namen->Finden("", ""), Namensregister::Frei);
    EXPECT_EQ(namen->Finden("", "Kim"), Namensregister::Unbekannt);
    diener->Vorname[1] = "Kim";
    diener->Nachname[1] = "";
    namen->Neu(*diener);
    EXPECT_EQ(namen->Finden("Kim", ""), Namensregister::Mehrdeutig);
}

} // namespace
} // namespace altardienst

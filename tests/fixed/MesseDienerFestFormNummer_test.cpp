// The dialog of the fixed entries: the number of the entry, as it is typed.
#include "fixed/Blätterstand.h"

namespace altardienst {
namespace {

class MesseDienerFestFormNummerTest : public Blätterstand {};

TEST_F(MesseDienerFestFormNummerTest, AuchEineGetippteNummerLäßtDieMesseStehen)
{
    Öffnen();
    Einsetzen("Index", "2");
    EXPECT_EQ(Wo(), Zwei);
    EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
    Einsetzen("Index", "1");
    EXPECT_EQ(Messentext(), "24.11.2026,08:00:00");
    Einsetzen("MDV1", "geändert");
    Einsetzen("Index", "0");
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Bauer"); // nothing is written
}

TEST_F(MesseDienerFestFormNummerTest, EineNummerAußerhalbGehtAufDieGrenze)
{
    const Text Blank = "3: 00:00:00,00:00:00  0"; // not yet brought in line
    Öffnen();
    for (const auto &[text, wo] : {std::pair("4", Blank),
                                   {"1", Eins},
                                   {"40000", Blank},
                                   {"-1", Null},
                                   {"2", Zwei},
                                   {"-40000", Null}}) {
        Einsetzen("Index", text);
        EXPECT_EQ(Wo(), wo) << text;
    }
}

TEST_F(MesseDienerFestFormNummerTest, MehrAls200SindNichtZuErreichen)
{
    Viele(250);
    ListeÖffnen();
    for (const auto &[text, nummer] : {std::pair("199", "199"),
                                       {"200", "200"},
                                       {"201", "200"},
                                       {"250", "200"},
                                       {"251", "200"}}) {
        Einsetzen("Index", text);
        EXPECT_EQ(Zeigt("Index"), nummer) << text;
        EXPECT_EQ(MesseDienerFest.Cursor, std::stoi(nummer));
    }
    Klick("Plus");
    EXPECT_EQ(Zeigt("Index"), "200");
    EXPECT_EQ(Zeigt("DatumD"), KurzesDatum(Sonntag + 300));
}

TEST_F(MesseDienerFestFormNummerTest, AuchBeimÖffnenIst200DieHöchste)
{
    Viele(250);
    MesseDienerFest.Cursor = 250;
    ListeÖffnen();
    EXPECT_EQ(Zeigt("Index"), "200");
    EXPECT_EQ(MesseDienerFest.Cursor, 200);
    EXPECT_EQ(Zeigt("DatumD"), KurzesDatum(Sonntag + 300));
}

TEST_F(MesseDienerFestFormNummerTest, WasKeineNummerIstBleibtStehen)
{
    Öffnen(1);
    for (const char *text : {"abc", "", "1 2", "🎉"}) {
        Einsetzen("Index", text);
        EXPECT_EQ(MesseDienerFest.Cursor, 1);
        EXPECT_EQ(Gewählt(1), "Bauer,Kim");
    }
    Einsetzen("Index", "abc");
    const Text messe = Messentext();
    for (const char *name : {"Plus", "Minus"})
        Klick(name);
    Drehen("DatensatzWechsel", "auf");
    EXPECT_EQ(Zeigt("Index"), "abc");
    EXPECT_EQ(MesseDienerFest.Cursor, 1);
    MesseWählen("22.11.2026,10:00:00"); // no entry that could take its count
    EXPECT_EQ(MesseDienerFest.Index[1], 2);
    EXPECT_EQ(Zeilen(), 2);
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(MesseDienerFestFormNummerTest, EineLeereNummerGiltAlsNull)
{
    Öffnen(2);
    Einsetzen("Index", "");
    Klick("Plus");
    EXPECT_EQ(Wo(), Eins);
    Einsetzen("Index", "");
    Klick("Minus");
    EXPECT_EQ(Wo(), Null);
    Einsetzen("Index", "");
    Klick("Minus"); // there is nothing before the first one
    EXPECT_EQ(Wo(), Null);
    Einsetzen("Index", "2");
    Einsetzen("Index", "");
    Drehen("DatensatzWechsel", "auf"); // the spin button does not fill it
    EXPECT_EQ(Zeigt("Index"), "");
    EXPECT_EQ(MesseDienerFest.Cursor, 2);
}

/// A number above the limit stays only while a bad date holds up its change.
TEST_F(MesseDienerFestFormNummerTest, AbNummer600ZeigtPlusKeinenNächstenEintrag)
{
    for (const auto &[nummer, zeigt] : {std::pair("599", true), {"600", false}, {"601", false}}) {
        Viele(5);
        MesseDienerFest.Cursor = 1;
        ListeÖffnen();
        FokusAuf("Index");
        Einsetzen("DatumD", "abc");
        Einsetzen("Index", nummer);
        EXPECT_EQ(MesseDienerFest.Cursor, 1);
        Einsetzen("DatumD", KurzesDatum(Sonntag + 101));
        Liste gezeigte;
        QObject::connect(Finden<QLineEdit>("DatumD"), &QLineEdit::textChanged, form,
                         [&](const QString &text) { gezeigte.push_back(text.toStdString()); });
        Taste(Qt::Key_PageUp);
        EXPECT_EQ(std::ranges::count(gezeigte, KurzesDatum(Sonntag + 102)) > 0, zeigt) << nummer;
        EXPECT_EQ(Zeigt("Index"), "5");
        form->close();
        EXPECT_TRUE(Warten([&] { return !form; }));
    }
}

} // namespace
} // namespace altardienst

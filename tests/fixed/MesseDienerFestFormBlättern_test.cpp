// The dialog of the fixed entries: moving from one entry to the next.
#include "fixed/Blätterstand.h"

namespace altardienst {
namespace {

class MesseDienerFestFormBlätternTest : public Blätterstand {};

TEST_F(MesseDienerFestFormBlätternTest, KnöpfeUndTastenGehenHinUndHer)
{
    Öffnen();
    EXPECT_EQ(Wo(), Null);
    for (const bool mitTaste : {false, true}) {
        const auto plus = [&] { mitTaste ? Taste(Qt::Key_PageUp) : Klick("Plus"); };
        const auto minus = [&] { mitTaste ? Taste(Qt::Key_PageDown) : Klick("Minus"); };
        for (const Text &wo : {Eins, Zwei, Leer, Leer}) {
            plus();
            EXPECT_EQ(Wo(), wo);
            EXPECT_EQ(Messentext(), AmUm());
        }
        for (const Text &wo : {Zwei, Eins, Null, Null}) {
            minus();
            EXPECT_EQ(Wo(), wo);
            EXPECT_EQ(Messentext(), AmUm());
        }
    }
    EXPECT_EQ(MesseDienerFest.Anzahl, 3);
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(MesseDienerFestFormBlätternTest, JederSchrittSchreibtDenSchirmInDenEintragDenErVerläßt)
{
    Öffnen(1);
    for (const char *wie : {"Plus", "Minus", "auf", "ab"}) {
        Einsetzen("Index", "1");
        MesseWählen("23.11.2026,08:00:00");
        Wählen(1, "Dahl,Kim");
        Wählen(20, "Zoller,Kim");
        if (Text(wie) == "Plus" || Text(wie) == "Minus")
            Klick(wie);
        else
            Drehen("DatensatzWechsel", wie);
        EXPECT_EQ(Termin(1), "23.11.2026,08:00:00") << wie;
        EXPECT_EQ(Gespeichert(1, 1), "Kim|Dahl");
        EXPECT_EQ(Gespeichert(1, 20), "Kim|Zoller");
        EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
        EXPECT_EQ(Gespeichert(2, 1), "Kim|Conrad");
        Fest(1, 1, {"Bauer"});
        for (const int k : {0, 2})
            Fest(k, k == 0 ? 0 : 3);
    }
}

TEST_F(MesseDienerFestFormBlätternTest, EineTasteVerläßtZuerstDieBoxInDerGeschriebenWird)
{
    Öffnen();
    FokusAuf(MDiener(2));
    Einsetzen(2, "Dahl,Kim");
    Taste(Qt::Key_PageUp);
    EXPECT_EQ(Gespeichert(0, 2), "Kim|Dahl");
    EXPECT_EQ(Wo(), Eins);
    FokusAuf(MDiener(2));
    Einsetzen(2, "Niemand,Nina");
    Taste(Qt::Key_PageDown);
    EXPECT_EQ(GezeigteMeldungen, Liste{Fehleingabe});
    EXPECT_EQ(Gespeichert(1, 2), "|");
    EXPECT_EQ(Zeigt("Index"), "0");
}

TEST_F(MesseDienerFestFormBlätternTest, EineTasteVerläßtAuchDieMesseZuerst)
{
    Öffnen();
    FokusAuf("Messen");
    MesseEinsetzen("24.11.2026,08:00:00");
    Taste(Qt::Key_PageUp);
    EXPECT_EQ(Termin(0), "24.11.2026,08:00:00");
    EXPECT_EQ(Wo(), Eins);
}

TEST_F(MesseDienerFestFormBlätternTest, EineTasteNimmtDasGetippteDatumUndDieUhrzeitMit)
{
    for (const auto &[feld, text, termin] : {std::tuple("DatumD", "1.2.27", "01.02.2027,18:00:00"),
                                             {"Zeitd", "9:30", "22.11.2026,09:30:00"}}) {
        for (const auto &[taste, wo] :
             {std::pair(Qt::Key_PageUp, Zwei), {Qt::Key_PageDown, Null}}) {
            Öffnen(1);
            FokusAuf(feld);
            Einsetzen(feld, text);
            Taste(taste);
            EXPECT_EQ(Termin(1), termin);
            EXPECT_EQ(Wo(), wo);
            EXPECT_TRUE(Finden("Index")->hasFocus());
            form->close();
            EXPECT_TRUE(Warten([&] { return !form; }));
        }
    }
}

TEST_F(MesseDienerFestFormBlätternTest, EinSchlechtesDatumHältDieTasteAnUndBleibtStehen)
{
    Öffnen(1);
    for (const char *feld : {"DatumD", "Zeitd"}) {
        const Text vorher = Zeigt(feld);
        FokusAuf(feld);
        Einsetzen(feld, "abc");
        Taste(Qt::Key_PageUp);
        EXPECT_EQ(Zeigt(feld), "abc");
        EXPECT_EQ(Zeigt("Index"), "1");
        Einsetzen(feld, vorher);
    }
    EXPECT_EQ(Termin(1), "22.11.2026,18:00:00");
}

TEST_F(MesseDienerFestFormBlätternTest, DerLeereEintragBekommtHeuteSobaldErVerlassenWird)
{
    Öffnen(2);
    Klick("Plus");
    Klick("Minus");
    EXPECT_EQ(Termin(3), "21.11.2026,00:00:00");
    EXPECT_EQ(MesseDienerFest.Anzahl, 3);
    for (const char *wie : {"Plus", "Minus", "auf", "ab"}) {
        MesseDienerFest.Datum[3] = 0;
        Einsetzen("Index", "2");
        Einsetzen("Index", "3");
        EXPECT_EQ(Zeigt("DatumD"), "00:00:00"); // not before it is written
        if (Text(wie) == "Plus" || Text(wie) == "Minus")
            Klick(wie);
        else
            Drehen("DatensatzWechsel", wie);
        EXPECT_EQ(Termin(3), "21.11.2026,00:00:00") << wie;
    }
}

TEST_F(MesseDienerFestFormBlätternTest, NachDemDrehenStehtDieMesseDesVerlassenenEintragsDa)
{
    Öffnen();
    Drehen("DatensatzWechsel", "auf");
    EXPECT_EQ(Wo(), Eins);
    EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
    Wählen(2, "Dahl,Kim"); // takes date and time from it
    EXPECT_EQ(AmUm(), "22.11.2026,10:00:00");
    EXPECT_EQ(Dienst(1), "Gabenbereitung");
    EXPECT_EQ(MesseDienerFest.Dienst[1][1], "Gabenbereitung");
    Drehen("DatensatzWechsel", "ab");
    EXPECT_EQ(Termin(1), "22.11.2026,10:00:00");
    EXPECT_EQ(Wo(), Null);
    Drehen("DatensatzWechsel", "ab"); // the change of the number stores it
    EXPECT_EQ(Wo(), Null);
    Einsetzen("Index", "3");
    Drehen("DatensatzWechsel", "auf");
    EXPECT_EQ(Wo().substr(0, 2), "3:");
}

/// Its change handler runs while the entry is being filled in, still with the mass of the previous
/// one.
TEST_F(MesseDienerFestFormBlätternTest, DerZwanzigsteSlotHoltBeimDrehenDenAltenTermin)
{
    Fest(0, 2);
    Fest(1, 2, Liste(20));
    MesseDienerFest.Datum[0] = Sonntag;
    MesseDienerFest.Nachname[1][20] = "Abel";
    MesseDienerFest.Vorname[1][20] = "Kim";
    ListeÖffnen();
    Drehen("DatensatzWechsel", "auf");
    EXPECT_EQ(Gewählt(20), "Abel,Kim");
    EXPECT_EQ(AmUm(), "22.11.2026,08:00:00");
    Einsetzen("Index", "0");
    Fest(1, 2);
    Klick("Plus"); // brings the mass in line first
    EXPECT_EQ(Gewählt(20), "Abel,Kim");
    EXPECT_EQ(AmUm(), "23.11.2026,08:00:00");
}

TEST_F(MesseDienerFestFormBlätternTest, EinSchlechterTerminHältJedeBewegungStillAn)
{
    Öffnen(1);
    FokusAuf("Index");
    for (const char *feld : {"DatumD", "Zeitd"}) {
        const Text vorher = Zeigt(feld);
        Einsetzen(feld, "abc");
        Taste(Qt::Key_PageUp);
        Taste(Qt::Key_PageDown);
        Klick("Plus");
        Drehen("DatensatzWechsel", "ab");
        Einsetzen("Index", "0");
        EXPECT_EQ(MesseDienerFest.Cursor, 1);
        EXPECT_EQ(Gewählt(1), "Bauer,Kim");
        EXPECT_EQ(Termin(1), "22.11.2026,18:00:00");
        Einsetzen(feld, vorher);
        Einsetzen("Index", "1");
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

} // namespace
} // namespace altardienst

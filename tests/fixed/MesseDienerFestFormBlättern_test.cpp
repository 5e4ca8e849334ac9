// The dialog of the fixed entries: moving between entries, and deleting one.
#include "fixed/Zuordnungsstand.h"

namespace altardienst {
namespace {

/// Three entries: masses 0, 1 and 3, each with one server.
class MesseDienerFestFormBlätternTest : public Zuordnungsstand {
  protected:
    void Öffnen(int cursor = 0)
    {
        Fest(0, 0, {"Abel"});
        Fest(1, 1, {"Bauer"});
        Fest(2, 3, {"Conrad"});
        MesseDienerFest.Cursor = cursor;
        ListeÖffnen();
    }

    /// That many entries with no mass; the date tells them apart.
    void Viele(int anzahl)
    {
        for (int k = 0; k < anzahl; ++k) {
            MesseDienerFest.Datum[k] = Sonntag + 100 + k;
            MesseDienerFest.Uhrzeit[k] = ZeitAus(3600);
        }
        MesseDienerFest.Anzahl = anzahl;
    }

    void Taste(Qt::Key taste) const { QTest::keyClick(QApplication::focusWidget(), taste); }

    /// Number, entry of the screen, and whether the table's cursor is there.
    Text Wo() const
    {
        EXPECT_EQ(ZahlText(MesseDienerFest.Cursor), Zeigt("Index"));
        return Zeigt("Index") + ": " + AmUm() + " " + Gewählt(1) + " " + ZahlText(Zeilen());
    }

    const Text Null = "0: 22.11.2026,10:00:00 Abel,Kim 4";
    const Text Eins = "1: 22.11.2026,18:00:00 Bauer,Kim 2";
    const Text Zwei = "2: 24.11.2026,08:00:00 Conrad,Kim 3";
    const Text Leer = "3: 21.11.2026,00:00:00  0"; // the blank entry behind the last one
};

TEST_F(MesseDienerFestFormBlätternTest, KnöpfeUndTastenGehenHinUndHer)
{
    Öffnen();
    EXPECT_EQ(Wo(), Null);
    for (const bool mitTaste : {false, true}) {
        const auto plus = [&] { mitTaste ? Taste(Qt::Key_PageUp) : Drücken("Plus"); };
        const auto minus = [&] { mitTaste ? Taste(Qt::Key_PageDown) : Drücken("Minus"); };
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
        Eingeben("Index", "1");
        MesseWählen("23.11.2026,08:00:00");
        Wählen(1, "Dahl,Kim");
        Wählen(20, "Zoller,Kim");
        if (Text(wie) == "Plus" || Text(wie) == "Minus")
            Drücken(wie);
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
    Setzen(2, "Dahl,Kim");
    Taste(Qt::Key_PageUp);
    EXPECT_EQ(Gespeichert(0, 2), "Kim|Dahl");
    EXPECT_EQ(Wo(), Eins);
    FokusAuf(MDiener(2));
    Setzen(2, "Niemand,Nina");
    Taste(Qt::Key_PageDown);
    EXPECT_EQ(GezeigteMeldungen, Liste{Fehleingabe});
    EXPECT_EQ(Gespeichert(1, 2), "|");
    EXPECT_EQ(Zeigt("Index"), "0");
}

TEST_F(MesseDienerFestFormBlätternTest, EineTasteVerläßtAuchDieMesseZuerst)
{
    Öffnen();
    FokusAuf(Kombo("Messen"));
    MesseSetzen("24.11.2026,08:00:00");
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
            FokusAuf(Finden(form, feld));
            Eingeben(feld, text);
            Taste(taste);
            EXPECT_EQ(Termin(1), termin);
            EXPECT_EQ(Wo(), wo);
            EXPECT_TRUE(Finden(form, "Index")->hasFocus());
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
        FokusAuf(Finden(form, feld));
        Eingeben(feld, "abc");
        Taste(Qt::Key_PageUp);
        EXPECT_EQ(Zeigt(feld), "abc");
        EXPECT_EQ(Zeigt("Index"), "1");
        Eingeben(feld, vorher.c_str());
    }
    EXPECT_EQ(Termin(1), "22.11.2026,18:00:00");
}

TEST_F(MesseDienerFestFormBlätternTest, DerLeereEintragBekommtHeuteSobaldErVerlassenWird)
{
    Öffnen(2);
    Drücken("Plus");
    Drücken("Minus");
    EXPECT_EQ(Termin(3), "21.11.2026,00:00:00");
    EXPECT_EQ(MesseDienerFest.Anzahl, 3);
    for (const char *wie : {"Plus", "Minus", "auf", "ab"}) {
        MesseDienerFest.Datum[3] = 0;
        Eingeben("Index", "2");
        Eingeben("Index", "3");
        EXPECT_EQ(Zeigt("DatumD"), "00:00:00"); // not before it is written
        if (Text(wie) == "Plus" || Text(wie) == "Minus")
            Drücken(wie);
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
    Drehen("DatensatzWechsel", "ab"); // the change of the number holds it
    EXPECT_EQ(Wo(), Null);
    Eingeben("Index", "3");
    Drehen("DatensatzWechsel", "auf");
    EXPECT_EQ(Wo().substr(0, 2), "3:");
}

TEST_F(MesseDienerFestFormBlätternTest, AuchEineGetippteNummerLäßtDieMesseStehen)
{
    Öffnen();
    Eingeben("Index", "2");
    EXPECT_EQ(Wo(), Zwei);
    EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
    Eingeben("Index", "1");
    EXPECT_EQ(Messentext(), "24.11.2026,08:00:00");
    Eingeben("MDV1", "geändert");
    Eingeben("Index", "0");
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Bauer"); // nothing is written
}

/// Its change runs while the entry is filled in, with the mass of the one before.
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
    Eingeben("Index", "0");
    Fest(1, 2);
    Drücken("Plus"); // brings the mass in line first
    EXPECT_EQ(Gewählt(20), "Abel,Kim");
    EXPECT_EQ(AmUm(), "23.11.2026,08:00:00");
}

TEST_F(MesseDienerFestFormBlätternTest, EineNummerAußerhalbGehtAufDieGrenze)
{
    const Text Blank = "3: 00:00:00,00:00:00  0"; // not yet brought in line
    Öffnen();
    for (const auto &[text, wo] : {std::pair("4", Blank),
                                   {"1", Eins},
                                   {"40000", Blank},
                                   {"-1", Null},
                                   {"2", Zwei},
                                   {"-40000", Null}}) {
        Eingeben("Index", text);
        EXPECT_EQ(Wo(), wo) << text;
    }
}

TEST_F(MesseDienerFestFormBlätternTest, MehrAls200SindNichtZuErreichen)
{
    Viele(250);
    ListeÖffnen();
    for (const auto &[text, nummer] : {std::pair("199", "199"),
                                       {"200", "200"},
                                       {"201", "200"},
                                       {"250", "200"},
                                       {"251", "200"}}) {
        Eingeben("Index", text);
        EXPECT_EQ(Zeigt("Index"), nummer) << text;
        EXPECT_EQ(MesseDienerFest.Cursor, std::stoi(nummer));
    }
    Drücken("Plus");
    EXPECT_EQ(Zeigt("Index"), "200");
    EXPECT_EQ(Zeigt("DatumD"), KurzesDatum(Sonntag + 300));
}

TEST_F(MesseDienerFestFormBlätternTest, AuchBeimÖffnenIst200DieHöchste)
{
    Viele(250);
    MesseDienerFest.Cursor = 250;
    ListeÖffnen();
    EXPECT_EQ(Zeigt("Index"), "200");
    EXPECT_EQ(MesseDienerFest.Cursor, 200);
    EXPECT_EQ(Zeigt("DatumD"), KurzesDatum(Sonntag + 300));
}

TEST_F(MesseDienerFestFormBlätternTest, WasKeineNummerIstBleibtStehen)
{
    Öffnen(1);
    for (const char *text : {"abc", "", "1 2", "🎉"}) {
        Eingeben("Index", text);
        EXPECT_EQ(MesseDienerFest.Cursor, 1);
        EXPECT_EQ(Gewählt(1), "Bauer,Kim");
    }
    Eingeben("Index", "abc");
    const Text messe = Messentext();
    for (const char *name : {"Plus", "Minus"})
        Drücken(name);
    Drehen("DatensatzWechsel", "auf");
    EXPECT_EQ(Zeigt("Index"), "abc");
    EXPECT_EQ(MesseDienerFest.Cursor, 1);
    MesseWählen("22.11.2026,10:00:00"); // has no entry for its count
    EXPECT_EQ(MesseDienerFest.Index[1], 2);
    EXPECT_EQ(Zeilen(), 2);
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(MesseDienerFestFormBlätternTest, EineLeereNummerGiltAlsNull)
{
    Öffnen(2);
    Eingeben("Index", "");
    Drücken("Plus");
    EXPECT_EQ(Wo(), Eins);
    Eingeben("Index", "");
    Drücken("Minus");
    EXPECT_EQ(Wo(), Null);
    Eingeben("Index", "");
    Drücken("Minus"); // nothing is above the first one
    EXPECT_EQ(Wo(), Null);
    Eingeben("Index", "2");
    Eingeben("Index", "");
    Drehen("DatensatzWechsel", "auf"); // the spin button does not fill it
    EXPECT_EQ(Zeigt("Index"), "");
    EXPECT_EQ(MesseDienerFest.Cursor, 2);
}

/// A number above the limit stands only while a bad date holds up its change.
TEST_F(MesseDienerFestFormBlätternTest, AbNummer600ZeigtPlusKeinenNächstenEintrag)
{
    for (const auto &[nummer, zeigt] : {std::pair("599", true), {"600", false}, {"601", false}}) {
        Viele(5);
        MesseDienerFest.Cursor = 1;
        ListeÖffnen();
        FokusAuf(Finden(form, "Index"));
        Eingeben("DatumD", "abc");
        Eingeben("Index", nummer);
        EXPECT_EQ(MesseDienerFest.Cursor, 1);
        Eingeben("DatumD", KurzesDatum(Sonntag + 101).c_str());
        Liste gezeigte;
        QObject::connect(Feld("DatumD"), &QLineEdit::textChanged, form,
                         [&](const QString &text) { gezeigte.push_back(text.toStdString()); });
        Taste(Qt::Key_PageUp);
        EXPECT_EQ(std::ranges::count(gezeigte, KurzesDatum(Sonntag + 102)) > 0, zeigt) << nummer;
        EXPECT_EQ(Zeigt("Index"), "5");
        form->close();
        EXPECT_TRUE(Warten([&] { return !form; }));
    }
}

TEST_F(MesseDienerFestFormBlätternTest, EinSchlechterTerminHältJedeBewegungStillAn)
{
    Öffnen(1);
    FokusAuf(Finden(form, "Index"));
    for (const char *feld : {"DatumD", "Zeitd"}) {
        const Text vorher = Zeigt(feld);
        Eingeben(feld, "abc");
        Taste(Qt::Key_PageUp);
        Taste(Qt::Key_PageDown);
        Drücken("Plus");
        Drehen("DatensatzWechsel", "ab");
        Eingeben("Index", "0");
        EXPECT_EQ(MesseDienerFest.Cursor, 1);
        EXPECT_EQ(Gewählt(1), "Bauer,Kim");
        EXPECT_EQ(Termin(1), "22.11.2026,18:00:00");
        Eingeben(feld, vorher.c_str());
        Eingeben("Index", "1");
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_F(MesseDienerFestFormBlätternTest, LöschenFragtUndNeinÄndertNichts)
{
    Öffnen(1);
    Drücken("Löschen");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Titel, "Löschen der Zuordnung Meßdiener Messe");
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Wirklich?");
    EXPECT_EQ(MesseDienerFest.Anzahl, 3);
    EXPECT_EQ(Wo(), Eins);
}

TEST_F(MesseDienerFestFormBlätternTest, LöschenZeigtDenNachrückendenEintrag)
{
    Öffnen(1);
    Antworten = {true};
    Drücken("Löschen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 2);
    EXPECT_EQ(Zeigt("MaxIndex"), "2");
    EXPECT_EQ(Wo(), "1: 24.11.2026,08:00:00 Conrad,Kim 3");
    EXPECT_EQ(Messentext(), "22.11.2026,18:00:00"); // still that of the deleted one
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
}

TEST_F(MesseDienerFestFormBlätternTest, LöschenAufDemLeerenEintragGehtZurückAufDieAnzahl)
{
    Öffnen(3);
    Antworten = {true};
    Drücken("Löschen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 2);
    EXPECT_EQ(Wo(), Zwei); // behind the last one now, but still there
}

/// The number may stand apart from the entry on the screen while a bad date holds up its change.
TEST_F(MesseDienerFestFormBlätternTest, GelöschtWirdDerEintragDerNummer)
{
    Öffnen(1);
    FokusAuf(Finden(form, "Index"));
    Eingeben("DatumD", "abc");
    Eingeben("Index", "0");
    EXPECT_EQ(MesseDienerFest.Cursor, 1);
    Antworten = {true};
    Drücken("Löschen");
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Bauer");
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Conrad");
    EXPECT_EQ(MesseDienerFest.Cursor, 0);
    EXPECT_EQ(Wo(), "0: 22.11.2026,18:00:00 Bauer,Kim 2");
}

/// Only the buttons and keys bring the mass in line with the entry, and OK takes the date from it.
TEST_F(MesseDienerFestFormBlätternTest, NachDemDrehenUndLöschenSchreibtOkDenTerminDesVorigen)
{
    Öffnen();
    Drehen("DatensatzWechsel", "auf");
    Drücken("OKbutton");
    EXPECT_EQ(Termin(1), "22.11.2026,10:00:00"); // that of entry 0
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Bauer");
    EXPECT_TRUE(Warten([&] { return !form; }));
    Öffnen(1);
    Antworten = {true};
    Drücken("Löschen");
    Drücken("OKbutton");
    EXPECT_EQ(Termin(1), "22.11.2026,18:00:00"); // that of the deleted one
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Conrad");
}

TEST_F(MesseDienerFestFormBlätternTest, MitWenigerAlsZweiEinträgenTutLöschenNichts)
{
    Öffnen();
    for (const int anzahl : {1, 0}) {
        MesseDienerFest.Anzahl = anzahl;
        Antworten = {true};
        Drücken("Löschen");
        EXPECT_TRUE(GestellteFragen.empty());
        EXPECT_EQ(MesseDienerFest.Anzahl, anzahl);
    }
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
    MesseDienerFest.Anzahl = 2;
    Drücken("Löschen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 1);
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Bauer");
}

} // namespace
} // namespace altardienst

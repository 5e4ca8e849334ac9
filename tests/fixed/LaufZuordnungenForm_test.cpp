// A long random walk through both dialogs of the fixed entries: what holds after every event.
#include "fixed/Zuordnungsstand.h"

#include <random>

namespace altardienst {
namespace {

class LaufZuordnungenFormTest : public BeideZuordnungen {
  protected:
    static constexpr int Schritte = 1500;

    LaufZuordnungenFormTest()
    {
        for (int tag = 3; tag < 30; ++tag)
            Anlegen(Sonntag + tag, 8, tag % 22, "Messe");
        Anlegen(Sonntag + 3, 8, 5, "zur selben Zeit");
        for (int k = 0; k < 8; ++k)
            Fest(k, k, {"Abel", "Bauer", "Fremd", "Conrad"});
        MesseDienerFest.Nachname[2][20] = "Dahl";
        MesseDienerFest.Vorname[2][20] = "Kim";
    }

    int Zufällig(int bis) { return std::uniform_int_distribution(0, bis - 1)(zufall); }
    template <class T> const T &Eines(const std::vector<T> &aus)
    {
        return aus[static_cast<std::size_t>(Zufällig(static_cast<int>(aus.size())))];
    }

    void Ereignis()
    {
        switch (Zufällig(10)) {
        case 0:
        case 1:
            return SlotÄndern();
        case 2:
            return MesseÄndern();
        case 3:
            Eingeben(Eines<const char *>({"DatumD", "Zeitd"}), Eines(Termintexte));
            return;
        case 4:
            return Fokus();
        case 5:
            return Taste();
        case 6:
            return Klick(Finden(form, Eines<const char *>({"DatumD", "Zeitd"})));
        default:
            return IstListe() ? EreignisDerListe() : EreignisDesNeuen();
        }
    }

    void Taste()
    {
        QWidget *wo = QApplication::focusWidget();
        const bool knopf = qobject_cast<QPushButton *>(wo); // Enter would press it
        QTest::keyClick(
            wo, Eines<Qt::Key>({knopf ? Qt::Key_Tab : Qt::Key_Return, Qt::Key_Tab, Qt::Key_PageUp,
                                Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Up}));
    }

    void SlotÄndern()
    {
        const int i = 1 + Zufällig(20);
        if (!MDiener(i)->isVisible())
            return;
        Setzen(i, Eines(Slottexte).c_str());
        if (Zufällig(2))
            MDiener(i)->setFocus();
    }

    void MesseÄndern()
    {
        Kombo("Messen")->setFocus();
        if (Zufällig(3))
            Kombo("Messen")->setCurrentIndex(Zufällig(Messe.Anzahl));
        else
            MesseSetzen(Eines(Messentexte));
        if (Zufällig(2))
            Fokus();
    }

    void Fokus()
    {
        const auto namen = Eines<const char *>(
            {"Messen", "DatumD", "Zeitd", "MDiener1", "MDV1", "MDiener2", "MDiener4", "MDiener20"});
        if (Finden(form, namen)->isVisible())
            Finden(form, namen)->setFocus();
        else
            Finden(form, knopf)->setFocus();
    }

    void EreignisDerListe()
    {
        Antworten = {Zufällig(4) == 0};
        switch (Zufällig(5)) {
        case 0:
            return Drücken(Eines<const char *>({"Plus", "Minus"}));
        case 1:
            return Drehen("DatensatzWechsel", Eines<const char *>({"auf", "ab"}));
        case 2:
            return Eingeben("Index", Eines<const char *>({"0", "1", "3", "7", "8", "9", "300", "-1",
                                                          "", "abc", "40000"}));
        case 3:
            if (Zufällig(4) == 0)
                Drücken("Löschen");
            return;
        default:
            Messe.Dienerzahl[Zufällig(5)] = Zufällig(22); // from another form
            Zeigen(andere);
            return Zeigen(form);
        }
    }

    void EreignisDesNeuen() { Drücken("Anfügen"); }

    void Prüfen(int schritt)
    {
        SCOPED_TRACE(schritt);
        const int zeilen = Zeilen();
        for (int i = zeilen + 1; i <= 20; ++i)
            ASSERT_EQ(Gewählt(i) + Name(i), "|") << i;
        ASSERT_GE(MesseDienerFest.Anzahl, 1);
        ASSERT_LE(MesseDienerFest.Anzahl, 200);
        if (IstListe()) {
            const int k = MesseDienerFest.Cursor;
            ASSERT_GE(k, 0);
            ASSERT_LE(k, MesseDienerFest.Anzahl);
            ASSERT_EQ(zeilen, std::min<int>(MesseDienerFest.Index[k], 20));
            for (int i = 1; i <= 20; ++i)
                ASSERT_EQ(Dienst(i), MesseDienerFest.Dienst[k][i]) << i;
        } else {
            ASSERT_GE(MesseDienerFest.Anzahl, anzahl);
            anzahl = MesseDienerFest.Anzahl;
        }
        for (const Text &meldung : GezeigteMeldungen)
            ASSERT_TRUE(meldung == Fehleingabe || meldung == Unbekannt ||
                        meldung == "Lege keinen doppelten Datensatz an")
                << meldung;
        GezeigteMeldungen.clear();
    }

    int anzahl = 0;
    std::mt19937 zufall{7};
    QWidget *andere = new QWidget;
    const std::vector<Text> Slottexte = {
        "",          " ",          ",",          "Niemand,Nina", "Fremd,Kim",        "Abel,Kim",
        "Bauer,Kim", "Conrad,Kim", "Zoller,Kim", "Agnes,Gruppe", "Tarzisius,Gruppe", ",Gruppe",
        "ohne Komma"};
    const std::vector<const char *> Termintexte = {"",         "abc",        "00:00:00",
                                                   "1.2.27",   "25.11.2026", "8:00",
                                                   "08:00:00", "31.02.2027", "24.11.2026"};
    const std::vector<const char *> Messentexte = {"",
                                                   "abc",
                                                   "00:00:00,00:00:00",
                                                   "22.11.2026,10:00:00",
                                                   "25.11.2026,08:00:00",
                                                   "01.01.2030,08:00:00"};
};

INSTANTIATE_TEST_SUITE_P(Dialoge, LaufZuordnungenFormTest, BeideDialoge(), Dialogname);

TEST_P(LaufZuordnungenFormTest, SchirmUndTabelleStimmenNachJedemEreignis)
{
    if (!IstListe())
        knopf = "Anfügen";
    IstListe() ? ListeÖffnen() : NeuÖffnen();
    for (int schritt = 0; schritt < Schritte && !HasFatalFailure(); ++schritt) {
        Ereignis();
        Prüfen(schritt);
    }
    form->close();
    EXPECT_EQ(GestellteFragen.back().Wortlaut, "Übertragen in die Messenliste?");
}

} // namespace
} // namespace altardienst

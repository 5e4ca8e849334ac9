// The settings: start date and length of the plan period.
#include "settings/Konfigurationsstand.h"

#include "core/Umwandlung.h"

namespace altardienst {
namespace {

/// Today is Saturday, 21.11.2026.
class KonfigurationZeitraumFormTest : public Konfigurationsstand {
  protected:
    /// "date weekday, days, last day weekday" as the form shows them.
    Text Zeitraum() const
    {
        return Zeigt("Datumsen") + " " + Zeigt("tagi") + ", " + Zeigt("tagilein") + ", " +
               Zeigt("Endet") + " " + Zeigt("Dayig");
    }
    Text DatumEingeben(const char *text) const
    {
        Einfügen("Datumsen", text);
        Taste("Datumsen", Qt::Key_Return);
        return Zeigt("Datumsen");
    }
    Text TageEingeben(const char *text) const
    {
        Einfügen("tagilein", text);
        Taste("tagilein", Qt::Key_Return);
        return Zeigt("tagilein");
    }
    Text TageVerlassen(const char *text) const
    {
        Einfügen("tagilein", text);
        Verlassen();
        return Zeigt("tagilein");
    }
    void EndetAm(int tage) const
    {
        EXPECT_EQ(Zeigt("Endet"), KurzesDatum(Konfig.StartDatum + tage));
        EXPECT_EQ(Zeigt("Dayig"), WochentagName(Konfig.StartDatum + tage));
    }
};

TEST_F(KonfigurationZeitraumFormTest, ÖffnetMitDemZeitraum)
{
    Konfig.Tage = 29;
    Öffnen();
    EXPECT_EQ(Zeitraum(), "28.11.2026 Samstag, 29, 27.12.2026 Sonntag");
    EXPECT_EQ(Konfig.StartDatum, Heute + 7);
}

TEST_F(KonfigurationZeitraumFormTest, EinStartInDerVergangenheitWirdBeimÖffnenHeute)
{
    for (const Datum start : {Heute - 1, 0.0}) {
        Konfig.StartDatum = start;
        Öffnen();
        EXPECT_EQ(Zeitraum(), "21.11.2026 Samstag, 28, 19.12.2026 Samstag");
        EXPECT_EQ(Konfig.StartDatum, Heute);
    }
}

TEST_F(KonfigurationZeitraumFormTest, EnterBerechnetDenZeitraum)
{
    Öffnen();
    EXPECT_EQ(DatumEingeben("1/12/27"), "01.12.2027");
    EXPECT_EQ(Zeitraum(), "01.12.2027 Mittwoch, 28, 29.12.2027 Mittwoch");
    EXPECT_EQ(Konfig.StartDatum, DatumAus({2027, 12, 1}));
    EXPECT_EQ(DatumEingeben("20.11.2026"), "21.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Heute);
    EXPECT_EQ(DatumEingeben("21.11.2026"), "21.11.2026");
    EXPECT_EQ(DatumEingeben("22.11.2026"), "22.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Heute + 1);
    EXPECT_EQ(DatumEingeben("1.12.2026 14:30"), "01.12.2026");
    EXPECT_EQ(Konfig.StartDatum, DatumAus({2026, 12, 1}));
    EXPECT_EQ(DatumEingeben("9:00:00"), "21.11.2026"); // a time has no day
}

TEST_F(KonfigurationZeitraumFormTest, OhneEnterBleibtDerStart)
{
    Öffnen();
    Einfügen("Datumsen", "1.1.2020");
    EXPECT_EQ(Zeigt("tagi"), "Samstag");
    Verlassen();
    EXPECT_EQ(Zeigt("Datumsen"), "1.1.2020");
    form->close();
    EXPECT_EQ(Konfig.StartDatum, Heute + 7);
}

TEST_F(KonfigurationZeitraumFormTest, WasKeinDatumIstBleibtStehen)
{
    Öffnen();
    for (const char *text : {"am Fest", "40000", "-1", "31.2.2027", "1.12."}) {
        EXPECT_EQ(DatumEingeben(text), text);
        Drehen("SpinButton1", "auf");
        EXPECT_EQ(Zeigt("Datumsen"), text);
        EXPECT_TRUE(Finden("Datumsen")->hasFocus());
    }
    EXPECT_EQ(DatumEingeben("😀\n"), "? ");
    Leeren("Datumsen");
    Taste("Datumsen", Qt::Key_Return);
    EXPECT_EQ(Zeitraum(), " Samstag, 28, 26.12.2026 Samstag");
    EXPECT_EQ(Konfig.StartDatum, Heute + 7);
    EXPECT_EQ(TageEingeben("30"), "30"); // is kept, though there is nothing to count from
    EXPECT_EQ(Konfig.Tage, 30);
    EXPECT_EQ(Zeigt("Endet"), "26.12.2026");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KonfigurationZeitraumFormTest, DieWochentageVonSonntagBisSamstag)
{
    Öffnen();
    for (const char *tag :
         {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"}) {
        Drehen("SpinButton1", "auf");
        EXPECT_EQ(Zeigt("tagi"), tag);
        EXPECT_EQ(Zeigt("Dayig"), tag); // 28 days on
    }
    EXPECT_EQ(Zeitraum(), "05.12.2026 Samstag, 28, 02.01.2027 Samstag");
    EXPECT_EQ(Konfig.StartDatum, DatumAus({2026, 12, 5}));
    Drehen("SpinButton1", "ab");
    EXPECT_EQ(Zeitraum(), "04.12.2026 Freitag, 28, 01.01.2027 Freitag");
    EXPECT_TRUE(Finden("Datumsen")->hasFocus());
}

TEST_F(KonfigurationZeitraumFormTest, DerDrehknopfBleibtBeiHeute)
{
    Öffnen();
    DatumEingeben("22.11.2026");
    for (int mal = 0; mal < 3; ++mal)
        Drehen("SpinButton1", "ab");
    EXPECT_EQ(Zeitraum(), "21.11.2026 Samstag, 28, 19.12.2026 Samstag");
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(KonfigurationZeitraumFormTest, EnterBegrenztDieTageAufHundertachtzig)
{
    Öffnen();
    const std::pair<const char *, int> fälle[] = {{"6", 7},     {"7", 7},     {"8", 8},
                                                  {"120", 120}, {"121", 121}, {"180", 180},
                                                  {"181", 180}, {"-1", 7},    {"40000", 180}};
    for (const auto &[eingabe, tage] : fälle) {
        EXPECT_EQ(TageEingeben(eingabe), std::to_string(tage)) << eingabe;
        EXPECT_EQ(Konfig.Tage, tage) << eingabe;
        EndetAm(tage);
    }
}

TEST_F(KonfigurationZeitraumFormTest, VerlassenBegrenztDieTageAufHundertzwanzig)
{
    Öffnen();
    const std::pair<const char *, int> fälle[] = {{"6", 7},     {"7", 7},      {"119", 119},
                                                  {"120", 120}, {"121", 120},  {"180", 120},
                                                  {"-1", 7},    {"40000", 120}};
    for (const auto &[eingabe, tage] : fälle) {
        EXPECT_EQ(TageVerlassen(eingabe), std::to_string(tage)) << eingabe;
        EXPECT_EQ(Konfig.Tage, tage) << eingabe;
        EndetAm(tage);
    }
}

TEST_F(KonfigurationZeitraumFormTest, HundertfünfzigÜberlebtEnterUndFälltBeimVerlassen)
{
    Öffnen();
    EXPECT_EQ(TageEingeben("150"), "150");
    EXPECT_EQ(Konfig.Tage, 150);
    Verlassen();
    EXPECT_EQ(Zeigt("tagilein"), "120");
    EXPECT_EQ(Konfig.Tage, 120);
    EndetAm(120);
}

TEST_F(KonfigurationZeitraumFormTest, BeimTippenÄndertSichNochNichts)
{
    Öffnen();
    Einfügen("tagilein", "500");
    EXPECT_EQ(Zeitraum(), "28.11.2026 Samstag, 500, 26.12.2026 Samstag");
    EXPECT_EQ(Konfig.Tage, 28);
}

TEST_F(KonfigurationZeitraumFormTest, DerDrehknopfDerTageBegrenztNicht)
{
    Öffnen();
    TageVerlassen("7");
    Drehen("Änderung1", "ab");
    EXPECT_EQ(Zeigt("tagilein"), "6");
    EXPECT_EQ(Konfig.Tage, 6);
    EndetAm(6);
    EXPECT_TRUE(Finden("tagilein")->hasFocus());
    Verlassen();
    EXPECT_EQ(Zeigt("tagilein"), "7");
    EXPECT_EQ(Konfig.Tage, 7);
    EndetAm(7);
    TageVerlassen("120");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Konfig.Tage, 121);
    EndetAm(121);
    Taste("tagilein", Qt::Key_Return);
    EXPECT_EQ(Konfig.Tage, 121);
    Verlassen();
    EXPECT_EQ(Konfig.Tage, 120);
}

// It also computes the period, so a date that was only typed counts.
TEST_F(KonfigurationZeitraumFormTest, DerDrehknopfDerTageNimmtDasGetippteDatum)
{
    Öffnen();
    Einfügen("Datumsen", "1.12.27");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeitraum(), "01.12.2027 Mittwoch, 29, 30.12.2027 Donnerstag");
    EXPECT_EQ(Konfig.StartDatum, DatumAus({2027, 12, 1}));
}

// Entering the days shows the end based on the date in its box, but does not store that date.
TEST_F(KonfigurationZeitraumFormTest, DieTageNehmenDasGetippteDatumNichtAn)
{
    Öffnen();
    const auto nurDasEnde = [&] {
        EXPECT_EQ(Zeitraum(), "1.12.27 Samstag, 30, 31.12.2027 Freitag");
        EXPECT_EQ(Konfig.StartDatum, Heute + 7);
        EXPECT_EQ(Konfig.Tage, 30);
    };
    Einfügen("Datumsen", "1.12.27");
    TageEingeben("30");
    nurDasEnde();
    Verlassen();
    nurDasEnde();
}

TEST_F(KonfigurationZeitraumFormTest, DerDrehknopfDerTageBeiTextDerKeineZahlIst)
{
    Öffnen();
    for (const char *text : {"", "x"}) {
        if (*text)
            Einfügen("tagilein", text);
        else
            Leeren("tagilein");
        Drehen("Änderung1", "auf");
        EXPECT_EQ(Zeitraum(), Text("28.11.2026 Samstag, ") + text + ", 26.12.2026 Samstag");
        EXPECT_EQ(Konfig.Tage, 28) << text;
        EXPECT_TRUE(Finden("tagilein")->hasFocus()) << text;
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KonfigurationZeitraumFormTest, VorDemDrehenDerTageWirdDieBoxVerlassenUndBegrenzt)
{
    Öffnen();
    for (const char *text : {"32767", "40000"}) {
        Einfügen("tagilein", text);
        Drehen("Änderung1", "auf");
        EXPECT_EQ(Zeigt("tagilein"), "121") << text;
        EXPECT_EQ(Konfig.Tage, 121) << text;
        EXPECT_TRUE(Finden("tagilein")->hasFocus()) << text;
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

// The box goes on counting; the setting has no room for the number.
TEST_F(KonfigurationZeitraumFormTest, ÜberDieGrößteZahlDrehtNurDieBox)
{
    Konfig.Tage = 32767;
    Öffnen();
    const Text ende = Zeigt("Endet");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("tagilein"), "32768");
    EXPECT_EQ(Konfig.Tage, 32767);
    EXPECT_EQ(Zeigt("Endet"), ende);
    EXPECT_TRUE(Finden("tagilein")->hasFocus());
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Verlassen();
    EXPECT_EQ(Konfig.Tage, 120);
}

TEST_F(KonfigurationZeitraumFormTest, EinBruchVonTagenBleibtBeimDrehenEinBruch)
{
    Öffnen();
    TageEingeben("20,5");
    EXPECT_EQ(Konfig.Tage, 20);
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("tagilein"), "21,5");
    EXPECT_EQ(Konfig.Tage, 22);
}

TEST_F(KonfigurationZeitraumFormTest, BeimSchließenWirdNichtsBegrenzt)
{
    Öffnen();
    TageVerlassen("7");
    Drehen("Änderung1", "ab");
    form->close();
    EXPECT_TRUE(Warten([&] { return form.isNull(); }));
    EXPECT_EQ(Konfig.Tage, 6);
}

} // namespace
} // namespace altardienst

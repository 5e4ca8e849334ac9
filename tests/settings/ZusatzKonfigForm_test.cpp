// The settings for the proposed start date and for the services that are set by hand.
#include "settings/ZusatzKonfigForm.h"

#include "Formstand.h"
#include "Heimkehr.h"

#include <QGroupBox>

#include <set>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class ZusatzKonfigFormTest : public Formstand<ZusatzKonfigForm> {
  protected:
    void Öffnen()
    {
        delete form;
        form = new ZusatzKonfigForm;
        form->setAttribute(Qt::WA_DeleteOnClose);
        Zeigen(form);
    }
    Text Wochen(const char *text) const
    {
        Einsetzen("WOBO", text);
        return Zeigt("WOBO");
    }

    static constexpr std::array Tage = {"OO1", "OO2", "OO3", "OO4", "OO5", "OO6", "OO7"};
};

TEST_F(ZusatzKonfigFormTest, JedesControlHatSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "ZusatzKonfig");
    EXPECT_EQ(form->windowTitle(), "Zusätzliche Konfiguration");
    EXPECT_EQ(Zeigt("Wer"), "Weihrauch");
    EXPECT_EQ(Zeigt("Kr"), "Kreuzträger");
    Liste tage;
    for (const char *tag : Tage)
        tage.push_back(Zeigt(tag));
    EXPECT_EQ(tage, (Liste{"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag",
                           "Samstag"}));
    std::set<Text> worte;
    for (const QLabel *label : form->findChildren<QLabel *>()) {
        worte.insert(Zeigt(label));
        if (Zeigt(label).starts_with("Wieviel")) {
            EXPECT_EQ(label->buddy(), Finden("WOBO"));
        }
    }
    EXPECT_EQ(worte,
              (std::set<Text>{"Folgende Dienste können beim angehackelten Kästchen manuell im "
                              "Altardienst gesetzt werden.",
                              "Wieviel Wochen im voraus soll Anfangsdatum beim Programmstart "
                              "gesetzt werden?",
                              "Wochen"}));
    EXPECT_EQ(form->findChild<QGroupBox *>()->title(),
              "Mit welchem Wochentag bei Aufruf des Programmes beginnen?");
}

TEST_F(ZusatzKonfigFormTest, ÖffnetMitDenEinstellungenUndÄndertSieNicht)
{
    for (const auto &[weihrauch, kreuz] : {std::pair{0, 0}, {0, 1}, {1, 0}, {1, 1}}) {
        Konfig.ManuellWeihrauch = weihrauch;
        Konfig.ManuellKreuzträger = kreuz;
        Konfig.VorlaufWochen = 12;
        Öffnen();
        EXPECT_EQ(Angekreuzt("Wer"), weihrauch == 1);
        EXPECT_EQ(Angekreuzt("Kr"), kreuz == 1);
        EXPECT_EQ(Zeigt("WOBO"), "12");
        EXPECT_EQ(Konfig.ManuellWeihrauch, weihrauch);
        EXPECT_EQ(Konfig.ManuellKreuzträger, kreuz);
        EXPECT_EQ(Konfig.VorlaufWochen, 12);
    }
}

TEST_F(ZusatzKonfigFormTest, JedeBoxSchreibtIhrenDienst)
{
    Öffnen();
    Ankreuzen("Wer");
    EXPECT_EQ(Konfig.ManuellWeihrauch, 1);
    EXPECT_EQ(Konfig.ManuellKreuzträger, 0);
    Ankreuzen("Kr");
    EXPECT_EQ(Konfig.ManuellKreuzträger, 1);
    Ankreuzen("Wer");
    EXPECT_EQ(Konfig.ManuellWeihrauch, 0);
    EXPECT_EQ(Konfig.ManuellKreuzträger, 1);
    for (const auto &[box, wert] :
         {std::pair{"Wer", &Konfig.ManuellWeihrauch}, {"Kr", &Konfig.ManuellKreuzträger}}) {
        const int vorher = *wert;
        FokusAuf(box);
        QTest::keyClick(Finden(box), Qt::Key_Space);
        EXPECT_EQ(*wert, 1 - vorher) << box;
    }
}

TEST_F(ZusatzKonfigFormTest, JederWochentagHatSeineZahl)
{
    for (int tag = 1; tag <= 7; ++tag) {
        Konfig.StartWochentag = tag;
        Öffnen();
        for (int n = 1; n <= 7; ++n)
            EXPECT_EQ(Angekreuzt(Tage[static_cast<std::size_t>(n - 1)]), n == tag)
                << tag << " " << n;
    }
    for (int tag = 1; tag <= 7; ++tag) {
        Ankreuzen(Tage[static_cast<std::size_t>(tag - 1)]);
        EXPECT_EQ(Konfig.StartWochentag, tag);
    }
    FokusAuf("OO7");
    QTest::keyClick(Finden("OO7"), Qt::Key_Left);
    EXPECT_EQ(Konfig.StartWochentag, 6);
}

TEST_F(ZusatzKonfigFormTest, EinWochentagAußerhalbWähltKeinen)
{
    for (const int tag : {0, 8, -1}) {
        Konfig.StartWochentag = tag;
        Öffnen();
        for (const char *option : Tage)
            EXPECT_FALSE(Angekreuzt(option)) << tag;
        EXPECT_EQ(Konfig.StartWochentag, tag);
    }
}

TEST_F(ZusatzKonfigFormTest, DieWochenLiegenZwischenEinsUndZwanzig)
{
    Öffnen();
    const std::pair<const char *, int> fälle[] = {{"0", 1},   {"1", 1},   {"2", 2},      {"19", 19},
                                                  {"20", 20}, {"21", 20}, {"40000", 20}, {"-1", 1}};
    for (const auto &[eingabe, wochen] : fälle) {
        EXPECT_EQ(Wochen(eingabe), std::to_string(wochen)) << eingabe;
        EXPECT_EQ(Konfig.VorlaufWochen, wochen) << eingabe;
    }
    Wochen("9");
    for (const auto &[eingabe, zeigt] :
         {std::pair{"x", "x"}, {"", ""}, {"😀", "?"}, {"1\n2", "1 2"}}) {
        EXPECT_EQ(Wochen(eingabe), zeigt);
        Drehen("UI1", "auf");
        EXPECT_EQ(Zeigt("WOBO"), zeigt);
        EXPECT_EQ(Konfig.VorlaufWochen, 9) << eingabe;
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(ZusatzKonfigFormTest, SchonBeimÖffnenWerdenDieWochenBegrenzt)
{
    for (const auto &[wert, begrenzt] : {std::pair{0, 1}, {99, 20}}) {
        Konfig.VorlaufWochen = wert;
        Öffnen();
        EXPECT_EQ(Konfig.VorlaufWochen, begrenzt);
    }
}

TEST_F(ZusatzKonfigFormTest, DerDrehknopfBewegtDieWochenUndGibtDenFokus)
{
    Öffnen();
    Wochen("19");
    for (const auto &[richtung, wochen] :
         {std::pair{"auf", 20}, {"auf", 20}, {"ab", 19}, {"ab", 18}}) {
        FokusAuf("Ende");
        Drehen("UI1", richtung);
        EXPECT_EQ(Konfig.VorlaufWochen, wochen);
        EXPECT_TRUE(Finden("WOBO")->hasFocus());
    }
    Wochen("1");
    Drehen("UI1", "ab");
    EXPECT_EQ(Konfig.VorlaufWochen, 1);
}

TEST_F(ZusatzKonfigFormTest, EinBruchBleibtBeimDrehenEinBruch)
{
    Öffnen();
    Wochen("2,5");
    EXPECT_EQ(Konfig.VorlaufWochen, 2);
    Drehen("UI1", "auf");
    EXPECT_EQ(Zeigt("WOBO"), "3,5");
    EXPECT_EQ(Konfig.VorlaufWochen, 4);
}

TEST_F(ZusatzKonfigFormTest, EndeUndSchließenGebenDasHauptfensterZurück)
{
    GibtDasHauptfensterZurück([this] {
        Öffnen();
        return form.data();
    });
}

TEST_F(ZusatzKonfigFormTest, TabFolgtDemAugeUndPasstAufDenKleinstenBildschirm)
{
    Öffnen();
    FokusAuf("Wer");
    EXPECT_EQ(Tabfolge(form), (Liste{"Wer", "Kr", "OO1", "WOBO", "Ende"}));
    EXPECT_EQ(Stumme(form), Liste{});
    EXPECT_LE(form->width(), KleinsterBildschirm.width());
    EXPECT_LE(form->height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst

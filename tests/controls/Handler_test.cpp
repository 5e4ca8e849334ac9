// The kinds of event handlers.
#include "controls/Handler.h"

#include "Fensterstand.h"

#include <new>

namespace altardienst {
namespace {

[[noreturn]] void Scheitern()
{
    throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich);
}

[[noreturn]] void Verunglücken()
{
    throw std::logic_error("vector");
}

class HandlerTest : public Fensterstand {
  protected:
    std::vector<int> gelaufen;

    auto Schritt(int nummer)
    {
        return [this, nummer] { gelaufen.push_back(nummer); };
    }

    /// The messages so far and those that wait for the end of the event; clears them.
    std::vector<Text> Gemeldet()
    {
        QCoreApplication::processEvents();
        return std::exchange(GezeigteMeldungen, {});
    }

    const Text Folge = " Was Sie zuletzt begonnen haben, ist nicht zu Ende geführt. Die "
                       "Daten im Programm bleiben erhalten.";
    const Text Unglück = "Unerwarteter Fehler (vector)." + Folge;
};

TEST_F(HandlerTest, AbgefangenEndetStumm)
{
    Abgefangen([this] {
        gelaufen.push_back(1);
        Scheitern();
    })();
    Abgefangen(Schritt(2))();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 2}));
    EXPECT_TRUE(Gemeldet().empty());
}

TEST_F(HandlerTest, SchrittweiseÜberspringtNurWasScheitert)
{
    Schrittweise(Schritt(1), Scheitern, Schritt(2), Scheitern, Schritt(3))();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 2, 3}));
    EXPECT_TRUE(Gemeldet().empty());
}

TEST_F(HandlerTest, OffenZeigtDenFehlerUndEndet)
{
    Offen([this] {
        gelaufen.push_back(1);
        Scheitern();
    })();
    EXPECT_EQ(gelaufen, std::vector<int>{1});
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
}

TEST_F(HandlerTest, OhneFehlerZeigtOffenNichts)
{
    Offen(Schritt(1))();
    EXPECT_EQ(gelaufen, std::vector<int>{1});
    EXPECT_TRUE(Gemeldet().empty());
}

TEST_F(HandlerTest, HandlerLaufenMehrmals)
{
    auto handler = Abgefangen(Schritt(1));
    handler();
    handler();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 1}));
}

TEST_F(HandlerTest, HandlerNehmenDieWerteIhresSignals)
{
    QPushButton knopf;
    knopf.setCheckable(true);
    QObject::connect(&knopf, &QPushButton::toggled, &knopf,
                     Abgefangen([this](bool an) { gelaufen.push_back(an ? 1 : 0); }));
    QObject::connect(&knopf, &QPushButton::toggled, &knopf, Offen(Schritt(7)));
    knopf.click();
    knopf.click();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 7, 0, 7}));
}

TEST_F(HandlerTest, WasNiemandErwartetWirdVonJederArtGemeldet)
{
    const std::vector<std::function<void()>> arten = {Offen(Verunglücken), Abgefangen(Verunglücken),
                                                      Schrittweise(Schritt(1), Verunglücken)};
    for (const auto &handler : arten) {
        handler();
        EXPECT_TRUE(GezeigteMeldungen.empty()) << "only once the event is over";
        EXPECT_EQ(Gemeldet(), std::vector<Text>{Unglück});
    }
}

TEST_F(HandlerTest, WasNiemandErwartetBeendetAuchDieSchritte)
{
    Schrittweise(Schritt(1), Scheitern, Schritt(2), Verunglücken, Schritt(3), Verunglücken)();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 2}));
    EXPECT_EQ(Gemeldet(), std::vector<Text>{Unglück});
}

TEST_F(HandlerTest, JedeUrsacheHatIhreMeldungAufDeutsch)
{
    Abgefangen([] { throw std::bad_alloc(); })();
    Offen([] { throw 5; })();
    Abgefangen(Verunglücken)();
    for (int mal = 0; mal < 3; ++mal) // such as the boxes of a record, one after the other
        Abgefangen([] { throw std::bad_alloc(); })();
    EXPECT_EQ(Gemeldet(), (std::vector<Text>{"Der Arbeitsspeicher reicht nicht aus." + Folge,
                                             "Unerwarteter Fehler." + Folge, Unglück}));
    Abgefangen(Verunglücken)();
    EXPECT_EQ(Gemeldet(), std::vector<Text>{Unglück}) << "again, where it comes again";
}

TEST_F(HandlerTest, EinScheiterndeMeldungHältNichtsAuf)
{
    Meldungen.Zeigen = [](const Text &) { throw std::bad_alloc(); };
    Offen(Scheitern)();
    Gemeldet();
    Meldungen.Zeigen = [this](const Text &text) { GezeigteMeldungen.push_back(text); };
    Abgefangen(Verunglücken)();
    EXPECT_EQ(Gemeldet(), std::vector<Text>{Unglück});
}

TEST_F(HandlerTest, NebenbeiSchweigtImmer)
{
    for (void (*scheitern)() : {Scheitern, Verunglücken})
        Nebenbei([&] {
            gelaufen.push_back(1);
            scheitern();
        })();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 1}));
    EXPECT_TRUE(Gemeldet().empty());
}

} // namespace
} // namespace altardienst

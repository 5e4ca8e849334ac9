// The three kinds of event handlers.
#include "controls/Handler.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

[[noreturn]] void Scheitern()
{
    throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich);
}

class HandlerTest : public Prüfstand {
  protected:
    std::vector<int> gelaufen;

    auto Schritt(int nummer)
    {
        return [this, nummer] { gelaufen.push_back(nummer); };
    }
};

TEST_F(HandlerTest, AbgefangenEndetStumm)
{
    Abgefangen([this] {
        gelaufen.push_back(1);
        Scheitern();
    })();
    Abgefangen(Schritt(2))();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 2}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HandlerTest, SchrittweiseÜberspringtNurWasScheitert)
{
    Schrittweise(Schritt(1), Scheitern, Schritt(2), Scheitern, Schritt(3))();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 2, 3}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
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
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HandlerTest, HandlerLaufenMehrmals)
{
    auto handler = Abgefangen(Schritt(1));
    handler();
    handler();
    EXPECT_EQ(gelaufen, (std::vector<int>{1, 1}));
}

} // namespace
} // namespace altardienst

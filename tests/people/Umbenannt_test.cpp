// Who hears of a new name, and of one that is taken back.
#include "people/Umbenannt.h"

#include "Prüfstand.h"
#include "core/Sortierbefehle.h"

namespace altardienst {
namespace {

class UmbenanntTest : public Prüfstand {
  protected:
    UmbenanntTest()
    {
        for (const char *name : {"Busch", "Adler", "Clausen"}) {
            MeßdienerAnlegen("Kim", name);
            HelferAnlegen("Kim", name, "Lektor");
        }
        PersonUmbenannt = [this](const Personenname &alt, const Personenname &neu, bool helfer) {
            Gehört.push_back(alt.Nachname + " > " + neu.Nachname + (helfer ? " (Helfer)" : ""));
        };
    }
    ~UmbenanntTest() override { PersonUmbenannt = nullptr; }

    /// As the form does.
    void Umbenennen(int i, const Text &neu)
    {
        const Personenname alt{Meßdiener.Vorname[i], Meßdiener.Nachname[i]};
        Meßdiener.Nachname[i] = neu;
        UmbenennungMelden(alt, {Meßdiener.Vorname[i], neu}, false);
        Gehört.clear();
    }

    /// What is heard when `tun` is taken back or repeated.
    std::vector<Text> Beim(const std::function<void()> &tun)
    {
        const auto danach = UmbenennungenVerfolgen();
        tun();
        if (danach)
            danach();
        return Gehört;
    }

    std::vector<Text> Gehört;
};

using Liste = std::vector<Text>;

TEST_F(UmbenanntTest, NurEinGanzerAndererNameWirdGemeldet)
{
    UmbenennungMelden({"Kim", "Adler"}, {"Kim", "Adler"}, false);
    UmbenennungMelden({"", ""}, {"Kim", "Neu"}, false);
    UmbenennungMelden({"Kim", "Adler"}, {"", ""}, false);
    UmbenennungMelden({"Kim", "Adler"}, {"Kim", ""}, true);
    EXPECT_TRUE(Gehört.empty());
    UmbenennungMelden({"Kim", "Adler"}, {"Kim", "Amsel"}, true);
    EXPECT_EQ(Gehört, Liste{"Adler > Amsel (Helfer)"});
}

TEST_F(UmbenanntTest, ZurückUndVorWirdGehört)
{
    Umbenennen(0, "Birke");
    EXPECT_EQ(Beim([] { Meßdiener.Nachname[0] = "Busch"; }), Liste{"Birke > Busch"});
    Gehört.clear();
    EXPECT_EQ(Beim([] { Meßdiener.Nachname[0] = "Birke"; }), Liste{"Busch > Birke"});
}

TEST_F(UmbenanntTest, MehrereUmbenennungenInEinemSchrittSindEine)
{
    Umbenennen(0, "Birke");
    Umbenennen(0, "Buche");
    EXPECT_EQ(Beim([] { Meßdiener.Nachname[0] = "Busch"; }), Liste{"Buche > Busch"});
}

TEST_F(UmbenanntTest, WasNurWandertIstKeineUmbenennung)
{
    Umbenennen(0, "Birke");
    Umbenennen(1, "Busch"); // the name that has become free
    EXPECT_EQ(Beim([] { std::swap(Meßdiener.Nachname[0], Meßdiener.Nachname[1]); }), Liste{});
    EXPECT_EQ(Beim(MeßdienerNachNachnameSortieren), Liste{});
}

TEST_F(UmbenanntTest, WerNieUmbenanntWurdeIstEinAnderer)
{
    Umbenennen(0, "Birke");
    EXPECT_EQ(Beim([] { Meßdiener.Nachname[2] = "Dorn"; }), Liste{}) << "another record loaded";
    EXPECT_EQ(Beim([] { Helfer.Nachname[0] = "Birke"; }), Liste{}) << "a helper is somebody else";
}

TEST_F(UmbenanntTest, OhneUmbenennungOderHörerIstNichtsZuTun)
{
    Umbenennen(0, "Birke");
    PersonUmbenannt = nullptr;
    EXPECT_FALSE(UmbenennungenVerfolgen());
    UmbenennungMelden({"Kim", "Adler"}, {"Kim", "Amsel"}, false); // nobody hears it
}

} // namespace
} // namespace altardienst

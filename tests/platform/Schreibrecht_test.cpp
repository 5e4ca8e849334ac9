// Whether the user may write in a directory, found out by trying.
#include "platform/Schreibrecht.h"

#include "Prüfstand.h"

#include <cstdlib>
#include <stdexcept>
#ifndef _WIN32
#include <unistd.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;

using SchreibrechtTest = Prüfstand;

TEST_F(SchreibrechtTest, VomVersuchBleibtNichtsZurück)
{
    EXPECT_TRUE(Schreibrecht.Besteht(Festplatte));
    EXPECT_TRUE(fs::is_empty(Festplatte));
}

TEST_F(SchreibrechtTest, WoEsKeinVerzeichnisGibtBestehtKeins)
{
    EXPECT_FALSE(Schreibrecht.Besteht(Festplatte / "fehlt"));
    EXPECT_FALSE(fs::exists(Festplatte / "fehlt"));
    DateiSchreiben(Festplatte / "Datei", "bleibt");
    EXPECT_FALSE(Schreibrecht.Besteht(Festplatte / "Datei"));
    EXPECT_EQ(DateiLesen(Festplatte / "Datei"), "bleibt");
}

#ifndef _WIN32
/// While it stands, the superuser, who may write everywhere, is an ordinary user.
class AlsBenutzer {
  public:
    AlsBenutzer() : vorher(geteuid())
    {
        constexpr uid_t Niemand = 65534;
        if (vorher == 0 && seteuid(Niemand) != 0)
            throw std::runtime_error("the rights of the superuser could not be put aside");
    }
    ~AlsBenutzer()
    {
        if (vorher == 0 && seteuid(vorher) != 0)
            std::abort(); // the tests after this one would run without their rights
    }
    AlsBenutzer(const AlsBenutzer &) = delete;
    AlsBenutzer &operator=(const AlsBenutzer &) = delete;

  private:
    uid_t vorher;
};

TEST_F(SchreibrechtTest, WasDasSystemVerbietetBestehtNicht)
{
    fs::permissions(Festplatte, fs::perms::owner_read | fs::perms::owner_exec |
                                    fs::perms::others_read | fs::perms::others_exec);
    {
        const AlsBenutzer benutzer;
        EXPECT_FALSE(Schreibrecht.Besteht(Festplatte));
    }
    fs::permissions(Festplatte, fs::perms::owner_all);
    EXPECT_TRUE(Schreibrecht.Besteht(Festplatte));
}
#endif

} // namespace
} // namespace altardienst

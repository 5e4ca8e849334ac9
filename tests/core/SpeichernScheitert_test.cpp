// A save that the file system refuses. File permissions do not bind the superuser, so each case
// runs in a child process that has given up its privileges.
#include "core/Allgemein.h"

#include "Prüfstand.h"
#include "core/Felderlisten.h"

#ifndef _WIN32

#include <csignal>
#include <functional>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class SpeichernScheitert : public Prüfstand {
  protected:
    SpeichernScheitert()
    {
        AufFestplatteSpeichern();
        // The child runs as another user, so everyone may write.
        for (fs::path pfad : {Festplatte.parent_path(), Festplatte})
            fs::permissions(pfad, fs::perms::all);
        for (const auto &eintrag : fs::directory_iterator(Festplatte)) {
            fs::permissions(eintrag.path(), fs::perms::all);
            EXPECT_TRUE(geteuid() != 0 || chown(eintrag.path().c_str(), Niemand, Niemand) == 0);
        }
        Konfig.Gemeinde = "neu";
        Gruppe.Bezeichnung[0] = "neu";
    }

    ~SpeichernScheitert() override { fs::permissions(Festplatte, fs::perms::all); }

    /// The failure number of a save that runs in a child after `vorher`.
    static int Speichern(const std::function<void()> &vorher)
    {
        pid_t kind = fork();
        if (kind == 0) {
            vorher();
            if (geteuid() == 0 && (setegid(Niemand) != 0 || seteuid(Niemand) != 0))
                _exit(99);
            _exit(NummerDesFehlers([] { AufFestplatteSpeichern(); }));
        }
        int ausgang = 0;
        waitpid(kind, &ausgang, 0);
        EXPECT_TRUE(WIFEXITED(ausgang));
        return WEXITSTATUS(ausgang);
    }

    static constexpr int Niemand = 65534;
};

TEST_F(SpeichernScheitert, OhneHindernisGelingtEs)
{
    EXPECT_EQ(Speichern([] {}), 0);
    EXPECT_EQ(DateiLesen(Festplatte / "Konfig.cfg"), InhaltVon(DateiKonfig));
}

TEST_F(SpeichernScheitert, SchreibschutzWirdAufgehoben)
{
    fs::permissions(Festplatte / "Gruppen.dat", fs::perms::owner_read);
    EXPECT_EQ(Speichern([] {}), 0);
    EXPECT_EQ(DateiLesen(Festplatte / "Gruppen.dat"), InhaltVon(DateiGruppe));
}

TEST_F(SpeichernScheitert, SchreibschutzBleibtBeiAndererGroßschreibung)
{
    std::string zuvor = DateiLesen(Festplatte / "Gruppen.dat");
    fs::rename(Festplatte / "Gruppen.dat", Festplatte / "GRUPPEN.DAT");
    fs::permissions(Festplatte / "GRUPPEN.DAT", fs::perms::owner_read);
    EXPECT_EQ(Speichern([] {}), 75);
    EXPECT_EQ(DateiLesen(Festplatte / "GRUPPEN.DAT"), zuvor);
    EXPECT_EQ(DateiLesen(Festplatte / "Konfig.cfg"), InhaltVon(DateiKonfig))
        << "the files before it are written";
    EXPECT_FALSE(fs::exists(Festplatte / "Gruppen.dat"));
}

TEST_F(SpeichernScheitert, VerzeichnisOhneSchreibrecht)
{
    fs::remove(Festplatte / "Helfer.dat");
    fs::permissions(Festplatte, fs::perms::owner_read | fs::perms::owner_exec |
                                    fs::perms::others_read | fs::perms::others_exec);
    EXPECT_EQ(Speichern([] {}), 75);
    EXPECT_EQ(DateiLesen(Festplatte / "Gruppen.dat"), InhaltVon(DateiGruppe))
        << "files that are there can still be written";
    EXPECT_FALSE(fs::exists(Festplatte / "Helfer.dat"));
}

TEST_F(SpeichernScheitert, VerzeichnisFehlt)
{
    fs::remove_all(Festplatte);
    EXPECT_EQ(Speichern([] {}), 76);
    fs::create_directory(Festplatte);
}

TEST_F(SpeichernScheitert, DatenträgerVoll)
{
    EXPECT_EQ(Speichern([] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  rlimit grenze{20000, 20000};
                  setrlimit(RLIMIT_FSIZE, &grenze);
              }),
              61);
    EXPECT_EQ(DateiLesen(Festplatte / "Konfig.cfg"), InhaltVon(DateiKonfig));
    EXPECT_EQ(DateiLesen(Festplatte / "Standard.dat"), InhaltVon(DateiStandardmesse));
    EXPECT_EQ(DateiLesen(Festplatte / PfadAus("Meßdiener.dat")),
              InhaltVon(DateiMeßdiener).substr(0, 20000))
        << "rewritten in place";
    EXPECT_EQ(ZeilenVon(DateiLesen(Festplatte / "Gruppen.dat"))[2], "")
        << "the files after it stay as they were";
}

} // namespace
} // namespace altardienst

#endif

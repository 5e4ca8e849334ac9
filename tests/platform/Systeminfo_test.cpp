// Where the platform's system information tool is looked for.
#include "platform/Systeminfo.h"

#include "Prüfstand.h"

#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// A registry and a search path that hold what a test puts there.
class SysteminfoTest : public Prüfstand {
  protected:
    SysteminfoTest() : zuvor(Systeminfo)
    {
        Systeminfo.Registrierung = [this](const char *schlüssel,
                                          const char *wert) -> std::optional<Text> {
            const auto gefunden = werte.find(Text(schlüssel) + "|" + wert);
            if (gefunden == werte.end())
                return std::nullopt;
            return gefunden->second;
        };
        Systeminfo.ImSuchpfad = [this](const char *name) -> std::optional<fs::path> {
            if (installiert != name)
                return std::nullopt;
            return fs::path("/usr/bin") / name;
        };
    }

    ~SysteminfoTest() override { Systeminfo = zuvor; }

    std::map<Text, Text> werte;
    Text installiert;
    SysteminfoDienst zuvor;

    const Text pfad = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH";
    const Text ort = "SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO";
};

TEST_F(SysteminfoTest, OhneAllesGibtEsKeinProgramm)
{
    EXPECT_EQ(SysteminfoProgramm(), std::nullopt);
}

TEST_F(SysteminfoTest, DerEingetrageneProgrammpfadGehtVor)
{
    werte = {{pfad, "x.exe"}, {ort, TextVon(Festplatte)}};
    installiert = "hardinfo";
    EXPECT_EQ(SysteminfoProgramm(), "x.exe");
    werte[pfad] = "";
    EXPECT_EQ(SysteminfoProgramm(), "") << "an empty text counts as found";
}

TEST_F(SysteminfoTest, DerEingetrageneOrtGiltWennDieDateiDortIst)
{
    werte = {{ort, TextVon(Festplatte)}};
    EXPECT_EQ(SysteminfoProgramm(), std::nullopt);
    DateiSchreiben(Festplatte / "msinfo32.exe", "");
    EXPECT_EQ(SysteminfoProgramm(), PfadAus(TextVon(Festplatte) + "\\MSINFO32.EXE"));
}

TEST_F(SysteminfoTest, OhneEintragDasErsteInstallierteWerkzeug)
{
#ifdef _WIN32
    const std::vector<Text> werkzeuge = {"msinfo32.exe", "taskmgr.exe"};
#else
    const std::vector<Text> werkzeuge = {"hardinfo", "gnome-system-monitor"};
#endif
    for (const Text &werkzeug : werkzeuge) {
        installiert = werkzeug;
        EXPECT_EQ(SysteminfoProgramm(), fs::path("/usr/bin") / werkzeug);
    }
}

TEST_F(SysteminfoTest, EinDoppelwortWirdHexadezimalDasHöchsteByteZuerst)
{
    EXPECT_EQ(RegistrierterText(4, {"\x78\x56\x34\x12", 4}), "&h12345678");
    EXPECT_EQ(RegistrierterText(4, {"\x0a\x00\xff\x00", 4}), "&h00FF000A");
}

TEST_F(SysteminfoTest, EinTextVerliertSeineNull)
{
    EXPECT_EQ(RegistrierterText(1, {"c:\\x\0", 5}), "c:\\x");
    EXPECT_EQ(RegistrierterText(1, "c:\\x"), "c:\\x");
    EXPECT_EQ(RegistrierterText(1, ""), "");
    EXPECT_EQ(RegistrierterText(1, {"\0", 1}), "");
}

#ifdef _WIN32

TEST_F(SysteminfoTest, DieRegistrierungUndDerSuchpfadDesSystems)
{
    EXPECT_NE(
        zuvor.Registrierung("SOFTWARE\\Microsoft\\Windows\\CurrentVersion", "ProgramFilesDir"),
        std::nullopt);
    EXPECT_EQ(zuvor.Registrierung("SOFTWARE\\Microsoft", "Altardienst"), std::nullopt);
    EXPECT_EQ(zuvor.Registrierung("SOFTWARE\\Gibt es nicht", "x"), std::nullopt);
    const auto programm = zuvor.ImSuchpfad("explorer.exe");
    ASSERT_TRUE(programm);
    EXPECT_TRUE(fs::is_regular_file(*programm));
    EXPECT_EQ(zuvor.ImSuchpfad("gibt es nicht.exe"), std::nullopt);
}

#else

TEST_F(SysteminfoTest, ImSuchpfadZähltNurWasAusführbarIst)
{
    const Text alt = std::getenv("PATH");
    setenv("PATH", (TextVon(Festplatte) + "::" + TextVon(Diskette)).c_str(), 1);
    DateiSchreiben(Festplatte / "werkzeug", "");
    EXPECT_EQ(zuvor.ImSuchpfad("werkzeug"), std::nullopt);
    fs::create_directory(Festplatte / "ordner");
    EXPECT_EQ(zuvor.ImSuchpfad("ordner"), std::nullopt);
    DateiSchreiben(Diskette / "werkzeug", "");
    fs::permissions(Diskette / "werkzeug", fs::perms(0755));
    EXPECT_EQ(zuvor.ImSuchpfad("werkzeug"), Diskette / "werkzeug");
    EXPECT_EQ(zuvor.ImSuchpfad("anderes"), std::nullopt);
    EXPECT_EQ(zuvor.Registrierung("SOFTWARE", "PATH"), std::nullopt);
    setenv("PATH", alt.c_str(), 1);
}

#endif

} // namespace
} // namespace altardienst

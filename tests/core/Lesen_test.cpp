// What the readers do beyond taking line after line: where each checks for the end of its file,
// what they substitute for empty flags, and the bounds of the scales.
#include "core/Dateien.h"

#include "Prüfstand.h"
#include "core/Felderlisten.h"

#include <bit>

namespace altardienst {
namespace {

class Lesen : public Prüfstand {};

/// The first `anzahl` lines of the content.
std::string ErsteZeilen(const std::string &inhalt, int anzahl)
{
    std::size_t bis = 0;
    for (; anzahl > 0; --anzahl)
        bis = inhalt.find('\n', bis) + 1;
    return inhalt.substr(0, bis);
}

/// The content with line `nr` (from 1) replaced.
std::string MitZeile(const std::string &inhalt, int nr, const std::string &zeile)
{
    std::string vorn = ErsteZeilen(inhalt, nr - 1);
    return vorn + zeile + inhalt.substr(inhalt.find("\r\n", vorn.size()));
}

/// A parish's settings with a value other than the default in each field.
std::string KonfigInhalt()
{
    return "St. Martin\r\nAm Dom 1\r\n48143 M\xFCnster\r\n 1 \r\n 5 \r\n 28 \r\nArial\r\n"
           "jnjnjnjn\r\n 11 \r\n 16 \r\nnjnjnj\r\nnnnnnnnnnnn\r\n 20 \r\n 21 \r\n 22 \r\n 55 \r\n"
           " 1 \r\n 1 \r\n 2 \r\n 4 \r\n 57,5 \r\n 58,5 \r\n 301 \r\n 303 \r\n 603 \r\n 103 \r\n"
           " 605 \r\n 203 \r\nc:\\bild.bmp\r\n";
}

TEST_F(Lesen, KonfigKommtGanz)
{
    EXPECT_EQ(Einlesen(DateiKonfig, KonfigInhalt()), 0);
    EXPECT_EQ(InhaltVon(DateiKonfig), KonfigInhalt());
    EXPECT_EQ(Konfig.PlzOrt, "48143 Münster");
    EXPECT_EQ(Konfig.XSkala, 57.5F);
    EXPECT_EQ(Konfig.YSkala, 58.5F);
    EXPECT_EQ(Konfig.Skal6, 203);
    EXPECT_EQ(Konfig.Hintergrund, "c:\\bild.bmp");
}

TEST_F(Lesen, KonfigDarfVorEinerGruppeVonZeilenEnden)
{
    for (int zeilen = 0; zeilen <= 29; ++zeilen) {
        SCOPED_TRACE(zeilen);
        TabellenLeeren();
        std::string zuvor = InhaltVon(DateiKonfig);
        bool erlaubt = zeilen == 15 || zeilen == 16 || zeilen == 18 || zeilen == 19 ||
                       zeilen == 20 || zeilen == 28 || zeilen == 29;
        EXPECT_EQ(Einlesen(DateiKonfig, ErsteZeilen(KonfigInhalt(), zeilen)), erlaubt ? 0 : 62);
        // Read up to that line, the rest as it was.
        EXPECT_EQ(InhaltVon(DateiKonfig), ErsteZeilen(KonfigInhalt(), zeilen) +
                                              zuvor.substr(ErsteZeilen(zuvor, zeilen).size()));
    }
}

TEST_F(Lesen, KonfigMit15ZeilenLäßtGrenzeAuslöseWieSieWar)
{
    Konfig.GrenzeAuslöse = 33;
    Konfig.ManuellWeihrauch = 1;
    Konfig.StartWochentag = 3;
    Konfig.VorlaufWochen = 9;
    Konfig.Hintergrund = "bild";
    EXPECT_EQ(Einlesen(DateiKonfig, ErsteZeilen(KonfigInhalt(), 15)), 0);
    EXPECT_EQ(Konfig.RandOben, 22);
    EXPECT_EQ(Konfig.GrenzeAuslöse, 33);
    EXPECT_EQ(Konfig.ManuellWeihrauch, 1);
    EXPECT_EQ(Konfig.StartWochentag, 3);
    EXPECT_EQ(Konfig.VorlaufWochen, 9);
    EXPECT_EQ(Konfig.Hintergrund, "bild");
}

TEST_F(Lesen, DieStartwerteBegrenztDerLeserNicht)
{
    std::string inhalt = MitZeile(KonfigInhalt(), 16, " 100 ");
    inhalt = MitZeile(inhalt, 19, " 8 ");
    inhalt = MitZeile(inhalt, 20, " 21 ");
    EXPECT_EQ(Einlesen(DateiKonfig, inhalt), 0);
    SkalenBegrenzen();
    EXPECT_EQ(Konfig.GrenzeAuslöse, 100);
    EXPECT_EQ(Konfig.StartWochentag, 8);
    EXPECT_EQ(Konfig.VorlaufWochen, 21);
}

TEST_F(Lesen, LeereFlagsDerKonfigBekommenIhreVorgabe)
{
    Konfig.Flags8 = Konfig.Flags6 = Konfig.Flags11 = "n";
    std::string inhalt = KonfigInhalt();
    for (int zeile : {8, 11, 12})
        inhalt = MitZeile(inhalt, zeile, "");
    EXPECT_EQ(Einlesen(DateiKonfig, inhalt), 0);
    EXPECT_EQ(Konfig.Flags8, "jjjjjjjj");
    EXPECT_EQ(Konfig.Flags6, "jjjjjj");
    EXPECT_EQ(Konfig.Flags11, "jjjjjjjjjjj");
}

TEST_F(Lesen, AndereFlagsBleibenWieSieSind)
{
    std::string inhalt = KonfigInhalt();
    for (int zeile : {8, 11, 12})
        inhalt = MitZeile(inhalt, zeile, "n");
    EXPECT_EQ(Einlesen(DateiKonfig, inhalt), 0);
    EXPECT_EQ(Konfig.Flags8 + Konfig.Flags6 + Konfig.Flags11, "nnn");
}

TEST_F(Lesen, LeereFlagsDerMeßdienerInJedemSatz)
{
    for (int j : {0, 5, 400}) {
        Meßdiener.Qualifikation[j] = "";
        Meßdiener.Wochendienst[j] = "";
    }
    Meßdiener.Qualifikation[1] = "n";
    Meßdiener.Wochendienst[1] = "jn";
    std::string inhalt = InhaltVon(DateiMeßdiener);
    EXPECT_EQ(Einlesen(DateiMeßdiener, inhalt), 0);
    for (int j : {0, 5, 400}) {
        EXPECT_EQ(Meßdiener.Qualifikation[j], "jjjjjj");
        EXPECT_EQ(Meßdiener.Wochendienst[j], "jjjjjjjj");
    }
    EXPECT_EQ(Meßdiener.Qualifikation[1], "n");
    EXPECT_EQ(Meßdiener.Wochendienst[1], "jn");
    EXPECT_EQ(ZeilenVon(InhaltVon(DateiMeßdiener))[2 + 400 * 27 + 12], "jjjjjj")
        << "the next save writes them";
}

TEST_F(Lesen, NurDieHelferdateiMußGanzSein)
{
    for (int datei = DateiStandardmesse; datei <= DateiMesseDienerFest; ++datei) {
        const Dateiform &form = Dateiformen()[static_cast<std::size_t>(datei)];
        std::string inhalt = InhaltVon(datei);
        for (int sätze : {0, 1, form.Datensätze - 1, form.Datensätze}) {
            int zeilen = form.Kopfzeilen() + sätze * form.Satzzeilen();
            bool ganz = sätze == form.Datensätze;
            EXPECT_EQ(Einlesen(datei, ErsteZeilen(inhalt, zeilen)),
                      ganz || datei != DateiHelfer ? 0 : 62)
                << form.Name << " " << sätze;
        }
        EXPECT_EQ(Einlesen(datei, ErsteZeilen(inhalt, form.Kopfzeilen() + 1)),
                  datei == DateiGruppe ? 0 : 62)
            << form.Name;
        EXPECT_EQ(Einlesen(datei, ErsteZeilen(inhalt, form.Kopfzeilen() - 1)), 62) << form.Name;
        EXPECT_EQ(Einlesen(datei, ErsteZeilen(inhalt, form.Zeilen - 1)),
                  datei == DateiGruppe ? 0 : 62)
            << form.Name << ": the end inside a record fails, and a group is one line";
    }
}

TEST_F(Lesen, ZeilenHinterDemLetztenSatzStörenNicht)
{
    for (int datei = DateiKonfig; datei <= DateiMesseDienerFest; ++datei) {
        std::string inhalt = InhaltVon(datei);
        EXPECT_EQ(Einlesen(datei, inhalt + "mehr\r\nund mehr\r\n"), 0);
        EXPECT_EQ(InhaltVon(datei), inhalt);
    }
}

TEST_F(Lesen, KommaInDerStraßeVerschiebtDieZeilenDahinter)
{
    MeßdienerAnlegen("Anna", "Weiß");
    MeßdienerAnlegen("Bernd", "Zorn");
    Meßdiener.Straße[1] = "Hof 5, links";
    std::string inhalt = InhaltVon(DateiMeßdiener);
    TabellenLeeren();
    EXPECT_EQ(Einlesen(DateiMeßdiener, inhalt), 13);
    EXPECT_EQ(Meßdiener.Nachname[0], "Weiß");
    EXPECT_EQ(Meßdiener.Nachname[1], "Zorn");
    EXPECT_EQ(Meßdiener.Straße[1], "Hof 5");
    EXPECT_EQ(Meßdiener.PLZ[1], 0) << "\"links\" is no number";
    EXPECT_EQ(Meßdiener.Anzahl, 2);
}

TEST_F(Lesen, KommaBeimOrtHältErstAmNächstenDatumAn)
{
    MeßdienerAnlegen("Anna", "Weiß");
    Meßdiener.PLZ[0] = 48143;
    Meßdiener.Ort[0] = "Hiltrup, Amelsb\xC3\xBCren";
    Meßdiener.Telefon[0] = "02501";
    Meßdiener.EMail[0] = "a@b.de";
    Meßdiener.Geburtstag[0] = Heute;
    std::string inhalt = InhaltVon(DateiMeßdiener);
    TabellenLeeren();
    EXPECT_EQ(Einlesen(DateiMeßdiener, inhalt), 13);
    EXPECT_EQ(Meßdiener.PLZ[0], 48143);
    EXPECT_EQ(Meßdiener.Ort[0], "Hiltrup");
    EXPECT_EQ(Meßdiener.Telefon[0], "Amelsbüren");
    EXPECT_EQ(Meßdiener.EMail[0], "02501");
    EXPECT_EQ(Meßdiener.Geburtstag[0], 0) << "the e-mail address is no date";
}

TEST_F(Lesen, KommaInAnderenDateienIstEinZeichenWieAndere)
{
    Standardmesse.Messeart[0] = " \"Amt\", feierlich";
    HelferAnlegen("Anna", "Weiß", "Lektor");
    Helfer.Straße[0] = " \"Hof\" 5, links ";
    MesseMitDienern(Heute, 2);
    Messe.Messeart[0] = "Amt, feierlich";
    for (int datei : {DateiStandardmesse, DateiHelfer, DateiMesse}) {
        const std::string inhalt = InhaltVon(datei);
        EXPECT_EQ(Einlesen(datei, inhalt), 0);
        EXPECT_EQ(InhaltVon(datei), inhalt);
    }
    EXPECT_EQ(Standardmesse.Messeart[0], " \"Amt\", feierlich");
    EXPECT_EQ(Helfer.Straße[0], " \"Hof\" 5, links ");
    EXPECT_EQ(Messe.Messeart[0], "Amt, feierlich");
}

TEST_F(Lesen, BlanksVorEinemTextVonMeßdienernGehenVerloren)
{
    MeßdienerAnlegen("  Anna ", "Weiß  ");
    EXPECT_EQ(Einlesen(DateiMeßdiener, InhaltVon(DateiMeßdiener)), 0);
    EXPECT_EQ(Meßdiener.Vorname[0], "Anna ");
    EXPECT_EQ(Meßdiener.Nachname[0], "Weiß  ");
}

TEST_F(Lesen, EinZeilenendeImTextVerschiebtDieZeilen)
{
    Gruppe.Bezeichnung[0] = "eins\r\nzwei";
    Gruppe.Bezeichnung[1] = "drei";
    EXPECT_EQ(Einlesen(DateiGruppe, InhaltVon(DateiGruppe)), 0);
    EXPECT_EQ(Gruppe.Bezeichnung[0], "eins");
    EXPECT_EQ(Gruppe.Bezeichnung[1], "zwei");
    EXPECT_EQ(Gruppe.Bezeichnung[2], "drei");
}

TEST_F(Lesen, DerKopfDerMeßdienerAllein)
{
    Zeilenleser zeilen(" 7 \r\n 12 \r\nAnna\r\n");
    MeßdienerKopfLesen(zeilen);
    EXPECT_EQ(Meßdiener.Cursor, 7);
    EXPECT_EQ(Meßdiener.Anzahl, 12);
    EXPECT_EQ(zeilen.Zeile(), "Anna");
}

TEST_F(Lesen, DerKopfDerMeßdienerIstAbgegrenztWieDieSätze)
{
    Zeilenleser zeilen("7,12\r\nAnna\r\n");
    MeßdienerKopfLesen(zeilen);
    EXPECT_EQ(Meßdiener.Cursor, 7);
    EXPECT_EQ(Meßdiener.Anzahl, 12);
    EXPECT_EQ(zeilen.Zeile(), "Anna");
}

TEST_F(Lesen, SkalenInIhrenGrenzenBleiben)
{
    for (Single skala : {49.9999F, 55.0F, 60.0001F}) {
        Konfig.XSkala = Konfig.YSkala = skala;
        SkalenBegrenzen();
        EXPECT_EQ(Konfig.XSkala, skala);
        EXPECT_EQ(Konfig.YSkala, skala);
    }
    for (int skal : {10, 500, 10000}) {
        Konfig.Skal1 = Konfig.Skal2 = Konfig.Skal3 = skal;
        Konfig.Skal4 = Konfig.Skal5 = Konfig.Skal6 = skal;
        SkalenBegrenzen();
        EXPECT_EQ(Konfig.Skal1, skal);
        EXPECT_EQ(Konfig.Skal2, skal);
        EXPECT_EQ(Konfig.Skal3, skal);
        EXPECT_EQ(Konfig.Skal4, skal);
        EXPECT_EQ(Konfig.Skal5, skal);
        EXPECT_EQ(Konfig.Skal6, skal);
    }
}

TEST_F(Lesen, SkalenAußerhalbBekommenIhreVorgabe)
{
    for (Single skala : {49.9998F, 60.0002F, 0.0F, -1.0F, 1e30F}) {
        Konfig.XSkala = Konfig.YSkala = skala;
        SkalenBegrenzen();
        EXPECT_EQ(std::bit_cast<std::uint32_t>(Konfig.XSkala), 0x4262BE28U) << skala;
        EXPECT_EQ(std::bit_cast<std::uint32_t>(Konfig.YSkala), 0x4262BE28U) << skala;
    }
    for (int skal : {9, 10001, 0, -1, 32767, -32768}) {
        Konfig.Skal1 = Konfig.Skal2 = Konfig.Skal3 = skal;
        Konfig.Skal4 = Konfig.Skal5 = Konfig.Skal6 = skal;
        SkalenBegrenzen();
        EXPECT_EQ(Konfig.Skal1, 302);
        EXPECT_EQ(Konfig.Skal2, 302);
        EXPECT_EQ(Konfig.Skal3, 602);
        EXPECT_EQ(Konfig.Skal4, 102);
        EXPECT_EQ(Konfig.Skal5, 604);
        EXPECT_EQ(Konfig.Skal6, 202);
    }
}

TEST_F(Lesen, JedeSkalaWirdFürSichBegrenzt)
{
    Konfig.XSkala = 50;
    Konfig.YSkala = 70;
    SkalenBegrenzen();
    EXPECT_EQ(Konfig.XSkala, 50);
    EXPECT_EQ(Konfig.YSkala, 56.6857F);
}

TEST_F(Lesen, DieJubiläenSindMeßhelferUndMeßdienerZusammen)
{
    Konfig.Skal1 = 20;
    Konfig.Skal2 = 40;
    Konfig.Skal5 = 9;
    SkalenBegrenzen();
    EXPECT_EQ(Konfig.Skal5, 60);
    Konfig.Skal1 = Konfig.Skal2 = 10000;
    Konfig.Skal5 = 9;
    SkalenBegrenzen();
    EXPECT_EQ(Konfig.Skal5, 20000) << "the default itself may lie beyond the bound";
    SkalenBegrenzen();
    EXPECT_EQ(Konfig.Skal5, 20000);
    Konfig.Skal1 = 9;
    Konfig.Skal2 = 40;
    Konfig.Skal5 = 9;
    SkalenBegrenzen();
    EXPECT_EQ(Konfig.Skal5, 342) << "from the numbers as they are bounded";
}

} // namespace
} // namespace altardienst

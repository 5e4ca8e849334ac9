// A load beside the open mass list: it touches neither the list nor the dialog of its helpers.
#include "planning/MessenlisteImProgramm.h"

#include "core/Allgemein.h"
#include "settings/KopierForm.h"

namespace altardienst {
namespace {

constexpr int Angezeigt = 1; // the mass on the screen
constexpr int Geladen = 3;   // the cursor of the files

class MessenlisteLaden : public MessenlisteImProgramm {
  protected:
    /// The files hold other masses than the tables.
    MessenlisteLaden()
    {
        MessenFüllen(5);
        Messe.Cursor = Geladen;
        AufFestplatteSpeichern();
        geladen = MessenJetzt();
        Tabellen();
    }

    static void Tabellen()
    {
        MessenFüllen(7);
        for (int i = 0; i < Messe.Anzahl; ++i) {
            Messe.Messeart[i] = "vor dem Laden";
            Messe.Lektor1Vor[i] = "zuvor";
        }
    }

    void Laden() { MenüWählen("mnuDatenladen"); }

    /// The user goes to the main window and comes back.
    void HinUndZurück(const std::function<void()> &dort)
    {
        Zeigen(form);
        Zeigen(haupt);
        QCoreApplication::processEvents(); // what was typed is written
        dort();
        Zeigen(form);
        QCoreApplication::processEvents();
    }

    static Messenbild Mit(Messenbild bild, int i, const Satz &satz)
    {
        bild[static_cast<std::size_t>(i)] = satz;
        return bild;
    }
    using Messenlistenstand::Mit;

    /// The loaded masses, one of them written over by the screen.
    Messenbild MitSchirm(const Satz &schirm) const
    {
        return Mit(geladen, Angezeigt, Mit(geladen[Angezeigt], schirm));
    }

    Messenbild geladen;
};

TEST_F(MessenlisteLaden, DerSchirmBleibtSofortUndBeimZurückkommen)
{
    ListeDaneben(Angezeigt);
    Einsetzen("vor1", "getippt");
    const Satz schirm = Schirm();
    HinUndZurück([&] {
        EXPECT_EQ(Messe.DienerVor[Angezeigt][1], "getippt");
        Laden();
        EXPECT_EQ(MessenJetzt(), geladen);
        EXPECT_EQ(Schirm(), schirm);
    });
    EXPECT_EQ(Schirm(), schirm);
    EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(Angezeigt));
    EXPECT_EQ(Zeigt("maxi"), "7");
    EXPECT_EQ(MessenJetzt(), geladen);
    EXPECT_EQ(Messe.Cursor, Geladen);
    HinUndZurück([] {});
    EXPECT_EQ(Schirm(), schirm);
    EXPECT_EQ(MessenJetzt(), geladen);
    Klick(haupt->AnzMesse); // the list is open and comes to the front
    EXPECT_EQ(Schirm(), schirm);
    EXPECT_EQ(MessenJetzt(), geladen);
    ListeZurück(); // leaving it writes
    EXPECT_EQ(MessenJetzt(), MitSchirm(schirm));
}

TEST_F(MessenlisteLaden, WerDieMesseVerläßtSchreibtSie)
{
    ListeDaneben(Angezeigt);
    const Satz schirm = Schirm();
    HinUndZurück([this] { Laden(); });
    Klick("Plus");
    EXPECT_EQ(MessenJetzt(), MitSchirm(schirm));
    EXPECT_EQ(Zeigt("Messewesen"), "Art2");
    EXPECT_EQ(Zeigt("maxi"), "5");
}

// As by a key of the menu.
TEST_F(MessenlisteLaden, WasBeimLadenSchonGetipptWarWirdDavorNichtGeschrieben)
{
    ListeDaneben(Angezeigt);
    Einsetzen("vor1", "getippt");
    const Satz schirm = Schirm();
    Laden();
    EXPECT_EQ(MessenJetzt(), geladen);
    EXPECT_EQ(Schirm(), schirm);
    MenüWählen("mnuGruppensort"); // any other action writes what was typed
    EXPECT_EQ(MessenJetzt(), MitSchirm(schirm));
    EXPECT_EQ(Schirm(), schirm);
}

TEST_F(MessenlisteLaden, WasDanachGetipptWirdGehtBeimWechselInDieGeladeneMesse)
{
    ListeDaneben(Angezeigt);
    HinUndZurück([this] { Laden(); });
    Einsetzen("vor1", "getippt");
    const Satz schirm = Schirm();
    HinUndZurück([] {});
    EXPECT_EQ(MessenJetzt(), MitSchirm(schirm));
    EXPECT_EQ(Schirm(), schirm);
    EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(Angezeigt));
}

TEST_F(MessenlisteLaden, EineAndereHandlungDieDieMesseÄndertZeigtSieNeu)
{
    ListeDaneben(Angezeigt);
    HinUndZurück([this] { Laden(); });
    MenüWählen("mnuGruppensort"); // leaves the mass alone
    EXPECT_EQ(Zeigt("Messewesen"), "vor dem Laden");
    Messe.Datum[0] = DatumAus({2026, 12, 24});
    MenüWählen("mnuSortmessen");
    EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(Geladen));
    EXPECT_EQ(Zeigt("Messewesen"), Messe.Messeart[Geladen]);
}

// The pattern makes just what was loaded, so that the table tells nothing.
TEST_F(MessenlisteLaden, EinNeuerPlanStehtAufDemSchirmAuchWennErDemGeladenenGleicht)
{
    Konfig.StartDatum = Heute + 1;
    Konfig.Tage = 7;
    Standardmesse.Wochentag[0] = "Sonntag";
    Standardmesse.Messeart[0] = "Hochamt";
    Standardmesse.Dienerzahl[0] = 2;
    Klick(haupt->Messenorgani);
    Fenster("Messenliste")->close();
    AufFestplatteSpeichern();
    Messe.Messeart[0] = "vor dem Laden";
    ListeDaneben(0);
    const Datum start = Konfig.StartDatum;
    Laden();
    Konfig.StartDatum = start;
    EXPECT_EQ(Zeigt("Messewesen"), "vor dem Laden");
    Klick(haupt->Messenorgani);
    EXPECT_EQ(Zeigt("Messewesen"), "Hochamt");
}

TEST_F(MessenlisteLaden, DieDisketteRührtDieListeAuchNichtAn)
{
    for (const char *datei : {"Konfig.cfg", "Standard.dat", "Meßdiener.dat"})
        std::filesystem::copy_file(Festplatte / PfadAus(datei), Diskette / PfadAus(datei));
    ListeDaneben(Angezeigt);
    Einsetzen("vor1", "getippt");
    const Satz schirm = Schirm();
    const Messenbild zuvor = MessenJetzt();
    for (const bool ja : {false, true}) {
        Konfig.Gemeinde = "ersetzt";
        Antworten = {ja};
        MenüWählen("mnuDatenladenD");
        EXPECT_EQ(Konfig.Gemeinde == "ersetzt", !ja);
        EXPECT_EQ(MessenJetzt(), zuvor);
        EXPECT_EQ(Schirm(), schirm);
    }
    ListeZurück();
    EXPECT_EQ(MessenJetzt(), Mit(zuvor, Angezeigt, Mit(zuvor[Angezeigt], schirm)));
}

TEST_F(MessenlisteLaden, EinLadenDasScheitertRührtSieAuchNichtAn)
{
    DateiSchreiben(Festplatte / "Gruppen.dat", "x"); // read after the masses
    ListeDaneben(Angezeigt);
    const Satz schirm = Schirm();
    HinUndZurück([this] { Laden(); });
    EXPECT_EQ(MessenJetzt(), geladen);
    EXPECT_EQ(Schirm(), schirm);
}

// The copy dialog saves first, and loads what it has copied.
TEST_F(MessenlisteLaden, GeholteDatenRührenSieAuchNichtAn)
{
    for (const auto &datei : std::filesystem::directory_iterator(Festplatte))
        std::filesystem::copy(datei.path(), Diskette / datei.path().filename());
    ListeDaneben(Angezeigt);
    const Satz schirm = Schirm();
    HinUndZurück([this] {
        MenüWählen("mnuDatenHolen");
        auto *dialog = static_cast<KopierForm *>(Fenster("Dateikopie"));
        dialog->Wahl.Öffnen(Diskette);
        Klick(dialog->OKButton);
        EXPECT_TRUE(haupt->isEnabled());
    });
    EXPECT_EQ(MessenJetzt(), geladen);
    EXPECT_EQ(Schirm(), schirm);
}

TEST_F(MessenlisteLaden, AuchDieVerborgeneListeBleibt)
{
    ListeDaneben(Angezeigt);
    const Satz schirm = Schirm();
    Klick("NeuMeß");
    Laden();
    Klick(Finden(Fenster("NeuMesse"), "CancelButton"));
    EXPECT_TRUE(form->isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(Schirm(), schirm);
    EXPECT_EQ(MessenJetzt(), geladen);
    Klick("NeuMeß"); // fills the list from its mass
    EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(Angezeigt));
    EXPECT_EQ(Zeigt("Messewesen"), "Art1");
}

TEST_F(MessenlisteLaden, DieHelferDerMesseBleibenUndWerdenBeimSchließenGeschrieben)
{
    ListeDaneben(Angezeigt);
    const QPointer<QWidget> liste = form;
    Klick("Lektoren");
    form = Fenster("Lektorrenusw");
    HinUndZurück([&] {
        Laden();
        EXPECT_EQ(Zeigt("Lecki1Vor"), "zuvor");
    });
    EXPECT_EQ(Zeigt("Lecki1Vor"), "zuvor");
    EXPECT_EQ(MessenJetzt(), geladen);
    Klick("Ende");
    EXPECT_EQ(Messe.Lektor1Vor[Geladen], "zuvor"); // of the mass at the cursor
    EXPECT_TRUE(liste->isVisible());
}

} // namespace
} // namespace altardienst

// The main window in use beside open dialogs: none of them is there a second time.
#include "shell/Hauptstand.h"

#include "core/Allgemein.h"

#include <QComboBox>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <map>

namespace altardienst {
namespace {

/// A parish in which every form has something to show.
class HauptDialogeTest : public Hauptstand {
  protected:
    HauptDialogeTest()
    {
        for (const char *name : {"Adler", "Busch", "Clausen", "Dorn", "Eich", "Fuchs"})
            MeßdienerAnlegen("Kim", name);
        HelferAnlegen("Maria", "Linde", "Lektor");
        Konfig.StartDatum = Heute + 1;
        Konfig.Tage = 7;
        Standardmesse.Wochentag[0] = "Sonntag";
        Standardmesse.Dienerzahl[0] = 2;
        Öffnen();
    }

    struct Weg {
        Text Name;
        std::function<void()> Gehen;
    };

    /// All entries of a menu that can be chosen, but the one that ends the program.
    void Einträge(const QWidget *menü, std::vector<Weg> &wege) const
    {
        for (QAction *eintrag : menü->actions()) {
            if (eintrag->menu())
                Einträge(eintrag->menu(), wege);
            else if (!eintrag->isSeparator() && eintrag->objectName() != "mnuFileExit")
                wege.push_back(
                    {eintrag->objectName().toStdString(), [eintrag] { eintrag->trigger(); }});
        }
    }

    /// All that can be done in the main window: the menu, the seven buttons, the two keys.
    std::vector<Weg> AlleWege() const
    {
        std::vector<Weg> wege;
        Einträge(haupt->menuBar(), wege);
        EXPECT_EQ(wege.size(), 59U);
        for (QPushButton *knopf :
             {haupt->Messenorgani, haupt->Meßdienernern, haupt->Dienstus, haupt->MeßdienerMessen,
              haupt->Helfend, haupt->AnzMesse, haupt->Messendruck})
            wege.push_back({altardienst::Zeigt(knopf), [knopf] { Klick(knopf); }});
        for (const auto &[name, taste] : {std::pair("F11", Qt::Key_F11), {"F12", Qt::Key_F12}})
            wege.push_back({name, [this, taste = taste] {
                                Zeigen(haupt);
                                QTest::keyClick(haupt->windowHandle(), taste);
                            }});
        return wege;
    }

    /// The windows that are there, on the screen or hidden.
    static QWidgetList Alle()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QWidgetList alle;
        for (QWidget *fenster : QApplication::topLevelWidgets())
            if (!fenster->parent() && !fenster->objectName().isEmpty())
                alle.push_back(fenster);
        return alle;
    }

    static bool NichtsIstDoppelt(const Text &weg)
    {
        std::map<Text, int> zahl;
        for (const QWidget *fenster : Alle())
            ++zahl[fenster->objectName().toStdString()];
        for (const auto &[name, wieOft] : zahl)
            EXPECT_EQ(wieOft, 1) << name << " by " << weg;
        return std::ranges::all_of(zahl, [](const auto &eines) { return eines.second == 1; });
    }

    /// The one window beside the main window and this one, if there is any.
    QWidget *Dritte(const QWidget *zweites) const
    {
        QWidget *drittes = nullptr;
        for (QWidget *fenster : Alle())
            if (fenster != haupt && fenster != zweites) {
                EXPECT_FALSE(drittes) << fenster->objectName().toStdString();
                drittes = fenster;
            }
        return drittes;
    }

    bool HauptfensterIstFrei() const { return haupt->isEnabled() && haupt->isMaximized(); }
    bool HauptfensterIstVerlassen() const { return !haupt->isEnabled() && haupt->isMinimized(); }

    /// Each way is gone beside the window that `öffnen` brings, and once more when that window has
    /// closed and so has enabled the main window. Returns the names of the windows that came.
    std::vector<Text> JederWegZweimal(const std::function<QWidget *()> &öffnen)
    {
        std::vector<Text> gekommen;
        for (const auto &[name, gehen] : AlleWege()) {
            SCOPED_TRACE(name);
            const QPointer<QWidget> daneben = öffnen();
            EXPECT_TRUE(HauptfensterIstFrei());
            gehen();
            NichtsIstDoppelt(name);
            const QPointer<QWidget> dialog = Dritte(daneben);
            daneben->close();
            EXPECT_TRUE(HauptfensterIstFrei());
            if (dialog)
                dialog->showMinimized();
            gehen();
            if (NichtsIstDoppelt(name) && dialog) {
                gekommen.push_back(dialog->objectName().toStdString());
                EXPECT_TRUE(dialog->isVisible());
                EXPECT_TRUE(dialog->isEnabled());
                EXPECT_FALSE(dialog->isMinimized());
                EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
                if (name == "mnuHelpAbout" || name == "mnuHandbuch" || name.starts_with("(1)"))
                    EXPECT_TRUE(HauptfensterIstFrei());
                else
                    EXPECT_TRUE(HauptfensterIstVerlassen());
            }
            for (QWidget *fenster : Alle())
                if (fenster != haupt)
                    fenster->close();
            EXPECT_EQ(Alle(), QWidgetList{haupt});
            HauptfensterZurück();
        }
        return gekommen;
    }

    /// Their names, where every one comes once but for those that more ways than one lead to.
    static std::vector<Text> AlleDialoge(std::vector<Text> dazu)
    {
        std::vector<Text> namen = {"Druck",          "Konfiguration", "Hintergrundsuche",
                                   "Etiketten",      "Gruppe",        "Standardmessen",
                                   "Helfer",         "Meßdiener",     "JubiGebu",
                                   "Statistik",      "Statistik2",    "StatMeßdienst",
                                   "StatDienst",     "StatistikAllg", "StatistikHelfer",
                                   "StatHelfer",     "Dialog",        "Dateikopie",
                                   "Datensicherung", "frmAbout",      "NeuMesseDienerFest",
                                   "ZusatzKonfig",   "Skalierung",    "Handbuch",
                                   "Stände",         "Ausgleich",     "Verteilung",
                                   "Archiv",         "Kalender",      "Webseite",
                                   "Dienstzettel",   "EMail",         "Tabellen",
                                   "Einlesen"};
        namen.insert(namen.end(), dazu.begin(), dazu.end());
        std::sort(namen.begin(), namen.end());
        return namen;
    }
};

std::vector<Text> Sortiert(std::vector<Text> namen)
{
    std::sort(namen.begin(), namen.end());
    return namen;
}

TEST_F(HauptDialogeTest, NebenDerMessenlisteUndNachIhremEndeIstKeinerDoppelt)
{
    const auto gekommen = JederWegZweimal([this] {
        Klick(haupt->Messenorgani);
        return Fenster("Messenliste");
    });
    EXPECT_EQ(Sortiert(gekommen), AlleDialoge({"MesseDienerFest"}));
}

TEST_F(HauptDialogeTest, NebenDenFestenEinträgenUndNachIhremEndeIstKeinerDoppelt)
{
    const auto gekommen = JederWegZweimal([this] {
        MenüWählen("MnuMESSDIENZUMESS");
        QWidget *liste = Fenster("MesseDienerFest");
        Klick(Finden(liste, "Hinzu"));
        Fenster("NeuMesseDienerFest")->close();
        return liste;
    });
    // The list of masses comes by its entry, by (1) and by (6).
    EXPECT_EQ(Sortiert(gekommen), AlleDialoge({"Messenliste", "Messenliste", "Messenliste"}));
}

/// A form that is hidden for a dialog: what opens it, the button of the dialog, the dialog, and
/// what ends it.
struct Verborgene {
    const char *Eintrag;
    const char *Form;
    const char *Knopf;
    const char *Dialog;
    const char *Ende;
};
const std::array VerborgeneFormen = {
    Verborgene{"mnuGruppe", "Gruppe", "NEWGroup", "NeuGruppe", "CancelButton"},
    Verborgene{"mnuHelfer", "Helfer", "NeuHelfer", "NeuerHelfer", "CancelButton"},
    Verborgene{"mnuMeßdiener", "Meßdiener", "NeuDiener", "NeuMeßdiener", "CancelButton"},
    Verborgene{"mnuStatistik", "Statistik", "Diagramm", "Diagramme", "CancelButton"},
    Verborgene{"mnuStatistikGröße", "Statistik2", "Diagramm", "Diagramm2", "CancelButton"},
    Verborgene{"mnuMessen", "Messenliste", "NeuMeß", "NeuMesse", "CancelButton"},
    Verborgene{"mnuMessen", "Messenliste", "Lektoren", "Lektorrenusw", "Ende"}};

TEST_F(HauptDialogeTest, FürEineVerborgeneFormKommtIhrDialogNachVorn)
{
    for (const auto &[eintrag, name, knopf, dialogname, ende] : VerborgeneFormen) {
        SCOPED_TRACE(dialogname);
        Klick(haupt->Messenorgani);
        const QPointer<QWidget> liste = Fenster("Messenliste");
        MenüWählen(eintrag);
        const QPointer<QWidget> form = Fenster(name);
        Klick(Finden(form, knopf));
        const QPointer<QWidget> dialog = Fenster(dialogname);
        if (form != liste)
            liste->close();
        else
            HauptfensterZurück(); // as another dialog does that ends meanwhile
        EXPECT_TRUE(HauptfensterIstFrei());
        dialog->showMinimized();
        MenüWählen(eintrag);
        NichtsIstDoppelt(eintrag);
        EXPECT_FALSE(form->isVisible());
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(dialog->isMinimized());
        EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
        EXPECT_TRUE(HauptfensterIstVerlassen());
        Klick(Finden(dialog, ende));
        EXPECT_TRUE(form->isVisible());
        EXPECT_TRUE(Warten([&] { return !dialog && form->isActiveWindow(); }));
        EXPECT_TRUE(HauptfensterIstVerlassen());
        MenüWählen(eintrag);
        NichtsIstDoppelt(eintrag);
        EXPECT_EQ(Fenster(name), form);
        form->close();
        EXPECT_TRUE(HauptfensterIstFrei());
        EXPECT_EQ(Alle(), QWidgetList{haupt});
    }
}

TEST_F(HauptDialogeTest, EinGeschlossenerGiltNichtMehrAlsOffenAuchVorDemEntladen)
{
    for (const auto &[eintrag, name] : {std::pair("mnuGruppe", "Gruppe"),
                                        {"MnuMESSDIENZUMESS", "MesseDienerFest"},
                                        {"mnuMessen", "Messenliste"},
                                        {"mnuHelpAbout", "frmAbout"}}) {
        MenüWählen(eintrag);
        const QPointer<QWidget> alter = Fenster(name);
        alter->close();
        MenüWählen(eintrag);
        EXPECT_TRUE(IstOffen(name)) << name;
        EXPECT_FALSE(alter->isVisible()) << name;
        NichtsIstDoppelt(name);
        EXPECT_TRUE(IstOffen(name)) << name;
        Fenster(name)->close();
    }
}

// Its dialog may outlive it.
TEST_F(HauptDialogeTest, EineGeschlosseneListeIstAuchMitIhremDialogNichtMehrOffen)
{
    Klick(haupt->Messenorgani);
    QWidget *liste = Fenster("Messenliste");
    Klick(Finden(liste, "NeuMeß"));
    Klick(haupt->Messenorgani);
    EXPECT_TRUE(liste->isVisible());
    liste->close();
    MenüWählen("mnuMessen");
    NichtsIstDoppelt("mnuMessen");
    EXPECT_TRUE(IstOffen("Messenliste"));
    EXPECT_TRUE(IstOffen("NeuMesse"));
}

TEST_F(HauptDialogeTest, VorHolenUndSichernWirdAuchBeimZweitenMalGespeichert)
{
    for (const auto &[eintrag, name] :
         {std::pair("mnuDatenHolen", "Dateikopie"), {"mnuDatenSichern", "Datensicherung"}}) {
        Klick(haupt->Messenorgani);
        MenüWählen(eintrag);
        const QPointer<QWidget> dialog = Fenster(name);
        Fenster("Messenliste")->close();
        Konfig.Gemeinde = eintrag;
        MenüWählen(eintrag);
        EXPECT_TRUE(DateiLesen(Festplatte / "Konfig.cfg").starts_with(Text(eintrag) + "\r\n"));
        EXPECT_EQ(Fenster(name), dialog);
        NichtsIstDoppelt(eintrag);
        dialog->close();
    }
}

/// What stands on a screen: texts, and what is chosen.
std::vector<Text> Schirm(const QWidget *fenster)
{
    std::vector<Text> schirm;
    const auto merken = [&](const QWidget *control, const QString &was) {
        schirm.push_back(control->objectName().toStdString() + ": " + was.toStdString());
    };
    for (const auto *label : fenster->findChildren<QLabel *>())
        merken(label, label->text());
    for (const auto *feld : fenster->findChildren<QLineEdit *>())
        merken(feld, feld->text());
    for (const auto *kombo : fenster->findChildren<QComboBox *>())
        merken(kombo, kombo->currentText());
    for (const auto *knopf : fenster->findChildren<QAbstractButton *>())
        merken(knopf, knopf->isChecked() ? "j" : "n");
    return schirm;
}

TEST_F(HauptDialogeTest, EinLadenRührtKeinenDialogAnDerOffenIst)
{
    const auto eigene = Festplatte / "eigene";
    const auto andere = Festplatte / "andere";
    const auto platte = Festplatte;
    const auto imVerzeichnis = [&](const auto &verzeichnis, const auto &tun) {
        Festplatte = verzeichnis;
        tun();
        Festplatte = platte;
    };
    for (const auto &verzeichnis : {eigene, andere})
        std::filesystem::create_directories(verzeichnis);
    imVerzeichnis(eigene, AufFestplatteSpeichern);
    TabellenLeeren();
    for (const char *name : {"Xaver", "Yilmaz", "Zoller"})
        MeßdienerAnlegen("Toni", name, 190, "w");
    HelferAnlegen("Paul", "Quast", "Kantor");
    MesseMitDienern(Heute + 5, 4);
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    Standardmesse.Wochentag[0] = "Freitag";
    Standardmesse.Messeart[0] = "Andacht";
    Etikett.Name[0] = "Blatt";
    Konfig.Gemeinde = "St. Ägid";
    Konfig.DiffGröße = 33;
    Konfig.XSkala = 1.5;
    imVerzeichnis(andere, AufFestplatteSpeichern);

    std::size_t dialoge = 0;
    for (const auto &[name, gehen] : AlleWege()) {
        SCOPED_TRACE(name);
        imVerzeichnis(eigene, VonFestplatteLaden);
        Klick(haupt->Messenorgani);
        const QPointer<QWidget> liste = Fenster("Messenliste");
        gehen();
        if (QWidget *dialog = Dritte(liste)) {
            ++dialoge;
            liste->close();
            Zeigen(dialog);
            Zeigen(haupt);
            const auto schirm = Schirm(dialog);
            imVerzeichnis(andere, [this] { MenüWählen("mnuDatenladen"); });
            EXPECT_EQ(Konfig.Gemeinde, "St. Ägid");
            EXPECT_EQ(Schirm(dialog), schirm);
            Zeigen(dialog);
            QCoreApplication::processEvents();
            // That one shows its entry anew whenever it comes back, from wherever.
            if (dialog->objectName() != "MesseDienerFest") {
                EXPECT_EQ(Schirm(dialog), schirm);
            }
        }
        for (QWidget *fenster : Alle())
            if (fenster != haupt)
                fenster->close();
        HauptfensterZurück();
    }
    EXPECT_EQ(dialoge, AlleDialoge({"MesseDienerFest"}).size());
}

TEST_F(HauptDialogeTest, AuchVorF11UndF12SchreibtDieListeWasGetipptWurde)
{
    for (const Qt::Key taste : {Qt::Key_F11, Qt::Key_F12}) {
        Klick(haupt->Messenorgani);
        auto *liste = Fenster("Messenliste");
        Zeigen(liste);
        Zeigen(haupt);
        QCoreApplication::processEvents(); // the list has been left
        const Text getippt = QKeySequence(taste).toString().toStdString();
        Einsetzen(Finden(liste, "Messewesen"), getippt);
        QTest::keyClick(haupt->windowHandle(), taste);
        EXPECT_EQ(Messe.Messeart[0], getippt);
        for (QWidget *fenster : Alle())
            if (fenster != haupt)
                fenster->close();
    }
}

} // namespace
} // namespace altardienst

// The ways to all windows of the program, for tests that go through each of them.
#pragma once

#include "shell/Hauptstand.h"

#include "anniversaries/GeburtstagsansichtForm.h"
#include "anniversaries/JubiläumsanzeigeForm.h"
#include "core/Allgemein.h"
#include "planning/MessenBestimmen.h"
#include "settings/KopierForm.h"
#include "shell/StartForm.h"

#include <algorithm>
#include <array>

namespace altardienst {

/// A window that the main window leads to: by an entry of its menu, and by a button of what that
/// opens.
struct Fensterweg {
    const char *Fenster;
    const char *Eintrag;
    const char *Knopf = nullptr;
};

constexpr std::array Wege = {
    Fensterweg{"Druck", "mnuFilePrint"},
    Fensterweg{"Konfiguration", "mnuKonfiguration"},
    Fensterweg{"Hintergrundsuche", "mnuHintergrund"},
    Fensterweg{"Etiketten", "mnuEtiketten"},
    Fensterweg{"Gruppe", "mnuGruppe"},
    Fensterweg{"NeuGruppe", "mnuGruppe", "NEWGroup"},
    Fensterweg{"Standardmessen", "mnuStandardmessen"},
    Fensterweg{"Helfer", "mnuHelfer"},
    Fensterweg{"NeuerHelfer", "mnuHelfer", "NeuHelfer"},
    Fensterweg{"Meßdiener", "mnuMeßdiener"},
    Fensterweg{"NeuMeßdiener", "mnuMeßdiener", "NeuDiener"},
    Fensterweg{"MesseDienerFest", "MnuMESSDIENZUMESS"},
    Fensterweg{"NeuMesseDienerFest", "MnuMESSDIENZUMESS", "Hinzu"},
    Fensterweg{"Messenliste", "mnuMessen"},
    Fensterweg{"NeuMesse", "mnuMessen", "NeuMeß"},
    Fensterweg{"Lektorrenusw", "mnuMessen", "Lektoren"},
    Fensterweg{"JubiGebu", "mnuJubGeb"},
    Fensterweg{"Statistik", "mnuStatistik"},
    Fensterweg{"Diagramme", "mnuStatistik", "Diagramm"},
    Fensterweg{"Statistik2", "mnuStatistikGröße"},
    Fensterweg{"Diagramm2", "mnuStatistikGröße", "Diagramm"},
    Fensterweg{"StatMeßdienst", "mnuMessendienst"},
    Fensterweg{"StatDienst", "mnuStatDienst"},
    Fensterweg{"StatistikAllg", "mnuStatistikHilfA"},
    Fensterweg{"StatistikHelfer", "mnuHelferMessendienst"},
    Fensterweg{"StatHelfer", "mnuStatHDienst"},
    Fensterweg{"Dialog", "mnuMessenlisteText"},
    Fensterweg{"Dateikopie", "mnuDatenHolen"},
    Fensterweg{"Datensicherung", "mnuDatenSichern"},
    Fensterweg{"frmAbout", "mnuHelpAbout"},
};

/// The parish of the shipped example, the masses of its next plan, and its main window.
class Fensterwege : public Hauptstand {
  protected:
    Fensterwege()
    {
        const auto festplatte = std::exchange(Laufwerke.Programmverzeichnis,
                                              [] { return std::filesystem::path(BEISPIELDATEN); });
        VonFestplatteLaden();
        Laufwerke.Programmverzeichnis = festplatte;
        Konfig.StartDatum = Heute + 7;
        MessenNeuBestimmen();
        AufFestplatteSpeichern(); // the copy dialogs read what is on the disk
        Öffnen();
    }

    /// Calls `prüfen` for each window of the program, shown and active.
    void InJedemFenster(const std::function<void(QWidget *fenster)> &prüfen)
    {
        auto vorstellen = [&](QWidget *fenster) {
            SCOPED_TRACE(fenster->objectName().toStdString());
            Zeigen(fenster);
            prüfen(fenster);
        };
        vorstellen(haupt);
        for (const auto &[name, eintrag, knopf] : Wege) {
            MenüWählen(eintrag);
            if (knopf)
                KlickIm(FensterDesEintrags(eintrag), knopf);
            vorstellen(Fenster(name));
            Räumen();
        }
        for (const auto &[taste, name] :
             {std::pair(Qt::Key_F11, "ZusatzKonfig"), {Qt::Key_F12, "Skalierung"}}) {
            Zeigen(haupt);
            QTest::keyClick(haupt->windowHandle(), taste);
            vorstellen(Fenster(name));
            Räumen();
        }
        AufgebautVorstellen<StartForm>(vorstellen, [] {});
        AufgebautVorstellen<DateienKopierenForm>(vorstellen, [](bool) {});
        AufgebautVorstellen<GeburtstagsansichtForm>(vorstellen);
        AufgebautVorstellen<JubiläumsanzeigeForm>(vorstellen);
    }

  private:
    static void KlickIm(QWidget *fenster, const char *knopf)
    {
        Zeigen(fenster);
        Klick(Finden(fenster, knopf));
    }

    static QWidget *FensterDesEintrags(const Text &eintrag)
    {
        const auto weg = std::ranges::find_if(
            Wege, [&](const Fensterweg &eines) { return eines.Eintrag == eintrag; });
        return Fenster(weg->Fenster); // the entry alone comes before its buttons
    }

    /// Windows that come by themselves or from a window that waits for them.
    template <class Form, class... Angaben>
    void AufgebautVorstellen(const std::function<void(QWidget *)> &vorstellen, Angaben... angaben)
    {
        vorstellen(new Form(angaben...));
        Räumen();
    }

    /// Only the main window is left.
    void Räumen()
    {
        const QWidgetList fenster = QApplication::topLevelWidgets();
        const std::vector<QPointer<QWidget>> alle(fenster.begin(), fenster.end());
        for (const auto &eines : alle)
            if (eines && eines != haupt && !eines->parent()) {
                eines->hide();
                delete eines;
            }
        HauptfensterZurück();
        QCoreApplication::processEvents();
    }
};

} // namespace altardienst

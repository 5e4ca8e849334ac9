// The ways to all windows of the program, for tests that go through each of them.
#pragma once

#include "shell/Hauptstand.h"

#include "anniversaries/GeburtstagsansichtForm.h"
#include "anniversaries/JubiläumsanzeigeForm.h"
#include "core/Allgemein.h"
#include "settings/KopierForm.h"
#include "shell/StartForm.h"

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

/// The parish of the shipped example and its main window.
class Fensterwege : public Hauptstand {
  protected:
    Fensterwege()
    {
        const auto festplatte = std::exchange(Laufwerke.Programmverzeichnis,
                                              [] { return std::filesystem::path(BEISPIELDATEN); });
        VonFestplatteLaden();
        Laufwerke.Programmverzeichnis = festplatte;
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
                Klick(Finden(QApplication::activeWindow(), knopf));
            vorstellen(Fenster(name));
            Räumen();
        }
        AufgebautVorstellen<StartForm>(vorstellen, [] {});
        AufgebautVorstellen<DateienKopierenForm>(vorstellen, [](bool) {});
        AufgebautVorstellen<GeburtstagsansichtForm>(vorstellen);
        AufgebautVorstellen<JubiläumsanzeigeForm>(vorstellen);
    }

  private:
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
        for (QWidget *eines : fenster)
            if (eines != haupt && !eines->parent()) {
                eines->hide();
                delete eines;
            }
        HauptfensterZurück();
        QCoreApplication::processEvents();
    }
};

} // namespace altardienst

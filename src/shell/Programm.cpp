// The way from the start dialog to the main window.
#include "shell/Programm.h"

#include "application/Anwendung.h"
#include "application/Mitteilung.h"
#include "core/Allgemein.h"
#include "help/Hilfetaste.h"
#include "history/Netz.h"
#include "history/Schreibhindernis.h"
#include "history/StändeForm.h"
#include "settings/KopierForm.h"
#include "shell/Abschied.h"
#include "shell/HauptForm.h"
#include "shell/StartForm.h"

#include <QApplication>
#include <QPointer>

namespace altardienst {
namespace {

QPointer<StartForm> Start;
QPointer<HauptForm> Haupt;

bool WirdKopiert()
{
    return OffeneForm<DateienKopierenForm>() != nullptr;
}

void NetzlageZeigen()
{
    DauerndMitteilen("Netz", Dauerhinweis());
}

/// A start dialog that was shown again after a load from the menu leads back to the existing main
/// window.
void HauptZeigen()
{
    if (auto *stände = OffeneForm<StändeForm>()) // what it compares with will change now
        stände->close();
    if (!Haupt) {
        Haupt = new HauptForm;
        HauptfensterSetzen(Haupt);
    }
    Haupt->showMaximized();
    Haupt->activateWindow();
    DauerndMitteilen("Schreibrecht", KurzesSchreibhindernis());
    ArbeitBeginnt();
}

/// The start dialog comes back, with what was copied or as it was left.
void NachErstkopie(bool kopiert)
{
    if (kopiert)
        return StartNeuZeigen();
    NachKopie = 0;
    StartZeigen();
}

void KopierdialogZeigen()
{
    DialogDanebenÖffnen<DateienKopierenForm>(NachErstkopie);
    if (Start)
        Start->hide();
}

} // namespace

void ProgrammStarten()
{
    HilfetasteEinrichten(*qApp);
    DateienKopierenZeigen = KopierdialogZeigen;
    NetzlageGeändert = NetzlageZeigen;
    NetzlageZeigen();
    StartNeuZeigen();
}

void StartZeigen()
{
    if (!Start)
        Start = new StartForm(HauptZeigen);
    if (!WirdKopiert())
        DialogDanebenÖffnen(Start);
}

void ProgrammVerlassen()
{
    if (!Haupt)
        return QApplication::exit(0);
    AndereFensterSchließen(Haupt);
    Haupt->setEnabled(true); // a dialog that stays open would keep it from closing
    Haupt->close();
}

void StartNeuZeigen()
{
    if (Start) {
        Start->hide();
        Start->deleteLater();
        Start.clear();
    }
    StartZeigen();
}

} // namespace altardienst

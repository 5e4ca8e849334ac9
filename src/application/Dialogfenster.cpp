// A window that takes the place of the main window, which comes back when it closes.
#include "application/Dialogfenster.h"

#include "application/Anwendung.h"
#include "controls/Handler.h"

#include <QCloseEvent>

namespace altardienst {

void Dialogfenster::closeEvent(QCloseEvent *ereignis)
{
    ereignis->ignore();
    Offen([&] {
        VorDemSchließen();
        ereignis->accept();
        HauptfensterZurück();
    })();
}

} // namespace altardienst

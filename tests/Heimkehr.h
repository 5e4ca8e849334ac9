// What every form opened from the main window must do: give the main window back.
#pragma once

#include "Fensterstand.h"
#include "application/Anwendung.h"

#include <QPointer>

#include <functional>

namespace altardienst {

/// The main window comes back and the form is gone, both after the button `Ende` and after closing
/// the form by its close box. `öffnen` opens the form and returns it.
inline void GibtDasHauptfensterZurück(const std::function<QWidget *()> &öffnen)
{
    QWidget haupt;
    HauptfensterSetzen(&haupt);
    for (const bool ende : {true, false}) {
        haupt.setEnabled(false);
        haupt.showMinimized();
        const QPointer<QWidget> form = öffnen();
        if (ende)
            Klick(Finden(form, "Ende"));
        else
            form->close();
        EXPECT_TRUE(QTest::qWaitFor([&] { return form.isNull(); }));
        EXPECT_TRUE(haupt.isEnabled());
        EXPECT_TRUE(haupt.isMaximized());
    }
}

} // namespace altardienst

// What holds for all windows: language, focus colours, message boxes, and the main window that
// dialogs leave and return to.
#pragma once

#include <QApplication>
#include <QWidget>

#include <utility>

namespace altardienst {

/// Installs German texts in Qt's own dialogs, the style of all windows, and real message boxes.
void AnwendungEinrichten(QApplication &anwendung);

/// Sets the main window, for the dialogs; null if there is none.
void HauptfensterSetzen(QWidget *haupt);

/// Whether there is a main window and no dialog has disabled it.
bool HauptfensterBereit();

/// Disables and minimises the main window and brings the dialog to the front, ready for use however
/// it was left; it deletes itself when closed.
void DialogÖffnen(QWidget *dialog);

/// The same beside the main window, which stays as it is.
void DialogDanebenÖffnen(QWidget *dialog);

/// The same in the place of a form, which is hidden until the dialog shows it again.
void DialogAnStelleÖffnen(QWidget *form, QWidget *dialog);

/// What stands on the screen for a form that is open: itself, or the dialog in its place. Null for
/// one that is closed, though it may not be deleted yet.
QWidget *AufDemSchirm(QWidget *form);

/// The form of this kind that is open, which may be hidden for a dialog in its place.
template <class Form> Form *OffeneForm()
{
    const QWidgetList fenster = QApplication::topLevelWidgets();
    for (QWidget *eines : fenster)
        if (auto *form = dynamic_cast<Form *>(eines); form && AufDemSchirm(form))
            return form;
    return nullptr;
}

template <class Form, class... Angaben> QWidget *OffenerOderNeuer(Angaben &&...angaben)
{
    if (Form *offen = OffeneForm<Form>())
        return AufDemSchirm(offen);
    return new Form(std::forward<Angaben>(angaben)...);
}

// A dialog stands open once: of two, the one closed last would write its old screen over what was
// entered in the other. So whoever opens one by its kind gets the one that is open, or else a new
// one.
template <class Form> void DialogÖffnen()
{
    DialogÖffnen(OffenerOderNeuer<Form>());
}
template <class Form, class... Angaben> void DialogDanebenÖffnen(Angaben &&...angaben)
{
    DialogDanebenÖffnen(OffenerOderNeuer<Form>(std::forward<Angaben>(angaben)...));
}
template <class Form, class... Angaben>
void DialogAnStelleÖffnen(QWidget *form, Angaben &&...angaben)
{
    DialogAnStelleÖffnen(form, OffenerOderNeuer<Form>(std::forward<Angaben>(angaben)...));
}

/// What a dialog does last: enables and maximises the main window and gives the focus back to the
/// control that had it.
void HauptfensterZurück();

/// Closes and deletes every window of the program without asking any of them.
void AlleFormenEntladen();

} // namespace altardienst

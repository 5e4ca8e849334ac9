// The fixture of the tests of the start dialog.
#pragma once

#include "Fensterstand.h"
#include "core/Allgemein.h"
#include "shell/StartForm.h"

#include <QPointer>

namespace altardienst {

/// The disk holds a parish with a period of 28 days; the proposal is Saturday, 28.11.2026.
class Startstand : public Fensterstand {
  protected:
    Startstand()
    {
        Konfig.Tage = 28;
        AufFestplatteSpeichern();
        TabellenLeeren();
    }

    StartForm &Öffnen()
    {
        form = new StartForm([this] { ++gestartet; });
        Zeigen(form);
        return *form;
    }

    static Datum Tag(int tag, int monat, int jahr = 2026) { return DatumAus({jahr, monat, tag}); }

    Text Zeigt(const char *name) const { return Aufschrift(Finden(form, name)); }

    void Eingeben(const char *name, const char *text) const
    {
        Finden<QLineEdit>(form, name)->setText(QString::fromUtf8(text));
    }

    void Drehen(const char *spin, const char *richtung) const
    {
        Klick(Finden(Finden(form, spin), richtung));
    }

    QPointer<StartForm> form;
    int gestartet = 0;
};

} // namespace altardienst

// The fixture of the tests of the dialog that writes the plan as a text file.
#pragma once

#include "Formstand.h"
#include "application/Anwendung.h"
#include "printing/DialogForm.h"

#include <QMainWindow>
#include <QPointer>

namespace altardienst {

/// The disk holds the directory texte and the file plan.txt; the plan has one mass.
class Dialogstand : public Formstand<DialogForm> {
  protected:
    using Liste = std::vector<Text>;
    using path = std::filesystem::path;

    Dialogstand()
    {
        std::filesystem::create_directories(Festplatte / "texte");
        DateiSchreiben(Festplatte / "plan.txt", "alt\r\n");
        Konfig.Gemeinde = "St. Martin";
        MesseMitDienern(DatumAus({2026, 11, 29}), 0);
        haupt->setObjectName("Haupt");
        haupt->showMaximized();
        Zeigen(haupt);
        HauptfensterSetzen(haupt);
    }

    DialogForm &Öffnen()
    {
        form = new DialogForm;
        DialogÖffnen(form);
        Zeigen(form);
        return *form;
    }

    Text Ziel() const { return Zeigt(form->Datei); }
    static Text Pfad(const path &pfad) { return TextVon(pfad); }

    bool WählerStehtAuf(const char *name) const
    {
        const bool gewählt = Angekreuzt(name);
        EXPECT_NE(form->Anhang->isChecked(), form->Überschreib->isChecked()); // exactly one
        return gewählt;
    }

    static Liste Zeilen(const QListWidget *liste)
    {
        Liste zeilen;
        for (int i = 0; i < liste->count(); ++i)
            zeilen.push_back(liste->item(i)->text().toStdString());
        return zeilen;
    }

    void VerzeichnisÖffnen(int zeile) const
    {
        form->Wahl.Verzeichnis->setFocus();
        form->Wahl.Verzeichnis->setCurrentRow(zeile);
        QTest::keyClick(form->Wahl.Verzeichnis, Qt::Key_Return);
    }

    bool ZurückImHauptfenster() const
    {
        return !form && haupt->isEnabled() && haupt->isMaximized();
    }

    const std::string plan = "Messen der Pfarrei St. Martin\r\n"
                             "vom 29.11.2026 bis 29.11.2026 \r\n"
                             "\r\n"
                             "Sonntag, 29.11.2026 , 10:00Uhr, Messe\r\n"
                             "\r\n";
    QPointer<QMainWindow> haupt = new QMainWindow;
};

} // namespace altardienst

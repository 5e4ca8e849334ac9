// The six windows of the people on one small parish, for what all of them have in common.
#pragma once

#include "people/GruppeForm.h"
#include "people/HelferForm.h"
#include "people/MeßdienerForm.h"
#include "people/Personen.h"
#include "people/Personenstand.h"

#include <QCheckBox>
#include <QClipboard>

namespace altardienst {

class Personenfenster : public Personenstand {
  protected:
    Personenfenster()
    {
        for (const char *name : {"Rot", "Blau", "Grün"})
            GruppeAnlegen(name);
        for (const auto &[vor, nach] : Leute) {
            const int i = MeßdienerAnlegen(vor, nach);
            Meßdiener.Gruppe[i] = "Rot";
            Meßdiener.Geburtstag[i] = Meßdiener.Eintrittsdatum[i] = Heute;
            const int h = HelferAnlegen(vor, nach, "Lektor");
            Helfer.Geburtstag[h] = Heute;
        }
        // Absences that no rule rewrites.
        for (auto *spalte :
             {&Meßdiener.Von1, &Meßdiener.Bis1, &Meßdiener.Von2, &Meßdiener.Bis2, &Meßdiener.Von3,
              &Meßdiener.Bis3, &Meßdiener.Von4, &Meßdiener.Bis4, &Meßdiener.Von5, &Meßdiener.Bis5})
            for (int i = 0; i <= 3; ++i)
                (*spalte)[i] = Heute;
        for (auto *spalte :
             {&Helfer.Von1, &Helfer.Bis1, &Helfer.Von2, &Helfer.Bis2, &Helfer.Von3, &Helfer.Bis3})
            for (int i = 0; i <= 3; ++i)
                (*spalte)[i] = Heute;
    }

    /// Opens the window with that name; a dialog is opened from its editor.
    void Öffnen(const Text &name)
    {
        delete form;
        delete Editor;
        if (name == "Meßdiener" || name == "NeuMeßdiener")
            Editor = new MeßdienerForm;
        else if (name == "Helfer" || name == "NeuerHelfer")
            Editor = new HelferForm;
        else
            Editor = new GruppeForm;
        Zeigen(Editor);
        form = Editor;
        if (Text(Editor->objectName().toStdString()) == name)
            return;
        const char *öffner = name == "NeuMeßdiener"  ? "NeuDiener"
                             : name == "NeuerHelfer" ? "NeuHelfer"
                                                     : "NEWGroup";
        Auslösen(öffner);
        form = Fenster(name.c_str());
        if (!QTest::qWaitForWindowActive(form))
            throw std::runtime_error(name + " did not become active");
    }

    /// Pastes over the content of a box, without keys and focus.
    void EinfügenAuslösen(const char *box, const Text &text)
    {
        QWidget *control = Finden(box);
        auto *feld = qobject_cast<QLineEdit *>(control);
        if (!feld)
            feld = static_cast<QComboBox *>(control)->lineEdit();
        feld->selectAll();
        if (text.empty())
            return feld->del();
        QApplication::clipboard()->setText(Anzeige(text));
        feld->paste();
    }

    static inline const std::array<std::pair<const char *, const char *>, 3> Leute = {
        {{"Anna", "Adler"}, {"Bea", "Berg"}, {"Cem", "Cohn"}}};
    QPointer<QWidget> Editor;
};

} // namespace altardienst

// The fixture of the tests of the forms that show one record at a time.
#pragma once

#include "Fensterstand.h"
#include "planning/Messenbild.h"

#include <QApplication>
#include <QClipboard>
#include <QPointer>

#include <map>

namespace altardienst {

class Formstand : public Fensterstand {
  protected:
    QLineEdit *Feld(const char *name) const { return Finden<QLineEdit>(form, name); }
    Text Zeigt(const char *name) const { return Aufschrift(Finden(form, name)); }

    /// Puts a text into a box in one change, as pasting over its content does.
    void Eingeben(const char *name, const char *text) const
    {
        Feld(name)->setText(QString::fromUtf8(text));
    }

    void Drücken(const char *knopf) const { Klick(Finden<QPushButton>(form, knopf)); }
    void Drehen(const char *spin, const char *richtung) const
    {
        Klick(Finden(Finden<SpinButton>(form, spin), richtung));
    }
    void Taste(const char *control, Qt::Key taste) const
    {
        FokusAuf(Finden(form, control));
        QTest::keyClick(Finden(form, control), taste);
    }

    /// What the label of each control says, by the name of the control.
    std::map<Text, Text> Beschriftungen() const
    {
        std::map<Text, Text> texte;
        for (const QLabel *label : form->findChildren<QLabel *>())
            if (label->buddy())
                texte[label->buddy()->objectName().toStdString()] = label->text().toStdString();
        return texte;
    }

    /// What text boxes show, by their names.
    std::map<Text, Text> Gezeigt(const std::vector<const char *> &namen) const
    {
        std::map<Text, Text> texte;
        for (const char *name : namen)
            texte[name] = Zeigt(name);
        return texte;
    }

    QPointer<QWidget> form;
};

} // namespace altardienst

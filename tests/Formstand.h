// The fixture of the tests of one form, whose controls are called by their names.
#pragma once

#include "Fensterstand.h"

#include <QPointer>

#include <map>

namespace altardienst {

/// The words of Fensterstand.h for the controls of `form`, by name. Controls of other windows are
/// passed as they are.
template <class Form = QWidget> class Formstand : public Fensterstand {
  protected:
    template <class Control = QWidget> Control *Finden(const Text &name) const
    {
        return altardienst::Finden<Control>(form, name);
    }
    Text Zeigt(const Text &name) const { return altardienst::Zeigt(Finden(name)); }
    bool Angekreuzt(const Text &name) const { return altardienst::Angekreuzt(Finden(name)); }

    void Klick(const Text &name) const { altardienst::Klick(Finden(name)); }
    void Ankreuzen(const Text &name) const { altardienst::Ankreuzen(Finden(name)); }
    void Drehen(const Text &spin, const Text &richtung) const
    {
        altardienst::Drehen(Finden(spin), richtung);
    }
    void FokusAuf(const Text &name) const { altardienst::FokusAuf(Finden(name)); }
    void Tippen(const Text &name, const Text &text) const
    {
        altardienst::Tippen(Finden(name), text);
    }
    void Einfügen(const Text &name, const Text &text) const
    {
        altardienst::Einfügen(Finden(name), text);
    }
    void Taste(const Text &name, Qt::Key taste) const { altardienst::Taste(Finden(name), taste); }

    void Einsetzen(const Text &name, const Text &text) const
    {
        altardienst::Einsetzen(Finden(name), text);
    }
    void Auslösen(const Text &name) const { altardienst::Auslösen(Finden<QAbstractButton>(name)); }
    void DrehungAuslösen(const Text &spin, int richtung) const
    {
        altardienst::DrehungAuslösen(Finden(spin), richtung);
    }
    void FokusWeg(const Text &name) const { altardienst::FokusWeg(Finden(name)); }

    // The words for any control, which those above would hide.
    template <class Control = QWidget>
    static Control *Finden(const QObject *fenster, const Text &name)
    {
        return altardienst::Finden<Control>(fenster, name);
    }
    static Text Zeigt(const QWidget *control) { return altardienst::Zeigt(control); }
    static bool Angekreuzt(const QWidget *control) { return altardienst::Angekreuzt(control); }
    static void Klick(QWidget *control) { altardienst::Klick(control); }
    static void Ankreuzen(QWidget *option) { altardienst::Ankreuzen(option); }
    static void Drehen(QWidget *spin, const Text &richtung) { altardienst::Drehen(spin, richtung); }
    static void FokusAuf(QWidget *control) { altardienst::FokusAuf(control); }
    static void Tippen(QWidget *feld, const Text &text) { altardienst::Tippen(feld, text); }
    static void Einfügen(QWidget *feld, const Text &text) { altardienst::Einfügen(feld, text); }
    static void Taste(Qt::Key taste) { altardienst::Taste(taste); }
    static void Taste(QWidget *control, Qt::Key taste) { altardienst::Taste(control, taste); }
    static void Einsetzen(QWidget *feld, const Text &text) { altardienst::Einsetzen(feld, text); }
    static void Auslösen(QAbstractButton *knopf) { altardienst::Auslösen(knopf); }
    static void DrehungAuslösen(QWidget *spin, int richtung)
    {
        altardienst::DrehungAuslösen(spin, richtung);
    }
    static void FokusWeg(QWidget *feld) { altardienst::FokusWeg(feld); }

    /// What controls show, by their names.
    std::map<Text, Text> AlleZeigen(const std::vector<const char *> &namen) const
    {
        std::map<Text, Text> texte;
        for (const char *name : namen)
            texte[name] = Zeigt(name);
        return texte;
    }

    /// What the label of each control says, by the name of the control.
    std::map<Text, Text> Beschriftungen() const
    {
        std::map<Text, Text> texte;
        for (const QLabel *label : form->template findChildren<QLabel *>())
            if (label->buddy())
                texte[label->buddy()->objectName().toStdString()] = label->text().toStdString();
        return texte;
    }

    QPointer<Form> form;
};

} // namespace altardienst

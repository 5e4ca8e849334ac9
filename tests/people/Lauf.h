// The fixture of the long random walks through the editors of the people against a model of their
// rules.
#pragma once

#include "Formstand.h"
#include "people/Modellschirm.h"

#include <QApplication>

#include <deque>
#include <map>

namespace altardienst {

template <class Form, class Modell> class Lauf : public Formstand<Form> {
  protected:
    using Formstand<Form>::form;
    using Formstand<Form>::Antworten;
    using Formstand<Form>::GezeigteMeldungen;

    explicit Lauf(unsigned saat) : wanderer(saat) {}

    /// Does one thing to the window and the same to the model, and notes it in `zuletzt`.
    virtual void Handlung() = 0;
    /// Expects tables and window to match the model.
    virtual void Vergleichen() = 0;

    /// Opens the window on the tables as they are.
    void Beginnen()
    {
        Öffnen();
        modell.Beginnen();
    }

    void Laufen()
    {
        constexpr int Schritte = 20000;
        std::deque<Text> verlauf;
        for (int schritt = 0; schritt < Schritte; ++schritt) {
            zuletzt.clear();
            Handlung();
            verlauf.push_back(zuletzt);
            if (verlauf.size() > 8)
                verlauf.pop_front();
            Vergleichen();
            if (this->HasFailure()) {
                for (const Text &handlung : verlauf)
                    ADD_FAILURE() << handlung;
                FAIL() << "at step " << schritt;
            }
            GezeigteMeldungen.clear();
            modell.Meldungen.clear();
        }
    }

    /// Into the box of the window and into that of the model.
    void BeidenEinsetzen(const Text &box, const Text &text)
    {
        altardienst::Einsetzen(Gemerkt(box), text);
        modell.Setzen(box, text);
        zuletzt += box + "=" + text;
    }

    int Richtung() { return wanderer.Wurf(2) * 2 - 1; }

    /// Moves one record forward or back; true if by the spin button.
    bool Geblättert(int richtung)
    {
        const bool drehen = wanderer.Wurf(2) == 0;
        if (drehen)
            this->DrehungAuslösen("DPM", richtung);
        else
            this->Auslösen(richtung > 0 ? "PLUS" : "MINUS");
        zuletzt += richtung > 0 ? "vor" : "zurück";
        return drehen;
    }

    void Löschen(const char *knopf)
    {
        const bool ja = wanderer.Wurf(3) > 0;
        Antworten = {ja};
        this->Auslösen(knopf);
        modell.Löschen(ja);
        zuletzt += "löschen";
    }

    /// Fills in the dialog that this button opens and usually presses OK; then the model runs
    /// `neu`.
    void Anlegen(const char *knopf, const char *dialog,
                 const std::vector<std::pair<const char *, Text>> &boxen,
                 const std::function<void()> &neu)
    {
        this->Auslösen(knopf);
        QWidget *fenster = this->Fenster(dialog);
        zuletzt += "neu";
        for (const auto &[box, text] : boxen) {
            altardienst::Einsetzen(altardienst::Finden(fenster, box), text);
            zuletzt += " " + text;
        }
        if (wanderer.Wurf(4) > 0) {
            altardienst::Auslösen(altardienst::Finden<QAbstractButton>(fenster, "OKButton"));
            neu();
        }
        if (fenster->isVisible())
            fenster->close();
        Wanderer::Aufräumen();
    }

    /// Closes the window by the button or its close box; reopens it if it closed.
    void Schließen()
    {
        const bool ende = wanderer.Wurf(2) == 0;
        zuletzt += ende ? "Ende" : "schließen";
        if (ende)
            this->Auslösen("Ende");
        else
            form->close();
        const bool zu = modell.Schließen(ende);
        ASSERT_EQ(form->isHidden(), zu);
        if (!zu)
            return;
        delete form;
        Öffnen();
        modell.Öffnen();
    }

    /// Compares all boxes, and the messages shown.
    void SchirmVergleichen()
    {
        for (const auto &[box, text] : modell.Texte)
            ASSERT_EQ(altardienst::Zeigt(Gemerkt(box)), text) << box;
        ASSERT_EQ(GezeigteMeldungen, modell.Meldungen);
    }

    Wanderer wanderer;
    Modell modell;
    Text zuletzt;

  private:
    /// Each control is looked for once: a walk asks for it many thousand times.
    QWidget *Gemerkt(const Text &name)
    {
        QWidget *&control = gefunden[name];
        if (!control)
            control = this->Finden(name);
        return control;
    }

    void Öffnen()
    {
        gefunden.clear();
        form = new Form;
        form->show();
    }

    std::map<Text, QWidget *> gefunden;
};

} // namespace altardienst

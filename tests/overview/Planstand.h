// The fixture of the tests of the plan in the main window.
#pragma once

#include "overview/Planansicht.h"
#include "shell/Hauptstand.h"

#include <QScrollBar>

namespace altardienst {

/// Four servers, two helpers and four masses in two weeks. Anna serves twice, Doris not at all; in
/// the last mass a place is open.
class Planstand : public Hauptstand {
  protected:
    Planstand()
    {
        MeßdienerAnlegen("Anna", "Adler");
        MeßdienerAnlegen("Anna", "Arndt");
        MeßdienerAnlegen("Cem", "Cohn");
        MeßdienerAnlegen("Doris", "Dorn");
        HelferAnlegen("Lea", "Lang", "Lektor");
        HelferAnlegen("Kai", "Kurz", "Kantor");
        for (const int tag : {28, 29}) // Saturday and Sunday
            MesseAnlegen(DatumAus({2026, 11, tag}));
        MesseAnlegen(DatumAus({2026, 12, 3}));
        MesseAnlegen(DatumAus({2026, 12, 6}));
        Messe.Messeart[1] = "Hochamt";
        Messe.Leuchter[1] = 1;
        Messe.Allgemein[1] = 1;
        Messe.LektorZahl[1] = 1;
        Messe.Lektor1Vor[1] = "Lea";
        Messe.Lektor1Nach[1] = "Lang";
        Stellen(0, 1, 0);
        Stellen(0, 2, 2);
        Stellen(1, 1, 1);
        Stellen(1, 2, 3);
        Stellen(2, 1, 0);
        Stellen(2, 2, 2);
        Stellen(3, 1, 1);
        Konfig.StartDatum = DatumAus({2026, 11, 28});
        Konfig.Tage = 14;
        Konfig.DiffGröße = 50;
    }

    static void MesseAnlegen(Datum tag)
    {
        const int i = MesseMitDienern(tag, 2);
        Messe.Allgemein[i] = 2;
    }

    /// So many masses that they do not fit into the window.
    static void VieleMessen()
    {
        for (int tag = 7; tag <= 60; ++tag)
            MesseAnlegen(DatumAus({2026, 12, 1}) + tag);
    }

    /// Puts server `diener` into slot `slot` of the mass.
    static void Stellen(int messe, int slot, int diener)
    {
        Messe.DienerVor[messe][slot] = Meßdiener.Vorname[diener];
        Messe.DienerNach[messe][slot] = Meßdiener.Nachname[diener];
    }

    /// Opens the main window and shows the plan.
    Planansicht &PlanÖffnen()
    {
        Öffnen();
        QTest::keyClick(haupt, Qt::Key_F5);
        plan = haupt->Plan;
        return *plan;
    }

    /// The next run of the program, with the plan as it was left.
    void Wiederkommen()
    {
        delete haupt;
        Öffnen();
        plan = haupt->Plan;
    }

    QModelIndex Zelle(int zeile, int spalte) const
    {
        return plan->Tafel->model()->index(zeile, spalte);
    }
    Planmodell *Modell() const { return static_cast<Planmodell *>(plan->Tafel->model()); }
    /// The columns of the places begin here.
    static constexpr int Plätze = Planmodell::Kopfspalten;

    Text Steht(int zeile, int spalte) const
    {
        return Zelle(zeile, spalte).data().toString().toStdString();
    }

    /// Where the row of a mass and the column of a place meet, as the user sees it.
    QWidget *Fläche(const QModelIndex &zelle) const
    {
        return zelle.column() < Plätze && plan->Tafel->Vorn->isVisible()
                   ? plan->Tafel->Vorn->viewport()
                   : plan->Tafel->viewport();
    }
    QPoint Punkt(const QModelIndex &zelle) const
    {
        const QTableView *ansicht =
            Fläche(zelle) == plan->Tafel->viewport() ? plan->Tafel : plan->Tafel->Vorn;
        return ansicht->visualRect(zelle).center();
    }
    void Anklicken(const QModelIndex &zelle) const
    {
        plan->Tafel->scrollTo(zelle);
        QTest::mouseClick(Fläche(zelle), Qt::LeftButton, {}, Punkt(zelle));
    }
    void Doppelklicken(const QModelIndex &zelle) const
    {
        Anklicken(zelle);
        QTest::mouseDClick(Fläche(zelle), Qt::LeftButton, {}, Punkt(zelle));
    }
    void Drücken(int taste, Qt::KeyboardModifiers mit = {}) const
    {
        QTest::keyClick(plan->Tafel, static_cast<Qt::Key>(taste), mit);
    }

    QPointer<Planansicht> plan;
};

} // namespace altardienst

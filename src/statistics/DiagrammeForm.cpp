// Age and membership of the servers as charts.
#include "statistics/DiagrammeForm.h"

#include "application/Anwendung.h"
#include "controls/Bausteine.h"
#include "core/Umwandlung.h"
#include "platform/Uhr.h"
#include "statistics/Diagrammbild.h"
#include "statistics/Meßdienerstatistik.h"
#include "statistics/StatistikForm.h"
#include "statistics/Zahlentafel.h"

#include <QCloseEvent>
#include <QHBoxLayout>

namespace altardienst {
namespace {

std::vector<Text> Jahre(int von, int bis, const char *dahinter)
{
    std::vector<Text> klassen;
    for (int jahre = von; jahre <= bis; ++jahre)
        klassen.push_back(ZahlText(jahre) + dahinter);
    return klassen;
}

} // namespace

DiagrammeForm::DiagrammeForm(StatistikForm *statistik)
    : F1(Benannt(new QWidget, "F1")), Atlert(Benannt(new QRadioButton("Alter"), "Atlert")),
      Zug(Benannt(new QRadioButton("Zugehörigkeit"), "Zug")),
      Meßdierne(Benannt(new QRadioButton("Meßdiener"), "Meßdierne")),
      MSChart1(new Diagrammbild("MSChart1", "Alter der Meßdiener")),
      MSChart2(new Diagrammbild("MSChart2", "Zugehörigkeit der Meßdiener in Jahren")),
      MSChart3(
          new Diagrammbild("MSChart3", "Alter und Zugehörigkeit der Meßdiener Gegenübergestellt")),
      Druck(Knopf("Druck", "Drucken")), OKButton(Knopf("OKButton", "OK")),
      CancelButton(Knopf("CancelButton", "Abbrechen")), statistik(statistik)
{
    Benannt(this, "Diagramme");
    setWindowTitle("Diagramm");
    Anordnen();
    Verbinden();
    Füllen();
    Atlert->setChecked(true);
}

void DiagrammeForm::Anordnen()
{
    auto *wahl = new QHBoxLayout(F1);
    wahl->setContentsMargins(0, 0, 0, 0);
    wahl->setSpacing(18);
    for (QRadioButton *option : {Atlert, Zug, Meßdierne})
        wahl->addWidget(option);
    wahl->addStretch();

    auto *spalte = Fensterspalte(this, Luft::Wenig);
    spalte->addWidget(F1);
    for (Diagrammbild *bild : {MSChart1, MSChart2, MSChart3}) {
        bild->hide();
        spalte->addWidget(bild, 1);
    }
    spalte->addLayout(Knopfreihe({Druck, OKButton, CancelButton}));
    Atlert->setFocus();
    resize(Diagrammfenster);
}

void DiagrammeForm::Verbinden()
{
    connect(Atlert, &QRadioButton::toggled, MSChart1, &QWidget::setVisible);
    connect(Zug, &QRadioButton::toggled, MSChart2, &QWidget::setVisible);
    connect(Meßdierne, &QRadioButton::toggled, MSChart3, &QWidget::setVisible);
    DruckUndEndeVerbinden(this, Druck, OKButton);
    connect(CancelButton, &QPushButton::clicked, this, [this] { close(); });
}

void DiagrammeForm::Füllen()
{
    MSChart1->BalkenZeigen({"Alter", Jahre(9, 20, " Jahre ")}, "Anzahl Meßdiener",
                           ZahlenIn(statistik->a));
    MSChart2->BalkenZeigen({"Zugehörigkeit", Jahre(0, 15, " Jahre ")}, "Anzahl Meßdiener",
                           ZahlenIn(statistik->d));

    Kreuztabelle tabelle = AlterGegenZugehörigkeit(Uhr.Heute());
    std::vector<int> anzahl;
    for (int z = 0; z <= 15; ++z)
        for (int alter = 1; alter <= 16; ++alter)
            anzahl.push_back(tabelle[z][alter]);
    MSChart3->KreuztafelZeigen({"Alter", Jahre(9, 24, " Jahre (Alter)")},
                               {"Zugehörigkeit", Jahre(0, 15, " Jahre (Zugehörigkeit)")}, anzahl);
}

void DiagrammeForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    if (statistik)
        DialogDanebenÖffnen(statistik);
}

} // namespace altardienst

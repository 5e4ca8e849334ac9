// Heights of the servers as a chart.
#include "statistics/Diagramm2Form.h"

#include "application/Anwendung.h"
#include "controls/Bausteine.h"
#include "statistics/Diagrammbild.h"
#include "statistics/Statistik2Form.h"
#include "statistics/Zahlentafel.h"

#include <QCloseEvent>

namespace altardienst {

Diagramm2Form::Diagramm2Form(Statistik2Form *statistik)
    : MSChart1(new Diagrammbild("MSChart1", "Größe der Meßdiener")),
      Druck(Knopf("Druck", "Drucken")), OKButton(Knopf("OKButton", "OK")),
      CancelButton(Knopf("CancelButton", "Abbrechen")), statistik(statistik)
{
    Benannt(this, "Diagramm2");
    setWindowTitle("Diagramm");
    Anordnen();
    Verbinden();
    Füllen();
}

void Diagramm2Form::Anordnen()
{
    auto *spalte = Fensterspalte(this, Luft::Wenig);
    spalte->addWidget(MSChart1, 1);
    spalte->addLayout(Knopfreihe({Druck, OKButton, CancelButton}));
    OKButton->setFocus();
    resize(Diagrammfenster);
}

void Diagramm2Form::Verbinden()
{
    DruckUndEndeVerbinden(this, Druck, OKButton);
    connect(CancelButton, &QPushButton::clicked, this, [this] { close(); });
}

void Diagramm2Form::Füllen()
{
    std::vector<Text> klassen;
    for (const QLabel *klasse : statistik->a)
        klassen.push_back(klasse->text().toStdString() + " cm ");
    MSChart1->BalkenZeigen({"Größe", klassen}, "Anzahl Meßdiener", ZahlenIn(statistik->b));
}

void Diagramm2Form::closeEvent(QCloseEvent *ereignis)
{
    ereignis->accept();
    if (statistik)
        DialogDanebenÖffnen(statistik);
}

} // namespace altardienst

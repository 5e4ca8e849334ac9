// Heights of the servers.
#include "statistics/Statistik2Form.h"

#include "application/Anwendung.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "core/Zahlenmuster.h"
#include "core/tables.h"
#include "platform/Uhr.h"
#include "statistics/Diagramm2Form.h"
#include "statistics/Meßdienerstatistik.h"
#include "statistics/Teilen.h"
#include "statistics/Zahlentafel.h"

namespace altardienst {

Statistik2Form::Statistik2Form()
    : Tagchus(Beschriftung("Tagchus", "")), a(Zahlfelder<13>("a")), b(Zahlfelder<13>("b")),
      c(Zahlfelder<13>("c")), G(Zahlfeld("G")), A(Zahlfeld("A")),
      Diagramm(Knopf("Diagramm", "Diagramm")), Druck(Knopf("Druck", "Drucken")),
      Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Statistik2");
    setWindowTitle("Statistik (Meßdienergröße)");
    Anordnen();
    Verbinden();
    Füllen();
}

void Statistik2Form::Anordnen()
{
    auto *tafel = new Zahlentafel({"Größe in cm", "Anzahl absolut", "Anzahl relativ"});
    for (std::size_t k = 0; k < a.size(); ++k) {
        a[k]->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        tafel->Zeile(a[k], {b[k], c[k]});
    }
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(Satz({Beschriftung("", "Größe der Meßdiener am"), Tagchus}));
    spalte->addLayout(tafel);
    spalte->addLayout(Satz({Beschriftung("", "Durchschnittsgröße "), G, Beschriftung("", "cm")}));
    spalte->addLayout(Satz({Beschriftung("", "Abweichung von"), A, Beschriftung("", "cm")}));
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({Diagramm, Druck, Ende}));
    setMinimumWidth(400);
    Ende->setFocus();
}

void Statistik2Form::Verbinden()
{
    connect(Diagramm, &QPushButton::clicked, this,
            Offen([this] { DialogAnStelleÖffnen<Diagramm2Form>(this, this); }));
    DruckUndEndeVerbinden(this, Druck, Ende);
}

void Statistik2Form::Füllen()
{
    const Größenstatistik s = GrößenAuswerten();
    Setzen(Tagchus, KurzesDatum(Uhr.Heute()));
    for (std::size_t k = 0; k < a.size(); ++k) {
        Setzen(a[k], Größenklasse(static_cast<int>(k)));
        Setzen(b[k], ZahlText(s.Anzahl[k]));
        Setzen(c[k], Format(Geteilt(s.Anzahl[k], Meßdiener.Anzahl), "##,##0.00%"));
    }
    Setzen(G, Format(s.Mittel, "##,####0.000"));
    Setzen(A, Format(s.Abweichung, "##,####0.000"));
}

} // namespace altardienst

// The two tables of the window that reads people in.
#include "exchange/Einlesetafeln.h"

#include "controls/Bausteine.h"
#include "controls/Textwahl.h"
#include "exchange/Einlesetexte.h"
#include "fairness/Zelle.h"
#include "overview/Zeichen.h"

#include <optional>

namespace altardienst {
namespace {

std::optional<QColor> Farbe(Vorschauzeile::Stand stand, const QPalette &palette)
{
    switch (stand) {
    case Vorschauzeile::Stand::Zweifelhaft:
        return Stufenfarbe(Stufe::Verstoß, palette);
    case Vorschauzeile::Stand::Geändert:
        return Stufenfarbe(Stufe::Hinweis, palette);
    case Vorschauzeile::Stand::Gleich:
        return Nebenfarbe(palette);
    case Vorschauzeile::Stand::Neu:
        break;
    }
    return std::nullopt;
}

} // namespace

QComboBox *Bedeutungswahl(Personenart art, int spalte, int bedeutung)
{
    auto *wahl = new QComboBox;
    wahl->setObjectName(QString("Bedeutung%1").arg(spalte + 1));
    wahl->setAccessibleName("wird zu");
    RadSperren(wahl);
    wahl->addItem("(nicht einlesen)", KeineSpalte);
    for (const Doppelspalte &doppelte : Doppelspalten)
        wahl->addItem(doppelte.Name, doppelte.Nummer);
    int nr = 0;
    for (const Listenspalte &eine : SpaltenFür(art))
        wahl->addItem(Anzeige(eine.Name), nr++);
    wahl->setCurrentIndex(wahl->findData(bedeutung));
    return wahl;
}

void VorschauzeileZeigen(QTableWidget *tafel, int zeile, Personenart art, const Vorschauzeile &eine,
                         bool gewählt)
{
    auto *nimm = new QTableWidgetItem;
    nimm->setData(Qt::AccessibleTextRole, "übernehmen");
    if (eine.Unmöglich || eine.Felder.empty()) {
        nimm->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    } else {
        nimm->setFlags(nimm->flags() | Qt::ItemIsUserCheckable);
        nimm->setCheckState(gewählt ? Qt::Checked : Qt::Unchecked);
    }
    tafel->setItem(zeile, SNimm, nimm);
    QTableWidgetItem *was = Textzelle(Standwort(eine.Was));
    if (const auto farbe = Farbe(eine.Was, tafel->palette()))
        was->setForeground(*farbe);
    tafel->setItem(zeile, SWas, was);
    tafel->setItem(zeile, SName, Textzelle(Zeilenname(eine)));
    tafel->setItem(zeile, SInhalt, Textzelle(Zeileninhalt(art, eine)));
}

} // namespace altardienst

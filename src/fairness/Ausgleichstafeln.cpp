// The tables of "Plan ausgleichen".
#include "fairness/Ausgleichstafeln.h"

#include "controls/Bausteine.h"
#include "controls/Lesetafel.h"
#include "core/Messenname.h"
#include "core/Umwandlung.h"
#include "fairness/Zelle.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace altardienst {
namespace {

enum Zahlenzeile { Verstöße, Wenigste, Meiste, Ungleichheit, Paare, Zahlenzeilen };
enum Zahlenspalte { DienerVorher, DienerNachher, HelferVorher, HelferNachher, Zahlenspalten };
enum Anteilspalte { Name, Wer, Soll, Vorher, Nachher, Balken, Anteilspalten };
enum Änderungsspalte { MesseSpalte, Platz, Bisher, Künftig, Änderungsspalten };

// What a bar is drawn from, in thousandths.
constexpr int VorherRolle = Qt::UserRole + 1;
constexpr int NachherRolle = Qt::UserRole + 2;
constexpr int SollRolle = Qt::UserRole + 3;
constexpr int MeisteRolle = Qt::UserRole + 4;

/// The services of a person as two bars, above those of before, below those of after, and a line at
/// the due share.
class Balkenmaler : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *maler, const QStyleOptionViewItem &option,
               const QModelIndex &stelle) const override
    {
        QStyledItemDelegate::paint(maler, option, stelle);
        const QRect feld = option.rect.adjusted(4, 3, -4, -3);
        const double meiste = std::max(1, stelle.data(MeisteRolle).toInt());
        const auto breite = [&](int rolle) {
            return static_cast<int>(stelle.data(rolle).toInt() / meiste * feld.width());
        };
        const int höhe = feld.height() / 3;
        const bool gewählt = (option.state & QStyle::State_Selected) != 0;
        const QPalette &farben = option.palette;
        const QColor kräftig =
            gewählt ? farben.color(QPalette::HighlightedText) : farben.color(QPalette::Highlight);
        QColor blaß = gewählt ? kräftig : farben.color(QPalette::Text);
        blaß.setAlphaF(0.35);
        maler->fillRect(QRect(feld.left(), feld.top(), breite(VorherRolle), höhe), blaß);
        maler->fillRect(QRect(feld.left(), feld.top() + höhe + 1, breite(NachherRolle),
                              feld.height() - höhe - 1),
                        kräftig);
        maler->setPen(gewählt ? kräftig : farben.color(QPalette::Text));
        const int soll = feld.left() + breite(SollRolle);
        maler->drawLine(soll, feld.top() - 2, soll, feld.bottom() + 2);
    }
};

QString Gerundet(double wert, int stellen)
{
    return QLocale(QLocale::German).toString(wert, 'f', stellen);
}

void SpalteZeigen(QTableWidget *tafel, int spalte, bool da, const Ausgleichszahlen &zahlen)
{
    tafel->setColumnHidden(spalte, !da);
    const std::array<QString, Zahlenzeilen> texte = {
        QString::number(zahlen.Verstöße), QString::number(zahlen.Wenigste),
        QString::number(zahlen.Meiste), Gerundet(zahlen.Ungleichheit, 2),
        spalte < HelferVorher ? QString::number(zahlen.Paare) : QString()};
    for (int zeile = 0; zeile < Zahlenzeilen; ++zeile)
        tafel->item(zeile, spalte)->setText(texte.at(static_cast<std::size_t>(zeile)));
}

} // namespace

QTableWidget *Zahlentafel()
{
    QTableWidget *tafel =
        Lesetafel("Zahlen", "Wie gut der Plan ist",
                  {"Meßdiener bisher", "Meßdiener künftig", "Helfer bisher", "Helfer künftig"});
    tafel->setRowCount(Zahlenzeilen);
    tafel->setVerticalHeaderLabels({"Verstöße", "wenigste Dienste", "meiste Dienste",
                                    "Ungleichheit", "Wunschpartner beieinander"});
    tafel->verticalHeader()->show();
    tafel->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (int zeile = 0; zeile < Zahlenzeilen; ++zeile)
        for (int spalte = 0; spalte < Zahlenspalten; ++spalte)
            tafel->setItem(zeile, spalte, new Zahlzelle(0, ""));
    const int höhe = tafel->verticalHeader()->defaultSectionSize();
    tafel->setFixedHeight(höhe * Zahlenzeilen + tafel->horizontalHeader()->sizeHint().height() +
                          2 * tafel->frameWidth());
    tafel->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return tafel;
}

void ZahlenZeigen(QTableWidget *tafel, const Ausgleichslauf::Zwischenstand &stand)
{
    tafel->setColumnHidden(DienerVorher, true);
    tafel->setColumnHidden(HelferVorher, true);
    SpalteZeigen(tafel, DienerNachher, stand.HatDiener, stand.Diener);
    SpalteZeigen(tafel, HelferNachher, stand.HatHelfer, stand.Helfer);
}

void ZahlenZeigen(QTableWidget *tafel, const Ausgleichsergebnis &ergebnis)
{
    SpalteZeigen(tafel, DienerVorher, ergebnis.Diener.Dabei, ergebnis.Diener.Vorher);
    SpalteZeigen(tafel, DienerNachher, ergebnis.Diener.Dabei, ergebnis.Diener.Nachher);
    SpalteZeigen(tafel, HelferVorher, ergebnis.Helfer.Dabei, ergebnis.Helfer.Vorher);
    SpalteZeigen(tafel, HelferNachher, ergebnis.Helfer.Dabei, ergebnis.Helfer.Nachher);
}

QTableWidget *Anteiltafel()
{
    QTableWidget *tafel = Lesetafel("Anteile", "Dienste je Person",
                                    {"Name", "als", "Anteil", "bisher", "künftig", "Dienste"});
    tafel->setItemDelegateForColumn(Balken, new Balkenmaler(tafel));
    return tafel;
}

void AnteileZeigen(QTableWidget *tafel, const Ausgleichsergebnis &ergebnis)
{
    tafel->setSortingEnabled(false);
    tafel->setRowCount(0);
    int meiste = 1; // one scale for both
    for (const Gruppenausgleich *gruppe : {&ergebnis.Diener, &ergebnis.Helfer})
        for (const Personenanteil &anteil : gruppe->Anteile)
            meiste = std::max({meiste, anteil.Vorher, anteil.Nachher});
    const auto gruppeZeigen = [&](const Gruppenausgleich &gruppe, const auto &personen,
                                  const char *als) {
        for (const Personenanteil &anteil : gruppe.Anteile) {
            const int zeile = tafel->rowCount();
            tafel->insertRow(zeile);
            tafel->setItem(
                zeile, Name,
                Textzelle(personen.Nachname[anteil.Nr] + ", " + personen.Vorname[anteil.Nr]));
            tafel->setItem(zeile, Wer, Textzelle(als));
            tafel->setItem(zeile, Soll, new Zahlzelle(anteil.Soll, Gerundet(anteil.Soll, 1)));
            tafel->setItem(zeile, Vorher,
                           new Zahlzelle(anteil.Vorher, QString::number(anteil.Vorher)));
            tafel->setItem(zeile, Nachher,
                           new Zahlzelle(anteil.Nachher, QString::number(anteil.Nachher)));
            auto *balken = new Zahlzelle(anteil.Nachher, "");
            balken->setData(VorherRolle, anteil.Vorher * 1000);
            balken->setData(NachherRolle, anteil.Nachher * 1000);
            balken->setData(SollRolle, static_cast<int>(anteil.Soll * 1000));
            balken->setData(MeisteRolle, meiste * 1000);
            tafel->setItem(zeile, Balken, balken);
        }
    };
    gruppeZeigen(ergebnis.Diener, Meßdiener, "Meßdiener");
    gruppeZeigen(ergebnis.Helfer, Helfer, "Helfer");
    tafel->setSortingEnabled(true);
    tafel->sortByColumn(Name, Qt::AscendingOrder);
    SpaltenEinpassen(tafel); // with room for the arrow of the order
}

QTableWidget *Änderungstafel()
{
    return Lesetafel("Änderungen", "Was sich ändert", {"Messe", "Platz", "bisher", "künftig"});
}

void ÄnderungenZeigen(QTableWidget *tafel, const Ausgleichsergebnis &ergebnis)
{
    tafel->setRowCount(static_cast<int>(ergebnis.Wechsel.size()));
    for (int zeile = 0; zeile < tafel->rowCount(); ++zeile) {
        const Platzwechsel &wechsel = ergebnis.Wechsel[static_cast<std::size_t>(zeile)];
        tafel->setItem(zeile, MesseSpalte, Textzelle(Messenzeile(wechsel.Wo.Messe)));
        tafel->setItem(
            zeile, Platz,
            Textzelle(wechsel.Wo.Was == Planplatz::Art::Helfer
                          ? Platzaufschrift(wechsel.Wo)
                          : Platzaufschrift(wechsel.Wo) + ", " + DienstAm(Messe, wechsel.Wo)));
        tafel->setItem(zeile, Bisher,
                       Textzelle(VollerName(wechsel.VornameVorher, wechsel.NachnameVorher)));
        tafel->setItem(zeile, Künftig,
                       Textzelle(VollerName(wechsel.VornameNachher, wechsel.NachnameNachher)));
    }
    SpaltenEinpassen(tafel);
}

Text OffenesText(const Ausgleichsergebnis &ergebnis)
{
    Text text;
    for (const Gruppenausgleich *gruppe : {&ergebnis.Diener, &ergebnis.Helfer})
        for (const Engpass &engpass : gruppe->Offen) {
            text += Messenzeile(engpass.Was.Wo.Messe) + ": " + engpass.Satz + "\n";
            if (engpass.Bleibt)
                text += "    Der Platz ist fest vergeben und bleibt, wie er ist.\n";
            else if (engpass.Warum.empty())
                text += "    Ein anderer könnte hier stehen: „Wer kann hier?“ im Plan nennt ihn.\n";
            else
                text += "    " + engpass.Warum + "\n    " + engpass.Abhilfe + "\n";
            text += "\n";
        }
    return text.empty() ? "Keine Regel ist verletzt, und kein Platz ist frei." : text;
}

} // namespace altardienst

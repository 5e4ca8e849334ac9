// The plan in one grid, filled from full tables and scrolled through, against a plain table view of
// the same texts, which are ready.
#include "Bestand.h"
#include "Messung.h"

#include "application/Anwendung.h"
#include "application/Gemerktes.h"
#include "core/tables.h"
#include "overview/Plantafel.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QScrollBar>
#include <QTemporaryDir>

#include <cstdlib>
#include <memory>
#include <vector>

namespace altardienst {
namespace {

constexpr QSize Fenstergröße(1280, 720);

/// The texts and their places as the grid shows them.
class FertigeTexte : public QAbstractTableModel {
  public:
    explicit FertigeTexte(const Planmodell &plan) : texte(static_cast<std::size_t>(plan.rowCount()))
    {
        for (int zeile = 0; zeile < plan.rowCount(); ++zeile)
            for (int spalte = 0; spalte < plan.columnCount(); ++spalte)
                texte[static_cast<std::size_t>(zeile)].push_back(
                    plan.index(zeile, spalte).data(Qt::DisplayRole).toString());
    }

    int rowCount(const QModelIndex &) const override { return static_cast<int>(texte.size()); }
    int columnCount(const QModelIndex &) const override
    {
        return static_cast<int>(texte.front().size());
    }
    QVariant data(const QModelIndex &zelle, int rolle) const override
    {
        if (rolle != Qt::DisplayRole)
            return {};
        return texte[static_cast<std::size_t>(zelle.row())]
                    [static_cast<std::size_t>(zelle.column())];
    }

  private:
    std::vector<std::vector<QString>> texte;
};

// Never deleted, as the application is not.
std::unique_ptr<FertigeTexte> &Texte = *new std::unique_ptr<FertigeTexte>;
std::vector<int> Breiten;
int Zeilenhöhe = 0;

std::unique_ptr<Planmodell> &Modell = *new std::unique_ptr<Planmodell>;
std::unique_ptr<QTableView> &Ansicht = *new std::unique_ptr<QTableView>; // that is on the screen

void Zumachen()
{
    Ansicht.reset();
    Modell.reset();
    QCoreApplication::processEvents();
}

void Zeigen()
{
    Ansicht->resize(Fenstergröße);
    Ansicht->show();
    QCoreApplication::processEvents();
}

void PlanFüllen()
{
    Modell = std::make_unique<Planmodell>(nullptr);
    Modell->Nachziehen();
    Ansicht = std::make_unique<Plantafel>(Modell.get());
    Zeigen();
}

/// With the same widths and heights, which it is told.
void GewöhnlicheTabelleFüllen()
{
    Ansicht = std::make_unique<QTableView>();
    Ansicht->setModel(Texte.get());
    Ansicht->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    Ansicht->verticalHeader()->hide();
    Ansicht->verticalHeader()->setDefaultSectionSize(Zeilenhöhe);
    for (std::size_t spalte = 0; spalte < Breiten.size(); ++spalte)
        Ansicht->setColumnWidth(static_cast<int>(spalte), Breiten[spalte]);
    Zeigen();
}

/// Page by page to the end.
void Durchrollen()
{
    QScrollBar *balken = Ansicht->verticalScrollBar();
    for (int wo = 0; wo < balken->maximum(); wo += balken->pageStep()) {
        balken->setValue(wo);
        QCoreApplication::processEvents();
    }
}

} // namespace

void MessungenAnmelden()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "bench_plan";
    static char *argv[] = {name, nullptr};
    // Never deleted: at exit Qt has already torn down things that a shown window still refers to.
    AnwendungEinrichten(*new QApplication(argc, argv));
    static const QTemporaryDir verzeichnis; // a run leaves nothing of its columns to the user
    GemerktesIn(verzeichnis.filePath("Gemerktes.ini"));
    VollerBestand();
    PlanFüllen();
    Texte = std::make_unique<FertigeTexte>(*Modell);
    for (int spalte = 0; spalte < Modell->columnCount(); ++spalte)
        Breiten.push_back(Ansicht->columnWidth(spalte));
    Zeilenhöhe = Ansicht->rowHeight(0);
    MessungAnmelden({.Name = "Plan füllen und durchrollen",
                     .Maßstabname = "gewöhnliche Tabelle mit fertigen Texten",
                     .Gemessen = {Zumachen,
                                  [] {
                                      PlanFüllen();
                                      Durchrollen();
                                  }},
                     .Maßstab = {Zumachen,
                                 [] {
                                     GewöhnlicheTabelleFüllen();
                                     Durchrollen();
                                 }},
                     .Ziel = 1.5,
                     .Durchläufe = 15});
    MessungAnmelden({.Name = "Plan durchrollen",
                     .Maßstabname = "gewöhnliche Tabelle mit fertigen Texten",
                     .Gemessen = {[] {
                                      Zumachen();
                                      PlanFüllen();
                                  },
                                  Durchrollen},
                     .Maßstab = {[] {
                                     Zumachen();
                                     GewöhnlicheTabelleFüllen();
                                 },
                                 Durchrollen},
                     .Ziel = 1.5,
                     .Durchläufe = 15});
}

} // namespace altardienst

// Tables to read in: how they look, and columns that fit.
#include "controls/Lesetafel.h"

#include "controls/Handler.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <numeric>

namespace altardienst {
namespace {

class Spalteneinpassung : public QObject {
  public:
    explicit Spalteneinpassung(QTableView *tafel)
        : QObject(tafel), tafel(tafel), kopf(tafel->horizontalHeader())
    {
        tafel->viewport()->installEventFilter(this);
        connect(kopf, &QHeaderView::sectionResized, this, Abgefangen([this](int spalte, int, int) {
                    const bool nimmtDenRest = spalte == kopf->logicalIndex(kopf->count() - 1);
                    gezogen = gezogen || (!dabei && !nimmtDenRest && IstZuSehen());
                }));
    }

    /// That of the table, if it has one already.
    static Spalteneinpassung *Von(const QTableView *tafel)
    {
        for (QObject *kind : tafel->children())
            if (auto *eine = dynamic_cast<Spalteneinpassung *>(kind))
                return eine;
        return nullptr;
    }

    void Messen(const std::vector<int> &breiten)
    {
        const QAbstractItemView *ansicht = tafel; // there it is public
        constexpr int Zeichen = 14;               // of what will stand there
        const int leer =
            tafel->model()->rowCount() > 0 ? 0 : Zeichen * tafel->fontMetrics().averageCharWidth();
        gewünscht = breiten;
        if (breiten.empty())
            for (int spalte = 0; spalte < kopf->count(); ++spalte)
                gewünscht.push_back(kopf->isSectionHidden(spalte)
                                        ? 0
                                        : std::max(leer, ansicht->sizeHintForColumn(spalte)));
        Einpassen();
    }

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() == QEvent::Resize)
            Nebenbei([this] { Einpassen(); })();
        return false;
    }

  private:
    bool IstZuSehen() const { return tafel->isVisible(); }

    void Einpassen()
    {
        if (gezogen || kopf->count() != static_cast<int>(gewünscht.size()))
            return;
        const QScopedValueRollback wir(dabei, true);
        std::vector<int> mindestens; // headings have their last size only once they are shown
        std::vector<int> wünsche;
        mindestens.reserve(gewünscht.size());
        wünsche.reserve(gewünscht.size());
        for (int spalte = 0; spalte < kopf->count(); ++spalte) {
            mindestens.push_back(kopf->isSectionHidden(spalte) ? 0 : kopf->sectionSizeHint(spalte));
            wünsche.push_back(
                std::max(mindestens.back(), gewünscht[static_cast<std::size_t>(spalte)]));
        }
        const std::vector<int> breiten =
            EingepaßteBreiten(wünsche, mindestens, tafel->viewport()->width());
        for (int spalte = 0; spalte < kopf->count(); ++spalte)
            if (!kopf->isSectionHidden(spalte))
                kopf->resizeSection(spalte, breiten[static_cast<std::size_t>(spalte)]);
    }

    QTableView *tafel;
    QHeaderView *kopf;
    std::vector<int> gewünscht;
    bool dabei = false;
    bool gezogen = false; // by the user
};

} // namespace

void LesetafelEinrichten(QTableView *tafel)
{
    tafel->setSelectionBehavior(QAbstractItemView::SelectRows);
    tafel->setSelectionMode(QAbstractItemView::SingleSelection);
    tafel->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tafel->setTabKeyNavigation(false);
    tafel->setShowGrid(false);
    tafel->setWordWrap(false);
    tafel->verticalHeader()->hide();
    tafel->verticalHeader()->setDefaultSectionSize(tafel->fontMetrics().height() + 8);
    QHeaderView *kopf = tafel->horizontalHeader();
    kopf->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    kopf->setHighlightSections(false);
    kopf->setStretchLastSection(true);
}

void SpaltenEinpassen(QTableView *tafel, const std::vector<int> &breiten)
{
    auto *einpassung = Spalteneinpassung::Von(tafel);
    if (!einpassung)
        einpassung = new Spalteneinpassung(tafel);
    einpassung->Messen(breiten);
}

std::vector<int> EingepaßteBreiten(const std::vector<int> &gewünscht,
                                   const std::vector<int> &mindestens, int platz)
{
    const auto bei = [&](int höchstens) {
        std::vector<int> breiten(gewünscht.size());
        for (std::size_t k = 0; k < breiten.size(); ++k)
            breiten[k] = std::max(mindestens[k], std::min(gewünscht[k], höchstens));
        return breiten;
    };
    const auto summe = [](const std::vector<int> &breiten) {
        return std::accumulate(breiten.begin(), breiten.end(), 0);
    };
    if (summe(gewünscht) <= platz || summe(bei(0)) > platz)
        return gewünscht;
    int paßt = 0;
    int zuviel = *std::max_element(gewünscht.begin(), gewünscht.end());
    while (zuviel - paßt > 1) {
        const int höchstens = (paßt + zuviel) / 2;
        (summe(bei(höchstens)) <= platz ? paßt : zuviel) = höchstens;
    }
    return bei(paßt);
}

} // namespace altardienst

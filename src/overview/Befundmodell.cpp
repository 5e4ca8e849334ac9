// The findings in groups.
#include "overview/Befundmodell.h"

#include "controls/Bausteine.h"
#include "core/Messenname.h"

#include <QFont>

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

constexpr quintptr Gruppenebene =
    0; // the internal number of a heading; of a finding: its group + 1

int Zahl(const std::vector<Befund> &befunde, Stufe grad)
{
    return static_cast<int>(std::ranges::count(befunde, grad, &Befund::Grad));
}

} // namespace

Befundmodell::Befundmodell(QObject *eigner, const Planprüfung &prüfung)
    : QAbstractItemModel(eigner), prüfung(prüfung)
{
}

std::vector<Befundmodell::Gruppe> Befundmodell::Lesen() const
{
    std::vector<Gruppe> neue;
    for (Befundgruppe &gruppe : Befundgruppen(prüfung, gliederung, regeln)) {
        const int verstöße = Zahl(gruppe.Befunde, Stufe::Verstoß);
        neue.push_back({std::move(gruppe.Titel), std::move(gruppe.Befunde), verstöße,
                        static_cast<int>(neue.size())});
    }
    Ordnen(neue);
    return neue;
}

/// Where a column says nothing about the groups, these stay in their order.
void Befundmodell::Ordnen(std::vector<Gruppe> &welche) const
{
    if (sortiert < 0)
        return;
    const bool ab = folge == Qt::DescendingOrder;
    const auto nach = [ab](auto &liste, const auto &schlüssel) {
        std::stable_sort(liste.begin(), liste.end(), [&](const auto &a, const auto &b) {
            return ab ? schlüssel(b) < schlüssel(a) : schlüssel(a) < schlüssel(b);
        });
    };
    if (sortiert == Satzspalte)
        nach(welche, [](const Gruppe &g) {
            return std::pair(-g.Verstöße, -static_cast<int>(g.Befunde.size()));
        });
    else
        nach(welche, [](const Gruppe &g) { return g.Nr; });
    for (Gruppe &gruppe : welche)
        if (sortiert == Satzspalte)
            nach(gruppe.Befunde, [](const Befund &b) { return std::pair(b.Grad, b.Gegen); });
        else if (sortiert == Platz)
            nach(gruppe.Befunde, [](const Befund &b) { return std::pair(b.Wo.Was, b.Wo.Nr); });
        else
            nach(gruppe.Befunde, [this](const Befund &b) { return Zelltext(b, Bei); });
}

bool Befundmodell::Nachziehen()
{
    std::vector<Gruppe> neue = Lesen();
    if (neue == gruppen)
        return false;
    beginResetModel();
    gruppen = std::move(neue);
    endResetModel();
    return true;
}

void Befundmodell::Gliedern(Gliederung wie)
{
    if (wie == gliederung)
        return;
    gliederung = wie;
    beginResetModel();
    gruppen = Lesen();
    endResetModel();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, Spalten - 1);
}

void Befundmodell::sort(int spalte, Qt::SortOrder wie)
{
    sortiert = spalte;
    folge = wie;
    beginResetModel();
    gruppen = Lesen();
    endResetModel();
}

const Befund *Befundmodell::BefundIn(const QModelIndex &zeile) const
{
    if (!zeile.isValid() || zeile.internalId() == Gruppenebene)
        return nullptr;
    return &gruppen[zeile.internalId() - 1].Befunde[static_cast<std::size_t>(zeile.row())];
}

QModelIndex Befundmodell::ZeileVon(const Planplatz &ort) const
{
    for (std::size_t g = 0; g < gruppen.size(); ++g) {
        const auto &befunde = gruppen[g].Befunde;
        const auto stelle = std::ranges::find(befunde, ort, &Befund::Wo);
        if (stelle != befunde.end())
            return createIndex(static_cast<int>(stelle - befunde.begin()), 0, g + 1);
    }
    return {};
}

QString Befundmodell::Titel(int gruppe) const
{
    return Anzeige(gruppen[static_cast<std::size_t>(gruppe)].Titel);
}

QModelIndex Befundmodell::index(int zeile, int spalte, const QModelIndex &über) const
{
    if (!hasIndex(zeile, spalte, über))
        return {};
    return createIndex(zeile, spalte,
                       über.isValid() ? static_cast<quintptr>(über.row()) + 1 : Gruppenebene);
}

QModelIndex Befundmodell::parent(const QModelIndex &zeile) const
{
    if (!zeile.isValid() || zeile.internalId() == Gruppenebene)
        return {};
    return createIndex(static_cast<int>(zeile.internalId()) - 1, 0, Gruppenebene);
}

int Befundmodell::rowCount(const QModelIndex &über) const
{
    if (!über.isValid())
        return static_cast<int>(gruppen.size());
    if (über.internalId() != Gruppenebene || über.column() > 0)
        return 0;
    return static_cast<int>(gruppen[static_cast<std::size_t>(über.row())].Befunde.size());
}

int Befundmodell::columnCount(const QModelIndex &) const
{
    return Spalten;
}

/// A heading goes across all columns.
QVariant Befundmodell::Überschrift(const Gruppe &gruppe, int spalte, int rolle)
{
    if (spalte != Satzspalte)
        return {};
    if (rolle == Qt::FontRole) {
        QFont fett;
        fett.setBold(true);
        return fett;
    }
    if (rolle != Qt::DisplayRole && rolle != Qt::ToolTipRole)
        return {};
    return Anzeige(gruppe.Titel + " – " +
                   Befundzahl(gruppe.Verstöße, Zahl(gruppe.Befunde, Stufe::Hinweis)));
}

/// By mass, the third column says of whom the sentence speaks; by person, of which mass.
QString Befundmodell::Zelltext(const Befund &befund, int spalte) const
{
    switch (spalte) {
    case Satzspalte:
        return Anzeige(Satz(prüfung.Tabellen(), befund));
    case Platz:
        return Anzeige(Platzaufschrift(befund.Wo));
    case Bei:
        return Anzeige(gliederung == Gliederung::NachMesse ? Betroffener(prüfung.Tabellen(), befund)
                                                           : Messenzeile(befund.Wo.Messe));
    default:
        return {};
    }
}

QVariant Befundmodell::data(const QModelIndex &zeile, int rolle) const
{
    const Befund *befund = BefundIn(zeile);
    if (!befund)
        return Überschrift(gruppen[static_cast<std::size_t>(zeile.row())], zeile.column(), rolle);
    if (rolle == Qt::DisplayRole || rolle == Qt::ToolTipRole)
        return Zelltext(*befund, zeile.column());
    if (rolle == Qt::AccessibleTextRole && zeile.column() == Satzspalte)
        return (befund->Grad == Stufe::Verstoß ? "Verstoß: " : "Hinweis: ") +
               Zelltext(*befund, Satzspalte);
    return {};
}

QVariant Befundmodell::headerData(int nr, Qt::Orientation richtung, int rolle) const
{
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole)
        return {};
    switch (nr) {
    case Satzspalte:
        return "Befund";
    case Platz:
        return "Platz";
    case Bei:
        return gliederung == Gliederung::NachMesse ? "Person" : "Messe";
    default:
        return {};
    }
}

Qt::ItemFlags Befundmodell::flags(const QModelIndex &zeile) const
{
    return zeile.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

} // namespace altardienst

// Who could stand in a place.
#include "overview/Kandidatenmodell.h"

#include "controls/Bausteine.h"
#include "core/Suchwörter.h"
#include "overview/Zeichen.h"

#include <QApplication>
#include <QIcon>

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

QString Tag(Datum datum)
{
    return datum == 0 ? QString("–") : Anzeige(TagImSatz(datum));
}

Text Suchzeile(const Platzkandidat &wer)
{
    return wer.Vorname + " " + wer.Nachname + " " + wer.Gruppe + " " + wer.Wunschpartner;
}

QString Zelltext(const Platzkandidat &wer, int spalte)
{
    switch (spalte) {
    case Kandidatenmodell::Name:
        return Anzeige(VollerName(wer.Vorname, wer.Nachname));
    case Kandidatenmodell::Gruppe:
        return Anzeige(wer.Gruppe);
    case Kandidatenmodell::Zuletzt:
        return Tag(wer.Zuletzt);
    case Kandidatenmodell::Danach:
        return Tag(wer.Danach);
    case Kandidatenmodell::Dienste:
        return QString::number(wer.Dienste);
    case Kandidatenmodell::Häufigkeit:
        return QString::number(wer.Häufigkeit);
    case Kandidatenmodell::Partner:
        return Anzeige(wer.Wunschpartner) + (wer.PartnerDaneben ? " (daneben)" : "");
    default: {
        QStringList wörter;
        for (const Gegengrund &grund : wer.Gegengründe)
            if (const QString wort = Anzeige(Regelname(grund.Was.Gegen)); !wörter.contains(wort))
                wörter.append(wort);
        return wörter.join(", ");
    }
    }
}

bool IstZahl(int spalte)
{
    return spalte == Kandidatenmodell::Dienste || spalte == Kandidatenmodell::Häufigkeit;
}

} // namespace

Kandidatenmodell::Kandidatenmodell(QObject *eigner) : QAbstractTableModel(eigner) {}

void Kandidatenmodell::Zeigen(std::vector<Platzkandidat> neue)
{
    beginResetModel();
    alle = std::move(neue);
    Ordnen();
    endResetModel();
}

void Kandidatenmodell::Filtern(std::vector<Text> wörter)
{
    beginResetModel();
    filter = std::move(wörter);
    Ordnen();
    endResetModel();
}

void Kandidatenmodell::sort(int spalte, Qt::SortOrder wie)
{
    beginResetModel();
    sortiert = spalte;
    folge = wie;
    Ordnen();
    endResetModel();
}

void Kandidatenmodell::Ordnen()
{
    reihen.clear();
    for (std::size_t i = 0; i < alle.size(); ++i)
        if (filter.empty() || EnthältAlle(Suchzeile(alle[i]), filter))
            reihen.push_back(i);
    if (sortiert < 0)
        return;
    std::stable_sort(reihen.begin(), reihen.end(), [this](std::size_t a, std::size_t b) {
        return folge == Qt::AscendingOrder ? Früher(alle[a], alle[b]) : Früher(alle[b], alle[a]);
    });
}

bool Kandidatenmodell::Früher(const Platzkandidat &a, const Platzkandidat &b) const
{
    switch (sortiert) {
    case Zuletzt:
        return a.Zuletzt < b.Zuletzt;
    case Danach:
        return a.Danach < b.Danach;
    case Dienste:
        return a.Dienste < b.Dienste;
    case Häufigkeit:
        return a.Häufigkeit < b.Häufigkeit;
    case Dagegen:
        return std::pair(a.Rang(), a.Gegengründe.size()) <
               std::pair(b.Rang(), b.Gegengründe.size());
    default:
        return QString::localeAwareCompare(Zelltext(a, sortiert), Zelltext(b, sortiert)) < 0;
    }
}

const Platzkandidat &Kandidatenmodell::In(int zeile) const
{
    return alle[reihen[static_cast<std::size_t>(zeile)]];
}

int Kandidatenmodell::ZeileVon(int nr) const
{
    for (int zeile = 0; zeile < rowCount(); ++zeile)
        if (In(zeile).Nr == nr)
            return zeile;
    return -1;
}

QStringList Kandidatenmodell::Gründe(int zeile) const
{
    const Platzkandidat &wer = In(zeile);
    QStringList gründe;
    for (const Gegengrund &grund : wer.Gegengründe)
        gründe.append(Anzeige(grund.Satz));
    return gründe;
}

int Kandidatenmodell::rowCount(const QModelIndex &über) const
{
    return über.isValid() ? 0 : static_cast<int>(reihen.size());
}

int Kandidatenmodell::columnCount(const QModelIndex &über) const
{
    return über.isValid() ? 0 : Spalten;
}

/// The sign says what the order says: nothing is against those without one.
QVariant Kandidatenmodell::data(const QModelIndex &zelle, int rolle) const
{
    const Platzkandidat &wer = In(zelle.row());
    switch (rolle) {
    case Qt::DisplayRole:
        return Zelltext(wer, zelle.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: {
        const QStringList gründe = Gründe(zelle.row());
        return gründe.isEmpty() ? QString("Nichts spricht dagegen.") : gründe.join('\n');
    }
    case Qt::TextAlignmentRole:
        return static_cast<int>((IstZahl(zelle.column()) ? Qt::AlignHCenter : Qt::AlignLeft) |
                                Qt::AlignVCenter);
    case Qt::DecorationRole:
        if (zelle.column() != Dagegen || wer.Rang() == 0)
            return {};
        return QIcon(Stufenzeichen(wer.Rang() > 1 ? Stufe::Verstoß : Stufe::Hinweis,
                                   QApplication::palette(), 12, qApp->devicePixelRatio()));
    case Qt::ForegroundRole:
        return wer.Rang() > 1 ? QVariant(Nebenfarbe(QApplication::palette())) : QVariant();
    default:
        return {};
    }
}

QVariant Kandidatenmodell::headerData(int nr, Qt::Orientation richtung, int rolle) const
{
    constexpr const char *Namen[Spalten] = {"Name",    "Gruppe",     "Zuletzt", "Danach",
                                            "Dienste", "Häufigkeit", "Partner", "Dagegen"};
    constexpr const char *Erklärungen[Spalten] = {"",
                                                  "",
                                                  "der letzte Dienst vor dieser Messe",
                                                  "der nächste Dienst nach dieser Messe",
                                                  "Dienste im Plan, ohne diesen Platz",
                                                  "0 normal, 2 oft",
                                                  "der Wunschpartner",
                                                  "was dagegen spricht"};
    if (richtung != Qt::Horizontal || nr < 0 || nr >= Spalten)
        return {};
    if (rolle == Qt::DisplayRole)
        return QString(Namen[nr]);
    if (rolle == Qt::ToolTipRole && *Erklärungen[nr])
        return QString(Erklärungen[nr]);
    if (rolle == Qt::TextAlignmentRole)
        return static_cast<int>((IstZahl(nr) ? Qt::AlignHCenter : Qt::AlignLeft) |
                                Qt::AlignVCenter);
    return {};
}

} // namespace altardienst

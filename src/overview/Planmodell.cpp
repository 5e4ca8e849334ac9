// The plan as a table for the grid.
#include "overview/Planmodell.h"

#include "controls/Bausteine.h"
#include "core/Messenname.h"
#include "core/Umwandlung.h"

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

constexpr std::array<const char *, Planmodell::Kopfspalten> Köpfe = {"",     "Tag", "Datum",
                                                                     "Zeit", "Art", ""};
constexpr std::array<const char *, Planmodell::Kopfspalten> Erklärungen = {
    "ob etwas auffällt", "", "", "", "", "ob eine feste Zuordnung dazu besteht"};

} // namespace

Planmodell::Planmodell(QObject *eigner) : QAbstractTableModel(eigner) {}

bool Planmodell::Nachziehen()
{
    auto neues = inhalt.Neues(bild);
    if (!neues)
        return false;
    Übernehmen(std::move(*neues));
    return true;
}

void Planmodell::Beachten(const Regelwahl &welche)
{
    if (welche != inhalt.Regeln())
        Übernehmen(inhalt.Beachten(welche, bild));
}

std::vector<int> Planmodell::Sichtbare(const std::vector<Planreihe> &von) const
{
    std::vector<int> zeilen;
    zeilen.reserve(von.size());
    for (std::size_t i = 0; i < von.size(); ++i)
        if (!nurAuffällige || von[i].Gravierendstes)
            zeilen.push_back(static_cast<int>(i));
    return zeilen;
}

void Planmodell::Übernehmen(Planbild neues)
{
    std::vector<int> neueSichtbare = Sichtbare(neues.Reihen);
    const bool umbau = neueSichtbare != sichtbare || neues.Spalten != bild.Spalten;
    if (umbau)
        beginResetModel();
    std::swap(bild, neues);
    sichtbare = std::move(neueSichtbare);
    hatFeste = std::ranges::any_of(bild.Reihen,
                                   [](const Planreihe &r) { return !r.Kopf[Fest].isEmpty(); });
    hatDienste = std::ranges::any_of(bild.Reihen, [](const Planreihe &reihe) {
        return std::ranges::any_of(reihe.Zellen,
                                   [](const Planzelle &z) { return !z.Dienst.isEmpty(); });
    });
    if (umbau)
        endResetModel();
    else
        ÄnderungenMelden(neues.Reihen);
}

/// One range from the first row that is another to the last one.
void Planmodell::ÄnderungenMelden(const std::vector<Planreihe> &alte)
{
    int erste = -1;
    int letzte = -1;
    for (int zeile = 0; zeile < rowCount(); ++zeile) {
        const auto messe = static_cast<std::size_t>(sichtbare[static_cast<std::size_t>(zeile)]);
        if (bild.Reihen[messe] == alte[messe])
            continue;
        erste = erste < 0 ? zeile : erste;
        letzte = zeile;
    }
    if (erste >= 0)
        Q_EMIT dataChanged(index(erste, 0), index(letzte, columnCount() - 1));
}

void Planmodell::NurAuffälliges(bool nur)
{
    if (nur == nurAuffällige)
        return;
    beginResetModel();
    nurAuffällige = nur;
    sichtbare = Sichtbare(bild.Reihen);
    endResetModel();
}

void Planmodell::Markieren(const Text &vorname, const Text &nachname)
{
    const int person = inhalt.PersonVon(vorname, nachname);
    if (person == markiert)
        return;
    markiert = person;
    if (rowCount() > 0 && columnCount() > Kopfspalten)
        Q_EMIT dataChanged(index(0, Kopfspalten), index(rowCount() - 1, columnCount() - 1),
                           {Qt::BackgroundRole});
}

const Planreihe &Planmodell::ReiheIn(int zeile) const
{
    return bild.Reihen[static_cast<std::size_t>(sichtbare[static_cast<std::size_t>(zeile)])];
}

const Planzelle &Planmodell::Zelle(int zeile, int spalte) const
{
    return ReiheIn(zeile).Zellen[static_cast<std::size_t>(spalte - Kopfspalten)];
}

const QString &Planmodell::Kopf(int zeile, Kopfspalte spalte) const
{
    return ReiheIn(zeile).Kopf[spalte];
}

std::optional<Stufe> Planmodell::Gravierendstes(int zeile) const
{
    return ReiheIn(zeile).Gravierendstes;
}

bool Planmodell::BeginntWoche(int zeile) const
{
    return zeile > 0 && ReiheIn(zeile).Woche != ReiheIn(zeile - 1).Woche;
}

Planplatz Planmodell::Ort(const QModelIndex &zelle) const
{
    const int messe = sichtbare[static_cast<std::size_t>(zelle.row())];
    if (zelle.column() < Kopfspalten)
        return GanzeMesse(messe);
    const Planspalte &spalte = bild.Spalten[static_cast<std::size_t>(zelle.column() - Kopfspalten)];
    return {messe, spalte.Was, spalte.Nr};
}

QModelIndex Planmodell::Stelle(const Planplatz &ort) const
{
    const auto zeile = std::ranges::find(sichtbare, ort.Messe);
    if (zeile == sichtbare.end())
        return {};
    const int nr = static_cast<int>(zeile - sichtbare.begin());
    if (ort.Was == Planplatz::Art::Messe)
        return index(nr, Art);
    const auto spalte = std::ranges::find(bild.Spalten, Planspalte{ort.Was, ort.Nr});
    if (spalte == bild.Spalten.end())
        return {};
    return index(nr, Kopfspalten + static_cast<int>(spalte - bild.Spalten.begin()));
}

int Planmodell::rowCount(const QModelIndex &über) const
{
    return über.isValid() ? 0 : static_cast<int>(sichtbare.size());
}

int Planmodell::columnCount(const QModelIndex &über) const
{
    return über.isValid() ? 0 : Kopfspalten + static_cast<int>(bild.Spalten.size());
}

QVariant Planmodell::data(const QModelIndex &zelle, int rolle) const
{
    if (rolle == Qt::ToolTipRole || rolle == Qt::AccessibleDescriptionRole)
        return Hinweis(zelle);
    if (rolle == Qt::AccessibleTextRole)
        return Ganz(zelle);
    if (rolle != Qt::DisplayRole)
        return {};
    if (zelle.column() < Kopfspalten)
        return Kopf(zelle.row(), static_cast<Kopfspalte>(zelle.column()));
    const Planzelle &was = Zelle(zelle.row(), zelle.column());
    return was.Dienst.isEmpty() ? was.Name : (was.Name + " " + was.Dienst).trimmed();
}

QVariant Planmodell::headerData(int nr, Qt::Orientation richtung, int rolle) const
{
    if (richtung != Qt::Horizontal || nr < 0 || nr >= columnCount())
        return {};
    if (nr >= Kopfspalten) {
        const Planspalte &spalte = bild.Spalten[static_cast<std::size_t>(nr - Kopfspalten)];
        return rolle == Qt::DisplayRole ? Anzeige(Platzaufschrift({0, spalte.Was, spalte.Nr}))
                                        : QVariant();
    }
    const auto stelle = static_cast<std::size_t>(nr);
    if (rolle == Qt::DisplayRole)
        return QString(Köpfe[stelle]);
    const bool erklärt = rolle == Qt::ToolTipRole || rolle == Qt::AccessibleTextRole;
    return erklärt && *Erklärungen[stelle] ? QVariant(QString(Erklärungen[stelle])) : QVariant();
}

Text Planmodell::Wer(const Planzelle &zelle) const
{
    if (zelle.Person < 0)
        return "";
    const Planinhalt::Name &name = inhalt.NameVon(zelle.Person);
    return VollerName(name.Vor, name.Nach);
}

QString Planmodell::Ganz(const QModelIndex &zelle) const
{
    if (zelle.column() == Datumspalte) {
        const QString &kurz = Kopf(zelle.row(), Datumspalte);
        return kurz == "?" ? kurz : Anzeige(KurzesDatum(Messe.Datum[Ort(zelle).Messe]));
    }
    if (zelle.column() < Kopfspalten)
        return Kopf(zelle.row(), static_cast<Kopfspalte>(zelle.column()));
    const Planzelle &was = Zelle(zelle.row(), zelle.column());
    const QString name = Anzeige(Wer(was));
    return name.isEmpty() || was.Dienst.isEmpty() ? name : name + " (" + was.Dienst + ")";
}

/// Who it is and for what, then what is wrong there; in the first columns what is wrong with the
/// whole mass.
QString Planmodell::Hinweis(const QModelIndex &zelle) const
{
    const Planplatz ort = Ort(zelle);
    QStringList zeilen;
    if (zelle.column() == Fest) {
        return Kopf(zelle.row(), Fest).isEmpty()
                   ? QString()
                   : "Zu dieser Messe besteht eine feste Zuordnung; ein Doppelklick zeigt sie.";
    }
    if (ort.Was == Planplatz::Art::Messe) {
        zeilen.append(Anzeige(Messenüberschrift(ort.Messe)));
    } else {
        const Planzelle &was = Zelle(zelle.row(), zelle.column());
        if (!was.Gewollt && was.Name.isEmpty())
            return {};
        zeilen.append((was.Person < 0 ? QString("offen") : Anzeige(Wer(was))) +
                      (was.Gewollt ? " – " + Anzeige(DienstAm(Messe, ort)) : QString()));
    }
    for (const Befund &befund : Prüfung().Von(ort.Messe))
        if (befund.Wo == ort && Gilt(inhalt.Regeln(), befund))
            zeilen.append(Anzeige(Satz(Prüfung().Tabellen(), befund)));
    return zeilen.join('\n');
}

} // namespace altardienst

// The plan as rows of masses and columns of places.
#include "overview/Planmodell.h"

#include "controls/Bausteine.h"
#include "core/Messenname.h"
#include "core/Umwandlung.h"
#include "overview/Planwege.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace altardienst {
namespace {

constexpr int Wochentage = 7;
constexpr int TagUndMonat = 6; // "28.11.": no plan is longer than half a year

/// Weeks begin with the weekday on which plans do, so that a vigil stands with its Sunday. Day 0 is a
/// Saturday, the seventh weekday.
int WocheVon(Datum tag)
{
    const int erster = std::clamp<int>(Konfig.StartWochentag, 1, Wochentage);
    return static_cast<int>(std::floor((std::floor(tag) - erster) / Wochentage));
}

/// A date that no calendar has must not keep the plan from being shown.
template <class F> QString OderFragezeichen(F text)
{
    try {
        return Anzeige(text());
    } catch (const Laufzeitfehler &) {
        return "?";
    }
}

/// Findings of two grades: the breach counts.
void Erschweren(std::optional<Stufe> &zeichen, Stufe grad)
{
    if (zeichen != Stufe::Verstoß)
        zeichen = grad;
}

Text Namensschlüssel(const Text &vorname, const Text &nachname)
{
    return vorname + "\n" + nachname;
}

} // namespace

Planmodell::Planmodell(QObject *eigner) : QAbstractTableModel(eigner) {}

/// As many columns for servers as the largest mass wants, and the helpers' places that any mass
/// wants.
std::vector<Planmodell::Spalte> Planmodell::NötigeSpalten()
{
    const int messen = GemeinsameTabellen().Messenzahl();
    int slots = 0;
    std::array<bool, Helferplätze.size()> nötig{};
    for (int i = 0; i < messen; ++i) {
        slots = std::max(slots, Dienerplätze(Messe, i));
        for (std::size_t p = 0; p < nötig.size(); ++p)
            nötig[p] = nötig[p] || Helferplätze[p].Nötig(Messe, i);
    }
    std::vector<Spalte> spalten;
    spalten.reserve(static_cast<std::size_t>(slots) + nötig.size());
    for (int n = 1; n <= slots; ++n)
        spalten.push_back({Planplatz::Art::Diener, n});
    for (std::size_t p = 0; p < nötig.size(); ++p)
        if (nötig[p])
            spalten.push_back({Planplatz::Art::Helfer, static_cast<int>(p)});
    return spalten;
}

bool Planmodell::Nachziehen()
{
    Planabdruck neuer = AbdruckNehmen();
    if (!leer && neuer == abdruck)
        return false;
    std::vector<Spalte> neueSpalten = NötigeSpalten();
    const bool umbau = leer || neueSpalten != spalten;
    if (umbau)
        abdruck = {}; // every row is another one
    leer = false;
    const std::vector<Spalte> alteSpalten = std::exchange(spalten, neueSpalten);
    std::vector<Reihe> neue = NeueReihen(neuer);
    spalten = alteSpalten;
    abdruck = std::move(neuer);
    Übernehmen(std::move(neue), std::move(neueSpalten));
    return true;
}

/// The rows of masses that are the same are taken over.
std::vector<Planmodell::Reihe> Planmodell::NeueReihen(const Planabdruck &neuer)
{
    const std::size_t anzahl = neuer.Messen.size();
    std::vector<int> andere;
    for (std::size_t i = 0; i < anzahl && anzahl == abdruck.Messen.size(); ++i)
        if (neuer.Messen[i] != abdruck.Messen[i])
            andere.push_back(static_cast<int>(i));
    constexpr std::size_t Viele = 20; // as after a draw: then one check of everything is cheaper
    const bool alles = anzahl != abdruck.Messen.size() || neuer.Übriges != abdruck.Übriges ||
                       andere.size() > Viele ||
                       !std::ranges::all_of(andere, [this](int i) { return KenntAlleNamen(i); });
    std::vector<Reihe> neue;
    if (alles) {
        prüfung.Neu();
        NamenLesen();
        neue.reserve(anzahl);
        for (std::size_t i = 0; i < anzahl; ++i)
            neue.push_back(ReiheBauen(static_cast<int>(i)));
    } else {
        neue = reihen;
        for (const int i : andere) {
            prüfung.MesseGeändert(i);
            neue[static_cast<std::size_t>(i)] = ReiheBauen(i);
        }
    }
    for (std::size_t i = 0; i < anzahl; ++i)
        ZeichenSetzen(neue[i], static_cast<int>(i)); // a change reaches other masses, too
    return neue;
}

Planmodell::Reihe Planmodell::ReiheBauen(int messe)
{
    Reihe reihe;
    const Datum tag = Messe.Datum[messe];
    reihe.Kopf[Tag] = OderFragezeichen([&] { return Links(WochentagName(tag), 2); });
    reihe.Kopf[Datumspalte] =
        OderFragezeichen([&] { return Links(KurzesDatum(tag), TagUndMonat); });
    reihe.Kopf[Uhrzeit] = OderFragezeichen([&] { return StundenUndMinuten(Messe.Uhrzeit[messe]); });
    reihe.Kopf[Art] = Anzeige(Messe.Messeart[messe]);
    if (HatFestenEintrag(messe))
        reihe.Kopf[Fest] = "fest";
    reihe.Woche = WocheVon(tag);
    reihe.Zellen.reserve(spalten.size());
    for (const Spalte &spalte : spalten)
        reihe.Zellen.push_back(ZelleBauen({messe, spalte.Was, spalte.Nr}));
    return reihe;
}

/// Names left in places that the mass no longer wants are shown only where the plan prints them.
Planzelle Planmodell::ZelleBauen(const Planplatz &platz)
{
    Planzelle zelle;
    zelle.Gewollt = IstGewünscht(Messe, platz);
    const Platzname wer = NameAm(Messe, platz);
    if (!wer.IstFrei() && (zelle.Gewollt || platz.Was == Planplatz::Art::Diener)) {
        zelle.Person = Personennummer(wer.Vorname, wer.Nachname);
        zelle.Name = Kurzname(zelle.Person);
    }
    if (zelle.Gewollt && platz.Was == Planplatz::Art::Diener)
        zelle.Dienst = Anzeige(KurzdienstAm(Messe, platz));
    return zelle;
}

void Planmodell::ZeichenSetzen(Reihe &reihe, int messe) const
{
    for (Planzelle &zelle : reihe.Zellen)
        zelle.Zeichen.reset();
    reihe.Gravierendstes.reset();
    for (const Befund &befund : prüfung.Von(messe)) {
        if (!Gilt(regeln, befund))
            continue;
        Erschweren(reihe.Gravierendstes, befund.Grad);
        const auto spalte = std::ranges::find(spalten, Spalte{befund.Wo.Was, befund.Wo.Nr});
        if (spalte != spalten.end())
            Erschweren(reihe.Zellen[static_cast<std::size_t>(spalte - spalten.begin())].Zeichen,
                       befund.Grad);
    }
}

void Planmodell::NamenLesen()
{
    namen.Neu();
    for (Person &person : personen)
        person.Kurz = Anzeige(namen.Von(person.Ganz.Vor, person.Ganz.Nach));
}

/// Whether the short names stay as they are if this mass has changed.
bool Planmodell::KenntAlleNamen(int messe) const
{
    return std::ranges::all_of(spalten, [&](const Spalte &spalte) {
        const Platzname wer = NameAm(Messe, {messe, spalte.Was, spalte.Nr});
        return wer.IstFrei() || PersonVon(wer.Vorname, wer.Nachname) >= 0 ||
               prüfung.WerSteht({messe, spalte.Was, spalte.Nr}) >= 0;
    });
}

int Planmodell::Personennummer(const Text &vorname, const Text &nachname)
{
    const auto [stelle, neu] =
        nummern.try_emplace(Namensschlüssel(vorname, nachname), Personenzahl());
    if (neu)
        personen.push_back({{vorname, nachname}, Anzeige(namen.Von(vorname, nachname))});
    return stelle->second;
}

int Planmodell::PersonVon(const Text &vorname, const Text &nachname) const
{
    const auto stelle = nummern.find(Namensschlüssel(vorname, nachname));
    return stelle == nummern.end() ? -1 : stelle->second;
}

std::vector<int> Planmodell::Sichtbare(const std::vector<Reihe> &von) const
{
    std::vector<int> zeilen;
    zeilen.reserve(von.size());
    for (std::size_t i = 0; i < von.size(); ++i)
        if (!nurAuffällige || von[i].Gravierendstes)
            zeilen.push_back(static_cast<int>(i));
    return zeilen;
}

void Planmodell::Übernehmen(std::vector<Reihe> neue, std::vector<Spalte> neueSpalten)
{
    std::vector<int> neueSichtbare = Sichtbare(neue);
    const bool umbau = neueSichtbare != sichtbare || neueSpalten != spalten;
    if (umbau)
        beginResetModel();
    std::swap(reihen, neue);
    sichtbare = std::move(neueSichtbare);
    spalten = std::move(neueSpalten);
    hatFeste = std::ranges::any_of(reihen, [](const Reihe &r) { return !r.Kopf[Fest].isEmpty(); });
    hatDienste = std::ranges::any_of(reihen, [](const Reihe &r) {
        return std::ranges::any_of(r.Zellen,
                                   [](const Planzelle &z) { return !z.Dienst.isEmpty(); });
    });
    if (umbau)
        endResetModel();
    else
        ÄnderungenMelden(neue);
}

/// One range from the first row that is another to the last one.
void Planmodell::ÄnderungenMelden(const std::vector<Reihe> &alte)
{
    int erste = -1;
    int letzte = -1;
    for (int zeile = 0; zeile < rowCount(); ++zeile) {
        const auto messe = static_cast<std::size_t>(sichtbare[static_cast<std::size_t>(zeile)]);
        if (reihen[messe] == alte[messe])
            continue;
        erste = erste < 0 ? zeile : erste;
        letzte = zeile;
    }
    if (erste >= 0)
        Q_EMIT dataChanged(index(erste, 0), index(letzte, columnCount() - 1));
}

void Planmodell::Beachten(const Regelwahl &welche)
{
    if (welche == regeln)
        return;
    regeln = welche;
    std::vector<Reihe> neue = reihen;
    for (std::size_t i = 0; i < neue.size(); ++i)
        ZeichenSetzen(neue[i], static_cast<int>(i));
    Übernehmen(std::move(neue), spalten);
}

void Planmodell::NurAuffälliges(bool nur)
{
    if (nur == nurAuffällige)
        return;
    beginResetModel();
    nurAuffällige = nur;
    sichtbare = Sichtbare(reihen);
    endResetModel();
}

void Planmodell::Markieren(int person)
{
    if (person == markiert)
        return;
    markiert = person;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, Kopfspalten), index(rowCount() - 1, columnCount() - 1),
                           {Qt::BackgroundRole});
}

const Planmodell::Reihe &Planmodell::ReiheIn(int zeile) const
{
    return reihen[static_cast<std::size_t>(sichtbare[static_cast<std::size_t>(zeile)])];
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

const QString &Planmodell::Kurzname(int person) const
{
    return personen[static_cast<std::size_t>(person)].Kurz;
}

const Planmodell::Name &Planmodell::NameVon(int person) const
{
    return personen[static_cast<std::size_t>(person)].Ganz;
}

Planplatz Planmodell::Ort(const QModelIndex &zelle) const
{
    const int messe = sichtbare[static_cast<std::size_t>(zelle.row())];
    if (zelle.column() < Kopfspalten)
        return GanzeMesse(messe);
    const Spalte &spalte = spalten[static_cast<std::size_t>(zelle.column() - Kopfspalten)];
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
    const auto spalte = std::ranges::find(spalten, Spalte{ort.Was, ort.Nr});
    if (spalte == spalten.end())
        return {};
    return index(nr, Kopfspalten + static_cast<int>(spalte - spalten.begin()));
}

int Planmodell::rowCount(const QModelIndex &über) const
{
    return über.isValid() ? 0 : static_cast<int>(sichtbare.size());
}

int Planmodell::columnCount(const QModelIndex &über) const
{
    return über.isValid() ? 0 : Kopfspalten + static_cast<int>(spalten.size());
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
    constexpr std::array<const char *, Kopfspalten> Namen = {"", "Tag", "Datum", "Zeit", "Art", ""};
    constexpr std::array<const char *, Kopfspalten> Erklärungen = {
        "ob etwas auffällt", "", "", "", "", "ob eine feste Zuordnung dazu besteht"};
    if (richtung != Qt::Horizontal || nr < 0 || nr >= columnCount())
        return {};
    if (nr < Kopfspalten) {
        const auto stelle = static_cast<std::size_t>(nr);
        if (rolle == Qt::DisplayRole)
            return QString(Namen[stelle]);
        const bool erklärt = rolle == Qt::ToolTipRole || rolle == Qt::AccessibleTextRole;
        return erklärt && *Erklärungen[stelle] ? QVariant(QString(Erklärungen[stelle]))
                                               : QVariant();
    }
    const Spalte &spalte = spalten[static_cast<std::size_t>(nr - Kopfspalten)];
    return rolle == Qt::DisplayRole ? Anzeige(Platzaufschrift({0, spalte.Was, spalte.Nr}))
                                    : QVariant();
}

QString Planmodell::Ganz(const QModelIndex &zelle) const
{
    if (zelle.column() == Datumspalte)
        return OderFragezeichen([&] { return KurzesDatum(Messe.Datum[Ort(zelle).Messe]); });
    if (zelle.column() < Kopfspalten)
        return Kopf(zelle.row(), static_cast<Kopfspalte>(zelle.column()));
    const Planzelle &was = Zelle(zelle.row(), zelle.column());
    if (was.Person < 0)
        return {};
    const Name &wer = NameVon(was.Person);
    const QString name = Anzeige(VollerName(wer.Vor, wer.Nach));
    return was.Dienst.isEmpty() ? name : name + " (" + was.Dienst + ")";
}

/// Who it is and for what, then what is wrong there; in the first columns what is wrong with the
/// whole mass.
QString Planmodell::Hinweis(const QModelIndex &zelle) const
{
    const Planplatz ort = Ort(zelle);
    QStringList zeilen;
    if (ort.Was != Planplatz::Art::Messe) {
        const Planzelle &was = Zelle(zelle.row(), zelle.column());
        if (!was.Gewollt && was.Name.isEmpty())
            return {};
        const QString wer =
            was.Person < 0 ? QString("offen")
                           : Anzeige(VollerName(NameVon(was.Person).Vor, NameVon(was.Person).Nach));
        zeilen.append(wer + (was.Gewollt ? " – " + Anzeige(DienstAm(Messe, ort)) : QString()));
    } else if (zelle.column() == Fest) {
        if (Kopf(zelle.row(), Fest).isEmpty())
            return {};
        return "Zu dieser Messe besteht eine feste Zuordnung; ein Doppelklick zeigt sie.";
    } else {
        zeilen.append(Anzeige(Messenüberschrift(ort.Messe)));
    }
    for (const Befund &befund : prüfung.Von(ort.Messe))
        if (befund.Wo == ort && Gilt(regeln, befund))
            zeilen.append(Anzeige(Satz(prüfung.Tabellen(), befund)));
    return zeilen.join('\n');
}

} // namespace altardienst

// What the check of a plan finds, in words.
#include "overview/Befund.h"

#include "assignment/Gründe.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/Umwandlung.h"
#include "overview/Abwesenheiten.h"
#include "overview/Namensregister.h"

#include <array>

namespace altardienst {
namespace {

/// Who stands in a place, or is to stand there.
struct Mensch {
    Text Name;
    int Nr; // the record, or one of the values of `Namensregister`
};

Text NameImPlan(const Plantabellen &t, Planplatz platz)
{
    const auto &[vorname, nachname] = NameAm(t.Messen, platz);
    return VollerName(vorname, nachname);
}

template <class Tabelle> int NrDes(const Tabelle &personen, Platzname name)
{
    for (int j = 0; j < personen.Anzahl && j <= Tabelle::HöchsterIndex; ++j)
        if (personen.Nachname[j] == name.Nachname && personen.Vorname[j] == name.Vorname)
            return j;
    return Namensregister::Unbekannt;
}

Mensch MenschAm(const Plantabellen &t, Planplatz platz)
{
    if (platz.Was == Planplatz::Art::Messe)
        return {"", Namensregister::Frei};
    const Platzname name = NameAm(t.Messen, platz);
    return {VollerName(name.Vorname, name.Nachname), platz.Was == Planplatz::Art::Diener
                                                         ? NrDes(t.Diener, name)
                                                         : NrDes(t.Helferinnen, name)};
}

Text FesterName(const Plantabellen &t, const Befund &b)
{
    return VollerName(t.Feste.Vorname[b.Zahl][b.Wo.Nr], t.Feste.Nachname[b.Zahl][b.Wo.Nr]);
}

/// "vom 01.12. bis 05.12.", with only one end "bis 05.12.".
template <class Tabelle> Text Zeitraumsatz(const Tabelle &personen, int j, Datum tag)
{
    for (const Fehlzeit &a : Abwesenheiten(personen, j))
        if (a.IstEingetragen() && LiegtIn(tag, a.Von, a.Bis))
            return a.Von == a.Bis ? "am " + TagImSatz(a.Von)
                                  : (a.Von == 0 ? Text() : "vom " + TagImSatz(a.Von) + " ") +
                                        "bis " + TagImSatz(a.Bis);
    return "an diesem Tag";
}

Text Abwesenheitssatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    const Datum tag = t.Messen.Datum[b.Wo.Messe];
    return m.Name + " ist " +
           (b.Wo.Was == Planplatz::Art::Diener ? Zeitraumsatz(t.Diener, m.Nr, tag)
                                               : Zeitraumsatz(t.Helferinnen, m.Nr, tag)) +
           " nicht dienstbereit.";
}

Text Tagessatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    const Text dort = MesseImSatz(t.Messen, b.Bezug.Messe);
    if (b.Gegen == Regel::SelberTag) // the date goes without saying
        return m.Name + " dient an diesem Tag auch um " + dort.substr(dort.find(", ") + 2) + ".";
    const bool danach = t.Messen.Datum[b.Bezug.Messe] > t.Messen.Datum[b.Wo.Messe];
    return m.Name + (danach ? " dient auch am Folgetag, " : " dient schon am Vortag, ") + dort +
           ".";
}

Text Größensatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    const int spielraum = t.Einstellungen.DiffGröße;
    return m.Name + " ist " + ZahlText(t.Diener.Größe[m.Nr]) + " cm groß; hier passen " +
           ZahlText(b.Zahl - spielraum) + " bis " + ZahlText(b.Zahl + spielraum) + " cm.";
}

Text MitGeschlecht(const Plantabellen &t, const Mensch &m)
{
    const Text &geschlecht = t.Diener.Geschlecht[m.Nr];
    return m.Name + " (" + (geschlecht.empty() ? "ohne Geschlecht" : geschlecht) + ")";
}

Text Geschlechtssatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    return MitGeschlecht(t, m) + " steht als Paar neben " + MitGeschlecht(t, MenschAm(t, b.Bezug)) +
           ".";
}

Text Wochentagssatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    return m.Name + " möchte nicht an einem " + t.Messen.Wochentag[b.Wo.Messe] + " dienen.";
}

Text Helferdienstsatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    const Helferart &art = Helferplätze.at(static_cast<std::size_t>(b.Wo.Nr)).Art;
    if (HatDienst(t.Helferinnen, m.Nr, art))
        return m.Name + " hat den Dienst " + Text(art.Name) +
               " zweimal eingetragen; (5) setzt solche Helfer dort nicht ein.";
    return m.Name + " ist nicht als " + Text(art.Name) + " eingetragen.";
}

Text Partnersatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    const Text partner = VollerName(t.Diener.WunschVorname[m.Nr], t.Diener.WunschNachname[m.Nr]);
    if (b.Bezug.Was == Planplatz::Art::Messe)
        return "Nach dem letzten Platz ist für " + partner + ", den Wunschpartner von " + m.Name +
               ", kein Platz mehr.";
    if (b.Bezug != b.Wo)
        return m.Name + " steht nicht neben dem Wunschpartner " + partner + " (" +
               Platzaufschrift(b.Bezug) + ").";
    return m.Name + " dient ohne den Wunschpartner " + partner + ".";
}

Text Häufigkeitssatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    const int grenze =
        std::max<int>(0, t.Diener.Häufigkeit[m.Nr] + Dienstanteil(t.Messen, t.Diener.Anzahl));
    return m.Name + " steht " + ZahlText(b.Zahl) +
           "-mal mit Wunschpartner im Plan; nach der Diensthäufigkeit sind es höchstens " +
           ZahlText(grenze) + ".";
}

Text Festsatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    return "Für " + Platzaufschrift(b.Wo) + " ist " + FesterName(t, b) + " fest zugeordnet" +
           (m.Name.empty() ? "; der Platz ist frei." : ", nicht " + m.Name + ".");
}

Text Überzahlsatz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    const int plätze = Dienerplätze(t.Messen, b.Wo.Messe);
    return m.Name + " steht auf " + Platzaufschrift(b.Wo) + ", die Messe hat aber " +
           (plätze == 0 ? Text("keine") : "nur " + ZahlText(plätze)) +
           " Meßdiener; der Name wird trotzdem gedruckt.";
}

Text Zeitraumssatz(const Plantabellen &t, const Befund &b)
{
    if (t.Messen.Datum[b.Wo.Messe] == 0 && b.Zahl == 1)
        return "Die Messe hat noch kein Datum.";
    const Text zeitraum = KurzesDatum(t.Einstellungen.StartDatum) + " bis " +
                          KurzesDatum(t.Einstellungen.StartDatum + t.Einstellungen.Tage) + ".";
    return (b.Zahl > 1 ? "Keine der Messen liegt im Zeitraum "
                       : "Die Messe liegt nicht im Zeitraum ") +
           zeitraum;
}

Text GleicheZeitSatz(const Plantabellen &t, const Befund &b)
{
    const Text &art = t.Messen.Messeart[b.Bezug.Messe];
    return "Zur selben Zeit steht noch eine Messe im Plan" + (art.empty() ? "." : ": " + art + ".");
}

Text SatzOderFehler(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    switch (b.Gegen) {
    case Regel::Frei:
        return Platzaufschrift(b.Wo) + " ist frei.";
    case Regel::Unbekannt:
        return m.Name + (b.Wo.Was == Planplatz::Art::Diener
                             ? " ist unter den Meßdienern nicht zu finden."
                             : " ist unter den Helfern nicht zu finden.");
    case Regel::Mehrdeutig:
        return "Mehrere heißen " + m.Name + "; wer gemeint ist, lässt sich nicht sagen.";
    case Regel::Doppelt:
        return m.Name + " steht in dieser Messe auch auf " + Platzaufschrift(b.Bezug) + ".";
    case Regel::SelberTag:
    case Regel::Nachbartag:
        return Tagessatz(t, b, m);
    case Regel::Größe:
        return Größensatz(t, b, m);
    case Regel::Qualifikation:
        return m.Name + " ist für den Dienst " + DienstAm(t.Messen, b.Wo) + " nicht eingetragen.";
    case Regel::Abwesend:
        return Abwesenheitssatz(t, b, m);
    case Regel::Geschlecht:
        return Geschlechtssatz(t, b, m);
    case Regel::Wochendienst:
        return m.Name + " möchte nicht im Wochendienst dienen.";
    case Regel::Wochentag:
        return Wochentagssatz(t, b, m);
    case Regel::Helferdienst:
        return Helferdienstsatz(t, b, m);
    case Regel::Wunschpartner:
        return Partnersatz(t, b, m);
    case Regel::Häufigkeit:
        return Häufigkeitssatz(t, b, m);
    case Regel::FesterEintrag:
        return Festsatz(t, b, m);
    case Regel::ÜberzähligerName:
        return Überzahlsatz(t, b, m);
    case Regel::GleicheZeit:
        return GleicheZeitSatz(t, b);
    case Regel::AußerhalbZeitraum:
        return Zeitraumssatz(t, b);
    case Regel::Dienstsumme:
        return "Die Dienste ergeben " + ZahlText(b.Zahl) + " Meßdiener, die Messe hat " +
               ZahlText(t.Messen.Dienerzahl[b.Wo.Messe]) + ".";
    }
    return "";
}

/// If the tables have changed since the check, its findings may refer to what is no longer there.
Text Satz(const Plantabellen &t, const Befund &b, const Mensch &m)
{
    try {
        return SatzOderFehler(t, b, m);
    } catch (const Laufzeitfehler &) {
        return Regelname(b.Gegen);
    }
}

} // namespace

Text Regelname(Regel regel)
{
    constexpr std::array<Festtext, Regelzahl> Namen = {
        "Freier Platz", "Unbekannter Name", "Gleiche Namen", "Doppelt in der Messe",
        "Derselbe Tag", "Nachbartag",       "Größe",         "Qualifikation",
        "Abwesenheit",  "Geschlecht",       "Wochendienst",  "Wochentag",
        "Helferdienst", "Wunschpartner",    "Häufigkeit",    "Feste Zuordnung",
        "Überzählig",   "Gleiche Zeit",     "Zeitraum",      "Dienste"};
    return Text(Namen.at(static_cast<std::size_t>(regel)));
}

Text Betroffener(const Plantabellen &tabellen, const Befund &befund)
{
    if (befund.Wo.Was == Planplatz::Art::Messe)
        return "";
    if (befund.Gegen == Regel::FesterEintrag)
        return FesterName(tabellen, befund);
    return NameImPlan(tabellen, befund.Wo);
}

Text Satz(const Plantabellen &tabellen, const Befund &befund)
{
    return Satz(tabellen, befund, MenschAm(tabellen, befund.Wo));
}

Text SatzGegen(const Plantabellen &tabellen, const Befund &befund, int nr)
{
    const auto name = [nr](const auto &personen) {
        return VollerName(personen.Vorname[nr], personen.Nachname[nr]);
    };
    return Satz(tabellen, befund,
                {befund.Wo.Was == Planplatz::Art::Helfer ? name(tabellen.Helferinnen)
                                                         : name(tabellen.Diener),
                 nr});
}

Text Befundzahl(int verstöße, int hinweise)
{
    const auto zahl = [](int wert, const char *eines, const char *mehrere) {
        return ZahlText(wert) + " " + (wert == 1 ? eines : mehrere);
    };
    if (verstöße == 0 && hinweise == 0)
        return "nichts Auffälliges";
    Text text;
    if (verstöße > 0)
        text = zahl(verstöße, "Verstoß", "Verstöße");
    if (hinweise > 0)
        text += (text.empty() ? "" : ", ") + zahl(hinweise, "Hinweis", "Hinweise");
    return text;
}

} // namespace altardienst

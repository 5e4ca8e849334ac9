// People from a table.
#include "exchange/Einlesen.h"

#include "core/Umwandlung.h"
#include "core/tables.h"
#include "people/Personen.h"

#include <algorithm>

namespace altardienst {
namespace {

Int16 &Anzahl(Personenart art)
{
    return art == Personenart::Diener ? Meßdiener.Anzahl : Helfer.Anzahl;
}

int Meiste(Personenart art)
{
    return art == Personenart::Diener ? MeisteMeßdiener : MeisteHelfer;
}

/// The groups that these rows name and that are not there yet, in their order.
std::vector<Text> FehlendeGruppen(const Einleseauftrag &auftrag,
                                  const std::vector<Vorschauzeile> &gewählte)
{
    std::vector<Text> fehlende;
    if (auftrag.Art != Personenart::Diener || !auftrag.GruppenAnlegen)
        return fehlende;
    const int spalte = SpalteNamens(auftrag.Art, "Gruppe");
    for (const Vorschauzeile &zeile : gewählte)
        for (const Feldänderung &feld : zeile.Felder)
            if (feld.Spalte == spalte && !feld.Neu.empty() && !GibtEsGruppe(feld.Neu) &&
                std::ranges::count(fehlende, feld.Neu) == 0)
                fehlende.push_back(feld.Neu);
    return fehlende;
}

int FreieGruppen()
{
    return std::max(0, MeisteGruppen - int{Gruppe.Anzahl});
}

int FreiePlätze(Personenart art)
{
    return std::max(0, Meiste(art) - Vorhandene(art));
}

Text Platztext(int frei)
{
    return frei == 0 ? Text("Platz ist keiner mehr") : "Platz ist nur noch für " + ZahlText(frei);
}

/// As it is before anybody was written there: a record that was once deleted leaves its values.
void Leeren(Personenart art, int i)
{
    if (art == Personenart::Diener) {
        Meßdiener.Qualifikation[i] = MeßdienerTabelle::QualifikationVorgabe;
        Meßdiener.Wochendienst[i] = MeßdienerTabelle::WochendienstVorgabe;
    }
    for (const Listenspalte &spalte : SpaltenFür(art))
        if (!spalte.LeerHeißtNein)
            spalte.Setzen(i, "");
}

} // namespace

Text KeinPlatzFür(const Einleseauftrag &auftrag, const std::vector<Vorschauzeile> &gewählte)
{
    const auto neue = static_cast<int>(std::ranges::count_if(
        gewählte, [](const Vorschauzeile &zeile) { return zeile.IstNeu() && !zeile.Unmöglich; }));
    const auto gruppen = static_cast<int>(FehlendeGruppen(auftrag, gewählte).size());
    const Text wer = auftrag.Art == Personenart::Diener ? " Meßdiener" : " Helfer";
    if (const int frei = FreiePlätze(auftrag.Art); neue > frei)
        return (neue == 1 ? "Ein neuer" + wer + " ist" : ZahlText(neue) + " neue" + wer + " sind") +
               " angekreuzt, " + Platztext(frei) + ": Das Programm legt höchstens " +
               ZahlText(Meiste(auftrag.Art)) + wer + " an.";
    if (const int frei = FreieGruppen(); gruppen > frei)
        return (gruppen == 1 ? Text("Eine neue Gruppe wäre")
                             : ZahlText(gruppen) + " neue Gruppen wären") +
               " nötig, " + Platztext(frei) + ": Das Programm legt höchstens " +
               ZahlText(MeisteGruppen) + " Gruppen an.";
    return "";
}

Eingelesen Einlesen(const Einleseauftrag &auftrag, const std::vector<Vorschauzeile> &gewählte)
{
    Eingelesen ergebnis;
    for (const Text &gruppe : FehlendeGruppen(auftrag, gewählte))
        if (FreieGruppen() > 0) {
            // A name that a file has past its count is no group: it would become one, unasked.
            Gruppe.Bezeichnung[Gruppe.Anzahl].clear();
            GruppeAnlegen(gruppe);
            ++ergebnis.Gruppen;
        }
    for (const Vorschauzeile &zeile : gewählte) {
        if (zeile.Unmöglich || zeile.Felder.empty() ||
            (zeile.IstNeu() && FreiePlätze(auftrag.Art) == 0))
            continue;
        const int i = zeile.IstNeu() ? Vorhandene(auftrag.Art) : zeile.Datensatz;
        if (zeile.IstNeu())
            Leeren(auftrag.Art, i);
        for (const Feldänderung &feld : zeile.Felder)
            SpalteMit(auftrag.Art, feld.Spalte).Setzen(i, feld.Neu);
        if (zeile.IstNeu())
            Anzahl(auftrag.Art) = i + 1;
        ++(zeile.IstNeu() ? ergebnis.Neu : ergebnis.Geändert);
    }
    return ergebnis;
}

Text ÄnderungenText(Personenart art, const Vorschauzeile &zeile)
{
    Text text;
    for (const Feldänderung &feld : zeile.Felder) {
        const bool istName = feld.Spalte == SpalteVorname || feld.Spalte == SpalteNachname;
        if (istName) // stands in a column of its own
            continue;
        if (!text.empty())
            text += "; ";
        text += SpalteMit(art, feld.Spalte).Name + ": ";
        if (!zeile.IstNeu())
            text += (feld.Alt.empty() ? Text("(leer)") : feld.Alt) + " → ";
        text += feld.Neu.empty() ? Text("(leer)") : feld.Neu;
    }
    return text;
}

} // namespace altardienst

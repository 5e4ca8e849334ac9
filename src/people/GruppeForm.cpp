// The editor of the groups, one name at a time.
#include "people/GruppeForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Zahlbox.h"
#include "core/Messenname.h"
#include "core/tables.h"
#include "people/NeuGruppeForm.h"
#include "people/Personenboxen.h"
#include "platform/Meldungen.h"

#include <QHBoxLayout>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int LetzterDatensatz = 100;

Datensatzliste::Quelle Listenquelle()
{
    return {"Gruppen",
            "Kommunionkinder 2026",
            [] { return std::min<int>(Gruppe.Anzahl, LetzterDatensatz + 1); },
            [](int i) { return Personenzeile("", Gruppe.Bezeichnung[i]); },
            {}};
}

} // namespace

GruppeForm::GruppeForm()
    : Editorfenster(new Datensatzwahl({"Indexi", "PLUS", "MINUS", "DPM"}), Listenquelle()),
      GBezeichnung(Gruppenfeld()), Gruppenzahl(Beschriftung("Gruppenzahl", "")),
      Löschend(Knopf("Löschend", "Gruppe löschen")), NEWGroup(Knopf("NEWGroup", "neue Gruppe"))
{
    Benannt(this, "Gruppe");
    setWindowTitle("Gruppe");
    Anordnen();
    Verbinden();
    Offen([this] {
        ZahlSetzen(Wahl->Nummer, Gruppe.Cursor);
        Zeigen(Gruppe.Cursor);
        AnzahlZeigen();
    })();
}

void GruppeForm::Anordnen()
{
    KnöpfeBeschriften(Wahl);
    auto *name = new QHBoxLayout;
    name->addWidget(Beschriftung("", "Gruppe:", GBezeichnung));
    name->addWidget(GBezeichnung, 1);

    auto *spalte = Liste->Fensterspalte(this, Luft::Viel);
    spalte->addLayout(Datensatzkopf(Wahl, Beschriftung("", "Anzahl Gruppen:"), Gruppenzahl));
    spalte->addLayout(name);
    spalte->addLayout(Knopfreihe({Ende}, {NEWGroup, Löschend}));
    spalte->addStretch();
    setMinimumWidth(500);
    GrößeAnpassen(this);
    GBezeichnung->setFocus();
}

void GruppeForm::Verbinden()
{
    Wahl->BeiWechsel(Abgefangen([this] { NummerGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) { Offen([&] { Schritt(richtung); })(); });
    connect(Löschend, &QPushButton::clicked, this, Offen([this] { Löschen(); }));
    connect(NEWGroup, &QPushButton::clicked, this, Offen([this] { NeueGruppe(); }));
    EndeVerbinden();
}

/// Typing a number jumps to that group without saving what is on the screen; the number one past
/// the blank slot adds an empty group.
void GruppeForm::NummerGeändert()
{
    Schrittweise([&] { NummerBegrenzen(Wahl->Nummer, LetzterDatensatz, Gruppe.Anzahl); },
                 [&] {
                     if (Nummer() > Gruppe.Anzahl)
                         Gruppe.Anzahl = Nummer();
                 },
                 [&] { Gruppe.Cursor = Nummer(); }, [&] { Zeigen(Nummer()); },
                 [&] { AnzahlZeigen(); })();
}

/// The number box is lowered unchecked and clipped by its own rule. A group without a name cannot
/// be left forwards, although the next name is shown.
void GruppeForm::Schritt(int richtung)
{
    const int i = Sichern();
    if (richtung > 0 ? i < LetzterDatensatz : i > 0)
        Zeigen(i + richtung);
    if (richtung < 0 || IstBenannt(i))
        ZahlSetzen(Wahl->Nummer, i + richtung);
    Liste->Folgen();
}

int GruppeForm::Sichern()
{
    Umbenennen();
    Schreiben();
    return Nummer();
}

bool GruppeForm::IstBenannt(int i) const
{
    return !Gruppe.Bezeichnung[i].empty();
}

QWidget *GruppeForm::Fehlendes(int) const
{
    return nullptr;
}

/// Before each save, except when closing by the close box: a name that another group has is
/// silently undone, a new one is passed on to the servers.
void GruppeForm::Umbenennen()
{
    const int i = LesenOderFokus(Wahl->Nummer, Int16Lesen);
    if (IstAndereGruppe(i, TextVon(GBezeichnung)))
        Zeigen(i);
    GruppeUmbenennen(i, TextVon(GBezeichnung));
}

void GruppeForm::Löschen()
{
    if (!Meldungen.FragenVorVerlust("Wirklich?", "Löschen einer Gruppe"))
        return;
    const int vorher = Gruppe.Anzahl;
    GruppeLöschen(Nummer());
    if (Gruppe.Anzahl < vorher)
        Zeigen(Gruppe.Cursor);
    AnzahlZeigen();
    if (Nummer() > Gruppe.Anzahl)
        ZahlSetzen(Wahl->Nummer, Gruppe.Anzahl);
    Liste->Folgen();
}

void GruppeForm::NeueGruppe()
{
    NeuAnlegen<NeuGruppeForm>(
        Schrittweise([this] { Zeigen(Nummer()); }, [this] { AnzahlZeigen(); }));
}

/// Writes the screen; a name typed into the blank slot becomes a group.
void GruppeForm::Abschließen()
{
    Schreiben();
    if (Nummer() == Gruppe.Anzahl && !GBezeichnung->text().isEmpty())
        ++Gruppe.Anzahl;
}

void GruppeForm::Zeigen(int i)
{
    Setzen(GBezeichnung, Gruppe.Bezeichnung[i]);
}

void GruppeForm::Schreiben()
{
    Gruppe.Bezeichnung[LesenOderFokus(Wahl->Nummer, Int16Lesen)] = TextVon(GBezeichnung);
}

void GruppeForm::AnzahlZeigen()
{
    Setzen(Gruppenzahl, ZahlText(Gruppe.Anzahl));
}

} // namespace altardienst

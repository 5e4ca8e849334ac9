// The editor of the altar servers, one at a time.
#include "people/MeßdienerForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Messenname.h"
#include "core/Plätze.h"
#include "people/ImPlan.h"
#include "people/NeuMeßdienerForm.h"
#include "people/Umbenannt.h"
#include "platform/Meldungen.h"
#include "printing/Aufnahmebestätigung.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int LetzterDatensatz = 399;

Datensatzliste::Quelle Listenquelle()
{
    return {"Meßdiener",
            "Mustermann, Maximiliane",
            [] { return std::min<int>(Meßdiener.Anzahl, LetzterDatensatz + 1); },
            [](int i) { return Personenzeile(Meßdiener.Vorname[i], Meßdiener.Nachname[i]); },
            {}};
}

auto Zeitspalten()
{
    return std::array{&Meßdiener.Von1, &Meßdiener.Bis1, &Meßdiener.Von2, &Meßdiener.Bis2,
                      &Meßdiener.Von3, &Meßdiener.Bis3, &Meßdiener.Von4, &Meßdiener.Bis4,
                      &Meßdiener.Von5, &Meßdiener.Bis5};
}

/// One position for each service with slots of its own, and one for the leader.
std::vector<Flagname> Qualifikationen()
{
    constexpr std::array<const char *, BesondereDienste.size()> boxen = {
        "Check1", "Check2", "Check3", "Check4", "Check5"};
    std::vector<Flagname> namen;
    for (std::size_t k = 0; k < boxen.size(); ++k)
        namen.push_back({boxen[k], BesondereDienste[k].Name.c_str()});
    namen.push_back({"Check3a", "Anführer"});
    return namen;
}

} // namespace

MeßdienerForm::MeßdienerForm()
    : Editorfenster(new Datensatzwahl({"Datensätze", "PLUS", "MINUS", "DPM"}), Listenquelle()),
      MaxIndex(Beschriftung("MaxIndex", "")),
      Dienstmittig("Dienstmittig", "Qualifikation", Qualifikationen()),
      Abgewählt("Abgewählt", "Möchte nicht dienen",
                {{"Check6", "Wochendienst"},
                 {"Check7", "Mo"},
                 {"Check8", "Di"},
                 {"Check9", "Mi"},
                 {"Check10", "Do"},
                 {"Check11", "Fr"}}),
      Norm(Benannt(new QRadioButton("normal"), "Norm")),
      Oft(Benannt(new QRadioButton("oft"), "Oft")), Haufigk(Zahleneingabe("Haufigk")),
      Abwesenheiten(5), NeuDiener(Knopf("NeuDiener", "Neuer Meßdiener")),
      Lösch(Knopf("Lösch", "Datensatz löschen")),
      Aufnahmebestätigung(Knopf("Aufnahmebestätigung", "Aufnahmebestätigung drucken"))
{
    Benannt(this, "Meßdiener");
    setWindowTitle("Meßdiener");
    Angaben.Gebutag.KnöpfeAnlegen({{{"mTag", "pTag"}, {"mMonat", "PMonat"}, {"mJahr", "pJahr"}}});
    Angaben.Eintritttdatum.KnöpfeAnlegen(
        {{{"mmTag", "pptag"}, {"mmMonat", "ppMonat"}, {"mmJahr", "ppJahr"}}});
    PlzOrtErgänzen();
    Anordnen();
    Verbinden();
    Offen([this] {
        ZahlSetzen(Wahl->Nummer, Meßdiener.Cursor);
        Zeigen(Meßdiener.Cursor);
        AnzahlZeigen();
        Angaben.GruppenlisteFüllen();
        Wunsch.ListeFüllen();
        Wunsch.PartnerZeigen();
    })();
}

void MeßdienerForm::Anordnen()
{
    KnöpfeBeschriften(Wahl);
    auto *rechts = new QVBoxLayout;
    rechts->setSpacing(14);
    rechts->addLayout(Dienstteil());
    rechts->addLayout(Abwesenheiten.Anordnen());
    rechts->addLayout(Wunsch.Anordnen());
    rechts->addStretch();

    auto *mitte = new QHBoxLayout;
    mitte->setSpacing(28);
    mitte->addLayout(Personenteil(), 1);
    mitte->addLayout(rechts);

    auto *spalte = Liste->Fensterspalte(this, Luft::Mittel);
    QLayout *kopf = Datensatzkopf(Wahl, Beschriftung("", "Anzahl Datensätze:"), MaxIndex);
    kopf->addWidget(ImPlanKnopf(this, Ende, [this] { return Angaben.Person.Name(); }));
    spalte->addLayout(kopf);
    spalte->addWidget(Rollbar(mitte), 1);
    spalte->addLayout(Knopfreihe({Ende}, {NeuDiener, Lösch, Aufnahmebestätigung}));
    GrößeAnpassen(this);
    Angaben.Person.Vorname->setFocus();
}

QLayout *MeßdienerForm::Personenteil()
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(4);
    Angaben.Anordnen(raster, 3);
    return raster;
}

QLayout *MeßdienerForm::Dienstteil()
{
    auto *teil = new QVBoxLayout;
    teil->setSpacing(5);
    teil->addWidget(Überschrift("Qualifikation:", Dienstmittig.Boxen.front()));
    teil->addLayout(Dienstmittig.Anordnen(this, 3));
    teil->addSpacing(8);
    teil->addWidget(Überschrift("Diensthäufigkeit", Norm));
    auto *häufigkeit = new QHBoxLayout;
    häufigkeit->setSpacing(16);
    häufigkeit->addWidget(Norm);
    häufigkeit->addWidget(Oft);
    Haufigk->setAccessibleName("Diensthäufigkeit als Zahl");
    Haufigk->setFixedWidth(48);
    häufigkeit->addWidget(Haufigk);
    häufigkeit->addStretch();
    teil->addLayout(häufigkeit);
    teil->addSpacing(8);
    teil->addWidget(Überschrift("Möchte nicht dienen:", Abgewählt.Boxen.front()));
    teil->addLayout(Abgewählt.Anordnen(this, 6));
    return teil;
}

void MeßdienerForm::Verbinden()
{
    Wahl->BeiWechsel(Abgefangen([this] { NummerGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) {
        Offen([&] {
            NullStattLeer();
            Schritt(richtung);
        })();
    });
    // The spin button does not fill an empty number box.
    Wahl->DPM->BeiAb(Offen([this] { Schritt(-1); }));
    Wahl->DPM->BeiAuf(Offen([this] { Schritt(+1); }));
    Angaben.Verbinden();
    Angaben.Gebutag.BeiÄnderungUmschreiben();
    Angaben.Eintritttdatum.BeiÄnderungUmschreiben();
    BeiVerlassen(Angaben.Dieenst, Abgefangen([this] { GruppePrüfen(); }));
    Dienstmittig.Verbinden();
    Abgewählt.Verbinden();
    connect(Norm, &QRadioButton::clicked, this, Abgefangen([this] { ZahlSetzen(Haufigk, 0); }));
    connect(Oft, &QRadioButton::clicked, this, Abgefangen([this] { ZahlSetzen(Haufigk, 2); }));
    connect(Haufigk, &QLineEdit::textChanged, this, Abgefangen([this] { HäufigkeitGeändert(); }));
    Abwesenheiten.Verbinden();
    BeiAuswahl(Wunsch.Partner, Abgefangen([this] { PartnerPrüfen(true); }));
    BeiVerlassen(Wunsch.Partner, Abgefangen([this] { PartnerPrüfen(false); }));
    connect(NeuDiener, &QPushButton::clicked, this, Offen([this] { NeuerMeßdiener(); }));
    connect(Lösch, &QPushButton::clicked, this, Offen([this] { Löschen(); }));
    connect(Aufnahmebestätigung, &QPushButton::clicked, this, Offen([this] { Bestätigen(); }));
    EndeVerbinden();
}

/// Typing a number jumps to that server without saving what is on the screen; the number one past
/// the blank slot adds an empty record.
void MeßdienerForm::NummerGeändert()
{
    Schrittweise([&] { NummerBegrenzen(Wahl->Nummer, LetzterDatensatz, Meßdiener.Anzahl); },
                 [&] { Meßdiener.Cursor = Nummer(); }, [&] { Zeigen(Nummer()); },
                 [&] {
                     if (Nummer() > Meßdiener.Anzahl)
                         Meßdiener.Anzahl = Nummer();
                 },
                 [&] { AnzahlZeigen(); }, [&] { Wunsch.PartnerZeigen(); })();
}

/// A server without both names cannot be left forwards. The cursor moves one further than the
/// number box, whose change has already moved it; closing the form corrects it.
void MeßdienerForm::Schritt(int richtung)
{
    const int i = Sichern();
    if (richtung > 0 ? IstBenannt(i) && i < LetzterDatensatz : i > 0) {
        Zeigen(i + richtung);
        ZahlSetzen(Wahl->Nummer, i + richtung);
        if (richtung > 0 ? Meßdiener.Cursor < LetzterDatensatz : Meßdiener.Cursor >= 1)
            Meßdiener.Cursor += richtung;
    }
    Wunsch.ListeFüllen();
    Wunsch.PartnerZeigen();
    Liste->Folgen();
}

int MeßdienerForm::Sichern()
{
    Umbenennen();
    const int i = Nummer();
    Schreiben(i);
    return i;
}

void MeßdienerForm::Erneuern()
{
    Editorfenster::Erneuern();
    Wunsch.ListeFüllen();
    Wunsch.PartnerZeigen();
}

bool MeßdienerForm::IstBenannt(int i) const
{
    return !Meßdiener.Vorname[i].empty() && !Meßdiener.Nachname[i].empty();
}

QWidget *MeßdienerForm::Fehlendes(int i) const
{
    if (Meßdiener.Vorname[i].empty() == Meßdiener.Nachname[i].empty())
        return nullptr;
    return Meßdiener.Vorname[i].empty() ? Angaben.Person.Vorname : Angaben.Person.Nachname;
}

void MeßdienerForm::Aufschlagen(int satz)
{
    NullStattLeer();
    Editorfenster::Aufschlagen(satz);
    Wunsch.ListeFüllen();
    Wunsch.PartnerZeigen();
}

/// Before each save, except when closing by the close box: a name that another server has is
/// silently undone, a new one is passed on to every place that names the server.
void MeßdienerForm::Umbenennen()
{
    const int i = LesenOderFokus(Wahl->Nummer, Int16Lesen);
    if (IstAndererMeßdiener(i, Angaben.Person.Name()))
        Angaben.Person.NameZeigen(Meßdiener, i);
    const Personenname alt{Meßdiener.Vorname[i], Meßdiener.Nachname[i]};
    MeßdienerUmbenennen(i, Angaben.Person.Name());
    UmbenennungMelden(alt, Angaben.Person.Name(), false);
    Wunsch.ListeFüllen();
}

/// Values that neither option stands for stay in the box.
void MeßdienerForm::HäufigkeitGeändert()
{
    (Begrenzen(Haufigk, 0, 20) == 0 ? Norm : Oft)->setChecked(true);
}

void MeßdienerForm::GruppePrüfen()
{
    const Text text = TextVon(Angaben.Dieenst);
    if (IstAbgeschlossen() || text.empty())
        return;
    for (int i = 0; i <= Gruppe.Anzahl; ++i)
        if (Gruppe.Bezeichnung[i] == text)
            return;
    Setzen(Angaben.Dieenst, Meßdiener.Gruppe[Nummer()]);
    Meldungen.Zeigen("Die Gruppe ist unbekannt!!");
}

void MeßdienerForm::PartnerPrüfen(bool ausgewählt)
{
    if (!IstAbgeschlossen())
        Wunsch.Prüfen(Wahl->Nummer, Angaben.Person.Name(), ausgewählt);
}

void MeßdienerForm::NeuerMeßdiener()
{
    NeuAnlegen<NeuMeßdienerForm>(
        Schrittweise([this] { Zeigen(Nummer()); }, [this] { AnzahlZeigen(); },
                     [this] { Wunsch.ListeFüllen(); }, [this] { Wunsch.PartnerZeigen(); }));
}

/// With two servers or fewer nothing happens. On the blank slot the last server is deleted.
void MeßdienerForm::Löschen()
{
    if (!Meldungen.FragenVorVerlust("Wirklich?", "Löschen eines Meßdieners") ||
        Meßdiener.Anzahl <= 2)
        return;
    if (Nummer() == Meßdiener.Anzahl)
        ZahlSetzen(Wahl->Nummer, Meßdiener.Anzahl - 1);
    MeßdienerLöschen(Nummer());
    Zeigen(Nummer());
    AnzahlZeigen();
    Wunsch.ListeFüllen();
    Wunsch.PartnerZeigen();
    Liste->Folgen();
}

void MeßdienerForm::Bestätigen() const
{
    AufnahmebestätigungDrucken({TextVon(Angaben.Person.Vorname), TextVon(Angaben.Person.Nachname),
                                TextVon(Angaben.Person.Straße), TextVon(Angaben.Person.PLZ),
                                TextVon(Angaben.Person.Ort), TextVon(Angaben.Eintritttdatum.Feld),
                                TextVon(Angaben.Dieenst)});
}

/// Writes the screen; a server typed into the blank slot with both names is added.
void MeßdienerForm::Abschließen()
{
    Schreiben(LesenOderFokus(Wahl->Nummer, Int16Lesen));
    const Personenname name = Angaben.Person.Name();
    if (Nummer() == Meßdiener.Anzahl && !name.Vorname.empty() && !name.Nachname.empty())
        ++Meßdiener.Anzahl;
    if (Nummer() >= Meßdiener.Anzahl)
        ZahlSetzen(Wahl->Nummer, Meßdiener.Anzahl - 1);
    Meßdiener.Cursor = Nummer();
}

void MeßdienerForm::Zeigen(int i)
{
    Angaben.Zeigen(i);
    Setzen(Dienstmittig.Feld, Meßdiener.Qualifikation[i]);
    Setzen(Abgewählt.Feld, Meßdiener.Wochendienst[i]);
    Abwesenheiten.Zeigen(Zeitspalten(), i);
    Wunsch.Zeigen(i);
    ZahlSetzen(Haufigk, Meßdiener.Häufigkeit[i]);
}

void MeßdienerForm::Schreiben(int i)
{
    Angaben.Schreiben(i);
    Meßdiener.Qualifikation[i] = TextVon(Dienstmittig.Feld);
    Meßdiener.Wochendienst[i] = TextVon(Abgewählt.Feld);
    Abwesenheiten.Schreiben(Zeitspalten(), i);
    Wunsch.Schreiben(i);
    Meßdiener.Häufigkeit[i] = LesenOderFokus(Haufigk, Int16Lesen);
}

void MeßdienerForm::AnzahlZeigen()
{
    Setzen(MaxIndex, ZahlText(Meßdiener.Anzahl));
}

} // namespace altardienst

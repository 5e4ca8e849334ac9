// The editor of the altar servers, one at a time.
#include "people/MeßdienerForm.h"

#include "core/tables.h"
#include "fenster/Anwendung.h"
#include "fenster/Bausteine.h"
#include "fenster/Fensteraufbau.h"
#include "fenster/Handler.h"
#include "people/Namen.h"
#include "people/NeuMeßdienerForm.h"
#include "platform/Meldungen.h"
#include "printing/Aufnahmebestätigung.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace altardienst {
namespace {

constexpr int LetzterDatensatz = 399;

auto Zeitspalten()
{
    return std::array{&Meßdiener.Von1, &Meßdiener.Bis1, &Meßdiener.Von2, &Meßdiener.Bis2,
                      &Meßdiener.Von3, &Meßdiener.Bis3, &Meßdiener.Von4, &Meßdiener.Bis4,
                      &Meßdiener.Von5, &Meßdiener.Bis5};
}

QLabel *Überschrift(const char *text, QWidget *zu = nullptr)
{
    auto *label = Beschriftung("", text);
    label->setBuddy(zu);
    QFont schrift = label->font();
    schrift.setBold(true);
    label->setFont(schrift);
    return label;
}

} // namespace

QComboBox *Geschlechtwahl()
{
    QComboBox *wahl = Textwahl("Geschl", "Geschlecht");
    ListeSetzen(wahl, {"männlich", "weiblich"});
    return wahl;
}

QComboBox *Gruppenwahl()
{
    return Textwahl("Dieenst", "Gruppe");
}

void GruppenlisteFüllen(QComboBox *gruppenwahl)
{
    QStringList namen;
    for (int i = 0; i <= Gruppe.Anzahl; ++i)
        namen.append(Anzeige(Gruppe.Bezeichnung[i]));
    ListeSetzen(gruppenwahl, namen);
}

void GrößeVerbinden(const Zahlbox &größe)
{
    QLineEdit *feld = größe.Feld;
    QObject::connect(feld, &QLineEdit::textChanged, feld,
                     Abgefangen([feld] { Begrenzen(feld, 5, 250); }));
    SchritteVerbinden(nullptr, nullptr, größe.Spin, [feld](int richtung) {
        Schrittweise([&] { ZahlSetzen(feld, Int16(ZahlIn(feld)) + richtung); },
                     [&] { feld->setFocus(); })();
    });
}

MeßdienerForm::MeßdienerForm()
    : Wahl(new Datensatzwahl({"Datensätze", "PLUS", "MINUS", "DPM"})),
      MaxIndex(Beschriftung("MaxIndex", "")),
      Person({"Vornamen", "Nachnamen", "Straßen", "Postleit", "Gemeinde", "Teflon", "Emeil"}),
      Gebutag("Gebutag", {"Änderung1", "Änderung2", "Änderung3"}, "Geburtstag"),
      Geschl(Geschlechtwahl()), Groß(ZahlboxAnlegen("Groß", "Änderung7", "Größe:")),
      Eintritttdatum("Eintritttdatum", {"Änderung4", "Änderung5", "Änderung6"}, "Eintrittsdatum"),
      Dieenst(Gruppenwahl()), Dienstmittig("Dienstmittig", "Qualifikation",
                                           {{"Check1", "Gabenbereitung"},
                                            {"Check2", "Leuchter"},
                                            {"Check3", "Flambeau"},
                                            {"Check4", "Weihrauch"},
                                            {"Check5", "Kreuzträger"},
                                            {"Check3a", "Anführer"}}),
      Abgewählt("Abgewählt", "Möchte nicht dienen",
                {{"Check6", "Wochendienst"},
                 {"Check7", "Mo"},
                 {"Check8", "Di"},
                 {"Check9", "Mi"},
                 {"Check10", "Do"},
                 {"Check11", "Fr"}}),
      Norm(Benannt(new QRadioButton("normal"), "Norm")),
      Oft(Benannt(new QRadioButton("oft"), "Oft")), Haufigk(Textfeld("Haufigk")), Abwesenheiten(5),
      Partner(Textwahl("Partner", "Wunschpartner")), VName(Textfeld("VName")),
      NName(Textfeld("NName")), NeuDiener(Knopf("NeuDiener", "Neuer Meßdiener")),
      Lösch(Knopf("Lösch", "Datensatz löschen")),
      Aufnahmebestätigung(Knopf("Aufnahmebestätigung", "Aufnahmebestätigung drucken")),
      Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Meßdiener");
    setWindowTitle("Meßdiener");
    Gebutag.KnöpfeAnlegen({{{"mTag", "pTag"}, {"mMonat", "PMonat"}, {"mJahr", "pJahr"}}});
    Eintritttdatum.KnöpfeAnlegen(
        {{{"mmTag", "pptag"}, {"mmMonat", "ppMonat"}, {"mmJahr", "ppJahr"}}});
    PlzOrtErgänzen();
    Anordnen();
    Verbinden();
    Offen([this] {
        ZahlSetzen(Wahl->Nummer, Meßdiener.Cursor);
        Zeigen(Meßdiener.Cursor);
        AnzahlZeigen();
        GruppenlisteFüllen(Dieenst);
        PartnerlisteFüllen();
        PartnerZeigen();
    })();
}

void MeßdienerForm::Anordnen()
{
    KnöpfeBeschriften(Wahl);
    auto *rechts = new QVBoxLayout;
    rechts->setSpacing(14);
    rechts->addLayout(Dienstteil());
    rechts->addLayout(Abwesenheiten.Anordnen());
    rechts->addLayout(Partnerteil());
    rechts->addStretch();

    auto *mitte = new QHBoxLayout;
    mitte->setSpacing(28);
    mitte->addLayout(Personenteil(), 1);
    mitte->addLayout(rechts);

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(16, 16, 16, 16);
    spalte->setSpacing(12);
    spalte->addLayout(Datensatzkopf(Wahl, Beschriftung("", "Anzahl Datensätze:"), MaxIndex));
    spalte->addWidget(Rollbar(mitte), 1);
    spalte->addLayout(Knopfreihe({Ende}, {NeuDiener, Lösch, Aufnahmebestätigung}));
    GrößeAnpassen(this);
    Person.Vorname->setFocus();
}

QLayout *MeßdienerForm::Personenteil()
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(4);
    Person.Anordnen(raster, 0, 3);
    Gebutag.Anordnen(raster, 7, "Geburtstag:");
    raster->addWidget(Beschriftung("", "Geschlecht:", Geschl), 10, 0);
    raster->addWidget(Geschl, 10, 1, 1, 2, Qt::AlignLeft);
    auto *größe = new QHBoxLayout;
    größe->setSpacing(6);
    größe->addWidget(Groß.Feld);
    größe->addWidget(Beschriftung("", "cm"));
    größe->addWidget(Groß.Spin);
    größe->addStretch();
    raster->addWidget(Beschriftung("", "Größe:", Groß.Feld), 11, 0);
    raster->addLayout(größe, 11, 1, 1, 2);
    Eintritttdatum.Anordnen(raster, 12, "Eintrittsdatum:");
    raster->addWidget(Beschriftung("", "Gruppe:", Dieenst), 15, 0);
    raster->addWidget(Dieenst, 15, 1, 1, 3);
    raster->setColumnStretch(3, 1);
    raster->setRowStretch(16, 1);
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
    häufigkeit->addStretch();
    Haufigk->setParent(this);
    Haufigk->hide();
    teil->addLayout(häufigkeit);
    teil->addSpacing(8);
    teil->addWidget(Überschrift("Möchte nicht dienen:", Abgewählt.Boxen.front()));
    teil->addLayout(Abgewählt.Anordnen(this, 6));
    return teil;
}

QLayout *MeßdienerForm::Partnerteil()
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(8);
    raster->setVerticalSpacing(4);
    raster->addWidget(Überschrift("Der Wunschpartner:"), 0, 0, 1, 3);
    raster->addWidget(Beschriftung("", "Nachname,Vorname", Partner), 1, 0);
    raster->addWidget(Beschriftung("", "Vorname", VName), 1, 1);
    raster->addWidget(Beschriftung("", "Nachname", NName), 1, 2);
    raster->addWidget(Partner, 2, 0);
    raster->addWidget(VName, 2, 1);
    raster->addWidget(NName, 2, 2);
    Partner->setMinimumContentsLength(20);
    // The names are set by choosing the partner.
    for (QLineEdit *feld : {VName, NName}) {
        feld->setReadOnly(true);
        feld->setFocusPolicy(Qt::ClickFocus);
    }
    raster->setColumnStretch(1, 1);
    raster->setColumnStretch(2, 1);
    return raster;
}

void MeßdienerForm::Verbinden()
{
    Wahl->BeiWechsel([this] { NummerGeändert(); });
    Wahl->BeiSchritt([this](int richtung) {
        Offen([&] {
            if (Wahl->Nummer->text().isEmpty())
                ZahlSetzen(Wahl->Nummer, 0);
            Schritt(richtung);
        })();
    });
    // The spin button does not fill an empty number box.
    Wahl->DPM->BeiAb(Offen([this] { Schritt(-1); }));
    Wahl->DPM->BeiAuf(Offen([this] { Schritt(+1); }));
    Person.Verbinden();
    for (const Datumsfeld *datum : {&Gebutag, &Eintritttdatum}) {
        datum->BeiÄnderungUmschreiben();
        datum->SchritteVerbinden();
    }
    GrößeVerbinden(Groß);
    BeiVerlassen(Dieenst, Abgefangen([this] { GruppePrüfen(); }));
    Dienstmittig.Verbinden();
    Abgewählt.Verbinden();
    connect(Norm, &QRadioButton::clicked, this, [this] { ZahlSetzen(Haufigk, 0); });
    connect(Oft, &QRadioButton::clicked, this, [this] { ZahlSetzen(Haufigk, 2); });
    connect(Haufigk, &QLineEdit::textChanged, this, Abgefangen([this] { HäufigkeitGeändert(); }));
    Abwesenheiten.Verbinden();
    BeiAuswahl(Partner, Abgefangen([this] { PartnerPrüfen(true); }));
    BeiVerlassen(Partner, Abgefangen([this] { PartnerPrüfen(false); }));
    connect(NeuDiener, &QPushButton::clicked, this, [this] { NeuerMeßdiener(); });
    connect(Lösch, &QPushButton::clicked, this, Offen([this] { Löschen(); }));
    connect(Aufnahmebestätigung, &QPushButton::clicked, this, Offen([this] { Bestätigen(); }));
    connect(Ende, &QPushButton::clicked, this, Offen([this] {
                Umbenennen();
                Abschließen();
                close();
            }));
}

/// Typing a number jumps to that server without storing what was on the screen; the number one past
/// the blank slot adds an empty record.
void MeßdienerForm::NummerGeändert()
{
    Schrittweise([&] { NummerBegrenzen(Wahl->Nummer, LetzterDatensatz, Meßdiener.Anzahl); },
                 [&] { Meßdiener.Cursor = Nummer(); }, [&] { Zeigen(Nummer()); },
                 [&] {
                     if (Nummer() > Meßdiener.Anzahl)
                         Meßdiener.Anzahl = Nummer();
                 },
                 [&] { AnzahlZeigen(); }, [&] { PartnerZeigen(); })();
}

/// A server without both names is not left forward. The cursor moves by one more than the number
/// box, whose change has moved it already; closing the form sets it right.
void MeßdienerForm::Schritt(int richtung)
{
    Umbenennen();
    const int i = Nummer();
    Schreiben(i);
    const bool benannt = !Meßdiener.Vorname[i].empty() && !Meßdiener.Nachname[i].empty();
    if (richtung > 0 ? benannt && i < LetzterDatensatz : i > 0) {
        Zeigen(i + richtung);
        ZahlSetzen(Wahl->Nummer, i + richtung);
        if (richtung > 0 ? Meßdiener.Cursor < LetzterDatensatz : Meßdiener.Cursor >= 1)
            Meßdiener.Cursor += richtung;
    }
    PartnerlisteFüllen();
    PartnerZeigen();
}

/// Before each save but that of the window's own close: a name that another server bears is undone
/// without a word, a new one is pushed to all who name the server.
void MeßdienerForm::Umbenennen()
{
    const int i = Gelesen(Wahl->Nummer, Int16Lesen);
    if (IstAndererMeßdiener(i, Person.Name()))
        Person.NameZeigen(Meßdiener, i);
    MeßdienerUmbenennen(i, Person.Name());
    PartnerlisteFüllen();
}

/// Values other than those of the two options stay in the box.
void MeßdienerForm::HäufigkeitGeändert()
{
    (Begrenzen(Haufigk, 0, 20) == 0 ? Norm : Oft)->setChecked(true);
}

void MeßdienerForm::GruppePrüfen()
{
    const Text text = TextVon(Dieenst);
    if (abgeschlossen || text.empty())
        return;
    for (int i = 0; i <= Gruppe.Anzahl; ++i)
        if (Gruppe.Bezeichnung[i] == text)
            return;
    Setzen(Dieenst, Meßdiener.Gruppe[Nummer()]);
    Meldungen.Zeigen("Die Gruppe ist unbekannt!!");
}

/// The boxes are set before a message appears, as the message takes the focus and the box is left
/// then. One server can be the wish partner of one other only.
void MeßdienerForm::PartnerPrüfen(bool ausgewählt)
{
    if (abgeschlossen)
        return;
    const Text text = TextVon(Partner);
    const auto istBekannt = [&] {
        for (int i = 0; i <= Meßdiener.Anzahl; ++i)
            if (Listenname(Meßdiener.Nachname[i], Meßdiener.Vorname[i]) == text)
                return true;
        return false;
    };
    if (!text.empty() && !istBekannt()) {
        PartnerZeigen();
        return Meldungen.Zeigen("Meßdiener ist unbekannt!! Auswählen oder neu eingeben!!");
    }
    Text nachname = TextVon(NName);
    Text vorname = TextVon(VName);
    NameTeilen(text, nachname, vorname);
    Setzen(NName, nachname);
    Setzen(VName, vorname);
    if (Personenname{vorname, nachname} == Person.Name()) {
        PartnerLeeren();
        if (ausgewählt)
            Meldungen.Zeigen("Ein und dieselbe Person!!!");
        return;
    }
    const int nummer = Nummer();
    for (int i = 0; i <= Meßdiener.Anzahl; ++i) {
        if (i == nummer || Meßdiener.WunschNachname[i] != nachname ||
            Meßdiener.WunschVorname[i] != vorname)
            continue;
        PartnerLeeren();
        if (ausgewählt && !text.empty())
            Meldungen.Zeigen("Schon mal zugeordnet!!!!!");
        return;
    }
}

void MeßdienerForm::NeuerMeßdiener()
{
    hide();
    DialogDanebenÖffnen(
        new NeuMeßdienerForm([this](bool angelegt) { NachNeuemMeßdiener(angelegt); }));
}

void MeßdienerForm::NachNeuemMeßdiener(bool angelegt)
{
    if (angelegt)
        Schrittweise([&] { Zeigen(Nummer()); }, [&] { AnzahlZeigen(); },
                     [&] { PartnerlisteFüllen(); }, [&] { PartnerZeigen(); })();
    show();
    activateWindow();
}

/// Down to two servers nothing happens. On the blank slot the last server is deleted.
void MeßdienerForm::Löschen()
{
    if (!Meldungen.Fragen("Wirklich?", "Löschen eines Meßdieners") || Meßdiener.Anzahl <= 2)
        return;
    if (Nummer() == Meßdiener.Anzahl)
        ZahlSetzen(Wahl->Nummer, Meßdiener.Anzahl - 1);
    MeßdienerLöschen(Nummer());
    Zeigen(Nummer());
    AnzahlZeigen();
    PartnerlisteFüllen();
    PartnerZeigen();
}

void MeßdienerForm::Bestätigen() const
{
    AufnahmebestätigungDrucken({TextVon(Person.Vorname), TextVon(Person.Nachname),
                                TextVon(Person.Straße), TextVon(Person.PLZ), TextVon(Person.Ort),
                                TextVon(Eintritttdatum.Feld), TextVon(Dieenst)});
}

/// Writes the screen; a server typed into the blank slot with both names is adopted.
void MeßdienerForm::Abschließen()
{
    Schreiben(Gelesen(Wahl->Nummer, Int16Lesen));
    const Personenname name = Person.Name();
    if (Nummer() == Meßdiener.Anzahl && !name.Vorname.empty() && !name.Nachname.empty())
        ++Meßdiener.Anzahl;
    if (Nummer() >= Meßdiener.Anzahl)
        ZahlSetzen(Wahl->Nummer, Meßdiener.Anzahl - 1);
    Meßdiener.Cursor = Nummer();
    abgeschlossen = true;
}

int MeßdienerForm::Nummer() const
{
    return ZahlIn(Wahl->Nummer);
}

void MeßdienerForm::Zeigen(int i)
{
    Person.Zeigen(Meßdiener, i);
    Gebutag.Zeigen(Meßdiener.Geburtstag[i]);
    Setzen(Geschl, Meßdiener.Geschlecht[i]);
    ZahlSetzen(Groß.Feld, Meßdiener.Größe[i]);
    Eintritttdatum.Zeigen(Meßdiener.Eintrittsdatum[i]);
    Setzen(Dieenst, Meßdiener.Gruppe[i]);
    Setzen(Dienstmittig.Feld, Meßdiener.Qualifikation[i]);
    Setzen(Abgewählt.Feld, Meßdiener.Wochendienst[i]);
    Abwesenheiten.Zeigen(Zeitspalten(), i);
    Setzen(VName, Meßdiener.WunschVorname[i]);
    Setzen(NName, Meßdiener.WunschNachname[i]);
    ZahlSetzen(Haufigk, Meßdiener.Häufigkeit[i]);
}

void MeßdienerForm::Schreiben(int i)
{
    Person.Schreiben(Meßdiener, i);
    Meßdiener.Geburtstag[i] = Gebutag.Wert();
    Meßdiener.Geschlecht[i] = TextVon(Geschl);
    Meßdiener.Größe[i] = Gelesen(Groß.Feld, Int16Lesen);
    Meßdiener.Eintrittsdatum[i] = Eintritttdatum.Wert();
    Meßdiener.Gruppe[i] = TextVon(Dieenst);
    Meßdiener.Qualifikation[i] = TextVon(Dienstmittig.Feld);
    Meßdiener.Wochendienst[i] = TextVon(Abgewählt.Feld);
    Abwesenheiten.Schreiben(Zeitspalten(), i);
    Meßdiener.WunschVorname[i] = TextVon(VName);
    Meßdiener.WunschNachname[i] = TextVon(NName);
    Meßdiener.Häufigkeit[i] = ZahlIn(Haufigk);
}

void MeßdienerForm::AnzahlZeigen()
{
    Setzen(MaxIndex, ZahlText(Meßdiener.Anzahl));
}

void MeßdienerForm::PartnerZeigen()
{
    const Text nachname = TextVon(NName);
    const Text vorname = TextVon(VName);
    const bool beide = !nachname.empty() && !vorname.empty();
    Setzen(Partner, beide ? Listenname(nachname, vorname) : Text());
}

void MeßdienerForm::PartnerLeeren()
{
    VName->clear();
    NName->clear();
    Partner->clearEditText();
}

void MeßdienerForm::PartnerlisteFüllen()
{
    QStringList namen;
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        if (!Meßdiener.Vorname[i].empty() && !Meßdiener.Nachname[i].empty())
            namen.append(Anzeige(Listenname(Meßdiener.Nachname[i], Meßdiener.Vorname[i])));
    ListeSetzen(Partner, namen);
}

/// The window's own close writes without renaming. A box that cannot be converted keeps the form
/// open, with the failure shown.
void MeßdienerForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->ignore();
    Offen([&] {
        if (!abgeschlossen)
            Abschließen();
        ereignis->accept();
        HauptfensterZurück();
    })();
}

} // namespace altardienst

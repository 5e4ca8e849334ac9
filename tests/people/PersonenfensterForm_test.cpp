// The six windows of the people as the user sees them: captions, lists, order, spoken names, size.
#include "people/Personenfenster.h"

#include <set>

namespace altardienst {
namespace {

using Menge = std::multiset<Text>;

/// "control: caption" for each button and for each label that belongs to a control, just the
/// caption for the others.
Menge Aufschriften(const QWidget *fenster)
{
    Menge alle;
    for (const QWidget *control : fenster->findChildren<QWidget *>()) {
        if (!control->isVisibleTo(fenster))
            continue;
        const auto *label = qobject_cast<const QLabel *>(control);
        if (!label && !qobject_cast<const QAbstractButton *>(control))
            continue;
        if (control->foregroundRole() == QPalette::PlaceholderText)
            continue; // what is said in grey beside the boxes
        const QObject *wessen = label && label->buddy() ? label->buddy() : control;
        const Text name = wessen->objectName().toStdString();
        if (!Zeigt(control).empty())
            alle.insert((name.empty() ? "" : name + ": ") + Zeigt(control));
    }
    return alle;
}

const Menge Bewegung = {"PLUS: Plus", "MINUS: Minus", "Ende: Ende"};
const Menge Schlußknöpfe = {"OKButton: OK", "CancelButton: Abbrechen"};
const Menge Einheiten = {"Tag", "Monat", "Jahr"};

Menge Zusammen(std::initializer_list<Menge> teile)
{
    Menge alle;
    for (const Menge &teil : teile)
        alle.insert(teil.begin(), teil.end());
    return alle;
}

const Menge Meßdienerperson = {"Vornamen: Vorname:",
                               "Nachnamen: Nachname:",
                               "Straßen: Straße:",
                               "Postleit: Postleitzahl:",
                               "Gemeinde: Ort:",
                               "Teflon: Telefon:",
                               "Emeil: EMail:",
                               "Gebutag: Geburtstag:",
                               "Geschl: Geschlecht:",
                               "Groß: Größe:",
                               "cm",
                               "Eintritttdatum: Eintrittsdatum:",
                               "Dieenst: Gruppe:"};
const Menge Helferperson = {
    "Vorne: Vorname:",  "Hinten: Nachname:", "Weg: Straße:",   "PLZetus: Postleitzahl:",
    "Wohort: Ort:",     "Anruf: Telefon:",   "Mailen: EMail:", "Tagen: Geburtstag:",
    "Dient: Dienst 1:", "Dient2: Dienst 2:"};
const Menge Abwesend = {"Start: Nicht Dienstbereit vom", "Schluß: bis"};

struct Erwartung {
    const char *Fenster;
    const char *Titel;
    Menge Aufschriften;
    std::vector<Text> Tabfolge;
};

std::vector<Text> Folge(std::initializer_list<std::vector<Text>> teile)
{
    std::vector<Text> alle;
    for (const auto &teil : teile)
        alle.insert(alle.end(), teil.begin(), teil.end());
    return alle;
}

/// The boxes of `anzahl` absences.
std::vector<Text> Zeiten(int anzahl)
{
    std::vector<Text> namen;
    for (int k = 0; k < 2 * anzahl; ++k) {
        const Text nummer = k < 2 ? "" : std::to_string(k / 2 + 1);
        namen.push_back((k % 2 == 0 ? "Start" : "Schluß") + nummer);
    }
    return namen;
}

std::vector<Erwartung> Erwartungen()
{
    const std::vector<Text> name = {"Vornamen", "Nachnamen", "Straßen", "Postleit",
                                    "Gemeinde", "Teflon",    "Emeil",   "Gebutag"};
    const std::vector<Text> helfername = {"Vorne",  "Hinten", "Weg",    "PLZetus",
                                          "Wohort", "Anruf",  "Mailen", "Tagen"};
    return {
        {"Meßdiener", "Meßdiener",
         Zusammen({Meßdienerperson, Bewegung, Abwesend, Einheiten, Einheiten, Einheiten, Einheiten,
                   Menge{"Anzahl Datensätze:",
                         "MaxIndex: 3",
                         "Check1: Qualifikation:",
                         "Check1: Gabenbereitung",
                         "Check2: Leuchter",
                         "Check3: Flambeau",
                         "Check4: Weihrauch",
                         "Check5: Kreuzträger",
                         "Check3a: Anführer",
                         "Norm: Diensthäufigkeit",
                         "Norm: normal",
                         "Oft: oft",
                         "Check6: Möchte nicht dienen:",
                         "Check6: Wochendienst",
                         "Check7: Mo",
                         "Check8: Di",
                         "Check9: Mi",
                         "Check10: Do",
                         "Check11: Fr",
                         "Der Wunschpartner:",
                         "Partner: Nachname,Vorname",
                         "VName: Vorname",
                         "NName: Nachname",
                         "NeuDiener: Neuer Meßdiener",
                         "Lösch: Datensatz löschen",
                         "Aufnahmebestätigung: Aufnahmebestätigung drucken",
                         "mTag: -",
                         "pTag: +",
                         "mMonat: -",
                         "PMonat: +",
                         "mJahr: -",
                         "pJahr: +",
                         "mmTag: -",
                         "pptag: +",
                         "mmMonat: -",
                         "ppMonat: +",
                         "mmJahr: -",
                         "ppJahr: +"}}),
         Folge({name,
                {"Geschl", "Groß", "Eintritttdatum", "Dieenst", "Check1", "Check2", "Check3",
                 "Check4", "Check5", "Check3a", "Norm", "Haufigk", "Check6", "Check7", "Check8",
                 "Check9", "Check10", "Check11"},
                Zeiten(5),
                {"Partner", "NeuDiener", "Lösch", "Aufnahmebestätigung", "Ende", "Datensätze"}})},
        {"NeuMeßdiener", "Neuer Meßdiener",
         Zusammen({Meßdienerperson, Schlußknöpfe, Einheiten, Einheiten}),
         Folge(
             {name, {"Geschl", "Groß", "Eintritttdatum", "Dieenst", "OKButton", "CancelButton"}})},
        {"Gruppe",
         "Gruppe",
         Zusammen({Bewegung, Menge{"GBezeichnung: Gruppe:", "Anzahl Gruppen:", "Gruppenzahl: 3",
                                   "Löschend: Gruppe löschen", "NEWGroup: neue Gruppe"}}),
         {"GBezeichnung", "NEWGroup", "Löschend", "Ende", "Listenfilter", "Liste", "Indexi"}},
        {"NeuGruppe",
         "Neue Gruppe",
         Zusammen({Schlußknöpfe, Menge{"GBezeichnung: Gruppe:"}}),
         {"GBezeichnung", "OKButton", "CancelButton"}},
        {"Helfer", "Helfer",
         Zusammen({Helferperson, Bewegung, Abwesend, Einheiten, Einheiten, Einheiten,
                   Menge{"Datensatzanzahl:", "Datensätzig: 3", "NeuHelfer: neuer Helfer",
                         "Datensatzlösch: Datensatz löschen", "MTag: -", "Ptag: +", "MMon: -",
                         "PMon: +", "MJahr: -", "PJahr: +"}}),
         Folge({helfername,
                {"Dient", "Dient2"},
                Zeiten(3),
                {"NeuHelfer", "Datensatzlösch", "Ende", "Indexen"}})},
        {"NeuerHelfer", "Neuer Helfer", Zusammen({Helferperson, Schlußknöpfe, Einheiten}),
         Folge({helfername, {"Dient", "Dient2", "OKButton", "CancelButton"}})},
    };
}

class PersonenfensterForm : public Personenfenster {};

TEST_F(PersonenfensterForm, JedesFeldHatSeineBeschriftung)
{
    for (const Erwartung &e : Erwartungen()) {
        SCOPED_TRACE(e.Fenster);
        Öffnen(e.Fenster);
        EXPECT_EQ(form->windowTitle().toStdString(), e.Titel);
        EXPECT_EQ(Aufschriften(form), e.Aufschriften);
    }
}

TEST_F(PersonenfensterForm, DieTabfolgeFolgtDemAuge)
{
    for (const Erwartung &e : Erwartungen()) {
        SCOPED_TRACE(e.Fenster);
        Öffnen(e.Fenster);
        EXPECT_EQ(Tabfolge(form), e.Tabfolge);
    }
}

TEST_F(PersonenfensterForm, DieBeschriftungStehtRechtsVomKästchen)
{
    Öffnen("Meßdiener");
    int kästchen = 0;
    for (const QLabel *label : form->findChildren<QLabel *>()) {
        const auto *box = qobject_cast<const QCheckBox *>(label->buddy());
        if (!box || label->text().endsWith(':'))
            continue;
        ++kästchen;
        EXPECT_TRUE(box->text().isEmpty());
        const QRect platz = box->geometry();
        EXPECT_GE(label->x(), platz.right()) << box->objectName().toStdString();
        EXPECT_LE(label->x(), platz.right() + 10) << box->objectName().toStdString();
        EXPECT_NEAR(label->geometry().center().y(), platz.center().y(), 3);
    }
    EXPECT_EQ(kästchen, 12);
}

TEST_F(PersonenfensterForm, JedesFeldHatEinenGesprochenenNamenUndPlatz)
{
    for (const Erwartung &e : Erwartungen()) {
        SCOPED_TRACE(e.Fenster);
        Öffnen(e.Fenster);
        EXPECT_EQ(Stumme(form), std::vector<Text>());
        EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
        EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
        EXPECT_LE(form->minimumWidth(), KleinsterBildschirm.width());
        EXPECT_LE(form->minimumHeight(), KleinsterBildschirm.height());
    }
}

TEST_F(PersonenfensterForm, GeschlechtUndDiensteHabenIhreListen)
{
    const std::vector<Text> geschlechter = {"männlich", "weiblich"};
    const std::vector<Text> dienste = {"Lektor", "Kommunionhelfer", "Kantor", "Kollektant"};
    const std::vector<Text> gruppen = {"Rot", "Blau", "Grün", ""}; // including the blank slot
    for (const char *fenster : {"Meßdiener", "NeuMeßdiener"}) {
        SCOPED_TRACE(fenster);
        Öffnen(fenster);
        EXPECT_EQ(Liste("Geschl"), geschlechter);
        EXPECT_EQ(Liste("Dieenst"), gruppen);
    }
    for (const char *fenster : {"Helfer", "NeuerHelfer"}) {
        SCOPED_TRACE(fenster);
        Öffnen(fenster);
        EXPECT_EQ(Liste("Dient"), dienste);
        EXPECT_EQ(Liste("Dient2"), dienste);
    }
}

TEST_F(PersonenfensterForm, EscapeVerwirftDenNeuenDatensatz)
{
    for (const char *fenster : {"NeuMeßdiener", "NeuGruppe", "NeuerHelfer"}) {
        SCOPED_TRACE(fenster);
        Öffnen(fenster);
        QTest::keyClick(form, Qt::Key_Escape);
        EXPECT_TRUE(form.isNull() || !form->isVisible());
        EXPECT_TRUE(Editor->isVisible());
    }
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(Gruppe.Anzahl, 3);
    EXPECT_EQ(Helfer.Anzahl, 3);
}

} // namespace
} // namespace altardienst

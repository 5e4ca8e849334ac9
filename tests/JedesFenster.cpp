// Every window of the program.
#include "JedesFenster.h"

#include "anniversaries/GeburtstagsansichtForm.h"
#include "anniversaries/JubiGebu.h"
#include "anniversaries/JubiGebuForm.h"
#include "anniversaries/JubiläumsanzeigeForm.h"
#include "application/Anwendung.h"
#include "exchange/DienstzettelForm.h"
#include "exchange/EMailForm.h"
#include "exchange/EinlesenForm.h"
#include "exchange/KalenderForm.h"
#include "exchange/TabellenForm.h"
#include "exchange/WebseiteForm.h"
#include "fairness/ArchivForm.h"
#include "fairness/AusgleichForm.h"
#include "fairness/VerteilungForm.h"
#include "fixed/MesseDienerFestForm.h"
#include "fixed/NeuMesseDienerFestForm.h"
#include "help/HandbuchForm.h"
#include "history/StändeForm.h"
#include "overview/WerKannHierForm.h"
#include "paper/Druckdialog.h"
#include "people/GruppeForm.h"
#include "people/HelferForm.h"
#include "people/MeßdienerForm.h"
#include "people/NeuGruppeForm.h"
#include "people/NeuMeßdienerForm.h"
#include "people/NeuerHelferForm.h"
#include "planning/LektorrenuswForm.h"
#include "planning/MessenlisteForm.h"
#include "planning/NeuMesseForm.h"
#include "planning/StandardmessenForm.h"
#include "printing/DialogForm.h"
#include "printing/DruckForm.h"
#include "printing/EtikettenForm.h"
#include "search/SuchenForm.h"
#include "settings/HintergrundsucheForm.h"
#include "settings/KonfigurationForm.h"
#include "settings/KopierForm.h"
#include "settings/SkalierungForm.h"
#include "settings/ZusatzKonfigForm.h"
#include "settings/frmAboutForm.h"
#include "shell/HauptForm.h"
#include "shell/StartForm.h"
#include "statistics/Diagramm2Form.h"
#include "statistics/DiagrammeForm.h"
#include "statistics/StatDienstForm.h"
#include "statistics/StatHelferForm.h"
#include "statistics/StatMeßdienstForm.h"
#include "statistics/Statistik2Form.h"
#include "statistics/StatistikAllgForm.h"
#include "statistics/StatistikForm.h"
#include "statistics/StatistikHelferForm.h"

namespace altardienst {
namespace {

void GemeindeAnlegen(Datum heute)
{
    for (const char *name : {"Adler", "Busch", "Clausen", "Dorn", "Eich", "Fuchs"})
        Meßdiener.Geburtstag[MeßdienerAnlegen("Kim", name)] = DatumAus({2012, 1, 6});
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        Meßdiener.Eintrittsdatum[i] = heute;
    HelferAnlegen("Maria", "Linde", "Lektor");
    HelferAnlegen("Paul", "Quast", "Kantor");
    Gruppe.Anzahl = 2;
    Gruppe.Bezeichnung[0] = "Große";
    Gruppe.Bezeichnung[1] = "Kleine";
    Konfig.StartDatum = heute + 1;
    Konfig.Tage = 7;
    Standardmesse.Wochentag[0] = "Sonntag";
    Standardmesse.Dienerzahl[0] = 20;
    for (int tag = 1; tag <= 3; ++tag) {
        const int i = MesseMitDienern(heute + tag, 20);
        MesseDienerFest.Datum[i] = Messe.Datum[i];
        MesseDienerFest.Uhrzeit[i] = Messe.Uhrzeit[i];
        MesseDienerFest.Anzahl = i + 1;
    }
    Etikett.Name[0] = "Blatt";
}

template <class Form, class... Angaben> std::function<QWidget *()> Neu(Angaben... angaben)
{
    return [=]() -> QWidget * { return new Form(angaben...); };
}

/// The window over which another one stands; it is deleted at the end of the test.
template <class Form> Form *Darunter()
{
    return new Form;
}

} // namespace

JedesFenster::JedesFenster()
{
    GemeindeAnlegen(Heute);
    const std::function<void(bool)> danach = [](bool) {};
    öffner = {
        {"Start", Neu<StartForm>([] {})},
        {"Haupt", Neu<HauptForm>()},
        {"Handbuch",
         [] {
             auto *handbuch = new HandbuchForm;
             handbuch->Aufschlagen({"plan.md", ""});
             return handbuch;
         }},
        {"Suchen", Neu<SuchenForm>(nullptr)},
        {"Ausgleich", Neu<AusgleichForm>()},
        {"Verteilung", Neu<VerteilungForm>()},
        {"Archiv", Neu<ArchivForm>()},
        {"Dienstzettel", Neu<DienstzettelForm>()},
        {"EMail", Neu<EMailForm>()},
        {"Kalender", Neu<KalenderForm>()},
        {"Webseite", Neu<WebseiteForm>()},
        {"Tabellen", Neu<TabellenForm>()},
        {"Einlesen", Neu<EinlesenForm>()},
        {"Standardmessen", Neu<StandardmessenForm>()},
        {"Messenliste", Neu<MessenlisteForm>()},
        {"NeuMesse", [] { return new NeuMesseForm(*Darunter<MessenlisteForm>()); }},
        {"Lektorrenusw", Neu<LektorrenuswForm>([] {})},
        {"MesseDienerFest", Neu<MesseDienerFestForm>()},
        {"NeuMesseDienerFest", Neu<NeuMesseDienerFestForm>()},
        {"Meßdiener", Neu<MeßdienerForm>()},
        {"NeuMeßdiener", Neu<NeuMeßdienerForm>(danach)},
        {"Gruppe", Neu<GruppeForm>()},
        {"NeuGruppe", Neu<NeuGruppeForm>(danach)},
        {"Helfer", Neu<HelferForm>()},
        {"NeuerHelfer", Neu<NeuerHelferForm>(danach)},
        {"Druck", Neu<DruckForm>()},
        {"CommonDialog1",
         [] {
             const Druckanfrage anfrage = {
                 .ErsteForm = "Plan als Liste", .ZweiteForm = "Plan als Tabelle", .Name = "Plan"};
             return new DruckdialogForm(anfrage, {{"Erster", "Zweiter"}, "Erster"});
         }},
        {"Etiketten", Neu<EtikettenForm>()},
        {"Dialog", Neu<DialogForm>()},
        {"JubiGebu", Neu<JubiGebuForm>()},
        {"Geburtstagsansicht",
         [] {
             GeburtstageSuchen(Gruppende::Alle, 1);
             return new GeburtstagsansichtForm;
         }},
        {"Jubiläumsanzeige",
         [] {
             JubiläenSuchen(0);
             return new JubiläumsanzeigeForm;
         }},
        {"Statistik", Neu<StatistikForm>()},
        {"Statistik2", Neu<Statistik2Form>()},
        {"StatistikAllg", Neu<StatistikAllgForm>()},
        {"StatistikHelfer", Neu<StatistikHelferForm>()},
        {"StatMeßdienst", Neu<StatMeßdienstForm>()},
        {"StatDienst", Neu<StatDienstForm>()},
        {"StatHelfer", Neu<StatHelferForm>()},
        {"Diagramme", [] { return new DiagrammeForm(Darunter<StatistikForm>()); }},
        {"Diagramm2", [] { return new Diagramm2Form(Darunter<Statistik2Form>()); }},
        {"Konfiguration", Neu<KonfigurationForm>()},
        {"ZusatzKonfig", Neu<ZusatzKonfigForm>()},
        {"Skalierung", Neu<SkalierungForm>()},
        {"Hintergrundsuche", Neu<HintergrundsucheForm>()},
        {"frmAbout", Neu<frmAboutForm>()},
        {"Datensicherung", Neu<DatensicherungForm>()},
        {"Dateikopie", Neu<DateikopieForm>()},
        {"Stände", Neu<StändeForm>()},
        {"WerKannHier", Neu<WerKannHierForm>(nullptr, Dienerplatznr(0, 1))},
        {"DateienKopieren", Neu<DateienKopierenForm>(danach)},
    };
}

void JedesFenster::InJedemFenster(
    const std::function<void(const Text &name, QWidget *fenster)> &prüfen)
{
    for (const auto &[name, öffnen] : öffner) {
        SCOPED_TRACE(name);
        QPointer<QWidget> fenster = öffnen();
        EXPECT_EQ(fenster->objectName().toStdString(), name);
        Zeigen(fenster);
        prüfen(name, fenster);
        if (fenster) {
            fenster->hide();
            delete fenster;
        }
    }
}

void JedesFenster::InJedemVollenFenster(
    const std::function<void(const Text &name, QWidget *fenster)> &prüfen)
{
    const std::map<Text, std::vector<const char *>> zeitweise = {
        {"Start", {"Hinweis", "FrühereStände"}},
        {"Datensicherung", {"OKButton"}},
        {"Dateikopie", {"OKButton", "Berichtigen", "Welche"}},
        {"DateienKopieren", {"OKButton", "Berichtigen"}},
        {"Stände", {"Ansicht"}},
    };
    InJedemFenster([&](const Text &name, QWidget *fenster) {
        if (const auto verborgene = zeitweise.find(name); verborgene != zeitweise.end())
            for (const char *control : verborgene->second)
                Finden(fenster, control)->show();
        QCoreApplication::processEvents();
        prüfen(name, fenster);
    });
}

} // namespace altardienst

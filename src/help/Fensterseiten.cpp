// Which place of the handbook belongs to which window.
#include "help/Fensterseiten.h"

namespace altardienst {

const std::map<Text, Text> &Fensterseiten()
{
    static const std::map<Text, Text> seiten = {
        {"Start", "bedienung.md#das-startfenster"},
        {"Haupt", "bedienung.md#das-hauptfenster"},
        {"Haupt/Meldung", "plan.md#wenn-eine-meldung-kommt"},
        {"Handbuch", "README.md"},
        {"Suchen", "bedienung.md#suchen"},

        {"Standardmessen", "plan.md#das-wochenmuster"},
        {"Messenliste", "plan.md#die-messenliste"},
        {"NeuMesse", "plan.md#neue-messe"},
        {"Lektorrenusw", "plan.md#lektoren-und-andere-helfer-einer-messe"},
        {"MesseDienerFest", "plan.md#zuordnungen-ansehen-und-ändern"},
        {"NeuMesseDienerFest", "plan.md#messdiener-einer-messe-zuordnen-schritt-2"},

        {"Haupt/Planansicht", "auf-einen-blick.md"},
        {"WerKannHier", "auf-einen-blick.md#wer-kann-hier"},

        {"Ausgleich", "gerechter-plan.md#plan-ausgleichen"},
        {"Verteilung", "gerechter-plan.md#verteilung"},
        {"Archiv", "gerechter-plan.md#das-archiv"},

        {"Dienstzettel", "weitergeben.md#dienstzettel"},
        {"EMail", "weitergeben.md#e-mail"},
        {"Kalender", "weitergeben.md#kalender"},
        {"Webseite", "weitergeben.md#webseite"},

        {"Tabellen", "weitergeben.md#tabellen"},
        {"Einlesen", "weitergeben.md#einlesen"},

        {"Meßdiener", "leute.md#messdiener"},
        {"NeuMeßdiener", "leute.md#neuer-messdiener"},
        {"Gruppe", "leute.md#gruppen"},
        {"NeuGruppe", "leute.md#neue-gruppe"},
        {"Helfer", "leute.md#helfer"},
        {"NeuerHelfer", "leute.md#neuer-helfer"},

        {"Druck", "drucken.md#was-es-zu-drucken-gibt-das-fenster-druck"},
        {"CommonDialog1", "drucken.md#wohin-gedruckt-wird-das-fenster-drucken"},
        {"Etiketten", "drucken.md#etikettengrößen"},
        {"Dialog", "drucken.md#textdatei"},

        {"JubiGebu", "statistik.md#jubiläen-und-geburtstage"},
        {"Geburtstagsansicht", "statistik.md#ansicht-der-geburtstage"},
        {"Jubiläumsanzeige", "statistik.md#ansicht-der-jubiläen"},
        {"Statistik", "statistik.md#messdiener-alter-zugehörigkeit-qualifikationen"},
        {"Statistik2", "statistik.md#messdiener-größe"},
        {"StatistikAllg", "statistik.md#welche-dienste-die-helfer-haben"},
        {"StatistikHelfer", "statistik.md#wie-oft-jeder-dienst-der-helfer-vorkommt"},
        {"StatMeßdienst", "statistik.md#wie-oft-jeder-dienst-der-messdiener-vorkommt"},
        {"StatDienst", "statistik.md#wie-oft-jeder-messdiener-dient"},
        {"StatHelfer", "statistik.md#wie-oft-jeder-helfer-dient"},
        {"Diagramme", "statistik.md#diagramme"},
        {"Diagramm2", "statistik.md#diagramme"},

        {"Konfiguration", "einstellungen.md#konfiguration"},
        {"ZusatzKonfig", "einstellungen.md#zusätzliche-konfiguration-f11"},
        {"Skalierung", "einstellungen.md#skalierung-f12"},
        {"Hintergrundsuche", "einstellungen.md#hintergrund"},
        {"frmAbout", "einstellungen.md#info-zur-anwendung"},

        {"Datensicherung", "datensicherung.md#daten-sichern"},
        {"Dateikopie", "datensicherung.md#daten-holen"},
        {"Stände", "datensicherung.md#wenn-etwas-fehlt-einen-stand-zurückholen"},
        {"DateienKopieren", "datensicherung.md#der-erste-start"},
    };
    return seiten;
}

Handbuchstelle SeiteZumFenster(const std::vector<Text> &namen)
{
    const auto &seiten = Fensterseiten();
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (i + 1 < namen.size())
            if (const auto seite = seiten.find(namen[i + 1] + "/" + namen[i]);
                seite != seiten.end())
                return StelleVon(seite->second, "");
        if (const auto seite = seiten.find(namen[i]); seite != seiten.end())
            return StelleVon(seite->second, "");
    }
    return {ErsteSeite, ""};
}

} // namespace altardienst

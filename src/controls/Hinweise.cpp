// What a control is for, where its caption alone does not say so.
#include "controls/Hinweise.h"

#include "controls/Bausteine.h"
#include "controls/Feldmarke.h"

#include <QEvent>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace altardienst {
namespace {

constexpr Hinweis Tafel[] = {
    // the fair plan
    {"Ausgleich", "AbTag", "Messen vor diesem Tag bleiben, wie sie sind"},
    {"Ausgleich", "Zeitraum",
     "ob nur dieser Plan zählt oder auch, was jemand in den letzten 3, 6 oder 12 Monaten gedient "
     "hat"},

    // people
    {"Meßdiener", "Datensätze",
     "die Nummer des gezeigten Datensatzes, von 0 an; eine getippte "
     "Nummer springt dorthin, ohne zu übernehmen"},
    {"Helfer", "Indexen",
     "die Nummer des gezeigten Datensatzes, von 0 an; eine getippte Nummer "
     "springt dorthin, ohne zu übernehmen"},
    {"Gruppe", "Indexi",
     "die Nummer des gezeigten Datensatzes, von 0 an; eine getippte Nummer "
     "springt dorthin, ohne zu übernehmen"},
    {"Meßdiener Helfer Gruppe Standardmessen Messenliste Etiketten", "DPM",
     "blättert: der obere Pfeil zum nächsten Datensatz, der untere zum vorigen"},
    {"MesseDienerFest", "DatensatzWechsel",
     "blättert: der obere Pfeil zum nächsten Datensatz, der untere zum vorigen"},
    {"Meßdiener NeuMeßdiener", "Geschl",
     "die Verlosung stellt je zwei desselben Geschlechts nebeneinander"},
    {"Meßdiener NeuMeßdiener", "Groß", "in Zentimetern, 5 bis 250; nur Schritt (3) achtet darauf"},
    {"Meßdiener NeuMeßdiener", "Eintritttdatum", "zählt für die Jubiläen und die Statistik"},
    {"Meßdiener NeuMeßdiener", "Dieenst", "eine der Gruppen aus \"Daten\", \"Gruppe\", oder leer"},
    {"Meßdiener", "Check3a", "darauf achtet die Verlosung nicht"},
    {"Meßdiener", "Norm", "dient so oft wie die anderen: 0"},
    {"Meßdiener", "Oft", "darf öfter dienen als andere: 2"},
    {"Meßdiener", "Haufigk",
     "um wie viele Paare mit einem Wunschpartner der Messdiener öfter "
     "dienen darf als andere, 0 bis 20; nur Schritt (4) achtet darauf"},
    {"Meßdiener", "Check6", "ein Häkchen heißt: möchte keinen Wochendienst"},
    {"Meßdiener", "Check7", "ein Häkchen heißt: möchte montags nicht dienen"},
    {"Meßdiener", "Check8", "ein Häkchen heißt: möchte dienstags nicht dienen"},
    {"Meßdiener", "Check9", "ein Häkchen heißt: möchte mittwochs nicht dienen"},
    {"Meßdiener", "Check10", "ein Häkchen heißt: möchte donnerstags nicht dienen"},
    {"Meßdiener", "Check11", "ein Häkchen heißt: möchte freitags nicht dienen"},
    {"Meßdiener Helfer", "Start",
     "der erste Tag der Abwesenheit; steht in beiden Feldern der "
     "heutige Tag, so ist keine gemeint"},
    {"Meßdiener Helfer", "Start#",
     "der erste Tag der Abwesenheit; steht in beiden Feldern der "
     "heutige Tag, so ist keine gemeint"},
    {"Meßdiener Helfer", "Schluß", "der letzte Tag der Abwesenheit"},
    {"Meßdiener Helfer", "Schluß#", "der letzte Tag der Abwesenheit"},
    {"Meßdiener", "Partner",
     "mit wem er gern dient; jeder kann der Wunschpartner von höchstens "
     "einem anderen sein"},
    {"Meßdiener", "VName", "folgt aus dem gewählten Wunschpartner"},
    {"Meßdiener", "NName", "folgt aus dem gewählten Wunschpartner"},
    {"Helfer NeuerHelfer", "Dient",
     "der wichtigere Dienst; nach ihm beurteilt Schritt (5), ob "
     "genug Helfer da sind"},
    {"Helfer NeuerHelfer", "Dient2", "ein zweiter Dienst, oder leer"},
    // masses
    {"Standardmessen", "Datensatznummer",
     "die Nummer der gezeigten Messe der Woche, 0 bis 10; eine getippte Nummer springt dorthin, "
     "ohne zu übernehmen"},
    {"Standardmessen", "Messearten",
     "besonders sind \"Wochendienst\" und was mit \"Tauf\" beginnt; auf die Schreibung kommt es "
     "an"},
    {"Standardmessen", "ZahlMeßdiener",
     "die Summe der Dienste darunter, höchstens 20; ohne "
     "Messdiener kommt die Messe nicht in den Plan"},
    {"Messenliste NeuMesse", "Dienerzahlen", "die Summe der Dienste darunter, höchstens 20"},
    {"Standardmessen", "DienstF", "Plätze ohne besonderen Dienst, bis zusammen 20"},
    {"Messenliste NeuMesse", "Dienster6", "Plätze ohne besonderen Dienst, bis zusammen 20"},
    {"Messenliste", "Datensatzus",
     "die Nummer der gezeigten Messe, von 0 an; eine getippte Nummer "
     "springt dorthin, ohne zu übernehmen"},
    {"Messenliste NeuMesse", "Taga", "setzt den Wochentag zum Datum"},
    {"Messenliste", "NeuMeß", "fragt nach einer Messe und fügt sie in die Liste ein"},
    {"Messenliste", "Lektoren",
     "wie viele Helfer die Messe von jedem Dienst braucht, und wer sie sind"},
    {"Lektorrenusw", "Lecki", "wie viele Lektoren die Messe braucht, 0 bis 2"},
    {"Lektorrenusw", "Kommi", "wie viele Kommunionhelfer die Messe braucht, 0 bis 2"},
    {"Lektorrenusw", "Kanto", "wie viele Kantoren die Messe braucht, 0 bis 2"},
    {"Lektorrenusw", "Kolt", "wie viele Kollektanten die Messe braucht, 0 bis 2"},
    {"Lektorrenusw", "LH#", "ein Helfer aus der Liste; ein leeres Feld entfernt den Namen"},
    // fixed entries
    {"MesseDienerFest", "Index",
     "die Nummer der gezeigten Zuordnung, von 0 an; eine getippte "
     "Nummer springt dorthin, ohne zu übernehmen"},
    {"MesseDienerFest NeuMesseDienerFest", "Messen", "die Messe, zu der die Zuordnung gehört"},
    {"MesseDienerFest NeuMesseDienerFest", "DatumD", "folgt aus der gewählten Messe"},
    {"MesseDienerFest NeuMesseDienerFest", "Zeitd", "folgt aus der gewählten Messe"},
    {"MesseDienerFest NeuMesseDienerFest", "MDV#", "folgt aus der Liste daneben"},
    {"MesseDienerFest NeuMesseDienerFest", "MDN#", "folgt aus der Liste daneben"},
    {"MesseDienerFest NeuMesseDienerFest", "MDiener#",
     "ein Messdiener oder eine ganze Gruppe aus der Liste, oder leer"},
    // settings
    {"Konfiguration", "Örtchus", "fünf Ziffern, eine Leerstelle und der Ort"},
    {"Konfiguration", "Datumsen",
     "der erste Tag des Plans; gilt erst mit der Eingabetaste oder über die Pfeile"},
    {"Konfiguration", "tagilein",
     "die Länge des Plans, 7 bis 120 Tage; mit der Eingabetaste bis "
     "180"},
    {"Konfiguration", "DiffG",
     "die ganze Spanne, um die sich die Größen der Messdiener einer "
     "Messe unterscheiden dürfen, 2 bis 100; nur Schritt (3) achtet "
     "darauf"},
    {"Konfiguration", "GrenzAuslos",
     "wer gezogen ist, kommt nicht noch einmal dran, bis so viel "
     "Prozent der Messdiener gedient haben; üblich sind 60"},
    {"Konfiguration", "Schriftg", "der Text der Ausdrucke, 1 bis 30 Punkt"},
    {"Konfiguration", "Über", "die Überschriften der Ausdrucke, 1 bis 50 Punkt"},
    {"Konfiguration", "Linker", "der freie Rand aller Ausdrucke links, 1 bis 55 Millimeter"},
    {"Konfiguration", "Unt", "der freie Rand aller Ausdrucke unten, 5 bis 50 Millimeter"},
    {"Konfiguration", "OB", "der freie Rand aller Ausdrucke oben, 1 bis 55 Millimeter"},
    {"Konfiguration", "Check1", "Taufen vom 1. bis zum 7. des Monats"},
    {"Konfiguration", "Check2", "Taufen vom 8. bis zum 14. des Monats"},
    {"Konfiguration", "Check3", "Taufen vom 15. bis zum 21. des Monats"},
    {"Konfiguration", "Check4", "Taufen vom 22. bis zum 28. des Monats"},
    {"Konfiguration", "Check5",
     "Taufen vom 29. bis zum 31. des Monats, aber nur am ersten Tag des Plans"},
    {"Konfiguration", "Hochformat",
     "gilt für die Listen der Messdiener und Helfer, nicht für den Plan"},
    {"Konfiguration", "Querformat",
     "gilt für die Listen der Messdiener und Helfer, nicht für den Plan"},
    {"Konfiguration", "Dress", "in den Listen mit einer Zeile je Person steht auch die Adresse"},
    {"Konfiguration", "Teflonie",
     "in den Listen mit einer Zeile je Person steht auch die Telefonnummer"},
    {"Konfiguration", "Gebteg",
     "in den Listen mit einer Zeile je Person steht auch der Geburtstag"},
    {"Konfiguration", "Numm", "in den Listen mit einer Zeile je Person steht vorn die Nummer"},
    {"Konfiguration", "Diner", "bewirkt nichts"},
    {"Konfiguration", "Help", "gibt dem Formular für die Helfer seine leeren Zeilen"},
    {"ZusatzKonfig", "Wer",
     "Schritt (4) lässt den Weihrauch offen; er wird in der Messenliste von "
     "Hand besetzt"},
    {"ZusatzKonfig", "Kr",
     "Schritt (4) lässt die Kreuzträger offen; sie werden in der Messenliste "
     "von Hand besetzt"},
    {"ZusatzKonfig", "OO#", "der Wochentag, mit dem der vorgeschlagene Plan beginnt"},
    {"ZusatzKonfig", "WOBO",
     "um so viele Wochen im Voraus schlägt das Startfenster den ersten Tag "
     "vor, 1 bis 20"},
    {"Skalierung", "XSKALA", "ändert die Breite der Ausdrucke; 56,6857 ist ein Millimeter"},
    {"Skalierung", "YSKALA", "ändert die Höhe der Ausdrucke; 56,6857 ist ein Millimeter"},
    {"Skalierung", "MDS", "wird nur gespeichert"},
    {"Skalierung", "MHS", "wird nur gespeichert"},
    {"Skalierung", "MS", "wird nur gespeichert"},
    {"Skalierung", "MGS", "wird nur gespeichert"},
    {"Skalierung", "MJS", "wird nur gespeichert"},
    {"Skalierung", "MVS", "wird nur gespeichert"},
    // printing
    {"Etiketten", "Ind",
     "die Nummer der gezeigten Etikettengröße, 0 bis 9; eine getippte Nummer "
     "springt dorthin, ohne zu übernehmen"},
    {"Etiketten", "OU", "vom oberen Rand des Papiers bis zum Text des ersten Etiketts"},
    {"Etiketten", "LR", "vom linken Rand des Papiers bis zum Text des ersten Etiketts"},
    {"Etiketten", "H", "die Höhe eines Etiketts"},
    {"Etiketten", "B", "die Breite eines Etiketts"},
    {"Etiketten", "ST", "der Abstand zwischen zwei Spalten"},
    {"Etiketten", "R", "wie viele Etiketten auf dem Bogen untereinander sind"},
    {"Etiketten", "S", "wie viele Etiketten auf dem Bogen nebeneinander sind"},
    {"Druck JubiGebu", "Reih", "die Reihe des ersten freien Etiketts auf dem Bogen"},
    {"Druck JubiGebu", "Spal", "die Spalte des ersten freien Etiketts auf dem Bogen"},
    {"Druck", "Rückgebend", "steht auf den Bögen: bis wann sie zurückzugeben sind"},
    {"Druck", "Dauernde", "steht auf den Bögen: bis wann der nächste Plan voraussichtlich gilt"},
    // copies
    {"Datensicherung Dateikopie DateienKopieren", "Alle", "kopiert alle acht Dateien"},
    {"Datensicherung Dateikopie DateienKopieren", "Einzel", "kopiert eine der acht Dateien"},
    // start
    {"Start", "Datumsen", "der erste Tag des Plans; ein Tag in der Vergangenheit wird zu heute"},
    {"Start", "Tagilein", "die Länge des Plans, 7 bis 180 Tage; der letzte gehört noch dazu"},
};

bool EnthältWort(std::string_view wörter, std::string_view wort)
{
    for (std::size_t von = 0; von <= wörter.size();) {
        const std::size_t bis = std::min(wörter.find(' ', von), wörter.size());
        if (wörter.substr(von, bis - von) == wort)
            return true;
        von = bis + 1;
    }
    return false;
}

/// "MDiener#" for MDiener12.
std::string OhneNummer(std::string_view name)
{
    const std::size_t stamm = name.find_last_not_of("0123456789") + 1;
    return stamm == name.size() ? std::string() : std::string(name.substr(0, stamm)) + "#";
}

/// The lines of the table about one form.
std::vector<const Hinweis *> HinweiseDes(const QString &fenster)
{
    const std::string name = fenster.toStdString();
    std::vector<const Hinweis *> hinweise;
    for (const Hinweis &hinweis : Tafel)
        if (EnthältWort(hinweis.Fenster, name))
            hinweise.push_back(&hinweis);
    return hinweise;
}

const char *TextAus(const std::vector<const Hinweis *> &hinweise, const QString &control)
{
    const std::string name = control.toStdString();
    const std::string stamm = OhneNummer(name);
    for (const Hinweis *hinweis : hinweise)
        if (hinweis->Control == name || (!stamm.empty() && hinweis->Control == stamm))
            return hinweis->Text;
    return nullptr;
}

void Anbringen(const QWidget *fenster)
{
    const auto hinweise = HinweiseDes(fenster->objectName());
    if (hinweise.empty())
        return;
    for (QWidget *control : fenster->findChildren<QWidget *>()) {
        if (control->objectName().isEmpty())
            continue;
        const char *text = TextAus(hinweise, control->objectName());
        if (!text)
            continue;
        const QString eigener = EigenerHinweis(control);
        const QString neu = QString::fromUtf8(text);
        control->setToolTip(eigener.isEmpty() ? neu : neu + "\n" + eigener);
    }
}

class Anbringer : public QObject {
  public:
    explicit Anbringer(QWidget *fenster) : QObject(fenster), fenster(fenster)
    {
        fenster->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        if (ereignis->type() != QEvent::Show || fertig)
            return false;
        fertig = true;
        Anbringen(fenster);
        return false;
    }

  private:
    QWidget *fenster;
    bool fertig = false;
};

} // namespace

std::span<const Hinweis> AlleHinweise()
{
    return Tafel;
}

Text HinweisFür(const QString &fenster, const QString &control)
{
    const char *text = TextAus(HinweiseDes(fenster), control);
    return text ? text : Text();
}

void HinweiseAnbringen(QWidget *fenster)
{
    new Anbringer(fenster);
}

} // namespace altardienst

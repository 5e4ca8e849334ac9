// The helpers of one mass, shown and set by hand.
#include "planning/LektorrenuswForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Gelesen.h"
#include "controls/Handler.h"
#include "controls/Textwahl.h"
#include "controls/Verlassen.h"
#include "core/Namen.h"
#include "core/Umwandlung.h"
#include "core/tables.h"
#include "platform/Meldungen.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace altardienst {
namespace {

/// One of the eight places: its names on the screen and its fields in the table.
struct Platznamen {
    const char *Aufschrift;
    const char *LH;
    const char *Vor;
    const char *Nach;
    MesseTabelle::Spalte<Text> &VorFeld;
    MesseTabelle::Spalte<Text> &NachFeld;
};

const std::array<Platznamen, 8> Namen = {{
    {"Lektor 1:", "LH1", "Lecki1Vor", "Lecki1nach", Messe.Lektor1Vor, Messe.Lektor1Nach},
    {"Lektor 2:", "LH2", "Lecki2Vor", "Lecki2Nach", Messe.Lektor2Vor, Messe.Lektor2Nach},
    {"Kommunionhelfer 1:", "LH3", "Komm1Vor", "Komm1Nach", Messe.Komm1Vor, Messe.Komm1Nach},
    {"Kommunionhelfer 2:", "LH4", "Kommt2Vor", "Kommt2Nach", Messe.Komm2Vor, Messe.Komm2Nach},
    {"Kantor 1:", "LH5", "Kant1Vor", "Kant1Nach", Messe.Kantor1Vor, Messe.Kantor1Nach},
    {"Kantor 2:", "LH6", "Kant2Vor", "Kant2Nach", Messe.Kantor2Vor, Messe.Kantor2Nach},
    {"Kollektant 1:", "LH7", "Ko1Vor", "Ko1Nach", Messe.Kollekt1Vor, Messe.Kollekt1Nach},
    {"Kollektant 2:", "LH8", "Ko2Vor", "Ko2Nach", Messe.Kollekt2Vor, Messe.Kollekt2Nach},
}};

constexpr std::array<const char *, 4> Zahltexte = {
    "Lektor:", "Kommunionhelfer:", "Kantor/in:", "Kollektant:"};

std::array<MesseTabelle::Spalte<Int16> *, 4> Zahlspalten()
{
    return {&Messe.LektorZahl, &Messe.KommZahl, &Messe.KantorZahl, &Messe.KollektZahl};
}

/// All that the dialog shows of the mass, and which mass it is.
auto Gezeigtes()
{
    const int i = Messe.Cursor;
    std::vector<int> zahlen{i};
    for (auto *spalte : Zahlspalten())
        zahlen.push_back((*spalte)[i]);
    std::vector<Text> namen;
    for (const Platznamen &n : Namen)
        namen.insert(namen.end(), {n.VorFeld[i], n.NachFeld[i]});
    return std::tuple(Messe.Datum[i], Messe.Uhrzeit[i], Messe.Wochentag[i], Messe.Messeart[i],
                      zahlen, namen);
}

bool IstHelfer(const Text &listenname)
{
    for (int h = 0; h < Helfer.Anzahl; ++h)
        if (Listenname(Helfer.Nachname[h], Helfer.Vorname[h]) == listenname)
            return true;
    return false;
}

QComboBox *Namenwahl(const char *name, const char *text)
{
    QComboBox *kombo = Textwahl(name, QString::fromUtf8(text).remove(':').toUtf8().constData());
    kombo->setMinimumContentsLength(18);
    return kombo;
}

} // namespace

LektorrenuswForm::LektorrenuswForm(std::function<void()> danach)
    : Zahlen{ZahlboxAnlegen("Lecki", "Änderung1", Zahltexte[0]),
             ZahlboxAnlegen("Kommi", "Änderung2", Zahltexte[1]),
             ZahlboxAnlegen("Kanto", "Änderung3", Zahltexte[2]),
             ZahlboxAnlegen("Kolt", "Änderung4", Zahltexte[3])},
      Ende(Knopf("Ende", "Ende")), danach(std::move(danach))
{
    Benannt(this, "Lektorrenusw");
    setWindowTitle("Lektoren usw.");
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        const Platznamen &n = Namen[p];
        QComboBox *kombo = Namenwahl(n.LH, n.Aufschrift);
        Plätze[p] = {altardienst::Beschriftung("", n.Aufschrift), kombo, Textfeld(n.Vor),
                     Textfeld(n.Nach)};
        const QString wer = QString::fromUtf8(n.Aufschrift).remove(':');
        for (QLineEdit *feld : {Plätze[p].Vor, Plätze[p].Nach})
            feld->setMinimumWidth(90);
        Plätze[p].Vor->setAccessibleName("Vorname " + wer);
        Plätze[p].Nach->setAccessibleName("Nachname " + wer);
    }
    Anordnen();
    Verbinden();
    Offen([this] { Füllen(); })();
}

void LektorrenuswForm::Anordnen()
{
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(8);
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        const int zeile = static_cast<int>(p);
        if (p % 2 == 0)
            ZahlboxAnordnen(raster, zeile, 0, Zahltexte[p / 2], Zahlen[p / 2]);
        const Platz &platz = Plätze[p];
        platz.Beschriftung->setBuddy(platz.LH);
        raster->addWidget(platz.Beschriftung, zeile, 3);
        raster->addWidget(platz.LH, zeile, 4);
        raster->addWidget(platz.Vor, zeile, 5);
        raster->addWidget(platz.Nach, zeile, 6);
    }
    raster->setColumnStretch(5, 1);
    raster->setColumnStretch(6, 1);
    raster->setRowStretch(static_cast<int>(Plätze.size()), 1);

    auto *spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(20, 20, 20, 20);
    spalte->setSpacing(18);
    spalte->addWidget(Rollbar(raster), 1);
    spalte->addLayout(Knopfreihe({Ende}));
    GrößeAnpassen(this);
}

void LektorrenuswForm::Verbinden()
{
    for (std::size_t art = 0; art < Zahlen.size(); ++art) {
        const Zahlbox &box = Zahlen[art];
        connect(box.Feld, &QLineEdit::textChanged, this,
                Abgefangen([this, art] { ZahlGeändert(art); }));
        DrehenMitFokus(box);
    }
    for (std::size_t p = 0; p < Plätze.size(); ++p)
        BeiVerlassen(Plätze[p].LH, Abgefangen([this, p] { KomboVerlassen(p); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
    NebenDemHauptfenster(
        this,
        [this] {
            if (!isVisible())
                return;
            for (std::size_t p = 0; p < Plätze.size(); ++p)
                if (Plätze[p].LH == focusWidget() && !OhneVerlassen::Gilt())
                    KomboVerlassen(p); // not while the message about it is open
            if (gezeigt.Getippt() && !gezeigt.Überholt())
                Schreiben();
        },
        [this] {
            if (isVisible() && gezeigt.Überholt())
                Füllen();
        });
}

void LektorrenuswForm::Füllen()
{
    const OhneVerlassen ruhe; // a place that is switched off now loses the focus half filled in
    const int i = Messe.Cursor;
    for (std::size_t art = 0; art < Zahlen.size(); ++art)
        ZahlSetzen(Zahlen[art].Feld, (*Zahlspalten()[art])[i]);
    QStringList liste;
    for (int h = 0; h < Helfer.Anzahl; ++h)
        liste << Anzeige(Listenname(Helfer.Nachname[h], Helfer.Vorname[h]));
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        const Text &vor = Namen[p].VorFeld[i];
        const Text &nach = Namen[p].NachFeld[i];
        Setzen(Plätze[p].Vor, vor);
        Setzen(Plätze[p].Nach, nach);
        const bool besetzt = !vor.empty() && !nach.empty();
        Setzen(Plätze[p].LH, besetzt ? Listenname(nach, vor) : Text());
        ListeSetzen(Plätze[p].LH, liste);
    }
    Merken();
}

/// Stepwise: a count that is no number changes nothing.
void LektorrenuswForm::ZahlGeändert(std::size_t art)
{
    QLineEdit *feld = Zahlen[art].Feld;
    const auto schalten = [feld](const Platz &platz, int ab) {
        const bool aktiv = ZahlIn(feld) > ab;
        for (QWidget *control :
             std::initializer_list<QWidget *>{platz.Beschriftung, platz.Vor, platz.Nach, platz.LH})
            control->setEnabled(aktiv);
    };
    Schrittweise([&] { Begrenzen(feld, 0, 2); }, [&] { schalten(Plätze[2 * art], 0); },
                 [&] { schalten(Plätze[2 * art + 1], 1); })();
}

void LektorrenuswForm::KomboVerlassen(std::size_t p)
{
    const Platz &platz = Plätze[p];
    const Text text = TextVon(platz.LH);
    for (std::size_t q = 0; q < Plätze.size(); ++q) {
        if (q == p || text.empty() || TextVon(Plätze[q].LH) != text)
            continue;
        Meldungen.Zeigen("Meßhelfer ist schon dieser Messe zugeordnet!!!");
        return KomboZurück(platz);
    }
    if (text.empty() || IstHelfer(text))
        return NamenTeilen();
    Meldungen.Zeigen("Meßhelfer ist unbekannt!! Auswählen oder neu eingeben!!");
    KomboZurück(platz);
}

/// Back to the names of the place.
void LektorrenuswForm::KomboZurück(const Platz &platz)
{
    const Text name = Listenname(TextVon(platz.Nach), TextVon(platz.Vor));
    Setzen(platz.LH, name == "," ? Text() : name);
}

void LektorrenuswForm::NamenTeilen()
{
    for (const Platz &platz : Plätze) {
        Text nachname = TextVon(platz.Nach);
        Text vorname = TextVon(platz.Vor);
        NameTeilen(TextVon(platz.LH), nachname, vorname);
        Setzen(platz.Nach, nachname);
        Setzen(platz.Vor, vorname);
    }
}

void LektorrenuswForm::Schreiben()
{
    const auto amEnde = qScopeGuard(Abgefangen([this] { Merken(); })); // a part counts too
    const int i = Messe.Cursor;
    for (std::size_t art = 0; art < Zahlen.size(); ++art) {
        (*Zahlspalten()[art])[i] = Gelesen(Zahlen[art].Feld, Int16Lesen);
        for (std::size_t p = 2 * art; p < 2 * art + 2; ++p) {
            Namen[p].VorFeld[i] = TextVon(Plätze[p].Vor);
            Namen[p].NachFeld[i] = TextVon(Plätze[p].Nach);
        }
    }
}

void LektorrenuswForm::Merken()
{
    gezeigt.Merken(this, Gezeigtes);
}

/// A combo that has the focus is left first: whoever is chosen on the screen stands in the mass,
/// whichever way the dialog closes. A count that is no number keeps it open, with the failure
/// shown.
void LektorrenuswForm::closeEvent(QCloseEvent *ereignis)
{
    ereignis->ignore();
    Ende->setFocus();
    Offen([&] {
        Schreiben();
        ereignis->accept();
        danach();
    })();
}

} // namespace altardienst

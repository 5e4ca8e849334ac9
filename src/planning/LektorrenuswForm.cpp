// The helpers of one mass, shown and set by hand.
#include "planning/LektorrenuswForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/LesenOderFokus.h"
#include "controls/Textwahl.h"
#include "controls/Verlassen.h"
#include "core/Messenname.h"
#include "core/Namen.h"
#include "core/Plätze.h"
#include "core/Umwandlung.h"
#include "platform/Meldungen.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScopeGuard>

namespace altardienst {
namespace {

/// What a count of helpers and its spin button are called on the screen.
struct Zahlnamen {
    const char *Feld;
    const char *Spin;
};

/// In the order of `Helferarten`.
constexpr std::array<Zahlnamen, Helferarten.size()> DieZahlnamen = {{{"Lecki", "Änderung1"},
                                                                     {"Kommi", "Änderung2"},
                                                                     {"Kanto", "Änderung3"},
                                                                     {"Kolt", "Änderung4"}}};

/// What the controls of a place are called on the screen.
struct Platznamen {
    const char *LH;
    const char *Vor;
    const char *Nach;
};

/// In the order of `Helferplätze`.
constexpr std::array<Platznamen, Helferplätze.size()> DiePlatznamen = {{
    {"LH1", "Lecki1Vor", "Lecki1nach"},
    {"LH2", "Lecki2Vor", "Lecki2Nach"},
    {"LH3", "Komm1Vor", "Komm1Nach"},
    {"LH4", "Kommt2Vor", "Kommt2Nach"},
    {"LH5", "Kant1Vor", "Kant1Nach"},
    {"LH6", "Kant2Vor", "Kant2Nach"},
    {"LH7", "Ko1Vor", "Ko1Nach"},
    {"LH8", "Ko2Vor", "Ko2Nach"},
}};

/// Calls `f` with the number of each place of a kind.
template <class F> void FürJedenPlatz(std::size_t art, F f)
{
    for (std::size_t p = 0; p < Helferplätze.size(); ++p)
        if (&Helferplätze[p].Art == &Helferarten[art])
            f(p);
}

Text Zahltext(const Helferart &art)
{
    return Text(art.Aufschrift) + ":";
}

/// Everything the dialog shows of the mass, and which mass it is.
auto Gezeigtes()
{
    const int i = Messe.Cursor;
    std::vector<int> zahlen{i};
    for (const Helferart &art : Helferarten)
        zahlen.push_back(art.Zahl.In(Messe)[i]);
    std::vector<Text> namen;
    for (const Helferplatz &platz : Helferplätze)
        namen.insert(namen.end(), {(Messe.*platz.Vor)[i], (Messe.*platz.Nach)[i]});
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

QComboBox *Namenwahl(const char *name, const Text &wofür)
{
    QComboBox *kombo = Textwahl(name, wofür.c_str());
    kombo->setMinimumContentsLength(18);
    return kombo;
}

} // namespace

LektorrenuswForm::LektorrenuswForm(std::function<void()> danach)
    : Messenname(Überschrift("")), Ende(Knopf("Ende", "Ende")), danach(std::move(danach))
{
    Benannt(this, "Lektorrenusw");
    Benannt(Messenname, "Messenname");
    setWindowTitle("Lektoren usw.");
    for (std::size_t art = 0; art < Zahlen.size(); ++art)
        Zahlen[art] = ZahlboxAnlegen(DieZahlnamen[art].Feld, DieZahlnamen[art].Spin,
                                     Zahltext(Helferarten[art]).c_str());
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        const Platznamen &n = DiePlatznamen[p];
        const Text wer = Helferplätze[p].Aufschrift();
        QComboBox *kombo = Namenwahl(n.LH, wer);
        Plätze[p] = {altardienst::Beschriftung("", (wer + ":").c_str()), kombo, Textfeld(n.Vor),
                     Textfeld(n.Nach)};
        for (QLineEdit *feld : {Plätze[p].Vor, Plätze[p].Nach})
            feld->setMinimumWidth(90);
        Plätze[p].Vor->setAccessibleName(Anzeige("Vorname " + wer));
        Plätze[p].Nach->setAccessibleName(Anzeige("Nachname " + wer));
    }
    Anordnen();
    Verbinden();
    Offen([this] { Füllen(); })();
}

void LektorrenuswForm::Anordnen()
{
    constexpr int SchmalsterName = 80; // the three in a row fit the smallest screen
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(8);
    raster->setVerticalSpacing(8);
    raster->addWidget(Überschrift("Anzahl"), 0, 0, 1, 3);
    raster->addWidget(Überschrift("Platz"), 0, 3);
    raster->addWidget(Überschrift("Helfer"), 0, 4);
    raster->addWidget(Überschrift("Vorname"), 0, 5);
    raster->addWidget(Überschrift("Nachname"), 0, 6);
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        const int zeile = static_cast<int>(p) + 1;
        const Helferart &art = Helferplätze[p].Art;
        if (Helferplätze[p].Nummer == 1)
            ZahlboxAnordnen(raster, zeile, 0, Zahltext(art).c_str(), Zahlen[NummerDer(art)]);
        const Platz &platz = Plätze[p];
        platz.Beschriftung->setBuddy(platz.LH);
        raster->addWidget(platz.Beschriftung, zeile, 3);
        raster->addWidget(platz.LH, zeile, 4);
        for (QWidget *name : std::initializer_list<QWidget *>{platz.LH, platz.Vor, platz.Nach})
            name->setMinimumWidth(SchmalsterName);
        raster->addWidget(platz.Vor, zeile, 5);
        raster->addWidget(platz.Nach, zeile, 6);
    }
    raster->setColumnStretch(4, 2); // both names
    raster->setColumnStretch(5, 1);
    raster->setColumnStretch(6, 1);
    raster->setRowStretch(raster->rowCount(), 1);

    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addWidget(Messenname);
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
            for (std::size_t p = 0; p < Plätze.size(); ++p)
                if (Plätze[p].LH == focusWidget() && !OhneVerlassen::Gilt())
                    KomboVerlassen(p); // not while the message about it is open
            if (gezeigt.Getippt() && !gezeigt.Überholt())
                Schreiben();
        },
        [this] {
            if (gezeigt.Überholt())
                Füllen();
        },
        [this] { gezeigt.Belassen(); });
}

void LektorrenuswForm::Füllen()
{
    const OhneVerlassen ruhe; // a place disabled now may lose the focus half filled in
    const int i = Messe.Cursor;
    Setzen(Messenname, Messenüberschrift(i));
    for (std::size_t art = 0; art < Zahlen.size(); ++art)
        ZahlSetzen(Zahlen[art].Feld, Helferarten[art].Zahl.In(Messe)[i]);
    QStringList liste;
    for (int h = 0; h < Helfer.Anzahl; ++h)
        liste << Anzeige(Listenname(Helfer.Nachname[h], Helfer.Vorname[h]));
    for (std::size_t p = 0; p < Plätze.size(); ++p) {
        const Text &vor = (Messe.*Helferplätze[p].Vor)[i];
        const Text &nach = (Messe.*Helferplätze[p].Nach)[i];
        Setzen(Plätze[p].Vor, vor);
        Setzen(Plätze[p].Nach, nach);
        const bool besetzt = !vor.empty() && !nach.empty();
        Setzen(Plätze[p].LH, besetzt ? Listenname(nach, vor) : Text());
        ListeSetzen(Plätze[p].LH, liste);
    }
    Merken();
}

/// Stepwise: a count that is not a number changes nothing.
void LektorrenuswForm::ZahlGeändert(std::size_t art)
{
    QLineEdit *feld = Zahlen[art].Feld;
    const auto schalten = [feld](const Platz &platz, int ab) {
        const bool aktiv = ZahlIn(feld) >= ab;
        for (QWidget *control :
             std::initializer_list<QWidget *>{platz.Beschriftung, platz.Vor, platz.Nach, platz.LH})
            control->setEnabled(aktiv);
    };
    Schrittweise([&] { Begrenzen(feld, 0, PlätzeFür(Helferarten[art])); })();
    FürJedenPlatz(art, [&](std::size_t p) {
        Schrittweise([&] { schalten(Plätze[p], Helferplätze[p].Nummer); })();
    });
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

/// Shows the stored names of the place again.
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
    const auto amEnde = qScopeGuard(Abgefangen([this] { Merken(); })); // even a part counts
    const int i = Messe.Cursor;
    for (std::size_t art = 0; art < Zahlen.size(); ++art) {
        Helferarten[art].Zahl.In(Messe)[i] = LesenOderFokus(Zahlen[art].Feld, Int16Lesen);
        FürJedenPlatz(art, [&](std::size_t p) {
            (Messe.*Helferplätze[p].Vor)[i] = TextVon(Plätze[p].Vor);
            (Messe.*Helferplätze[p].Nach)[i] = TextVon(Plätze[p].Nach);
        });
    }
}

void LektorrenuswForm::Merken()
{
    gezeigt.Merken(this, Gezeigtes);
}

/// A combo that has the focus is left first: whoever is chosen on the screen ends up in the mass,
/// whichever way the dialog closes. A count that is not a number keeps it open, with the failure
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

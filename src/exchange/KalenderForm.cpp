// "Kalender"
#include "exchange/KalenderForm.h"

#include "application/Dateiwahl.h"
#include "application/Wartezeiger.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "exchange/Dateiablage.h"
#include "exchange/Kalenderschreiber.h"
#include "exchange/Namenformwahl.h"
#include "platform/Laufwerke.h"
#include "platform/Meldungen.h"

#include <QGridLayout>

#include <algorithm>

namespace altardienst {
namespace {

constexpr const char *Name = "Kalender";

// The entries of the list before the groups.
enum Wahl { Alle, NurDiener, NurHelfer, ErsteGruppe };

QComboBox *Kreiswahl()
{
    auto *wahl = Benannt(new QComboBox, "FürWen");
    wahl->addItems({"alle", "alle Meßdiener", "alle Helfer"});
    for (int g = 0; g < std::min<int>(Gruppe.Anzahl, GruppeTabelle::HöchsterIndex + 1); ++g)
        if (!Gruppe.Bezeichnung[g].empty())
            wahl->addItem("Gruppe " + Anzeige(Gruppe.Bezeichnung[g]),
                          Anzeige(Gruppe.Bezeichnung[g]));
    return wahl;
}

/// "eine Datei", "3 Dateien".
Text Gezählt(int zahl, const char *eine, const char *mehrere)
{
    return zahl == 1 ? Text(eine) : ZahlText(zahl) + " " + mehrere;
}

Text Inhaltssatz(const Kalenderausgabe &ausgabe, bool jePerson)
{
    Text satz;
    if (ausgabe.Dateien.empty())
        satz = !jePerson ? "Der Plan hat keine Messen."
               : ausgabe.NurOhneTermin > 0
                   ? "Von ihnen hat niemand einen Dienst mit lesbarem Termin."
                   : "Von ihnen hat niemand einen Dienst.";
    else if (jePerson)
        satz = Gezählt(static_cast<int>(ausgabe.Dateien.size()), "Eine Datei", "Dateien") + ".";
    else
        satz = Gezählt(ausgabe.Dateien.front().Einträge, "Eine Messe", "Messen") + ".";
    if (jePerson && !ausgabe.Dateien.empty() && ausgabe.OhneDienst > 0)
        satz += " " + Gezählt(ausgabe.OhneDienst, "Eine Person hat", "Personen haben") +
                " keinen Dienst und " +
                (ausgabe.OhneDienst == 1 ? "bekommt keine." : "bekommen keine.");
    if (jePerson && !ausgabe.Dateien.empty() && ausgabe.NurOhneTermin > 0)
        satz += " " + Gezählt(ausgabe.NurOhneTermin, "Eine Person dient", "Personen dienen") +
                " nur ohne lesbaren Termin und " +
                (ausgabe.NurOhneTermin == 1 ? "bekommt keine." : "bekommen keine.");
    if (ausgabe.OhneTermin > 0)
        satz += " " + Gezählt(ausgabe.OhneTermin, "Eine Messe hat", "Messen haben") +
                " keinen lesbaren Termin und " +
                (ausgabe.OhneTermin == 1 ? "fehlt darin." : "fehlen darin.");
    return satz;
}

/// "1 von 3 Dateien geschrieben. Nicht geschrieben: Ben Busch.ics, Lea Lang.ics (kein Zugriff)."
Text Mangelsatz(const Ablage &ablage)
{
    constexpr std::size_t MeisteNamen = 8; // as many as a few lines hold
    const auto misslungen = static_cast<int>(ablage.Misslungene.size());
    Text satz = ZahlText(ablage.Geschrieben) + " von " + ZahlText(ablage.Geschrieben + misslungen) +
                " Dateien geschrieben. Nicht geschrieben: ";
    const std::size_t genannte = std::min(ablage.Misslungene.size(), MeisteNamen);
    for (std::size_t k = 0; k < genannte; ++k)
        satz += (k == 0 ? "" : ", ") + ablage.Misslungene[k];
    if (const int andere = misslungen - static_cast<int>(genannte); andere > 0)
        satz += " und " + Gezählt(andere, "eine weitere", "weitere");
    return satz + " (" + ablage.Warum + ").";
}

std::vector<AbzulegendeDatei> ZumAblegen(const std::vector<Kalenderdatei> &dateien)
{
    std::vector<AbzulegendeDatei> abzulegen;
    abzulegen.reserve(dateien.size());
    for (const Kalenderdatei &datei : dateien)
        abzulegen.push_back({datei.Name, datei.Bytes});
    return abzulegen;
}

} // namespace

KalenderForm::KalenderForm()
    : Ausgabefenster(Name, "Kalender"),
      AlleMessen(Benannt(new QRadioButton("&Alle Messen in einer Datei"), "AlleMessen")),
      JePerson(Benannt(new QRadioButton("Eine Datei &je Person"), "JePerson")), FürWen(Kreiswahl()),
      Namen(Namenformwahl("Namen", Name))
{
    AlleMessen->setChecked(true);
    Anordnen();
    Verbinden();
    InhaltZeigen();
}

void KalenderForm::Anordnen()
{
    auto *raster = new QGridLayout;
    raster->setColumnStretch(1, 1);
    raster->addWidget(AlleMessen, 0, 0, 1, 2);
    raster->addWidget(JePerson, 1, 0, 1, 2);
    raster->addWidget(Beschriftung("FürWenText", "&Für", FürWen), 2, 0);
    raster->addWidget(FürWen, 2, 1);
    raster->addWidget(Beschriftung("NamenText", "&Namen", Namen), 3, 0);
    raster->addWidget(Namen, 3, 1);
    FußAnordnen(raster);
    resize(520, 300);
    AlleMessen->setFocus();
}

void KalenderForm::Verbinden()
{
    connect(JePerson, &QRadioButton::toggled, this, Offen([this] { InhaltZeigen(); }));
    connect(FürWen, &QComboBox::currentIndexChanged, this, Offen([this] { InhaltZeigen(); }));
    FußVerbinden(Offen([this] { Schreiben(); }));
}

Personenkreis KalenderForm::Kreis() const
{
    const int wahl = FürWen->currentIndex();
    return {.Diener = wahl != NurHelfer,
            .Helfer = wahl == Alle || wahl == NurHelfer,
            .Gruppe = wahl >= ErsteGruppe ? FürWen->currentData().toString().toStdString() : ""};
}

Kalenderausgabe KalenderForm::Ausgabe() const
{
    const Namenform form = GewählteNamenform(Namen);
    Kalenderausgabe ausgabe;
    UnterWartezeiger([&] {
        ausgabe = JePerson->isChecked() ? KalenderJePerson(GemeinsameTabellen(), Kreis(), form)
                                        : MessenAlsKalender(GemeinsameTabellen(), form);
    });
    return ausgabe;
}

void KalenderForm::InhaltZeigen()
{
    FürWen->setEnabled(JePerson->isChecked());
    const Kalenderausgabe ausgabe = Ausgabe();
    InhaltSagen(Inhaltssatz(ausgabe, JePerson->isChecked()), !ausgabe.Dateien.empty());
}

void KalenderForm::Schreiben()
{
    const Kalenderausgabe ausgabe = Ausgabe();
    if (ausgabe.Dateien.empty())
        return InhaltZeigen();
    if (JePerson->isChecked())
        AlleSchreiben(ausgabe.Dateien);
    else
        EineSchreiben(ausgabe.Dateien.front());
}

void KalenderForm::EineSchreiben(const Kalenderdatei &datei)
{
    const auto ziel = Dateiwahl.Speichern(
        this,
        {.Titel = "Kalender speichern", .Name = datei.Name, .Art = Name, .Endungen = {"ics"}});
    if (ziel && DateiSchreiben(*ziel, datei.Bytes))
        Gelungen("Kalender geschrieben: " + TextVon(*ziel));
}

void KalenderForm::AlleSchreiben(const std::vector<Kalenderdatei> &dateien)
{
    const auto ziel = Dateiwahl.Verzeichnis(
        this, {.Titel = "Verzeichnis für die Kalender", .Name = "", .Art = Name, .Endungen = {}});
    if (!ziel)
        return;
    const std::vector<AbzulegendeDatei> abzulegen = ZumAblegen(dateien);
    const std::vector<Text> fremde = FremdeDateien(*ziel, abzulegen, IstEigenerKalender);
    if (!fremde.empty() &&
        !Meldungen.FragenVorVerlust(
            "In diesem Verzeichnis heißt schon etwas so, was kein Kalender von Altardienst ist: " +
                fremde.front() + (fremde.size() > 1 ? " und anderes" : "") + ". Überschreiben?",
            "Kalender speichern"))
        return;
    Ablage ablage;
    UnterWartezeiger([&] { ablage = Ablegen(*ziel, abzulegen); });
    if (!ablage.IstGanz())
        return Setzen(Hinweis, Mangelsatz(ablage));
    Gelungen(Gezählt(ablage.Geschrieben, "ein Kalender", "Kalender") +
             " geschrieben: " + TextVon(*ziel));
}

} // namespace altardienst

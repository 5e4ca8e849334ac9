// "E-Mail"
#include "exchange/EMailForm.h"

#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Messenname.h"
#include "core/Umwandlung.h"
#include "exchange/Dienstzettel.h"
#include "exchange/Messtermin.h"
#include "exchange/Namenformwahl.h"
#include "platform/Betrachter.h"
#include "printing/Plandruck.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScreen>

#include <optional>

namespace altardienst {
namespace {

constexpr int Abstand = 8;

QComboBox *Auswahl(const char *name, const QStringList &einträge)
{
    auto *wahl = Benannt(new QComboBox, name);
    // A long entry must not widen the window.
    wahl->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    wahl->setMinimumContentsLength(12);
    wahl->addItems(einträge);
    return wahl;
}

QCheckBox *Haken(const char *name, const char *text)
{
    auto *haken = Benannt(new QCheckBox(QString::fromUtf8(text)), name);
    haken->setChecked(true);
    return haken;
}

QStringList Gruppennamen()
{
    QStringList namen;
    for (int g = 0; g < altardienst::Gruppe.Anzahl && g <= GruppeTabelle::HöchsterIndex; ++g)
        if (const Text &name = altardienst::Gruppe.Bezeichnung[g]; !name.empty())
            namen << Anzeige(name);
    return namen;
}

QStringList Messennamen()
{
    QStringList namen;
    for (int i = 0; i < GemeinsameTabellen().Messenzahl(); ++i)
        namen << Anzeige(Messenzeile(i));
    return namen;
}

QPlainTextEdit *Textfläche(const char *name, const char *gesprochen, bool nurLesen)
{
    auto *fläche = Benannt(new QPlainTextEdit, name);
    fläche->setAccessibleName(QString::fromUtf8(gesprochen));
    fläche->setReadOnly(nurLesen);
    fläche->setTabChangesFocus(true);
    return fläche;
}

Text Adressenzahl(std::size_t zahl)
{
    return zahl == 1 ? "1 Adresse" : ZahlText(static_cast<int>(zahl)) + " Adressen";
}

/// As a list of lines under a heading; nothing without lines.
Text Abschnitt(const Text &titel, const std::vector<Text> &zeilen)
{
    Text text;
    if (!zeilen.empty())
        text = titel + "\n";
    for (const Text &zeile : zeilen)
        text += "  " + zeile + "\n";
    return text;
}

/// Why there is nobody to write to.
Text Leersatz(const Adressatenwahl &wahl, const Adressaten &adressaten)
{
    if (!adressaten.Unlesbar.empty())
        return "Niemand davon hat eine lesbare E-Mail-Adresse.";
    if (!adressaten.Ohne.empty())
        return "Niemand davon hat eine E-Mail-Adresse.";
    if (wahl.Kreis == Adressatenkreis::Gruppe)
        return wahl.Gruppe.empty() ? "Es gibt keine Gruppe." : "Zu dieser Gruppe gehört niemand.";
    if (wahl.Kreis == Adressatenkreis::Messe && wahl.Messe < 0)
        return "Es gibt keine Messe.";
    if (!wahl.Diener && !wahl.Helfer)
        return "Weder Meßdiener noch Helfer sind angekreuzt.";
    return wahl.Kreis == Adressatenkreis::Messe ? "In dieser Messe dient niemand davon."
                                                : "Davon ist niemand eingetragen.";
}

} // namespace

EMailForm::EMailForm()
    : An(Auswahl("An", {"alle", "eine Gruppe", "eine Messe"})),
      Gruppe(Auswahl("Gruppe", Gruppennamen())), EineMesse(Auswahl("EineMesse", Messennamen())),
      Diener(Haken("Diener", "&Meßdiener")), Helferinnen(Haken("Helferinnen", "&Helfer")),
      Betreff(Textfeld("Betreff")), Nachricht(Textfläche("Nachricht", "Nachricht", false)),
      MitPlan(Haken("MitPlan", "&Plan anfügen")), Namen(Namenformwahl("Namen", "EMail")),
      Plantext(Textfläche("Plantext", "Der Plan als Text", true)), Zahl(Beschriftung("Zahl", "")),
      Fehlende(Textfläche("Fehlende", "Wer keine lesbare Adresse hat", true)),
      Hinweis(Beschriftung("Hinweis", "")), Öffnen(Knopf("Öffnen", "&E-Mail öffnen")),
      AdressenKopieren(Knopf("AdressenKopieren", "A&dressen kopieren")),
      TextKopieren(Knopf("TextKopieren", "&Text kopieren")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "EMail");
    setWindowTitle("E-Mail");
    Anordnen();
    Verbinden();
    KreisGewählt();
}

void EMailForm::Anordnen()
{
    Gruppe->setAccessibleName("Gruppe");
    EineMesse->setAccessibleName("Messe");
    EineMesse->setMinimumContentsLength(26); // "So 29.11.2026 10:00 Hochamt"
    Hinweis->setWordWrap(true);
    auto *an = new QHBoxLayout;
    an->setSpacing(Abstand);
    for (QWidget *teil : std::initializer_list<QWidget *>{An, Gruppe, EineMesse})
        an->addWidget(teil);
    an->setStretchFactor(EineMesse, 3);
    an->setStretchFactor(Gruppe, 3);
    an->addSpacing(16);
    an->addWidget(Diener);
    an->addWidget(Helferinnen);
    an->addStretch(1);
    auto *plan = new QHBoxLayout;
    plan->setSpacing(Abstand);
    plan->addWidget(MitPlan);
    plan->addSpacing(16);
    plan->addWidget(Beschriftung("NamenText", "&Namen", Namen));
    plan->addWidget(Namen);
    plan->addStretch();
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(10);
    raster->addWidget(Beschriftung("AnText", "&An", An), 0, 0);
    raster->addLayout(an, 0, 1);
    raster->addWidget(Beschriftung("BetreffText", "&Betreff", Betreff), 1, 0);
    raster->addWidget(Betreff, 1, 1);
    raster->addWidget(Beschriftung("NachrichtText", "Na&chricht", Nachricht), 2, 0, Qt::AlignTop);
    raster->addWidget(Nachricht, 2, 1);
    raster->addLayout(plan, 3, 1);
    raster->addWidget(Plantext, 4, 1);
    raster->addWidget(Zahl, 5, 1);
    raster->addWidget(Fehlende, 6, 1);
    raster->setRowStretch(2, 2);
    raster->setRowStretch(4, 4);
    raster->setRowStretch(6, 2);
    for (QPlainTextEdit *fläche : {Nachricht, Plantext, Fehlende})
        fläche->setMinimumHeight(3 * fontMetrics().lineSpacing());
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(raster, 1);
    spalte->addWidget(Hinweis);
    spalte->addLayout(Knopfreihe({Ende}, {Öffnen, AdressenKopieren, TextKopieren}));
    resize(QSize(660, 560).boundedTo(screen()->availableSize() - Fensterrahmen));
    An->setFocus();
}

void EMailForm::Verbinden()
{
    connect(An, &QComboBox::currentIndexChanged, this, Offen([this] { KreisGewählt(); }));
    for (QComboBox *wahl : {Gruppe, EineMesse})
        connect(wahl, &QComboBox::currentIndexChanged, this, Offen([this] { KreisGewählt(); }));
    for (QCheckBox *haken : {Diener, Helferinnen})
        connect(haken, &QCheckBox::toggled, this, Offen([this] { AdressatenZeigen(); }));
    connect(MitPlan, &QCheckBox::toggled, this, Offen([this] { PlanZeigen(); }));
    connect(Namen, &QComboBox::currentIndexChanged, this, Offen([this] { PlanZeigen(); }));
    connect(Öffnen, &QPushButton::clicked, this, Offen([this] { MailÖffnen(); }));
    connect(AdressenKopieren, &QPushButton::clicked, this, Offen([this] {
                InDieAblage(AlsAdresszeile(adressaten.Adressen),
                            Adressenzahl(adressaten.Adressen.size()) + " in der Zwischenablage.");
            }));
    connect(TextKopieren, &QPushButton::clicked, this, Offen([this] {
                InDieAblage(Brief().Inhalt, "Der Text liegt in der Zwischenablage.");
            }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

void EMailForm::AnMesse(int messe)
{
    An->setCurrentIndex(static_cast<int>(Adressatenkreis::Messe));
    EineMesse->setCurrentIndex(messe);
}

Adressatenwahl EMailForm::Wahl() const
{
    return {static_cast<Adressatenkreis>(An->currentIndex()), Gruppe->currentText().toStdString(),
            EineMesse->currentIndex(), Diener->isChecked(), Helferinnen->isChecked()};
}

/// Groups are groups of servers.
void EMailForm::KreisGewählt()
{
    const Adressatenkreis kreis = Wahl().Kreis;
    Gruppe->setVisible(kreis == Adressatenkreis::Gruppe);
    EineMesse->setVisible(kreis == Adressatenkreis::Messe);
    for (QCheckBox *haken : {Diener, Helferinnen})
        haken->setEnabled(kreis != Adressatenkreis::Gruppe);
    BetreffVorschlagen();
    AdressatenZeigen();
    PlanZeigen();
}

void EMailForm::BetreffVorschlagen()
{
    const bool getippt = Betreff->text() != vorschlag;
    const Adressatenwahl wahl = Wahl();
    vorschlag = Anzeige(wahl.Kreis == Adressatenkreis::Messe && wahl.Messe >= 0
                            ? "Altardienst, " + MesseMitJahr(Messe, wahl.Messe)
                            : Zettelzeile(GemeinsameTabellen()));
    if (!getippt)
        Betreff->setText(vorschlag);
}

void EMailForm::AdressatenZeigen()
{
    Adressatenwahl wahl = Wahl();
    if (wahl.Kreis == Adressatenkreis::Gruppe)
        wahl.Diener = true;
    adressaten = wahl.Kreis == Adressatenkreis::Messe && wahl.Messe < 0
                     ? Adressaten()
                     : AdressatenSuchen(GemeinsameTabellen(), wahl);
    const std::size_t fehlende = adressaten.Ohne.size() + adressaten.Unlesbar.size();
    Setzen(Zahl, Adressenzahl(adressaten.Adressen.size()) +
                     (fehlende == 0 ? Text() : "; nicht erreicht werden:"));
    Fehlende->setPlainText(Anzeige(Abschnitt("ohne Adresse", adressaten.Ohne) +
                                   Abschnitt("mit unlesbarer Adresse", adressaten.Unlesbar)));
    Fehlende->setVisible(fehlende > 0);
    for (QPushButton *knopf : {Öffnen, AdressenKopieren})
        knopf->setEnabled(!adressaten.Adressen.empty());
    Setzen(Hinweis, adressaten.Adressen.empty() ? Leersatz(wahl, adressaten) : "");
}

void EMailForm::PlanZeigen()
{
    const Adressatenwahl wahl = Wahl();
    const bool eine = wahl.Kreis == Adressatenkreis::Messe && wahl.Messe >= 0;
    Plantext->setPlainText(
        MitPlan->isChecked()
            ? Anzeige(PlanAlsBrieftext(GemeinsameTabellen(), GewählteNamenform(Namen),
                                       eine ? std::optional(wahl.Messe) : std::nullopt))
            : QString());
    Plantext->setVisible(MitPlan->isChecked());
    Namen->setEnabled(MitPlan->isChecked());
}

Rundbrief EMailForm::Brief() const
{
    Text inhalt = Nachricht->toPlainText().toStdString();
    const Text plan = Plantext->toPlainText().toStdString();
    if (!inhalt.empty() && !plan.empty())
        inhalt += "\n\n";
    return {adressaten.Adressen, Betreff->text().toStdString(), inhalt + plan};
}

void EMailForm::InDieAblage(const Text &text, const Text &hinweis)
{
    QApplication::clipboard()->setText(Anzeige(text));
    Setzen(Hinweis, hinweis);
}

/// One clipboard holds one text: the addresses come first, the text has a button of its own.
void EMailForm::MailÖffnen()
{
    const Rundbrief brief = Brief();
    const Briefweg weg = WegDes(brief);
    const Text adressen = Adressenzahl(brief.Adressen.size());
    if (!Plantext->toPlainText().isEmpty())
        VorDemPlandruck();
    if (!Betrachter.Verweis(weg.Verweis))
        return InDieAblage(
            AlsAdresszeile(brief.Adressen),
            "Es lässt sich kein E-Mail-Programm aufrufen. " + adressen + " in der Zwischenablage" +
                (brief.Inhalt.empty() ? "." : "; den Text holt danach \"Text kopieren\"."));
    Mitteilen("E-Mail-Programm aufgerufen");
    if (!weg.MitAdressen)
        return InDieAblage(AlsAdresszeile(brief.Adressen),
                           adressen +
                               " sind zu viele auf einmal; sie liegen in der Zwischenablage und "
                               "gehören in das Feld \"Bcc\"." +
                               (weg.MitInhalt ? ""
                                              : " Danach hier \"Text kopieren\" drücken und den "
                                                "Text in die E-Mail einfügen."));
    if (!weg.MitInhalt)
        return InDieAblage(brief.Inhalt, "Das E-Mail-Programm ist aufgerufen, mit " + adressen +
                                             " als Blindkopie. Der Text ist zu lang dafür; er "
                                             "liegt in der Zwischenablage zum Einfügen.");
    Setzen(Hinweis, "Das E-Mail-Programm ist aufgerufen, mit " + adressen + " als Blindkopie.");
}

} // namespace altardienst

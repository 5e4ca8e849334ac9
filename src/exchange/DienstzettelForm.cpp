// "Dienstzettel"
#include "exchange/DienstzettelForm.h"

#include "application/Dateiwahl.h"
#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "exchange/Zetteldruck.h"
#include "platform/GanzSchreiben.h"
#include "platform/Laufwerke.h"
#include "printing/Plandruck.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QScreen>

namespace altardienst {
namespace {

constexpr const char *Utf8Marke = "\xEF\xBB\xBF";

QCheckBox *Haken(const char *name, const char *text, bool an)
{
    auto *haken = Benannt(new QCheckBox(QString::fromUtf8(text)), name);
    haken->setChecked(an);
    return haken;
}

QComboBox *Ordnungswahl()
{
    auto *wahl = Benannt(new QComboBox, "Ordnung");
    wahl->addItems({"nach Namen", "nach Gruppen"});
    return wahl;
}

/// Why there is no slip.
Text Leersatz(const Zettelwahl &wahl)
{
    if (wahl.Diener && wahl.Helfer)
        return "Niemand dient in diesem Plan.";
    if (wahl.Diener)
        return "Kein Meßdiener dient in diesem Plan.";
    if (wahl.Helfer)
        return "Kein Helfer dient in diesem Plan.";
    return "Weder Meßdiener noch Helfer sind angekreuzt.";
}

Text MitWagenrücklauf(const Text &text)
{
    Text zeilen;
    for (const char zeichen : text) {
        if (zeichen == '\n')
            zeilen += '\r';
        zeilen += zeichen;
    }
    return zeilen;
}

} // namespace

DienstzettelForm::DienstzettelForm()
    : Diener(Haken("Diener", "&Meßdiener", true)),
      Helferinnen(Haken("Helferinnen", "&Helfer", true)),
      AuchOhneDienst(Haken("AuchOhneDienst", "auch &ohne Dienst", false)), Ordnung(Ordnungswahl()),
      Vorschau(Benannt(new QPlainTextEdit, "Vorschau")), Hinweis(Beschriftung("Hinweis", "")),
      Kopieren(Knopf("Kopieren", "&Kopieren")), Speichern(Knopf("Speichern", "&Speichern...")),
      Drucken(Knopf("Drucken", "&Drucken")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Dienstzettel");
    setWindowTitle("Dienstzettel");
    Anordnen();
    Verbinden();
    Zeigen();
}

void DienstzettelForm::Anordnen()
{
    Vorschau->setReadOnly(true);
    Vorschau->setAccessibleName("Die Zettel als Text");
    Vorschau->setTabChangesFocus(true);
    Hinweis->setWordWrap(true);
    auto *wahl = new QHBoxLayout;
    wahl->addWidget(Diener);
    wahl->addWidget(Helferinnen);
    wahl->addSpacing(16);
    wahl->addWidget(AuchOhneDienst);
    wahl->addSpacing(16);
    wahl->addWidget(Beschriftung("OrdnungText", "&Geordnet", Ordnung));
    wahl->addWidget(Ordnung);
    wahl->addStretch();
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(wahl);
    spalte->addWidget(Vorschau, 1);
    spalte->addWidget(Hinweis);
    spalte->addLayout(Knopfreihe({Ende}, {Drucken, Kopieren, Speichern}));
    resize(QSize(660, 480).boundedTo(screen()->availableSize() - Fensterrahmen));
    Drucken->setFocus();
}

void DienstzettelForm::Verbinden()
{
    for (QCheckBox *haken : {Diener, Helferinnen, AuchOhneDienst})
        connect(haken, &QCheckBox::toggled, this, Offen([this] { Zeigen(); }));
    connect(Ordnung, &QComboBox::currentIndexChanged, this, Offen([this] { Zeigen(); }));
    connect(Drucken, &QPushButton::clicked, this, Offen([this] {
                VorDemPlandruck();
                ZettelDrucken(zettel, Zettelzeile(GemeinsameTabellen()));
            }));
    connect(Kopieren, &QPushButton::clicked, this, Offen([this] { InDieAblage(); }));
    connect(Speichern, &QPushButton::clicked, this, Offen([this] { InDatei(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

Zettelwahl DienstzettelForm::Wahl() const
{
    return {Diener->isChecked(), Helferinnen->isChecked(), AuchOhneDienst->isChecked(),
            Ordnung->currentIndex() == 0 ? Zettelordnung::NachName : Zettelordnung::NachGruppe};
}

void DienstzettelForm::Zeigen()
{
    zettel = DienstzettelVon(GemeinsameTabellen(), Wahl());
    Vorschau->setPlainText(Anzeige(ZettelAlsText(zettel, Zettelzeile(GemeinsameTabellen()))));
    for (QPushButton *knopf : {Drucken, Kopieren, Speichern})
        knopf->setEnabled(!zettel.empty());
    Setzen(Hinweis, zettel.empty() ? Leersatz(Wahl()) : Zahlsatz() + ".");
}

Text DienstzettelForm::Zahlsatz() const
{
    return zettel.size() == 1 ? "1 Zettel" : ZahlText(static_cast<int>(zettel.size())) + " Zettel";
}

void DienstzettelForm::InDieAblage()
{
    QApplication::clipboard()->setText(Vorschau->toPlainText());
    VorDemPlandruck();
    Setzen(Hinweis, Zahlsatz() + " in der Zwischenablage.");
}

void DienstzettelForm::InDatei()
{
    const auto datei =
        Dateiwahl.Speichern(this, {"Dienstzettel speichern", "Dienstzettel.txt", "Text", {"txt"}});
    if (!datei)
        return;
    try {
        GanzSchreiben(*datei, Utf8Marke + MitWagenrücklauf(ZettelAlsText(
                                              zettel, Zettelzeile(GemeinsameTabellen()))));
    } catch (const Laufzeitfehler &fehler) {
        return Setzen(Hinweis, Text("Die Datei wurde nicht geschrieben: ") + fehler.what() + ".");
    }
    VorDemPlandruck();
    Setzen(Hinweis, Zahlsatz() + " gespeichert: " + TextVon(*datei));
    Mitteilen("Dienstzettel geschrieben: " + TextVon(*datei));
}

} // namespace altardienst

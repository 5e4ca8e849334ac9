// "Webseite"
#include "exchange/WebseiteForm.h"

#include "application/Dateiwahl.h"
#include "application/Gemerktes.h"
#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "exchange/Namenformwahl.h"
#include "exchange/Planauszug.h"
#include "platform/Betrachter.h"
#include "platform/GanzSchreiben.h"
#include "platform/Laufwerke.h"
#include "printing/PlanZeilen.h"

#include <QGridLayout>

namespace altardienst {
namespace {

constexpr const char *Name = "Webseite";

/// A box whose state is remembered.
QCheckBox *Kästchen(const char *name, const char *aufschrift, bool vorgabe)
{
    auto *kästchen = Benannt(new QCheckBox(QString::fromUtf8(aufschrift)), name);
    const QString schlüssel = QString::fromUtf8(Name) + "/" + kästchen->objectName();
    kästchen->setChecked(Gemerktes().value(schlüssel, vorgabe).toBool());
    QObject::connect(kästchen, &QCheckBox::toggled, kästchen,
                     Abgefangen([schlüssel](bool neu) { Gemerktes().setValue(schlüssel, neu); }));
    return kästchen;
}

Text Inhaltssatz(const Webseite &seite)
{
    if (seite.Messen == 0)
        return "Der Plan hat keine Messen.";
    return (seite.Messen == 1 ? Text("Eine Messe") : ZahlText(seite.Messen) + " Messen") +
           (seite.Druckseiten == 1 ? "; gedruckt ein Blatt A4."
                                   : "; gedruckt etwa " + ZahlText(seite.Druckseiten) +
                                         " Blätter A4, da die Schrift auf einem zu klein würde.");
}

} // namespace

WebseiteForm::WebseiteForm()
    : Titel(Textfeld("Titel")), Namen(Namenformwahl("Namen", Name)),
      MitHelfern(Kästchen("MitHelfern", "mit &Helfern", true)),
      DanachÖffnen(Kästchen("DanachÖffnen", "danach ö&ffnen", true)),
      Inhalt(Beschriftung("Inhalt", "")), Hinweis(Beschriftung("Hinweis", "")),
      Speichern(Knopf("Speichern", "&Speichern")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, Name);
    setWindowTitle("Webseite");
    Setzen(Titel, Messentitel(Konfig));
    Anordnen();
    Verbinden();
    InhaltZeigen();
}

void WebseiteForm::Anordnen()
{
    auto *raster = new QGridLayout;
    raster->setColumnStretch(1, 1);
    raster->addWidget(Beschriftung("TitelText", "&Titel", Titel), 0, 0);
    raster->addWidget(Titel, 0, 1);
    raster->addWidget(Beschriftung("NamenText", "&Namen", Namen), 1, 0);
    raster->addWidget(Namen, 1, 1);
    raster->addWidget(MitHelfern, 2, 1);
    raster->addWidget(DanachÖffnen, 3, 1);
    for (QLabel *satz : {Inhalt, Hinweis})
        satz->setWordWrap(true);
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(raster);
    spalte->addWidget(Inhalt);
    spalte->addWidget(Hinweis);
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({Speichern, Ende}));
    resize(520, 280);
    Titel->setFocus();
}

void WebseiteForm::Verbinden()
{
    connect(Namen, &QComboBox::currentIndexChanged, this, Offen([this] { InhaltZeigen(); }));
    connect(MitHelfern, &QCheckBox::toggled, this, Offen([this] { InhaltZeigen(); }));
    connect(Speichern, &QPushButton::clicked, this, Offen([this] { Schreiben(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

Webseite WebseiteForm::Seite() const
{
    return PlanAlsWebseite(GemeinsameTabellen(), {.Titel = TextVon(Titel),
                                                  .Namen = GewählteNamenform(Namen),
                                                  .MitHelfern = MitHelfern->isChecked()});
}

void WebseiteForm::InhaltZeigen()
{
    const Webseite seite = Seite();
    Setzen(Inhalt, Inhaltssatz(seite));
    Setzen(Hinweis, "");
    Speichern->setEnabled(seite.Messen > 0);
}

void WebseiteForm::Schreiben()
{
    const auto ziel = Dateiwahl.Speichern(this, {.Titel = "Webseite speichern",
                                                 .Name = PlanDateiname() + ".html",
                                                 .Art = Name,
                                                 .Endungen = {"html", "htm"}});
    if (!ziel)
        return;
    try {
        GanzSchreiben(*ziel, Seite().Bytes);
    } catch (const Laufzeitfehler &fehler) {
        return Setzen(Hinweis, "Nicht geschrieben: " + TextVon(*ziel) + ": " + fehler.what() + ".");
    }
    Text was = "Webseite geschrieben: " + TextVon(*ziel);
    if (DanachÖffnen->isChecked() && !Betrachter.Öffnen(*ziel))
        was = "Webseite geschrieben, aber kein Programm zeigt sie: " + TextVon(*ziel);
    Mitteilen(was);
    Setzen(Hinweis, was + ".");
}

} // namespace altardienst

// "Webseite"
#include "exchange/WebseiteForm.h"

#include "application/Dateiwahl.h"
#include "application/Gemerktes.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "core/Umwandlung.h"
#include "exchange/Namenformwahl.h"
#include "exchange/Planauszug.h"
#include "platform/Betrachter.h"
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
    : Ausgabefenster(Name, "Webseite"), Titel(Textfeld("Titel")),
      Namen(Namenformwahl("Namen", Name)), MitHelfern(Kästchen("MitHelfern", "mit &Helfern", true)),
      DanachÖffnen(Kästchen("DanachÖffnen", "danach ö&ffnen", true))
{
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
    FußAnordnen(raster);
    resize(520, 280);
    Titel->setFocus();
}

void WebseiteForm::Verbinden()
{
    connect(Namen, &QComboBox::currentIndexChanged, this, Offen([this] { InhaltZeigen(); }));
    connect(MitHelfern, &QCheckBox::toggled, this, Offen([this] { InhaltZeigen(); }));
    FußVerbinden(Offen([this] { Schreiben(); }));
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
    InhaltSagen(Inhaltssatz(seite), seite.Messen > 0);
}

void WebseiteForm::Schreiben()
{
    const auto ziel = Dateiwahl.Speichern(this, {.Titel = "Webseite speichern",
                                                 .Name = PlanDateiname() + ".html",
                                                 .Art = Name,
                                                 .Endungen = {"html", "htm"}});
    if (!ziel || !DateiSchreiben(*ziel, Seite().Bytes))
        return;
    Text was = "Webseite geschrieben: " + TextVon(*ziel);
    if (DanachÖffnen->isChecked() && !Betrachter.Öffnen(*ziel))
        was = "Webseite geschrieben, aber kein Programm zeigt sie: " + TextVon(*ziel);
    Gelungen(was);
}

} // namespace altardienst

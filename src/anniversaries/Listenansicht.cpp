// A window that shows the rows of a list one by one.
#include "anniversaries/Listenansicht.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "controls/Zahlbox.h"
#include "core/Umwandlung.h"

#include <QGridLayout>
#include <QHBoxLayout>

namespace altardienst {
namespace {

QLineEdit *Anzeigefeld(const char *name)
{
    QLineEdit *feld = Benannt(new QLineEdit, name);
    feld->setReadOnly(true);
    return feld;
}

} // namespace

Listenansicht::Listenansicht(const Listenworte &worte, int anzahl,
                             std::function<Listenzeile(int)> zeileDerListe)
    : Wahl(new Datensatzwahl({"Nu", "Plus", "Minus"})), Letzter(Beschriftung("Letzter", "")),
      Datensätze(Beschriftung("Datensätze", "")), Name(Anzeigefeld("Name")),
      Tag(Anzeigefeld("Tag")), Jahre(Anzeigefeld("Jahre")), Telefon(Anzeigefeld("Telefon")),
      Ende(Knopf("Ende", "Ende")), anzahl(anzahl), zeileDerListe(std::move(zeileDerListe))
{
    Benannt(this, worte.Fenster);
    setWindowTitle(QString::fromUtf8(worte.Titel));
    setWindowModality(Qt::ApplicationModal);
    Anordnen(worte);
    Verbinden();
    Setzen(Letzter, ZahlText(anzahl));
    Setzen(Datensätze, ZahlText(anzahl));
    ZahlSetzen(Wahl->Nummer, 0);
}

void Listenansicht::Anordnen(const Listenworte &worte)
{
    auto *kopf = new QHBoxLayout;
    kopf->addWidget(Wahl);
    for (const auto &[text, zahl] :
         {std::pair{"Index von 0 bis", Letzter}, {"Anzahl Datensätze:", Datensätze}}) {
        kopf->addSpacing(16);
        kopf->addWidget(Beschriftung("", text));
        kopf->addWidget(zahl);
    }
    kopf->addStretch();

    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(12);
    raster->setVerticalSpacing(8);
    int reihe = 0;
    for (const auto &[text, feld] : {std::pair{"Name:", Name},
                                     {worte.Tag, Tag},
                                     {worte.Jahre, Jahre},
                                     {"Telefon:", Telefon}}) {
        raster->addWidget(Beschriftung("", text, feld), reihe, 0);
        raster->addWidget(feld, reihe++, 1);
    }

    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addLayout(kopf);
    spalte->addLayout(raster);
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({Ende}));
    Wahl->Nummer->setFocus();
}

void Listenansicht::Verbinden()
{
    Wahl->BeiWechsel(Abgefangen([this] { NummerGeändert(); }));
    Wahl->BeiSchritt([this](int richtung) {
        Abgefangen([&] { ZahlSetzen(Wahl->Nummer, ZahlIn(Wahl->Nummer) + richtung); })();
    });
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

void Listenansicht::NummerGeändert()
{
    Zeigen(zeileDerListe(Begrenzen(Wahl->Nummer, 0, anzahl)));
}

void Listenansicht::Zeigen(const Listenzeile &zeile)
{
    Setzen(Name, zeile.Name);
    Setzen(Tag, DatumText(zeile.Tag));
    Setzen(Jahre, ZahlText(zeile.Jahre));
    Setzen(Telefon, zeile.Telefon);
}

} // namespace altardienst

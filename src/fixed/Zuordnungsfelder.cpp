// What the two dialogs of the fixed entries have in common: a mass, and who is fixed to its slots.
#include "fixed/Zuordnungsfelder.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "controls/Textwahl.h"
#include "core/Namen.h"
#include "core/Umwandlung.h"
#include "fixed/FesteEinträge.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

constexpr int KürzestesTermintext = 19; // a date of ten characters, a comma, a time of eight

QComboBox *Listenwahl(const char *name, const char *gesprochen, int zeichen)
{
    QComboBox *wahl = Textwahl(name, gesprochen);
    // Measuring every entry of the long lists would take longer than everything else together.
    wahl->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    wahl->setMinimumContentsLength(zeichen);
    return wahl;
}

QLineEdit *Namensfeld(const Text &name, const Text &gesprochen)
{
    QLineEdit *feld = Textfeld(name.c_str());
    feld->setAccessibleName(Anzeige(gesprochen));
    feld->setMinimumWidth(90);
    return feld;
}

Zuordnungsfelder::Slot SlotAnlegen(int nummer)
{
    const Text n = ZahlText(nummer);
    QComboBox *wahl = Listenwahl(("MDiener" + n).c_str(), ("Meßdiener " + n).c_str(), 20);
    return {Beschriftung(("ME" + n).c_str(), ("Meßdiener " + n + " :").c_str(), wahl), wahl,
            Namensfeld("MDV" + n, "Vorname Meßdiener " + n),
            Namensfeld("MDN" + n, "Nachname Meßdiener " + n)};
}

Datum DatumIn(const QLineEdit *feld)
{
    return DatumLesen(TextVon(feld));
}

} // namespace

Zuordnungsfelder::Zuordnungsfelder(Unterschiede unterschiede)
    : Messen(Listenwahl("Messen", "Messe", 26)), DatumD(Datumsbox("DatumD")),
      Zeitd(Zeitbox("Zeitd")), unterschiede(std::move(unterschiede))
{
    for (std::size_t k = 0; k < Slots.size(); ++k)
        Slots[k] = SlotAnlegen(static_cast<int>(k + 1));
}

QLayout *Zuordnungsfelder::Messenzeile() const
{
    auto *zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    zeile->addWidget(Beschriftung("", "Messe :", Messen));
    zeile->addWidget(Messen, 1);
    zeile->addWidget(Beschriftung("", "am :", DatumD));
    zeile->addWidget(DatumD);
    zeile->addWidget(Beschriftung("", "um :", Zeitd));
    zeile->addWidget(Zeitd);
    zeile->addWidget(Beschriftung("", "Uhr"));
    // Screen readers have no use for "am" and "um".
    DatumD->setAccessibleName("Datum");
    Zeitd->setAccessibleName("Uhrzeit");
    return zeile;
}

QLayout *Zuordnungsfelder::SlotsAnordnen() const
{
    auto *raster = new QGridLayout;
    raster->setVerticalSpacing(3);
    raster->setHorizontalSpacing(8);
    raster->addWidget(Beschriftung("", "Nachname,Vorname"), 0, 1);
    raster->addWidget(Beschriftung("", "Vorname"), 0, 2);
    raster->addWidget(Beschriftung("", "Nachname"), 0, 3);
    for (std::size_t k = 0; k < Slots.size(); ++k) {
        const int zeile = static_cast<int>(k + 1);
        raster->addWidget(Slots[k].ME, zeile, 0);
        raster->addWidget(Slots[k].MDiener, zeile, 1);
        raster->addWidget(Slots[k].MDV, zeile, 2);
        raster->addWidget(Slots[k].MDN, zeile, 3);
    }
    const QFontMetrics schrift = Slots[0].ME->fontMetrics();
    raster->setColumnMinimumWidth(0, schrift.horizontalAdvance("Gabenbereitung") + 8);
    raster->setColumnStretch(1, 2);
    raster->setColumnStretch(2, 1);
    raster->setColumnStretch(3, 1);
    raster->setRowStretch(static_cast<int>(Slots.size()) + 1, 1);
    return raster;
}

void Zuordnungsfelder::Verbinden()
{
    const auto beimVerlassen = [this](auto handler) {
        return Abgefangen([this, handler] {
            if (!still)
                handler();
        });
    };
    for (const Slot &slot : Slots) {
        if (&slot != &Slots.back())
            BeiVerlassen(slot.MDiener, beimVerlassen([this, &slot] { SlotVerlassen(slot); }));
        else // the last one reacts to every change of its text
            QObject::connect(slot.MDiener, &QComboBox::editTextChanged, slot.MDiener,
                             Abgefangen([this, &slot] { SlotVerlassen(slot); }));
    }
    BeiVerlassen(Messen, beimVerlassen([this] { MesseVerlassen(); }));
    const auto termin = [&](QLineEdit *feld, void (*umschreiben)(QLineEdit *)) {
        BeiFokusVerlust(feld, beimVerlassen([this] { Übernehmen(); }));
        BeiKlick(feld, Abgefangen([this, feld, umschreiben] {
                     umschreiben(feld);
                     DatumUhrzeitAngleichen();
                 }));
        BeiEingabetaste(feld, Abgefangen([this] { DatumUhrzeitAngleichen(); }));
    };
    termin(DatumD, AlsKurzesDatum);
    termin(Zeitd, AlsLangeZeit);
}

void Zuordnungsfelder::ListenFüllen() const
{
    QStringList messen;
    for (int i = 0; i < Messe.Anzahl; ++i)
        messen << Anzeige(Messentext(i));
    ListeSetzen(Messen, messen);

    QStringList namen;
    if (unterschiede.Leereintrag)
        namen << " ";
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        namen << Anzeige(Listenname(Meßdiener.Nachname[i], Meßdiener.Vorname[i]));
    for (int i = 0; i < Gruppe.Anzahl; ++i)
        namen << Anzeige(Gruppentext(Gruppe.Bezeichnung[i]));
    std::vector<QComboBox *> wahlen;
    for (const Slot &slot : Slots)
        wahlen.push_back(slot.MDiener);
    ListeTeilen(wahlen, namen);
}

void Zuordnungsfelder::Zeigen(int i) const
{
    Setzen(DatumD, DatumText(MesseDienerFest.Datum[i]));
    Setzen(Zeitd, DatumText(MesseDienerFest.Uhrzeit[i]));
    for (std::size_t k = 0; k < Slots.size(); ++k) {
        const int slot = static_cast<int>(k + 1);
        Setzen(Slots[k].MDV, MesseDienerFest.Vorname[i][slot]);
        Setzen(Slots[k].MDN, MesseDienerFest.Nachname[i][slot]);
    }
}

void Zuordnungsfelder::NameZeigen(const Slot &slot)
{
    const Text nachname = TextVon(slot.MDN);
    const Text vorname = TextVon(slot.MDV);
    const bool beide = !nachname.empty() && !vorname.empty();
    Setzen(slot.MDiener, beide ? Listenname(nachname, vorname) : Text());
}

void Zuordnungsfelder::NamenZeigen() const
{
    for (const Slot &slot : Slots)
        NameZeigen(slot);
}

void Zuordnungsfelder::Schreiben(int i) const
{
    MesseDienerFest.Datum[i] = DatumIn(DatumD);
    MesseDienerFest.Uhrzeit[i] = DatumIn(Zeitd);
    for (std::size_t k = 0; k < Slots.size(); ++k) {
        const int slot = static_cast<int>(k + 1);
        MesseDienerFest.Vorname[i][slot] = TextVon(Slots[k].MDV);
        MesseDienerFest.Nachname[i][slot] = TextVon(Slots[k].MDN);
    }
}

void Zuordnungsfelder::MesseZeigen() const
{
    Setzen(Messen, TextVon(DatumD) + "," + TextVon(Zeitd));
}

void Zuordnungsfelder::DatumUhrzeitAngleichen() const
{
    if (TextVon(DatumD) == "00:00:00")
        Setzen(DatumD, KurzesDatum(Uhr.Heute()));
    AlsKurzesDatum(DatumD);
    AlsLangeZeit(Zeitd);
    MesseZeigen();
}

/// A text in another format yields whatever is at these positions.
void Zuordnungsfelder::MesseDatumHolen() const
{
    const Text text = TextVon(Messen);
    Setzen(DatumD, Links(text, 10));
    Setzen(Zeitd, Mitte(text, 12, 8));
}

void Zuordnungsfelder::MeßdienerAufteilen() const
{
    for (const Slot &slot : Slots) {
        Text nachname = TextVon(slot.MDN);
        Text vorname = TextVon(slot.MDV);
        NameTeilen(TextVon(slot.MDiener), nachname, vorname);
        Setzen(slot.MDN, nachname);
        Setzen(slot.MDV, vorname);
    }
}

void Zuordnungsfelder::MesseDiensteHolen() const
{
    DiensteDerMesse(DatumIn(DatumD), DatumIn(Zeitd), unterschiede.Dienste());
    DienstBeschriftungSetzen();
}

void Zuordnungsfelder::Übernehmen() const
{
    MeßdienerAufteilen();
    MesseDatumHolen();
    MesseDiensteHolen();
}

void Zuordnungsfelder::DienstBeschriftungSetzen() const
{
    Dienstnamen &dienste = unterschiede.Dienste();
    for (std::size_t k = 0; k < Slots.size(); ++k)
        Setzen(Slots[k].ME, dienste[static_cast<int>(k + 1)]);
}

void Zuordnungsfelder::MeßdienerZeilenEinblenden() const
{
    const int zahl = unterschiede.Dienerzahl();
    for (std::size_t k = 0; k < Slots.size(); ++k)
        for (QWidget *control : std::initializer_list<QWidget *>{Slots[k].ME, Slots[k].MDiener,
                                                                 Slots[k].MDV, Slots[k].MDN})
            control->setVisible(static_cast<int>(k) < zahl);
    ZeilenLeeren(zahl);
}

/// Names beyond the count of the mass are dropped from the screen; with the next save they are
/// lost.
void Zuordnungsfelder::ZeilenLeeren(int ab) const
{
    for (std::size_t k = static_cast<std::size_t>(std::max(ab, 0)); k < Slots.size(); ++k) {
        Setzen(Slots[k].MDiener, "");
        Setzen(Slots[k].MDN, "");
        Setzen(Slots[k].MDV, "");
    }
}

/// The first slot with an unknown text gets its previous names back; the slots after it are not
/// checked this time.
void Zuordnungsfelder::ZuordnungenPrüfen() const
{
    for (const Slot &slot : Slots) {
        const Text text = TextVon(slot.MDiener);
        if (text.empty() || IstZuordnung(text))
            continue;
        NameZeigen(slot);
        return Meldungen.Zeigen("FEHLEINGABE!!!");
    }
}

/// Anyone who is in two slots is removed from the one that the focus leaves: the entry that was
/// there first wins.
void Zuordnungsfelder::SlotVerlassen(const Slot &slot) const
{
    ZuordnungenPrüfen();
    const Text text = TextVon(slot.MDiener);
    for (const Slot &anderer : Slots)
        if (&anderer != &slot && !text.empty() && TextVon(anderer.MDiener) == text)
            Setzen(slot.MDiener, "");
    Übernehmen();
}

void Zuordnungsfelder::MesseVerlassen() const
{
    if (!IstMesse(TextVon(Messen))) {
        Meldungen.Zeigen("Messe ist unbekannt!! Auswählen oder neu eingeben!!");
        return MesseZeigen();
    }
    if (Länge(TextVon(Messen)) < KürzestesTermintext)
        Setzen(Messen, KurzesDatum(Uhr.Heute()) + "," + LangeZeit(ZeitAus(Uhr.Sekunden())));
    Übernehmen();
    if (const auto zahl = DienerzahlDerMesse(DatumIn(DatumD), DatumIn(Zeitd)))
        unterschiede.DienerzahlAblegen(*zahl);
    MeßdienerZeilenEinblenden();
}

} // namespace altardienst

// The frame in which a label format and the first label of a sheet are chosen.
#include "printing/Etikettenwahl.h"

#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Zahlbox.h"
#include "core/Umwandlung.h"
#include "core/tables.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace altardienst {
namespace {

/// The row or column in a box; a number beyond any sheet counts as the largest one that still
/// leaves a place after it to continue.
int Stelle(const QLineEdit *feld)
{
    constexpr Single Größte = 32766;
    return GerundetInt16(std::clamp(SingleLesen(TextVon(feld)), -Größte, Größte));
}

} // namespace

Etikettenwahl::Etikettenwahl(const char *knopfBeschriftung, QWidget *darunter)
    : EtiGröß(Benannt(new QGroupBox("Etikettengröße"), "EtiGröß")),
      Etik(Benannt(new QGroupBox("Erstes zu bedruckende Etikett in"), "Etik")),
      Reih(Zahleneingabe("Reih", KeinMaß)), ÄReih(new SpinButton("ÄReih", "Reihe ändern")),
      Spal(Zahleneingabe("Spal", KeinMaß)), ÄSpal(new SpinButton("ÄSpal", "Spalte ändern")),
      Etiketten(Knopf("Etiketten", knopfBeschriftung))
{
    for (std::size_t n = 0; n < O.size(); ++n)
        O[n] = Benannt(new QRadioButton, ("O" + std::to_string(n + 1)).c_str());
    Anordnen(darunter);
    Verbinden();
}

void Etikettenwahl::Anordnen(QWidget *darunter)
{
    auto *formate = new QGridLayout(EtiGröß);
    for (int n = 0; n < static_cast<int>(O.size()); ++n)
        formate->addWidget(O[static_cast<std::size_t>(n)], n % 5, n / 5);

    for (QLineEdit *feld : {Reih, Spal})
        feld->setFixedWidth(darunter ? 40 : 48);
    auto *platz = new QHBoxLayout;
    platz->addWidget(Beschriftung("ReihText", "Reihe :", Reih));
    platz->addWidget(Reih);
    platz->addWidget(ÄReih);
    platz->addSpacing(darunter ? 4 : 12);
    platz->addWidget(Beschriftung("SpalText", "Spalte :", Spal));
    platz->addWidget(Spal);
    platz->addWidget(ÄSpal);
    platz->addStretch();
    auto *etik = new QVBoxLayout(Etik);
    etik->addLayout(platz);
    etik->addWidget(Etiketten, 0, Qt::AlignLeft);

    auto *ganz = new QBoxLayout(darunter ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    ganz->setContentsMargins(0, 0, 0, 0);
    ganz->addWidget(EtiGröß);
    if (!darunter)
        return ganz->addWidget(Etik);
    formate->setVerticalSpacing(2);
    for (QLayout *tafel : {static_cast<QLayout *>(formate), static_cast<QLayout *>(etik)})
        tafel->setContentsMargins(6, 4, 6, 6);
    auto *rechts = new QVBoxLayout;
    rechts->addWidget(Etik);
    rechts->addWidget(darunter, 0, Qt::AlignLeft);
    rechts->addStretch();
    ganz->addLayout(rechts, 1);
}

void Etikettenwahl::Verbinden()
{
    for (std::size_t n = 0; n < O.size(); ++n)
        connect(O[n], &QRadioButton::clicked, this, Abgefangen([this, n] {
                    Etikett.Anzahl = static_cast<int>(n);
                    AufDenBogenHolen();
                }));
    for (const auto &[feld, spin] : {Zahlbox{Reih, ÄReih}, {Spal, ÄSpal}}) {
        DrehenVerbinden({feld, spin});
        PfeiltastenVerbinden(feld, spin);
    }
}

void Etikettenwahl::Füllen()
{
    for (int n = 0; n < static_cast<int>(O.size()); ++n) {
        // An ampersand in a name is a character, not a shortcut.
        O[static_cast<std::size_t>(n)]->setText(Anzeige(Etikett.Name[n]).replace("&", "&&"));
        if (n == Etikett.Anzahl)
            O[static_cast<std::size_t>(n)]->setChecked(true);
    }
    Abgefangen([this] { AufDenBogenHolen(); })();
}

Etikettenplatz Etikettenwahl::Platz() const
{
    return {Stelle(Reih), Stelle(Spal)};
}

/// An empty box means the first row or column.
void Etikettenwahl::AufDenBogenHolen()
{
    for (QLineEdit *feld : {Reih, Spal})
        if (feld->text().isEmpty())
            ZahlSetzen(feld, 1);
    const auto holen = [](QLineEdit *feld, int letzte) {
        Begrenzen(feld, std::min(1, letzte), letzte);
    };
    holen(Reih, Etikett.Reihen[Etikett.Anzahl]);
    holen(Spal, Etikett.Spalten[Etikett.Anzahl]);
}

void Etikettenwahl::Drucken(const Etikettenleute &leute)
{
    Abgefangen([&] {
        const auto weiter = EtikettenDrucken(leute, [this] { return Platz(); });
        if (!weiter)
            return;
        ZahlSetzen(Reih, weiter->Reihe);
        ZahlSetzen(Spal, weiter->Spalte);
        AufDenBogenHolen();
    })();
}

} // namespace altardienst

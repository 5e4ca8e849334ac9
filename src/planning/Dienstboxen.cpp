// The number of servers of a mass and the boxes of its services.
#include "planning/Dienstboxen.h"

#include "controls/Handler.h"

#include <QHBoxLayout>

namespace altardienst {
namespace {

constexpr int MeisteDiener = MesseTabelle::HöchsterSlot;

std::array<Text, Dienstnamen::Boxzahl> Aufschriften(const Dienstnamen &namen)
{
    std::array<Text, Dienstnamen::Boxzahl> texte = {namen.Dienerzahl + Text(namen.Ende)};
    for (std::size_t k = 0; k < Dienstarten.size(); ++k) {
        const bool mehrzahl = &Dienstarten[k] == &Flambeau;
        texte[1 + k] = Text(Dienstarten[k].Name) + (mehrzahl ? "s" : "") + namen.Ende;
    }
    return texte;
}

std::array<Text, Helferzahlboxen::Boxzahl> Aufschriften(const Helferzahlboxen::Namen &namen)
{
    std::array<Text, Helferzahlboxen::Boxzahl> texte;
    for (std::size_t k = 0; k < texte.size(); ++k)
        texte[k] = Text(Helferarten[k].Aufschrift) + namen.Ende;
    return texte;
}

} // namespace

Dienstboxen::Dienstboxen(const Dienstnamen &namen) : texte(Aufschriften(namen))
{
    const auto box = [&](std::size_t k) {
        return ZahlboxAnlegen(namen.Felder[k], namen.Spins[k], texte[k].c_str());
    };
    Dienerzahl = box(0);
    for (std::size_t k = 0; k < Dienste.size(); ++k)
        Dienste[k] = box(1 + k);
    Allgemein = box(1 + Dienste.size());
}

void Dienstboxen::Anordnen(QGridLayout *raster, int zeile, int reihen) const
{
    constexpr int Spalten = 4; // of each: label, box, spin button, a gap
    const auto anordnen = [&](std::size_t k, const Zahlbox &box) {
        const int stelle = static_cast<int>(k);
        const int spalte = stelle / reihen * Spalten;
        ZahlboxAnordnen(raster, zeile + stelle % reihen, spalte, texte[k].c_str(), box);
        if (spalte > 0)
            raster->setColumnMinimumWidth(spalte - 1, 24);
    };
    anordnen(0, Dienerzahl);
    for (std::size_t k = 0; k < Dienste.size(); ++k)
        anordnen(1 + k, Dienste[k]);
    anordnen(1 + Dienste.size(), Allgemein);
}

void Dienstboxen::Verbinden(const std::function<void()> &beiDienerzahl,
                            const std::function<void()> &nachDienst) const
{
    const auto beiÄnderung = [](const Zahlbox &box, const std::function<void()> &handler) {
        QObject::connect(box.Feld, &QLineEdit::textChanged, box.Feld, Abgefangen(handler));
        DrehenVerbinden(box);
    };
    beiÄnderung(Dienerzahl, beiDienerzahl);
    for (std::size_t k = 0; k < Dienste.size(); ++k)
        beiÄnderung(Dienste[k], [this, k, nachDienst] {
            DienstGeändert(k);
            nachDienst();
        });
    beiÄnderung(Allgemein, [this] { AllgemeinGeändert(); });
}

int Dienstboxen::DienerzahlBegrenzen() const
{
    return Begrenzen(Dienerzahl.Feld, 0, MeisteDiener);
}

std::array<QLineEdit *, Dienstnamen::Boxzahl> Dienstboxen::Felder() const
{
    std::array<QLineEdit *, Dienstnamen::Boxzahl> felder = {Dienerzahl.Feld};
    for (std::size_t k = 0; k < Dienste.size(); ++k)
        felder[1 + k] = Dienste[k].Feld;
    felder.back() = Allgemein.Feld;
    return felder;
}

void Dienstboxen::Lesen(Dienstwünsche &wünsche) const
{
    for (std::size_t k = 0; k < Dienste.size(); ++k)
        wünsche[k] = ZahlIn(Dienste[k].Feld);
}

int Dienstboxen::SummeDerDienste() const
{
    int summe = 0;
    for (const Zahlbox &dienst : Dienste)
        summe += ZahlIn(dienst.Feld);
    return summe;
}

void Dienstboxen::DienstGeändert(std::size_t k) const
{
    Begrenzen(Dienste[k].Feld, 0, BesondereDienste[k].Höchstens);
    const int rest = MeisteDiener - SummeDerDienste();
    if (ZahlIn(Allgemein.Feld) > rest)
        ZahlSetzen(Allgemein.Feld, rest);
    ZahlSetzen(Dienerzahl.Feld, SummeDerDienste() + ZahlIn(Allgemein.Feld));
}

void Dienstboxen::AllgemeinGeändert() const
{
    Begrenzen(Allgemein.Feld, 0, MeisteDiener - SummeDerDienste());
    ZahlSetzen(Dienerzahl.Feld, SummeDerDienste() + ZahlIn(Allgemein.Feld));
}

Helferzahlboxen::Helferzahlboxen(const Namen &namen) : texte(Aufschriften(namen))
{
    for (std::size_t k = 0; k < Boxzahl; ++k)
        Boxen[k] = ZahlboxAnlegen(namen.Felder[k], namen.Spins[k], texte[k].c_str());
}

void Helferzahlboxen::Anordnen(QGridLayout *raster, int zeile) const
{
    for (std::size_t k = 0; k < Boxen.size(); ++k)
        ZahlboxAnordnen(raster, zeile + static_cast<int>(k), 0, texte[k].c_str(), Boxen[k]);
}

void Helferzahlboxen::Verbinden() const
{
    for (std::size_t k = 0; k < Boxzahl; ++k) {
        QLineEdit *feld = Boxen[k].Feld;
        const int plätze = PlätzeFür(Helferarten[k]);
        QObject::connect(feld, &QLineEdit::textChanged, feld,
                         Abgefangen([feld, plätze] { Begrenzen(feld, 0, plätze); }));
        DrehenVerbinden(Boxen[k]);
    }
}

std::array<QLineEdit *, Helferzahlboxen::Boxzahl> Helferzahlboxen::Felder() const
{
    std::array<QLineEdit *, Boxzahl> felder;
    for (std::size_t k = 0; k < Boxzahl; ++k)
        felder[k] = Boxen[k].Feld;
    return felder;
}

QLayout *Nebeneinander(const Dienstboxen &dienste, const Helferzahlboxen &helfer)
{
    auto *links = new QGridLayout;
    dienste.Anordnen(links, 0);
    auto *rechts = new QGridLayout;
    helfer.Anordnen(rechts, 0);
    auto *reihe = new QHBoxLayout;
    reihe->setSpacing(36);
    reihe->addLayout(links);
    reihe->addLayout(rechts);
    reihe->setAlignment(rechts, Qt::AlignTop);
    reihe->addStretch();
    return reihe;
}

} // namespace altardienst

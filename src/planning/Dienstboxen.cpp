// The number of servers of a mass and the boxes of its services.
#include "planning/Dienstboxen.h"

#include "controls/Handler.h"

namespace altardienst {
namespace {

constexpr int MeisteDiener = 20;
constexpr int MeisteHelfer = 2; // of one service
constexpr std::array<int, 5> Höchstzahlen = {2, 2, 8, 2, 2};

Zahlbox Box(const Dienstnamen &namen, std::size_t k)
{
    return ZahlboxAnlegen(namen.Felder[k], namen.Spins[k], namen.Texte[k]);
}

} // namespace

Dienstboxen::Dienstboxen(const Dienstnamen &namen)
    : Dienerzahl(Box(namen, 0)), Dienste{Box(namen, 1), Box(namen, 2), Box(namen, 3), Box(namen, 4),
                                         Box(namen, 5)},
      Allgemein(Box(namen, 6)), texte(namen.Texte)
{
}

void Dienstboxen::Anordnen(QGridLayout *raster, int zeile) const
{
    ZahlboxAnordnen(raster, zeile, 0, texte[0], Dienerzahl);
    for (std::size_t k = 0; k < Dienste.size(); ++k)
        ZahlboxAnordnen(raster, zeile + 1 + static_cast<int>(k), 0, texte[k + 1], Dienste[k]);
    ZahlboxAnordnen(raster, zeile + 6, 0, texte[6], Allgemein);
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

std::array<QLineEdit *, 7> Dienstboxen::Felder() const
{
    return {Dienerzahl.Feld, Dienste[0].Feld, Dienste[1].Feld, Dienste[2].Feld,
            Dienste[3].Feld, Dienste[4].Feld, Allgemein.Feld};
}

void Dienstboxen::Lesen(Dienstwünsche &wünsche) const
{
    wünsche.Gabenbereitung = ZahlIn(Dienste[0].Feld);
    wünsche.Leuchter = ZahlIn(Dienste[1].Feld);
    wünsche.Flambeau = ZahlIn(Dienste[2].Feld);
    wünsche.Weihrauch = ZahlIn(Dienste[3].Feld);
    wünsche.Kreuzträger = ZahlIn(Dienste[4].Feld);
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
    Begrenzen(Dienste[k].Feld, 0, Höchstzahlen[k]);
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

Helferzahlboxen::Helferzahlboxen(const Namen &namen)
    : Boxen{ZahlboxAnlegen(namen.Felder[0], namen.Spins[0], namen.Texte[0]),
            ZahlboxAnlegen(namen.Felder[1], namen.Spins[1], namen.Texte[1]),
            ZahlboxAnlegen(namen.Felder[2], namen.Spins[2], namen.Texte[2]),
            ZahlboxAnlegen(namen.Felder[3], namen.Spins[3], namen.Texte[3])},
      texte(namen.Texte)
{
}

void Helferzahlboxen::Anordnen(QGridLayout *raster, int zeile) const
{
    for (std::size_t k = 0; k < Boxen.size(); ++k)
        ZahlboxAnordnen(raster, zeile + static_cast<int>(k), 0, texte[k], Boxen[k]);
}

void Helferzahlboxen::Verbinden() const
{
    for (const Zahlbox &box : Boxen) {
        QObject::connect(box.Feld, &QLineEdit::textChanged, box.Feld,
                         Abgefangen([feld = box.Feld] { Begrenzen(feld, 0, MeisteHelfer); }));
        DrehenVerbinden(box);
    }
}

std::array<QLineEdit *, 4> Helferzahlboxen::Felder() const
{
    return {Boxen[0].Feld, Boxen[1].Feld, Boxen[2].Feld, Boxen[3].Feld};
}

} // namespace altardienst

// Lines and fields of the data files.
#include "core/Zeilen.h"

#include "core/Umwandlung.h"
#include "values/Ansi.h"

#include <algorithm>

namespace altardienst {
namespace {

/// A number without a sign has a blank in its place.
template <class T> void ZahlenzeileAnhängen(std::string &inhalt, T wert)
{
    if (!(wert < 0))
        inhalt += ' ';
    ZahlAnhängen(inhalt, wert);
    inhalt += " \r\n";
}

} // namespace

void Zeilenleser::NichtAmEnde() const
{
    if (rest.empty())
        throw Laufzeitfehler(Laufzeitfehler::HinterDateiende);
}

std::string_view Zeilenleser::Zeile()
{
    NichtAmEnde();
    std::size_t ende = rest.find('\n');
    std::string_view zeile = rest.substr(0, ende);
    rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
    if (zeile.ends_with('\r'))
        zeile.remove_suffix(1);
    return zeile;
}

std::string_view Zeilenleser::Abgegrenzt()
{
    NichtAmEnde();
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    if (rest.starts_with('"')) {
        std::string_view wert = rest.substr(1, rest.substr(1).find('"'));
        rest.remove_prefix(std::min(wert.size() + 2, rest.size()));
        std::size_t ende = rest.find_first_of(",\n");
        rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
        return wert;
    }
    std::size_t ende = rest.find_first_of(",\n");
    if (ende == std::string_view::npos || rest[ende] == '\n')
        return rest.empty() ? std::string_view() : Zeile();
    std::string_view wert = rest.substr(0, ende);
    rest.remove_prefix(ende + 1);
    return wert;
}

void Feldleser::operator()(Text &wert)
{
    AusAnsi((zeilen.*art)(), wert);
}

void Feldleser::operator()(Int16 &wert)
{
    wert = Int16Lesen((zeilen.*art)());
}

void Feldleser::operator()(Int32 &wert)
{
    wert = Int32Lesen((zeilen.*art)());
}

void Feldleser::operator()(Single &wert)
{
    wert = SingleLesen((zeilen.*art)());
}

void Feldleser::operator()(Datum &wert)
{
    wert = DatumLesen((zeilen.*art)());
}

void Feldleser::operator()(Flagfeld feld)
{
    (*this)(feld.Wert);
    if (feld.Wert.empty())
        feld.Wert = feld.Vorgabe;
}

void Feldschreiber::operator()(const Text &wert)
{
    AnsiAnhängen(inhalt, wert);
    inhalt += "\r\n";
}

void Feldschreiber::operator()(Int32 wert)
{
    ZahlenzeileAnhängen(inhalt, wert);
}

void Feldschreiber::operator()(Single wert)
{
    ZahlenzeileAnhängen(inhalt, wert);
}

void Feldschreiber::operator()(Datum wert)
{
    DatumAnhängen(inhalt, wert);
    inhalt += "\r\n";
}

} // namespace altardienst

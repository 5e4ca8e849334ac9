// A printer that records what it is told.
#include "printing/Druckprotokoll.h"

#include "values/Laufzeitfehler.h"

#include <algorithm>
#include <cstdio>

namespace altardienst {
namespace {

Text Zahl(Single zahl)
{
    char ziffern[32];
    std::snprintf(ziffern, sizeof ziffern, "%.9g", static_cast<double>(zahl));
    return ziffern;
}

Text An(bool an)
{
    return an ? "an" : "aus";
}

} // namespace

int Druckprotokoll::WieOft(const Text &zeile) const
{
    return static_cast<int>(std::ranges::count(Zeilen, zeile));
}

void Druckprotokoll::Leeren()
{
    Zeilen.clear();
    y = 0;
}

void Druckprotokoll::Schreiben(const Text &zeile)
{
    Zeilen.push_back(zeile);
    if (static_cast<int>(Zeilen.size()) == FehlerBei)
        throw Laufzeitfehler(Laufzeitfehler::Druckerfehler);
}

std::optional<int> Druckprotokoll::Dialog(const Druckanfrage &anfrage)
{
    Anfrage = anfrage;
    Schreiben("Dialog");
    return Antwort;
}

void Druckprotokoll::FontName(const Text &name)
{
    Schreiben("FontName " + name);
}

void Druckprotokoll::FontSize(int punkte)
{
    Schreiben("FontSize " + std::to_string(punkte));
    größe = static_cast<Single>(punkte);
}

void Druckprotokoll::FontSizeFein(Single punkte)
{
    Schreiben("FontSizeFein " + Zahl(punkte));
    größe = punkte;
}

Single Druckprotokoll::TextWidth(const Text &text) const
{
    return static_cast<Single>(Länge(text)) * 10 * größe;
}

void Druckprotokoll::FontBold(bool an)
{
    Schreiben("FontBold " + An(an));
}

void Druckprotokoll::FontItalic(bool an)
{
    Schreiben("FontItalic " + An(an));
}

void Druckprotokoll::FontStrikethru(bool an)
{
    Schreiben("FontStrikethru " + An(an));
}

void Druckprotokoll::FontUnderline(bool an)
{
    Schreiben("FontUnderline " + An(an));
}

void Druckprotokoll::CurrentX(Single x)
{
    Schreiben("CurrentX " + Zahl(x));
}

void Druckprotokoll::CurrentY(Single neu)
{
    Schreiben("CurrentY " + Zahl(neu));
    y = neu;
}

void Druckprotokoll::Orientation(int richtung)
{
    Schreiben("Orientation " + std::to_string(richtung));
}

void Druckprotokoll::Print(const Text &text)
{
    Schreiben("Print \"" + text + "\"");
    y += Zeilenhöhe;
}

void Druckprotokoll::Line(const Druckstrich &strich)
{
    Schreiben("Line " + Zahl(strich.VonX) + " " + Zahl(strich.VonY) + " " + Zahl(strich.BisX) +
              " " + Zahl(strich.BisY) + (strich.Gestrichelt ? " gestrichelt" : ""));
}

void Druckprotokoll::Picture(const Druckbild &)
{
    Schreiben("Picture");
}

void Druckprotokoll::NewPage()
{
    Schreiben("NewPage");
    y = 0;
}

void Druckprotokoll::EndDoc()
{
    Schreiben("EndDoc");
    y = 0;
}

void Druckprotokoll::Verwerfen()
{
    Schreiben("Verwerfen");
}

Ablauf &Ablauf::Tut(const Text &operation)
{
    Zeilen.push_back(operation);
    return *this;
}

Ablauf &Ablauf::Zeile(const Text &text)
{
    return Tut("CurrentX 1000").Tut("Print \"" + text + "\"");
}

Ablauf &Ablauf::Leerzeile()
{
    return Tut("Print \"\"");
}

Ablauf &Ablauf::Eröffnung(const std::vector<Text> &titel)
{
    for (const char *operation :
         {"FontSize 14", "FontName Liberation Sans", "FontBold an", "FontItalic aus",
          "FontStrikethru aus", "FontUnderline an", "CurrentY 600"})
        Tut(operation);
    Mehrere(titel).Zeile("");
    return Tut("FontSize 10").Tut("FontBold aus").Tut("FontUnderline aus");
}

Ablauf &Ablauf::Mehrere(const std::vector<Text> &zeilen)
{
    for (const Text &zeile : zeilen)
        Zeile(zeile);
    return *this;
}

} // namespace altardienst

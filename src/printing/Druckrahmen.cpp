// What all reports share: the margins, the opening, the lines, and the page break rule.
#include "printing/Druckrahmen.h"

#include "core/tables.h"

namespace altardienst {

Single LinkerRand()
{
    return Konfig.RandLinks * Konfig.XSkala;
}

Single ObererRand()
{
    return Konfig.RandOben * Konfig.YSkala;
}

Single UntereGrenze()
{
    return Drucker->Height() - Konfig.RandUnten * Konfig.YSkala;
}

void BerichtDrucken(const Druckanfrage &anfrage, const std::function<void(int modus)> &bericht)
{
    try {
        if (const std::optional<int> modus = Drucker->Dialog(anfrage))
            bericht(*modus);
    } catch (const Laufzeitfehler &) {
        Drucker->Verwerfen();
    }
}

void BerichtEröffnen(const std::vector<Text> &titel, Titelschrift schrift)
{
    Drucker->FontSize(Konfig.Überschriftgröße);
    if (schrift == Titelschrift::AusKonfig)
        Drucker->FontName(Konfig.Schriftart);
    Drucker->FontBold(true);
    Drucker->FontItalic(false);
    Drucker->FontStrikethru(false);
    Drucker->FontUnderline(true);
    Drucker->CurrentY(ObererRand());
    for (const Text &zeile : titel)
        ZeileDrucken(zeile);
    ZeileDrucken("");
    Drucker->FontSize(Konfig.Schriftgröße);
    Drucker->FontBold(false);
    Drucker->FontUnderline(false);
}

void Grundschrift()
{
    Drucker->FontSize(Konfig.Schriftgröße);
    Drucker->FontName(Konfig.Schriftart);
    Drucker->FontBold(false);
    Drucker->FontItalic(false);
    Drucker->FontStrikethru(false);
    Drucker->FontUnderline(false);
}

void ZeileDrucken(const Text &text)
{
    Drucker->CurrentX(LinkerRand());
    Drucker->Print(text);
}

void Leerzeile()
{
    Drucker->Print("");
}

void SeitePrüfen(Int16 &Zeilen, double k)
{
    if (Zeilen == 0)
        throw Laufzeitfehler(Laufzeitfehler::DivisionDurchNull);
    const double y = Drucker->CurrentY();
    const double schätzung = y * (Zeilen + k) / Zeilen;
    if (!(schätzung > UntereGrenze()))
        return;
    Drucker->NewPage();
    Drucker->CurrentY(ObererRand());
    Zeilen = 0;
}

} // namespace altardienst

// Many files into one directory, each whole or not at all.
#include "exchange/Dateiablage.h"

#include "platform/GanzSchreiben.h"
#include "platform/Laufwerke.h"
#include "values/Laufzeitfehler.h"

namespace altardienst {

Ablage Ablegen(const std::filesystem::path &verzeichnis,
               const std::vector<AbzulegendeDatei> &dateien)
{
    Ablage ablage;
    for (const AbzulegendeDatei &datei : dateien) {
        try {
            GanzSchreiben(verzeichnis / PfadAus(datei.Name), datei.Bytes);
            ++ablage.Geschrieben;
        } catch (const Laufzeitfehler &fehler) {
            if (ablage.IstGanz())
                ablage.Warum = fehler.what();
            ablage.Misslungene.push_back(datei.Name);
        }
    }
    return ablage;
}

std::vector<Text> FremdeDateien(const std::filesystem::path &verzeichnis,
                                const std::vector<AbzulegendeDatei> &dateien,
                                bool (*eigene)(std::string_view))
{
    const auto istFremd = [&](const Text &name) {
        try {
            return !eigene(Laufwerke.Lesen(verzeichnis / PfadAus(name)));
        } catch (const Laufzeitfehler &) {
            return true;
        }
    };
    std::vector<Text> fremde;
    for (const AbzulegendeDatei &datei : dateien)
        if (const auto vorhanden = Laufwerke.Suchen(verzeichnis, datei.Name);
            vorhanden && istFremd(*vorhanden))
            fremde.push_back(*vorhanden);
    return fremde;
}

} // namespace altardienst

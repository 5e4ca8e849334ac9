// The plan as a plain text file.
#include "printing/Textexport.h"

#include "core/tables.h"
#include "platform/Laufwerke.h"
#include "printing/PlanZeilen.h"
#include "values/Ansi.h"

namespace altardienst {

Exportziel PfadBilden(const std::filesystem::path &verzeichnis, const Text &name)
{
    Exportziel ziel;
    ziel.Ordner = OrdnerText(verzeichnis);
    ziel.NurName = (name.empty() ? "Datei" : name) + ".txt";
    ziel.VollerPfad = ziel.Ordner + ziel.NurName;
    return ziel;
}

bool ZielVorhanden(const Exportziel &ziel)
{
    auto gefunden = Laufwerke.Suchen(PfadAus(ziel.Ordner), ziel.NurName);
    return gefunden && Klein(*gefunden) == Klein(ziel.NurName);
}

std::filesystem::path ZielDatei(const Exportziel &ziel)
{
    const auto ordner = PfadAus(ziel.Ordner);
    return ordner / PfadAus(Laufwerke.Suchen(ordner, ziel.NurName).value_or(ziel.NurName));
}

Text ExportSatz(const std::filesystem::path &datei, bool angehängt)
{
    return angehängt ? "Plan als Text an " + TextVon(datei) + " angehängt"
                     : "Plan als Text nach " + TextVon(datei) + " geschrieben";
}

std::string PlanAlsText()
{
    std::string bytes;
    auto zeile = [&](const Text &text) {
        AnsiAnhängen(bytes, text);
        bytes += "\r\n";
    };
    for (int i = 0; i < Messe.Anzahl; ++i) {
        if (i == 0) {
            zeile(PlanTitel());
            zeile(PlanZeitraum());
            zeile("");
        }
        PlanZeilen plan = PlanZeilenDer(i);
        zeile(plan.Überschrift);
        for (const Text &diener : plan.Diener)
            zeile(diener);
        for (const Text &helfer : plan.Helfer)
            zeile(helfer);
        zeile("");
    }
    return bytes;
}

} // namespace altardienst

// The fixture of the tests of earlier states: a small parish on the disk, and the net, which is put
// away after each test.
#pragma once

#include "Prüfstand.h"
#include "core/Allgemein.h"
#include "history/Netz.h"

#include <algorithm>

namespace altardienst {

class Netzstand : public Prüfstand {
  protected:
    ~Netzstand() override { NetzEinholen(); }

    /// A parish whose tables show how often it was saved.
    static void Gemeinde(int ausgabe)
    {
        TabellenLeeren();
        Konfig.Gemeinde = "St. Ägid " + std::to_string(ausgabe);
        Konfig.Tage = 28;
        MeßdienerAnlegen("Kim", "Adler" + std::to_string(ausgabe));
        MeßdienerAnlegen("Jan", "Busch");
        HelferAnlegen("Maria", "Linde", "Lektor");
        MesseMitDienern(DatumAus({2026, 11, 22}), 4);
        Gruppe.Anzahl = 1;
        Gruppe.Bezeichnung[0] = "Große " + std::to_string(ausgabe);
    }

    void GemeindeSpeichern(int ausgabe)
    {
        Gemeinde(ausgabe);
        AufFestplatteSpeichern();
    }

    /// A new run of the program.
    void Neustart()
    {
        NetzEinholen();
        TabellenLeeren();
        ++Sekunden;
        NetzSpannen();
        VonFestplatteLaden();
    }

    std::filesystem::path Stände() const { return Festplatte / PfadAus("Stände"); }

    /// The names in the directory of the states.
    std::vector<Text> Namen() const
    {
        std::vector<Text> namen;
        if (std::filesystem::is_directory(Stände()))
            for (const auto &eintrag : std::filesystem::directory_iterator(Stände()))
                namen.push_back(TextVon(eintrag.path().filename()));
        std::ranges::sort(namen);
        return namen;
    }

    Standinhalt AufDerPlatte() const { return InhaltVon(Festplatte); }
    static Standinhalt ImNeuesten() { return InhaltVon(AlleStände().back().Ort); }

    static Standinhalt InhaltDerGemeinde(int ausgabe)
    {
        const TabellenBeiseite beiseite;
        Gemeinde(ausgabe);
        return InhaltDerTabellen();
    }
};

} // namespace altardienst

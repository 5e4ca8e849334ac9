// The fixture of the net's tests: a parish on the hard disk, a program that starts, saves and ends.
#pragma once

#include "history/Netz.h"

#include "core/Ladebericht.h"
#include "core/SchleifenZähler.h"
#include "history/Aufräumen.h"
#include "history/Marke.h"
#include "history/Netzstand.h"
#include "platform/Einzellauf.h"

#ifndef _WIN32
#include <unistd.h>
#endif

namespace altardienst {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

class NetzTest : public Netzstand {
  protected:
    NetzTest() { GemeindeSpeichern(1); }

    Text Wort(const char *name) const { return DateiLesen(Festplatte / PfadAus(name)); }

    /// From the nth write into one of the eight files on, or into any, the disk is full.
    void DatenträgerFüllen(int ab, bool überall = false)
    {
        const auto schreiben = Laufwerke.Schreiben;
        Laufwerke.Schreiben = [this, schreiben, ab, überall,
                               zahl = 0](const fs::path &pfad, std::string_view bytes) mutable {
            if ((überall || pfad.parent_path() == Festplatte) && ++zahl >= ab) {
                schreiben(pfad, bytes.substr(0, bytes.size() / 3));
                throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
            }
            schreiben(pfad, bytes);
        };
    }

    /// It has room again, for this run and for the next.
    void PlatzSchaffen()
    {
        NetzEinholen();
        Laufwerke.Schreiben = Systemlaufwerke().Schreiben;
        ++Sekunden;
        NetzSpannen();
    }

    /// The mark of this run becomes that of one that was killed.
    void MarkeVonEinemAnderen() const { fs::rename(Marke(), Stände() / "Speichern 17"); }

    /// A run that was killed at the nth file of a save; before it the disk held this issue.
    void AbbrechenBei(int n, int davor = 2)
    {
        NetzSpannen();
        GemeindeSpeichern(davor);
        Gemeinde(davor + 1);
        DatenträgerFüllen(n); // in front of the net, which sees no failure
        EXPECT_EQ(NummerDesFehlers([] { AufFestplatteSpeichern(); }), 61);
        MarkeVonEinemAnderen();
        NetzEinholen();
        Laufwerke.Schreiben = Systemlaufwerke().Schreiben;
    }

    static bool HatStand(const Standinhalt &inhalt)
    {
        const auto stände = AlleStände();
        return std::ranges::any_of(
            stände, [&](const Stand &stand) { return InhaltVon(stand.Ort) == inhalt; });
    }

    /// While it stands, the groups' file cannot be read, wherever it is.
    class Unlesbar {
      public:
        Unlesbar() : lesen(Laufwerke.Lesen)
        {
            Laufwerke.Lesen = [this](const fs::path &pfad) {
                if (pfad.filename() == "Gruppen.dat")
                    throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
                return lesen(pfad);
            };
        }
        ~Unlesbar() { Laufwerke.Lesen = lesen; }
        Unlesbar(const Unlesbar &) = delete;
        Unlesbar &operator=(const Unlesbar &) = delete;

      private:
        std::function<std::string(const fs::path &)> lesen;
    };
};

} // namespace altardienst

// What a load has done, seen from outside.
#include "core/Ladebericht.h"

#include "core/Allgemein.h"
#include "platform/Laufwerke.h"

#include <utility>

namespace altardienst {
namespace {

using std::filesystem::path;

/// The settings, the standard masses and the header of the servers: all that is read from it.
constexpr std::size_t DateienVonDiskette = 3;

/// While it lives, each file that is read and each directory that is made is noted in the report,
/// but for what others do as soon as the tables are loaded.
class Beobachtung {
  public:
    explicit Beobachtung(Ladebericht &bericht)
        : lesen(std::exchange(Laufwerke.Lesen, nullptr)),
          anlegen(std::exchange(Laufwerke.VerzeichnisAnlegen, nullptr)),
          geladen(std::exchange(TabellenGeladen, nullptr))
    {
        TabellenGeladen = [this] {
            auto mitschrift = std::exchange(Laufwerke.Lesen, lesen);
            geladen();
            Laufwerke.Lesen = std::move(mitschrift);
        };
        Laufwerke.Lesen = [this, &bericht](const path &datei) {
            bericht.Zuletzt = TextVon(datei.filename());
            std::string inhalt = lesen(datei);
            bericht.Gelesen.push_back(bericht.Zuletzt);
            return inhalt;
        };
        Laufwerke.VerzeichnisAnlegen = [this, &bericht](const path &verzeichnis) {
            if (verzeichnis == Laufwerke.Programmverzeichnis())
                bericht.Abgebrochen = true;
            anlegen(verzeichnis);
        };
    }
    ~Beobachtung()
    {
        Laufwerke.Lesen = std::move(lesen);
        Laufwerke.VerzeichnisAnlegen = std::move(anlegen);
        TabellenGeladen = std::move(geladen);
    }
    Beobachtung(const Beobachtung &) = delete;
    Beobachtung &operator=(const Beobachtung &) = delete;

  private:
    std::function<std::string(const path &)> lesen;
    std::function<void(const path &)> anlegen;
    std::function<void()> geladen;
};

Text AbgebrochenBei(const Text &datei)
{
    return "nicht alles geladen: bei " + datei + " abgebrochen";
}

} // namespace

Ladebericht LadenMitBericht(const std::function<void()> &laden)
{
    Ladebericht bericht;
    const Beobachtung beobachtung(bericht);
    laden();
    return bericht;
}

Text Festplattenbericht(const Ladebericht &bericht)
{
    return bericht.Abgebrochen ? AbgebrochenBei(bericht.Zuletzt) : "geladen";
}

Text Diskettenbericht(const Ladebericht &bericht)
{
    if (bericht.Gelesen.empty())
        return "";
    return bericht.Gelesen.size() == DateienVonDiskette
               ? "Einstellungen und Standardmessen von Diskette geladen"
               : "von Diskette " + AbgebrochenBei(bericht.Zuletzt);
}

} // namespace altardienst

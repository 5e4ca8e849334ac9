// What the menus and keys of the main window do.
#include "shell/Hauptbefehle.h"

#include "application/Anwendung.h"
#include "application/Mitteilung.h"
#include "controls/Handler.h"
#include "core/Allgemein.h"
#include "core/Ladebericht.h"
#include "core/Umwandlung.h"
#include "exchange/Aushang.h"
#include "fairness/Archiv.h"
#include "history/Netz.h"
#include "history/Rückgängig.h"
#include "platform/Meldungen.h"
#include "printing/Plandruck.h"

#include <QApplication>

#include <functional>

namespace altardienst {
namespace {

void Enden(int ergebnis)
{
    AlleFormenEntladen();
    QApplication::exit(ergebnis);
}

/// While it stands, `vorher` runs as soon as a question whose Ja overwrites something is answered
/// by it.
class BeiJa {
  public:
    explicit BeiJa(const std::function<void()> &vorher) : fragen(Meldungen.FragenVorVerlust)
    {
        Meldungen.FragenVorVerlust = [this, vorher](const Text &text, const Text &titel) {
            const bool ja = fragen(text, titel);
            if (ja)
                vorher();
            return ja;
        };
    }
    ~BeiJa() { Meldungen.FragenVorVerlust = fragen; }
    BeiJa(const BeiJa &) = delete;
    BeiJa &operator=(const BeiJa &) = delete;

  private:
    decltype(Meldungen.FragenVorVerlust) fragen;
};

} // namespace

bool SpeichernOderEnden()
{
    try {
        AufFestplatteSpeichern();
    } catch (const Laufzeitfehler &fehler) {
        SpeichernIstGescheitert();
        Meldungen.Zeigen(fehler.Meldung());
        Enden(fehler.Nummer());
        return false;
    }
    Mitteilen("gespeichert");
    return true;
}

void Beenden()
{
    if (SpeichernOderEnden())
        Enden(0);
}

void FestplatteLaden()
{
    Schritt("Daten von der Festplatte laden",
            [] { Mitteilen(Festplattenbericht(LadenMitBericht(VonFestplatteLaden))); });
}

void DisketteLaden()
{
    const BeiJa sichern(VorWechselSichern);
    Schritt("Daten von der Diskette laden", [] {
        const Text bericht = Diskettenbericht(LadenMitBericht(VonDisketteLaden));
        if (!bericht.empty())
            Mitteilen(bericht);
    });
}

void PlanAufheben()
{
    try {
        PlanArchivieren();
    } catch (const Laufzeitfehler &fehler) {
        Mitteilen(Text("Plan nicht im Archiv: ") + fehler.what());
    }
}

void ImArchivNachziehen(const Personenname &alt, const Personenname &neu, bool helfer)
{
    if (const int dateien = ImArchivUmbenennen(alt, neu, helfer); dateien > 0)
        Mitteilen("alter Name noch im Archiv: " + ZahlText(dateien) +
                  (dateien == 1 ? " Datei ist" : " Dateien sind") + " nicht zu ändern");
}

void AushangAbgeben()
{
    VorDemPlandruck();
    if (const Text was = AushangDrucken(); !was.empty())
        Mitteilen(was);
}

void DisketteSpeichern()
{
    Abgefangen([] {
        AufDisketteSpeichern();
        Mitteilen("auf Diskette gespeichert");
    })();
}

} // namespace altardienst

// A small model of a form's boxes for the random walks: texts by control name and the rules that
// run when a text changes, written independently from what the boxes promise.
#pragma once

#include "Fensterstand.h"
#include "core/Umwandlung.h"
#include "platform/Uhr.h"

#include <QCoreApplication>

#include <map>
#include <random>

namespace altardienst {

inline Text Heutiges()
{
    return KurzesDatum(Uhr.Heute());
}

/// Skips a failing statement, as the handlers of the boxes do.
template <class F> void Versuch(F f)
{
    try {
        f();
    } catch (const Laufzeitfehler &) {
    }
}

class Modellschirm {
  public:
    std::map<Text, Text> Texte;
    std::map<Text, std::function<void()>> Regeln;
    std::vector<Text> Meldungen; // that should have been shown

    void Setzen(const Text &box, const Text &text)
    {
        if (Texte[box] == text)
            return;
        Texte[box] = text;
        if (auto regel = Regeln.find(box); regel != Regeln.end())
            regel->second();
    }

    Datum DatumIn(const Text &box) { return DatumLesen(Texte[box]); }

    void Offen(const std::function<void()> &f)
    {
        try {
            f();
        } catch (const Laufzeitfehler &fehler) {
            Meldungen.push_back(fehler.Meldung());
        }
    }

    void Datumsregel(const Text &box)
    {
        Regeln[box] = [this, box] { Umschreiben(box); };
    }

    void Umschreiben(const Text &box)
    {
        Versuch([&] { Setzen(box, KurzesDatum(DatumIn(box))); });
    }

    void JahresregelAnwenden(const Text &box, int höchstens)
    {
        Versuch([&] {
            const int jahre = KalendertagVon(Uhr.Heute()).Jahr - KalendertagVon(DatumIn(box)).Jahr;
            if (jahre > höchstens)
                Setzen(box, Heutiges());
        });
    }

    void Zeitraumregel(int nummer)
    {
        const Text anhang = nummer == 1 ? Text() : std::to_string(nummer);
        const Text start = "Start" + anhang;
        const Text schluß = "Schluß" + anhang;
        const auto ordnen = [=, this] {
            Versuch([&] {
                if (DatumIn(schluß) < DatumIn(start))
                    Setzen(schluß, Texte[start]);
            });
        };
        const auto leer = [=, this](const Text &box) {
            if (nummer > 1 && Texte[box].empty())
                Setzen(box, Heutiges());
        };
        Regeln[start] = [=, this] {
            Umschreiben(start);
            JahresregelAnwenden(start, 2);
            ordnen();
            leer(start);
        };
        Regeln[schluß] = [=, this] {
            Umschreiben(schluß);
            ordnen();
            leer(schluß);
        };
    }

    /// Steps a date box once; `einheit` 0 day, 1 month, 2 year.
    void Schritt(const Text &box, int einheit, int richtung)
    {
        Versuch([&] {
            const Datum alt = DatumIn(box);
            Setzen(box,
                   KurzesDatum(einheit == 0
                                   ? alt + richtung
                                   : MonateWeiter(alt, einheit == 1 ? richtung : 12 * richtung)));
        });
    }

    void Klemmen(const Text &box, int von, int bis)
    {
        Versuch([&] {
            const Single zahl = SingleLesen(Texte[box]);
            if (zahl < von || zahl > bis)
                Setzen(box, ZahlText(zahl < von ? von : bis));
        });
    }

    void PostleitzahlVerlassen(const Text &box)
    {
        Versuch([&] {
            const Single zahl = SingleLesen(Texte[box]);
            if (zahl < 0)
                Setzen(box, "0");
            else if (zahl > 99999)
                Setzen(box, Links(Konfig.PlzOrt, 5));
        });
    }

    /// The number rule of the three editors.
    void NummerBegrenzen(const Text &box, int letzter, int anzahl)
    {
        Versuch([&] {
            if (SingleLesen(Texte[box]) < 0)
                Setzen(box, "0");
            if (SingleLesen(Texte[box]) > letzter)
                Setzen(box, ZahlText(letzter));
            if (SingleLesen(Texte[box]) > anzahl + 1)
                Setzen(box, ZahlText(anzahl));
        });
    }

    /// What a save makes from a text: T text, L and N whole numbers, D date. Fails as the save
    /// does.
    static Text Gespeichert(char art, const Text &text)
    {
        switch (art) {
        case 'L':
            return ZahlText(Int32Lesen(text));
        case 'N':
            return ZahlText(Int16Lesen(text));
        case 'D':
            return KurzesDatum(DatumLesen(text));
        default:
            return text;
        }
    }
};

/// A field of a record as its box shows it.
inline Text Feldtext(const Text &feld)
{
    return feld;
}
inline Text Feldtext(Int16 feld)
{
    return ZahlText(feld);
}
inline Text Feldtext(Int32 feld)
{
    return ZahlText(feld);
}
inline Text Feldtext(Datum feld)
{
    return KurzesDatum(feld);
}
inline Text Feldtext(const Flagfeld &feld)
{
    return feld.Wert;
}

/// All fields of record `i` of a table.
template <class Tabelle> std::vector<Text> Datensatz(Tabelle &t, int i)
{
    std::vector<Text> felder;
    FürJedesFeld(t.Felder(), i, [&](const auto &feld) { felder.push_back(Feldtext(feld)); });
    return felder;
}

/// All records of a table, including the scratch record.
template <class Tabelle> std::vector<std::vector<Text>> AlleDatensätze(Tabelle &t)
{
    std::vector<std::vector<Text>> alle;
    for (int i = 0; i <= Tabelle::HöchsterIndex; ++i)
        alle.push_back(Datensatz(t, i));
    return alle;
}

/// Draws the steps of a walk, which runs without an event loop.
class Wanderer {
  public:
    explicit Wanderer(unsigned saat) : würfel(saat) {}

    int Wurf(int n) { return static_cast<int>(würfel() % static_cast<unsigned>(n)); }
    const char *Eines(const std::vector<const char *> &aus)
    {
        return aus[static_cast<std::size_t>(Wurf(static_cast<int>(aus.size())))];
    }

    static void Aufräumen() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  private:
    std::mt19937 würfel;
};

} // namespace altardienst

// The fixture of the tests of the fixed entries' dialogs.
#pragma once

#include "Formstand.h"
#include "application/Anwendung.h"
#include "core/Umwandlung.h"
#include "fixed/FesteEinträge.h"
#include "fixed/MesseDienerFestForm.h"
#include "fixed/NeuMesseDienerFestForm.h"
#include "planning/Messenbild.h"

namespace altardienst {

using Liste = std::vector<Text>;

/// 24 servers "Abel,Kim" to "Zoller,Kim", two groups, and four masses of 4, 2, 20 and 3 servers.
/// Today is Saturday, 21.11.2026, 12:00.
class Zuordnungsstand : public Formstand<> {
  protected:
    Zuordnungsstand()
    {
        FesteZuordnungOffen = false;
        for (const char *name :
             {"Abel",  "Bauer", "Conrad", "Dahl",  "Ebert",  "Funk", "Groß", "Höß",
              "Imhof", "Jung",  "Klein",  "Lenz",  "Maurer", "Noll", "Otto", "Pohl",
              "Quast", "Roth",  "Seif",   "Thiel", "Unger",  "Vogt", "Wolf", "Zoller"})
            MeßdienerAnlegen("Kim", name);
        Gruppe.Bezeichnung[0] = "Tarzisius";
        Gruppe.Bezeichnung[1] = "Agnes";
        Gruppe.Anzahl = 2;
        Anlegen(Sonntag, 10, 4, "Hochamt");
        Messe.Gabenbereitung[0] = 1;
        Messe.Leuchter[0] = 2;
        Anlegen(Sonntag, 18, 2, "Abendmesse");
        Messe.Flambeau[1] = 1;
        Anlegen(Sonntag + 1, 8, 20, "");
        Messe.Weihrauch[2] = 2;
        Anlegen(Sonntag + 2, 8, 3, "Taufe, klein");
    }

    const Datum Sonntag = DatumAus({2026, 11, 22});

    static int Anlegen(Datum datum, int stunde, int diener, const Text &art)
    {
        const int m = MesseMitDienern(datum, diener, ZeitAus(stunde * 3600));
        Messe.Messeart[m] = art;
        return m;
    }

    /// Makes entry `k` for mass `m`: these surnames from slot 1 on.
    static void Fest(int k, int m, const Liste &namen = {})
    {
        MesseDienerFest.Datum[k] = Messe.Datum[m];
        MesseDienerFest.Uhrzeit[k] = Messe.Uhrzeit[m];
        for (std::size_t n = 0; n < namen.size(); ++n) {
            MesseDienerFest.Nachname[k][static_cast<int>(n + 1)] = namen[n];
            MesseDienerFest.Vorname[k][static_cast<int>(n + 1)] = namen[n].empty() ? "" : "Kim";
        }
        MesseDienerFest.Anzahl = std::max<int>(MesseDienerFest.Anzahl, k + 1);
    }

    void ListeÖffnen()
    {
        DialogÖffnen<MesseDienerFestForm>();
        form = Fenster("MesseDienerFest");
        Zeigen(form);
    }
    void NeuÖffnen()
    {
        form = new NeuMesseDienerFestForm;
        DialogÖffnen(form);
        Zeigen(form);
    }

    static Text Nr(const char *stamm, int nummer) { return stamm + ZahlText(nummer); }

    QComboBox *MDiener(int i) const { return Finden<QComboBox>(Nr("MDiener", i)); }
    Text Gewählt(int i) const { return Zeigt(MDiener(i)); }
    Text Messentext() const { return Zeigt("Messen"); }

    /// Puts a text into a slot or into `Messen` without leaving it.
    void Einsetzen(int i, const Text &text) const { Einsetzen(MDiener(i), text); }
    using Formstand::Einsetzen;
    void MesseEinsetzen(const Text &text) const { Einsetzen("Messen", text); }

    /// Moves the focus to a control without a handler for being left.
    void Verlassen() const { FokusAuf(knopf); }

    void Wählen(int i, const Text &text) const
    {
        FokusAuf(MDiener(i));
        Einsetzen(i, text);
        Verlassen();
    }
    void MesseWählen(const Text &text) const
    {
        FokusAuf("Messen");
        MesseEinsetzen(text);
        Verlassen();
    }

    /// "Vorname|Nachname" next to a slot, and in the table.
    Text Name(int i) const { return Zeigt(Nr("MDV", i)) + "|" + Zeigt(Nr("MDN", i)); }
    static Text Gespeichert(int k, int slot)
    {
        return MesseDienerFest.Vorname[k][slot] + "|" + MesseDienerFest.Nachname[k][slot];
    }
    static Text Termin(int k)
    {
        return DatumText(MesseDienerFest.Datum[k]) + "," + DatumText(MesseDienerFest.Uhrzeit[k]);
    }

    Text Dienst(int i) const { return Zeigt(Nr("ME", i)); }
    Text AmUm() const { return Zeigt("DatumD") + "," + Zeigt("Zeitd"); }

    /// How many rows of slots are visible; they are contiguous from the first one on.
    int Zeilen() const
    {
        int zahl = 0;
        while (zahl < 20 && Finden(Nr("ME", zahl + 1))->isVisible())
            ++zahl;
        for (int i = 1; i <= 20; ++i)
            for (const char *stamm : {"ME", "MDiener", "MDV", "MDN"})
                EXPECT_EQ(Finden(Nr(stamm, i))->isVisible(), i <= zahl) << stamm << i;
        return zahl;
    }

    const char *knopf = "OKbutton";
    const Text Fehleingabe = "FEHLEINGABE!!!";
    const Text Unbekannt = "Messe ist unbekannt!! Auswählen oder neu eingeben!!";
};

/// The two dialogs, which share their fields: `Name` is the one on the screen.
enum class Dialog { MesseDienerFest, NeuMesseDienerFest };

class BeideZuordnungen : public Zuordnungsstand, public ::testing::WithParamInterface<Dialog> {
  protected:
    /// Opens on mass 0: an entry without names, or the proposal.
    void Öffnen()
    {
        if (IstListe()) {
            Fest(0, 0);
            ListeÖffnen();
        } else {
            knopf = "Anfügen";
            NeuÖffnen();
            Verlassen(); // `Messen`, which has the focus first
        }
    }

    static bool IstListe() { return GetParam() == Dialog::MesseDienerFest; }
};

inline auto BeideDialoge()
{
    return ::testing::Values(Dialog::MesseDienerFest, Dialog::NeuMesseDienerFest);
}

inline Text Dialogname(const ::testing::TestParamInfo<Dialog> &wert)
{
    return wert.param == Dialog::MesseDienerFest ? "MesseDienerFest" : "NeuMesseDienerFest";
}

} // namespace altardienst

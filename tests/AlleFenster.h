// The windows with boxes to fill in, each opened on one small parish, for what holds for all of
// them.
#pragma once

#include "Fensterstand.h"
#include "core/Allgemein.h"
#include "fairness/AusgleichForm.h"
#include "fixed/MesseDienerFestForm.h"
#include "fixed/NeuMesseDienerFestForm.h"
#include "people/GruppeForm.h"
#include "people/HelferForm.h"
#include "people/MeßdienerForm.h"
#include "people/NeuGruppeForm.h"
#include "people/NeuMeßdienerForm.h"
#include "people/NeuerHelferForm.h"
#include "people/Personen.h"
#include "planning/LektorrenuswForm.h"
#include "planning/MessenlisteForm.h"
#include "planning/NeuMesseForm.h"
#include "planning/StandardmessenForm.h"
#include "platform/Drucker.h"
#include "printing/DruckForm.h"
#include "printing/Druckprotokoll.h"
#include "printing/EtikettenForm.h"
#include "settings/KonfigurationForm.h"
#include "settings/KopierForm.h"
#include "settings/SkalierungForm.h"
#include "settings/ZusatzKonfigForm.h"
#include "shell/StartForm.h"

#include "anniversaries/JubiGebuForm.h"

#include <utility>

namespace altardienst {

class AlleFenster : public Fensterstand {
  protected:
    AlleFenster() : zuvor(std::exchange(Drucker, &Papier))
    {
        for (const char *name : {"Rot", "Blau", "Grün"})
            GruppeAnlegen(name);
        for (const auto &[vor, nach] :
             {std::pair{"Anna", "Adler"}, {"Bea", "Berg"}, {"Cem", "Cohn"}}) {
            const int i = MeßdienerAnlegen(vor, nach);
            Meßdiener.Gruppe[i] = "Rot";
            Meßdiener.Geburtstag[i] = Meßdiener.Eintrittsdatum[i] = Heute;
            Helfer.Geburtstag[HelferAnlegen(vor, nach, "Lektor")] = Heute;
            MesseMitDienern(Heute + 7 + i, 3);
        }
        Konfig.PlzOrt = "48999 Beispielort";
        Konfig.Tage = 28;
        Konfig.StartDatum = Heute + 7;
        AufFestplatteSpeichern(); // which the start dialog reads
    }

    ~AlleFenster() override { Drucker = zuvor; }

    static const std::vector<Text> &Namen()
    {
        static const std::vector<Text> namen = {
            "Meßdiener",  "NeuMeßdiener",    "Helfer",          "NeuerHelfer",
            "Gruppe",     "NeuGruppe",       "Standardmessen",  "Messenliste",
            "NeuMesse",   "Lektorrenusw",    "MesseDienerFest", "NeuMesseDienerFest",
            "Start",      "Konfiguration",   "ZusatzKonfig",    "Skalierung",
            "Etiketten",  "Druck",           "JubiGebu",        "Datensicherung",
            "Dateikopie", "DateienKopieren", "Ausgleich"};
        return namen;
    }

    /// Shows the window with that name.
    QWidget *Öffnen(const Text &name)
    {
        QWidget *form = Machen(name);
        Zeigen(form);
        return form;
    }

    Druckprotokoll Papier;

  private:
    QWidget *Machen(const Text &name)
    {
        const auto nichts = [](bool) {};
        if (name == "Meßdiener")
            return new MeßdienerForm;
        if (name == "NeuMeßdiener")
            return new NeuMeßdienerForm(nichts);
        if (name == "Helfer")
            return new HelferForm;
        if (name == "NeuerHelfer")
            return new NeuerHelferForm(nichts);
        if (name == "Gruppe")
            return new GruppeForm;
        if (name == "NeuGruppe")
            return new NeuGruppeForm(nichts);
        if (name == "Standardmessen")
            return new StandardmessenForm;
        if (name == "Messenliste")
            return new MessenlisteForm;
        if (name == "NeuMesse")
            return new NeuMesseForm(*(new MessenlisteForm));
        if (name == "Lektorrenusw")
            return new LektorrenuswForm([] {});
        if (name == "MesseDienerFest")
            return new MesseDienerFestForm;
        if (name == "NeuMesseDienerFest")
            return new NeuMesseDienerFestForm;
        if (name == "Start")
            return new StartForm([] {});
        if (name == "Konfiguration")
            return new KonfigurationForm;
        if (name == "ZusatzKonfig")
            return new ZusatzKonfigForm;
        if (name == "Skalierung")
            return new SkalierungForm;
        if (name == "Etiketten")
            return new EtikettenForm;
        if (name == "Druck")
            return new DruckForm;
        if (name == "Ausgleich")
            return new AusgleichForm;
        if (name == "JubiGebu")
            return new JubiGebuForm;
        if (name == "Datensicherung")
            return new DatensicherungForm;
        if (name == "Dateikopie")
            return new DateikopieForm;
        if (name == "DateienKopieren")
            return new DateienKopierenForm(nichts);
        throw std::runtime_error("no window " + name);
    }

    DruckerDienst *zuvor;
};

} // namespace altardienst

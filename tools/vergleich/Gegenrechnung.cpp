// The same task for the solver clingo.
#include "Gegenrechnung.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

/// The rules, over the facts platz(P,T,S), kann(P,J), groesse(J,H), sex(J,G), nah(T,U) for dates of
/// which one blocks the other, and kosten(J,K,C): what the K-th service of J adds.
constexpr const char *Regeln = R"(
0 { steht(P,J) : kann(P,J) } 1 :- platz(P,_,_).
besetzt(P) :- steht(P,_).
dient(T,J) :- platz(P,T,_), steht(P,J).
:- dient(T,J), 2 { steht(P,J) : platz(P,T,_) }.
:- dient(T,J), dient(U,J), nah(T,U).
:- platz(P,T,S), platz(Q,T,S+1), S\2 = 1, steht(P,J), steht(Q,I), sex(J,G), sex(I,H), G != H.
m(T,1,H) :- platz(P,T,1), steht(P,J), groesse(J,H).
m(T,2,(A+B+((A+B)/2)\2)/2) :- m(T,1,A), platz(P,T,2), steht(P,J), groesse(J,B).
m(T,3,(2*(B+2*A)+3)/6) :- m(T,2,A), platz(P,T,3), steht(P,J), groesse(J,B).
schlecht(P) :- platz(P,T,S), steht(P,J), groesse(J,H), m(T,R,M), R = (S-1), S = 2..3, |H-M| > diff.
schlecht(P) :- platz(P,T,S), steht(P,J), groesse(J,H), m(T,3,M), S > 3, |H-M| > diff.
mindestens(J,K) :- kosten(J,K,_), K { steht(P,J) : kann(P,J) }.
:- mindestens(J,K), not mindestens(J,K-1), K > 1.
#minimize { 1@3,P : platz(P,_,_), not besetzt(P) }.
#minimize { 1@2,P : schlecht(P) }.
#minimize { C@1,J,K : mindestens(J,K), kosten(J,K,C) }.
#show steht/2.
)";

/// Squared deviation with a number of services, in ten-thousandths.
long long Abweichung(const Besetzungsaufgabe::Person &person, int dienste)
{
    const long long über = dienste * 1000LL - person.Soll;
    return über * über / 100;
}

void TermineNennen(const Besetzungsaufgabe &aufgabe, std::ostream &aus)
{
    for (std::size_t t = 0; t < aufgabe.Termine.size(); ++t)
        for (std::size_t u = t + 1; u < aufgabe.Termine.size(); ++u)
            if (std::abs(aufgabe.Termine[t].Tag - aufgabe.Termine[u].Tag) < 2)
                aus << "nah(" << t << "," << u << "). ";
    aus << '\n';
}

void PersonenNennen(const Besetzungsaufgabe &aufgabe, std::ostream &aus)
{
    const MeßdienerTabelle &diener = aufgabe.Tabellen.Diener;
    for (std::size_t j = 0; j < aufgabe.Personen.size(); ++j) {
        const auto &person = aufgabe.Personen[j];
        aus << "groesse(" << j << "," << diener.Größe[static_cast<int>(j)] << "). sex(" << j << ","
            << (diener.Geschlecht[static_cast<int>(j)] == "weiblich") << "). ";
        for (int k = 1; k <= person.Höchstens; ++k)
            aus << "kosten(" << j << "," << k << ","
                << Abweichung(person, k) - Abweichung(person, k - 1) << "). ";
        aus << '\n';
    }
}

/// What the solver has found last: the atoms steht(P,J).
std::vector<int> AntwortLesen(const std::string &ausgabe, std::size_t plätze)
{
    std::vector<int> wer(plätze, Besetzungsaufgabe::Niemand);
    const auto anfang = ausgabe.rfind("Answer:");
    std::istringstream zeilen(ausgabe.substr(anfang));
    std::string zeile;
    std::getline(zeilen, zeile);
    std::getline(zeilen, zeile);
    std::istringstream atome(zeile);
    for (std::string atom; atome >> atom;) {
        int platz = 0;
        int person = 0;
        if (std::sscanf(atom.c_str(), "steht(%d,%d)", &platz, &person) == 2)
            wer.at(Nr(platz)) = person;
    }
    return wer;
}

double ZahlNach(const std::string &text, const std::string &stichwort)
{
    const auto ort = text.find(stichwort);
    return ort == std::string::npos ? 0 : std::atof(text.c_str() + ort + stichwort.size());
}

std::string DateiLesen(const fs::path &pfad)
{
    std::ostringstream inhalt;
    inhalt << std::ifstream(pfad).rdbuf();
    return inhalt.str();
}

/// The height reference of a mass after one more slot, an exact half going to the even neighbour.
int MittelNach(int slot, int mittel, int größe)
{
    if (slot == 1)
        return größe;
    if (slot == 2)
        return (größe + mittel + (größe + mittel) / 2 % 2) / 2;
    return slot == 3 ? (2 * (größe + 2 * mittel) + 3) / 6 : mittel;
}

int UnpassendeIn(const Besetzungsaufgabe &aufgabe, const Besetzungsaufgabe::Termin &termin,
                 const std::vector<int> &wer)
{
    int unpassende = 0;
    int mittel = 0;
    for (int p = termin.Von; p < termin.Bis; ++p) {
        const int slot = p - termin.Von + 1;
        if (wer[Nr(p)] < 0) {
            if (slot <= 3)
                break;
            continue;
        }
        const int größe = aufgabe.Tabellen.Diener.Größe[wer[Nr(p)]];
        unpassende +=
            slot > 1 && std::abs(größe - mittel) > aufgabe.Tabellen.Einstellungen.DiffGröße;
        mittel = MittelNach(slot, mittel, größe);
    }
    return unpassende;
}

} // namespace

Lösung Auszählen(const Besetzungsaufgabe &aufgabe, const std::vector<int> &wer)
{
    Lösung lösung;
    std::vector<int> dienste(aufgabe.Personen.size());
    for (const int person : wer)
        if (person >= 0)
            ++dienste[Nr(person)];
        else
            ++lösung.Verstöße;
    for (const auto &termin : aufgabe.Termine)
        lösung.Unpassende += UnpassendeIn(aufgabe, termin, wer);
    int wenigste = 1 << 20;
    int meiste = 0;
    double quadrate = 0;
    for (std::size_t j = 0; j < dienste.size(); ++j) {
        if (!aufgabe.Personen[j].Kann)
            continue;
        wenigste = std::min(wenigste, dienste[j]);
        meiste = std::max(meiste, dienste[j]);
        quadrate += std::pow(dienste[j] - static_cast<double>(aufgabe.Personen[j].Soll) / 1000, 2);
    }
    lösung.Spanne = meiste - std::min(wenigste, meiste);
    lösung.Ungleichheit = std::sqrt(quadrate);
    return lösung;
}

std::string AlsProgramm(const Besetzungsaufgabe &aufgabe)
{
    std::ostringstream aus;
    aus << "#const diff = " << aufgabe.Tabellen.Einstellungen.DiffGröße << ".\n";
    for (std::size_t p = 0; p < aufgabe.Plätze.size(); ++p) {
        const auto &platz = aufgabe.Plätze[p];
        aus << "platz(" << p << "," << platz.Termin << "," << platz.Wo.Nr << "). ";
        for (const int person : aufgabe.KreisVon(static_cast<int>(p)).Personen)
            aus << "kann(" << p << "," << person << "). ";
        aus << '\n';
    }
    TermineNennen(aufgabe, aus);
    PersonenNennen(aufgabe, aus);
    aus << Regeln;
    return aus.str();
}

Gegenlösung Gegenrechnen(const Besetzungsaufgabe &aufgabe, int sekunden,
                         const fs::path &verzeichnis)
{
    const std::string text = "% " + std::to_string(sekunden) + " seconds\n" + AlsProgramm(aufgabe);
    const std::string name = std::to_string(std::hash<std::string>()(text));
    const fs::path programm = verzeichnis / (name + ".lp");
    const fs::path antwort = verzeichnis / (name + ".txt");
    if (!fs::exists(antwort) || DateiLesen(programm) != text) {
        std::ofstream(programm) << text;
        const fs::path unfertig = verzeichnis / (name + ".neu");
        const std::string befehl =
            "clingo --configuration=handy --time-limit=" + std::to_string(sekunden) + " " +
            programm.string() + " > " + unfertig.string() + " 2>&1";
        // The exit code tells several things at once; what counts is the answer.
        static_cast<void>(std::system(befehl.c_str()));
        fs::rename(unfertig, antwort);
    }
    Gegenlösung lösung;
    const std::string ausgabe = DateiLesen(antwort);
    if (ausgabe.find("clingo version") == std::string::npos) {
        fs::remove(antwort);
        throw std::runtime_error("clingo does not run: " + ausgabe);
    }
    lösung.Sekunden = ZahlNach(ausgabe, "CPU Time     : ");
    lösung.Bewiesen = ausgabe.find("OPTIMUM FOUND") != std::string::npos;
    lösung.Gefunden = ausgabe.find("Answer:") != std::string::npos;
    if (lösung.Gefunden) {
        lösung.Wer = AntwortLesen(ausgabe, aufgabe.Plätze.size());
        lösung.Beste = Auszählen(aufgabe, lösung.Wer);
    }
    return lösung;
}

} // namespace altardienst

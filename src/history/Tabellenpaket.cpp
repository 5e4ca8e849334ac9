// The values of the tables in a few bytes.
#include "history/Tabellenpaket.h"

#include <cstdint>
#include <cstring>

namespace altardienst {
namespace {

// Each of these takes one value after the other, and returns whether it wants the next.

constexpr unsigned char LangerText = 255; // its length follows in four bytes

class Schreiber {
  public:
    bool operator()(const Text &text)
    {
        if (text.size() < LangerText) {
            paket.push_back(static_cast<char>(text.size()));
        } else {
            paket.push_back(static_cast<char>(LangerText));
            (*this)(static_cast<std::uint32_t>(text.size()));
        }
        paket.append(text);
        return true;
    }
    template <class Zahl> bool operator()(const Zahl &zahl)
    {
        paket.append(reinterpret_cast<const char *>(&zahl), sizeof zahl);
        return true;
    }

    std::string paket;
};

class Leser {
  public:
    explicit Leser(const std::string &paket) : stelle(paket.data()) {}

    bool operator()(Text &text)
    {
        const std::size_t länge = Länge();
        text.assign(stelle, länge);
        stelle += länge;
        return true;
    }
    template <class Zahl> bool operator()(Zahl &zahl)
    {
        std::memcpy(&zahl, stelle, sizeof zahl);
        stelle += sizeof zahl;
        return true;
    }

  protected:
    std::size_t Länge()
    {
        const auto kurz = static_cast<unsigned char>(*stelle++);
        if (kurz < LangerText)
            return kurz;
        std::uint32_t lang = 0;
        Leser::operator()(lang);
        return lang;
    }

    const char *stelle;
};

class Vergleicher : private Leser {
  public:
    using Leser::Leser;

    bool operator()(const Text &text)
    {
        const std::size_t länge = Länge();
        if (länge != text.size() || std::memcmp(stelle, text.data(), länge) != 0)
            return false;
        stelle += länge;
        return true;
    }
    template <class Zahl> bool operator()(const Zahl &zahl)
    {
        if (std::memcmp(stelle, &zahl, sizeof zahl) != 0)
            return false;
        stelle += sizeof zahl;
        return true;
    }
};

class Messer {
  public:
    template <class Wert> bool operator()(const Wert &wert)
    {
        Breite += sizeof wert;
        return true;
    }

    std::size_t Breite = 0;
};

// A column that is wanted; `f` is carried along and says when it has had enough.

template <class F> class Gang {
  public:
    explicit Gang(F &f) : f(f) {}

    template <class Wert> void operator()(Wert &wert)
    {
        if (weiter)
            weiter = f(wert);
    }
    void operator()(Flagfeld feld) { (*this)(feld.Wert); }
    template <class T, int höchster> void operator()(Spalte<T, höchster> &spalte)
    {
        for (int i = 0; i <= höchster && weiter; ++i)
            (*this)(spalte[i]);
    }

    bool Weiter() const { return weiter; }

  private:
    F &f;
    bool weiter = true;
};

template <class Tabelle, class G>
void AlleSpalten(Tabelle &tabelle, G &gang, const Auslassung &außer = {})
{
    FürJedeSpalteAußer(tabelle.Felder(), außer, [&](auto &spalte) { gang(spalte); });
}

template <class Tabelle, class G>
void Datensätze(Tabelle &tabelle, G &gang, const Auslassung &außer = {})
{
    gang(tabelle.Anzahl);
    AlleSpalten(tabelle, gang, außer);
}

/// Calls the walk with each field of a part; the order is that of the pack.
template <class G> void Durchgehen(Teil teil, const Tabellenstand &t, G &gang)
{
    switch (teil) {
    case Teil::Einstellungen:
        std::apply([&](auto &&...felder) { (gang(felder), ...); }, t.Einstellungen->Felder());
        return gang(t.Einstellungen->StartDatum);
    case Teil::Standardmessen:
        return AlleSpalten(*t.Standardmessen, gang);
    case Teil::Diener:
        return Datensätze(*t.Diener, gang);
    case Teil::Messen:
        return Datensätze(*t.Messen, gang, {&t.Messen->DienerDienst, &t.Messen->Wochentag});
    case Teil::Gruppen:
        gang(t.Gruppen->Anzahl);
        return gang(t.Gruppen->Bezeichnung);
    case Teil::Messehelfer:
        return Datensätze(*t.Messehelfer, gang);
    case Teil::Etiketten:
        return AlleSpalten(*t.Etiketten, gang);
    case Teil::FesteDiener:
        return Datensätze(*t.FesteDiener, gang, {&t.FesteDiener->Index});
    case Teil::Läufe:
        gang(t.Diener->Belegt);
        gang(t.Diener->LetzterDienst);
        gang(t.Diener->DienstZähler);
        gang(t.Messehelfer->Belegt);
        return gang(t.Messehelfer->LetzterDienst);
    case Teil::Wochentage:
        return gang(t.Messen->Wochentag);
    case Teil::Abgeleitetes:
        gang(t.Messen->DienerDienst);
        return gang(t.FesteDiener->Index);
    }
}

template <class F> bool AlleWerte(Teil teil, const Tabellenstand &stand, F &f)
{
    Gang gang(f);
    Durchgehen(teil, stand, gang);
    return gang.Weiter();
}

template <class T> std::shared_ptr<T> Verweis(T &tabelle)
{
    return {std::shared_ptr<T>(), &tabelle};
}

} // namespace

Tabellenstand DieTabellen()
{
    return {Verweis(Konfig), Verweis(Standardmesse), Verweis(Meßdiener), Verweis(Messe),
            Verweis(Gruppe), Verweis(Helfer),        Verweis(Etikett),   Verweis(MesseDienerFest)};
}

std::string Packen(Teil teil, const Tabellenstand &stand)
{
    Schreiber schreiber;
    AlleWerte(teil, stand, schreiber);
    schreiber.paket.shrink_to_fit();
    return std::move(schreiber.paket);
}

void Auspacken(Teil teil, const std::string &paket, const Tabellenstand &stand)
{
    Leser leser(paket);
    AlleWerte(teil, stand, leser);
}

bool StehtIn(Teil teil, const std::string &paket, const Tabellenstand &stand)
{
    Vergleicher vergleicher(paket);
    return AlleWerte(teil, stand, vergleicher);
}

std::size_t GepackteBreite(const Tabellenstand &stand)
{
    Messer messer;
    for (const Teil teil : AlleTeile)
        AlleWerte(teil, stand, messer);
    return messer.Breite + sizeof(Stellungen);
}

Stellungen StellungenJetzt()
{
    return {Standardmesse.Anzahl, Meßdiener.Cursor, Messe.Cursor,          Gruppe.Cursor,
            Helfer.Cursor,        Etikett.Anzahl,   MesseDienerFest.Cursor};
}

void StellungenSetzen(const Stellungen &stellungen)
{
    Standardmesse.Anzahl = stellungen.Standardmesse;
    Meßdiener.Cursor = stellungen.Diener;
    Messe.Cursor = stellungen.Messe;
    Gruppe.Cursor = stellungen.Gruppe;
    Helfer.Cursor = stellungen.Messehelfer;
    Etikett.Anzahl = stellungen.Etikett;
    MesseDienerFest.Cursor = stellungen.FesterEintrag;
}

} // namespace altardienst

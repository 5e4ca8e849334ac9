// All tables as they were at one moment, aside from those that the program works with.
#pragma once

#include "core/tables.h"

#include <memory>

namespace altardienst {

/// The values of the eight tables. Copying it copies no table; two of them may share some.
struct Tabellenstand {
    std::shared_ptr<KonfigDatensatz> Einstellungen;
    std::shared_ptr<StandardmesseTabelle> Standardmessen;
    std::shared_ptr<MeßdienerTabelle> Diener;
    std::shared_ptr<MesseTabelle> Messen;
    std::shared_ptr<GruppeTabelle> Gruppen;
    std::shared_ptr<HelferTabelle> Messehelfer;
    std::shared_ptr<EtikettTabelle> Etiketten;
    std::shared_ptr<MesseDienerFestTabelle> FesteDiener;
};

/// A copy of what the tables hold now.
Tabellenstand TabellenAufnehmen();

/// While it stands, the tables are in the state of the program's start, so that routines which fill
/// them can be used for something else; then they and the shared loop counter hold again what they
/// held before, however that ended. Both ways cost no more than moving the texts.
class TabellenBeiseite {
  public:
    TabellenBeiseite();
    ~TabellenBeiseite();
    TabellenBeiseite(const TabellenBeiseite &) = delete;
    TabellenBeiseite &operator=(const TabellenBeiseite &) = delete;

    /// Takes out what the tables hold meanwhile, once.
    static Tabellenstand Herausnehmen();

    /// For a process that dies: the tables hold again what they held before all that put them
    /// aside. Takes no memory.
    static void AlleZurück() noexcept;

  private:
    void Zurück() noexcept;

    Tabellenstand beiseite;
    Int16 zähler;
    TabellenBeiseite *darüber; // which had put them aside already
};

} // namespace altardienst

// The one instance of each table.
#include "core/tables.h"

#include "core/SchleifenZähler.h"

#include <memory>

namespace altardienst {

KonfigDatensatz Konfig;
StandardmesseTabelle Standardmesse;
MeßdienerTabelle Meßdiener;
MesseTabelle Messe;
GruppeTabelle Gruppe;
HelferTabelle Helfer;
EtikettTabelle Etikett;
MesseDienerFestTabelle MesseDienerFest;

Int16 SchleifenZähler;

namespace {

/// In place: a table is too large to be copied on the stack.
template <class T> void NeuAnlegen(T &tabelle)
{
    std::destroy_at(&tabelle);
    std::construct_at(&tabelle);
}

} // namespace

void TabellenLeeren()
{
    NeuAnlegen(Konfig);
    NeuAnlegen(Standardmesse);
    NeuAnlegen(Meßdiener);
    NeuAnlegen(Messe);
    NeuAnlegen(Gruppe);
    NeuAnlegen(Helfer);
    NeuAnlegen(Etikett);
    NeuAnlegen(MesseDienerFest);
    SchleifenZähler = 0;
}

} // namespace altardienst

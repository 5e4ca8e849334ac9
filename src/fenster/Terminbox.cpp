// Boxes for a date or a time of day.
#include "fenster/Terminbox.h"

#include "core/Umwandlung.h"
#include "fenster/Bausteine.h"

namespace altardienst {
namespace {

Datum WertIn(const QLineEdit *feld)
{
    return DatumLesen(TextVon(feld));
}

} // namespace

void TageWeiter(QLineEdit *feld, int tage)
{
    Setzen(feld, KurzesDatum(WertIn(feld) + tage));
}

void MonateWeiter(QLineEdit *feld, int monate)
{
    Setzen(feld, KurzesDatum(MonateWeiter(WertIn(feld), monate)));
}

void JahreWeiter(QLineEdit *feld, int jahre)
{
    MonateWeiter(feld, 12 * jahre);
}

void StundenWeiter(QLineEdit *feld, int stunden)
{
    Setzen(feld, LangeZeit(UhrzeitWeiter(WertIn(feld), stunden * 3600)));
}

void MinutenWeiter(QLineEdit *feld, int minuten)
{
    Setzen(feld, LangeZeit(UhrzeitWeiter(WertIn(feld), minuten * 60)));
}

void AlsKurzesDatum(QLineEdit *feld)
{
    Setzen(feld, KurzesDatum(WertIn(feld)));
}

void AlsLangeZeit(QLineEdit *feld)
{
    Setzen(feld, LangeZeit(WertIn(feld)));
}

} // namespace altardienst

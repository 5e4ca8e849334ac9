// Boxes for a date or a time of day.
#include "controls/Terminbox.h"

#include "controls/Bausteine.h"
#include "controls/Feldmarke.h"
#include "controls/Kalender.h"
#include "core/Umwandlung.h"

namespace altardienst {
namespace {

Datum WertIn(const QLineEdit *feld)
{
    return DatumLesen(TextVon(feld));
}

/// The cursor keeps its place counted from the end: the digits before it may gain or lose a zero,
/// and typing in the middle of a box continues where it was.
void Umschreiben(QLineEdit *feld, const Text &text)
{
    const auto vomEnde = feld->text().size() - feld->cursorPosition();
    Setzen(feld, text);
    feld->setCursorPosition(static_cast<int>(feld->text().size() - vomEnde));
}

constexpr int Zeichen = 16;       // the sign of a mark
constexpr int Kalenderknopf = 36; // the button, beside which the sign just fits

QLineEdit *Terminfeld(const char *name, Text (*prüfung)(const Text &), const char *längstes,
                      int daneben)
{
    constexpr int Ränder = 14;
    QLineEdit *feld = Textfeld(name);
    FeldPrüfen(feld, prüfung);
    feld->setFixedWidth(feld->fontMetrics().horizontalAdvance(längstes) + Ränder + daneben);
    return feld;
}

} // namespace

QLineEdit *Datumsbox(const char *name)
{
    QLineEdit *feld = Terminfeld(name, KeinDatum, "00.00.0000", Kalenderknopf);
    KalenderAnfügen(feld);
    return feld;
}

QLineEdit *Zeitbox(const char *name)
{
    return Terminfeld(name, KeineUhrzeit, "00:00:00", Zeichen);
}

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
    Umschreiben(feld, KurzesDatum(WertIn(feld)));
}

void AlsLangeZeit(QLineEdit *feld)
{
    Umschreiben(feld, LangeZeit(WertIn(feld)));
}

} // namespace altardienst

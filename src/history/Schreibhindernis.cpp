// What is told where the program may not write its files.
#include "history/Schreibhindernis.h"

#include "platform/Laufwerke.h"
#include "platform/Schreibrecht.h"

namespace altardienst {
namespace {

bool DarfSchreiben()
{
    return Schreibrecht.Besteht(Laufwerke.Programmverzeichnis());
}

/// On Windows it is always the same: an administrator has forbidden ordinary users to make anything
/// in the root of the drive. The number is that of all users, who have another name in each
/// language.
Text Abhilfe()
{
#ifdef _WIN32
    const Text ort = TextVon((Laufwerke.Programmverzeichnis() / "x").parent_path());
    return "Bitten Sie den, der diesen Rechner verwaltet, als Administrator in der "
           "Eingabeaufforderung einzugeben:\nmkdir " +
           ort + "\nicacls " + ort + " /grant *S-1-5-32-545:(OI)(CI)M";
#else
    return "Bitten Sie den, der diesen Rechner verwaltet, es anzulegen und Ihnen darin das Recht "
           "zu schreiben zu geben.";
#endif
}

} // namespace

Text Schreibhindernis()
{
    if (DarfSchreiben())
        return "";
    return "Im Verzeichnis " + OrdnerText(Laufwerke.Programmverzeichnis()) +
           " darf das Programm nicht schreiben: Nichts lässt sich speichern. " + Abhilfe();
}

Text KurzesSchreibhindernis()
{
    return DarfSchreiben() ? "" : "Hier lässt sich nichts speichern";
}

} // namespace altardienst

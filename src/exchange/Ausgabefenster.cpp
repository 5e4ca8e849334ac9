// A window that writes the plan to files.
#include "exchange/Ausgabefenster.h"

#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "platform/GanzSchreiben.h"
#include "platform/Laufwerke.h"
#include "values/Laufzeitfehler.h"

#include <utility>

namespace altardienst {

Ausgabefenster::Ausgabefenster(const char *name, const char *titel)
    : Inhalt(Beschriftung("Inhalt", "")), Hinweis(Beschriftung("Hinweis", "")),
      Speichern(Knopf("Speichern", "&Speichern...")), Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, name);
    setWindowTitle(QString::fromUtf8(titel));
    for (QLabel *satz : {Inhalt, Hinweis})
        satz->setWordWrap(true);
}

void Ausgabefenster::FußAnordnen(QLayout *wahl)
{
    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(wahl);
    spalte->addWidget(Inhalt);
    spalte->addWidget(Hinweis);
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({Ende}, {Speichern}));
}

void Ausgabefenster::FußVerbinden(std::function<void()> handler)
{
    connect(Speichern, &QPushButton::clicked, this, std::move(handler));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

void Ausgabefenster::InhaltSagen(const Text &satz, bool istEtwas)
{
    Setzen(Inhalt, satz);
    Setzen(Hinweis, "");
    Speichern->setEnabled(istEtwas);
}

bool Ausgabefenster::DateiSchreiben(const std::filesystem::path &ziel, const Text &bytes)
{
    try {
        GanzSchreiben(ziel, bytes);
    } catch (const Laufzeitfehler &fehler) {
        Setzen(Hinweis, "Nicht geschrieben: " + TextVon(ziel) + ": " + fehler.what() + ".");
        return false;
    }
    return true;
}

void Ausgabefenster::Gelungen(const Text &was)
{
    Mitteilen(was);
    Setzen(Hinweis, was + ".");
}

} // namespace altardienst

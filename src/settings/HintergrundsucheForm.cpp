// The dialog that chooses the picture behind the main window.
#include "settings/HintergrundsucheForm.h"

#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "core/tables.h"
#include "platform/Laufwerke.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace altardienst {

HintergrundsucheForm::HintergrundsucheForm()
    : Wahl("Laufw", "Verz", "Dateie"), Bild(new Hintergrundbild("Bild")),
      Ende(Knopf("Ende", "Ende"))
{
    Benannt(this, "Hintergrundsuche");
    setWindowTitle("Hintergrund");
    Anordnen();
    Verbinden();
    Wahl.Beginnen();
    Bild->Zeigen(Konfig.Hintergrund);
}

void HintergrundsucheForm::Anordnen()
{
    auto *links = new QVBoxLayout;
    links->addWidget(Wahl.Laufwerk);
    links->addWidget(Wahl.Verzeichnis, 2);
    links->addWidget(Wahl.Dateien, 3);

    auto *oben = new QHBoxLayout;
    oben->setSpacing(12);
    oben->addLayout(links, 2);
    oben->addWidget(Bild, 3);

    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(oben, 1);
    spalte->addLayout(Knopfreihe({Ende}));
    resize(660, 440);
    Wahl.Dateien->setFocus();
}

void HintergrundsucheForm::Verbinden()
{
    connect(Wahl.Dateien, &QListWidget::itemSelectionChanged, this,
            Abgefangen([this] { DateiGewählt(); }));
    connect(Ende, &QPushButton::clicked, this, [this] { close(); });
}

void HintergrundsucheForm::DateiGewählt()
{
    const auto gewählt = Wahl.Dateien->selectedItems();
    if (gewählt.isEmpty()) // the list was refilled
        return;
    const Text name = Verzeichniswahl::Name(gewählt.front());
    if (name.find_first_of("\r\n") != Text::npos) // would shift all lines after it in the file
        return;
    // For a root this gives two separators in a row; no platform minds.
    const Text trenner = TextVon(std::filesystem::path(
        std::filesystem::path::string_type(1, std::filesystem::path::preferred_separator)));
    Konfig.Hintergrund = TextVon(Wahl.Pfad()) + trenner + name;
    Bild->Zeigen(Konfig.Hintergrund);
}

} // namespace altardienst

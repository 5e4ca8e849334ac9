// The dialog that writes the plan as a text file.
#include "printing/DialogForm.h"

#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "platform/Laufwerke.h"
#include "platform/Meldungen.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace altardienst {

DialogForm::DialogForm()
    : Wahl("Drive1", "Dir1", "Dateien"), Dateiname(Textfeld("Dateiname")),
      VZ(Verzeichnisname("VZ")), Verzeichnis(Knopf("Verzeichnis", "Verzeichnis erstellen")),
      Datend(Benannt(new QGroupBox("Daten an Datei"), "Datend")),
      Überschreib(Benannt(new QRadioButton("überschreiben"), "Überschreib")),
      Anhang(Benannt(new QRadioButton("anhängen"), "Anhang")), Datei(Pfadanzeige("Datei")),
      OKButton(Knopf("OKButton", "OK")), CancelButton(Knopf("CancelButton", "Abbrechen"))
{
    Benannt(this, "Dialog");
    setWindowTitle("Messenliste als Textdatei speichern");
    Anordnen();
    Verbinden();
    Überschreib->setChecked(true); // one of the two, even if no directory can be read
    Wahl.Beginnen();
}

void DialogForm::Anordnen()
{
    Dateiname->setAccessibleName("Dateiname ohne Endung");
    Dateiname->setPlaceholderText("Datei"); // the name that an empty box stands for

    auto *links = new QVBoxLayout;
    links->addWidget(Wahl.Laufwerk);
    links->addWidget(Wahl.Verzeichnis);
    auto *neu = new QHBoxLayout;
    neu->addWidget(VZ);
    neu->addWidget(Verzeichnis);
    links->addLayout(neu);

    auto *rechts = new QVBoxLayout;
    rechts->addWidget(Dateiname);
    rechts->addWidget(Wahl.Dateien);
    auto *art = new QHBoxLayout(Datend);
    art->addWidget(Überschreib);
    art->addWidget(Anhang);
    rechts->addWidget(Datend);

    auto *listen = new QHBoxLayout;
    listen->setSpacing(16);
    listen->addLayout(links, 1);
    listen->addLayout(rechts, 1);

    auto *spalte = Fensterspalte(this, Luft::Mittel);
    spalte->addLayout(listen, 1);
    spalte->addWidget(Datei);
    spalte->addLayout(Knopfreihe({OKButton, CancelButton}));
    resize(660, 460);
    Dateiname->setFocus();
}

void DialogForm::Verbinden()
{
    auto bilden = Abgefangen([this] { ZielBilden(); });
    connect(Dateiname, &QLineEdit::textChanged, this, bilden);
    connect(Wahl.Dateien, &QListWidget::itemClicked, this, bilden);
    connect(Anhang, &QRadioButton::clicked, this, bilden);
    Wahl.BeiWechsel = bilden;
    auto erstellen = Offen([this] { VerzeichnisErstellen(); });
    connect(Verzeichnis, &QPushButton::clicked, this, erstellen);
    BeiEingabetaste(VZ, erstellen);
    connect(OKButton, &QPushButton::clicked, this, Offen([this] { Schreiben(); }));
    connect(CancelButton, &QPushButton::clicked, this, [this] { close(); });
}

/// An existing file is appended to by default; a click on `Überschreib` overrides that until the
/// target changes.
void DialogForm::ZielBilden()
{
    ziel = PfadBilden(Wahl.Pfad(), TextVon(Dateiname));
    Datei->setText(Anzeige(ziel.VollerPfad));
    Wahl.Auffrischen();
    (ZielVorhanden(ziel) ? Anhang : Überschreib)->setChecked(true);
}

void DialogForm::VerzeichnisErstellen()
{
    const Text name = TextVon(VZ);
    if (name.empty())
        return;
    Wahl.Anlegen(name);
    Wahl.Auffrischen();
}

void DialogForm::Schreiben()
{
    const bool angehängt = Anhang->isChecked();
    std::filesystem::path pfad;
    try {
        pfad = ZielDatei(ziel);
        if (Anhang->isChecked())
            Laufwerke.Anhängen(pfad, PlanAlsText());
        if (Überschreib->isChecked())
            Laufwerke.Schreiben(pfad, PlanAlsText());
    } catch (const Laufzeitfehler &) {
        Meldungen.Zeigen("Datei konnte nicht geschrieben werden!!");
        return;
    }
    Mitteilen(ExportSatz(pfad, angehängt));
    close();
}

} // namespace altardienst

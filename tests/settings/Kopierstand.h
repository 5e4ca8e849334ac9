// The fixture of the tests of the three copy dialogs.
#pragma once

#include "Formstand.h"
#include "application/Anwendung.h"
#include "settings/KopierForm.h"

#include <QMainWindow>
#include <QPointer>

#include <array>
#include <map>

namespace altardienst {

/// A backup as it looks to a user who has renamed the files: in the order of the options, the
/// file's own name and its name in small letters.
constexpr std::array<std::pair<const char *, const char *>, 8> AchtNamen = {{
    {"Konfig.cfg", "konfig.cfg"},
    {"Etiketten.dat", "etiketten.dat"},
    {"Gruppen.dat", "gruppen.dat"},
    {"Helfer.dat", "helfer.dat"},
    {"Meßdiener.dat", "meßdiener.dat"},
    {"Messen.dat", "messen.dat"},
    {"Standard.dat", "standard.dat"},
    {"MeßdienerMesse.dat", "meßdienermesse.dat"},
}};

/// The program's directory is a subdirectory of the first drive, the diskette is the second; the
/// main window is behind the dialog.
class Kopierstand : public Formstand<KopierForm> {
  protected:
    using path = std::filesystem::path;
    using Liste = std::vector<Text>;

    Kopierstand()
    {
        laufwerk = Festplatte;
        Festplatte = laufwerk / "Altardienst";
        std::filesystem::create_directories(Festplatte);
        Laufwerke.Wurzeln = [this] {
            return std::vector<Wurzel>{{"Platte", laufwerk}, {"Diskette", Diskette}};
        };
        haupt->setObjectName("Haupt");
        haupt->showMaximized();
        Zeigen(haupt);
        HauptfensterSetzen(haupt);
    }

    template <class Form> KopierForm &Öffnen()
    {
        form = new Form;
        DialogÖffnen(form);
        Zeigen(form);
        return *form;
    }

    /// Writes eight files that contain this mark followed by their own name.
    static void AchtSchreiben(const path &verzeichnis, const Text &zeichen)
    {
        std::filesystem::create_directories(verzeichnis);
        for (const auto &[name, klein] : AchtNamen)
            DateiSchreiben(verzeichnis / PfadAus(name), zeichen + name);
    }

    static Liste DateienIn(const path &verzeichnis)
    {
        return Laufwerke.Auflisten(verzeichnis).Dateien;
    }

    bool ZeigtOK() const { return form->OKButton->isVisible(); }
    Text Datei() const { return Zeigt(form->Datei); }

    /// Double-clicks a directory in the list.
    void VerzeichnisÖffnen(const char *name) const
    {
        QListWidget *liste = form->Wahl.Verzeichnis;
        const auto zeilen = liste->findItems(QString::fromUtf8(name), Qt::MatchExactly);
        ASSERT_EQ(zeilen.size(), 1) << name;
        FokusAuf(liste);
        liste->setCurrentItem(zeilen.front());
        QTest::keyClick(liste, Qt::Key_Return);
    }

    /// Goes down to the next drive of the list, or up with -1.
    void NächstesLaufwerk(int schritte = 1) const
    {
        FokusAuf(form->Wahl.Laufwerk);
        QTest::keyClick(form->Wahl.Laufwerk, schritte > 0 ? Qt::Key_Down : Qt::Key_Up);
    }

    /// Chooses a single file, by the number of its option.
    void EinzelneWählen(std::size_t option) const
    {
        Klick(form->Einzel);
        QCoreApplication::processEvents(); // lays the options out
        Ankreuzen(form->O[option]);
        ASSERT_TRUE(form->O[option]->isChecked());
    }

    bool ZurückImHauptfenster() const
    {
        return !form && haupt->isEnabled() && haupt->isMaximized();
    }

    path laufwerk;
    QPointer<QMainWindow> haupt = new QMainWindow;
};

} // namespace altardienst

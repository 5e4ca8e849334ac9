// The program is wholly German, whatever is installed: message boxes, Qt's own dialogs, the menus
// of a box, the names of keys.
#include "application/Deutsch.h"

#include "Fensterstand.h"

#include <QAction>
#include <QCalendarWidget>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextBrowser>

#include <set>

namespace altardienst {
namespace {

/// Collects the texts that were looked up and not found. The translator installed last is asked
/// first.
class Lücken : public QTranslator {
  public:
    Lücken() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char *kontext, const char *quelle, const char *unterscheidung,
                      int n) const override
    {
        QString text = deutsch.translate(kontext, quelle, unterscheidung, n);
        // To parse one key Qt asks for the names of all, even those on remote controls.
        if (text.isEmpty() && *quelle && Text(kontext) != "QShortcut")
            namen.insert(Text(kontext) + ": " + quelle);
        return text;
    }

    const std::set<Text> &Namen() const { return namen; }

  private:
    Deutsch deutsch{nullptr};
    mutable std::set<Text> namen;
};

class DeutschTest : public Fensterstand {
  protected:
    void ErwarteKeineLücken() const
    {
        for (const Text &name : lücken.Namen())
            ADD_FAILURE() << "shows as it stands: " << name;
    }

    Lücken lücken;
};

std::set<Text> Einträge(QMenu *menü)
{
    std::set<Text> texte;
    for (const QAction *eintrag : menü->actions())
        if (!eintrag->isSeparator())
            texte.insert(eintrag->text().remove('&').section('\t', 0, 0).trimmed().toStdString());
    return texte;
}

TEST_F(DeutschTest, AlleKnöpfeVonMeldungen)
{
    QDialogButtonBox knöpfe;
    knöpfe.setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Yes | QDialogButtonBox::No |
                              QDialogButtonBox::Cancel | QDialogButtonBox::Close |
                              QDialogButtonBox::Save | QDialogButtonBox::Open);
    const auto aufschrift = [&](QDialogButtonBox::StandardButton art) {
        return knöpfe.button(art)->text().remove('&').toStdString();
    };
    EXPECT_EQ(aufschrift(QDialogButtonBox::Ok), "OK");
    EXPECT_EQ(aufschrift(QDialogButtonBox::Yes), "Ja");
    EXPECT_EQ(aufschrift(QDialogButtonBox::No), "Nein");
    EXPECT_EQ(aufschrift(QDialogButtonBox::Cancel), "Abbrechen");
    EXPECT_EQ(aufschrift(QDialogButtonBox::Close), "Schließen");
    EXPECT_EQ(aufschrift(QDialogButtonBox::Save), "Speichern");
    EXPECT_EQ(aufschrift(QDialogButtonBox::Open), "Öffnen");
    ErwarteKeineLücken();
}

TEST_F(DeutschTest, DasMenüEinesTextfelds)
{
    QLineEdit feld("Anna");
    std::unique_ptr<QMenu> menü(feld.createStandardContextMenu());
    EXPECT_EQ(Einträge(menü.get()),
              (std::set<Text>{"Rückgängig", "Wiederherstellen", "Ausschneiden", "Kopieren",
                              "Einfügen", "Löschen", "Alles auswählen"}));
    ErwarteKeineLücken();
}

TEST_F(DeutschTest, DieNamenDerTasten)
{
    const auto name = [](const QKeySequence &taste) {
        return taste.toString(QKeySequence::NativeText).toStdString();
    };
    EXPECT_EQ(name(Qt::CTRL | Qt::Key_S), "Strg+S");
    EXPECT_EQ(name(Qt::SHIFT | Qt::Key_PageUp), "Umschalt+Bild aufwärts");
    EXPECT_EQ(name(Qt::Key_Delete), "Entf");
}

TEST_F(DeutschTest, DieSucheNachEinerDatei)
{
    QFileDialog dialog(nullptr, "PDF-Datei", Anzeige(Festplatte.string()), "PDF-Dateien (*.pdf)");
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setViewMode(QFileDialog::Detail);
    Zeigen(&dialog);
    EXPECT_EQ(
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->text().remove('&'),
        "Speichern");
    auto *modell = dialog.findChild<QFileSystemModel *>();
    EXPECT_EQ(modell->headerData(1, Qt::Horizontal).toString(), "Größe");
    ErwarteKeineLücken();
}

TEST_F(DeutschTest, DieEinstellungenDesDruckers)
{
    QPrinter drucker;
    drucker.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialog(&drucker);
    Zeigen(&dialog);
    EXPECT_EQ(dialog.findChild<QDialogButtonBox *>()
                  ->button(QDialogButtonBox::Cancel)
                  ->text()
                  .remove('&'),
              "Abbrechen");
    ErwarteKeineLücken();
}

TEST_F(DeutschTest, EinUnbekannterTextBleibtWieErIst)
{
    EXPECT_TRUE(Deutsch(nullptr).translate("QLineEdit", "no such text", nullptr, -1).isNull());
    EXPECT_TRUE(Deutsch(nullptr).translate("unknown", "&Copy", nullptr, -1).isNull());
}

} // namespace
} // namespace altardienst

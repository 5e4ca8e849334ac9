// The print dialog on a machine without a printer.
#include "paper/Druckdialog.h"

#include "Formstand.h"

#include <QApplication>
#include <QPrinterInfo>
#include <QTimer>

#include <map>
#include <memory>

namespace altardienst {
namespace {

const Druckanfrage ZweiFormen = {"Plan mit Namen", "Formular für die Helfer"};

class DruckdialogTest : public Formstand<DruckdialogForm> {
  protected:
    void Öffnen(const Druckanfrage &anfrage)
    {
        dialog = std::make_unique<DruckdialogForm>(anfrage);
        form = dialog.get();
        Zeigen(form);
    }

    QRadioButton *Option(const char *name) const { return Finden<QRadioButton>(name); }

    /// Shows the dialog as a report does and runs the action on it.
    static std::optional<Druckauswahl> Ablauf(const std::function<void(QDialog *)> &eingabe)
    {
        QTimer::singleShot(1, [eingabe] {
            auto *offen = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            try {
                if (!offen || !QTest::qWaitForWindowActive(offen))
                    throw std::runtime_error("no dialog opened");
                eingabe(offen);
            } catch (const std::exception &fehler) {
                ADD_FAILURE() << fehler.what();
                if (offen)
                    offen->reject();
            }
        });
        return DruckdialogZeigen(ZweiFormen);
    }

    std::unique_ptr<DruckdialogForm> dialog;
};

TEST_F(DruckdialogTest, OhneDruckerBleibtDasPdf)
{
    ASSERT_TRUE(QPrinterInfo::availablePrinterNames().isEmpty());
    Öffnen({});
    EXPECT_EQ(dialog->windowTitle(), "Drucken");
    EXPECT_TRUE(Option("Pdf")->isChecked());
    for (const char *name : {"Papier", "Druckername", "Einstellungen", "Kopien"})
        EXPECT_FALSE(Finden(name)->isEnabled()) << name;
    for (const char *name : {"Pdf", "PdfDatei", "Durchsuchen", "OKButton", "CancelButton"})
        EXPECT_TRUE(Finden(name)->isEnabled()) << name;
    EXPECT_EQ(dialog->Druckername->placeholderText(), "kein Drucker eingerichtet");
}

TEST_F(DruckdialogTest, AuswahlIstDasPdfMitDerErstenAusführung)
{
    Öffnen({});
    Tippen("PdfDatei", "/tmp/Plan.pdf");
    const Druckauswahl auswahl = dialog->Auswahl();
    EXPECT_EQ(auswahl.Modus, 0);
    EXPECT_EQ(auswahl.Ziel->outputFormat(), QPrinter::PdfFormat);
    EXPECT_TRUE(auswahl.Ziel->outputFileName().endsWith("/tmp/Plan.pdf")); // maybe after a drive
}

TEST_F(DruckdialogTest, DieZweiteAusführungStehtNurZurWahlWoEsSieGibt)
{
    Öffnen({});
    EXPECT_FALSE(Finden("Ausführung")->isVisible());
    Öffnen(ZweiFormen);
    EXPECT_TRUE(Finden("Ausführung")->isVisible());
    EXPECT_EQ(Zeigt("ErsteForm"), "Plan mit Namen");
    EXPECT_EQ(Zeigt("ZweiteForm"), "Formular für die Helfer");
    EXPECT_TRUE(Option("ErsteForm")->isChecked());
}

TEST_F(DruckdialogTest, DieZweiteAusführungIstModusEinsUndÄndertDasZielNicht)
{
    Öffnen(ZweiFormen);
    Klick("ZweiteForm");
    EXPECT_EQ(dialog->Auswahl().Modus, 1);
    EXPECT_TRUE(Option("Pdf")->isChecked());
    QTest::keyClick(Finden("ZweiteForm"), Qt::Key_Left);
    EXPECT_EQ(dialog->Auswahl().Modus, 0);
    FokusAuf("Pdf");
    QTest::keyClick(Finden("Pdf"), Qt::Key_Down);
    EXPECT_EQ(dialog->Auswahl().Modus, 0);
    EXPECT_TRUE(Option("Pdf")->isChecked());
}

TEST_F(DruckdialogTest, OhneDateinamenGibtEsKeinOk)
{
    Öffnen({});
    Tippen("PdfDatei", "");
    EXPECT_FALSE(Finden("OKButton")->isEnabled());
    Tippen("PdfDatei", "x");
    EXPECT_TRUE(Finden("OKButton")->isEnabled());
}

TEST_F(DruckdialogTest, OkUndEingabetasteWählen)
{
    auto auswahl = Ablauf([](QDialog *offen) { Klick(Finden(offen, "OKButton")); });
    ASSERT_TRUE(auswahl.has_value());
    EXPECT_EQ(auswahl->Modus, 0);
    auswahl = Ablauf([](QDialog *offen) {
        Finden<QRadioButton>(offen, "ZweiteForm")->setChecked(true);
        QTest::keyClick(offen, Qt::Key_Return);
    });
    ASSERT_TRUE(auswahl.has_value());
    EXPECT_EQ(auswahl->Modus, 1);
}

TEST_F(DruckdialogTest, AbbrechenEscapeUndSchließenBrechenAb)
{
    EXPECT_FALSE(Ablauf([](QDialog *offen) { Klick(Finden(offen, "CancelButton")); }));
    EXPECT_FALSE(Ablauf([](QDialog *offen) { QTest::keyClick(offen, Qt::Key_Escape); }));
    EXPECT_FALSE(Ablauf([](QDialog *offen) { offen->close(); }));
}

TEST_F(DruckdialogTest, DerDateinameIstBeimNächstenMalWiederDa)
{
    const Text einmal = TextVon((Festplatte / "einmal.pdf").make_preferred());
    const Text anders = TextVon((Festplatte / "anders.pdf").make_preferred());
    Ablauf([&](QDialog *offen) {
        Tippen(Finden(offen, "PdfDatei"), einmal);
        Klick(Finden(offen, "OKButton"));
    });
    Öffnen({});
    EXPECT_EQ(Zeigt("PdfDatei"), einmal);
    dialog.reset();
    Ablauf([&](QDialog *offen) {
        Tippen(Finden(offen, "PdfDatei"), anders);
        Klick(Finden(offen, "CancelButton"));
    });
    Öffnen({});
    EXPECT_EQ(Zeigt("PdfDatei"), einmal);
}

TEST_F(DruckdialogTest, AlleTexteSindDeutschUndTabFolgtDemAuge)
{
    Öffnen(ZweiFormen);
    const std::map<const char *, const char *> aufschriften = {
        {"Papier", "Drucker:"},    {"Einstellungen", "Einstellungen..."},
        {"Pdf", "PDF-Datei:"},     {"Durchsuchen", "Durchsuchen..."},
        {"OKButton", "OK"},        {"CancelButton", "Abbrechen"},
        {"KopienText", "Kopien:"}, {"DanachÖffnen", "danach öffnen"}};
    for (const auto &[name, text] : aufschriften)
        EXPECT_EQ(Zeigt(name), text) << name;
    FokusAuf("Pdf");
    EXPECT_EQ(Tabfolge(dialog.get()),
              (std::vector<Text>{"Pdf", "PdfDatei", "Durchsuchen", "DanachÖffnen", "ErsteForm",
                                 "OKButton", "CancelButton"}));
    // The inner box of `Kopien`, which carries the name of the whole control.
    EXPECT_EQ(Stumme(dialog.get()), std::vector<Text>{"qt_spinbox_lineedit"});
    EXPECT_EQ(Finden("Kopien")->accessibleName(), "Kopien");
}

TEST_F(DruckdialogTest, PasstAufDenKleinstenBildschirm)
{
    Öffnen(ZweiFormen);
    EXPECT_LE(dialog->width(), KleinsterBildschirm.width());
    EXPECT_LE(dialog->height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst

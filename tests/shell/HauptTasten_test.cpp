// The keys of the main window.
#include "planning/MessenlisteForm.h"
#include "shell/Hauptstand.h"

namespace altardienst {
namespace {

/// Every button only notes its number.
class HauptTastenTest : public Hauptstand {
  protected:
    HauptTastenTest()
    {
        HauptForm &haupt = Öffnen();
        knöpfe = {haupt.Messenorgani, haupt.Meßdienernern, haupt.Dienstus,   haupt.MeßdienerMessen,
                  haupt.Helfend,      haupt.AnzMesse,      haupt.Messendruck};
        for (std::size_t i = 0; i < knöpfe.size(); ++i) {
            knöpfe[i]->setEnabled(true);
            QObject::disconnect(knöpfe[i], &QPushButton::clicked, nullptr, nullptr);
            QObject::connect(knöpfe[i], &QPushButton::clicked, &haupt,
                             [this, i] { gedrückt += std::to_string(i + 1); });
        }
    }

    /// As it comes from the keyboard: to the window, which passes it to the control with the focus.
    void Fenstertaste(Qt::Key taste, Qt::KeyboardModifiers dazu = Qt::NoModifier) const
    {
        QTest::keyClick(haupt->windowHandle(), taste, dazu);
    }

    /// The key of the row of digits, as it comes when the keyboard makes another character of it.
    void Umgeschaltet(int nummer, Qt::KeyboardModifiers dazu) const
    {
        const quint32 ort = nummer == 0 ? 19 : 9 + nummer; // on X11, from 1 to 0
        QKeyEvent taste(QEvent::KeyPress, Qt::Key_Exclam, dazu, ort, '0' + nummer, 0, "!");
        QApplication::sendEvent(haupt->windowHandle(), &taste);
    }

    std::array<QPushButton *, 7> knöpfe;
    Text gedrückt;
};

TEST_F(HauptTastenTest, Tasten1Bis7DrückenIhrenKnopfBeiJedemFokus)
{
    for (QPushButton *knopf : knöpfe) {
        FokusAuf(knopf);
        for (int ziffer = 0; ziffer <= 9; ++ziffer) {
            gedrückt.clear();
            Fenstertaste(static_cast<Qt::Key>(Qt::Key_0 + ziffer));
            const bool hatKnopf = ziffer >= 1 && ziffer <= 7;
            EXPECT_EQ(gedrückt, hatKnopf ? std::to_string(ziffer) : "") << Zeigt(knopf);
        }
        EXPECT_TRUE(knopf->hasFocus());
    }
}

TEST_F(HauptTastenTest, DieTastenGeltenAuchOhneFokus)
{
    haupt->focusWidget()->clearFocus();
    Fenstertaste(Qt::Key_3);
    EXPECT_EQ(gedrückt, "3");
}

TEST_F(HauptTastenTest, DieTastenGeltenAuchNachEinemDialog)
{
    QWidget dialog;
    haupt->setEnabled(false);
    Zeigen(&dialog);
    Fenstertaste(Qt::Key_3); // disabled while a dialog is open
    EXPECT_EQ(gedrückt, "");
    dialog.close();
    HauptfensterZurück();
    Fenstertaste(Qt::Key_3);
    EXPECT_EQ(gedrückt, "3");
}

TEST_F(HauptTastenTest, DieTasteGiltAuchUmgeschaltet)
{
    for (const auto dazu : {Qt::NoModifier, Qt::ShiftModifier}) { // Caps Lock is no modifier
        gedrückt.clear();
        for (int nummer = 0; nummer <= 9; ++nummer)
            Umgeschaltet(nummer, dazu);
        EXPECT_EQ(gedrückt, "1234567");
    }
    for (const auto dazu : {Qt::KeypadModifier, Qt::ControlModifier, Qt::AltModifier}) {
        Umgeschaltet(3, dazu | Qt::ShiftModifier);
        Umgeschaltet(3, dazu);
        Fenstertaste(Qt::Key_3, dazu);
    }
    EXPECT_EQ(gedrückt, "1234567");
    Fenstertaste(Qt::Key_3, Qt::ShiftModifier); // digits that are themselves reached by Shift
    EXPECT_EQ(gedrückt, "12345673");
}

TEST_F(HauptTastenTest, DerZiffernblockDrücktNichts)
{
    for (int ziffer = 1; ziffer <= 7; ++ziffer)
        Fenstertaste(static_cast<Qt::Key>(Qt::Key_0 + ziffer), Qt::KeypadModifier);
    EXPECT_EQ(gedrückt, "");
}

TEST_F(HauptTastenTest, EineGesperrteStufeAntwortetNicht)
{
    knöpfe[1]->setEnabled(false);
    Fenstertaste(Qt::Key_2);
    EXPECT_EQ(gedrückt, "");
}

TEST_F(HauptTastenTest, EingabetasteUndLeertasteDrückenDenKnopfMitDemFokus)
{
    FokusAuf(knöpfe[4]);
    Fenstertaste(Qt::Key_Return);
    Fenstertaste(Qt::Key_Space);
    EXPECT_EQ(gedrückt, "55");
}

TEST_F(HauptTastenTest, F11UndF12ÖffnenIhreFormen)
{
    for (auto [taste, form] :
         {std::pair(Qt::Key_F11, "ZusatzKonfig"), {Qt::Key_F12, "Skalierung"}}) {
        Fenstertaste(taste);
        EXPECT_FALSE(haupt->isEnabled());
        QWidget *dialog = Fenster(form);
        EXPECT_TRUE(haupt->isMinimized());
        dialog->close();
        EXPECT_TRUE(haupt->isEnabled());
        EXPECT_TRUE(haupt->isMaximized());
    }
}

TEST_F(HauptTastenTest, StrgPDrucktDenPlanUndJederKnopfNenntSeineTasten)
{
    Fenstertaste(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(gedrückt, "7");
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(knöpfe[i]->toolTip().toStdString(), std::to_string(i + 1));
    EXPECT_EQ(knöpfe[6]->toolTip(), "7 oder Strg+P");
}

TEST_F(HauptTastenTest, StrgSSpeichertUndDasMenüZeigtDieTasten)
{
    Konfig.Gemeinde = "St. Ägid";
    Fenstertaste(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(DateiLesen(Festplatte / "Konfig.cfg").starts_with("St. "));
    for (const auto &[eintrag, taste] : {std::pair("mnuDatenspeichern", "Ctrl+S"),
                                         {"mnuFileExit", "Ctrl+Q"},
                                         {"mnuHandbuch", "F1"}})
        EXPECT_EQ(Finden<QAction>(haupt, eintrag)->shortcut().toString(), taste);
}

TEST_F(HauptTastenTest, StrgSUndStrgPGeltenAuchInWasDanebenSteht)
{
    MesseMitDienern(Heute + 1, 1);
    auto *liste = new MessenlisteForm; // as (1) leaves it
    DialogDanebenÖffnen(liste);
    EXPECT_TRUE(QTest::qWaitForWindowActive(liste));
    FokusAuf(liste->Messewesen);
    Einsetzen(liste->Messewesen, "Andacht");
    const auto taste = [&](Qt::Key welche) {
        QTest::keyClick(liste->windowHandle(), welche, Qt::ControlModifier);
    };
    taste(Qt::Key_S);
    EXPECT_NE(DateiLesen(Festplatte / "Messen.dat").find("Andacht"), Text::npos)
        << "with what was typed last";
    EXPECT_TRUE(liste->isActiveWindow());
    taste(Qt::Key_P);
    EXPECT_EQ(gedrückt, "7");
    haupt->setEnabled(false); // for a dialog
    std::filesystem::remove(Festplatte / "Messen.dat");
    taste(Qt::Key_S);
    taste(Qt::Key_P);
    EXPECT_FALSE(std::filesystem::exists(Festplatte / "Messen.dat"));
    EXPECT_EQ(gedrückt, "7");
}

TEST_F(HauptTastenTest, GesperrtHatDasHauptfensterKeineTasten)
{
    haupt->setEnabled(false);
    for (const Qt::Key taste : {Qt::Key_P, Qt::Key_S})
        Fenstertaste(taste, Qt::ControlModifier);
    EXPECT_EQ(gedrückt, "");
    EXPECT_FALSE(std::filesystem::exists(Festplatte / "Konfig.cfg"));
}

} // namespace
} // namespace altardienst

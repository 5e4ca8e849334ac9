// What holds for every window: it can be used with the keyboard alone, and by those who do not see
// it.
#include "JedesFenster.h"

#include "controls/Ergänzung.h"
#include "controls/SpinButton.h"
#include "controls/Textwahl.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QTextEdit>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <map>

namespace altardienst {
namespace {

using Schirmtexte = std::vector<std::pair<QWidget *, Text>>;

class JedesFensterTest : public JedesFenster {
  protected:
    template <class... Arten> static bool IstEinsVon(const QWidget *control)
    {
        return (qobject_cast<const Arten *>(control) || ...);
    }

    /// A part of another control: the box in a list to choose from, the button in a box.
    static bool IstTeil(const QWidget *control, const QWidget *fenster)
    {
        for (const QWidget *um = control->parentWidget(); um && um != fenster;
             um = um->parentWidget())
            if (IstEinsVon<QComboBox, QAbstractSpinBox, QLineEdit, QAbstractItemView>(um) ||
                dynamic_cast<const SpinButton *>(um))
                return true;
        return false;
    }

    /// All that can be used in a window as it stands, whether Tab goes there or not.
    static QWidgetList Bedienbare(const QWidget *fenster)
    {
        QWidgetList bedienbare;
        for (QWidget *control : fenster->findChildren<QWidget *>())
            if (control->isVisibleTo(fenster) && control->isEnabled() &&
                !IstTeil(control, fenster) &&
                (IstEinsVon<QAbstractButton, QLineEdit, QComboBox, QAbstractSpinBox,
                            QAbstractItemView, QTextEdit>(control) ||
                 dynamic_cast<SpinButton *>(control)))
                bedienbare.append(control);
        return bedienbare;
    }

    /// The controls that Tab reaches, once round. On a page of the handbook it goes from link to
    /// link.
    static QWidgetList Tabrunde(QWidget *fenster)
    {
        QWidgetList runde;
        for (int i = 0; i < 400; ++i) {
            QTest::keyClick(fenster->windowHandle(), Qt::Key_Tab);
            QWidget *jetzt = QApplication::focusWidget();
            if (!jetzt || (runde.contains(jetzt) && jetzt != runde.last()))
                break;
            if (!runde.contains(jetzt))
                runde.append(jetzt);
        }
        return runde;
    }

    /// Of a group of options Tab reaches the chosen one, and arrow keys reach the others.
    static bool IstInErreichterGruppe(const QWidget *control, const QWidgetList &runde)
    {
        return qobject_cast<const QRadioButton *>(control) &&
               std::ranges::any_of(runde, [&](const QWidget *anderes) {
                   return qobject_cast<const QRadioButton *>(anderes) &&
                          anderes->parent() == control->parent();
               });
    }

    /// Reached by a key of its own, which the tests of that control are about.
    static bool HatEigeneTaste(const QWidget *control)
    {
        static const std::map<Text, const char *> tasten = {
            {"Listengriff", "Ctrl+L"},
            {"Fundstellen", "the arrow keys, from the box"},
            {"VName", "follows the list of partners"},
            {"NName", "follows the list of partners"},
        };
        return tasten.contains(Name(control));
    }

    /// How something begins that a box for names proposes.
    static QString Anfang(const QLineEdit *feld)
    {
        const auto *wahl = qobject_cast<const QComboBox *>(feld->parentWidget());
        if (!wahl)
            return "a";
        for (int i = 0; i < wahl->count(); ++i)
            if (!wahl->itemText(i).isEmpty() && wahl->itemText(i).front().isLetter() &&
                wahl->itemText(i) != wahl->currentText())
                return wahl->itemText(i).left(1);
        return "";
    }

    template <class Art> static Schirmtexte Schirm(const QWidget *fenster)
    {
        Schirmtexte texte;
        for (QWidget *control : fenster->findChildren<Art *>())
            texte.emplace_back(control, Zeigt(control));
        return texte;
    }

    /// Puts the boxes back; twice, since some follow others.
    static void Zurücksetzen(const Schirmtexte &texte)
    {
        for (int mal = 0; mal < 2; ++mal)
            for (const auto &[control, text] : texte)
                if (Zeigt(control) != text)
                    Einsetzen(control, text);
    }

    /// Whether a key in one of the boxes does to them what the press of a button does.
    static bool TutEineTasteDasselbe(QWidget *fenster, const std::function<void()> &drücken)
    {
        constexpr std::array Tasten = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
        constexpr std::array Dabei = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
        const Schirmtexte vorher = Schirm<QLineEdit>(fenster);
        drücken();
        const Schirmtexte gedrückt = Schirm<QLineEdit>(fenster);
        Zurücksetzen(vorher);
        for (std::size_t k = 0; k < vorher.size(); ++k) {
            QWidget *feld = vorher[k].first;
            if (gedrückt[k] == vorher[k] || !feld->isVisible())
                continue;
            for (const auto mit : Dabei)
                for (const auto taste : Tasten) {
                    FokusAuf(feld);
                    Zurücksetzen(vorher);
                    QTest::keyClick(feld, taste, mit);
                    const bool gleich = Schirm<QLineEdit>(fenster) == gedrückt;
                    Zurücksetzen(vorher);
                    if (gleich)
                        return true;
                }
        }
        return false;
    }

    /// The same where only labels change: one key takes it back, the other does it again.
    static bool BlätternTasten(QWidget *fenster, const std::function<void()> &drücken)
    {
        const Schirmtexte vorher = Schirm<QLabel>(fenster);
        drücken();
        const Schirmtexte gedrückt = Schirm<QLabel>(fenster);
        if (gedrückt == vorher)
            return false;
        for (const auto &[zurück, noch] :
             {std::pair(Qt::Key_PageUp, Qt::Key_PageDown), {Qt::Key_PageDown, Qt::Key_PageUp}}) {
            QTest::keyClick(fenster, zurück);
            if (Schirm<QLabel>(fenster) != vorher)
                continue;
            QTest::keyClick(fenster, noch);
            if (Schirm<QLabel>(fenster) == gedrückt)
                return true;
        }
        return false;
    }

    static bool ErsetztEineTaste(QWidget *fenster, QWidget *control)
    {
        if (auto *spin = dynamic_cast<SpinButton *>(control))
            return TutEineTasteDasselbe(fenster, [spin] { spin->Drehen(+1); }) ||
                   TutEineTasteDasselbe(fenster, [spin] { spin->Drehen(-1); });
        auto *knopf = qobject_cast<QAbstractButton *>(control);
        if (!knopf)
            return false;
        const auto drücken = [knopf] { knopf->click(); };
        const auto mitDerMaus = [knopf] { Klick(knopf); }; // some act when they are pressed
        if (TutEineTasteDasselbe(fenster, drücken) || TutEineTasteDasselbe(fenster, mitDerMaus) ||
            BlätternTasten(fenster, drücken))
            return true;
        QTest::keyClick(fenster, Qt::Key_PageDown); // it may have stood at the end
        return BlätternTasten(fenster, drücken);
    }

    static Text Name(const QWidget *control) { return control->objectName().toStdString(); }
};

TEST_F(JedesFensterTest, JedesBedienelementIstMitDerTastaturErreichbar)
{
    int ohneTab = 0;
    InJedemVollenFenster([&](const Text &, QWidget *fenster) {
        const QWidgetList runde = Tabrunde(fenster);
        QTest::keyClick(fenster, Qt::Key_PageUp); // to a record with one before it
        for (QWidget *control : Bedienbare(fenster)) {
            if (runde.contains(control) || IstInErreichterGruppe(control, runde) ||
                HatEigeneTaste(control))
                continue;
            ++ohneTab;
            EXPECT_TRUE(ErsetztEineTaste(fenster, control)) << Name(control);
        }
    });
    EXPECT_GT(ohneTab, 200);
}

/// What was typed would be gone with the window.
TEST_F(JedesFensterTest, EscapeSchließtEineListeOderEinenKalenderUndNichtDasFenster)
{
    int geschlossene = 0;
    const auto schließen = [&](const QWidget *fenster, const QWidget *feld) {
        const QPointer<QWidget> offen = QApplication::activePopupWidget();
        ASSERT_TRUE(offen) << Name(feld);
        QTest::keyClick(offen->focusWidget() ? offen->focusWidget() : offen.data(), Qt::Key_Escape);
        EXPECT_FALSE(QApplication::activePopupWidget()) << Name(feld);
        ASSERT_TRUE(fenster->isVisible()) << Name(feld);
        ++geschlossene;
    };
    InJedemFenster([&](const Text &, const QWidget *fenster) {
        for (auto *wahl : fenster->findChildren<QComboBox *>())
            if (wahl->isVisible() && wahl->isEnabled() && wahl->count() > 0) {
                FokusAuf(wahl);
                wahl->showPopup();
                schließen(fenster, wahl);
            }
        for (QToolButton *knopf : fenster->findChildren<QToolButton *>())
            if (knopf->isVisible() && knopf->accessibleName() == "Kalender öffnen") {
                QTest::keyClick(knopf->parentWidget(), Qt::Key_Down, Qt::AltModifier);
                schließen(fenster, knopf->parentWidget());
            }
    });
    EXPECT_GT(geschlossene, 60);
}

TEST_F(JedesFensterTest, AltUndPfeilÖffnenDenKalenderJedesDatums)
{
    int kalender = 0;
    InJedemFenster([&](const Text &, const QWidget *fenster) {
        for (QToolButton *knopf : fenster->findChildren<QToolButton *>()) {
            auto *feld = qobject_cast<QLineEdit *>(knopf->parentWidget());
            if (!feld || !feld->isVisible() || knopf->accessibleName() != "Kalender öffnen")
                continue;
            QTest::keyClick(feld, Qt::Key_Down, Qt::AltModifier);
            QWidget *offen = QApplication::activePopupWidget();
            ASSERT_TRUE(offen) << Name(feld);
            EXPECT_EQ(Name(offen), "Kalender") << Name(feld);
            offen->close();
            ++kalender;
        }
    });
    EXPECT_GT(kalender, 20);
}

/// The boxes and lists for names propose what was begun; arrow keys and Enter choose, Escape closes
/// the proposals alone. They are named, on the screen, and nothing in them is cut.
TEST_F(JedesFensterTest, VorschlägeGehenMitDerTastaturUndStehenGanzDa)
{
    std::map<Text, int> vorschläge;
    InJedemFenster([&](const Text &name, QWidget *fenster) {
        for (auto *feld : fenster->findChildren<QLineEdit *>()) {
            if (!feld->findChild<QObject *>("Ergänzung") || !feld->isVisible() ||
                !feld->isEnabled() || vorschläge[name] == 2)
                continue;
            const QString vorher = feld->text();
            const QString begonnen = Anfang(feld);
            if (begonnen.isEmpty())
                continue; // nothing to propose
            FokusAuf(feld);
            feld->selectAll();
            QTest::keyClicks(feld, begonnen);
            SCOPED_TRACE(Name(feld));
            EXPECT_TRUE(Warten([&] { return OffeneErgänzung(feld) != nullptr; }));
            auto *liste = qobject_cast<QAbstractItemView *>(OffeneErgänzung(feld));
            ASSERT_TRUE(liste);
            ++vorschläge[name];
            EXPECT_EQ(liste->accessibleName(), "Vorschläge");
            EXPECT_TRUE(feld->screen()->availableGeometry().contains(liste->frameGeometry()));
            for (int zeile = 0; zeile < liste->model()->rowCount(); ++zeile)
                EXPECT_GE(liste->viewport()->width(),
                          liste->fontMetrics().horizontalAdvance(
                              liste->model()->index(zeile, 0).data().toString()));
            EXPECT_FALSE(liste->currentIndex().isValid()) << "nothing is chosen unasked";
            const QImage ohne = liste->grab().toImage();
            QTest::keyClick(liste, Qt::Key_Down);
            EXPECT_TRUE(liste->currentIndex().isValid());
            EXPECT_NE(liste->grab().toImage(), ohne) << "one sees which one Enter takes";
            QTest::keyClick(liste, Qt::Key_Escape);
            EXPECT_FALSE(OffeneErgänzung(feld));
            EXPECT_TRUE(fenster->isVisible()) << "Escape closes the proposals alone";
            Einsetzen(feld, vorher.toStdString());
        }
    });
    for (const char *name : {"Messenliste", "MesseDienerFest", "NeuMesseDienerFest", "Meßdiener",
                             "NeuMeßdiener", "NeuerHelfer"})
        EXPECT_GT(vorschläge[name], 0) << name;
}

TEST_F(JedesFensterTest, JedesBedienelementHatEinenGesprochenenNamen)
{
    InJedemVollenFenster([](const Text &, QWidget *fenster) {
        std::vector<Text> stumme = Stumme(fenster);
        std::erase(stumme, "qt_spinbox_lineedit"); // the box within a box, which has the name
        EXPECT_EQ(stumme, std::vector<Text>{});
    });
}

TEST_F(JedesFensterTest, DerFokusIstZuSehen)
{
    InJedemVollenFenster([](const Text &, QWidget *fenster) {
        QWidgetList alle = Tabrunde(fenster);
        for (QWidget *option : fenster->findChildren<QRadioButton *>())
            if (option->isVisible() && option->isEnabled() && !alle.contains(option))
                alle.append(option);
        ASSERT_FALSE(alle.empty());
        if (alle.size() == 1)
            return; // it has nowhere else to go
        for (qsizetype i = 0; i < alle.size(); ++i) {
            FokusAuf(alle[i]);
            const QImage mit = alle[i]->grab().toImage();
            FokusAuf(alle[(i + 1) % alle.size()]);
            EXPECT_NE(alle[i]->grab().toImage(), mit) << Name(alle[i]);
        }
    });
}

TEST_F(JedesFensterTest, WerAbbrechenKannVerläßtDasFensterAuchMitEscape)
{
    InJedemFenster([](const Text &, QWidget *fenster) {
        const auto knöpfe = fenster->findChildren<QPushButton *>();
        const bool kannAbbrechen = std::ranges::any_of(knöpfe, [&](const QPushButton *knopf) {
            return knopf->text().remove('&') == "Abbrechen" && knopf->isVisibleTo(fenster);
        });
        const QPointer<QWidget> noch = fenster;
        QTest::keyClick(fenster->windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(!kannAbbrechen || !noch || !noch->isVisible());
    });
}

/// Enter presses the button that has the focus. In a box it presses none but "OK", and that only in
/// the print dialog: elsewhere it ends the box.
TEST_F(JedesFensterTest, DieEingabetasteDrücktInEinemFeldNurDasOkDesDruckdialogs)
{
    InJedemVollenFenster([](const Text &name, QWidget *fenster) {
        if (name == "WerKannHier")
            return; // there Enter puts in the one who is chosen
        std::vector<Text> gedrückt;
        for (QPushButton *knopf : fenster->findChildren<QPushButton *>()) {
            EXPECT_EQ(knopf->isDefault() && !knopf->hasFocus(),
                      name == "CommonDialog1" && Name(knopf) == "OKButton" && !knopf->hasFocus())
                << Name(knopf);
            QObject::disconnect(knopf, &QPushButton::clicked, nullptr, nullptr);
            QObject::connect(knopf, &QPushButton::clicked, fenster,
                             [&gedrückt, knopf] { gedrückt.push_back(Name(knopf)); });
        }
        if (name == "Suchen")
            return; // there Enter goes to what was found
        for (auto *feld : fenster->findChildren<QLineEdit *>())
            if (feld->isVisible() && feld->isEnabled()) {
                gedrückt.clear();
                FokusAuf(feld);
                QTest::keyClick(feld, Qt::Key_Return);
                EXPECT_EQ(gedrückt, (name == "CommonDialog1" ? std::vector<Text>{"OKButton"}
                                                             : std::vector<Text>{}))
                    << Name(feld);
            }
    });
}

/// A desktop hides a window together with the one that owns it, and a dialog minimises the main
/// window.
TEST_F(JedesFensterTest, KeinFensterGehörtEinemAnderen)
{
    InJedemFenster([](const Text &name, const QWidget *fenster) {
        EXPECT_FALSE(fenster->parentWidget()) << name;
        EXPECT_FALSE(fenster->windowHandle()->transientParent()) << name;
    });
}

} // namespace
} // namespace altardienst

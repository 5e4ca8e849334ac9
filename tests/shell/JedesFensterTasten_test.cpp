// The keys of the command buttons, in every window.
#include "JedesFenster.h"

#include "controls/Kurztasten.h"
#include "help/Fensterseiten.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include <set>

namespace altardienst {
namespace {

class JedesFensterTastenTest : public JedesFenster {
  protected:
    /// The command buttons: not those that are a sign and change the box they stand beside.
    static QList<QPushButton *> Knöpfe(const QWidget *fenster)
    {
        QList<QPushButton *> knöpfe;
        for (auto *knopf : fenster->findChildren<QPushButton *>())
            if ((knopf->text() != "+" && knopf->text() != "-") || !knopf->toolTip().isEmpty())
                knöpfe.append(knopf);
        return knöpfe;
    }

    /// The keys that the tooltip of a button names: all of it, or what stands in brackets.
    static QStringList Genannte(const QPushButton *knopf)
    {
        const QString tip = knopf->toolTip();
        const auto klammer = tip.lastIndexOf('(');
        if (klammer < 0 || !tip.endsWith(')'))
            return tip.split(" oder ", Qt::SkipEmptyParts);
        return tip.mid(klammer + 1).chopped(1).split(" oder ");
    }

    static void Drücken(QWidget *fenster, const QKeySequence &taste)
    {
        QTest::keyClick(fenster->windowHandle(), taste[0].key(), taste[0].keyboardModifiers());
        QCoreApplication::processEvents();
    }
};

TEST_F(JedesFensterTastenTest, KeinFensterIstVergessen)
{
    std::set<Text> namen;
    for (const auto &[name, öffnen] : Öffner())
        namen.insert(name);
    std::set<Text> alle;
    for (const auto &[name, seite] : Fensterseiten())
        if (name.find('/') == Text::npos)
            alle.insert(name);
    EXPECT_EQ(namen, alle);
}

TEST_F(JedesFensterTastenTest, JederKnopfHatEineTasteUndNenntSie)
{
    int knöpfe = 0;
    InJedemFenster([&](const Text &, const QWidget *fenster) {
        for (const QPushButton *knopf : Knöpfe(fenster)) {
            ++knöpfe;
            const bool unterstrichen = !QKeySequence::mnemonic(knopf->text()).isEmpty();
            EXPECT_TRUE(unterstrichen || !Genannte(knopf).isEmpty())
                << knopf->objectName().toStdString() << " \"" << knopf->text().toStdString()
                << "\"";
        }
    });
    EXPECT_GT(knöpfe, 100);
}

TEST_F(JedesFensterTastenTest, KeineTasteGiltZweimal)
{
    InJedemFenster([](const Text &, const QWidget *fenster) {
        std::multiset<QString> tasten;
        const auto merken = [&](const QKeySequence &taste) {
            if (!taste.isEmpty())
                tasten.insert(taste.toString());
        };
        for (const auto *kürzel : fenster->findChildren<QShortcut *>())
            for (const QKeySequence &taste : kürzel->keys())
                merken(taste);
        for (const auto *eintrag : fenster->findChildren<QAction *>())
            merken(eintrag->shortcut());
        for (const auto *knopf : fenster->findChildren<QAbstractButton *>())
            merken(QKeySequence::mnemonic(knopf->text()));
        for (const auto *rahmen : fenster->findChildren<QGroupBox *>())
            merken(QKeySequence::mnemonic(rahmen->title()));
        for (const auto *label : fenster->findChildren<QLabel *>())
            if (label->buddy() && label->textFormat() != Qt::PlainText)
                merken(QKeySequence::mnemonic(label->text()));
        for (const QString &taste : tasten)
            EXPECT_EQ(tasten.count(taste), 1U) << taste.toStdString();
    });
}

TEST_F(JedesFensterTastenTest, JedeTasteDrücktIhrenKnopfUndNurDen)
{
    std::size_t gedrückte = 0;
    InJedemFenster([&](const Text &, QWidget *fenster) {
        std::vector<Text> gedrückt;
        for (QPushButton *knopf : Knöpfe(fenster)) {
            QObject::disconnect(knopf, &QPushButton::clicked, nullptr, nullptr);
            QObject::connect(knopf, &QPushButton::clicked, fenster, [&gedrückt, knopf] {
                gedrückt.push_back(knopf->objectName().toStdString());
            });
        }
        for (QPushButton *knopf : Knöpfe(fenster))
            for (const Kurztaste &taste : AlleKurztasten()) {
                if (knopf->text() != QString::fromUtf8(taste.Beschriftung))
                    continue;
                knopf->setEnabled(true);
                knopf->show();
                gedrückt.clear();
                Drücken(fenster, taste.Taste);
                EXPECT_EQ(gedrückt, std::vector{knopf->objectName().toStdString()});
                ++gedrückte;
            }
    });
    EXPECT_GT(gedrückte, 70U);
}

TEST_F(JedesFensterTastenTest, JederTabellenplatzGehörtZuEinemKnopf)
{
    std::set<Text> beschriftungen;
    InJedemFenster([&](const Text &, const QWidget *fenster) {
        for (const QPushButton *knopf : Knöpfe(fenster))
            beschriftungen.insert(knopf->text().toStdString());
    });
    for (const Kurztaste &taste : AlleKurztasten())
        EXPECT_TRUE(beschriftungen.contains(taste.Beschriftung)) << taste.Beschriftung;
}

} // namespace
} // namespace altardienst

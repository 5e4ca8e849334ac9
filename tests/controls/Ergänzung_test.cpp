// Proposals while a name is typed: when they show, what choosing one does, and what they leave
// alone.
#include "controls/Ergänzung.h"

#include "Fensterstand.h"
#include "controls/Textwahl.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QVBoxLayout>

namespace altardienst {
namespace {

class ErgänzungTest : public Fensterstand {
  protected:
    ErgänzungTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->addWidget(wahl);
        spalte->addWidget(anderes);
        ListeSetzen(wahl, {"Adler,Anna", "Berg,Bea", "Bergmann,Anton", "Cohn,Cem", "Berg,Bea"});
        BeiAuswahl(wahl, [this] { ereignisse += "gewählt:" + Zeigt(wahl) + " "; });
        BeiVerlassen(wahl, [this] { ereignisse += "verlassen "; });
        QObject::connect(wahl->lineEdit(), &QLineEdit::returnPressed, &fenster,
                         [this] { ereignisse += "Eingabe "; });
        Zeigen(&fenster);
        FokusAuf(wahl);
    }

    ~ErgänzungTest() override { fenster.hide(); } // the box loses the focus while it is intact

    /// Types key by key, through the proposals if they are open.
    void Tippe(const char *text)
    {
        for (const QChar zeichen : QString::fromUtf8(text))
            QTest::sendKeyEvent(QTest::Click, Empfänger(), Qt::Key_unknown, QString(zeichen),
                                Qt::NoModifier);
    }
    void Taste(Qt::Key taste) { QTest::keyClick(Empfänger(), taste); }

    QAbstractItemView *Vorschläge() const
    {
        return static_cast<QAbstractItemView *>(OffeneErgänzung(wahl->lineEdit()));
    }
    bool Erscheinen() const
    {
        return Warten([this] { return Vorschläge() != nullptr; });
    }

    std::vector<Text> Vorgeschlagen() const
    {
        std::vector<Text> texte;
        const QAbstractItemModel *liste = Vorschläge()->model();
        for (int i = 0; i < liste->rowCount(); ++i)
            texte.push_back(liste->index(i, 0).data().toString().toStdString());
        return texte;
    }

    Text ereignisse; // outlives the window
    QWidget fenster;
    QComboBox *wahl = Textwahl("Wahl", "Wahl");
    QLineEdit *anderes = Textfeld("anderes");

  private:
    QWidget *Empfänger() const
    {
        QWidget *offen = QApplication::activePopupWidget();
        return offen ? offen : wahl;
    }
};

TEST_F(ErgänzungTest, EnthaltenGenügtGroßOderKlein)
{
    Tippe("AN");
    EXPECT_EQ(Zeigt(wahl), "AN");
    ASSERT_TRUE(Erscheinen());
    EXPECT_EQ(Vorgeschlagen(), (std::vector<Text>{"Adler,Anna", "Bergmann,Anton"}));
    EXPECT_EQ(Zeigt(wahl), "AN"); // nothing is completed in the box
    EXPECT_EQ(wahl->lineEdit()->selectedText(), "");
    EXPECT_EQ(ereignisse, "");
}

TEST_F(ErgänzungTest, WeitertippenGehtInsFeldUndDieListeFolgt)
{
    Tippe("an");
    ASSERT_TRUE(Erscheinen());
    Tippe("t");
    EXPECT_EQ(Zeigt(wahl), "ant");
    EXPECT_TRUE(Warten([this] { return Vorschläge() && Vorschläge()->model()->rowCount() == 1; }));
    Taste(Qt::Key_Backspace);
    EXPECT_EQ(Zeigt(wahl), "an");
    Tippe("xyz");
    EXPECT_EQ(Zeigt(wahl), "anxyz");
    EXPECT_TRUE(Warten([this] { return !Vorschläge(); }));
    EXPECT_EQ(ereignisse, "");
}

TEST_F(ErgänzungTest, WählenIstWählenAusDerListe)
{
    Tippe("berg");
    ASSERT_TRUE(Erscheinen());
    Taste(Qt::Key_Down);
    Taste(Qt::Key_Down);
    EXPECT_EQ(Zeigt(wahl), "berg"); // not before Enter
    Taste(Qt::Key_Return);
    EXPECT_EQ(Zeigt(wahl), "Bergmann,Anton");
    EXPECT_EQ(wahl->currentIndex(), 2);
    EXPECT_EQ(ereignisse, "Eingabe gewählt:Bergmann,Anton ");
    EXPECT_FALSE(Vorschläge());
    EXPECT_TRUE(wahl->hasFocus());
    QTest::qWait(200);
    EXPECT_FALSE(Vorschläge()); // what was chosen needs no more proposals
}

TEST_F(ErgänzungTest, VonGleichenGiltDerGewählte)
{
    Tippe("bea");
    ASSERT_TRUE(Erscheinen());
    Taste(Qt::Key_Up); // the last one
    Taste(Qt::Key_Return);
    EXPECT_EQ(wahl->currentIndex(), 4);
}

TEST_F(ErgänzungTest, EinKlickWählt)
{
    Tippe("cem");
    ASSERT_TRUE(Erscheinen());
    QTest::mouseClick(Vorschläge()->viewport(), Qt::LeftButton, {},
                      Vorschläge()->visualRect(Vorschläge()->model()->index(0, 0)).center());
    EXPECT_EQ(ereignisse, "gewählt:Cohn,Cem ");
    EXPECT_FALSE(Vorschläge());
}

TEST_F(ErgänzungTest, OhneWahlTutDieEingabetasteWasSieImmerTut)
{
    Tippe("an");
    ASSERT_TRUE(Erscheinen());
    Taste(Qt::Key_Return);
    EXPECT_EQ(Zeigt(wahl), "an");
    EXPECT_EQ(ereignisse, "Eingabe ");
    EXPECT_FALSE(Vorschläge());
}

TEST_F(ErgänzungTest, EscSchließtNurDieVorschläge)
{
    Tippe("an");
    ASSERT_TRUE(Erscheinen());
    Taste(Qt::Key_Escape);
    EXPECT_FALSE(Vorschläge());
    EXPECT_TRUE(fenster.isVisible());
    EXPECT_EQ(Zeigt(wahl), "an");
    EXPECT_EQ(ereignisse, "");
    EXPECT_TRUE(wahl->hasFocus());
}

TEST_F(ErgänzungTest, TabVerläßtDasFeldMitDemGetippten)
{
    Tippe("an");
    ASSERT_TRUE(Erscheinen());
    Taste(Qt::Key_Tab);
    EXPECT_TRUE(anderes->hasFocus());
    EXPECT_FALSE(Vorschläge());
    EXPECT_EQ(Zeigt(wahl), "an");
    EXPECT_EQ(ereignisse, "verlassen ");
}

TEST_F(ErgänzungTest, WasSchonGanzDastehtWirdNichtVorgeschlagen)
{
    Tippe("Cohn,Cem");
    QTest::qWait(250);
    EXPECT_FALSE(Vorschläge());
    QTest::keyClick(wahl, Qt::Key_A, Qt::ControlModifier);
    Tippe(" ");
    QTest::qWait(250);
    EXPECT_FALSE(Vorschläge());
}

TEST_F(ErgänzungTest, WerWeggehtBekommtKeineVorschlägeMehr)
{
    Tippe("an");
    FokusAuf(anderes);
    QTest::qWait(250);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(ErgänzungTest, NurGetipptesWirdErgänzt)
{
    Einsetzen(wahl, "an");
    QTest::qWait(250);
    EXPECT_FALSE(Vorschläge());
    EXPECT_TRUE(fenster.findChildren<QCompleter *>().empty()); // made at the first key
}

TEST_F(ErgänzungTest, EineGeteilteListeGiltAuchHier)
{
    ListeTeilen({wahl}, {"Zorn,Zoe"});
    Tippe("zo");
    ASSERT_TRUE(Erscheinen());
    EXPECT_EQ(Vorgeschlagen(), std::vector<Text>{"Zorn,Zoe"});
    Taste(Qt::Key_Down);
    Taste(Qt::Key_Return);
    EXPECT_EQ(Zeigt(wahl), "Zorn,Zoe");
    ListeTeilen({wahl}, {"Abel,Zoran"}); // the old one is no more
    QTest::keyClick(wahl, Qt::Key_A, Qt::ControlModifier);
    Tippe("zo");
    ASSERT_TRUE(Erscheinen());
    EXPECT_EQ(Vorgeschlagen(), std::vector<Text>{"Abel,Zoran"});
}

TEST_F(ErgänzungTest, EinLangerVorschlagStehtGanzDaAuchWoDasFeldSchmalIst)
{
    const QString lang = "Bergmann-Großmann,Maximiliana Eleonore";
    ListeSetzen(wahl, {lang});
    fenster.resize(fenster.minimumSizeHint());
    wahl->setFixedWidth(80);
    QCoreApplication::processEvents();
    Tippe("max");
    ASSERT_TRUE(Warten([&] { return OffeneErgänzung(wahl->lineEdit()) != nullptr; }));
    const QWidget *liste = OffeneErgänzung(wahl->lineEdit());
    EXPECT_GE(liste->width(), liste->fontMetrics().horizontalAdvance(lang));
}

} // namespace
} // namespace altardienst

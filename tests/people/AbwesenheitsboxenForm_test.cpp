// The absences of a person: arrow keys in the boxes, and the word beside a period that is none.
#include "people/MeßdienerForm.h"
#include "people/Personenstand.h"

namespace altardienst {
namespace {

class AbwesenheitsboxenForm : public Personenstand {
  protected:
    AbwesenheitsboxenForm()
    {
        MeßdienerAnlegen("Anna", "Adler");
        MeßdienerAnlegen("Bea", "Berg");
        Meßdiener.Von2[0] = Heute + 3;
        Meßdiener.Bis2[0] = Heute + 10;
        form = new MeßdienerForm;
        Zeigen(form);
    }
};

TEST_F(AbwesenheitsboxenForm, WoBeideFelderHeuteZeigenStehtKeine)
{
    EXPECT_EQ(Zeigt("Start"), "21.11.2026"); // not set
    for (const char *label : {"Keine1", "Keine3", "Keine4", "Keine5"})
        EXPECT_EQ(Zeigt(label), "keine") << label;
    EXPECT_EQ(Zeigt("Keine2"), "");
    Einsetzen("Schluß", "22.11.2026");
    EXPECT_EQ(Zeigt("Keine1"), "");
    Einsetzen("Schluß", "21.11.2026");
    EXPECT_EQ(Zeigt("Keine1"), "keine");
    Einsetzen("Start3", "25.11.2026"); // the end moves with it
    EXPECT_EQ(Zeigt("Keine3"), "");
    Auslösen("PLUS");
    EXPECT_EQ(Zeigt("Keine2"), "keine");
    const QWidget *keine = Finden("Keine1");
    EXPECT_EQ(keine->foregroundRole(), QPalette::PlaceholderText);
}

TEST_F(AbwesenheitsboxenForm, DiePfeiltastenÄndernDasFeldUndBleibenDarin)
{
    FokusAuf("Start2");
    QTest::keyClick(Finden("Start2"), Qt::Key_Up);
    EXPECT_EQ(Zeigt("Start2"), "25.11.2026");
    QTest::keyClick(Finden("Start2"), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(Zeigt("Start2"), "25.12.2026");
    EXPECT_EQ(Zeigt("Schluß2"), "25.12.2026"); // its rule
    QTest::keyClick(Finden("Start2"), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(Zeigt("Start2"), "25.12.2025");
    EXPECT_TRUE(Finden("Start2")->hasFocus());
    Drehen("ä7", "auf"); // the spin button moves it to the end
    EXPECT_TRUE(Finden("Schluß2")->hasFocus());
}

TEST_F(AbwesenheitsboxenForm, DiePfeiltastenBlätternInDerNummer)
{
    Taste("Datensätze", Qt::Key_Up);
    EXPECT_EQ(Zeigt("Vornamen"), "Bea");
    Taste("Datensätze", Qt::Key_Down);
    EXPECT_EQ(Zeigt("Vornamen"), "Anna");
    EXPECT_TRUE(Finden("Datensätze")->hasFocus());
}

} // namespace
} // namespace altardienst

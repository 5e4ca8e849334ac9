// The window of the handbook: contents, pages, back and forward, size of the letters.
#include "help/Handbuchstand.h"

#include "help/Seitensatz.h"

#include <QTextImageFormat>
#include <QTextTable>
#include <QWheelEvent>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class HandbuchFormTest : public Handbuchstand {
  protected:
    /// The formats of the pictures of the page.
    std::vector<QTextImageFormat> Bilder() const
    {
        std::vector<QTextImageFormat> bilder;
        for (QTextBlock block = form->Seite->document()->begin(); block.isValid();
             block = block.next())
            for (auto teil = block.begin(); !teil.atEnd(); ++teil)
                if (teil.fragment().charFormat().isImageFormat())
                    bilder.push_back(teil.fragment().charFormat().toImageFormat());
        return bilder;
    }

    /// Links are followed by the keyboard as by the mouse: Tab goes to the next one, Enter follows.
    void VerweisFolgen(const char *ziel) const
    {
        FokusAuf(form->Seite);
        for (int i = 0; i < 30 && form->Seite->textCursor().charFormat().anchorHref() != ziel; ++i)
            Taste(Qt::Key_Tab);
        Taste(Qt::Key_Return);
    }

    void RadMitStrg(int drehung) const
    {
        QWheelEvent rad(QPointF(50, 50), form->Seite->viewport()->mapToGlobal(QPointF(50, 50)), {},
                        QPoint(0, drehung), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                        false);
        QApplication::sendEvent(form->Seite->viewport(), &rad);
    }
};

TEST_F(HandbuchFormTest, BeginntMitDerErstenSeite)
{
    Aufschlagen("README.md");
    EXPECT_EQ(form->objectName(), "Handbuch");
    EXPECT_EQ(form->windowTitle(), "Handbuch");
    EXPECT_EQ(Oben(), "Handbuch | Handbuch");
    EXPECT_EQ(Gewählt(), "Handbuch");
    EXPECT_TRUE(form->Seite->hasFocus());
}

TEST_F(HandbuchFormTest, SchlägtEineÜberschriftAuf)
{
    Aufschlagen("plan.md", "die-messenliste");
    EXPECT_EQ(form->windowTitle(), "Handbuch: Vom Wochenmuster zum Plan");
    EXPECT_EQ(Gewählt(), "Die Messenliste");
    EXPECT_TRUE(IstZuSehen(Block("Die Messenliste")));
    const int oben = form->Seite->cursorRect(QTextCursor(Block("Die Messenliste"))).top();
    EXPECT_GE(oben, 0);
    EXPECT_LT(oben, 40);
}

TEST_F(HandbuchFormTest, WasEsNichtGibtIstDieSeiteOderDieErste)
{
    Aufschlagen("plan.md", "gibt-es-nicht");
    EXPECT_EQ(Oben(), "Handbuch: Vom Wochenmuster zum Plan | Vom Wochenmuster zum Plan");
    form->Aufschlagen({"nein.md", ""});
    EXPECT_EQ(Oben(), "Handbuch | Handbuch");
}

TEST_F(HandbuchFormTest, DerInhaltFolgtDenÜberschriften)
{
    Aufschlagen("README.md");
    const auto seiten = HandbuchLesen();
    ASSERT_EQ(form->Inhalt->topLevelItemCount(), static_cast<int>(seiten.size()));
    ASSERT_GE(seiten.size(), 7U);
    for (std::size_t i = 0; i < seiten.size(); ++i) {
        Liste inhalt;
        for (QTreeWidgetItemIterator eintrag(form->Inhalt->topLevelItem(static_cast<int>(i)));
             *eintrag &&
             (*eintrag == form->Inhalt->topLevelItem(static_cast<int>(i)) || (*eintrag)->parent());
             ++eintrag)
            inhalt.push_back((*eintrag)->text(0).toStdString());
        Liste überschriften;
        for (const Titelzeile &eine : seiten[i].Überschriften)
            überschriften.push_back(eine.Worte);
        EXPECT_EQ(inhalt, überschriften) << seiten[i].Name;
    }
}

TEST_F(HandbuchFormTest, EineTiefereÜberschriftHängtUnterDerHöheren)
{
    Aufschlagen("plan.md", "wenn-eine-meldung-kommt");
    const QTreeWidgetItem *eintrag = form->Inhalt->currentItem();
    EXPECT_EQ(eintrag->text(0), "Wenn eine Meldung kommt");
    EXPECT_EQ(eintrag->parent()->text(0), "Worauf die Verlosung achtet");
    EXPECT_EQ(eintrag->parent()->parent()->text(0), "Vom Wochenmuster zum Plan");
    EXPECT_FALSE(form->Inhalt->visualItemRect(eintrag).isEmpty()) << "unfolded";
}

TEST_F(HandbuchFormTest, EinKlickInDenInhaltÖffnetDieStelle)
{
    Aufschlagen("README.md");
    QTreeWidgetItem *leute =
        form->Inhalt->findItems("Messdiener, Gruppen und Helfer", Qt::MatchExactly).at(0);
    leute->setExpanded(true);
    int unter = 0;
    while (leute->child(unter)->text(0) != "Helfer")
        ++unter;
    const QRect helfer = form->Inhalt->visualItemRect(leute->child(unter));
    QTest::mouseClick(form->Inhalt->viewport(), Qt::LeftButton, {}, helfer.center());
    EXPECT_EQ(form->windowTitle(), "Handbuch: Messdiener, Gruppen und Helfer");
    EXPECT_EQ(Gewählt(), "Helfer");
    EXPECT_TRUE(IstZuSehen(Block("Helfer")));
}

TEST_F(HandbuchFormTest, ImInhaltÖffnetDieEingabetaste)
{
    Aufschlagen("README.md");
    FokusAuf(form->Inhalt);
    Taste(Qt::Key_End);
    EXPECT_EQ(form->windowTitle(), "Handbuch") << "looking for it opens nothing";
    Taste(Qt::Key_Return);
    EXPECT_EQ(form->windowTitle(), "Handbuch: Daten sichern und holen");
}

TEST_F(HandbuchFormTest, DerInhaltGehtBeimRollenMit)
{
    Aufschlagen("plan.md");
    FokusAuf(form->Seite);
    Taste(Qt::Key_End);
    EXPECT_EQ(Gewählt(), "Zuordnungen ansehen und ändern");
    Taste(Qt::Key_Home);
    EXPECT_EQ(Gewählt(), "Vom Wochenmuster zum Plan");
}

TEST_F(HandbuchFormTest, VerweiseFührenZuIhrerSeite)
{
    Aufschlagen("README.md");
    VerweisFolgen("drucken.md");
    EXPECT_EQ(Oben(), "Handbuch: Drucken | Drucken");
}

TEST_F(HandbuchFormTest, ZurückFührtAnDieGeleseneStelle)
{
    Aufschlagen("README.md");
    EXPECT_FALSE(form->Zurück->isEnabled());
    EXPECT_FALSE(form->Vor->isEnabled());
    form->Aufschlagen({"plan.md", "die-sieben-schritte"});
    Taste(Qt::Key_PageDown);
    const Text gelesen = Oben();
    form->Aufschlagen({"leute.md", ""});
    EXPECT_TRUE(form->Zurück->isEnabled());

    Klick(form->Zurück);
    EXPECT_EQ(Oben(), gelesen);
    Taste(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(form->windowTitle(), "Handbuch");
    EXPECT_FALSE(form->Zurück->isEnabled());
    Taste(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(form->windowTitle(), "Handbuch");

    Taste(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Oben(), gelesen);
    Klick(form->Vor);
    EXPECT_EQ(Oben(), "Handbuch: Messdiener, Gruppen und Helfer | Messdiener, Gruppen und Helfer");
    EXPECT_FALSE(form->Vor->isEnabled());
}

TEST_F(HandbuchFormTest, DieselbeStelleZweimalIstEinSchritt)
{
    Aufschlagen("README.md");
    for (int i = 0; i < 2; ++i)
        form->Aufschlagen({"plan.md", "die-messenliste"});
    Klick(form->Zurück);
    EXPECT_EQ(form->windowTitle(), "Handbuch");
}

TEST_F(HandbuchFormTest, AnfangFührtZurErstenSeite)
{
    Aufschlagen("plan.md");
    Klick(form->Anfang);
    EXPECT_EQ(Oben(), "Handbuch | Handbuch");
    Klick(form->Zurück);
    Taste(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Oben(), "Handbuch | Handbuch");
}

TEST_F(HandbuchFormTest, EscapeSchließt)
{
    for (const char *fokus : {"Seite", "Suchwort", "Inhalt", "Größer"}) {
        Aufschlagen("README.md");
        FokusAuf(Finden(form, fokus));
        Taste(Qt::Key_Escape);
        EXPECT_TRUE(Warten([&] { return !form; })) << fokus;
    }
}

TEST_F(HandbuchFormTest, NurWasInsNetzFührtVerläßtDasHandbuch)
{
    const auto zuvor = HandbuchForm::AdresseÖffnen;
    Liste geöffnet;
    HandbuchForm::AdresseÖffnen = [&](const QString &adresse) {
        geöffnet.push_back(adresse.toStdString());
    };
    Aufschlagen("leute.md");
    for (const char *verweis :
         {"https://example.org/a?b=c", "file:///etc/passwd", "gibtesnicht.md", "../LICENSE"})
        form->Seite->BeiVerweis(verweis);
    EXPECT_EQ(geöffnet, Liste{"https://example.org/a?b=c"});
    EXPECT_EQ(form->windowTitle(), "Handbuch: Messdiener, Gruppen und Helfer");
    HandbuchForm::AdresseÖffnen = zuvor;
}

TEST_F(HandbuchFormTest, BilderPassenInJedeBreite)
{
    Aufschlagen("README.md");
    for (const int breite : {1400, 700, 620, 1000}) {
        form->resize(breite, 600);
        QApplication::processEvents();
        const auto bilder = Bilder();
        ASSERT_FALSE(bilder.empty());
        const QImage bild(Bilddatei(bilder[0].name()));
        ASSERT_FALSE(bild.isNull());
        EXPECT_LE(bilder[0].width(), form->Seite->viewport()->width()) << breite;
        EXPECT_GE(bilder[0].width(), std::min(form->Seite->viewport()->width() / 2, bild.width()))
            << breite;
        EXPECT_NEAR(bilder[0].height() / bilder[0].width(),
                    static_cast<double>(bild.height()) / bild.width(), 0.01);
        EXPECT_LE(form->Seite->document()->size().width(), form->Seite->viewport()->width());
        EXPECT_FALSE(form->Seite->horizontalScrollBar()->isVisible());
    }
}

TEST_F(HandbuchFormTest, EinBildIstNieGrößerAlsEsIst)
{
    Aufschlagen("plan.md");
    form->resize(3000, 800);
    QApplication::processEvents();
    for (const QTextImageFormat &bild : Bilder())
        EXPECT_LE(bild.width(), QImage(Bilddatei(bild.name())).width());
}

TEST_F(HandbuchFormTest, EineZeileBleibtLesbarKurz)
{
    Aufschlagen("plan.md");
    form->resize(3000, 800);
    QApplication::processEvents();
    const QFontMetrics schrift(form->Seite->document()->defaultFont());
    const QTextLayout *absatz = Block("\"Daten\", \"Standardmessen\"").layout();
    EXPECT_GT(absatz->lineCount(), 1);
    EXPECT_LE(absatz->lineAt(0).naturalTextWidth(), schrift.averageCharWidth() * 110);
}

TEST_F(HandbuchFormTest, BeimVerkleinernBleibtDieGeleseneStelle)
{
    Aufschlagen("plan.md", "die-messenliste");
    const Text oben = Oben();
    for (const QSize &größe : {QSize(700, 500), QSize(1300, 900), QSize(900, 600)}) {
        form->resize(größe);
        QApplication::processEvents();
        EXPECT_EQ(Oben(), oben);
    }
}

TEST_F(HandbuchFormTest, DieSchriftWächstMitTastenRadUndKnöpfen)
{
    Aufschlagen("datensicherung.md");
    const auto grad = [this] { return form->Seite->document()->defaultFont().pointSizeF(); };
    const double normal = grad();
    const double zeile = form->Seite->document()->size().height();
    Taste(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(grad(), normal * 1.1, 0.01);
    EXPECT_GT(form->Seite->document()->size().height(), zeile);
    EXPECT_EQ(Zeigt(form->Normal), "110 %");
    Taste(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(grad(), normal, 0.01);
    RadMitStrg(120);
    EXPECT_NEAR(grad(), normal * 1.1, 0.01);
    RadMitStrg(-120);
    RadMitStrg(-120);
    EXPECT_NEAR(grad(), normal * 0.9, 0.01);
    Klick(form->Größer);
    Klick(form->Größer);
    EXPECT_NEAR(grad(), normal * 1.1, 0.01);
    Taste(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(grad(), normal, 0.01);
    EXPECT_EQ(Zeigt(form->Normal), "100 %");
}

TEST_F(HandbuchFormTest, DieSchriftHatIhreGrenzen)
{
    Aufschlagen("plan.md");
    for (int i = 0; i < 20; ++i)
        Klick(form->Größer);
    EXPECT_EQ(Zeigt(form->Normal), "300 %");
    EXPECT_FALSE(form->Größer->isEnabled());
    for (int i = 0; i < 30; ++i)
        Taste(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Zeigt(form->Normal), "70 %");
    EXPECT_FALSE(form->Kleiner->isEnabled());
    Klick(form->Normal);
    EXPECT_TRUE(form->Kleiner->isEnabled());
}

TEST_F(HandbuchFormTest, AuchDieNamenVonDateienWachsen)
{
    Aufschlagen("datensicherung.md");
    Taste(Qt::Key_Plus, Qt::ControlModifier);
    int namen = 0;
    for (QTextBlock block = form->Seite->document()->begin(); block.isValid(); block = block.next())
        for (auto teil = block.begin(); !teil.atEnd(); ++teil)
            if (const auto format = teil.fragment().charFormat(); format.fontFixedPitch()) {
                ++namen;
                EXPECT_FALSE(format.hasProperty(QTextFormat::FontPointSize));
            }
    EXPECT_GT(namen, 10);
}

TEST_F(HandbuchFormTest, BeimVergrößernBleibtDieGeleseneStelle)
{
    Aufschlagen("plan.md", "die-messenliste");
    const Text oben = Oben();
    Klick(form->Größer);
    Klick(form->Größer);
    EXPECT_EQ(Oben(), oben);
    form->Aufschlagen({"leute.md", ""});
    EXPECT_EQ(Zeigt(form->Normal), "125 %") << "on all pages";
    EXPECT_GT(form->Seite->document()->defaultFont().pointSizeF(), form->font().pointSizeF() * 1.2);
}

/// A page in these colours: everything on it can be read.
void AllesIstLesbar(HandbuchForm &form, const QPalette &palette)
{
    form.setPalette(palette);
    const QColor grund = form.Seite->palette().color(QPalette::Base);
    EXPECT_EQ(grund, palette.color(QPalette::Base));
    EXPECT_GE(Kontrast(form.Seite->palette().color(QPalette::Text), grund), 4.5);
    int verweise = 0;
    int namen = 0;
    for (QTextBlock block = form.Seite->document()->begin(); block.isValid(); block = block.next())
        for (auto teil = block.begin(); !teil.atEnd(); ++teil) {
            const QTextCharFormat format = teil.fragment().charFormat();
            if (format.isAnchor()) {
                ++verweise;
                EXPECT_GE(Kontrast(format.foreground().color(), grund), 4.5);
            }
            if (format.fontFixedPitch()) {
                ++namen;
                EXPECT_GE(Kontrast(palette.color(QPalette::Text), format.background().color()),
                          4.5);
            }
        }
    EXPECT_GT(verweise + namen, 0);
    for (QTextFrame *rahmen : form.Seite->document()->rootFrame()->childFrames())
        if (auto *tafel = qobject_cast<QTextTable *>(rahmen)) {
            const QColor kopf = tafel->cellAt(0, 0).format().background().color();
            EXPECT_NE(kopf, grund);
            EXPECT_GE(Kontrast(palette.color(QPalette::Text), kopf), 4.5);
        }
}

TEST_F(HandbuchFormTest, HellUndDunkelLesbar)
{
    QPalette hell(QColor(0xef, 0xef, 0xef));
    QPalette dunkel(QColor(0x2a, 0x2e, 0x32));
    dunkel.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
    dunkel.setColor(QPalette::Text, QColor(0xfc, 0xfc, 0xfc));
    dunkel.setColor(QPalette::Link, QColor(0x00, 0x00, 0xff)); // as it is where no one sets it
    hell.setColor(QPalette::Base, Qt::white);
    hell.setColor(QPalette::Text, Qt::black);
    hell.setColor(QPalette::Link, QColor(0x80, 0xff, 0xff));
    for (const char *seite : {"README.md", "datensicherung.md"}) {
        Aufschlagen(seite);
        AllesIstLesbar(*form, hell);
        AllesIstLesbar(*form, dunkel);
        AllesIstLesbar(*form, hell);
    }
    for (const QPalette &palette : {hell, dunkel}) {
        const Seitenfarben farben = SeitenfarbenFür(palette);
        for (const QColor &grund : {farben.Treffer, farben.Fundstelle})
            EXPECT_GE(Kontrast(farben.AufTreffer, grund), 4.5);
    }
}

TEST_F(HandbuchFormTest, KontrastIstDerDerHelligkeiten)
{
    EXPECT_NEAR(Kontrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Kontrast(Qt::white, Qt::white), 1, 0.01);
    EXPECT_NEAR(Kontrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
    EXPECT_NEAR(Kontrast(Qt::white, QColor(0x77, 0x77, 0x77)), 4.48, 0.01);
}

TEST_F(HandbuchFormTest, TabFolgtDemAugeUndAllesHatEinenNamen)
{
    Aufschlagen("drucken.md");                   // a page without links
    form->Aufschlagen({"einstellungen.md", ""}); // so that there is a way back
    FokusAuf(form->Suchwort);
    EXPECT_EQ(Tabfolge(form), (Liste{"Suchwort", "Inhalt", "Zurück", "Anfang", "Kleiner", "Normal",
                                     "Größer", "Seite"}));
    EXPECT_EQ(Stumme(form), Liste{});
    EXPECT_EQ(form->Seite->accessibleName(), "Einstellungen") << "the page that is open";
}

TEST_F(HandbuchFormTest, KnöpfeNennenIhreTasten)
{
    Aufschlagen("plan.md");
    for (const auto &[knopf, taste] : {std::pair(form->Zurück, "Alt+Pfeil links"),
                                       {form->Vor, "Alt+Pfeil rechts"},
                                       {form->Anfang, "Alt+Pos1"},
                                       {form->Kleiner, "Strg+-"},
                                       {form->Normal, "Strg+0"},
                                       {form->Größer, "Strg++"}})
        EXPECT_TRUE(knopf->toolTip().contains(taste)) << taste;
}

TEST_F(HandbuchFormTest, PasstAufDenKleinstenBildschirm)
{
    Aufschlagen("datensicherung.md");
    const QSize kleinste = form->minimumSizeHint();
    EXPECT_LE(kleinste.width(), KleinsterBildschirm.width());
    EXPECT_LE(kleinste.height(), KleinsterBildschirm.height());
    form->resize(KleinsterBildschirm);
    QApplication::processEvents();
    for (QPushButton *knopf : {form->Zurück, form->Vor, form->Anfang, form->Kleiner, form->Größer})
        EXPECT_TRUE(
            form->rect().contains(QRect(knopf->mapTo(form.data(), QPoint()), knopf->size())))
            << knopf->objectName().toStdString();
    EXPECT_GT(form->Seite->viewport()->width(), 300);
}

} // namespace
} // namespace altardienst

// The status bar: sections, what was done last for some seconds, what lasts.
#include "application/Statuszeile.h"

#include "Fensterstand.h"
#include "application/Mitteilung.h"
#include "controls/Kurztext.h"

#include <QHelpEvent>
#include <QMainWindow>
#include <QToolTip>

#include <map>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class StatuszeileTest : public Fensterstand {
  protected:
    StatuszeileTest()
    {
        zeile->Dauer = std::chrono::milliseconds(60);
        haupt->setStatusBar(zeile);
        haupt->resize(900, 300);
    }

    void ZweiAbschnitte() const
    {
        zeile->Zeigen({{"Messen", "34 Messen", "vom Ersten bis zum Letzten"},
                       {"Plätze", "", ""},
                       {"Leute", "45 Meßdiener", ""}});
    }

    /// What stands in the bar, from left to right.
    Liste Sichtbar() const
    {
        std::map<int, Text> texte;
        for (const QLabel *feld : zeile->findChildren<QLabel *>())
            if (feld->isVisible())
                texte[feld->x()] = feld->text().toStdString();
        Liste liste;
        for (const auto &[x, text] : texte)
            liste.push_back(text);
        return liste;
    }

    Text Gesprochen() const { return zeile->accessibleName().toStdString(); }

    QPointer<QMainWindow> haupt = new QMainWindow;
    Statuszeile *zeile = new Statuszeile;
};

TEST_F(StatuszeileTest, AbschnitteStehenNebeneinanderUndLeereFehlen)
{
    ZweiAbschnitte();
    Zeigen(haupt);
    EXPECT_EQ(Sichtbar(), (Liste{"34 Messen", "45 Meßdiener"}));
    EXPECT_EQ(Gesprochen(), "34 Messen; 45 Meßdiener");
    EXPECT_EQ(Finden(zeile, "StatusMessen")->toolTip().toStdString(), "vom Ersten bis zum Letzten");
    zeile->Zeigen({{"Messen", "35 Messen", ""}, {"Plätze", "alle Plätze besetzt", ""}});
    QCoreApplication::processEvents();
    EXPECT_EQ(Sichtbar(), (Liste{"35 Messen", "alle Plätze besetzt", "45 Meßdiener"}));
}

TEST_F(StatuszeileTest, WasGetanIstStehtMitDerUhrzeitEineWeileDort)
{
    ZweiAbschnitte();
    Zeigen(haupt);
    Sekunden = 14 * 3600 + 5 * 60 + 59;
    Mitteilen("gespeichert");
    QCoreApplication::processEvents();
    EXPECT_EQ(Sichtbar(), Liste{"14:05 gespeichert"});
    EXPECT_EQ(Gesprochen(), "14:05 gespeichert");
    EXPECT_TRUE(Warten([&] { return Sichtbar() == Liste{"34 Messen", "45 Meßdiener"}; }));
    EXPECT_EQ(Gesprochen(), "34 Messen; 45 Meßdiener");
}

TEST_F(StatuszeileTest, DasLetzteGiltUndNeueZahlenVerdrängenEsNicht)
{
    zeile->Dauer = std::chrono::hours(1);
    Zeigen(haupt);
    Mitteilen("gespeichert");
    Mitteilen("Gruppen sortiert");
    ZweiAbschnitte();
    EXPECT_EQ(Sichtbar(), Liste{"12:00 Gruppen sortiert"});
}

TEST_F(StatuszeileTest, EsWartetBisDasHauptfensterVornIst)
{
    Zeigen(haupt);
    QWidget dialog;
    Zeigen(&dialog);
    Mitteilen("Plan als Text geschrieben");
    QTest::qWait(200); // more than three times as long as it is shown
    EXPECT_EQ(Sichtbar(), Liste{"12:00 Plan als Text geschrieben"});
    dialog.close();
    Zeigen(haupt);
    EXPECT_EQ(Sichtbar(), Liste{"12:00 Plan als Text geschrieben"});
    EXPECT_TRUE(Warten([&] { return Sichtbar().empty(); }));
}

TEST_F(StatuszeileTest, WasVorDemHauptfensterGeschahSagtEsZuerst)
{
    Mitteilen("8 Dateien kopiert");
    auto *neue = new Statuszeile;
    haupt->setStatusBar(neue);
    Zeigen(haupt);
    EXPECT_EQ(Zeigt(Finden(neue, "StatusMitteilung")), "12:00 8 Dateien kopiert");
    EXPECT_TRUE(Finden(neue, "StatusMitteilung")->isVisible());
}

TEST_F(StatuszeileTest, WasDauertBleibtNebenAllemAnderen)
{
    ZweiAbschnitte();
    Zeigen(haupt);
    DauerndMitteilen("Prüfung", "3 Befunde");
    Mitteilen("gespeichert");
    QCoreApplication::processEvents();
    EXPECT_EQ(Sichtbar(), (Liste{"12:00 gespeichert", "3 Befunde"}));
    DauerndMitteilen("Stand", "nicht geschrieben");
    DauerndMitteilen("Prüfung", "2 Befunde");
    EXPECT_TRUE(Warten([&] {
        return Sichtbar() == Liste{"34 Messen", "45 Meßdiener", "2 Befunde", "nicht geschrieben"};
    }));
    DauerndMitteilen("Prüfung", "");
    QCoreApplication::processEvents();
    EXPECT_EQ(Sichtbar(), (Liste{"34 Messen", "45 Meßdiener", "nicht geschrieben"}));
    EXPECT_EQ(Gesprochen(), "34 Messen; 45 Meßdiener; nicht geschrieben");
}

TEST_F(StatuszeileTest, EinLangerWegWirdInDerMitteGekürztUndMachtDasFensterNichtBreiter)
{
    zeile->Dauer = std::chrono::hours(1);
    ZweiAbschnitte();
    Zeigen(haupt);
    const int breite = haupt->minimumSizeHint().width();
    const Text weg = "/media/" + Text(300, 'w') + "/Altardienst.pdf";
    Mitteilen("PDF geschrieben: " + weg);
    QCoreApplication::processEvents();
    EXPECT_LE(haupt->minimumSizeHint().width(), std::max(breite, 300));
    auto *feld = static_cast<Kurztext *>(Finden(zeile, "StatusMitteilung"));
    const Text sichtbar = feld->Sichtbar().toStdString();
    EXPECT_TRUE(sichtbar.starts_with("12:00 PDF geschrieben: /media/w")) << sichtbar;
    EXPECT_TRUE(sichtbar.ends_with("w/Altardienst.pdf")) << sichtbar;
    EXPECT_LT(sichtbar.size(), weg.size());
    EXPECT_EQ(Gesprochen(), "12:00 PDF geschrieben: " + weg) << "read out in full";
    QHelpEvent frage(QEvent::ToolTip, {5, 5}, feld->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(feld, &frage);
    EXPECT_EQ(QToolTip::text().toStdString(), "12:00 PDF geschrieben: " + weg);
    QToolTip::hideText();
}

} // namespace
} // namespace altardienst

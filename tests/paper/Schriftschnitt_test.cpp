// On paper bold is only what is meant to be, whatever the system calls its fonts: measured by the
// ink.
#include "Prüfstand.h"
#include "controls/Bausteine.h"
#include "paper/DruckerQt.h"
#include "printing/PdfLesen.h"

#include <QFontDatabase>

namespace altardienst {
namespace {

constexpr const char *Probe = "HHHHHH";

class SchriftschnittTest : public Prüfstand {
  protected:
    /// How many dots of a page with a line of letters are black.
    int Schwärze(const Text &schrift, bool fett)
    {
        const QString datei = Anzeige(Festplatte.string()) + "/Probe.pdf";
        DruckerQt drucker([&](const Druckanfrage &) { return Druckauswahl{0, PdfDrucker(datei)}; });
        drucker.Dialog({});
        drucker.FontName(schrift);
        drucker.FontSize(40);
        for (const bool jetzt : {!fett, fett}) { // the other one comes first in the same document
            drucker.NewPage();
            drucker.FontBold(jetzt);
            drucker.CurrentX(1440);
            drucker.CurrentY(1440);
            drucker.Print(Probe);
        }
        drucker.EndDoc();
        Aufruf("pdftoppm", {"-png", "-r", "144", "-f", "2", "-singlefile", datei, datei});
        const QImage seite = QImage(datei + ".png").convertToFormat(QImage::Format_Grayscale8);
        int schwarz = 0;
        for (int y = 0; y < seite.height(); ++y)
            for (int x = 0; x < seite.width(); ++x)
                schwarz += seite.pixelColor(x, y).red() < 128 ? 1 : 0;
        return schwarz;
    }
};

/// Arial is the font of the parishes that come with the program for Windows. Both cuts of
/// Liberation Sans have one name under Wine, which makes one font of them on paper.
TEST_F(SchriftschnittTest, FettIstNurWasFettGemeintIst)
{
#ifdef _WIN32
    const std::vector<Text> schriften = {"Arial", "DejaVu Sans"};
#else
    const std::vector<Text> schriften = {"Liberation Sans", "DejaVu Sans"};
#endif
    int geprüft = 0;
    for (const Text &schrift : schriften) {
        if (!QFontDatabase::hasFamily(Anzeige(schrift)))
            continue;
        ++geprüft;
        const int mager = Schwärze(schrift, false);
        EXPECT_GT(mager, 1000) << schrift;
        EXPECT_GT(Schwärze(schrift, true), mager * 1.3) << schrift;
    }
    EXPECT_GT(geprüft, 0);
}

} // namespace
} // namespace altardienst

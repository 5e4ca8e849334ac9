// The handbook that is built in, page by page, and its places for the windows of the program.
#include "help/Handbuchstand.h"

#include "help/Fensterseiten.h"

#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <set>

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

class HandbuchFormSeitenTest : public Handbuchstand {
  protected:
    const Handbuchseite *Seite(const Text &name) const
    {
        const auto seite = std::ranges::find(seiten, name, &Handbuchseite::Name);
        return seite == seiten.end() ? nullptr : &*seite;
    }

    bool GibtEs(const Handbuchstelle &stelle) const
    {
        const Handbuchseite *seite = Seite(stelle.Seite);
        return seite && (stelle.Anker.empty() || seite->Abschnitt(stelle.Anker) >= 0);
    }

    std::vector<Handbuchseite> seiten = HandbuchLesen();
};

TEST_F(HandbuchFormSeitenTest, AlleSeitenSindEingebaut)
{
    std::set<Text> dateien;
    for (const auto &datei : fs::directory_iterator(fs::path(DOCS) / "handbuch"))
        if (datei.path().extension() == ".md")
            dateien.insert(TextVon(datei.path().filename()));
    std::set<Text> eingebaut;
    for (const Handbuchseite &seite : seiten) {
        eingebaut.insert(seite.Name);
        EXPECT_EQ(seite.Markdown.toStdString(),
                  DateiLesen(fs::path(DOCS) / "handbuch" / PfadAus(seite.Name)));
    }
    EXPECT_EQ(eingebaut, dateien);
    EXPECT_EQ(seiten.front().Name, ErsteSeite);
}

TEST_F(HandbuchFormSeitenTest, ZuJederSeiteFührtDieErste)
{
    std::set<Text> ziele = {ErsteSeite};
    for (const Text &verweis : Verweise(seiten.front().Markdown.toStdString()))
        ziele.insert(StelleVon(verweis, ErsteSeite).Seite);
    for (const Handbuchseite &seite : seiten)
        EXPECT_TRUE(ziele.contains(seite.Name)) << seite.Name;
}

TEST_F(HandbuchFormSeitenTest, JedeSeiteBeginntMitIhremTitel)
{
    for (const Handbuchseite &seite : seiten) {
        ASSERT_FALSE(seite.Überschriften.empty()) << seite.Name;
        EXPECT_EQ(seite.Überschriften.front().Stufe, 1) << seite.Name;
        EXPECT_EQ(std::ranges::count(seite.Überschriften, 1, &Titelzeile::Stufe), 1) << seite.Name;
    }
}

TEST_F(HandbuchFormSeitenTest, InhaltUndSeiteHabenDieselbenÜberschriften)
{
    Aufschlagen(ErsteSeite);
    for (const Handbuchseite &seite : seiten) {
        form->Aufschlagen({seite.Name, ""});
        Liste gesetzt;
        for (QTextBlock block = form->Seite->document()->begin(); block.isValid();
             block = block.next())
            if (const int stufe = block.blockFormat().headingLevel(); stufe > 0)
                gesetzt.push_back(std::to_string(stufe) + " " + block.text().toStdString());
        Liste gelesen;
        for (const Titelzeile &eine : seite.Überschriften)
            gelesen.push_back(std::to_string(eine.Stufe) + " " + eine.Worte);
        EXPECT_EQ(gesetzt, gelesen) << seite.Name;
    }
}

TEST_F(HandbuchFormSeitenTest, JedeÜberschriftLäßtSichAufschlagen)
{
    Aufschlagen(ErsteSeite);
    for (const Handbuchseite &seite : seiten)
        for (const Titelzeile &eine : seite.Überschriften) {
            form->Aufschlagen({seite.Name, eine.Anker});
            EXPECT_EQ(Gewählt(), eine.Worte) << seite.Name;
            bool zuSehen = false;
            for (QTextBlock block = form->Seite->document()->begin(); block.isValid();
                 block = block.next())
                zuSehen =
                    zuSehen || (block.blockFormat().headingLevel() == eine.Stufe &&
                                block.text().toStdString() == eine.Worte && IstZuSehen(block));
            EXPECT_TRUE(zuSehen) << seite.Name << "#" << eine.Anker;
        }
}

TEST_F(HandbuchFormSeitenTest, AlleVerweiseUndBilderGibtEs)
{
    int verweise = 0;
    for (const Handbuchseite &seite : seiten)
        for (const Text &verweis : Verweise(seite.Markdown.toStdString())) {
            ++verweise;
            if (FührtHinaus(verweis))
                continue;
            if (verweis.ends_with(".png"))
                EXPECT_TRUE(QFileInfo::exists(Bilddatei(Anzeige(verweis))))
                    << seite.Name << ": " << verweis;
            else
                EXPECT_TRUE(GibtEs(StelleVon(verweis, seite.Name)))
                    << seite.Name << ": " << verweis;
        }
    EXPECT_GT(verweise, 20);
}

TEST_F(HandbuchFormSeitenTest, DieSucheFindetInJederSeiteWasDortSteht)
{
    Aufschlagen(ErsteSeite);
    for (const Handbuchseite &seite : seiten) {
        form->Aufschlagen({seite.Name, ""});
        Suchen(seite.Titel().c_str());
        ASSERT_GT(form->Fundliste->count(), 0) << seite.Name;
        bool dabei = false;
        for (int i = 0; i < form->Fundliste->count() && !dabei; ++i) {
            form->Fundliste->setCurrentRow(i);
            dabei = form->Seite->accessibleName() == Anzeige(seite.Titel()) &&
                    IstZuSehen(Block(seite.Titel()));
        }
        EXPECT_TRUE(dabei) << seite.Name;
    }
}

TEST_F(HandbuchFormSeitenTest, JedeStelleZuEinemFensterGibtEs)
{
    for (const auto &[fenster, stelle] : Fensterseiten())
        EXPECT_TRUE(GibtEs(StelleVon(stelle, ""))) << fenster << ": " << stelle;
}

/// A form is a pair of files named after it, so the files tell which there are.
TEST_F(HandbuchFormSeitenTest, JedesFensterHatEineStelle)
{
    const std::set<Text> keine = {"Kopier"}; // what three dialogs share
    std::set<Text> formen = {"CommonDialog1", "DateienKopieren", "Dateikopie", "Datensicherung"};
    for (const auto &datei : fs::recursive_directory_iterator(PfadAus(QUELLEN))) {
        const Text name = TextVon(datei.path().filename());
        if (name.ends_with("Form.h"))
            formen.insert(name.substr(0, name.size() - Text("Form.h").size()));
    }
    EXPECT_GT(formen.size(), 35U);
    for (const Text &name : formen)
        EXPECT_EQ(Fensterseiten().contains(name), !keine.contains(name)) << name;
    for (const auto &[fenster, stelle] : Fensterseiten())
        EXPECT_TRUE(formen.contains(fenster) || fenster.find('/') != Text::npos)
            << "there is no window " << fenster;
}

} // namespace
} // namespace altardienst

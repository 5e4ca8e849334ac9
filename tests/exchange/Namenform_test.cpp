// How much of a name leaves the house.
#include "exchange/Namenform.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class NamenformTest : public Prüfstand {
  protected:
    /// One name in all forms, in their order.
    static std::vector<Text> Formen(const Text &vorname, const Text &nachname)
    {
        std::vector<Text> formen;
        for (const Namenform form : {Namenform::Ganz, Namenform::VornameUndBuchstabe,
                                     Namenform::NurVorname, Namenform::Anfangsbuchstaben})
            formen.push_back(Namengeber(form).Von(vorname, nachname));
        return formen;
    }
};

using Liste = std::vector<Text>;

TEST_F(NamenformTest, JedeFormSagtWenigerVomNamen)
{
    MeßdienerAnlegen("Änne", "Überall");
    EXPECT_EQ(Formen("Änne", "Überall"), (Liste{"Änne Überall", "Änne Ü.", "Änne", "Ä. Ü."}));
}

TEST_F(NamenformTest, VorgeschlagenWirdVornameUndBuchstabe)
{
    EXPECT_EQ(Namenvorschlag, Namenform::VornameUndBuchstabe);
    EXPECT_EQ(Namenformtexte[static_cast<std::size_t>(Namenvorschlag)],
              "Vorname und erster Buchstabe (Anna A.)");
}

TEST_F(NamenformTest, NurWerVerwechseltWürdeBekommtMehrBuchstaben)
{
    MeßdienerAnlegen("Anna", "Meier");
    HelferAnlegen("Anna", "Müller", "Lektor");
    MeßdienerAnlegen("Ben", "Müller");
    EXPECT_EQ(Formen("Anna", "Meier")[1], "Anna Me.");
    EXPECT_EQ(Formen("Anna", "Müller")[1], "Anna Mü.");
    EXPECT_EQ(Formen("Ben", "Müller")[1], "Ben M.");
}

TEST_F(NamenformTest, AuchDerEinzigeNameWirdGekürzt)
{
    MeßdienerAnlegen("", "Adler");
    MeßdienerAnlegen("Kim", "");
    EXPECT_EQ(Formen("", "Adler"), (Liste{"Adler", "A.", "A.", "A."}));
    EXPECT_EQ(Formen("Kim", ""), (Liste{"Kim", "Kim", "Kim", "K."}));
    EXPECT_EQ(Formen("", ""), (Liste{"", "", "", ""}));
}

TEST_F(NamenformTest, WerInKeinerTabelleStehtWirdEbensoGekürzt)
{
    EXPECT_EQ(Formen("Gast", "Fremd"), (Liste{"Gast Fremd", "Gast F.", "Gast", "G. F."}));
}

TEST_F(NamenformTest, EineGruppeIstKeinePerson)
{
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    EXPECT_EQ(Formen("Gruppe", "Große"), Liste(4, "Gruppe Große"));
}

} // namespace
} // namespace altardienst

// What is true of the check of every plan, in thousands of random parishes: it agrees with a second
// one, it finds nothing that a draw guarantees, and it follows each change.
#include "Zweitprüfung.h"

#include "assignment/Dienste.h"
#include "assignment/Helferzuweisung.h"
#include "assignment/MEßdienerzuweiseung.h"
#include "assignment/Zuweisungsrahmen.h"
#include "assignment/ZweiMeßdienerzuweisen.h"
#include "core/Sortierbefehle.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "overview/Planprüfung.h"

namespace altardienst {
namespace {

constexpr unsigned Gemeinden = 2000;
constexpr int Geduld = 30000; // readings of a clock that stands still

class PlanprüfungEigenschaftenTest : public Gemeindestand {
  protected:
    /// A parish whose places are free, with a plan period.
    void NeueGemeinde(unsigned saat)
    {
        GemeindeErwürfeln(saat);
        Würfel w(saat);
        Konfig.StartDatum = w.Prozent(10) ? Datum(0) : Beginn + w.Zahl(-5, 15);
        Konfig.Tage = w.Zahl(7, 30);
        for (int i = 0; i < Messe.Anzahl; ++i)
            if (w.Prozent(70)) // the services add up
                Messe.Allgemein[i] = Messe.Dienerzahl[i] - Messe.Gabenbereitung[i] -
                                     Messe.Leuchter[i] - Messe.Flambeau[i] - Messe.Weihrauch[i] -
                                     Messe.Kreuzträger[i];
        AllesLeeren();
        MessenSortieren();
    }

    static void AllesLeeren()
    {
        for (int i = 0; i < Messe.Anzahl; ++i) {
            for (int slot = 1; slot <= MeisteSlots; ++slot)
                Leeren(Messe, Dienerplatznr(i, slot));
            for (int nr = 0; nr < 8; ++nr)
                Leeren(Messe, Helferplatznr(i, nr));
        }
    }

    /// Somebody, a stranger, or nobody.
    static void ZufälligBesetzen(Würfel &w, Planplatz platz)
    {
        const bool helfer = platz.Was == Planplatz::Art::Helfer;
        const int nr = w.Zahl(0, (helfer ? Helfer.Anzahl : Meßdiener.Anzahl) + 1);
        if (w.Prozent(8))
            Leeren(Messe, platz);
        else if (w.Prozent(3))
            Besetzen(Messe, platz, "V" + std::to_string(nr), "");
        else
            Besetzen(Messe, platz, "V" + std::to_string(nr), "N" + std::to_string(nr));
    }

    static Planplatz ZufälligerPlatz(Würfel &w)
    {
        const int i = w.Zahl(0, Messe.Anzahl - 1);
        return w.Prozent(70) ? Dienerplatznr(i, w.Zahl(1, MeisteSlots))
                             : Helferplatznr(i, w.Zahl(0, 7));
    }

    static void AllesZufälligBesetzen(Würfel &w)
    {
        for (int i = 0; i < Messe.Anzahl; ++i) {
            for (int slot = 1; slot <= std::min<int>(MeisteSlots, Messe.Dienerzahl[i] + 1); ++slot)
                ZufälligBesetzen(w, Dienerplatznr(i, slot));
            for (int nr = 0; nr < 8; ++nr)
                ZufälligBesetzen(w, Helferplatznr(i, nr));
        }
    }

    /// Few servers, so that everything happens to everybody; some share a name.
    static void LeuteVermischen(Würfel &w)
    {
        Meßdiener.Anzahl = std::min<int>(Meßdiener.Anzahl, w.Zahl(3, 40));
        for (int j = 1; j < Meßdiener.Anzahl; ++j)
            if (w.Prozent(4)) {
                Meßdiener.Vorname[j] = Meßdiener.Vorname[j - 1];
                Meßdiener.Nachname[j] = Meßdiener.Nachname[j - 1];
            }
        for (int j = 0; j < Meßdiener.Anzahl; ++j)
            if (w.Prozent(40)) {
                const int partner = w.Zahl(0, Meßdiener.Anzahl);
                Meßdiener.WunschVorname[j] = "V" + std::to_string(partner);
                Meßdiener.WunschNachname[j] = "N" + std::to_string(partner);
                Meßdiener.Häufigkeit[j] = w.Zahl(-3, 2);
            }
    }

    static ::testing::AssertionResult StimmtÜberein(const Planprüfung &prüfung)
    {
        const Text unterschied = Unterschied(UrteileAus(prüfung.Alle()), Zweitprüfung().Alle());
        if (!unterschied.empty())
            return ::testing::AssertionFailure() << unterschied;
        return ::testing::AssertionSuccess();
    }

    /// The rules that every drawn server keeps for himself, as the tests of the draw know them.
    static void StimmtMitDenRegelnDerZiehungÜberein(const Planprüfung &prüfung)
    {
        const std::set<Regel> fürSich = {Regel::Abwesend, Regel::Wochendienst, Regel::Wochentag,
                                         Regel::Qualifikation};
        DiensteVerteilen();
        std::set<Planplatz> gemeldet;
        for (const Befund &befund : prüfung.Alle())
            if (befund.Wo.Was == Planplatz::Art::Diener && fürSich.contains(befund.Gegen))
                gemeldet.insert(befund.Wo);
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int slot = 1; slot <= std::min<int>(Messe.Dienerzahl[i], MeisteSlots); ++slot) {
                const Planplatz platz = Dienerplatznr(i, slot);
                const int j = prüfung.WerSteht(platz);
                ASSERT_EQ(j >= 0 && !VerstoßFürSich(i, slot, j, true).empty(),
                          gemeldet.contains(platz))
                    << i << " " << slot;
            }
    }

    /// Whether a server was drawn for a place, or placed beside one as his wish.
    static std::set<Planplatz> AlsPartnerGesetzte()
    {
        std::set<Planplatz> gesetzte;
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int slot = 1; slot < std::min<int>(Messe.Dienerzahl[i], MeisteSlots); ++slot) {
                const int j = WerSteht(i, slot);
                if (j >= 0 && !Meßdiener.WunschVorname[j].empty() &&
                    Meßdiener.WunschVorname[j] == Messe.DienerVor[i][slot + 1] &&
                    !Meßdiener.WunschNachname[j].empty() &&
                    Meßdiener.WunschNachname[j] == Messe.DienerNach[i][slot + 1])
                    gesetzte.insert(Dienerplatznr(i, ++slot));
            }
        return gesetzte;
    }
};

TEST_F(PlanprüfungEigenschaftenTest, StimmtMitDerZweitenÜbereinWerImmerDasteht)
{
    std::array<int, Regelzahl> vorgekommen{};
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        NeueGemeinde(saat);
        Würfel w(saat);
        LeuteVermischen(w);
        AllesZufälligBesetzen(w);
        const Planprüfung prüfung;
        ASSERT_TRUE(StimmtÜberein(prüfung));
        StimmtMitDenRegelnDerZiehungÜberein(prüfung);
        for (const Befund &befund : prüfung.Alle())
            ++vorgekommen[static_cast<std::size_t>(befund.Gegen)];
    }
    for (std::size_t regel = 0; regel < vorgekommen.size(); ++regel)
        EXPECT_GE(vorgekommen[regel], 50) << Regelname(static_cast<Regel>(regel));
}

TEST_F(PlanprüfungEigenschaftenTest, FolgtJederÄnderung)
{
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        NeueGemeinde(saat);
        Würfel w(saat);
        LeuteVermischen(w);
        AllesZufälligBesetzen(w);
        Planprüfung prüfung;
        for (int schritt = 0; schritt < 20; ++schritt) {
            const Planplatz platz = ZufälligerPlatz(w);
            ZufälligBesetzen(w, platz);
            if (w.Prozent(20)) // a whole mass
                for (int slot = 1; slot <= MeisteSlots; ++slot)
                    ZufälligBesetzen(w, Dienerplatznr(platz.Messe, slot));
            if (w.Prozent(5))
                Messe.Datum[platz.Messe] = Beginn + w.Zahl(0, 20);
            if (w.Prozent(5))
                Messe.Dienerzahl[platz.Messe] = w.Zahl(-1, 30);
            if (w.Prozent(5))
                Messe.Uhrzeit[platz.Messe] = Messe.Uhrzeit[w.Zahl(0, Messe.Anzahl - 1)];
            if (w.Prozent(5))
                Messe.KantorZahl[platz.Messe] = w.Zahl(0, 2);
            if (w.Prozent(5))
                Messe.LektorZahl[platz.Messe] = w.Zahl(0, 2);
            if (w.Prozent(5))
                Messe.Weihrauch[platz.Messe] = w.Zahl(0, 2);
            prüfung.MesseGeändert(platz.Messe);
            const Planprüfung frisch;
            ASSERT_EQ(prüfung.Alle(), frisch.Alle()) << "step " << schritt;
            ASSERT_EQ(prüfung.Verstöße(), frisch.Verstöße());
            ASSERT_EQ(prüfung.Hinweise(), frisch.Hinweise());
        }
        ASSERT_TRUE(StimmtÜberein(prüfung));
    }
}

TEST_F(PlanprüfungEigenschaftenTest, DerVolleWegHältWasErVerspricht)
{
    const std::set<Regel> versprochen = {Regel::Frei,
                                         Regel::Unbekannt,
                                         Regel::Mehrdeutig,
                                         Regel::Doppelt,
                                         Regel::SelberTag,
                                         Regel::Nachbartag,
                                         Regel::Größe,
                                         Regel::Qualifikation,
                                         Regel::Abwesend,
                                         Regel::Geschlecht,
                                         Regel::Wochentag,
                                         Regel::Wochendienst,
                                         Regel::ÜberzähligerName};
    int fertige = 0;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        NeueGemeinde(saat);
        LaufDiensteVerteilen();
        UhrStehtFür(Geduld);
        MeßdienerVollZuweisen();
        Planprüfung prüfung;
        ASSERT_TRUE(StimmtÜberein(prüfung));
        if (!UhrBewegt) {
            ++fertige;
            for (const Befund &befund : prüfung.Alle())
                if (befund.Wo.Was == Planplatz::Art::Diener && versprochen.contains(befund.Gegen)) {
                    // This way tests another service where it writes one twice.
                    ASSERT_TRUE(befund.Gegen == Regel::Qualifikation &&
                                DienstDesSlots(befund.Wo.Messe, befund.Wo.Nr) !=
                                    DienstAm(Messe, befund.Wo))
                        << Satz(prüfung.Tabellen(), befund);
                }
        }
        FesteMeßdienerÜbertragen();
        prüfung.Neu();
        ASSERT_TRUE(StimmtÜberein(prüfung));
        for (const Befund &befund : prüfung.Alle())
            ASSERT_NE(befund.Gegen, Regel::FesterEintrag) << Satz(prüfung.Tabellen(), befund);
    }
    EXPECT_GE(fertige, 1000);
}

TEST_F(PlanprüfungEigenschaftenTest, DerPartnerwegHältWasErVerspricht)
{
    // A partner is tested for nothing but being taken.
    const std::set<Regel> ohnePartner = {Regel::Unbekannt, Regel::Qualifikation, Regel::Abwesend,
                                         Regel::Wochentag, Regel::Wochendienst,  Regel::Mehrdeutig};
    const std::set<Regel> auchFürPartner = {Regel::Doppelt, Regel::SelberTag, Regel::Nachbartag,
                                            Regel::Geschlecht};
    int fertige = 0;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        NeueGemeinde(saat);
        DienstProDienerRechnen();
        DiensteVerteilen();
        UhrStehtFür(Geduld);
        WunschpartnerZuweisen();
        const Planprüfung prüfung;
        ASSERT_TRUE(StimmtÜberein(prüfung));
        if (UhrBewegt)
            continue;
        ++fertige;
        const std::set<Planplatz> partner = AlsPartnerGesetzte();
        for (const Befund &befund : prüfung.Alle()) {
            if (befund.Wo.Was != Planplatz::Art::Diener)
                continue;
            SCOPED_TRACE(Satz(prüfung.Tabellen(), befund));
            if (befund.Grad == Stufe::Verstoß) {
                ASSERT_FALSE(auchFürPartner.contains(befund.Gegen));
                ASSERT_TRUE(!ohnePartner.contains(befund.Gegen) || partner.contains(befund.Wo));
            }
            if (befund.Gegen == Regel::Frei) { // the last slot after a cross set by hand
                ASSERT_TRUE(befund.Grad == Stufe::Hinweis ||
                            (Konfig.ManuellKreuzträger == 1 &&
                             befund.Wo.Nr == Messe.Dienerzahl[befund.Wo.Messe]));
            }
            if (befund.Gegen == Regel::ÜberzähligerName) {
                ASSERT_TRUE(Konfig.ManuellWeihrauch == 1 || Konfig.ManuellKreuzträger == 1);
            }
        }
        FesteMeßdienerÜbertragen();
        const Planprüfung danach;
        ASSERT_TRUE(StimmtÜberein(danach));
        for (const Befund &befund : danach.Alle())
            ASSERT_NE(befund.Gegen, Regel::FesterEintrag) << Satz(prüfung.Tabellen(), befund);
    }
    EXPECT_GE(fertige, 1000);
}

TEST_F(PlanprüfungEigenschaftenTest, DieHelferwegeHaltenWasSieVersprechen)
{
    int voll = 0;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        NeueGemeinde(saat);
        if (saat % 2 == 0) // enough helpers for the tests
            for (int i = 0; i < Messe.Anzahl; ++i) {
                Messe.KollektZahl[i] = 0;
                Messe.KommZahl[i] = std::min<int>(Messe.KommZahl[i], i % 2);
                Messe.LektorZahl[i] = std::min<int>(Messe.LektorZahl[i], 1);
                Messe.KantorZahl[i] = i % 3 == 0 ? 1 : 0;
            }
        bool genug = true;
        for (const Helferart &art : Helferarten) {
            int helfer = 0;
            for (int h = 0; h < Helfer.Anzahl; ++h)
                helfer += Helfer.Dienst1[h] == art.Name ? 1 : 0;
            genug = genug && helfer >= 2 * GrößteTagessumme(art.Zahl.In(Messe));
        }
        UhrStehtFür(Geduld);
        HelferZuweisen();
        if (UhrBewegt)
            continue;
        voll += genug;
        const Planprüfung prüfung;
        ASSERT_TRUE(StimmtÜberein(prüfung));
        for (const Befund &befund : prüfung.Alle()) {
            if (befund.Wo.Was != Planplatz::Art::Helfer)
                continue;
            SCOPED_TRACE(Satz(prüfung.Tabellen(), befund));
            ASSERT_NE(befund.Gegen, Regel::Frei);
            ASSERT_NE(befund.Gegen, Regel::Unbekannt);
            ASSERT_TRUE(!genug ||
                        (befund.Gegen == Regel::Helferdienst && befund.Grad == Stufe::Hinweis));
        }
    }
    EXPECT_GE(voll, 300);
}

} // namespace
} // namespace altardienst

// Drives the real windows without a screen: loads a directory, presses the buttons of the main
// window, writes the plan and pictures, and exits by the exit routine.
#include "application/Anwendung.h"
#include "application/Dateiwahl.h"
#include "application/Fangnetz.h"
#include "application/Gemerktes.h"
#include "controls/Bausteine.h"
#include "core/Messenname.h"
#include "core/Umwandlung.h"
#include "exchange/KalenderForm.h"
#include "exchange/WebseiteForm.h"
#include "fairness/Ausgleich.h"
#include "fairness/AusgleichForm.h"
#include "overview/Planprüfung.h"
#include "paper/Druckdialog.h"
#include "paper/DruckerQt.h"
#include "platform/Laufwerke.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"
#include "printing/DialogForm.h"
#include "printing/DruckForm.h"
#include "search/SuchenForm.h"
#include "settings/KopierForm.h"
#include "shell/HauptForm.h"
#include "shell/Programm.h"
#include "shell/StartForm.h"

#include <QCommandLineParser>
#include <QPointer>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTimer>

#include <cstdio>
#include <stdexcept>
#include <vector>

namespace {

using namespace altardienst;

/// Among the steps: checks the plan as it is then.
constexpr int Prüfschritt = 0;
/// Balances it.
constexpr int Ausgleichsschritt = -1;

/// How often the clock was read since the step began, if it goes by its readings.
std::int64_t Ablesungen = 0;

/// What the command line asks for; an empty text or path asks for nothing.
struct Auftrag {
    std::filesystem::path Daten;
    QString Start;
    QString Tage;
    QList<int> Schritte;
    std::uint32_t Saat = 1;
    QStringList Einträge;
    QString Suche;
    std::filesystem::path Text;
    std::filesystem::path Kalender;
    std::filesystem::path KalenderJePerson;
    std::filesystem::path Webseite;
    QString Pdf;
    QString Berichte;
    QString Bilder;
};

std::filesystem::path Pfad(const QString &text)
{
    return text.isEmpty() ? std::filesystem::path()
                          : std::filesystem::absolute(PfadAus(text.toStdString()));
}

Datum DatumVon(const QCommandLineParser &zeile, const QCommandLineOption &option)
{
    try {
        return DatumLesen(zeile.value(option).toStdString());
    } catch (const Laufzeitfehler &) {
        throw std::invalid_argument("--" + option.names().first().toStdString() + " takes a date");
    }
}

Auftrag AuftragLesen(QCommandLineParser &zeile)
{
    const QCommandLineOption daten("daten", "directory with the eight files", "DIR");
    const QCommandLineOption heute("heute", "the day that counts as today", "TT.MM.JJJJ");
    const QCommandLineOption start("start", "first day of the plan", "TT.MM.JJJJ");
    const QCommandLineOption tage("tage", "days of the plan", "N");
    const QCommandLineOption uhr("uhr",
                                 "a clock that is at noon when a step begins and goes by its "
                                 "readings, so many a second: no result hangs on the machine",
                                 "N");
    const QCommandLineOption saat("saat", "seed of the draw, in place of the clock's", "N");
    const QCommandLineOption schritte(
        "schritte",
        "buttons to press, such as 1,4,5; ausgleichen balances the plan, pruefen checks it",
        "LISTE");
    const QCommandLineOption menü(
        "menue",
        "menu entries to choose after the steps, such as mnuHelfer,mnuMessen/NeuMeß: with a button "
        "of what they open",
        "LISTE");
    const QCommandLineOption suche("suche", "look for this with \"Suchen\"", "TEXT");
    const QCommandLineOption text("text", "write the plan as text", "FILE");
    const QCommandLineOption datei("datei", "the file that is chosen wherever one is to be chosen",
                                   "FILE");
    const QCommandLineOption kalender("kalender", "write all masses as a calendar", "FILE");
    const QCommandLineOption jePerson("kalender-je-person", "write a calendar for each person",
                                      "DIR");
    const QCommandLineOption webseite("webseite", "write the plan as a web page", "FILE");
    const QCommandLineOption pdf("pdf", "print the plan to a PDF file", "FILE");
    const QCommandLineOption berichte(
        "berichte", "print every report of the form Druck, in each of its layouts, to PDF files",
        "DIR");
    const QCommandLineOption bilder("bilder", "save a picture of every window passed", "DIR");
    const QCommandLineOption antwort("antwort", "answer to every question", "ja|nein", "ja");
    zeile.addHelpOption();
    zeile.addOptions({daten, heute, uhr, start, tage, saat, schritte, menü, suche, text, datei,
                      kalender, jePerson, webseite, pdf, berichte, bilder, antwort});
    zeile.process(*QCoreApplication::instance());
    const QStringList übrig = zeile.positionalArguments();
    if (!übrig.isEmpty()) // such as the rest of "1, 4, 5"
        throw std::invalid_argument("unexpected argument " + übrig.first().toStdString());
    if (!zeile.isSet(daten))
        throw std::invalid_argument("--daten is missing");

    Auftrag auftrag;
    auftrag.Daten = Pfad(zeile.value(daten));
    if (zeile.isSet(start))
        auftrag.Start = Anzeige(KurzesDatum(DatumVon(zeile, start)));
    auftrag.Tage = zeile.value(tage);
    bool istTageszahl = auftrag.Tage.isEmpty();
    if (!istTageszahl)
        auftrag.Tage.toInt(&istTageszahl);
    if (!istTageszahl)
        throw std::invalid_argument("--tage takes a number");
    const QStringList nummern = zeile.value(schritte).split(',', Qt::SkipEmptyParts);
    for (const QString &nummer : nummern) {
        bool istZahl = false;
        const int schritt = nummer.toInt(&istZahl);
        if (nummer == "pruefen")
            auftrag.Schritte.append(Prüfschritt);
        else if (nummer == "ausgleichen")
            auftrag.Schritte.append(Ausgleichsschritt);
        else if (istZahl && schritt >= 1 && schritt <= 7)
            auftrag.Schritte.append(schritt);
        else
            throw std::invalid_argument(
                "--schritte takes numbers from 1 to 7, pruefen and ausgleichen");
    }
    auftrag.Einträge = zeile.value(menü).split(',', Qt::SkipEmptyParts);
    auftrag.Suche = zeile.value(suche);
    auftrag.Text = Pfad(zeile.value(text));
    auftrag.Kalender = Pfad(zeile.value(kalender));
    auftrag.KalenderJePerson = Pfad(zeile.value(jePerson));
    auftrag.Webseite = Pfad(zeile.value(webseite));
    auftrag.Pdf = zeile.value(pdf);
    auftrag.Berichte = zeile.value(berichte);
    auftrag.Bilder = zeile.value(bilder);

    Laufwerke.Programmverzeichnis = [verzeichnis = auftrag.Daten] { return verzeichnis; };
    if (zeile.isSet(datei))
        Dateiwahl.Öffnen = Dateiwahl.Speichern =
            [pfad = Pfad(zeile.value(datei))](QWidget *, const Dateiwunsch &) { return pfad; };
    if (zeile.isSet(heute))
        Uhr.Heute = [tag = DatumVon(zeile, heute)] { return tag; };
    if (zeile.isSet(uhr)) {
        const int jeSekunde = zeile.value(uhr).toInt();
        if (jeSekunde < 1)
            throw std::invalid_argument("--uhr takes a number from 1");
        Uhr.Sekunden = [jeSekunde] {
            return static_cast<int>((SekundenProTag / 2 + Ablesungen++ / jeSekunde) %
                                    SekundenProTag);
        };
    }
    if (zeile.isSet(saat)) {
        bool istZahl = false;
        auftrag.Saat = zeile.value(saat).toUInt(&istZahl);
        Zufall = ZufallMitSaat(auftrag.Saat);
        if (!istZahl)
            throw std::invalid_argument("--saat takes a number");
    }
    const QString ja = zeile.value(antwort);
    if (ja != "ja" && ja != "nein")
        throw std::invalid_argument("--antwort takes ja or nein");
    Meldungen.Zeigen = [](const Text &meldung) { std::printf("Meldung: %s\n", meldung.c_str()); };
    Meldungen.Fragen = Meldungen.FragenVorVerlust = [ja](const Text &frage, const Text &) {
        std::printf("Frage: %s\n", frage.c_str());
        return ja == "ja";
    };
    return auftrag;
}

/// The visible window of that type, null if there is none.
template <class Form> Form *OffenesFenster()
{
    QCoreApplication::processEvents();
    for (QWidget *fenster : QApplication::topLevelWidgets())
        if (auto *form = dynamic_cast<Form *>(fenster); form && form->isVisible())
            return form;
    return nullptr;
}

template <class Form> Form *Fenster()
{
    if (Form *form = OffenesFenster<Form>())
        return form;
    throw std::runtime_error("a window did not open");
}

void BefundeNennen()
{
    const Planprüfung prüfung;
    for (const Befund &befund : prüfung.Alle())
        std::printf("Befund: %s, %s: %s\n", befund.Grad == Stufe::Verstoß ? "Verstoß" : "Hinweis",
                    Messenzeile(befund.Wo.Messe).c_str(), Satz(prüfung.Tabellen(), befund).c_str());
    std::printf("Befunde: %s\n", Befundzahl(prüfung.Verstöße(), prüfung.Hinweise()).c_str());
}

void PlanGerechtMachen(std::uint32_t saat)
{
    const Ausgleichsergebnis ergebnis = PlanAusgleichen(GemeinsameTabellen(), {.Saat = saat});
    AusgleichÜbernehmen(ergebnis);
    const Ausgleichszahlen &diener = ergebnis.Diener.Nachher;
    std::printf("Verstöße: %d\n", diener.Verstöße + ergebnis.Helfer.Nachher.Verstöße);
    std::printf("Dienste: %d..%d\n", diener.Wenigste, diener.Meiste);
    std::printf("Ungleichheit: %.2f\n", diener.Ungleichheit);
}

class Lauf {
  public:
    explicit Lauf(Auftrag auftrag) : auftrag(std::move(auftrag)) { Drucker = &drucker; }

    void Starten()
    {
        ProgrammStarten();
        if (auto *kopie = OffenesFenster<DateienKopierenForm>()) { // if files are missing
            Bild(kopie);
            kopie->close();
        }
        auto *start = Fenster<StartForm>();
        if (!auftrag.Start.isEmpty())
            start->Datumsen->setText(auftrag.Start);
        if (!auftrag.Tage.isEmpty())
            start->Tagilein->setText(auftrag.Tage);
        Bild(start);
        start->Starten->click();
        haupt = Fenster<HauptForm>();
        haupt->showNormal();
        haupt->resize(1024, 720);
        Bild(haupt);
    }

    void Schritte()
    {
        const std::array knöpfe = {haupt->Messenorgani,    haupt->Meßdienernern, haupt->Dienstus,
                                   haupt->MeßdienerMessen, haupt->Helfend,       haupt->AnzMesse,
                                   haupt->Messendruck};
        for (const int schritt : auftrag.Schritte) {
            Ablesungen = 0; // in between the windows read it at any time
            if (schritt == Prüfschritt) {
                BefundeNennen();
                continue;
            }
            if (schritt == Ausgleichsschritt) {
                PlanGerechtMachen(auftrag.Saat);
                continue;
            }
            QPushButton *knopf = knöpfe.at(static_cast<std::size_t>(schritt - 1));
            if (!knopf->isEnabled())
                throw std::runtime_error("button " + std::to_string(schritt) + " is disabled");
            knopf->click();
            AndereSchließen();
        }
    }

    void Menü()
    {
        for (const QString &weg : auftrag.Einträge) {
            const QString name = weg.section('/', 0, 0);
            auto *eintrag = haupt->findChild<QAction *>(name);
            if (!eintrag || !eintrag->isEnabled())
                throw std::runtime_error("no menu entry " + name.toStdString());
            eintrag->trigger();
            if (const QString knopf = weg.section('/', 1); !knopf.isEmpty())
                Drücken(knopf);
            AusgleichAbwarten();
            AndereSchließen();
            if (eintrag->isCheckable()) // changes the main window itself
                Bild(haupt);
        }
    }

    void Suchen()
    {
        if (auftrag.Suche.isEmpty())
            return;
        auto *suchen = new SuchenForm(haupt);
        suchen->show();
        suchen->Suchtext->setText(auftrag.Suche);
        Bild(suchen);
        suchen->close();
    }

    void TextSchreiben()
    {
        if (auftrag.Text.empty())
            return;
        haupt->findChild<QAction *>("mnuMessenlisteText")->trigger();
        auto *dialog = Fenster<DialogForm>();
        dialog->Wahl.Öffnen(auftrag.Text.parent_path());
        // The dialog adds the extension itself.
        const bool hatEndung = auftrag.Text.extension() == ".txt";
        const auto name = hatEndung ? auftrag.Text.stem() : auftrag.Text.filename();
        dialog->Dateiname->setText(Anzeige(TextVon(name)));
        dialog->Überschreib->click();
        Bild(dialog);
        dialog->OKButton->click();
        if (dialog->isVisible())
            throw std::runtime_error("the text could not be written");
        AndereSchließen();
        if (!hatEndung)
            std::filesystem::rename(PfadAus(TextVon(auftrag.Text) + ".txt"), auftrag.Text);
    }

    void Weitergeben()
    {
        if (!auftrag.Kalender.empty())
            Ausgeben<KalenderForm>("mnuKalender", auftrag.Kalender, [](KalenderForm *) {});
        if (!auftrag.KalenderJePerson.empty())
            Ausgeben<KalenderForm>("mnuKalender", auftrag.KalenderJePerson,
                                   [](KalenderForm *form) { form->JePerson->click(); });
        if (!auftrag.Webseite.empty())
            Ausgeben<WebseiteForm>("mnuWebseite", auftrag.Webseite, [](WebseiteForm *form) {
                form->DanachÖffnen->setChecked(false);
            });
    }

    void Drucken()
    {
        if (!auftrag.Pdf.isEmpty()) {
            datei = auftrag.Pdf;
            haupt->Messendruck->click();
        }
        if (!auftrag.Berichte.isEmpty())
            BerichteDrucken();
    }

    void Beenden() { haupt->close(); }

  private:
    void Drücken(const QString &knopf)
    {
        QCoreApplication::processEvents();
        const QWidgetList offen = QApplication::topLevelWidgets();
        for (QWidget *fenster : offen)
            if (auto *gefunden = fenster->findChild<QPushButton *>(knopf);
                gefunden && fenster != haupt && fenster->isVisible())
                return gefunden->click();
        throw std::runtime_error("no button " + knopf.toStdString());
    }

    /// Opens a form, prepares it and has it write there.
    template <class Form>
    void Ausgeben(const char *eintrag, const std::filesystem::path &ziel,
                  void (*vorbereiten)(Form *))
    {
        const auto wählen = [&ziel](QWidget *, const Dateiwunsch &) { return std::optional(ziel); };
        Dateiwahl = {wählen, wählen, wählen};
        haupt->findChild<QAction *>(eintrag)->trigger();
        auto *form = Fenster<Form>();
        vorbereiten(form);
        form->Speichern->click();
        std::printf("%s\n", qPrintable(form->Hinweis->text()));
        if (const QString satz = form->Hinweis->text();
            satz.isEmpty() || satz.startsWith("Nicht ") || satz.contains(", dann nicht: "))
            throw std::runtime_error("nothing was written");
        AndereSchließen();
        DateiwahlEinrichten();
    }

    /// On the picture of that window a plan has been found.
    static void AusgleichAbwarten()
    {
        auto *form = OffenesFenster<AusgleichForm>();
        if (!form)
            return;
        form->Ausgleichen->click();
        while (!form->Ausgleichen->isEnabled())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    void BerichteDrucken()
    {
        haupt->findChild<QAction *>("mnuFilePrint")->trigger();
        auto *druck = Fenster<DruckForm>();
        for (QPushButton *knopf : {druck->Messendruck, druck->Standarddruck, druck->Meßdienerdruck,
                                   druck->DruckiMeßdieneri, druck->Wunschpartner,
                                   druck->DruckHelfer, druck->Erfassungsbogen, druck->Erfaßung,
                                   druck->Etikettenrahmen->Etiketten, druck->EtikGross}) {
            const QString stamm = auftrag.Berichte + "/" + knopf->objectName();
            modus = 0;
            datei = stamm + ".pdf";
            knopf->click();
            if (!hatZweiteForm)
                continue;
            modus = DruckerDienst::ZweiteForm;
            datei = stamm + "-2.pdf";
            knopf->click();
        }
        AndereSchließen();
    }

    void AndereSchließen()
    {
        QCoreApplication::processEvents();
        const QWidgetList alle = QApplication::topLevelWidgets();
        const std::vector<QPointer<QWidget>> offen(alle.begin(), alle.end());
        for (const auto &fenster : offen) { // one may go with another
            if (!fenster || fenster == haupt || !fenster->isVisible() || fenster->parent())
                continue;
            Bild(fenster);
            fenster->close();
        }
        QCoreApplication::processEvents();
    }

    void Bild(QWidget *fenster)
    {
        if (auftrag.Bilder.isEmpty())
            return;
        QCoreApplication::processEvents();
        ++bilder;
        const QString name = QString("%1/%2-%3.png")
                                 .arg(auftrag.Bilder)
                                 .arg(bilder, 2, 10, QChar('0'))
                                 .arg(fenster->objectName());
        if (!fenster->grab().save(name))
            throw std::runtime_error("no picture could be written to " + name.toStdString());
        std::printf("Bild: %s\n", qPrintable(name));
    }

    Auftrag auftrag;
    HauptForm *haupt = nullptr;
    int bilder = 0;
    QString datei; // where the next report goes; empty: as if the print dialog was cancelled
    int modus = 0; // its layout
    bool hatZweiteForm = false;
    DruckerQt drucker{[this](const Druckanfrage &anfrage) -> std::optional<Druckauswahl> {
        hatZweiteForm = anfrage.HatZweiFormen();
        if (!auftrag.Bilder.isEmpty()) {
            DruckdialogForm dialog(anfrage);
            dialog.show();
            Bild(&dialog);
        }
        if (datei.isEmpty())
            return std::nullopt;
        return Druckauswahl{modus, PdfDrucker(datei)};
    }};
};

/// The offscreen platform, with a screen as large as the smallest in use; its description goes to
/// the file. On Windows it is the screen of the user: without one there are no fonts, and the colon
/// of a drive would end the name of the file.
QByteArray OhneBildschirm([[maybe_unused]] QTemporaryFile &beschreibung)
{
#ifdef Q_OS_WIN
    return "windows";
#else
    if (!beschreibung.open())
        return "offscreen";
    beschreibung.write(R"({"screens":[{"name":"","x":0,"y":0,"width":1024,"height":768,)"
                       R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
    beschreibung.close();
    return "offscreen:configfile=" + beschreibung.fileName().toLocal8Bit();
#endif
}

int Gescheitert(const char *grund)
{
    std::fprintf(stderr, "planlauf: %s\n", grund);
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QTemporaryFile bildschirm;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", OhneBildschirm(bildschirm));
    const QTemporaryDir verzeichnis; // so that a run leaves nothing of its windows to the user
    Fangnetz anwendung(argc, argv);
    AnwendungEinrichten(anwendung);
    GemerktesIn(verzeichnis.filePath("Gemerktes.ini"));
    int ergebnis = 0;
    try {
        QCommandLineParser zeile;
        Lauf lauf(AuftragLesen(zeile));
        QTimer::singleShot(0, [&] {
            try {
                lauf.Starten();
                lauf.Schritte();
                lauf.Menü();
                lauf.Suchen();
                lauf.TextSchreiben();
                lauf.Weitergeben();
                lauf.Drucken();
                lauf.Beenden();
            } catch (const std::exception &fehler) {
                ergebnis = Gescheitert(fehler.what());
                QApplication::exit(ergebnis);
            }
        });
        const int beendet = QApplication::exec();
        return ergebnis != 0 ? ergebnis : beendet;
    } catch (const std::exception &fehler) {
        return Gescheitert(fehler.what());
    }
}

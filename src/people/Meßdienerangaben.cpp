// What is asked of every server, in the editor and in the dialog that adds one.
#include "people/Meßdienerangaben.h"

#include "controls/Handler.h"
#include "core/tables.h"

#include <QHBoxLayout>

namespace altardienst {
namespace {

constexpr int KleinsteGröße = 5; // cm
constexpr int GrößteGröße = 250;

void GrößeVerbinden(const Zahlbox &größe)
{
    QLineEdit *feld = größe.Feld;
    QObject::connect(feld, &QLineEdit::textChanged, feld,
                     Abgefangen([feld] { Begrenzen(feld, KleinsteGröße, GrößteGröße); }));
    DrehenMitFokus(größe);
}

} // namespace

Meßdienerangaben::Meßdienerangaben()
    : Person({"Vornamen", "Nachnamen", "Straßen", "Postleit", "Gemeinde", "Teflon", "Emeil"}),
      Gebutag("Gebutag", {"Änderung1", "Änderung2", "Änderung3"}, "Geburtstag"),
      Geschl(Textwahl("Geschl", "Geschlecht")), Groß(ZahlboxAnlegen("Groß", "Änderung7", "Größe:")),
      Eintritttdatum("Eintritttdatum", {"Änderung4", "Änderung5", "Änderung6"}, "Eintrittsdatum"),
      Dieenst(Textwahl("Dieenst", "Gruppe"))
{
    ListeSetzen(Geschl, {"männlich", "weiblich"});
    // All that goes into the one file whose values are separated by commas.
    for (QLineEdit *feld : {Person.Vorname, Person.Nachname, Person.Straße, Person.Ort,
                            Person.Telefon, Person.EMail, Geschl->lineEdit(), Dieenst->lineEdit()})
        FeldPrüfen(feld, ZerreißtDieDatei("fehlen alle Meßdiener ab hier"));
}

void Meßdienerangaben::Anordnen(QGridLayout *raster, int breite) const
{
    Person.Anordnen(raster, 0, breite);
    Gebutag.Anordnen(raster, 7, "Geburtstag:");
    raster->addWidget(Beschriftung("", "Geschlecht:", Geschl), 8, 0);
    raster->addWidget(Geschl, 8, 1, 1, breite, Qt::AlignLeft);
    auto *größe = new QHBoxLayout;
    größe->setSpacing(6);
    größe->addWidget(Groß.Feld);
    größe->addWidget(Beschriftung("", "cm"));
    größe->addWidget(Groß.Spin);
    größe->addStretch();
    raster->addWidget(Beschriftung("", "Größe:", Groß.Feld), 9, 0);
    raster->addLayout(größe, 9, 1, 1, breite);
    Eintritttdatum.Anordnen(raster, 10, "Eintrittsdatum:");
    raster->addWidget(Beschriftung("", "Gruppe:", Dieenst), 11, 0);
    raster->addWidget(Dieenst, 11, 1, 1, breite);
    raster->setColumnStretch(breite, 1);
    raster->setRowStretch(12, 1);
}

void Meßdienerangaben::Verbinden() const
{
    Person.Verbinden();
    Gebutag.SchritteVerbinden();
    Eintritttdatum.SchritteVerbinden();
    GrößeVerbinden(Groß);
}

void Meßdienerangaben::GruppenlisteFüllen() const
{
    QStringList namen;
    for (int i = 0; i <= Gruppe.Anzahl; ++i)
        namen.append(Anzeige(Gruppe.Bezeichnung[i]));
    ListeSetzen(Dieenst, namen);
}

void Meßdienerangaben::Zeigen(int i) const
{
    Person.Zeigen(Meßdiener, i);
    Gebutag.Zeigen(Meßdiener.Geburtstag[i]);
    Setzen(Geschl, Meßdiener.Geschlecht[i]);
    ZahlSetzen(Groß.Feld, Meßdiener.Größe[i]);
    Eintritttdatum.Zeigen(Meßdiener.Eintrittsdatum[i]);
    Setzen(Dieenst, Meßdiener.Gruppe[i]);
}

void Meßdienerangaben::Schreiben(int i) const
{
    Person.Schreiben(Meßdiener, i);
    Meßdiener.Geburtstag[i] = Gebutag.Wert();
    Meßdiener.Geschlecht[i] = TextVon(Geschl);
    Meßdiener.Größe[i] = LesenOderFokus(Groß.Feld, Int16Lesen);
    Meßdiener.Eintrittsdatum[i] = Eintritttdatum.Wert();
    Meßdiener.Gruppe[i] = TextVon(Dieenst);
}

} // namespace altardienst

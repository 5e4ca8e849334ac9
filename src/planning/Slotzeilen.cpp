// The rows of a mass's servers: service, first name, surname.
#include "planning/Slotzeilen.h"

#include "controls/Bausteine.h"
#include "controls/Ergänzung.h"
#include "controls/Tippgedächtnis.h"
#include "core/Namen.h"
#include "core/tables.h"

#include <QStringListModel>

#include <algorithm>
#include <string>
#include <vector>

namespace altardienst {
namespace {

QString Nummeriert(const char *stamm, std::size_t k)
{
    return QString::fromUtf8(stamm) + QString::number(k + 1);
}

/// The servers that can be proposed, in the order of their records.
std::vector<int> BenannteDiener()
{
    std::vector<int> diener;
    diener.reserve(static_cast<std::size_t>(std::max<int>(Meßdiener.Anzahl, 0)));
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        if (!Meßdiener.Vorname[i].empty() && !Meßdiener.Nachname[i].empty())
            diener.push_back(i);
    return diener;
}

} // namespace

Slotzeilen::Slotzeilen()
{
    for (std::size_t k = 0; k < MDR.size(); ++k) {
        vor[k] = Textfeld(Nummeriert("vor", k).toUtf8().constData());
        nach[k] = Textfeld(Nummeriert("nach", k).toUtf8().constData());
        MDR[k] = altardienst::Beschriftung(("MDR[" + std::to_string(k) + "]").c_str(),
                                           (Nummeriert("Meßdiener ", k) + ":").toUtf8().constData(),
                                           vor[k]);
        vor[k]->setAccessibleName(Nummeriert("Vorname Meßdiener ", k));
        nach[k]->setAccessibleName(Nummeriert("Nachname Meßdiener ", k));
    }
}

QLayout *Slotzeilen::Anordnen() const
{
    auto *raster = new QGridLayout;
    raster->setVerticalSpacing(3);
    raster->setHorizontalSpacing(6);
    constexpr int Nebeneinander = 2; // as they walk in
    constexpr int Spalten = 4;       // of each: label, two boxes, a gap
    for (int k = 0; k < static_cast<int>(MDR.size()); ++k) {
        const auto slot = static_cast<std::size_t>(k);
        const int zeile = k / Nebeneinander;
        const int spalte = k % Nebeneinander * Spalten;
        raster->addWidget(MDR[slot], zeile, spalte);
        raster->addWidget(vor[slot], zeile, spalte + 1);
        raster->addWidget(nach[slot], zeile, spalte + 2);
    }
    const int beschriftung = MDR[0]->fontMetrics().horizontalAdvance("Meßdiener 20 :");
    for (int spalte = 0; spalte < Nebeneinander * Spalten; spalte += Spalten) {
        raster->setColumnMinimumWidth(spalte, beschriftung);
        for (const int name : {spalte + 1, spalte + 2}) {
            raster->setColumnMinimumWidth(name, 90);
            raster->setColumnStretch(name, 1); // also where no row has a second slot
        }
    }
    raster->setColumnMinimumWidth(Spalten - 1, 10);
    raster->setRowStretch(raster->rowCount(), 1);
    return raster;
}

void Slotzeilen::Sichtbar(int diener) const
{
    QLayout *ordnung = MDR[0]->parentWidget()->layout();
    ordnung->setEnabled(false); // so that it lays out once for all rows
    for (std::size_t k = 0; k < MDR.size(); ++k)
        for (QWidget *control : std::initializer_list<QWidget *>{MDR[k], vor[k], nach[k]})
            control->setVisible(diener > static_cast<int>(k));
    ordnung->setEnabled(true);
    ordnung->invalidate();
}

void Slotzeilen::Beschriften(const Slottexte &texte) const
{
    for (std::size_t k = 0; k < MDR.size(); ++k)
        Setzen(MDR[k], texte[k]);
}

void Slotzeilen::Ergänzen() const
{
    auto *liste = new QStringListModel(vor[0]);
    const auto füllen = [liste]() -> QAbstractItemModel * {
        QStringList namen;
        for (const int i : BenannteDiener())
            namen << Anzeige(Listenname(Meßdiener.Nachname[i], Meßdiener.Vorname[i]));
        if (namen != liste->stringList())
            liste->setStringList(namen);
        return liste;
    };
    for (std::size_t k = 0; k < MDR.size(); ++k) {
        const auto eintragen = [vor = vor[k], nach = nach[k]](int zeile) {
            const int i = BenannteDiener()[static_cast<std::size_t>(zeile)];
            Eintippen(vor, Meßdiener.Vorname[i]);
            Eintippen(nach, Meßdiener.Nachname[i]);
        };
        for (QLineEdit *feld : {vor[k], nach[k]})
            altardienst::Ergänzen(feld, {füllen, eintragen});
    }
}

void Slotzeilen::Zeigen(int i) const
{
    for (std::size_t k = 0; k < MDR.size(); ++k) {
        const int slot = static_cast<int>(k) + 1;
        Setzen(vor[k], Messe.DienerVor[i][slot]);
        Setzen(nach[k], Messe.DienerNach[i][slot]);
    }
}

void Slotzeilen::Schreiben(int i) const
{
    for (std::size_t k = 0; k < MDR.size(); ++k) {
        const int slot = static_cast<int>(k) + 1;
        Messe.DienerVor[i][slot] = TextVon(vor[k]);
        Messe.DienerNach[i][slot] = TextVon(nach[k]);
    }
}

} // namespace altardienst

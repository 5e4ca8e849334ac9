// The fixture of the tests of statistics windows: they print to a PDF file, and their tables are
// read by the position of the labels.
#pragma once

#include "Formstand.h"
#include "application/Anwendung.h"
#include "controls/Handler.h"
#include "paper/DruckerQt.h"
#include "printing/PdfLesen.h"

#include <QGroupBox>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace altardienst {

class Statistikstand : public Formstand<> {
  protected:
    Statistikstand() : zuvor(std::exchange(Drucker, &drucker))
    {
        Benannt(&haupt, "Haupt");
        HauptfensterSetzen(&haupt);
        haupt.showMaximized();
    }
    ~Statistikstand() override
    {
        Drucker = zuvor;
        HauptfensterSetzen(nullptr);
    }

    /// As the menu opens it.
    template <class Form> Form *Öffnen()
    {
        auto *neu = new Form;
        form = neu;
        DialogÖffnen(neu);
        Zeigen(neu);
        return neu;
    }

    /// What is in a row up to this label, such as "Leuchter|3|1,500".
    Text ZeileBis(const char *name) const
    {
        const QRect ort = Ort(Finden<QLabel>(name));
        Text zeile;
        for (const QLabel *label : ImFenster()) {
            const QRect o = Ort(label);
            if (std::abs(o.center().y() - ort.center().y()) <= 6 && o.left() <= ort.left() &&
                o.left() >= linkeGrenze)
                zeile += (zeile.empty() ? "" : "|") + Zeigt(label);
        }
        return zeile;
    }

    /// What is immediately to the right of this label.
    Text Danach(const char *name) const
    {
        const QRect ort = Ort(Finden<QLabel>(name));
        for (const QLabel *label : ImFenster())
            if (std::abs(Ort(label).center().y() - ort.center().y()) <= 6 &&
                Ort(label).left() > ort.left())
                return Zeigt(label);
        return "nothing to the right of " + Text(name);
    }

    /// The heading of this label's column.
    Text Kopf(const char *name) const
    {
        const QRect ort = Ort(Finden<QLabel>(name));
        const QLabel *kopf = nullptr;
        for (const QLabel *label : ImFenster())
            if (label->font().bold() && Ort(label).bottom() < ort.top() &&
                Ort(label).left() <= ort.center().x() && ort.center().x() <= Ort(label).right())
                kopf = label;
        return kopf ? Zeigt(kopf) : "nothing above " + Text(name);
    }

    /// The headings of the tables, from left to right.
    std::vector<Text> Köpfe() const
    {
        std::vector<Text> köpfe;
        for (const QLabel *label : ImFenster())
            if (label->font().bold())
                köpfe.push_back(Zeigt(label));
        return köpfe;
    }

    /// The printed letters without the space between them: slanted text is read letter by letter.
    Text Gedruckt() const
    {
        Text text = Aufruf("pdftotext", {"-raw", datei, "-"});
        std::erase_if(text, [](unsigned char zeichen) { return zeichen <= ' '; });
        return text;
    }

    /// A window that is not created: returns the message shown; the main window must be unchanged.
    template <class Form> Text Scheitert()
    {
        Offen([] { DialogÖffnen(new Form); })();
        EXPECT_TRUE(haupt.isEnabled());
        EXPECT_FALSE(haupt.isMinimized());
        EXPECT_EQ(QApplication::topLevelWidgets().size(), 1); // only the main window
        return GezeigteMeldungen.empty() ? "nothing told" : GezeigteMeldungen.back();
    }

    /// Expects `weg` to close the window and bring back the main window.
    void SchließtMit(const std::function<void()> &weg)
    {
        EXPECT_FALSE(haupt.isEnabled());
        EXPECT_TRUE(haupt.isMinimized());
        weg();
        EXPECT_TRUE(Warten([&] { return form.isNull(); })) << "not unloaded";
        EXPECT_TRUE(haupt.isEnabled());
        EXPECT_TRUE(haupt.isMaximized());
    }

    /// What the layout of every window must fulfil.
    void IstOrdentlich(const std::vector<Text> &tabfolge)
    {
        EXPECT_EQ(Stumme(form), std::vector<Text>());
        EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
        EXPECT_LE(form->minimumSizeHint().height(), KleinsterBildschirm.height());
        EXPECT_EQ(Tabfolge(form), tabfolge);
    }

    int linkeGrenze = 0; // of the table being read, in the window
    QWidget haupt;
    const QString datei = Anzeige(Festplatte.string()) + "/Bild.pdf";
    bool abgebrochen = false; // the print dialog

  private:
    QRect Ort(const QWidget *control) const
    {
        return {control->mapTo(form, QPoint()), control->size()};
    }

    /// From left to right.
    std::vector<QLabel *> ImFenster() const
    {
        std::vector<QLabel *> labels;
        for (QLabel *label : form->findChildren<QLabel *>())
            if (label->isVisibleTo(form) && !label->text().isEmpty())
                labels.push_back(label);
        std::ranges::sort(labels, {}, [&](const QLabel *l) { return Ort(l).left(); });
        return labels;
    }

    DruckerQt drucker{[this](const Druckanfrage &) -> std::optional<Druckauswahl> {
        if (abgebrochen)
            return std::nullopt;
        return Druckauswahl{0, PdfDrucker(datei)};
    }};
    DruckerDienst *zuvor;
};

} // namespace altardienst

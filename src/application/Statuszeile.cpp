// The status bar of the main window.
#include "application/Statuszeile.h"

#include "application/Mitteilung.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"

#include <QEvent>

namespace altardienst {
namespace {

constexpr int Einzug = 14; // in line with what stands in the window
constexpr int Abstand = 14;

/// Makes a label of this name, or takes the one that is there.
Kurztext *Feld(std::map<Text, Kurztext *> &felder, const Text &name)
{
    Kurztext *&feld = felder[name];
    if (!feld)
        feld = new Kurztext(("Status" + name).c_str());
    return feld;
}

/// Only a change is set: it would be read out otherwise.
void Sagen(QWidget *control, const QString &text)
{
    if (control->accessibleName() != text)
        control->setAccessibleName(text);
}

} // namespace

Statuszeile::Statuszeile()
    : mitteilung(new Kurztext("StatusMitteilung", Qt::ElideMiddle)), ablauf(new QTimer(this))
{
    Benannt(this, "Statuszeile");
    setSizeGripEnabled(false);
    setContentsMargins(Einzug, 0, Einzug, 4);
    ablauf->setSingleShot(true);
    addWidget(mitteilung, 1);
    Verbinden();
    MitteilungZeigen();
    DauerndesZeigen();
}

void Statuszeile::Verbinden()
{
    connect(ablauf, &QTimer::timeout, this, Nebenbei([this] { Wechseln(false); }));
}

void Statuszeile::Zeigen(const std::vector<Abschnitt> &neue)
{
    for (const Abschnitt &neuer : neue) {
        const bool istDa = abschnitte.contains(neuer.Name);
        Kurztext *feld = Feld(abschnitte, neuer.Name);
        if (!istDa) {
            feld->setContentsMargins(0, 0, Abstand, 0);
            insertWidget(static_cast<int>(abschnitte.size()) - 1, feld);
        }
        Setzen(feld, neuer.Inhalt);
        feld->setToolTip(Anzeige(neuer.Erklärung));
    }
    Wechseln(!mitteilung->isHidden());
}

void Statuszeile::MitteilungZeigen()
{
    Setzen(mitteilung, Mitteilungen().Letzte);
    ablauf->stop();
    Wechseln(!mitteilung->text().isEmpty());
    MitteilungAblaufen();
}

/// The time runs while the user can see it.
void Statuszeile::MitteilungAblaufen()
{
    if (!isActiveWindow())
        ablauf->stop();
    else if (!mitteilung->isHidden() && !ablauf->isActive())
        ablauf->start(Dauer);
}

void Statuszeile::DauerndesZeigen()
{
    for (const auto &[name, feld] : dauernde)
        feld->hide();
    for (const auto &[name, text] : Mitteilungen().Dauernd) {
        const bool istDa = dauernde.contains(name);
        Kurztext *feld = Feld(dauernde, name);
        if (!istDa)
            addPermanentWidget(feld);
        Setzen(feld, text);
        feld->show();
    }
    Vorlesen();
}

void Statuszeile::Wechseln(bool zurMitteilung)
{
    for (const auto &[name, feld] : abschnitte)
        feld->setVisible(!zurMitteilung && !feld->text().isEmpty());
    mitteilung->setVisible(zurMitteilung);
    Vorlesen();
}

/// What the bar shows, in one sentence for screen readers.
void Statuszeile::Vorlesen()
{
    QStringList sätze;
    for (const QLabel *feld : findChildren<QLabel *>())
        if (!feld->isHidden())
            sätze.append(feld->text());
    Sagen(this, sätze.join("; "));
}

bool Statuszeile::event(QEvent *ereignis)
{
    if (ereignis->type() == QEvent::WindowActivate || ereignis->type() == QEvent::WindowDeactivate)
        Nebenbei([this] { MitteilungAblaufen(); })();
    return QStatusBar::event(ereignis);
}

} // namespace altardienst

// What the program says about itself.
#include "settings/frmAboutForm.h"

#include "Bauangaben.h"
#include "controls/Bausteine.h"
#include "controls/Fensteraufbau.h"
#include "controls/Handler.h"
#include "platform/Systeminfo.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>

namespace altardienst {
namespace {

Text Version()
{
    return std::to_string(bau::Haupt) + "." + std::to_string(bau::Neben) + "." +
           std::to_string(bau::Stand);
}

void SysteminfoStarten()
{
    if (const auto programm = SysteminfoProgramm())
        Systeminfo.Starten(*programm);
    else
        Meldungen.Zeigen("Systeminformationen sind momentan nicht verfügbar");
}

} // namespace

frmAboutForm::frmAboutForm()
    : picIcon(new Hintergrundbild("picIcon")), lblTitle(Beschriftung("lblTitle", "")),
      lblVersion(Beschriftung("lblVersion", "")),
      lblDescription(Beschriftung("lblDescription", "Beschreibung: ")),
      LBLXXXX(Beschriftung("LBLXXXX", "Verwaltung der Messen und Einteilung von Meßdiener und "
                                      "Meßhelfer zu den einzelnen Messen.")),
      Writen(Beschriftung("Writen", "")), lblDisclaimer(Beschriftung("lblDisclaimer", "")),
      cmdOK(Knopf("cmdOK", "OK")), cmdSysInfo(Knopf("cmdSysInfo", "&Systeminfo..."))
{
    Benannt(this, "frmAbout");
    setWindowTitle(Anzeige(Text("Info zu ") + bau::Titel));
    Setzen(lblVersion, "Version " + Version());
    Setzen(lblTitle, bau::Titel);
    Setzen(lblDisclaimer, Text("Warnung: ") + bau::Warnung);
    Setzen(Writen, Text(bau::Urheber) + " " + bau::Lizenz);
    Anordnen();
    Verbinden();
}

void frmAboutForm::Anordnen()
{
    picIcon->setAccessibleName("Bild der Anwendung");
    picIcon->setFixedSize(120, 87);
    QFont groß = lblTitle->font();
    groß.setPointSizeF(groß.pointSizeF() * 1.8);
    lblTitle->setFont(groß);
    for (QLabel *label : {LBLXXXX, Writen, lblDisclaimer})
        label->setWordWrap(true);

    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(16);
    raster->setVerticalSpacing(10);
    raster->addWidget(picIcon, 0, 0, 2, 1, Qt::AlignTop);
    raster->addWidget(lblTitle, 0, 1);
    raster->addWidget(lblVersion, 1, 1, Qt::AlignTop);
    raster->addWidget(lblDescription, 2, 0, Qt::AlignTop | Qt::AlignRight);
    raster->addWidget(LBLXXXX, 2, 1);
    raster->addWidget(Writen, 3, 1);
    raster->addWidget(lblDisclaimer, 4, 1);
    raster->setColumnStretch(1, 1);

    auto *spalte = Fensterspalte(this, Luft::Viel);
    spalte->addLayout(raster);
    spalte->addStretch();
    spalte->addLayout(Knopfreihe({cmdOK, cmdSysInfo}));
    resize(560, 320);
    cmdOK->setFocus();
}

void frmAboutForm::Verbinden()
{
    connect(cmdOK, &QPushButton::clicked, this, [this] { close(); });
    connect(cmdSysInfo, &QPushButton::clicked, this, Abgefangen(SysteminfoStarten));
}

void frmAboutForm::keyPressEvent(QKeyEvent *taste)
{
    if (taste->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(taste);
}

} // namespace altardienst

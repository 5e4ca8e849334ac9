// The picture behind the main window.
#pragma once

#include "values/Text.h"

#include <QDateTime>
#include <QPixmap>
#include <QWidget>

namespace altardienst {

/// Shows the built-in line drawing, which measures 720 x 520 dots and is drawn anew at any size, or
/// a picture from a file, as large as the control allows without distortion.
class Hintergrundbild : public QWidget {
  public:
    explicit Hintergrundbild(const char *name);

    /// Shows the file, or the built-in picture if the path is empty. Cheap enough for every tick of
    /// a timer: it checks the file each time but decodes it only after a change. A missing or
    /// unreadable file changes nothing on the screen.
    void Zeigen(const Text &pfad);

    int Dekodiert() const { return dekodiert; } // how often a file was decoded

  protected:
    void changeEvent(QEvent *ereignis) override;
    void paintEvent(QPaintEvent *ereignis) override;

  private:
    void BildSetzen(const QPixmap &neu);

    QPixmap bild;    // null: the built-in one
    QPixmap passend; // the picture at the current size of the control, in screen pixels
    Text gezeigterPfad;
    QDateTime gezeigterStand;
    qint64 gezeigteGröße = -1;
    int dekodiert = 0;
};

} // namespace altardienst

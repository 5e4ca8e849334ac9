// The page of the handbook that is open.
#pragma once

#include "help/Handbuch.h"

#include <QHash>
#include <QImage>
#include <QTextBrowser>

#include <functional>
#include <optional>

namespace altardienst {

/// A place in the text that is to stand at the top of the window, or to be seen.
struct Textstelle {
    int Block = 0;
    int Zeichen = 0; // within the block, as Qt counts them
    int Anzahl = 0;

    bool operator==(const Textstelle &) const = default;
};

class Seitenansicht : public QTextBrowser {
  public:
    explicit Seitenansicht(const char *name);

    std::function<void(const Text &verweis)> BeiVerweis = [](const Text &) {};
    std::function<void(int schritte)> BeiVergrößern = [](int) {}; // the wheel with Ctrl
    std::function<void()> BeiRollen = [] {};                      // by the user

    /// Shows a page from its beginning.
    void Zeigen(const Handbuchseite &neue);

    void ZuAbschnitt(int abschnitt); // the heading comes to the top; below 0 the page's beginning
    void ZuTextstelle(const Textstelle &stelle); // to the top
    void Hinweisen(const Textstelle &stelle);    // into the upper half, marked more strongly

    Textstelle Oberste() const; // at the top of the window
    int ObersterAbschnitt() const;

    /// Marks the words on this page and all that follow.
    void Markieren(std::vector<Text> neue);

    /// In per cent of the font of the window.
    void Schriftgrad(int prozent);

  protected:
    void resizeEvent(QResizeEvent *ereignis) override;
    void changeEvent(QEvent *ereignis) override;
    void wheelEvent(QWheelEvent *ereignis) override;

  private:
    void Setzen();
    void OhneZuRollen(const std::function<void()> &tun); // what is read stays at the top
    void BreiteAnpassen();
    void MarkenZeichnen();
    void Rollen(const QTextCursor &ziel, int abstand);
    QTextCursor Stelle(const Textstelle &stelle) const;

    QString markdown;
    QHash<QString, QImage> bilder;
    std::vector<Text> worte;
    std::optional<Textstelle> hinweis;
    int prozent = 100;
    int eingerichtet = 0; // for this width in pixels
    bool rolltSelbst = false;
};

} // namespace altardienst

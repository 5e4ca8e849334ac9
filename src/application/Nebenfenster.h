// Forms that stay open next to the main window, whose actions may change what they show.
#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

namespace altardienst {

/// Until the form is deleted, an action of the main window runs `ablegen` before it, which writes
/// what was typed to the tables, and `erneuern` after it, which shows what the tables hold by now.
/// So neither does what was typed get lost, nor does an old screen overwrite a new plan. They run
/// too when the user goes to another form and when he comes back. A record that was only looked at
/// stays as it is; where it has changed meanwhile the table counts: `ablegen` is to leave it alone
/// then, and only then is `erneuern` to fill the screen. A load touches no form that is open:
/// `belassen` runs after it instead, and takes what it has changed for known. All are trapped.
void NebenDemHauptfenster(QWidget *form, std::function<void()> ablegen,
                          std::function<void()> erneuern, std::function<void()> belassen);

/// Whether this window is one of these forms, and whether one is open beside another.
bool IstNebenfenster(const QWidget *fenster);
bool SindMehrereOffen();

/// Runs an action of the main window as described above. Open.
void HauptfensterHandelt(const std::function<void()> &aktion);

/// After a load, but for one that an action of the main window makes: the screens stay as they are,
/// and are written by what is done on them.
void OffeneFormenBelassen();

/// What a form last showed or wrote of its record.
class Gezeigt {
  public:
    /// Remembers what `lesen` returns from the tables, and the texts of all boxes of the form.
    template <class F> void Merken(const QWidget *form, F lesen)
    {
        vergleich = [lesen] { return [lesen, zuvor = lesen()] { return lesen() != zuvor; }; };
        überholt = vergleich();
        getippt = [form, zuvor = Texte(form)] { return Texte(form) != zuvor; };
    }

    /// What the tables hold by now counts as seen, though the screen shows something else.
    void Belassen() { überholt = vergleich(); }

    bool Überholt() const { return überholt(); } // the record is another by now
    bool Getippt() const { return getippt(); }   // the screen is

    /// The texts of all boxes of a form.
    static QStringList Texte(const QWidget *form);

  private:
    std::function<std::function<bool()>()> vergleich = [] { return [] { return false; }; };
    std::function<bool()> überholt = [] { return false; };
    std::function<bool()> getippt = [] { return false; };
};

} // namespace altardienst

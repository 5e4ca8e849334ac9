// The German of Qt's own dialogs, menus and keys, which comes with the program, so no catalogue
// needs to be installed.
#pragma once

#include <QHash>
#include <QTranslator>

namespace altardienst {

class Deutsch : public QTranslator {
  public:
    /// Reads the texts that are built into the program.
    explicit Deutsch(QObject *eigner);

    bool isEmpty() const override { return texte.isEmpty(); }

    /// Null for a text that is not there; Qt then shows its own. No text in these dialogs has
    /// plural forms, so `n` is not used.
    QString translate(const char *kontext, const char *quelle, const char *unterscheidung,
                      int n) const override;

  private:
    QHash<QString, QString> texte;
};

} // namespace altardienst

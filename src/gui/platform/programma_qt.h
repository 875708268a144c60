#pragma once

#include <QApplication>

/// The toolkit's program with a fence around every event handler: the one place where an exception that
/// nobody trapped ends. What was under way is given up, the window stays.
class Programma_Qt : public QApplication {
    Q_OBJECT
  public:
    using QApplication::QApplication;
    bool notify(QObject* ricevente, QEvent* evento) override;

  signals:
    /// An exception left an event handler; `testo` is its own. Told from inside that handler's event.
    void Eccezione(const QString& testo);
};

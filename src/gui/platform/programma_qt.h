#pragma once

#include <QApplication>
#include <QSocketNotifier>
#include <memory>

/// The toolkit's program with a fence around every event handler: the one place where an exception that
/// nobody trapped ends. What was under way is given up, the window stays. A signal that asks the program to
/// end (from the session's end, `kill`, Ctrl+C) leaves the event loop, so that all is tidied up as on
/// closing.
class Programma_Qt : public QApplication {
    Q_OBJECT
  public:
    Programma_Qt(int& argc, char** argv);
    ~Programma_Qt() override;
    bool notify(QObject* ricevente, QEvent* evento) override;

  signals:
    /// An exception left an event handler; `testo` is its own. Told from inside that handler's event.
    void Eccezione(const QString& testo);

  private:
    int lettura_ = -1;  ///< end of the pipe into which the signals' handler writes
    std::unique_ptr<QSocketNotifier> ascolto_;
};

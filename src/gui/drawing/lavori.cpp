#include "gui/drawing/lavori.h"

#include <QMetaObject>
#include <QMutex>
#include <QRunnable>
#include <QThreadPool>
#include <atomic>

/// What the threads hold on to: the way back, cut when the owner ends.
struct Lavori::Filo {
    QMutex chiusura;
    QObject* ricevente;
};

namespace {

/// Qt hands over what passes between the threads; the thread sanitizer doesn't see it do so, but it sees
/// this. It has no value.
class Passaggio {
  public:
    static void Cedi() { segno_.fetch_add(1, std::memory_order_release); }
    static void Prendi() { (void)segno_.load(std::memory_order_acquire); }

  private:
    inline static std::atomic<unsigned> segno_ = 0;
};

class Corsa : public QRunnable {
  public:
    explicit Corsa(std::function<void()> lavoro) : lavoro_(std::move(lavoro)) { Passaggio::Cedi(); }
    void run() override {
        Passaggio::Prendi();
        lavoro_();
    }

  private:
    std::function<void()> lavoro_;
};

}  // namespace

Lavori::Lavori() : filo_(new Filo{{}, &ricevente_}) {}

Lavori::~Lavori() {
    const QMutexLocker chiuso(&filo_->chiusura);
    filo_->ricevente = nullptr;
}

void Lavori::Esegui(std::function<std::function<void()>()> lavoro) {
    QThreadPool::globalInstance()->start(new Corsa([filo = filo_, lavoro = std::move(lavoro)]() mutable {
        auto seguito = [fatto = lavoro()] {
            Passaggio::Prendi();
            fatto();
        };
        lavoro = nullptr;  // what it holds ends here, not on the interface thread
        Passaggio::Cedi();
        const QMutexLocker chiuso(&filo->chiusura);
        if (filo->ricevente)
            QMetaObject::invokeMethod(filo->ricevente, std::move(seguito), Qt::QueuedConnection);
    }));
}

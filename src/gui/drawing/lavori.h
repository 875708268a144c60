#pragma once

#include <QFutureWatcher>
#include <QThreadPool>
#include <QtConcurrent>
#include <functional>
#include <memory>

/// Threads apart from those of the toolkit, which painting needs. Work under way can't be stopped: when its
/// owner ends it runs out unheard, and nobody waits for it beyond a moment.
class Fili {
  public:
    Fili() { pool_->setMaxThreadCount(3); }  // a page left behind doesn't hold up the next
    ~Fili() {
        pool_->clear();
        if (!pool_->waitForDone(MOMENTO))
            (void)pool_.release();  // its threads still need it
    }
    Fili(const Fili&) = delete;
    Fili& operator=(const Fili&) = delete;

    QThreadPool* Pool() { return pool_.get(); }

  private:
    static constexpr int MOMENTO = 300;  ///< milliseconds
    std::unique_ptr<QThreadPool> pool_ = std::make_unique<QThreadPool>();
};

/// Qt hands over what passes between the threads unseen by the thread sanitizer, which is told of it here.
namespace Passaggio {
#ifdef __SANITIZE_THREAD__
extern "C" void __tsan_acquire(void*);
extern "C" void __tsan_release(void*);
inline char segno;
inline void Cedi() {
    __tsan_release(&segno);
}
inline void Prendi() {
    __tsan_acquire(&segno);
}
#else
inline void Cedi() {}
inline void Prendi() {}
#endif
}  // namespace Passaggio

/// A piece of work for another thread, of which only the newest request counts.
template <class Risultato>
class Ultima_Richiesta {
  public:
    /// `seguito` gets each result that is still wanted, on this object's thread.
    Ultima_Richiesta(Fili& fili, std::function<void(const Risultato&)> seguito) : fili_(fili) {
        QObject::connect(&osservatore_, &QFutureWatcherBase::finished, &osservatore_,
                         [this, seguito = std::move(seguito)] {
                             if (!in_corso_ || osservatore_.future().isCanceled())
                                 return;
                             Passaggio::Prendi();
                             const Risultato risultato = osservatore_.result();
                             Lascia();
                             seguito(risultato);
                         });
    }

    /// An earlier request that hasn't begun never will, the result of one under way isn't told.
    void Chiedi(std::function<Risultato()> lavoro) {
        Lascia();
        in_corso_ = true;
        Passaggio::Cedi();
        osservatore_.setFuture(QtConcurrent::run(fili_.Pool(), [lavoro = std::move(lavoro)] {
            Passaggio::Prendi();
            Risultato risultato = lavoro();
            Passaggio::Cedi();
            return risultato;
        }));
    }
    void Lascia() {
        in_corso_ = false;
        osservatore_.cancel();
        osservatore_.setFuture({});
    }
    bool In_Corso() const { return in_corso_; }
    /// The result of the request under way, waited for.
    Risultato Attendi() {
        osservatore_.waitForFinished();
        Passaggio::Prendi();
        return osservatore_.result();
    }

  private:
    Fili& fili_;
    QFutureWatcher<Risultato> osservatore_;
    bool in_corso_ = false;
};

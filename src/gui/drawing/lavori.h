#pragma once

#include <QObject>
#include <functional>
#include <memory>

/// Work done on other threads, with results that come back to the thread of this object. When the object
/// ends, work under way runs out unheard: nobody waits for it.
class Lavori {
  public:
    Lavori();
    ~Lavori();
    Lavori(const Lavori&) = delete;
    Lavori& operator=(const Lavori&) = delete;

    /// Runs `lavoro` on a thread of the pool; what it returns runs here, from the event loop.
    void Esegui(std::function<std::function<void()>()> lavoro);

  private:
    struct Filo;
    QObject ricevente_;
    std::shared_ptr<Filo> filo_;
};

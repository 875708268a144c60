#include "gui/drawing/lavori.h"

#include <QMetaObject>
#include <QMutex>
#include <QThreadPool>

/// What the threads hold on to: the way back, cut when the owner ends.
struct Lavori::Filo {
    QMutex chiusura;
    QObject* ricevente;
};

Lavori::Lavori() : filo_(new Filo{{}, &ricevente_}) {}

Lavori::~Lavori() {
    const QMutexLocker chiuso(&filo_->chiusura);
    filo_->ricevente = nullptr;
}

void Lavori::Esegui(std::function<std::function<void()>()> lavoro) {
    QThreadPool::globalInstance()->start([filo = filo_, lavoro = std::move(lavoro)]() mutable {
        auto seguito = lavoro();
        lavoro = nullptr;  // what it holds ends here, not on the interface thread
        const QMutexLocker chiuso(&filo->chiusura);
        if (filo->ricevente)
            QMetaObject::invokeMethod(filo->ricevente, std::move(seguito), Qt::QueuedConnection);
    });
}

#include "gui/platform/programma_qt.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <exception>

namespace {

constexpr std::array SEGNALI{SIGTERM, SIGINT, SIGHUP};

/// The one thing that a signal's handler can reach. -1 while no program listens.
volatile std::sig_atomic_t scrittura_segnale = -1;

void Segnale_Ricevuto(int) {
    const char byte = 0;
    [[maybe_unused]] const auto scritti = ::write(scrittura_segnale, &byte, 1);
}

}  // namespace

Programma_Qt::Programma_Qt(int& argc, char** argv) : QApplication(argc, argv) {
    std::array<int, 2> canale{};
    if (::pipe2(canale.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    lettura_ = canale[0];
    scrittura_segnale = canale[1];
    ascolto_ = std::make_unique<QSocketNotifier>(lettura_, QSocketNotifier::Read);
    // Not `quit`, which a window may refuse.
    connect(ascolto_.get(), &QSocketNotifier::activated, this, [this] {
        ascolto_->setEnabled(false);
        exit(0);
    });
    for (const int segnale : SEGNALI)
        std::signal(segnale, Segnale_Ricevuto);
}

Programma_Qt::~Programma_Qt() {
    if (lettura_ < 0)
        return;
    for (const int segnale : SEGNALI)
        std::signal(segnale, SIG_DFL);
    ::close(scrittura_segnale);
    ::close(lettura_);
    scrittura_segnale = -1;
}

bool Programma_Qt::notify(QObject* ricevente, QEvent* evento) {
    try {
        return QApplication::notify(ricevente, evento);
    } catch (const std::exception& errore) {
        emit Eccezione(QString::fromUtf8(errore.what()));
    } catch (...) {
        emit Eccezione(QStringLiteral("Unknown error."));
    }
    return true;
}

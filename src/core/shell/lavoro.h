#pragma once

#include <QElapsedTimer>

#include "core/shell/stanza.h"

/// Long work, as long as the object lives: the hourglass, a locked window that lives on, and no command that
/// gets in between. Work that is part of other work leaves lock and hourglass to that.
class Lavoro : public Avanzamento {
  public:
    explicit Lavoro(Ambiente& ambiente);
    ~Lavoro() override;
    Lavoro(const Lavoro&) = delete;
    Lavoro& operator=(const Lavoro&) = delete;

    void Avanza(qint64 fatto, qint64 totale) override;
    /// Between two steps: lets the window live if the last ones took a while.
    void Respira();

  private:
    Ambiente& ambiente_;
    const bool parte_;  ///< of other work
    QElapsedTimer timer_;
};

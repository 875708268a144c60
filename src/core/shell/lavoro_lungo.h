#pragma once

#include <QElapsedTimer>

#include "core/shell/stanza.h"

/// Long work, as long as the object lives: the hourglass, a locked window that lives on, and no command that
/// gets in between. Work that is part of other work leaves lock and hourglass to that.
class Lavoro_Lungo : public Avanzamento {
  public:
    explicit Lavoro_Lungo(Ambiente& ambiente);
    ~Lavoro_Lungo() override;
    Lavoro_Lungo(const Lavoro_Lungo&) = delete;
    Lavoro_Lungo& operator=(const Lavoro_Lungo&) = delete;

    void Avanza(qint64 fatto, qint64 totale) override;
    /// Between two steps: lets the window live if the last ones took a while.
    void Respira();

  private:
    Ambiente& ambiente_;
    const bool parte_;  ///< of other work
    QElapsedTimer timer_;
};

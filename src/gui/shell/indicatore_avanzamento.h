#pragma once

#include <QProgressBar>

#include "core/base/porte.h"

/// The progress of long work in the status bar.
class Indicatore_Avanzamento : public QProgressBar, public Avanzamento {
    Q_OBJECT
  public:
    explicit Indicatore_Avanzamento(QWidget* padre = nullptr);
    void Avanza(qint64 fatto, qint64 totale) override;
    void Nascondi();

  signals:
    /// Moved to a part of a thousand.
    void Avanzato(int millesimi);
};

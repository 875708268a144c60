#pragma once

#include <QMessageBox>
#include <QString>

#include "core/base/porte.h"

/// Message boxes of the desktop, titled with the program's name, over the window at work.
class Messaggi_Qt : public Messaggi {
  public:
    void Mostra(const QString& testo, Icona icona) override;
    bool Chiedi(const QString& testo) override;

  protected:
    /// Runs a box that is ready to be shown: the one place all boxes pass through.
    virtual QMessageBox::StandardButton Esegui(QMessageBox& finestra);

  private:
    QMessageBox::StandardButton Mostra_Finestra(const QString& testo, QMessageBox::Icon icona,
                                                QMessageBox::StandardButtons bottoni);
};

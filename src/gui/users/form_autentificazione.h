#pragma once

#include <QLineEdit>

#include "core/shell/controllo_accesso.h"
#include "gui/platform/dialogo_campi.h"

/// The log-in. A right one closes the dialog, a wrong one leaves it open; it can be left without one.
class Form_Autentificazione : public Dialogo_Campi {
    Q_OBJECT
  public:
    explicit Form_Autentificazione(Controllo_Accesso& accesso, QWidget* padre = nullptr);

  private:
    void Command_OK_Click() override;

    Controllo_Accesso& accesso_;
    QLineEdit* account_;
    QLineEdit* password_;
};

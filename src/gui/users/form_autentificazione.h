#pragma once

#include <QDialog>
#include <QLineEdit>

#include "core/shell/controllo_accesso.h"

/// The log-in. A right one closes the dialog, a wrong one leaves it open; it can be left without one.
class Form_Autentificazione : public QDialog {
    Q_OBJECT
  public:
    explicit Form_Autentificazione(Controllo_Accesso& accesso, QWidget* padre = nullptr);

  private:
    void Command_OK_Click();

    Controllo_Accesso& accesso_;
    QLineEdit* account_;
    QLineEdit* password_;
};

#pragma once

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include "gui/platform/finestra_secondaria.h"

/// A small dialog: some fields, each with its label, and the button `Command_OK` below them.
class Dialogo_Campi : public Finestra_Secondaria {
    Q_OBJECT
  public:
    Dialogo_Campi(const char* nome, const char* titolo, const char* testo_ok, QWidget* padre);

  protected:
    /// Adds a field below those that are there; `nome` is its name.
    void Aggiungi_Campo(QWidget* campo, const char* nome, const char* nome_etichetta, const char* etichetta);
    /// The row of the button, which stands at its end.
    QHBoxLayout& Piede() { return *piede_; }
    virtual void Command_OK_Click() = 0;

  private:
    QFormLayout* campi_;
    QHBoxLayout* piede_;
    QPushButton* ok_;
};

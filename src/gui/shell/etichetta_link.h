#pragma once

#include <QIcon>

#include "gui/shell/etichetta_attiva.h"

/// A link: a label that acts, with an icon before its text.
class Etichetta_Link : public Etichetta_Attiva {
    Q_OBJECT
  public:
    /// `nome` is the object's name, `icona` the name of one of the program's icons; "" for none.
    Etichetta_Link(const QString& nome, const QString& testo, const QString& icona, QWidget* padre = nullptr);

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void enterEvent(QEnterEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void Fuoco_Cambiato() override { Sottolinea(); }

  private:
    void Sottolinea();

    QIcon icona_;
};

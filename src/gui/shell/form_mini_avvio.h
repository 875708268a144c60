#pragma once

#include <QFrame>
#include <QTimer>
#include <functional>
#include <memory>

#include "core/base/porte.h"

namespace Ui {
class Form_Mini_Avvio;
}

/// The splash window. About two seconds after it has come up, it asks for the main window.
class Form_Mini_Avvio : public QFrame {
    Q_OBJECT
  public:
    /// `versione`: major and minor version, as shown.
    Form_Mini_Avvio(Sistema& sistema, const QString& versione);
    ~Form_Mini_Avvio() override;
    /// The picture of the catalogue that is about to be opened, in place of the program's own.
    void Carica_Immagini_Form(const QString& immagine);
    /// Progress of the work that goes on behind the splash, in parts of a thousand.
    void Avanza(int millesimi);

  signals:
    /// Time for the main window.
    void Pronto();

  protected:
    void showEvent(QShowEvent* evento) override;

  private:
    void Attivazione();
    void Timer1_Timer();
    void Timer2_Timer();

    std::unique_ptr<Ui::Form_Mini_Avvio> ui_;
    Sistema& sistema_;
    QString versione_;
    QTimer timer1_;
    QTimer timer2_;
    bool pronta_ = false;
    bool attivata_ = false;
};

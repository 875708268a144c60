#pragma once

#include <QDialog>
#include <functional>

#include "gui/platform/posto_finestra.h"

/// A window beside the main one, or a dialog over it: Esc and its close button close it, and it can come back
/// where it was.
class Finestra_Secondaria : public QDialog {
    Q_OBJECT
  public:
    /// `nome` is the object's name; `titolo` is shown when no text catalogue can be read.
    Finestra_Secondaria(const char* nome, const char* titolo, QWidget* padre, Qt::WindowFlags tipo = {});
    ~Finestra_Secondaria() override;

    /// Places the window as a section of the settings keeps it, moved onto a screen that is there, and keeps
    /// its place there when it goes.
    void Ricorda_Posto(Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione,
                       const Posto_Finestra& predefinito);
    void done(int esito) override;

  signals:
    /// The window has gone, in whichever way.
    void Scaricata();

  protected:
    void showEvent(QShowEvent* evento) override;

  private:
    void Scarica();

    std::function<void()> scrivi_posto_;
    bool caricata_ = false;
};

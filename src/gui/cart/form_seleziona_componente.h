#pragma once

#include <QDialog>

#include "core/shell/controllo_principale.h"
#include "core/shell/controllo_seleziona.h"
#include "gui/parts_tables/vista_griglia.h"

/// `Form_Seleziona_componente`: the components of one drawing object, of which the user adds one. A modal
/// window over the main one; its size is kept in the settings.
class Form_Seleziona_componente : public QDialog {
    Q_OBJECT
  public:
    Form_Seleziona_componente(Controllo_Principale& controllo, Controllo_Seleziona& scelta,
                              Immagini_Risorsa& immagini, QWidget* padre);

  protected:
    void showEvent(QShowEvent* evento) override;
    void done(int esito) override;

  private:
    void Clic(int riga, int colonna);
    void Mostra_Righe();

    Controllo_Principale& controllo_;
    Controllo_Seleziona& scelta_;
    Vista_Griglia* griglia_;
    QWidget* vuoto_;
};

#pragma once

#include "core/shell/controllo_seleziona.h"
#include "gui/parts_tables/spazio_assenza.h"
#include "gui/parts_tables/vista_griglia.h"
#include "gui/platform/finestra_secondaria.h"

/// `Form_Seleziona_componente`: the components of one drawing object, of which the user picks one. A modal
/// window over the main one.
class Form_Seleziona_componente : public Finestra_Secondaria {
    Q_OBJECT
  public:
    Form_Seleziona_componente(Controllo_Seleziona& scelta, const Class_Progetto_Aperto& progetto,
                              Immagini_Risorsa& immagini, QWidget* padre);

  protected:
    void showEvent(QShowEvent* evento) override;

  private:
    void Mostra_Righe();

    Controllo_Seleziona& scelta_;
    Vista_Griglia* griglia_;
    Spazio_Assenza* vuoto_;
};

#pragma once

#include <QFrame>
#include <QLabel>
#include <QSplitter>

#include "core/shell/controllo_principale.h"
#include "gui/parts_tables/vista_griglia.h"
#include "gui/shell/etichetta_link.h"

/// The right-hand side of the working area: the current node's name above the product view or the sheet.
class Area_Prodotto : public QFrame {
    Q_OBJECT
  public:
    Area_Prodotto(Controllo_Principale& controllo, Immagini_Risorsa& immagini, QWidget* padre = nullptr);
    void Mostra(const Stato_Finestra& stato);
    Vista_Griglia& Griglia_Distinta() const { return *griglia_; }

  private:
    QWidget* Crea_Prodotto(Immagini_Risorsa& immagini);
    QWidget* Crea_Scheda();
    void Mostra_Percorso();

    Controllo_Principale& controllo_;
    QLabel* percorso_;
    QFrame* prodotto_;
    QSplitter* divisore_;
    QFrame* disegno_;
    Vista_Griglia* griglia_;
    QLabel* nessun_componente_;
    QFrame* scheda_;
    QWidget* aiuto_;
    Etichetta_Link* consulta_;
    int divisione_ = 0;
};

#pragma once

#include <QFrame>
#include <QLabel>
#include <QSplitter>
#include <QStackedLayout>

#include "core/shell/schermo_principale.h"
#include "gui/cart/pannello_carrello.h"
#include "gui/drawing/lavagna_widget.h"
#include "gui/parts_tables/vista_griglia.h"
#include "gui/shell/pagina_scheda.h"

/// The right-hand side of the working area: the current node's name above the product view or the sheet, or
/// the order screen.
class Area_Prodotto : public QFrame {
    Q_OBJECT
  public:
    /// Takes the canvas over.
    Area_Prodotto(Schermo_Principale& schermo, Immagini_Risorsa& immagini, Lavagna_Widget& lavagna,
                  QWidget* padre = nullptr);
    /// `altezza_interna`: of the window, in twips; the split is measured against it.
    void Mostra(const Stato_Finestra& stato, int altezza_interna);
    Vista_Griglia& Griglia_Distinta() const { return *griglia_; }
    Vista_Griglia& Griglia_Evadi() const { return ordine_->Griglia(); }
    Pagina_Scheda& Scheda() const { return *scheda_; }

  signals:
    /// The user gave the parts list another height, in twips.
    void Splitter_V_Spostato(int altezza_distinta);

  protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

  private:
    QWidget* Crea_Prodotto(Immagini_Risorsa& immagini, Lavagna_Widget& lavagna);
    QWidget* Crea_Ordine(Immagini_Risorsa& immagini);
    void Mostra_Percorso(bool ordine);
    void Dividi();

    Schermo_Principale& schermo_;
    QLabel* percorso_;
    QStackedLayout* pagine_;  ///< sheet, product and order take turns
    QFrame* prodotto_;
    QSplitter* divisore_;
    QFrame* disegno_;
    QLabel* nessun_disegno_;
    QFrame* distinta_;
    Vista_Griglia* griglia_;
    Spazio_Assenza* nessun_componente_ = nullptr;
    Pagina_Scheda* scheda_;
    QFrame* frame_ordine_;
    Pannello_Carrello* ordine_;
    int altezza_distinta_ = 0;  ///< pixels, while drawing and parts list share the height; else 0
};

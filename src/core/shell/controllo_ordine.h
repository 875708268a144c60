#pragma once

#include "core/cart/controllo_carrello.h"
#include "core/drawing/controllo_disegno.h"
#include "core/shell/stanza.h"

/// Cart and order: the cart's window, the order screen, and the cart among the screens.
class Controllo_Ordine : public Stanza {
  public:
    Controllo_Ordine(Ambiente& ambiente, Schermo& schermo, Controllo_Disegno& disegno);
    /// The cart with its two faces, `Form_Carrello_Prodotto` and the order screen.
    Controllo_Carrello& Carrello() { return carrello_; }

    /// `KEY_CARELLO_PARZIALE`: the cart's window comes, or goes.
    void Comando_Carrello();
    /// `KEY_EVADI_ORDINE`: the order comes, or gives the page back.
    void Comando_Ordine();
    /// The order screen, with all lines of the cart.
    void Visualizza_Evasione_Ordine();
    /// The order's grid has another width: it is filled anew while it is on the screen.
    void Ordine_Ridimensionato();

    /// Takes back the last add or removal.
    void Annulla();

    void Prodotto_Cambiato() override;
    void Catalogo_Ricaricato() override { carrello_.Dimentica_Cambi(); }

  private:
    std::optional<Componente_Scelto> Scegli_Componente(const QString& riferimento);

    Controllo_Disegno& disegno_;
    Controllo_Carrello carrello_;
};

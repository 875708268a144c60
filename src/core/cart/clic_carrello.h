#pragma once

#include "core/parts_tables/clic_griglia.h"

/// The two faces of the cart.
enum class Faccia {
    Prodotto,  ///< the cart window: the lines of the current product
    Ordine     ///< the order screen: all lines
};

/// What a click on a cell does; nothing on header, totals and linked components, and beyond the tags. The
/// product is "" on the cart window.
Azione_Cella Clic_Carrello(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga,
                           int colonna);
/// The pointer over a cell; where nothing happens it is the arrow on the cart window and none on the order
/// screen.
Puntatore Puntatore_Carrello(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga,
                             int colonna);

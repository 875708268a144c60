#pragma once

#include <QString>

#include "core/griglia/griglia.h"

/// The two faces of the cart.
enum class Faccia {
    Prodotto,  ///< the cart window: the lines of the current product
    Ordine     ///< the order screen: all lines
};

/// What a click on a cell of the cart asks for.
struct Azione_Carrello {
    enum class Genere {
        Nessuna,
        Evidenzia,  ///< light the component on the drawing
        Image,      ///< show the picture `Voce`
        Document,   ///< open the document `Voce` in its own application
        Elimina,    ///< remove the line
        Qta,        ///< edit the quantity
        Note        ///< edit the note
    };
    Genere Tipo = Genere::Nessuna;
    QString Voce;                 ///< entry of the package
    QString Codice, Riferimento;  ///< of the row
    QString Prodotto;             ///< key of the row's product; "" on the cart window
    QString Chiave;               ///< key of the line (`Chiave_Elenco`)
};

/// What a click on a cell does; nothing on header, totals and linked components, and beyond the tags.
Azione_Carrello Azione_Cella_Carrello(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga,
                                      int colonna);

/// Sets the grid's pointer for a mouse at `y` twips below the grid's top: 3 over what can be edited, 99 over
/// another cell that does something; elsewhere 1, the arrow, on the cart window, and 0 on the order screen.
void Mouse_Move_Carrello(Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int y);

#pragma once

#include <QString>

#include "core/parts_tables/griglia.h"

/// What a click on a cell of a parts list asks for.
struct Azione_Cella {
    enum class Genere {
        Nessuna,
        Evidenzia,       ///< light the component on the drawing
        Image,           ///< show the picture `Voce`
        Document,        ///< open the document `Voce` in its own application
        Add_Componente,  ///< add the component to the cart
    };
    Genere Tipo = Genere::Nessuna;
    QString Voce;                           ///< entry of the package, of `Image` and `Document`
    QString Codice, Prodotto, Riferimento;  ///< of `Evidenzia` and `Add_Componente`
    bool Sopra_Righe = false;  ///< the click fell on live rows; the drawing's mouse events ask for it
};

/// What a click on the cell under the mouse does. Nothing below the last row, on the header, on the reference
/// column, beyond the tags, or on a plain cell of a row that adds no component.
Azione_Cella Clic_Griglia(const Griglia& griglia, const Tag_Griglia& tag);

/// Sets the grid's pointer for a mouse at `y` twips below the grid's top: 0 below the last row, 99 over a
/// cell that does something, else 1.
void Mouse_Move(Griglia& griglia, const Tag_Griglia& tag, int y);

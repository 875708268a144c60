#pragma once

#include <QString>
#include <vector>

#include "core/base/numeri.h"
#include "core/griglia/griglia.h"

/// One column of a grid: its header, the field that fills it, its kind and size.
struct Colonna_Griglia {
    QString Titolo;  ///< header text, or "IMMAGINE##||##" + picture name
    QString Nome;    ///< field of the data row; "" for none
    QString Tipo;    ///< `Riferimento`, `Aggiungi`, `Number`, `Price`, `Image`, `Document`, `Testo`, ...
    QString Size;    ///< decimals of numbers; width in characters of texts, which also cuts them
};

/// Header row, widths and alignment of any grid: the widths fill `Griglia::Width` less 300 twips. Data rows
/// keep their content.
void Imposta_Colonne_Griglia(const std::vector<Colonna_Griglia>& colonne, const Numeri& numeri,
                             Griglia& griglia);

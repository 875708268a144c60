#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "core/base/filtri.h"
#include "core/base/numeri.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/localisation/collection_traduzioni.h"
#include "core/parts_tables/griglia.h"

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

/// What a fill of a parts list works on.
struct Contesto_Distinta {
    const Class_DBOper& DB;
    const Collection_Traduzioni& Traduzioni;
    const Numeri& Numeri_;
    Filtri Filtri_;
    std::function<bool()> Verifica_Accesso;  ///< the access test; false refuses
    std::function<void()> Mostra_Intro;      ///< what a refusal shows
};

/// Fills a grid with the parts of a product. `riferimento` limits the rows to one reference ("" for all);
/// `ricarica_righe` false rebuilds the columns only; `con_aggiungi` adds the column that adds to the cart.
/// Any failure ends the fill silently with the grid hidden and the rows it had by then; so does a row or a
/// column beyond the tags. Answers the columns of the grid, those known so far after a failure.
std::vector<Colonna_Griglia> Visualizza_Griglia_Distinta_Prodotto(const Contesto_Distinta& contesto,
                                                                  const QString& prodotto,
                                                                  const QString& riferimento,
                                                                  bool ricarica_righe, Griglia& griglia,
                                                                  Tag_Griglia& tag, bool con_aggiungi);

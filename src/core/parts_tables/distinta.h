#pragma once

#include "core/parts_tables/riempimento.h"

/// Fills a grid with the parts of a product (`Riempi_Griglia`). `riferimento` limits the rows to one
/// reference
/// ("" for all); `con_aggiungi` adds the column that adds to the cart.
std::vector<Colonna_Griglia> Visualizza_Griglia_Distinta_Prodotto(Contesto_Griglia contesto,
                                                                  const QString& prodotto,
                                                                  const QString& riferimento,
                                                                  bool ricarica_righe, Griglia& griglia,
                                                                  Tag_Griglia& tag, bool con_aggiungi);

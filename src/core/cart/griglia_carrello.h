#pragma once

#include "core/cart/selezione.h"
#include "core/catalogue_db/class_sconto.h"
#include "core/parts_tables/riempimento.h"

/// In the place of a product's key: the whole order.
inline const QString TUTTI_I_PRODOTTI = QStringLiteral("#ALL#");

/// What a fill of the cart works on.
struct Contesto_Carrello : Contesto_Griglia {
    const Class_Sconto& Sconto;
    Collection_Prodotti_Sele& Selezionati;
    /// The user's discount on an order of this quantity and total: factor (0 for none) and percentages.
    std::function<float(float quantita, float totale, QString& descrizione)> Restituisci_Sconto_Utente;
};

/// Fills a grid with the cart of a product, or with the whole order (`TUTTI_I_PRODOTTI`): a row for each
/// line, one for each component linked to it, and up to three rows of totals (`Riempi_Griglia`). The
/// catalogue is read anew at each fill, so prices and texts follow language and market. Prices and totals are
/// single precision, and the totals add the rows as they are shown.
std::vector<Colonna_Griglia> Visualizza_Griglia_Carello_Prodotto(Contesto_Carrello contesto,
                                                                 const QString& chiave, bool ricarica_righe,
                                                                 Griglia& griglia, Tag_Griglia& tag);

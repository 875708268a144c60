#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "core/base/filtri.h"
#include "core/base/numeri.h"
#include "core/cart/selezione.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/class_sconto.h"
#include "core/griglia/colonne_griglia.h"
#include "core/localisation/collection_traduzioni.h"

/// In the place of a product's key: the whole order.
inline const QString TUTTI_I_PRODOTTI = QStringLiteral("#ALL#");

/// What a fill of the cart works on.
struct Contesto_Carrello {
    const Class_DBOper& DB;
    const Collection_Traduzioni& Traduzioni;
    const Numeri& Numeri_;
    const Class_Sconto& Sconto;
    Filtri Filtri_;
    Collection_Prodotti_Sele& Selezionati;
    /// The user's discount on an order of this quantity and total: factor (0 for none) and percentages.
    std::function<float(float quantita, float totale, QString& descrizione)> Restituisci_Sconto_Utente;
    std::function<bool()> Verifica_Accesso;  ///< the access test; false refuses
    std::function<void()> Mostra_Intro;      ///< what a refusal shows
};

/// Fills a grid with the cart of a product, or with the whole order (`TUTTI_I_PRODOTTI`): a row for each
/// line, one for each component linked to it, and up to three rows of totals. The catalogue is read anew at
/// each fill, so prices and texts follow language and market. Prices and totals are single precision, and
/// the totals add the rows as they are shown. `ricarica_righe` false rebuilds the columns only. Any failure
/// ends the fill silently with the grid hidden; so does a row or a column beyond the tags. Answers the
/// columns of the grid.
std::vector<Colonna_Griglia> Visualizza_Griglia_Carello_Prodotto(const Contesto_Carrello& contesto,
                                                                 const QString& chiave, bool ricarica_righe,
                                                                 Griglia& griglia, Tag_Griglia& tag);

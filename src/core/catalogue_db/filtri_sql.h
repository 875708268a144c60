#pragma once
// The multi-value filters as SQL. A filter column holds "" or NULL, both for everybody, or "/a/b/".

#include <QString>

namespace Filtri_SQL {

/// The clause of one market, given as one number.
QString Condizione_Mercato(const QString& mercato);

/// The three filters of the column model, from slash lists of languages, markets and groups.
QString Condizione_Struttura(const QString& lingue, const QString& mercati, const QString& gruppi);

/// The condition on the rows of a product: each argument that isn't "" adds its clause; "" without any.
QString Condizione_Componenti(const QString& prodotto, const QString& mercato, const QString& riferimento,
                              const QString& gruppi, const QString& codice, const QString& condizione);

}  // namespace Filtri_SQL

#pragma once
// Linked components: a kit brings its parts into the cart.

#include <QString>
#include <QStringList>
#include <functional>

#include "core/cart/selezione.h"

/// Values of a component's `Memo` columns: entries "code§factor" between "/".
using Valori_Memo = QStringList;

/// The first values of a line's list: what the rows of a product's component say. `codice` is their
/// component.
void Aggiungi_Memo(Class_Elenco& riga, const Valori_Memo& valori, const QString& codice);

/// Follows the linked codes of a line to those that are linked to them in turn; `leggi` gives the `Memo`
/// values of a code. Codes that the line's own list came from are dropped. Codes found on the way aren't, so
/// that at most 49 entries are followed, which ends a circle: kept.
void Espandi_Collegati(Class_Elenco& riga, const std::function<Valori_Memo(const QString& codice)>& leggi);

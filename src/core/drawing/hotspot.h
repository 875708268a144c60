#pragma once

#include <QString>
#include <QStringList>

#include "core/catalogue_db/class_dboper.h"

/// The names under which a component may stand on a drawing: the key itself when it bears a type, else the
/// bare key, then as a code, then as an association.
QStringList Nomi_Sulla_Tavola(const QString& key);

/// Where a link is looked for.
struct Luogo_HotSpot {
    QString Prodotto;           ///< the product whose drawing is up
    QString Mercato;            ///< number of the market
    QString Padre_Selezionato;  ///< key of the parent of the tree's selected node, "" without one
};

/// Key of the product to which a hotspot leads, "" when it leads nowhere. A cross reference of the market
/// comes before what the string itself says. A sub-product is looked for below the product, then beside the
/// selected node; when neither has it the target is its code, which no node bears: kept.
QString Risolvi_HotSpot(const Class_DBOper& db, const QString& stringa, const Luogo_HotSpot& luogo);

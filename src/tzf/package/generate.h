#pragma once

#include <QString>

/// How large a generated catalogue is.
struct GeneratedSize {
    qint64 nodes = 0;     ///< rows of `Albero_Web`, the root included
    qint64 rows = 0;      ///< rows of `Componenti_Web`
    qint64 products = 0;  ///< nodes that are products
    int languages = 5;    ///< 1 to 11
    quint32 seed = 1;     ///< the same seed gives the same catalogue
};

/// Makes a large, plausible catalogue without media: groups of products several levels deep, parts that occur
/// in many products, markets, groups of users, serial ranges and notes. Fails with `ToolError`, and with
/// `UsageError` on sizes that don't go together.
void generateCatalogue(const QString& package, const GeneratedSize& size);

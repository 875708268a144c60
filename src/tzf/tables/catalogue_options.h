#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include "tzf/tables/option_reader.h"

/// What the columns of a parts file, a products file or a file of parts lists mean.
struct SheetMapping {
    QString file;                    ///< full path; "" when the catalogue has no such file
    QString sheet;                   ///< of a workbook; "" for the first
    QChar decimal;                   ///< decimal sign of numbers that are texts; null when not said
    QMap<QString, QString> columns;  ///< by column name: "code", "text DE", "price 2", ...
    QMap<QString, QMap<QString, QString>> titles;  ///< by column name and language key
    QString place;                                 ///< `catalogue.json`, for messages

    bool isGiven() const { return !file.isEmpty(); }
};

/// What `catalogue.json` says of the catalogue itself.
struct CatalogueOptions {
    bool complete = true;          ///< missing tables and columns are worked out
    QMap<QString, QString> title;  ///< by language key; "" for all others
    QStringList languages;  ///< keys, the first is the one to start with; for a folder without `Lingue`
    QMap<QString, QString> settings;  ///< for `SYSTEM`
    SheetMapping parts, products, lists;
    QString place;  ///< `catalogue.json`

    /// The options that `read` knows.
    static QStringList known();
    /// Reads them from the object of a folder's `catalogue.json`. Fails with `ToolError`.
    static CatalogueOptions read(const OptionReader& options, const QString& folder, const QString& place);
    /// Takes over what isn't said here.
    void inherit(const CatalogueOptions& base);
    /// Files out of which tables are made, so that they aren't the catalogue's own.
    QStringList files() const;
};

#pragma once

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "core/archivio/nomi_voci.h"
#include "tzf/check/check.h"
#include "tzf/package/database_reader.h"

/// A column of the parts, as `Struttura_Componenti` describes it.
struct ModelColumn {
    QString name, kind;
    bool visible = false;
    QStringList languages, markets;  ///< numbers in its filters, none for all
};

/// What picture of pixels the file is, by its first bytes: "PNG", "JPEG", "GIF", "BMP", "TIFF"; "" for none.
QString pictureKind(const QString& path);

/// What the checks of one catalogue share.
class CheckContext {
  public:
    CheckContext(const DatabaseReader& database, const QStringList& entries);

    const DatabaseReader& database;
    std::vector<Finding> findings;

    QList<int> languages;        ///< numbers of the languages that are offered
    QSet<int> numbers, markets;  ///< all numbers of `Lingue`; those offered as markets
    QSet<QString> groups, discounts;
    QSet<QString> nodes;             ///< keys of `Albero_Web`, filled by `checkTree`
    std::vector<ModelColumn> model;  ///< the columns of the parts, filled by `checkParts`
    QString code_column;             ///< the one with the code; "" when there isn't just one

    void error(const QString& table, qint64 row, const QString& column, const QString& message);
    void warning(const QString& table, qint64 row, const QString& column, const QString& message);

    /// The entry that the viewer takes for a file's name, as it is looked for; "" when there is none.
    QString findEntry(const QString& name) const;
    /// Path of a file with an entry's content. Fails with `ToolError`. Empty when there are no files to look
    /// into.
    std::function<QString(const QString& entry)> openEntry;

    /// A value that names a file of the package; "" is none.
    void checkFile(const QString& table, qint64 row, const QString& column, const QString& name);
    /// Filter lists "/a/b/" of the current row.
    void checkLanguageList(const QString& table, const TableReader& row, const QString& column);
    void checkMarketList(const QString& table, const TableReader& row, const QString& column);
    void checkGroupList(const QString& table, const TableReader& row, const QString& column);
    void checkDiscountList(const QString& table, const TableReader& row, const QString& column);
    /// A text that is there in one offered language has to be there in all of them.
    void checkFamily(const QString& table, const TableReader& row, const QString& prefix);
    /// A list "/a/b/": its values; none and an error when it isn't one.
    QStringList listValues(const QString& table, qint64 row, const QString& column, const QString& value);

  private:
    void checkNumberList(const QString& table, const TableReader& row, const QString& column,
                         const QSet<int>& known, const QString& what);
    void checkKeyList(const QString& table, const TableReader& row, const QString& column,
                      const QSet<QString>& known, const QString& where);

    Nomi_Voci names_;                  ///< of the entries
    QHash<QString, QString> similar_;  ///< entries by their file names in small letters
};

void checkTables(CheckContext& context);     ///< tables and columns that are missing
void checkLanguages(CheckContext& context);  ///< `Lingue` and the text tables
void checkSystem(CheckContext& context);     ///< `SYSTEM`, after `checkTree`
void checkTree(CheckContext& context);       ///< nodes, products, sheets, serial numbers
void checkParts(CheckContext& context);      ///< column model, parts, notes; after `checkTree`
void checkValues(CheckContext& context);     ///< numbers, copies, kits, discounts; after `checkParts`
void checkPictures(CheckContext& context);   ///< photographs; after `checkParts`
void checkTexts(CheckContext& context);      ///< texts that are another language's
void checkDrawings(CheckContext& context);   ///< hotspots of the drawings; after `checkTree`
void checkPeople(CheckContext& context);     ///< accounts and groups

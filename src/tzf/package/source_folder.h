#pragma once

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <vector>

#include "core/catalogue_db/engine/database.h"
#include "tzf/tables/catalogue_options.h"

/// A database of a package and the files that hold its tables.
struct SourceDatabase {
    QString entry;
    QMap<QString, QString> tables;  ///< table name and CSV file, full path
};

/// A file that goes into the package as it is.
struct SourceFile {
    QString entry;
    QString path;  ///< full path
};

/// What a source folder says of its package: `catalogue.json` and the files of the folder.
class SourceFolder {
  public:
    /// Reads the folder, not the tables. Fails with `ToolError` on a missing folder, on a `catalogue.json`
    /// that isn't right and on what it names and isn't there. A folder with a "base" takes over tables, files
    /// and options of that folder which it doesn't have itself.
    static SourceFolder read(const QString& folder);

    QString folder;
    QString output;                         ///< file name of the package, "" when none is given
    std::vector<SourceDatabase> databases;  ///< the catalogue's own first, if there is one
    std::vector<SourceFile> files;          ///< by entry name
    QStringList folders;                    ///< entries of folders, each with a final "/"
    QMap<QString, QString> columns;         ///< declared types, by "Table.Column" or "entry:Table.Column"
    QSet<QString> literals;                 ///< columns whose fields are literals of SQL, named likewise

    QStringList keep;            ///< patterns of entries that stay although no table names them
    CatalogueOptions catalogue;  ///< what concerns the catalogue's own database

    Definizione_Colonna column(const QString& entry, const QString& table, const QString& name) const;
    bool isLiteral(const QString& entry, const QString& table, const QString& name) const;
    bool isKept(const QString& entry) const;
    /// Neither tables nor files nor sheets to make tables of.
    bool isEmpty() const;
    /// All entries in the order in which they are packed.
    QStringList entries() const;

  private:
    static SourceFolder read(const QString& folder, QStringList variants);
    void inherit(const SourceFolder& base);
    void readFiles(const QMap<QString, QString>& renamed, const QStringList& ignored);
    void checkEntries() const;

    QString main_entry_;
    QStringList order_;
};

/// The order in which entries are packed when a source folder says nothing else: the catalogue's database,
/// the other databases, then all others, by name.
QStringList naturalOrder(const QString& main_entry, QStringList databases, QStringList others);

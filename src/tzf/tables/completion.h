#pragma once

#include <QSet>
#include <functional>

#include "tzf/tables/catalogue_options.h"
#include "tzf/tables/languages.h"
#include "tzf/tables/row_view.h"

struct Tabella_Nota;

/// nullptr for a table that the viewer doesn't know; without regard to case.
const Tabella_Nota* knownTable(const QString& name);
/// A product's key without the prefix that tells its kind.
QString bareKey(const QString& key);

/// The tables of a catalogue as they are packed: those of its folder, those made from sheets, and all that
/// follows from them and needn't be typed: languages and settings to start with, depths and order, titles,
/// the copies of a part's columns in the parts lists, empty columns and tables that the viewer asks for. What
/// a table of the folder says itself is never changed.
class CatalogueTables {
  public:
    /// `files` are the folder's tables by name. Fails with `ToolError`.
    CatalogueTables(const CatalogueOptions& options, const QMap<QString, QString>& files);

    QStringList names() const;
    /// The rows of a table; it is there as long as this object.
    std::unique_ptr<RowSource> open(const QString& table) const;
    /// Where a row of a table that was made comes from, "parts.xlsx (Items) row 7"; "" for the folder's own.
    QString place(const QString& table, qint64 row) const;
    /// Doubts about the sheets that were read.
    const QStringList& doubts() const { return doubts_; }

  private:
    struct Node {
        QString key, parent;
        QMap<int, QString> captions;
        qint64 order = 0;  ///< among its siblings, as they stand in the table
    };
    using View = RowView;
    using Value = std::function<QString(const View& row)>;
    /// A column that a table lacks, or whose empty fields are filled: its name and where its values come
    /// from.
    struct Derived {
        QString column;
        std::function<CsvField(const View& row)> value;
        int fills = -1;  ///< position of a column that is there
    };
    class CompletedRows;

    bool has(const QString& table) const;
    std::unique_ptr<RowSource> raw(const QString& table) const;
    void each(const QString& table, const std::function<void(const View&)>& visit) const;

    void readLanguages();
    void import();
    void readNodes();
    void readModel();
    void makeSettings();
    void makeProducts();
    void makeTitles();
    void makeEmptyTables();

    qint64 depth(const QString& key) const;
    QString path(const QString& key) const;
    Value derivation(const QString& table, const QString& column) const;
    std::vector<Derived> derived(const QString& table, const RowSource& rows) const;
    const QHash<QString, TableRow>& parts() const;

    CatalogueOptions options_;
    QMap<QString, QString> files_;
    MadeTables made_;
    Languages languages_;
    QHash<QString, Node> nodes_;
    QStringList node_order_;
    QStringList model_columns_;  ///< of the parts
    QString code_column_;
    QStringList doubts_;
    /// Rows that are added to a table of the folder.
    QMap<QString, MadeTable> additions_;
    mutable QHash<QString, TableRow> parts_;  ///< by code in upper case, read when first wanted
    mutable std::vector<QString> part_columns_;
};

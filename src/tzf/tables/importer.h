#pragma once

#include <QSet>

#include "tzf/tables/catalogue_options.h"
#include "tzf/tables/languages.h"
#include "tzf/tables/sheet.h"
#include "tzf/tables/table_rows.h"

/// Makes tables out of the sheets that a catalogue's options name: parts, products with the tree, parts
/// lists. What follows from these (copies, depths, titles) is left to the completion of the tables.
class Importer {
  public:
    /// `model` are the rows of a `Struttura_Componenti` that the folder has itself; nullptr when it has none.
    /// With `own_notes` a note in a list is a key of the folder's own notes, else its text.
    Importer(const CatalogueOptions& options, const Languages& languages, RowSource* model, bool own_notes);
    /// Fails with `ToolError`, which names the place in the file.
    MadeTables run();
    /// Doubts about what was read, one line each.
    const QStringList& doubts() const { return doubts_; }

  private:
    /// A column of a sheet and the words that say what it means.
    struct Use {
        int column;
        QString title;
        QStringList words;  ///< "text", "DE", "40"
    };
    struct Part {
        QString column;  ///< `Campo01` and up
        Use use;
        bool numeric = false;
    };

    std::vector<Use> uses(const SheetMapping& mapping, const Sheet& sheet, const QString& what,
                          const QStringList& known) const;
    QString cell(const SheetMapping& mapping, const Sheet& sheet, const SheetRow& row, const Use& use,
                 bool numeric) const;
    int language(const SheetMapping& mapping, const Use& use) const;
    static QString place(const Sheet& sheet, const SheetRow& row);
    void doubtCodes(const Sheet& sheet, const Use& use);

    void makeParts();
    std::vector<Part> partColumns(const Sheet& sheet);
    std::vector<Part> modelColumns(const Sheet& sheet);
    void describe(const Part& part, const Sheet& sheet);
    void makeProducts();
    void makeLists();
    QString note(const QString& text);

    const CatalogueOptions& options_;
    const Languages& languages_;
    RowSource* model_;
    bool own_notes_;
    MadeTables tables_;
    QStringList doubts_;
    QHash<QString, QString> keys_;   ///< of the nodes, by product code in upper case
    QHash<QString, QString> notes_;  ///< keys by text
    QSet<QString> listed_;           ///< codes of products with a parts list, in upper case
};

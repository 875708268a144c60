#pragma once

#include "tzf/tables/catalogue_options.h"
#include "tzf/tables/table_rows.h"

/// The tables of texts that the tool carries along: paths that can be read like a file's.
QString builtInTable(const QString& table);

/// `Lingue` with the languages of the options, each a market too. The numbers are those of the built-in
/// texts. Fails with `ToolError` on a key that isn't known, and when there is none.
MadeTable makeLanguages(const CatalogueOptions& options);

/// What a catalogue's `Lingue` says.
class Languages {
  public:
    Languages() = default;
    /// `first` is the key of the language to start with, "" for the first that is offered.
    explicit Languages(RowSource& rows, const QString& first = {});

    /// Number of a language by its key; 0 when there is none.
    int number(const QString& key) const { return numbers_.value(key.toUpper()); }
    QStringList keys() const;
    /// Numbers of those that are offered, the one to start with in front.
    const QList<int>& offered() const { return offered_; }
    int first() const { return offered_.isEmpty() ? 1 : offered_.first(); }
    /// Names of the first one, as a language and as a market.
    const QString& firstLanguage() const { return first_language_; }
    const QString& firstMarket() const { return first_market_; }

  private:
    QHash<QString, int> numbers_;
    QMap<int, QString> keys_;
    QList<int> offered_;
    QString first_language_, first_market_;
};

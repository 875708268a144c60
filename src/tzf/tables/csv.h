#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// One field: UTF-8 text, or NULL, which the file writes as an empty field without quotes ("" in quotes is
/// the empty text).
struct CsvField {
    QByteArray text;
    bool null = true;

    bool operator==(const CsvField&) const = default;
};

/// Reads the rows of a CSV file (RFC 4180) one after the other. Commas, semicolons or tabs separate the
/// fields: whichever there are most of between the column names. CR LF and LF end a row, a byte-order mark at
/// the start is passed over; with one of UTF-16 the file is read as that.
class CsvReader {
  public:
    /// Reads the whole file. Fails with `ToolError`.
    explicit CsvReader(const QString& path);
    /// Reads from memory; `name` stands in messages.
    CsvReader(QByteArray content, QString name);

    /// Fails with `SourceError` on an empty file, and on a column without a name or named twice.
    const std::vector<QString>& header() const { return header_; }
    /// The next row; false behind the last one. Empty lines are passed over, unless the table has one column:
    /// there they are a NULL. Fails with `SourceError` on a row of another length and on bad quotes.
    bool next(std::vector<CsvField>& row);
    /// Line of the file on which the last row began, from 1.
    qint64 line() const { return row_line_; }
    const QString& name() const { return name_; }

  private:
    void readHeader();
    bool readRow(std::vector<CsvField>& row);
    void readQuoted(CsvField& field);

    QByteArray content_;
    QString name_;
    std::vector<QString> header_;
    char separator_ = ',';
    qsizetype position_ = 0;
    qint64 line_ = 1;
    qint64 row_line_ = 1;
};

/// Appends one row, ended by a line feed.
void appendCsvRow(QByteArray& out, const std::vector<CsvField>& row);

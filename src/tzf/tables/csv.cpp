#include "tzf/tables/csv.h"

#include <QFile>
#include <QSet>
#include <QStringDecoder>
#include <algorithm>
#include <array>

#include "tzf/tool_error.h"

namespace {

QByteArray readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
    const QByteArray content = file.readAll();
    // What spreadsheets call "Unicode text".
    if (content.startsWith("\xFF\xFE") || content.startsWith("\xFE\xFF"))
        return QString(QStringDecoder(QStringDecoder::Utf16)(content)).toUtf8();
    return content;
}

/// The separator that stands most often between the column names.
char separatorOf(QByteArrayView content) {
    std::array<std::pair<char, int>, 3> counts = {{{',', 0}, {';', 0}, {'\t', 0}}};
    bool quoted = false;
    for (const char c : content) {
        if (c == '\n' && !quoted)
            break;
        if (c == '"')
            quoted = !quoted;
        for (auto& [separator, count] : counts)
            count += c == separator && !quoted ? 1 : 0;
    }
    return std::max_element(counts.begin(), counts.end(),
                            [](const auto& a, const auto& b) { return a.second < b.second; })
        ->first;
}

}  // namespace

CsvReader::CsvReader(const QString& path) : CsvReader(readFile(path), path) {}

CsvReader::CsvReader(QByteArray content, QString name)
    : content_(std::move(content)), name_(std::move(name)) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    for (qsizetype start = 0, line = 1; start < content_.size(); ++line) {
        const qsizetype end = content_.indexOf('\n', start);
        const qsizetype length = (end < 0 ? content_.size() : end) - start;
        const QString text = decoder.decode(QByteArrayView(content_).sliced(start, length));
        if (decoder.hasError())
            throw SourceError(name_, line,
                              QStringLiteral("the text isn't UTF-8; save the file as \"CSV UTF-8\""));
        start += length + 1;
    }
    if (content_.startsWith("\xEF\xBB\xBF"))
        position_ = 3;
    separator_ = separatorOf(QByteArrayView(content_).sliced(position_));
    readHeader();
}

void CsvReader::readHeader() {
    std::vector<CsvField> row;
    if (!readRow(row))
        throw SourceError(name_, 1, QStringLiteral("the row with the column names is missing"));
    QSet<QString> seen;
    for (const CsvField& field : row) {
        const QString column = QString::fromUtf8(field.text);
        if (column.isEmpty())
            throw SourceError(name_, 1, QStringLiteral("a column has no name"));
        if (seen.contains(column.toLower()))
            throw SourceError(name_, 1, QStringLiteral("column \"%1\" is there twice").arg(column));
        seen.insert(column.toLower());
        header_.push_back(column);
    }
}

bool CsvReader::next(std::vector<CsvField>& row) {
    while (readRow(row)) {
        if (row.size() == header_.size())
            return true;
        const bool empty_line = row.size() == 1 && row.front().null;
        if (!empty_line)
            throw SourceError(name_, row_line_,
                              QStringLiteral("the row has %1 fields, the table has %2 columns")
                                  .arg(row.size())
                                  .arg(header_.size()));
    }
    return false;
}

bool CsvReader::readRow(std::vector<CsvField>& row) {
    row.clear();
    row_line_ = line_;
    if (position_ >= content_.size())
        return false;
    while (true) {
        CsvField field;
        if (position_ < content_.size() && content_[position_] == '"') {
            readQuoted(field);
        } else {
            const qsizetype start = position_;
            while (position_ < content_.size() && content_[position_] != separator_ &&
                   content_[position_] != '\n') {
                if (content_[position_] == '"')
                    throw SourceError(name_, line_,
                                      QStringLiteral("a quote stands inside a field without quotes"));
                ++position_;
            }
            qsizetype end = position_;
            if (end > start && content_[end - 1] == '\r' && (end == content_.size() || content_[end] == '\n'))
                --end;
            field.text = content_.mid(start, end - start);
            field.null = field.text.isEmpty();
        }
        row.push_back(std::move(field));
        if (position_ >= content_.size())
            return true;
        if (content_[position_++] == '\n') {
            ++line_;
            return true;
        }
    }
}

void CsvReader::readQuoted(CsvField& field) {
    field.null = false;
    const qint64 opened = line_;
    ++position_;
    while (true) {
        const qsizetype quote = content_.indexOf('"', position_);
        if (quote < 0)
            throw SourceError(name_, opened, QStringLiteral("a quote is opened and not closed"));
        const QByteArrayView part = QByteArrayView(content_).sliced(position_, quote - position_);
        line_ += std::count(part.begin(), part.end(), '\n');
        field.text += part;
        position_ = quote + 1;
        if (position_ >= content_.size() || content_[position_] != '"')
            break;
        field.text += '"';
        ++position_;
    }
    if (position_ < content_.size() && content_[position_] == '\r')
        ++position_;
    if (position_ < content_.size() && content_[position_] != separator_ && content_[position_] != '\n')
        throw SourceError(name_, line_, QStringLiteral("text follows a closed quote"));
}

void appendCsvRow(QByteArray& out, const std::vector<CsvField>& row) {
    for (size_t i = 0; i < row.size(); ++i) {
        if (i > 0)
            out += ',';
        const CsvField& field = row[i];
        if (field.null)
            continue;
        // A text that begins with a byte-order mark would lose it at the start of the file.
        const bool quoted =
            field.text.isEmpty() || field.text.startsWith("\xEF\xBB\xBF") ||
            std::any_of(field.text.begin(), field.text.end(), [](char c) {
                return c == '"' || c == ',' || c == ';' || c == '\t' || c == '\n' || c == '\r';
            });
        if (!quoted) {
            out += field.text;
            continue;
        }
        QByteArray text = field.text;
        out += '"' + text.replace('"', "\"\"") + '"';
    }
    out += '\n';
}

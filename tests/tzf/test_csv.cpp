#include <gmock/gmock.h>

#include <optional>

#include "tzf/csv.h"
#include "tzf/sql_value.h"
#include "tzf/tool_error.h"

namespace {

using Rows = std::vector<std::vector<std::optional<QByteArray>>>;
constexpr auto NONE = std::nullopt;

Rows rowsOf(const QByteArray& content) {
    CsvReader csv(content, "t.csv");
    Rows rows;
    std::vector<CsvField> fields;
    while (csv.next(fields)) {
        auto& row = rows.emplace_back();
        for (const CsvField& field : fields)
            row.push_back(field.null ? NONE : std::optional(field.text));
    }
    return rows;
}

struct ReadCase {
    const char* name;
    QByteArray content;
    Rows rows;
};

class CsvRead : public testing::TestWithParam<ReadCase> {};

TEST_P(CsvRead, GivesTheRows) {
    EXPECT_EQ(rowsOf(GetParam().content), GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(
    Csv, CsvRead,
    testing::Values(ReadCase{"null_and_empty", "a,b\n,\"\"\n\"\",\n", {{NONE, ""}, {"", NONE}}},
                    ReadCase{"no_rows", "a,b\n", {}}, ReadCase{"no_rows_no_line_end", "a,b", {}},
                    ReadCase{"no_last_line_end", "a,b\n1,2", {{"1", "2"}}},
                    ReadCase{"last_field_null_at_the_end", "a,b\n1,", {{"1", NONE}}},
                    ReadCase{"windows_line_ends", "a,b\r\n1,2\r\n,\r\n", {{"1", "2"}, {NONE, NONE}}},
                    ReadCase{"line_end_behind_a_quote", "a,b\r\n1,\"2\"\r\n", {{"1", "2"}}},
                    ReadCase{"quotes", "a,b\n\"say \"\"hi\"\"\",\",\"\n", {{"say \"hi\"", ","}}},
                    ReadCase{"lines_in_a_field", "a,b\n\"x\r\ny\n\",2\n", {{"x\r\ny\n", "2"}}},
                    ReadCase{"byte_order_mark",
                             "\xEF\xBB\xBF"
                             "a,b\n1,2\n",
                             {{"1", "2"}}},
                    ReadCase{"blanks_stay", "a,b\n 1 ,\" 2 \"\n", {{" 1 ", " 2 "}}},
                    ReadCase{"empty_lines", "a,b\n1,2\n\n3,4\n\n", {{"1", "2"}, {"3", "4"}}},
                    ReadCase{"empty_line_of_one_column", "a\n1\n\n3\n", {{"1"}, {NONE}, {"3"}}},
                    ReadCase{"letters", "a\nàß€Ω\n", {{"àß€Ω"}}}),
    [](const auto& test) { return test.param.name; });

struct FaultCase {
    const char* name;
    QByteArray content;
    const char* message;
};

class CsvFault : public testing::TestWithParam<FaultCase> {};

TEST_P(CsvFault, IsToldWithItsLine) {
    try {
        rowsOf(GetParam().content);
        FAIL() << "no error";
    } catch (const SourceError& error) {
        EXPECT_THAT(error.message().toStdString(), testing::HasSubstr(GetParam().message));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Csv, CsvFault,
    testing::Values(FaultCase{"nothing", "", "t.csv:1:"},
                    FaultCase{"column_twice", "a,A\n", "t.csv:1: column \"A\""},
                    FaultCase{"column_without_name", "a,\n", "t.csv:1: a column has no name"},
                    FaultCase{"too_few", "a,b\n1,2\n3\n", "t.csv:3: the row has 1 fields, the table has 2"},
                    FaultCase{"too_many", "a,b\n\"x\ny\",2\n1,2,3\n", "t.csv:4: the row has 3"},
                    FaultCase{"open_quote", "a\n1\n\"2\n3\n", "t.csv:3: a quote is opened"},
                    FaultCase{"text_behind_quote", "a\n\"1\"2\n", "t.csv:2: text follows"},
                    FaultCase{"quote_inside", "a\n1\"2\n", "t.csv:2: a quote stands inside"},
                    FaultCase{"not_utf8", "a\n1\n\xE9t\xE9\n", "t.csv:3: the text isn't UTF-8"}),
    [](const auto& test) { return test.param.name; });

TEST(Csv, WhatIsWrittenReadsBack) {
    const Rows rows = {{NONE, "", " "},
                       {"a\"b", "\"", ","},
                       {"\n", "\r\n", "\r"},
                       {"\xEF\xBB\xBF", "x", ""},
                       {"plain", "ünï, \"x\"\n", NONE}};
    QByteArray content = "a,b,c\n";
    for (const auto& row : rows) {
        std::vector<CsvField> fields;
        for (const auto& value : row)
            fields.push_back(value ? CsvField{*value, false} : CsvField{});
        appendCsvRow(content, fields);
    }
    EXPECT_EQ(rowsOf(content), rows);
}

TEST(SqlValue, LiteralsReadBackExactly) {
    const std::vector<SqlValue> values = {std::monostate(),
                                          qint64(0),
                                          qint64(-9223372036854775807) - 1,
                                          qint64(9223372036854775807),
                                          3.0,
                                          0.1,
                                          1e300,
                                          -2.5e-7,
                                          QByteArray("it's"),
                                          QByteArray(),
                                          QByteArray("12"),
                                          QByteArray("a\0b", 3),
                                          QByteArray("\xFF\xFE"),
                                          Blob{QByteArray("\0\x01\xFF", 3)},
                                          Blob{}};
    for (const SqlValue& value : values) {
        SqlValue back = QByteArray("none");
        EXPECT_TRUE(parseLiteral(toLiteral(value), back)) << toLiteral(value).constData();
        EXPECT_EQ(back, value) << toLiteral(value).constData();
    }
    SqlValue ignored;
    for (const char* wrong : {"", "abc", "'a", "X'0'", "X'zz'", "1 2"})
        EXPECT_FALSE(parseLiteral(wrong, ignored)) << wrong;
}

}  // namespace

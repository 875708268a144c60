#include "tzf/tables/csv.h"

#include <gmock/gmock.h>

#include <optional>

#include "tzf/package/literal.h"
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

TEST(Csv, ReadsEveryFormOfRows) {
    const struct {
        const char* name;
        QByteArray content;
        Rows rows;
    } cases[] = {
        {"null and empty", "a,b\n,\"\"\n\"\",\n", {{NONE, ""}, {"", NONE}}},
        {"last field NULL at the end", "a,b\n1,", {{"1", NONE}}},
        {"Windows line ends", "a,b\r\n1,2\r\n,\r\n", {{"1", "2"}, {NONE, NONE}}},
        {"line end behind a quote", "a\r\n\"2\"\r\n", {{"2"}}},
        {"quotes", "a,b\n\"say \"\"hi\"\"\",\",\"\n", {{"say \"hi\"", ","}}},
        {"lines in a field", "a,b\n\"x\r\ny\n\",2\n", {{"x\r\ny\n", "2"}}},
        {"byte order mark", QByteArray("\xEF\xBB\xBF") + "a,b\n1,2\n", {{"1", "2"}}},
        {"semicolons", "a;b\n1,5;\"2;3\"\n", {{"1,5", "2;3"}}},
        {"tabs", "a\tb\n1;5\t\n", {{"1;5", NONE}}},
        {"the commonest separator", "\"a,b,c\";d;e,f\n1;2;3\n", {{"1", "2", "3"}}},
        {"blanks stay", "a,b\n 1 ,\" 2 \"\n", {{" 1 ", " 2 "}}},
        {"empty lines", "a,b\n1,2\n\n3,4\n\n", {{"1", "2"}, {"3", "4"}}},
        {"empty line of one column", "a\n1\n\n3\n", {{"1"}, {NONE}, {"3"}}},
    };
    for (const auto& [name, content, rows] : cases)
        EXPECT_EQ(rowsOf(content), rows) << name;
}

TEST(Csv, TellsAFaultWithItsLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "t.csv:1:"},
        {"a,A\n", "t.csv:1: column \"A\""},
        {"a,b\n\"x\ny\",2\n1,2,3\n", "t.csv:4: the row has 3"},
        {"a\n1\n\"2\n3\n", "t.csv:3: a quote is opened"},
        {"a\n\"1\"2\n", "t.csv:2: text follows"},
        {"a\n1\"2\n", "t.csv:2: a quote stands inside"},
        {"a\n1\n\xE9t\xE9\n", "t.csv:3: the text isn't UTF-8"},
    };
    for (const auto& [content, message] : cases)
        EXPECT_THAT([&content = content] { rowsOf(content); },
                    testing::ThrowsMessage<SourceError>(testing::HasSubstr(message)));
}

TEST(Literal, ReadsBackExactly) {
    Valore back, ignored;
    for (const Valore& value :
         {Valore(), Valore(std::numeric_limits<qint64>::min()), Valore(3.0), Valore(0.1), Valore(1e300),
          Valore(QString("it's")), Valore(QString("")), Valore(QString("12")), Valore::Da_Testo("\xFF\xFE"),
          Valore(QString("a") + QChar(0)), Valore::Da_Byte(QByteArray("\0\x01\xFF", 3)),
          Valore::Da_Byte({})}) {
        EXPECT_TRUE(parseLiteral(toLiteral(value), back)) << toLiteral(value).constData();
        EXPECT_EQ(back, value) << toLiteral(value).constData();
    }
    for (const char* wrong : {"", "abc", "'a", "X'0'", "X'zz'", "1 2"})
        EXPECT_FALSE(parseLiteral(wrong, ignored)) << wrong;
}

}  // namespace

#include "tzf/check/check.h"
#include "tzf/package/pack.h"
#include "tzf/tables/sheet.h"
#include "tzf/tables/skeleton.h"
#include "tzf/tool.h"
#include "tzf/tool_error.h"

namespace {

using testing::ElementsAre, testing::HasSubstr, testing::IsEmpty;

/// A source folder whose tables are made and looked at.
class Tables : public testing::Test {
  protected:
    QString path() const { return folder.filePath("source"); }
    void write(const QString& name, const QByteArray& content) { writeFile(path() + '/' + name, content); }

    std::string failure() const {
        try {
            const SourceFolder source = SourceFolder::read(path());
            CatalogueTables(source.catalogue, source.databases.at(0).tables);
        } catch (const ToolError& error) {
            return error.message().toStdString();
        }
        return "no failure";
    }
    /// A table's rows in these columns, fields between "|", "-" for NULL.
    std::vector<std::string> rows(const QString& table, const QStringList& columns) const {
        const SourceFolder source = SourceFolder::read(path());
        const CatalogueTables tables(source.catalogue, source.databases.at(0).tables);
        const auto source_rows = tables.open(table);
        std::vector<std::string> lines;
        TableRow row;
        while (source_rows->next(row)) {
            QStringList fields;
            for (const QString& column : columns) {
                const int at = source_rows->position(column);
                fields << (at < 0 ? "no column" : row[at].null ? "-" : QString::fromUtf8(row[at].text));
            }
            lines.push_back(fields.join('|').toStdString());
        }
        return lines;
    }
    static std::vector<std::string> findings(const QString& catalogue) {
        std::vector<std::string> lines;
        for (const Finding& finding : checkCatalogue(catalogue))
            lines.push_back(finding.message.toStdString());
        return lines;
    }

    QTemporaryDir folder;
};

TEST_F(Tables, ASkeletonPacksAndChecksCleanAtOnce) {
    for (const QStringList& languages :
         {QStringList{"UK"}, {"de", "it"}, {"IT", "UK", "FR", "DE", "ES", "PT"}}) {
        const QString name = folder.filePath(languages.join('_'));
        EXPECT_EQ(writeSkeleton(name, languages).size(), 7);
        EXPECT_THAT(findings(name), IsEmpty());
        EXPECT_EQ(packFolder(name, name + ".TZF").languages.size(), languages.size());
        EXPECT_THAT(findings(name + ".TZF"), IsEmpty());
    }
    EXPECT_THROW(writeSkeleton(folder.path(), {"UK"}), ToolError) << "the folder isn't empty";
    EXPECT_THROW(writeSkeleton(folder.filePath("x"), {"XX"}), ToolError);
}

TEST_F(Tables, WhatNeedntBeTypedIsWorkedOut) {
    write("catalogue.json", R"({"languages": ["DE", "UK"], "title": {"DE": "Mühle", "UK": "Mill"}})");
    write("Albero_Web.csv",
          "Key_Prodotto,Key_Padre,Testo_Visualizzato_2,Testo_Visualizzato_4\n"
          "P_2,G_1,Drive,Antrieb\nG_1,R,Mill,Mühle\nP_1,G_1,Hopper,Trichter\n");
    write("Prodotti.csv", "Key_Prodotto,Mappa_Associata\nP_1,a.svg\nP_2,\n");
    write("Struttura_Componenti.csv",
          "Nome_Colonna_Tabella;Titolo_Colonna;Tipo_Colonna\nCampo01;Nr;\nCampo02;€;Price\n");
    write("Componenti.csv", "Campo01,Campo02\nA,1.50\nb,2\n");
    write("Componenti_Web.csv", "Key_Prodotto,Key_Riferimento,Codice_Componente\nP_1,7,B\nP_1,,A\nP_2,1,X\n");
    EXPECT_THAT(rows("Albero_Web", {"Key_Prodotto", "Key_Padre", "Profondita_Nodo", "Ordine", "Percorso",
                                    "Testo_Visualizzato_4", "Testo_Visualizzato_1", "Key_Mercato"}),
                ElementsAre("P_2|G_1|2|1|Mühle|Antrieb|-|-", "G_1|R|1|1|-|Mühle|-|-",
                            "P_1|G_1|2|2|Mühle|Trichter|-|-", "R|-|0|0|-|Mühle|-|-"));
    EXPECT_THAT(
        rows("Componenti_Web", {"Ordine", "Key_Riferimento", "Tipo_Associazione", "Campo01", "Campo02"}),
        ElementsAre("1|7|2|b|2", "2|A|1|A|1.50", "3|1|2|-|-"));
    EXPECT_THAT(rows("Prodotti", {"Codice", "Flag_2"}), ElementsAre("1|1", "2|0"));
    EXPECT_THAT(
        rows("Struttura_Componenti", {"Visualizzato", "Indice_Primario", "Traduzione_2", "Traduzione_3"}),
        ElementsAre("Yes|Yes|Nr|-", "Yes|No|€|-"));
    EXPECT_EQ(rows("Albero", {"Key_Prodotto", "Descrizione_Nodo"}).front(), "R|Mühle");
    EXPECT_EQ(rows("Traduzioni_Albero", {"Descrizione_Nodo", "Traduzione_2"}).front(), "Mühle|Mill");
    EXPECT_THAT(rows("SYSTEM", {"KEY", "VALORE"}),
                testing::IsSupersetOf({"VERSIONE|4.3", "LINGUA_START|Deutsch", "MERCATO_START|Deutschland"}));
    EXPECT_THAT(rows("Anagrafico", {"Login"}), IsEmpty());
    EXPECT_GT(rows("Traduzioni_Viewer_System", {"Form"}).size(), 100u);

    write("catalogue.json", R"({"complete": false})");
    EXPECT_THAT(rows("Componenti_Web", {"Ordine"}), testing::Each("no column"));
}

TEST_F(Tables, TheSampleMadeOfTwoWorkbooksChecksCleanAndHoldsEveryRow) {
    const QString sample = SAMPLES "/applemill";
    EXPECT_LE(readFile(sample + "/catalogue.json").count('\n'), 15);
    EXPECT_THAT(findings(sample), IsEmpty());
    const QString package = folder.filePath("a.TZF");
    const PackReport report = packFolder(sample, package);
    EXPECT_EQ(std::make_tuple(report.nodes, report.products, report.parts, report.rows, report.files),
              std::make_tuple(3, 2, 20, 21, 1));
    EXPECT_THAT(findings(package), IsEmpty());
}

TEST_F(Tables, NumbersOfSheetsAreNeverGuessed) {
    const struct {
        const char *decimal, *text, *expected;
    } cases[] = {
        {"", "1048.50", "1048.50"},
        {"", "-3", "-3"},
        {"", "", "-"},
        {"", "1,5", "isn't a plain"},
        {"", "1,048.00", "isn't a plain"},
        {"", "12 EUR", "isn't a plain"},
        {",", "1.048,50", "1048.50"},
        {",", "1,5", "1.5"},
        {",", "1.048", "1048"},
        {",", "1.5", "isn't a number"},
        {".", "1,048.50", "1048.50"},
        {".", "1,5", "isn't a number"},
    };
    for (const auto& [decimal, text, expected] : cases) {
        SCOPED_TRACE(std::string(decimal) + " " + text);
        write("p.csv", QByteArray("Nr;Preis\n01;") + text + "\n");
        write("catalogue.json",
              QByteArray(R"({"languages": ["DE"], "import": {"parts": {"file": "p.csv", "decimal": ")") +
                  decimal + R"(", "columns": {"Nr": "code", "Preis": "price"}}}})");
        const std::string fault = failure();
        if (fault == "no failure")
            EXPECT_EQ(rows("Componenti", {"Campo01", "Campo02"}).front(), std::string("01|") + expected);
        else
            EXPECT_THAT(fault, testing::AllOf(HasSubstr("p.csv row 2, Preis"), HasSubstr(expected)));
    }
}

TEST_F(Tables, ADoubtfulSourceIsOneWarning) {
    // Window texts under the number of another language.
    writeSkeleton(path(), {"UK"});
    write("catalogue.json", R"({"title": "Mill"})");
    write("Lingue.csv",
          "ID,Chiave,Descrizione_Lingua,Descrizione_Mercato,Attiva_Lingua,Attiva_Mercato\n"
          "2,DE,Deutsch,Deutschland,TRUE,TRUE\n");
    EXPECT_THAT(findings(path()),
                ElementsAre("the windows' texts of number 2 (DE) are those of UK; DE has number 4 there"));
    // Codes whose zeros in front the workbook has lost.
    write("catalogue.json",
          R"({"import": {"parts": {"file": ")" WORKBOOKS R"(/cells.ods", "columns": {"Item": "code"}}}})");
    QFile::remove(path() + "/Componenti.csv");
    QFile::remove(path() + "/Struttura_Componenti.csv");
    EXPECT_THAT(packFolder(path(), folder.filePath("a.TZF")).doubts,
                ElementsAre(testing::Truly([](const QString& doubt) {
                    return doubt.startsWith("cells.ods (Items), Item: row 3 is a number and row 2 a text");
                })));
}

TEST_F(Tables, FaultsOfTheMappingSayWhatThereIs) {
    write("p.csv", "Nr,Text\n1,a\n");
    write("Lingue.csv", "ID,Chiave,Attiva_Lingua\n4,DE,TRUE\n");
    const std::pair<const char*, const char*> cases[] = {
        {R"("p.csv", "columns": {"No": "code"})", "no column \"No\"; there are: Nr, Text"},
        {R"("p.csv", "columns": {"Nr": "cod"})", "is \"cod\", and can be: code, discount"},
        {R"("p.csv", "columns": {"Text": "text DE"})", "one column has to be \"code\""},
        {R"("p.csv", "columns": {"Nr": "code", "Text": "text XX"})", "no language \"XX\"; there are: DE"},
        {R"("q.csv")", "\"q.csv\" isn't there"},
        {R"("p.csv", "colums": {})", "\"import.parts.colums\" is no option"},
    };
    for (const auto& [parts, message] : cases) {
        write("catalogue.json", QByteArray(R"({"import": {"parts": {"file": )") + parts + "}}}");
        std::string fault = failure();
        EXPECT_THAT(fault, HasSubstr(message)) << parts;
    }
    write("catalogue.json", R"({"languages": ["DE"]})");
    EXPECT_THAT(failure(), HasSubstr("\"languages\" and the table Lingue say the same"));
}

TEST(Workbook, CellsComeAsTheirAuthorsSeeThem) {
    // Code as text, as number, with a mask of zeros; price; weight; date; formulas; a long number.
    const auto row = [](const char* file, size_t index) {
        QStringList texts;
        const Sheet sheet = readSheet(QString(WORKBOOKS "/") + file, "items");
        for (const SheetCell& cell : sheet.rows.at(index).cells)
            texts << (cell.fault.isEmpty() ? cell.text : QStringLiteral("fault"));
        return texts.join('|').toStdString();
    };
    EXPECT_EQ(row("cells.ods", 0), "00123|Bolt ä|1048|0.3|2026-11-23|1|2096|4006381333931");
    EXPECT_EQ(row("cells.ods", 1), "123|Nut x|1048.5|2.5|2026-11-23 14:30|0|7|4006381333931");
    EXPECT_EQ(row("cells.xlsx", 0), "00123|Bolt ä|1048|0.3|2026-11-23|fault|2096|4006381333931");
    EXPECT_EQ(row("cells.xlsx", 2), "0077|two\nlines|1.048,00|0.00001|||Bolt äx|");
    EXPECT_THAT([] { readSheet(WORKBOOKS "/cells.ods", "Prices"); },
                testing::ThrowsMessage<ToolError>(HasSubstr("no sheet \"Prices\"; there are: Items, Lines")));
}

class Publisher : public Tool {};

TEST_F(Publisher, OrdersFromTheSampleAndIsToldWhatPackLeavesOut) {
    ASSERT_EQ(run({"pack", SAMPLES "/applemill", "a.TZF"}).code, 0);
    writeFile(folder.filePath("steps"), R"({"hotspot": {"product": "P_AM12-10", "name": "5"}}
{"add": {"product": "P_AM12-20", "code": "AM12.90.01", "reference": "-"}})");
    const Outcome order = run({"order", "a.TZF", "--lines", "steps", "--lingua", "DE"});
    EXPECT_THAT(order.out.toStdString(), testing::AllOf(HasSubstr("Messerleiste"), HasSubstr("193.50")));

    ASSERT_EQ(run({"new", "mine"}).code, 0);
    writeFile(folder.filePath("mine/notes.txt"), "x");
    const Outcome pack = run({"pack", "mine"});
    EXPECT_THAT(pack.out.toStdString(),
                HasSubstr("2 nodes, 1 product, 2 parts, 2 rows of parts lists, 1 file"));
    EXPECT_THAT(pack.err.toStdString(), HasSubstr("left out, because no table names it: notes.txt"));
    EXPECT_THAT(run({"check", "mine"}).out.toStdString(), HasSubstr("\"notes.txt\" is named in no table"));
    writeFile(folder.filePath("empty/catalogue.json"), "{}");
    EXPECT_EQ(run({"pack", "empty", "e.TZF"}).code, 1);
}

TEST_F(Publisher, ManyFaultsOfOneKindAreAFewLines) {
    ASSERT_EQ(run({"new", "mine"}).code, 0);
    QByteArray rows;
    for (int i = 0; i < 50; ++i)
        rows += "P_10,1,NO" + QByteArray::number(i) + ",1\n";
    writeFile(folder.filePath("mine/Componenti_Web.csv"), rows, QIODevice::Append);
    EXPECT_EQ(run({"check", "mine"}).out.count('\n'), 3);
    EXPECT_EQ(run({"check", "mine", "--all"}).out.count('\n'), 50);
    EXPECT_EQ(run({"check", "mine", "--all", "--max", "5"}).out.count('\n'), 6);
    EXPECT_EQ(run({"check", "mine", "--json"}).array().size(), 50);
}

}  // namespace

#include "tzf/source_folder.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tzf/tool_error.h"

namespace {

class SourceFolderTest : public testing::Test {
  protected:
    void write(const QString& name, const QByteArray& content) {
        const QString path = folder.filePath("source/" + name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    SourceFolder read() const { return SourceFolder::read(folder.filePath("source")); }
    std::string failure() const {
        try {
            read();
        } catch (const ToolError& error) {
            return error.message().toStdString();
        }
        return "no failure";
    }

    QTemporaryDir folder;
};

TEST_F(SourceFolderTest, TablesMediaAndOtherDatabasesAreToldApart) {
    write("catalogue.json", R"({"output": "x.TZF", "databases": {"TZ1.QLD": "TZ1"}})");
    write("SYSTEM.csv", "KEY,VALORE\n");
    write("Lingue.CSV", "ID\n");
    write("TZ1/Anagrafico.csv", "Identificativo\n");
    write("images/a.png", "1");
    write("docs/prices.csv", "1");
    write(".git/config", "1");
    write(".DS_Store", "1");
    const SourceFolder source = read();
    EXPECT_EQ(source.output, "x.TZF");
    ASSERT_EQ(source.databases.size(), 2u);
    EXPECT_EQ(source.databases[0].entry, "tzd_qlfrml_cod.tzf");
    EXPECT_EQ(source.databases[0].tables.keys(), QStringList({"Lingue", "SYSTEM"}));
    EXPECT_EQ(source.databases[1].tables.keys(), QStringList({"Anagrafico"}));
    EXPECT_EQ(source.entries(),
              QStringList({"tzd_qlfrml_cod.tzf", "TZ1.QLD", "docs/prices.csv", "images/a.png"}));
}

TEST_F(SourceFolderTest, TablesCanLiveElsewhereAndFilesCanBeRenamedIgnoredAndOrdered) {
    write("catalogue.json", R"({"tables": {"Lingue": "../shared/Lingue.csv"}, "ignore": ["*.md", "drafts/*"],
        "entries": {"a.png": "img/b.png"}, "order": ["img/b.png"], "folders": ["empty/"]})");
    write("../shared/Lingue.csv", "ID\n");
    write("a.png", "1");
    write("README.md", "1");
    write("drafts/x/y.png", "1");
    const SourceFolder source = read();
    EXPECT_EQ(source.databases[0].tables.value("Lingue"), folder.filePath("shared/Lingue.csv"));
    EXPECT_EQ(source.entries(), QStringList({"img/b.png", "tzd_qlfrml_cod.tzf", "empty/"}));
}

TEST_F(SourceFolderTest, ColumnTypesAreBuiltInUnlessSaidOtherwise) {
    write("catalogue.json",
          R"({"databases": {"o.qld": "o"}, "columns": {"SYSTEM.VALORE": "TEXT COLLATE BINARY",
        "o.qld:SYSTEM.KEY": "INTEGER"}})");
    write("o/SYSTEM.csv", "KEY,VALORE\n");
    const SourceFolder source = read();
    const QString main = "tzd_qlfrml_cod.tzf";
    EXPECT_EQ(source.column(main, "Lingue", "ID").type, "INTEGER");
    EXPECT_EQ(source.column(main, "Componenti_Web", "Ordine").type, "INTEGER");
    EXPECT_EQ(source.column(main, "Matricola_Nodo", "Min_Matricola_n").type, "REAL");
    EXPECT_EQ(source.column(main, "SYSTEM", "KEY").type, "TEXT");
    EXPECT_EQ(source.column(main, "SYSTEM", "KEY").collation, "NOCASE");
    EXPECT_EQ(source.column(main, "SYSTEM", "VALORE").collation, "BINARY");
    EXPECT_EQ(source.column("o.qld", "SYSTEM", "KEY").type, "INTEGER");
}

TEST_F(SourceFolderTest, FaultsAreTold) {
    using testing::HasSubstr;
    EXPECT_THAT(failure(), HasSubstr("no such folder"));
    write("a.png", "1");
    EXPECT_THAT(failure(), HasSubstr("catalogue.json"));
    const std::pair<const char*, const char*> cases[] = {
        {"{\n\n\"output\": }", "catalogue.json:3"},
        {"[]", "an object"},
        {R"({"outputs": "a"})", "\"outputs\" is no option"},
        {R"({"output": 1})", "\"output\" must be a text"},
        {R"({"tables": {"A": "../no.csv"}})", "../no.csv isn't there"},
        {R"({"databases": {"A": "no"}})", "no is no folder"},
        {R"({"entries": {"no.png": "x"}})", "no.png isn't there"},
        {R"({"entries": {"a.png": "tzd_qlfrml_cod.tzf"}})", "is there twice"},
        {R"({"order": ["nothing"]})", "no entry nothing"},
        {R"({"folders": ["x"]})", "doesn't end"},
    };
    for (const auto& [json, message] : cases) {
        write("catalogue.json", json);
        EXPECT_THAT(failure(), HasSubstr(message)) << json;
    }
}

TEST_F(SourceFolderTest, LinksAreRefused) {
    write("catalogue.json", "{}");
    ASSERT_TRUE(QFile::link("/etc/hostname", folder.filePath("source/secret.txt")));
    EXPECT_THAT(failure(), testing::HasSubstr("is a link"));
}

}  // namespace

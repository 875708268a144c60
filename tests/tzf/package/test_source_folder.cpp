#include "tzf/package/source_folder.h"

#include "tzf/tool.h"
#include "tzf/tool_error.h"

namespace {

using testing::HasSubstr;

class SourceFolderTest : public testing::Test {
  protected:
    void write(const QString& name, const QByteArray& content) {
        writeFile(folder.filePath("source/" + name), content);
    }
    void touch(const QStringList& names) {
        for (const QString& name : names)
            write(name, "1");
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
    touch({"SYSTEM.csv", "Lingue.CSV", "TZ1/Anagrafico.csv", "images/a.png", "docs/prices.csv", ".git/config",
           ".DS_Store"});
    const SourceFolder source = read();
    EXPECT_EQ(source.output, "x.TZF");
    ASSERT_EQ(source.databases.size(), 2u);
    EXPECT_EQ(source.databases[0].tables.keys(), QStringList({"Lingue", "SYSTEM"}));
    EXPECT_EQ(source.databases[1].tables.keys(), QStringList({"Anagrafico"}));
    EXPECT_EQ(source.entries(),
              QStringList({"tzd_qlfrml_cod.tzf", "TZ1.QLD", "docs/prices.csv", "images/a.png"}));
}

TEST_F(SourceFolderTest, TablesCanLiveElsewhereAndFilesCanBeRenamedIgnoredAndOrdered) {
    write("catalogue.json", R"({"tables": {"Lingue": "../common/Lingue.csv"}, "ignore": ["*.md", "drafts/*"],
        "entries": {"a.png": "img/b.png"}, "order": ["img/b.png"], "folders": ["empty/"]})");
    touch({"../common/Lingue.csv", "a.png", "README.md", "drafts/x/y.png"});
    const SourceFolder source = read();
    EXPECT_EQ(source.databases[0].tables.value("Lingue"), folder.filePath("common/Lingue.csv"));
    EXPECT_EQ(source.entries(), QStringList({"img/b.png", "tzd_qlfrml_cod.tzf", "empty/"}));
}

TEST_F(SourceFolderTest, ColumnTypesAreBuiltInUnlessSaidOtherwise) {
    write("catalogue.json",
          R"({"databases": {"o.qld": "o"}, "columns": {"SYSTEM.VALORE": "TEXT COLLATE BINARY",
        "o.qld:SYSTEM.KEY": "INTEGER"}})");
    touch({"o/SYSTEM.csv"});
    const SourceFolder source = read();
    const QString main = "tzd_qlfrml_cod.tzf";
    EXPECT_EQ(source.column(main, "Lingue", "ID").Tipo, "INTEGER");
    EXPECT_EQ(source.column(main, "Matricola_Nodo", "Min_Matricola_n").Tipo, "REAL");
    EXPECT_EQ(source.column(main, "SYSTEM", "KEY").Confronto, "NOCASE");
    EXPECT_EQ(source.column(main, "SYSTEM", "VALORE").Confronto, "BINARY");
    EXPECT_EQ(source.column("o.qld", "SYSTEM", "KEY").Tipo, "INTEGER");
}

TEST_F(SourceFolderTest, FaultsAreTold) {
    EXPECT_THAT(failure(), HasSubstr("no such folder"));
    touch({"a.png"});
    EXPECT_THAT(failure(), HasSubstr("catalogue.json"));
    write("../b/catalogue.json", R"({"base": "../source"})");
    const std::pair<const char*, const char*> cases[] = {
        {"{\n\n\"output\": }", "catalogue.json:3"},
        {R"({"outputs": "a"})", "\"outputs\" is no option"},
        {R"({"output": 1})", "\"output\" must be a text"},
        {R"({"tables": {"A": "../no.csv"}})", "../no.csv isn't there"},
        {R"({"databases": {"A": "no"}})", "no is no folder"},
        {R"({"entries": {"no.png": "x"}})", "no.png isn't there"},
        {R"({"entries": {"a.png": "tzd_qlfrml_cod.tzf"}})", "is there twice"},
        {R"({"order": ["nothing"]})", "no entry nothing"},
        {R"({"folders": ["x"]})", "doesn't end"},
        {R"({"base": "../nowhere"})", "nowhere: no such folder"},
        {R"({"base": "../b"})", "leads back"},
    };
    for (const auto& [json, message] : cases) {
        write("catalogue.json", json);
        EXPECT_THAT(failure(), HasSubstr(message)) << json;
    }
}

TEST_F(SourceFolderTest, LinksAreRefused) {
    write("catalogue.json", "{}");
    ASSERT_TRUE(QFile::link("/etc/hostname", folder.filePath("source/secret.txt")));
    EXPECT_THAT(failure(), HasSubstr("is a link"));
}

TEST_F(SourceFolderTest, AVariantTakesOverWhatItDoesntHave) {
    write("../base/catalogue.json",
          R"({"output": "base.TZF", "databases": {"o.qld": "o"}, "tables": {"Sconti": "../common/Sconti.csv"},
        "columns": {"SYSTEM.VALORE": "REAL", "Lingue.ID": "TEXT"}, "order": ["b.png"], "folders": ["empty/"]})");
    touch({"../common/Sconti.csv", "../base/SYSTEM.csv", "../base/Lingue.csv", "../base/o/Anagrafico.csv",
           "../base/a.png", "../base/b.png"});
    write("catalogue.json", R"({"output": "x.TZF", "base": "../base", "columns": {"Lingue.ID": "REAL"}})");
    touch({"system.csv", "b.png", "c.png"});  // tables without regard to case, as everywhere
    const SourceFolder source = read();
    ASSERT_EQ(source.databases.size(), 2u);
    EXPECT_EQ(source.databases[0].tables.values(),
              QStringList({folder.filePath("base/Lingue.csv"), folder.filePath("common/Sconti.csv"),
                           folder.filePath("source/system.csv")}));
    EXPECT_EQ(source.databases[1].tables.values(), QStringList(folder.filePath("base/o/Anagrafico.csv")));
    EXPECT_EQ(source.entries(),
              QStringList({"b.png", "tzd_qlfrml_cod.tzf", "o.qld", "a.png", "c.png", "empty/"}));
    for (const SourceFile& file : source.files)
        EXPECT_EQ(file.path.contains("/base/"), file.entry == "a.png") << file.path.toStdString();
    EXPECT_EQ(source.column("tzd_qlfrml_cod.tzf", "Lingue", "ID").Tipo, "REAL");
    EXPECT_EQ(source.column("tzd_qlfrml_cod.tzf", "SYSTEM", "VALORE").Tipo, "REAL");
}

}  // namespace

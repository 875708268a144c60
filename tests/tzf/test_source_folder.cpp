#include "tzf/source_folder.h"

#include "tool.h"
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
    EXPECT_EQ(source.databases[0].entry, "tzd_qlfrml_cod.tzf");
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
    EXPECT_EQ(source.column(main, "Lingue", "ID").type, "INTEGER");
    EXPECT_EQ(source.column(main, "Componenti_Web", "Ordine").type, "INTEGER");
    EXPECT_EQ(source.column(main, "Matricola_Nodo", "Min_Matricola_n").type, "REAL");
    EXPECT_EQ(source.column(main, "SYSTEM", "KEY").type, "TEXT");
    EXPECT_EQ(source.column(main, "SYSTEM", "KEY").collation, "NOCASE");
    EXPECT_EQ(source.column(main, "SYSTEM", "VALORE").collation, "BINARY");
    EXPECT_EQ(source.column("o.qld", "SYSTEM", "KEY").type, "INTEGER");
}

TEST_F(SourceFolderTest, FaultsAreTold) {
    EXPECT_THAT(failure(), HasSubstr("no such folder"));
    touch({"a.png"});
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
    EXPECT_EQ(source.output, "x.TZF");
    ASSERT_EQ(source.databases.size(), 2u);
    const QMap<QString, QString>& tables = source.databases[0].tables;
    EXPECT_EQ(tables.keys(), QStringList({"Lingue", "Sconti", "system"}));
    EXPECT_EQ(tables.value("Lingue"), folder.filePath("base/Lingue.csv"));
    EXPECT_EQ(tables.value("system"), folder.filePath("source/system.csv"));
    EXPECT_EQ(source.databases[1].tables.value("Anagrafico"), folder.filePath("base/o/Anagrafico.csv"));
    EXPECT_EQ(source.entries(),
              QStringList({"b.png", "tzd_qlfrml_cod.tzf", "o.qld", "a.png", "c.png", "empty/"}));
    for (const SourceFile& file : source.files)
        EXPECT_EQ(file.path.contains("/base/"), file.entry == "a.png") << file.path.toStdString();
    EXPECT_EQ(source.column("tzd_qlfrml_cod.tzf", "Lingue", "ID").type, "REAL");
    EXPECT_EQ(source.column("tzd_qlfrml_cod.tzf", "SYSTEM", "VALORE").type, "REAL");
}

TEST_F(SourceFolderTest, AVariantOfAVariant) {
    write("../a/catalogue.json", R"({"output": "a.TZF"})");
    touch({"../a/SYSTEM.csv"});
    write("../b/catalogue.json", R"({"output": "b.TZF", "base": "../a"})");
    write("catalogue.json", R"({"base": "../b"})");
    const SourceFolder source = read();
    EXPECT_EQ(source.output, "");
    EXPECT_EQ(source.databases[0].tables.keys(), QStringList("SYSTEM"));
}

TEST_F(SourceFolderTest, ABaseThatCantBeUsed) {
    write("catalogue.json", R"({"base": "../nowhere"})");
    EXPECT_THAT(failure(), HasSubstr("nowhere: no such folder"));
    write("catalogue.json", R"({"base": "."})");
    EXPECT_THAT(failure(), HasSubstr("leads back"));
    write("../b/catalogue.json", R"({"base": "../source"})");
    write("catalogue.json", R"({"base": "../b"})");
    EXPECT_THAT(failure(), HasSubstr("leads back"));
    write("catalogue.json", R"({"base": 1})");
    EXPECT_THAT(failure(), HasSubstr("must be a text"));
}

}  // namespace

#include <cmath>

#include "support/catalogo_di_prova.h"
#include "tool.h"
#include "tzf/archive.h"
#include "tzf/database_reader.h"
#include "tzf/pack.h"
#include "tzf/tool_error.h"
#include "tzf/unpack.h"

namespace {

using testing::HasSubstr;

/// A database as lines: columns and rows of each table.
QStringList linesOf(const DatabaseReader& database) {
    EXPECT_TRUE(database.isProtected());
    QStringList tables = database.tables(), lines;
    tables.sort();
    for (const QString& table : std::as_const(tables)) {
        lines << "table " + table;
        for (const ColumnDeclaration& column : database.columns(table))
            lines << column.name + u' ' + column.typeText();
        TableReader rows = database.read(table);
        while (rows.next())
            for (int i = 0; i < rows.count(); ++i)
                lines << QString::fromLatin1(toLiteral(rows.value(i)));
    }
    return lines;
}

/// All that a package holds, in its order, as lines that can be compared.
QStringList contentOf(const QString& package) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("entry");
    const ArchiveReader archive(package);
    QStringList content;
    for (size_t i = 0; i < archive.entries().size(); ++i) {
        const ArchiveEntry& entry = archive.entries()[i];
        content << "entry " + entry.name;
        if (entry.isFolder())
            continue;
        EXPECT_TRUE(entry.encrypted) << entry.name.toStdString();
        archive.extract(i, path);
        try {
            content << linesOf(DatabaseReader(path));
        } catch (const ToolError&) {
            content << QString::fromLatin1(readFile(path));
        }
    }
    return content;
}

class RoundTrip : public testing::Test {
  protected:
    /// Unpacks and packs again; answers the second package.
    QString again(const QString& package) {
        losses = unpackPackage(package, folder.filePath("unpacked"), false);
        packFolder(folder.filePath("unpacked"), folder.filePath("second.TZF"));
        return folder.filePath("second.TZF");
    }
    void expectSame(const QString& first) {
        EXPECT_EQ(contentOf(again(first)), contentOf(first));
        EXPECT_EQ(losses, QStringList());
    }
    QTemporaryDir folder;
    QStringList losses;
};

TEST_F(RoundTrip, TablesAndMediaOfACatalogueAndTheirOrder) {
    Catalogo_Di_Prova c;
    c.Nodo("G_1", "R", "Motore").Prodotto("P_1", "G_1", "Cilindro").Parte("P_1", "1", "A1", "Vite");
    c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", ""}, {"Titolo_Colonna", std::nullopt}});
    c.File("z/b.png", QByteArray("\x89\0\xFF", 3))
        .File("b.png", "<svg/>")
        .File("a/b.png", "3")
        .File("empty", {});
    expectSame(c.Pacchetto(folder.path()));
}

TEST_F(RoundTrip, NullAndEmptyTextsQuotesLinesAndEveryLetter) {
    QString letters;
    for (char32_t c = 1; c < 0x3000; ++c)
        letters += QString::fromUcs4(&c, 1);
    const char32_t high[] = {0x1F600, 0x10FFFF, 0xFFFD, 0xFEFF};
    letters += QString::fromUcs4(high, 4);
    std::vector<std::vector<Valore_Prova>> rows{{letters, std::nullopt}, {std::nullopt, ""}};
    for (const char* text : {"", " ", "\"", "'", ",", "\n", "\r\n", "a\r", "NULL", "007", "1e3", "\uFEFF"})
        rows.push_back({text, std::nullopt});
    Catalogo_Di_Prova c;
    c.Tabella("Una", {"Testo", "Altro"}, rows);
    c.Tabella("Colonna", {"Sola"}, {{"1"}, {std::nullopt}, {""}, {std::nullopt}});
    expectSame(c.Pacchetto(folder.path()));
}

/// A package of a main database and what `more` puts beside it.
QString packageWith(const QTemporaryDir& folder, const std::function<void(ArchiveWriter&)>& more,
                    const QString& entry = "tzd_qlfrml_cod.tzf") {
    const QTemporaryDir parts;
    ArchiveWriter archive(folder.filePath("package.TZF"));
    archive.addFile(entry, Catalogo_Di_Prova().Database(parts.path()));
    more(archive);
    archive.finish();
    return folder.filePath("package.TZF");
}

/// A database with these values in a column of this type; answers its path.
QString oddDatabase(const QTemporaryDir& folder, const QByteArray& declaration,
                    const std::vector<SqlValue>& values) {
    DatabaseWriter database(folder.filePath("odd.db"));
    database.run("CREATE TABLE Odd (V " + declaration + ")");
    TableWriter table = database.table("Rows", {ColumnDeclaration::builtIn("Rows", "x")});
    table.add(std::vector<SqlValue>{QByteArray("x")});
    for (const SqlValue& value : values)
        database.run("INSERT INTO Odd VALUES (" + QString::fromUtf8(toLiteral(value)) + ")");
    database.finish();
    return folder.filePath("odd.db");
}

class DeclaredType : public RoundTrip, public testing::WithParamInterface<const char*> {};

TEST_P(DeclaredType, AndValuesOfEveryKindStay) {
    std::vector<SqlValue> values{std::monostate(), qint64(7), qint64(-9223372036854775807),
                                 QByteArray("x\0y", 3)};
    values.insert(values.end(), {0.1, 3.0, 1e300, INFINITY, Blob{"\x01\x02"}, Blob{}});
    for (const char* text : {"abc", "12", " 12", "1e999", "", "\xC3("})
        values.push_back(QByteArray(text));
    ArchiveWriter archive(folder.filePath("odd.TZF"));
    archive.addFile("tzd_qlfrml_cod.tzf", oddDatabase(folder, GetParam(), values));
    archive.finish();
    expectSame(folder.filePath("odd.TZF"));
}

INSTANTIATE_TEST_SUITE_P(Types, DeclaredType,
                         testing::Values("TEXT COLLATE NOCASE", "TEXT", "INTEGER", "REAL", "NUMERIC",
                                         "VARCHAR(255)", "DECIMAL(10, 2)", "BLOB", "", "TEXT COLLATE RTRIM",
                                         "INTEGER COLLATE NOCASE"));

TEST_F(RoundTrip, NamesThatCantBeFilesKeepTheirPlaceInThePackage) {
    Catalogo_Di_Prova c;
    for (const char* name :
         {"../outside.txt", "/absolute.txt", "a\\b.txt", "C:\\x.txt", "catalogue.json", "Lingue.csv",
          "notes.csv", ".hidden", "A.txt", "a.txt", "x", "x/inside.txt", "nul", "_entries/0001_x",
          "_tables/y", "tab\there", "trailing dot.", "\u03C0.svg"})
        c.File(name, QByteArray("content of ") + name);
    expectSame(c.Pacchetto(folder.path()));
    EXPECT_FALSE(QFile::exists(folder.filePath("outside.txt")));
    EXPECT_TRUE(QFile::exists(folder.filePath("unpacked/\u03C0.svg")));
}

TEST_F(RoundTrip, FoldersWithoutFilesStay) {
    expectSame(packageWith(folder, [](ArchiveWriter& archive) {
        archive.addFolder("empty");
        archive.addFolder("full");
        archive.addContent("full/a.txt", "a");
    }));
    EXPECT_TRUE(QDir(folder.filePath("unpacked/empty")).exists());
}

TEST_F(RoundTrip, OtherDatabasesAreTablesToo) {
    const QTemporaryDir other;
    const auto more = [&](ArchiveWriter& archive) {
        archive.addFile(
            "TZ1.QLD",
            Catalogo_Di_Prova().Tabella("X.Y", {"A b", "c,d"}, {{"1", "2"}}).Database(other.path(), "1"));
        archive.addFile("deep/TZ1.QLD", oddDatabase(other, "BLOB", {Blob{"\x01"}}));
        archive.addContent("TZ1/a.txt", "a folder of the name that the database would take");
        archive.addContent("text.QLD", QByteArray("SQLite format 3\0", 16) + QByteArray(1000, 'x'));
    };
    expectSame(packageWith(folder, more, "sub/tzd_qlfrml_cod.tzf"));
    EXPECT_TRUE(QFile::exists(folder.filePath("unpacked/TZ1_/SYSTEM.csv")));
}

TEST_F(RoundTrip, TablesWhoseNamesCantBeFiles) {
    Catalogo_Di_Prova c;
    for (const char* name : {"a/b", "..", "x:y", "con", "a\"b'c"})
        c.Tabella(name, {"V"}, {{QString(name)}});
    expectSame(c.Pacchetto(folder.path()));
}

TEST_F(RoundTrip, ADatabaseThatIsMoreThanTablesStaysAFile) {
    DatabaseWriter database(folder.filePath("db"));
    database.table("T", {ColumnDeclaration::builtIn("T", "V")});
    database.run("CREATE VIEW W AS SELECT * FROM T");
    database.finish();
    const auto pack = [&](const QString& name, const QString& entry) {
        ArchiveWriter archive(folder.filePath(name));
        archive.addFile(entry, folder.filePath("db"));
        archive.finish();
        return folder.filePath(name);
    };
    expectSame(pack("other.TZF", "other.qld"));
    EXPECT_EQ(QDir(folder.filePath("unpacked")).entryList(QDir::Files),
              QStringList({"catalogue.json", "other.qld"}));
    EXPECT_THROW(unpackPackage(pack("own.TZF", "tzd_qlfrml_cod.tzf"), folder.filePath("own"), false),
                 ToolError);
    EXPECT_FALSE(QFile::exists(folder.filePath("own")));
}

TEST_F(RoundTrip, ANameThatIsThereTwiceIsTold) {
    // The library refuses to write such a package, so one is made from another by a change of bytes.
    const QString package =
        Catalogo_Di_Prova().File("same1", "a").File("same2", "b").Pacchetto(folder.path());
    writeFile(package, readFile(package).replace("same2", "same1"));
    EXPECT_EQ(contentOf(again(package)).last(2), QStringList({"entry same1", "a"}));
    ASSERT_EQ(losses.size(), 1);
    EXPECT_THAT(losses.first().toStdString(), HasSubstr("same1"));
}

TEST_F(RoundTrip, PackingTwiceGivesTheSameListing) {
    const QString source = Catalogo_Di_Prova().File("a.svg", "<svg/>").Sorgente(folder.filePath("source"));
    packFolder(source, folder.filePath("1.TZF"));
    packFolder(source, folder.filePath("2.TZF"));
    const auto listing = [&](const QString& name) {
        const ArchiveReader archive(folder.filePath(name));
        QStringList entries;
        for (const ArchiveEntry& entry : archive.entries())
            entries << entry.name + ' ' + QString::number(entry.size);
        return entries;
    };
    EXPECT_EQ(listing("1.TZF"), listing("2.TZF"));
}

TEST_F(RoundTrip, AFailedPackLeavesTheOldPackageAndNothingElse) {
    const QString source = Catalogo_Di_Prova().Sorgente(folder.filePath("source"));
    QDir(folder.path()).mkdir("out");
    const QString package = folder.filePath("out/p.TZF");
    packFolder(source, package);
    const QByteArray before = readFile(package);
    writeFile(folder.filePath("source/Lingue.csv"), "1,2\n", QIODevice::Append);
    EXPECT_THROW(packFolder(source, package), SourceError);
    EXPECT_EQ(readFile(package), before);
    EXPECT_EQ(QDir(folder.filePath("out")).entryList(QDir::Files | QDir::Hidden), QStringList("p.TZF"));
}

TEST_F(RoundTrip, AFolderThatHoldsSomethingIsRefusedUnlessForced) {
    const QString package = Catalogo_Di_Prova().Pacchetto(folder.path());
    writeFile(folder.filePath("full/mine.txt"), "");
    EXPECT_THROW(unpackPackage(package, folder.filePath("full"), false), ToolError);
    EXPECT_EQ(QDir(folder.filePath("full")).entryList(QDir::Files), QStringList({"mine.txt"}));
    unpackPackage(package, folder.filePath("full"), true);
    EXPECT_THAT(QDir(folder.filePath("full")).entryList(), testing::IsSupersetOf({"SYSTEM.csv", "mine.txt"}));
}

}  // namespace

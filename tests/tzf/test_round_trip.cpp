#include <gmock/gmock.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <cmath>

#include "support/catalogo_di_prova.h"
#include "tzf/archive.h"
#include "tzf/database_reader.h"
#include "tzf/pack.h"
#include "tzf/tool_error.h"
#include "tzf/unpack.h"

namespace {

using testing::HasSubstr;

/// All that a package holds, in a form that can be compared.
struct Content {
    QStringList order;
    QMap<QString, QByteArray> files;
    QMap<QString, QStringList> columns;             ///< by "entry/table": "name type"
    QMap<QString, std::vector<QByteArray>> values;  ///< by "entry/table": the rows, as literals
};

void readDatabase(const QString& path, const QString& entry, Content& content) {
    const DatabaseReader database(path);
    EXPECT_TRUE(database.isProtected());
    for (const QString& table : database.tables()) {
        const QString key = entry + u'/' + table;
        for (const ColumnDeclaration& column : database.columns(table))
            content.columns[key] << column.name + u' ' + column.typeText();
        content.values[key];
        TableReader rows = database.read(table);
        while (rows.next())
            for (int i = 0; i < rows.count(); ++i)
                content.values[key].push_back(toLiteral(rows.value(i)));
    }
}

Content contentOf(const QString& package) {
    Content content;
    QTemporaryDir folder;
    const ArchiveReader archive(package);
    for (size_t i = 0; i < archive.entries().size(); ++i) {
        const QString& name = archive.entries()[i].name;
        content.order << name;
        if (archive.entries()[i].isFolder())
            continue;
        EXPECT_TRUE(archive.entries()[i].encrypted) << name.toStdString();
        const QString path = folder.filePath(QString::number(i));
        archive.extract(i, path);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        try {
            if (!bytes.startsWith("SQLite format 3"))
                throw ToolError({});
            readDatabase(path, name, content);
        } catch (const ToolError&) {
            content.files.insert(name, bytes);
        }
    }
    return content;
}

class RoundTrip : public testing::Test {
  protected:
    /// Unpacks and packs again; answers the second package.
    QString again(const QString& package) {
        losses = unpackPackage(package, folder.filePath("unpacked"), false);
        const QString second = folder.filePath("second.TZF");
        packFolder(folder.filePath("unpacked"), second);
        return second;
    }
    void expectSame(const QString& first) {
        const Content a = contentOf(first), b = contentOf(again(first));
        EXPECT_EQ(a.order, b.order);
        EXPECT_EQ(a.files, b.files);
        EXPECT_EQ(a.columns, b.columns);
        EXPECT_EQ(a.values, b.values);
        EXPECT_EQ(losses, QStringList());
    }
    QStringList unpackedFiles() const {
        QStringList files;
        QDirIterator walk(folder.filePath("unpacked"), QDir::Files | QDir::Hidden,
                          QDirIterator::Subdirectories);
        while (walk.hasNext())
            files << QDir(folder.filePath("unpacked")).relativeFilePath(walk.next());
        files.sort();
        return files;
    }

    QTemporaryDir folder;
    QStringList losses;
};

TEST_F(RoundTrip, TablesAndMediaOfACatalogue) {
    Catalogo_Di_Prova c;
    c.Nodo("G_1", "R", "Motore").Prodotto("P_1", "G_1", "Cilindro").Parte("P_1", "1", "A1", "Vite");
    c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", ""}, {"Titolo_Colonna", std::nullopt}});
    c.File("a.svg", "<svg/>").File("images/b.png", QByteArray("\x89\0\xFF", 3)).File("empty", {});
    expectSame(c.Pacchetto(folder.path()));
}

TEST_F(RoundTrip, NullAndEmptyTextsQuotesLinesAndEveryLetter) {
    QString letters;
    for (char32_t c = 1; c < 0x3000; ++c)
        letters += QString::fromUcs4(&c, 1);
    const char32_t high[] = {0x1F600, 0x10FFFF, 0xFFFD, 0xFEFF};
    letters += QString::fromUcs4(high, 4);
    std::vector<std::vector<Valore_Prova>> rows;
    for (const QString& text : {letters, QString(""), QString(" "), QString("\""), QString("'"), QString(","),
                                QString("\n"), QString("\r\n"), QString("a\r"), QString("NULL"),
                                QString("007"), QString("1e3"), QString(u'\uFEFF')})
        rows.push_back({text, std::nullopt});
    rows.push_back({std::nullopt, ""});
    Catalogo_Di_Prova c;
    c.Tabella("Una", {"Testo", "Altro"}, rows);
    c.Tabella("Colonna", {"Sola"}, {{"1"}, {std::nullopt}, {""}, {std::nullopt}});
    expectSame(c.Pacchetto(folder.path()));
}

/// A package whose database is written value by value.
QString oddPackage(const QString& folder, const QByteArray& declaration,
                   const std::vector<SqlValue>& values) {
    DatabaseWriter database(folder + "/odd.db");
    database.run("CREATE TABLE Odd (V " + declaration + ")");
    TableWriter table = database.table("Rows", {ColumnDeclaration::builtIn("Rows", "x")});
    table.add(std::vector<SqlValue>{QByteArray("x")});
    for (const SqlValue& value : values)
        database.run("INSERT INTO Odd VALUES (" + QString::fromUtf8(toLiteral(value)) + ")");
    database.finish();
    ArchiveWriter archive(folder + "/odd.TZF");
    archive.addFile("tzd_qlfrml_cod.tzf", folder + "/odd.db");
    archive.finish();
    return folder + "/odd.TZF";
}

class DeclaredType : public RoundTrip, public testing::WithParamInterface<const char*> {};

TEST_P(DeclaredType, AndValuesOfEveryKindStay) {
    expectSame(
        oddPackage(folder.path(), GetParam(),
                   {std::monostate(), qint64(7), qint64(-9223372036854775807), 0.1, 3.0, 1e300, INFINITY,
                    QByteArray("abc"), QByteArray("12"), QByteArray(" 12"), QByteArray("1e999"),
                    QByteArray(""), QByteArray("x\0y", 3), QByteArray("\xC3("), Blob{"\x01\x02"}, Blob{}}));
}

INSTANTIATE_TEST_SUITE_P(Types, DeclaredType,
                         testing::Values("TEXT COLLATE NOCASE", "TEXT", "INTEGER", "REAL", "NUMERIC",
                                         "VARCHAR(255)", "DECIMAL(10, 2)", "BLOB", "", "TEXT COLLATE RTRIM",
                                         "INTEGER COLLATE NOCASE"));

TEST_F(RoundTrip, NamesThatCantBeFilesKeepTheirPlaceInThePackage) {
    Catalogo_Di_Prova c;
    const QStringList names = {"../outside.txt",
                               "/absolute.txt",
                               "a\\b.txt",
                               "C:\\x.txt",
                               "catalogue.json",
                               "Lingue.csv",
                               "notes.csv",
                               ".hidden",
                               "A.txt",
                               "a.txt",
                               "x",
                               "x/inside.txt",
                               "nul",
                               "_entries/0001_x",
                               "_tables/y",
                               "tab\there",
                               "trailing dot.",
                               "\u03C0.svg"};
    for (const QString& name : names)
        c.File(name, "content of " + name.toUtf8());
    expectSame(c.Pacchetto(folder.path()));
    EXPECT_FALSE(QFile::exists(folder.filePath("outside.txt")));
    for (const QString& path : unpackedFiles())
        EXPECT_FALSE(path.startsWith("..")) << path.toStdString();
    EXPECT_THAT(unpackedFiles(), testing::Contains(QString("\u03C0.svg")));
}

TEST_F(RoundTrip, TheOrderOfEntriesStays) {
    Catalogo_Di_Prova c;
    c.File("z/a.jpg", "1").File("a.jpg", "2").File("b/a.jpg", "3");
    expectSame(c.Pacchetto(folder.path()));
}

TEST_F(RoundTrip, FoldersWithoutFilesStay) {
    const QString package = folder.filePath("folders.TZF");
    ArchiveWriter archive(package);
    archive.addFile("tzd_qlfrml_cod.tzf", Catalogo_Di_Prova().Database(folder.path()));
    archive.addFolder("empty");
    archive.addFolder("full");
    archive.addContent("full/a.txt", "a");
    archive.finish();
    expectSame(package);
    EXPECT_TRUE(QDir(folder.filePath("unpacked/empty")).exists());
}

TEST_F(RoundTrip, OtherDatabasesAreTablesToo) {
    QTemporaryDir other;
    const QString first =
        Catalogo_Di_Prova().Tabella("X.Y", {"A b", "c,d"}, {{"1", "2"}}).Database(other.path(), "1");
    const QString second = oddPackage(other.path(), "BLOB", {Blob{"\x01"}});
    const QString package = folder.filePath("several.qld");
    ArchiveWriter archive(package);
    archive.addFile("sub/tzd_qlfrml_cod.tzf", Catalogo_Di_Prova().Database(folder.path()));
    archive.addFile("TZ1.QLD", first);
    archive.addFile("deep/TZ1.QLD", other.filePath("odd.db"));
    archive.addContent("TZ1/a.txt", "a folder of the name that the database would take");
    archive.addContent("text.QLD", QByteArray("SQLite format 3\0", 16) + QByteArray(1000, 'x'));
    archive.finish();
    expectSame(package);
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
    EXPECT_EQ(unpackedFiles(), QStringList({"catalogue.json", "other.qld"}));
    EXPECT_THROW(unpackPackage(pack("own.TZF", "tzd_qlfrml_cod.tzf"), folder.filePath("own"), false),
                 ToolError);
    EXPECT_FALSE(QFile::exists(folder.filePath("own")));
}

TEST_F(RoundTrip, ANameThatIsThereTwiceIsTold) {
    // The library refuses to write such a package, so one is made from another by a change of bytes.
    QFile file(Catalogo_Di_Prova().File("same1", "a").File("same2", "b").Pacchetto(folder.path()));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray bytes = file.readAll().replace("same2", "same1");
    file.seek(0);
    file.write(bytes);
    file.close();
    const Content content = contentOf(again(file.fileName()));
    EXPECT_EQ(content.files, (QMap<QString, QByteArray>{{"same1", "a"}}));
    ASSERT_EQ(losses.size(), 1);
    EXPECT_THAT(losses.first().toStdString(), HasSubstr("same1"));
}

TEST_F(RoundTrip, PackingTwiceGivesTheSameListing) {
    const QString source = Catalogo_Di_Prova().File("a.svg", "<svg/>").Sorgente(folder.filePath("source"));
    packFolder(source, folder.filePath("1.TZF"));
    packFolder(source, folder.filePath("2.TZF"));
    const ArchiveReader first(folder.filePath("1.TZF")), second(folder.filePath("2.TZF"));
    ASSERT_EQ(first.entries().size(), second.entries().size());
    for (size_t i = 0; i < first.entries().size(); ++i) {
        EXPECT_EQ(first.entries()[i].name, second.entries()[i].name);
        EXPECT_EQ(first.entries()[i].size, second.entries()[i].size);
    }
}

TEST_F(RoundTrip, AFailedPackLeavesTheOldPackageAndNothingElse) {
    const QString source = Catalogo_Di_Prova().Sorgente(folder.filePath("source"));
    QDir(folder.path()).mkdir("out");
    const QString package = folder.filePath("out/p.TZF");
    packFolder(source, package);
    QFile old(package);
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    const QByteArray before = old.readAll();
    QFile table(folder.filePath("source/Lingue.csv"));
    ASSERT_TRUE(table.open(QIODevice::Append));
    table.write("1,2\n");
    table.close();
    EXPECT_THROW(packFolder(source, package), SourceError);
    old.seek(0);
    EXPECT_EQ(old.readAll(), before);
    EXPECT_EQ(
        QDir(folder.filePath("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
        1);
}

TEST_F(RoundTrip, AFolderThatHoldsSomethingIsRefusedUnlessForced) {
    const QString package = Catalogo_Di_Prova().Pacchetto(folder.path());
    QDir(folder.path()).mkdir("full");
    QFile file(folder.filePath("full/mine.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_THROW(unpackPackage(package, folder.filePath("full"), false), ToolError);
    EXPECT_EQ(QDir(folder.filePath("full")).entryList(QDir::Files), QStringList({"mine.txt"}));
    unpackPackage(package, folder.filePath("full"), true);
    EXPECT_TRUE(QFile::exists(folder.filePath("full/SYSTEM.csv")));
    EXPECT_TRUE(QFile::exists(folder.filePath("full/mine.txt")));
}

}  // namespace

#include "core/archivio/archivio.h"
#include "core/archivio/archivio_in_scrittura.h"
#include "core/catalogue_db/engine/protezione.h"
#include "tzf/package/column_type.h"
#include "tzf/package/database_reader.h"
#include "tzf/package/literal.h"
#include "tzf/package/pack.h"
#include "tzf/package/unpack.h"
#include "tzf/source_of.h"
#include "tzf/tool_error.h"

namespace {

using testing::HasSubstr;

/// A database as lines: columns and rows of each table.
QStringList linesOf(const DatabaseReader& database) {
    EXPECT_TRUE(database.isProtected());
    QStringList lines;
    for (const QString& table : database.tables()) {
        lines << "table " + table;
        const std::vector<Definizione_Colonna> columns = database.columns(table);
        for (const Definizione_Colonna& column : columns)
            lines << column.Nome + u' ' + typeText(column);
        TableReader rows = database.read(table);
        while (rows.next())
            for (int i = 0; i < static_cast<int>(columns.size()); ++i)
                lines << QString::fromLatin1(toLiteral(rows.value(i)));
    }
    return lines;
}

/// All that a package holds, in its order, as lines that can be compared.
QStringList contentOf(const QString& package) {
    const QTemporaryDir folder;
    const Archivio archive(package);
    QStringList content;
    for (size_t i = 0; i < archive.Voci().size(); ++i) {
        const Voce_Archivio& entry = archive.Voci()[i];
        content << "entry " + entry.Nome;
        if (entry.E_Cartella())
            continue;
        EXPECT_TRUE(entry.Cifrata) << entry.Nome.toStdString();
        QFile file(folder.filePath("entry"));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        EXPECT_EQ(archive.Leggi_Voce(static_cast<qsizetype>(i), file), ARCHIVIO_OK);
        file.close();
        try {
            content << linesOf(DatabaseReader(file.fileName()));
        } catch (const ToolError&) {
            content << QString::fromLatin1(readFile(file.fileName()));
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
    /// A package of the file "db" under this name.
    QString packed(const QString& entry) const {
        return Catalogo_Di_Prova()
            .Voce_Database("")
            .File(entry, readFile(folder.filePath("db")))
            .Pacchetto(folder.path());
    }
    QTemporaryDir folder;
    QStringList losses;
};

TEST_F(RoundTrip, TablesAndMediaOfACatalogueAndTheirOrder) {
    Catalogo_Di_Prova c;
    c.Prodotto("P_1", "R", "Cilindro").Parte("P_1", "1", "A1", "Vite");
    c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", ""}, {"Titolo_Colonna", std::nullopt}});
    c.File("z/b.png", QByteArray("\x89\0\xFF", 3)).File("b.png", "<svg/>").File("empty", {});
    expectSame(c.Pacchetto(folder.path()));
}

TEST_F(RoundTrip, NullAndEmptyTextsQuotesLinesAndEveryLetter) {
    QString letters;
    for (char32_t c = 1; c < 0x3000; ++c)
        letters += QString::fromUcs4(&c, 1);
    letters += QString::fromUcs4(U"\U0001F600\U0010FFFF\uFFFD\uFEFF", 4);
    std::vector<std::vector<Valore_Prova>> rows{{letters, std::nullopt}, {std::nullopt, ""}};
    for (const char* text : {"", " ", "\"", "'", ",", "\n", "\r\n", "a\r", "NULL", "007", "1e3", "\uFEFF"})
        rows.push_back({text, std::nullopt});
    Catalogo_Di_Prova c;
    c.Tabella("Una", {"Testo", "Altro"}, rows);
    c.Tabella("Colonna", {"Sola"}, {{"1"}, {std::nullopt}, {""}, {std::nullopt}});
    expectSame(c.Pacchetto(folder.path()));
}

TEST_F(RoundTrip, ValuesOfEveryKindStayInColumnsOfEveryType) {
    Database database;
    database.Apri(folder.filePath("db"), {}, Database::Modo::Creazione);
    for (const QString& statement : Istruzioni_Protezione(PASSWORD_DB))
        database.Esegui(statement);
    int number = 0;
    for (const char* type : {"TEXT COLLATE NOCASE", "INTEGER", "REAL", "DECIMAL(10, 2)", "BLOB", ""}) {
        const QString table = QString("Odd_%1").arg(++number);
        database.Esegui(QString("CREATE TABLE %1 (V %2)").arg(table, type));
        for (const char* value :
             {"NULL", "7", "-9223372036854775807", "0.1", "3.0", "1e300", "9e999", "CAST(X'780079' AS TEXT)",
              "X'0102'", "X''", "'abc'", "'12'", "' 12'", "'1e999'", "''", "CAST(X'C328' AS TEXT)"})
            database.Esegui(QString("INSERT INTO %1 VALUES (%2)").arg(table, value));
    }
    database.Chiudi();
    expectSame(packed("tzd_qlfrml_cod.tzf"));
}

TEST_F(RoundTrip, NamesOfEntriesAndTablesThatCantBeFilesStay) {
    Catalogo_Di_Prova c;
    for (const char* name :
         {"../outside.txt", "/absolute.txt", "a\\b.txt", "C:\\x.txt", "catalogue.json", "Lingue.csv",
          "notes.csv", ".hidden", "A.txt", "a.txt", "x", "x/inside.txt", "nul", "_entries/0001_x",
          "_tables/y", "tab\there", "trailing dot.", "\u03C0.svg"})
        c.File(name, QByteArray("content of ") + name);
    for (const char* table : {"a/b", "..", "x:y", "con", "a\"b'c"})
        c.Tabella(table, {"V"}, {{QString(table)}});
    expectSame(c.Pacchetto(folder.path()));
    EXPECT_FALSE(QFile::exists(folder.filePath("outside.txt")));
    EXPECT_TRUE(QFile::exists(folder.filePath("unpacked/\u03C0.svg")));
}

TEST_F(RoundTrip, OtherDatabasesAndEmptyFoldersStayBesideTheMainDatabase) {
    Catalogo_Di_Prova().Database(folder.path(), "main");
    Catalogo_Di_Prova().Tabella("X.Y", {"A b", "c,d"}, {{"1", "2"}}).Database(folder.path(), "other");
    Archivio_In_Scrittura archive(folder.filePath("package.TZF"));
    archive.Aggiungi_File("sub/tzd_qlfrml_cod.tzf", folder.filePath("main"));
    archive.Aggiungi_File("TZ1.QLD", folder.filePath("other"));
    archive.Aggiungi("TZ1/a.txt", "a folder of the name that the database would take");
    archive.Aggiungi("text.QLD", QByteArray("SQLite format 3\0", 16) + QByteArray(1000, 'x'));
    archive.Aggiungi_Cartella("empty/");
    EXPECT_EQ(archive.Termina(), "");
    expectSame(folder.filePath("package.TZF"));
    EXPECT_TRUE(QFile::exists(folder.filePath("unpacked/TZ1_/SYSTEM.csv")));
    EXPECT_TRUE(QDir(folder.filePath("unpacked/empty")).exists());
}

TEST_F(RoundTrip, ADatabaseThatIsMoreThanTablesStaysAFile) {
    Database database;
    database.Apri(Catalogo_Di_Prova().Database(folder.path(), "db"), CONNESSIONE_DB,
                  Database::Modo::Scrittura);
    database.Esegui("CREATE VIEW W AS SELECT * FROM SYSTEM");
    database.Chiudi();
    expectSame(packed("other.qld"));
    EXPECT_TRUE(QFile::exists(folder.filePath("unpacked/other.qld")));
    EXPECT_THROW(unpackPackage(packed("tzd_qlfrml_cod.tzf"), folder.filePath("own"), false), ToolError);
    EXPECT_FALSE(QFile::exists(folder.filePath("own"))) << "the main one has to be tables";
}

TEST_F(RoundTrip, ANameThatIsThereTwiceIsTold) {
    // The library refuses to write such a package, so one is made from another by a change of bytes.
    const QString package =
        Catalogo_Di_Prova().File("same1", "a").File("same2", "b").Pacchetto(folder.path());
    writeFile(package, readFile(package).replace("same2", "same1"));
    EXPECT_EQ(contentOf(again(package)).last(2), QStringList({"entry same1", "b"})) << "as in the viewer";
    EXPECT_THAT(losses.join('|').toStdString(), HasSubstr("same1"));
}

TEST_F(RoundTrip, AFailedPackLeavesTheOldPackageAndNothingElse) {
    const QString source = sourceOf(Catalogo_Di_Prova(), folder.filePath("source"));
    const QString package = folder.filePath("out/p.TZF");
    writeFile(package, "old");
    writeFile(folder.filePath("source/Lingue.csv"), "1,2\n", QIODevice::Append);
    EXPECT_THROW(packFolder(source, package), SourceError);
    EXPECT_EQ(readFile(package), "old");
    EXPECT_EQ(QDir(folder.filePath("out")).entryList(QDir::Files | QDir::Hidden), QStringList("p.TZF"));
}

}  // namespace

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include "core/catalogue_db/engine/database.h"
#include "core/catalogue_db/engine/dialetto.h"

namespace {

TEST(Dialetto, CambiaSoloCioCheIlMotoreNonCapisce) {
    const std::pair<const char*, const char*> cambiate[] = {
        // the star of DELETE
        {"DELETE * FROM Albero_Web ; ", "DELETE FROM Albero_Web ; "},
        {"  delete\t* FROM T", "  delete FROM T"},
        {"DELETE*FROM T", "DELETE FROM T"},
        // reserved words as names
        {"INSERT INTO T (Form, Index,b) VALUES ('Index',' ','x') ;",
         "INSERT INTO T (Form, [Index],b) VALUES ('Index',' ','x') ;"},
        {"SELECT Index, T.Default, [Check] FROM T ORDER BY index",
         "SELECT [Index], T.[Default], [Check] FROM T ORDER BY [index]"},
        {"CREATE TABLE T (Index TEXT DEFAULT '', Limit INTEGER, UNIQUE (Index))",
         "CREATE TABLE T ([Index] TEXT DEFAULT '', [Limit] INTEGER, UNIQUE ([Index]))"},
        // texts in double quotes; there are no comments
        {"SELECT \"l'olio \"\"fine\"\"\"", "SELECT 'l''olio \"fine\"'"},
        {"SELECT 1 --2", "SELECT 1 - -2"},
        {"SELECT 1 /* 2", "SELECT 1 / * 2"}};
    for (const auto& [dialetto, motore] : cambiate)
        EXPECT_EQ(Traduci_Dialetto(dialetto), motore);
    for (const char* uguale :
         {"", "SELECT VALORE FROM SYSTEM WHERE KEY = 'X' ORDER BY ID ;", "DELETE FROM T WHERE a=2*3",
          "SELECT 'DELETE * FROM T'", "SELECT Indexes, MyIndex FROM T",
          // reserved words as syntax
          "CREATE UNIQUE INDEX i ON T (a)", "DROP INDEX i", "COMMIT TRANSACTION",
          "CREATE TABLE T (a TEXT COLLATE NOCASE)", "SELECT a FROM T ORDER BY a COLLATE NOCASE LIMIT 5",
          // texts and names
          "SELECT 'it''s \"so\" [x] -- y', [a \"b' -- c]", "SELECT [Campo01]as Codice_Componente",
          "SELECT x as [Quantità]",
          // what is never closed is left to the engine
          "SELECT 'x ; ", "SELECT \"x", "SELECT [x"})
        EXPECT_EQ(Traduci_Dialetto(uguale), uguale);
}

TEST(Like, Corrisponde) {
    // "text~pattern" between blanks.
    const std::pair<bool, const char*> casi[] = {
        {true,
         "/3/7/~*/3/* /3/~*/3/* ~* ~ abc~a?c a1~a# b~[a-c] B~[a-c] b~[A-C] d~[!a-c] -~[a-] !~[!] *~[*] "
         "a?b~a[?]b ab~a[]b a[b~a[b a]b~a]b 100%~*% a_c~a_c ÈLICA~èl* МОТОР~мо?ор ΜΟΤΕΡ~μοτερ a😀b~a?b "
         "aaab~*a*b abab~*ab"},
        {false,
         "/13/~*/3/* 3~*/3/* ~*/3/* a~ ac~a?c aa~a# a٣~a# d~[a-c] b~[!a-c] x~[*] axb~a[?]b 100~% abc~a_c "
         "abac~*ab"}};
    for (const auto& [risposta, coppie] : casi)
        for (const QString& coppia : QString(coppie).split(' '))
            EXPECT_EQ(Corrisponde(coppia.section('~', 0, 0), coppia.section('~', 1)), risposta)
                << qPrintable(coppia);
}

TEST(LikeNelMotore, SostituisceQuelloDelMotore) {
    QTemporaryDir cartella;
    Database db;
    db.Apri(cartella.filePath("a.db"), {}, Database::Modo::Scrittura);
    db.Esegui("CREATE TABLE T (a TEXT, n INTEGER)");
    db.Esegui("INSERT INTO T VALUES ('/3/7/', 1), ('/13/', 2), (NULL, 3), ('ÀÈ', 44), ('', 5)");
    const auto numeri = [&](const QString& condizione) {
        return db.Apri_Recordset("SELECT group_concat(n, ' ') FROM T WHERE " + condizione).Campo(0).Testo();
    };
    EXPECT_EQ(numeri("a LIKE '*/3/*'"), "1");
    EXPECT_EQ(numeri("a LIKE 'àè'"), "44");
    EXPECT_EQ(numeri("a LIKE '%'"), "");
    EXPECT_EQ(numeri("a NOT LIKE \"*3*\""), "44 5") << "NULL is neither like nor unlike";
    EXPECT_EQ(numeri("n LIKE '4*'"), "44");
    EXPECT_THROW(numeri("a LIKE '" + QString(2000, 'a') + "'"), Errore_DB) << "a pattern out of all measure";
}

TEST(LikeNelMotore, ModelliCostruitiPerNonFinireFiniscono) {
    const QString testo(20'000, u'a');
    QElapsedTimer orologio;
    orologio.start();
    EXPECT_FALSE(Corrisponde(testo, QStringLiteral("*a").repeated(200) + u'b'));
    EXPECT_LT(orologio.elapsed(), 2000);
}

TEST(DialettoNelMotore, UnErroreDiSintassiResta) {
    QTemporaryDir cartella;
    Database db;
    db.Apri(cartella.filePath("a.db"), {}, Database::Modo::Scrittura);
    db.Esegui("CREATE TABLE T (a TEXT COLLATE NOCASE, Index TEXT)");
    db.Esegui("INSERT INTO T (a, Index) VALUES ('Yes', \"it's\")");
    for (const char* sql : {"SELECT * FROM T WHERE (a = '1' OR a = '2'));",
                            "SELECT * FROM T WHERE a = 'it's';", "SELECT * FROM T WHERE a = 'x' --';",
                            "SELECT * FROM T; DELETE FROM T", " ; ", "SELECT * FROM [T", "SELECT b FROM T"})
        EXPECT_THROW(db.Apri_Recordset(sql), Errore_DB) << sql;
    EXPECT_NO_THROW(db.Apri_Recordset("SELECT a FROM T  ; \r\n;"));
    EXPECT_EQ(db.Apri_Recordset("SELECT Index FROM T WHERE A = 'YES';").Campo(u"index").Testo(), "it's");
    EXPECT_EQ(db.Esegui("DELETE * FROM T WHERE a='yes' ;"), 1);
}

}  // namespace

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include "core/catalogue_db/engine/database.h"
#include "core/catalogue_db/engine/dialetto.h"

namespace {

struct Traduzione {
    const char* dialetto;
    const char* motore;
};

class Dialetto : public testing::TestWithParam<Traduzione> {};

TEST_P(Dialetto, Traduce) {
    EXPECT_EQ(Traduci_Dialetto(QString::fromUtf8(GetParam().dialetto)).toStdString(), GetParam().motore);
}

INSTANTIATE_TEST_SUITE_P(
    Tabella, Dialetto,
    testing::Values(
        Traduzione{"SELECT * FROM Lingue ORDER BY ID ;", "SELECT * FROM Lingue ORDER BY ID ;"},
        Traduzione{"SELECT VALORE FROM SYSTEM WHERE KEY = 'X';",
                   "SELECT VALORE FROM SYSTEM WHERE KEY = 'X';"},
        // the star of DELETE
        Traduzione{"DELETE * FROM Albero_Web ; ", "DELETE FROM Albero_Web ; "},
        Traduzione{"  delete\t* FROM T", "  delete FROM T"}, Traduzione{"DELETE*FROM T", "DELETE FROM T"},
        Traduzione{"DELETE FROM T WHERE a=2*3", "DELETE FROM T WHERE a=2*3"},
        Traduzione{"SELECT 'DELETE * FROM T'", "SELECT 'DELETE * FROM T'"},
        // reserved words as names
        Traduzione{"SELECT a FROM T WHERE Form ='W' AND Index='0' ;",
                   "SELECT a FROM T WHERE Form ='W' AND [Index]='0' ;"},
        Traduzione{"INSERT INTO T (Form, Index,Traduzione_1) VALUES ('Index',' ','x') ;",
                   "INSERT INTO T (Form, [Index],Traduzione_1) VALUES ('Index',' ','x') ;"},
        Traduzione{"SELECT Index, T.Default, [Check] FROM T ORDER BY index",
                   "SELECT [Index], T.[Default], [Check] FROM T ORDER BY [index]"},
        Traduzione{"UPDATE T SET Index = '1', Transaction='2'",
                   "UPDATE T SET [Index] = '1', [Transaction]='2'"},
        Traduzione{"SELECT Indexes, MyIndex FROM T", "SELECT Indexes, MyIndex FROM T"},
        // the same words as syntax
        Traduzione{"CREATE INDEX i ON T (Index)", "CREATE INDEX i ON T ([Index])"},
        Traduzione{"CREATE UNIQUE INDEX i ON T (a)", "CREATE UNIQUE INDEX i ON T (a)"},
        Traduzione{"DROP INDEX i", "DROP INDEX i"},
        Traduzione{
            "CREATE TABLE T (Index TEXT COLLATE NOCASE DEFAULT '', Limit INTEGER, UNIQUE (Index))",
            "CREATE TABLE T ([Index] TEXT COLLATE NOCASE DEFAULT '', [Limit] INTEGER, UNIQUE ([Index]))"},
        Traduzione{"SELECT a FROM T ORDER BY a COLLATE NOCASE LIMIT 5",
                   "SELECT a FROM T ORDER BY a COLLATE NOCASE LIMIT 5"},
        Traduzione{"COMMIT TRANSACTION", "COMMIT TRANSACTION"},
        // texts and names stay as they are
        Traduzione{"SELECT \"l'olio \"\"fine\"\"\"", "SELECT 'l''olio \"fine\"'"},
        Traduzione{"SELECT 'it''s \"so\" [x] -- y', [a \"b' -- c]",
                   "SELECT 'it''s \"so\" [x] -- y', [a \"b' -- c]"},
        Traduzione{"SELECT [Campo01]as Codice_Componente", "SELECT [Campo01]as Codice_Componente"},
        Traduzione{"SELECT x as [Quantità]", "SELECT x as [Quantità]"},
        // there are no comments
        Traduzione{"SELECT 1 --2", "SELECT 1 - -2"}, Traduzione{"SELECT 1 /* 2", "SELECT 1 / * 2"},
        // what is never closed is left to the engine
        Traduzione{"SELECT 'x ; ", "SELECT 'x ; "}, Traduzione{"SELECT \"x", "SELECT \"x"},
        Traduzione{"SELECT [x", "SELECT [x"}, Traduzione{"", ""}));

struct Confronto {
    const char* testo;
    const char* modello;
    bool risposta;
};

class Like : public testing::TestWithParam<Confronto> {};

TEST_P(Like, Corrisponde) {
    const auto& [testo, modello, risposta] = GetParam();
    EXPECT_EQ(Corrisponde(QString::fromUtf8(testo), QString::fromUtf8(modello)), risposta)
        << testo << " LIKE " << modello;
}

INSTANTIATE_TEST_SUITE_P(
    Tabella, Like,
    testing::Values(
        Confronto{"/3/7/", "*/3/*", true}, Confronto{"/13/", "*/3/*", false}, Confronto{"/3/", "*/3/*", true},
        Confronto{"3", "*/3/*", false}, Confronto{"", "*/3/*", false}, Confronto{"", "*", true},
        Confronto{"", "", true}, Confronto{"a", "", false}, Confronto{"abc", "a?c", true},
        Confronto{"ac", "a?c", false}, Confronto{"a1", "a#", true}, Confronto{"aa", "a#", false},
        Confronto{"a٣", "a#", false}, Confronto{"b", "[a-c]", true}, Confronto{"d", "[a-c]", false},
        Confronto{"B", "[a-c]", true}, Confronto{"b", "[A-C]", true}, Confronto{"d", "[!a-c]", true},
        Confronto{"b", "[!a-c]", false}, Confronto{"-", "[a-]", true}, Confronto{"!", "[!]", true},
        Confronto{"*", "[*]", true}, Confronto{"x", "[*]", false}, Confronto{"a?b", "a[?]b", true},
        Confronto{"axb", "a[?]b", false}, Confronto{"ab", "a[]b", true}, Confronto{"a[b", "a[b", true},
        Confronto{"a]b", "a]b", true}, Confronto{"100%", "*%", true}, Confronto{"100", "%", false},
        Confronto{"a_c", "a_c", true}, Confronto{"abc", "a_c", false}, Confronto{"ÈLICA", "èl*", true},
        Confronto{"МОТОР", "мо?ор", true}, Confronto{"ΜΟΤΕΡ", "μοτερ", true}, Confronto{"a😀b", "a?b", true},
        Confronto{"aaab", "*a*b", true}, Confronto{"abab", "*ab", true}, Confronto{"abac", "*ab", false}));

TEST(LikeNelMotore, SostituisceQuelloDelMotore) {
    QTemporaryDir cartella;
    Database db;
    db.Apri(cartella.filePath("a.db"), {}, Database::Modo::Scrittura);
    db.Esegui("CREATE TABLE T (a TEXT, n INTEGER)");
    db.Esegui("INSERT INTO T VALUES ('/3/7/', 1), ('/13/', 2), (NULL, 3), ('ÀÈ', 44), ('', 5)");
    const auto numeri = [&](const QString& condizione) {
        QStringList trovati;
        for (auto righe = db.Apri_Recordset("SELECT n FROM T WHERE " + condizione + " ORDER BY n");
             !righe.EOF_(); righe.MoveNext())
            trovati += righe.Campo(0).Testo();
        return trovati.join(u' ').toStdString();
    };
    EXPECT_EQ(numeri("a LIKE '*/3/*'"), "1");
    EXPECT_EQ(numeri("a LIKE 'àè'"), "44");
    EXPECT_EQ(numeri("a LIKE '%'"), "");
    EXPECT_EQ(numeri("NOT a LIKE '*3*'"), "5 44");  // NULL is neither like nor unlike
    EXPECT_EQ(numeri("a NOT LIKE \"*3*\""), "5 44");
    EXPECT_EQ(numeri("n LIKE '4*'"), "44");
    EXPECT_TRUE(db.Apri_Recordset("SELECT NULL LIKE 'a'").Campo(0).E_Nullo());
    EXPECT_TRUE(db.Apri_Recordset("SELECT 'a' LIKE NULL").Campo(0).E_Nullo());
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
    for (const char* sql :
         {"SELECT * FROM T WHERE (a = '1' OR a = '2'));", "SELECT * FROM T WHERE a = 'it's';",
          "SELECT * FROM T WHERE a = 'x' --';", "SELECT a,,Index FROM T", "SELECT * FROM T; DELETE FROM T",
          "SELECT * FROM T; x", "", " ; ", "SELECT * FROM [T", "SELECT b FROM T", "SELECT * FROM U"})
        EXPECT_THROW(db.Apri_Recordset(sql), Errore_DB) << sql;
    EXPECT_NO_THROW(db.Apri_Recordset("SELECT a FROM T  ; \r\n;"));
    EXPECT_EQ(db.Apri_Recordset("SELECT Index FROM T WHERE A = 'YES';").Campo(u"index").Testo(), "it's");
    EXPECT_EQ(db.Esegui("DELETE * FROM T WHERE a='yes' ;"), 1);
}

}  // namespace

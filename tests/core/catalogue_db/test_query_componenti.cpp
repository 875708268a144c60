// The filtered statements, by the rows that come of them.

#include <gmock/gmock.h>

#include "database_di_prova.h"

namespace {

class Query_Componenti : public testing::Test {
  protected:
    Database_Di_Prova prova_{
        Tabella("Struttura_Componenti",
                "Nome_Colonna_Tabella Titolo_Colonna Visualizzato Ordine Indice_Primario Key_Lingua "
                "Key_Mercato Key_Gruppo "
                "Tipo_Colonna",
                R"(('Campo01', 'Codice', 'Yes', 1, 'Yes', NULL, '', NULL, 'String [255 car.]'),
                   ('Campo02', 'Campo02', 'yes', 2, 'No', '/1/', '/3/', '/a/', 'Memo'),
                   ('Campo03', 'Il prezzo', 'YES', 3, 'No', '', '/13/', '/b/', 'Price'),
                   ('Campo04', 'Nascosta', 'No', 4, 'No', '', '', '', 'Memo'))") +
        Tabella("Componenti", "Campo01 Campo02 Campo03 Campo04",
                "('C1', 'uno', '1', 'x'), ('c2', 'due', '2', 'x')") +
        Tabella(
            "Componenti_Web",
            "Ordine Key_Prodotto Key_Riferimento Codice_Componente Key_Nota_1 Key_Mercato Key_Gruppo Campo01 "
            "Tipo_Associazione Quantita_min Key_Nota_2 Key_Nota_3 Campo02 Campo03") +
        QStringList{
            R"(INSERT INTO Componenti_Web (Ordine, Key_Prodotto, Key_Riferimento, Codice_Componente, Key_Nota_1,
            Key_Mercato, Key_Gruppo, Campo01) VALUES ('2', 'P_1', '10', 'C1', NULL, '/3/7/', '/a/', 'due'),
            ('1', 'P_1', '10', 'C2', '', '/13/', NULL, 'uno'), ('3', 'P_1', '11', 'C1', 'N''1', NULL, '', 'tre'),
            ('4', 'P_2', '10', 'C3', NULL, '', '/b/', 'quattro'))"} +
        Tabella("Traduzioni_Componenti_Mappe", "Key Traduzione_Nota_1")};
    const Class_DBOper& db_ = prova_.DB;

    static std::string Valori(Recordset righe, const QString& campo) {
        QStringList valori;
        for (; !righe.EOF_(); righe.MoveNext())
            valori += righe.Campo(campo).Testo();
        return valori.join(' ').toStdString();
    }
    std::string Web(const QString& prodotto, const QString& mercato, const QString& riferimento,
                    const QString& gruppi, const QString& codice, const QString& condizione) {
        return Valori(
            db_.Recordset_Tabella_Componenti_Web(prodotto, mercato, riferimento, gruppi, codice, condizione),
            "Ordine");
    }
};

TEST_F(Query_Componenti, Struttura) {
    // Languages, markets, groups and columns. Known groups see any group's columns; empty tokens are skipped;
    // without a language only the last market stays.
    for (const QStringList& riga :
         Righe("===1|/1/=/3/=/z/=1 2|/2/1/=/3/==1 2|1=/3//13/==1 2 3|=/3/13/==1 3|=/13/3/==1|1=/3/==1 2"))
        EXPECT_EQ(Valori(db_.Recorset_StrutturaComponenti(riga[0], riga[1], riga[2]), "Ordine"),
                  riga[3].toStdString())
            << qPrintable(riga.join('='));
}

TEST_F(Query_Componenti, ComponentiWeb) {
    auto righe = db_.Recordset_Componenti_Web("P_1", "3");
    EXPECT_EQ(righe.Campi().join('|'),
              "Key_Riferimento|Tipo_Associazione|Codice|Campo02|Il prezzo|Quantita_min|"
              "Key_Nota_1|Key_Nota_2|Key_Nota_3");
    EXPECT_EQ(Valori(std::move(righe), "codice"), "due tre");
}

TEST_F(Query_Componenti, ComponentiWebFiltrato) {
    EXPECT_EQ(Valori(db_.Recordset_Componenti_Web_Filtrato("P_1", "3", "10", "/a/", "C1"), "Codice"), "due");
    EXPECT_EQ(
        db_.SQL(),
        "SELECT Key_Riferimento,Tipo_Associazione,Campo01 as [Codice], Campo02, Campo03 as [Il prezzo] FROM "
        "Componenti_Web WHERE ( Key_Prodotto='P_1' ) AND (Key_Mercato LIKE '*/3/*' OR Key_Mercato = '' OR "
        "Key_Mercato IS NULL ) AND (Key_Gruppo = '' OR Key_Gruppo IS NULL OR  Key_Gruppo LIKE '*/a/*' ) AND "
        "(Key_Riferimento = '10') AND ( Codice_Componente = 'C1' ) ORDER BY Ordine ;");
    EXPECT_EQ(Valori(db_.Recordset_Componenti_Web_Filtrato("", "", "", "", ""), "Codice"),
              "uno due tre quattro");
}

TEST_F(Query_Componenti, TabellaComponentiWeb) {
    EXPECT_EQ(Web("", "", "", "", "", ""), "1 2 3 4");
    EXPECT_EQ(Web("P_1", "", "", "/a/b/", "", "Ordine > '1' OR 1=0"), "2 3");
    EXPECT_EQ(Web("", "3", "", "", "", ""), "2 3 4") << "market 3 isn't in /13/";
    EXPECT_EQ(Web("p_1", "", "", "", "c1", ""), "2 3") << "\"=\" ignores case";
    EXPECT_THROW(Web("", "", "", "/", "", ""), Errore_DB) << "a list without a group";
}

TEST_F(Query_Componenti, Componenti) {
    EXPECT_EQ(Valori(db_.Recordset_Componenti(""), "Codice_Componente"), "C1 c2");
    EXPECT_EQ(Valori(db_.Recordset_Componenti("Campo02 LIKE 'd*'"), "Codice_Componente"), "c2");

    const auto riga = db_.Recordset_Tabella_Componenti("C2", "");
    EXPECT_EQ(riga.Campo(u"Codice_Componente").Testo(), "c2");
    EXPECT_EQ(riga.Campo(u"Tipo_Associazione").Testo(), "1");
    EXPECT_EQ(riga.Campo(u"Key_Prodotto").Testo(), "-#-");
    EXPECT_TRUE(db_.Recordset_Tabella_Componenti("C2", "Campo02 = 'uno' OR Campo02 = 'tre'").EOF_());

    EXPECT_TRUE(db_.Recordset_Componenti_Filtrato("", "C2").Campo(u"Key_Riferimento").E_Nullo());
    for (const QStringList& caso : Righe("==C1 c2|=C2=c2|Campo02 LIKE 'u*'==C1|Campo02 LIKE 'u*'=c2="))
        EXPECT_EQ(Valori(db_.Recordset_Componenti_Filtrato(caso[0], caso[1]), "Codice"),
                  caso[2].toStdString())
            << qPrintable(caso.join('='));
}

TEST_F(Query_Componenti, Note) {
    EXPECT_TRUE(db_.Esite_Nota_Tabella_Associazione("P_1", "3", "", "", "", "", "1"));
    EXPECT_FALSE(db_.Esite_Nota_Tabella_Associazione("P_1", "3", "10", "", "", "", "1"));
    EXPECT_FALSE(db_.Esite_Nota_Tabella_Associazione("P_1", "", "", "", "", "Key_Riferimento = '10'", "1"));
    EXPECT_FALSE(db_.Esite_Nota_Tabella_Associazione("P_1", "3", "", "", "", "", "2")) << "no such column";
}

TEST(ModelloVuoto, SenzaColonnePrimarie) {
    Database_Di_Prova prova(
        Tabella("Struttura_Componenti",
                "Nome_Colonna_Tabella Titolo_Colonna Visualizzato Ordine Indice_Primario Key_Lingua "
                "Key_Mercato Tipo_Colonna") +
        Tabella("Componenti", "Campo01", "('C1')") +
        Tabella("Componenti_Web", "Ordine Key_Prodotto Key_Mercato"));
    EXPECT_FALSE(prova.DB.Recordset_Componenti("").EOF_());
    EXPECT_FALSE(prova.DB.Recordset_Tabella_Componenti("qualunque", "").EOF_());
    EXPECT_THROW(prova.DB.Recordset_Componenti_Web("P_1", "1"), Errore_DB) << "an empty list of columns";
}

}  // namespace

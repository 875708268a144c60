// The filtered statements: their exact texts, and the rows that come of them.

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
                   ('Campo03', 'Il prezzo', 'YES', 3, 'No', '/2/1/', '/13/', '/b/', 'Price'),
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

    static std::string Righe(Recordset righe, const QString& campo) {
        QStringList valori;
        for (; !righe.EOF_(); righe.MoveNext())
            valori += righe.Campo(campo).Testo();
        return valori.join(' ').toStdString();
    }
    std::string Web(const QString& prodotto, const QString& mercato, const QString& riferimento,
                    const QString& gruppi, const QString& codice, const QString& condizione) {
        return Righe(
            db_.Recordset_Tabella_Componenti_Web(prodotto, mercato, riferimento, gruppi, codice, condizione),
            "Ordine");
    }
    std::string Colonne(const QString& lingue, const QString& mercati, const QString& gruppi) {
        return Righe(db_.Recorset_StrutturaComponenti(lingue, mercati, gruppi), "Nome_Colonna_Tabella");
    }
};

/// The filters of the column model for some languages, markets and groups.
QString Filtri_Modello(const char* lingue, const char* mercati, const char* gruppi) {
    return QString(
               "AND ( Key_Lingua IS NULL OR Key_Lingua = '' %1 ) AND ( Key_Mercato IS NULL OR Key_Mercato = "
               "'' %2 ) "
               "AND (Key_Gruppo IS NULL OR Key_Gruppo = '' %3 OR NOT (Key_Gruppo IS NULL)) ")
        .arg(lingue, mercati, gruppi);
}

TEST_F(Query_Componenti, Struttura) {
    struct Caso {
        const char *lingue, *mercati, *gruppi, *colonne;
        QString filtri;
    };
    const char* mercato_3 = " OR Key_Mercato LIKE '*/3/*'";
    const Caso casi[] = {
        {"", "", "", "Campo01", Filtri_Modello("", "", "")},
        // Known groups see any group's columns.
        {"/1/", "/3/", "/z/", "Campo01 Campo02",
         Filtri_Modello(" OR Key_Lingua LIKE '*/1/*'", mercato_3, " OR Key_Gruppo LIKE '*/z/*'")},
        // Empty tokens are skipped.
        {"1", "/3//13/", "", "Campo01 Campo02 Campo03",
         Filtri_Modello(" OR Key_Lingua LIKE '*/1/*'",
                        " OR Key_Mercato LIKE '*/3/*' OR Key_Mercato LIKE '*/13/*'", "")},
        // Without a language only the last market stays.
        {"", "/3/13/", "", "Campo01", Filtri_Modello("", " OR Key_Mercato LIKE '*/13/*'", "")}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(Colonne(caso.lingue, caso.mercati, caso.gruppi), caso.colonne);
        EXPECT_EQ(db_.SQL(), "SELECT * FROM Struttura_Componenti WHERE Visualizzato = 'YES' " + caso.filtri +
                                 "ORDER BY Ordine ;");
    }
    const QString primaria =
        "SELECT Titolo_Colonna,Indice_Primario FROM Struttura_Componenti WHERE Visualizzato='Yes' ";
    db_.Restituisci_Numero_Colonna_Primaria_Distinta("/1/2/", "/3/", "/a/b/");
    EXPECT_EQ(db_.SQL(),
              primaria +
                  Filtri_Modello(" OR Key_Lingua LIKE '*/1/*' OR Key_Lingua LIKE '*/2/*'", mercato_3,
                                 " OR Key_Gruppo LIKE '*/a/*' OR Key_Gruppo LIKE '*/b/*'") +
                  " ORDER BY Ordine ASC;");
    db_.Restituisci_Numero_Colonna_Primaria_Distinta("/", "/3/13/7/", "");
    EXPECT_EQ(db_.SQL(),
              primaria + Filtri_Modello("", " OR Key_Mercato LIKE '*/7/*'", "") + " ORDER BY Ordine ASC;");
}

TEST_F(Query_Componenti, ComponentiWeb) {
    auto righe = db_.Recordset_Componenti_Web("P_1", "3");
    EXPECT_EQ(
        db_.SQL(),
        "SELECT Key_Riferimento,Tipo_Associazione,Campo01 as [Codice], Campo02, Campo03 as [Il prezzo]"
        ",Quantita_min,Key_Nota_1,Key_Nota_2,Key_Nota_3 FROM Componenti_Web WHERE Key_Prodotto = 'P_1' AND "
        "(Key_Mercato LIKE '*/3/*' OR Key_Mercato = '' OR Key_Mercato IS NULL ) ORDER BY Ordine ;");
    EXPECT_EQ(righe.Campi().join('|'),
              "Key_Riferimento|Tipo_Associazione|Codice|Campo02|Il prezzo|Quantita_min|"
              "Key_Nota_1|Key_Nota_2|Key_Nota_3");
    EXPECT_EQ(Righe(std::move(righe), "codice"), "due tre");
}

TEST_F(Query_Componenti, ComponentiWebFiltrato) {
    EXPECT_EQ(Righe(db_.Recordset_Componenti_Web_Filtrato("P_1", "3", "10", "/a/", "C1"), "Codice"), "due");
    EXPECT_EQ(
        db_.SQL(),
        "SELECT Key_Riferimento,Tipo_Associazione,Campo01 as [Codice], Campo02, Campo03 as [Il prezzo] FROM "
        "Componenti_Web WHERE ( Key_Prodotto='P_1' ) AND (Key_Mercato LIKE '*/3/*' OR Key_Mercato = '' OR "
        "Key_Mercato IS NULL ) AND (Key_Gruppo = '' OR Key_Gruppo IS NULL OR  Key_Gruppo LIKE '*/a/*' ) AND "
        "(Key_Riferimento = '10') AND ( Codice_Componente = 'C1' ) ORDER BY Ordine ;");
    EXPECT_EQ(Righe(db_.Recordset_Componenti_Web_Filtrato("", "", "", "", ""), "Codice"),
              "uno due tre quattro");
    EXPECT_EQ(db_.SQL(),
              "SELECT Key_Riferimento,Tipo_Associazione,Campo01 as [Codice], Campo02, Campo03 as [Il "
              "prezzo] FROM Componenti_Web ORDER BY Ordine ;");
}

TEST_F(Query_Componenti, TabellaComponentiWeb) {
    EXPECT_EQ(Web("", "", "", "", "", ""), "1 2 3 4");
    EXPECT_EQ(db_.SQL(), "SELECT * FROM Componenti_Web ORDER BY Ordine ;");
    EXPECT_EQ(Web("P_1", "", "", "/a/b/", "", "Ordine > '1' OR 1=0"), "2 3");
    EXPECT_EQ(
        db_.SQL(),
        "SELECT * FROM Componenti_Web WHERE ( Key_Prodotto='P_1' ) AND (Key_Gruppo = '' OR Key_Gruppo IS "
        "NULL OR  Key_Gruppo LIKE '*/a/*'  OR  Key_Gruppo LIKE '*/b/*' ) AND ( Ordine > '1' OR 1=0 ) "
        "ORDER BY Ordine ;");
    EXPECT_EQ(Web("", "3", "", "", "", ""), "2 3 4") << "market 3 isn't in /13/";
    EXPECT_EQ(Web("p_1", "", "", "", "c1", ""), "2 3") << "\"=\" ignores case";
    EXPECT_THROW(Web("", "", "", "/", "", ""), Errore_DB) << "a list without a group";
    EXPECT_EQ(db_.SQL(),
              "SELECT * FROM Componenti_Web WHERE (Key_Gruppo = '' OR Key_Gruppo IS NULL OR ) ORDER "
              "BY Ordine ;");
}

TEST_F(Query_Componenti, Componenti) {
    EXPECT_EQ(Righe(db_.Recordset_Componenti(""), "Codice_Componente"), "C1 c2");
    EXPECT_EQ(db_.SQL(), "SELECT *,[Campo01]as Codice_Componente FROM Componenti ;");
    EXPECT_EQ(Righe(db_.Recordset_Componenti("Campo02 LIKE 'd*'"), "Codice_Componente"), "c2");
    EXPECT_EQ(db_.SQL(), "SELECT *,[Campo01]as Codice_Componente FROM Componenti WHERE Campo02 LIKE 'd*';");
}

TEST_F(Query_Componenti, TabellaComponenti) {
    const auto riga = db_.Recordset_Tabella_Componenti("C2", "");
    EXPECT_EQ(db_.SQL(),
              "SELECT *,1 as Tipo_associazione,'-#-' as Key_Prodotto,[Campo01]as Codice_Componente "
              "FROM Componenti WHERE Campo01 = 'C2' ;");
    EXPECT_EQ(riga.Campo(u"Codice_Componente").Testo(), "c2");
    EXPECT_EQ(riga.Campo(u"Tipo_Associazione").Testo(), "1");
    EXPECT_EQ(riga.Campo(u"Key_Prodotto").Testo(), "-#-");
    EXPECT_TRUE(db_.Recordset_Tabella_Componenti("C2", "Campo02 = 'uno' OR Campo02 = 'tre'").EOF_());
    EXPECT_EQ(db_.SQL(),
              "SELECT *,1 as Tipo_associazione,'-#-' as Key_Prodotto,[Campo01]as Codice_Componente "
              "FROM Componenti WHERE Campo01 = 'C2' AND (Campo02 = 'uno' OR Campo02 = 'tre' ) ;");
}

TEST_F(Query_Componenti, ComponentiFiltrato) {
    const auto riga = db_.Recordset_Componenti_Filtrato("Campo02 = 'uno'", "c1");
    EXPECT_EQ(db_.SQL(),
              "SELECT [Campo01]as Codice_Componente,NULL as Key_Riferimento, Campo01 as [Codice], "
              "Campo02, Campo03 as [Il prezzo] FROM Componenti WHERE ( Campo01 = 'c1' ) AND ( Campo02 "
              "= 'uno' ) ;");
    EXPECT_EQ(riga.Campo(u"Codice").Testo(), "C1");
    EXPECT_TRUE(riga.Campo(u"Key_Riferimento").E_Nullo());
    EXPECT_EQ(Righe(db_.Recordset_Componenti_Filtrato("", ""), "Codice"), "C1 c2");
    EXPECT_EQ(Righe(db_.Recordset_Componenti_Filtrato("", "C2"), "Codice"), "c2");
    EXPECT_EQ(Righe(db_.Recordset_Componenti_Filtrato("Campo02 = 'uno'", ""), "Codice"), "C1");
}

TEST_F(Query_Componenti, Note) {
    EXPECT_TRUE(db_.Esite_Nota_Tabella_Associazione("P_1", "3", "", "", "", "", "1"));
    EXPECT_FALSE(db_.Esite_Nota_Tabella_Associazione("P_1", "3", "10", "", "", "", "1"));
    EXPECT_FALSE(db_.Esite_Nota_Tabella_Associazione("P_1", "", "", "", "", "Key_Riferimento = '10'", "1"));
    EXPECT_FALSE(db_.Esite_Nota_Tabella_Associazione("P_1", "3", "", "", "", "", "2")) << "no such column";
    EXPECT_FALSE(db_.Esite_Nota_Tabella_Associazione("", "", "", "/", "", "", "1"));
}

TEST(ModelloVuoto, SenzaColonnePrimarie) {
    Database_Di_Prova prova(
        Tabella("Struttura_Componenti",
                "Nome_Colonna_Tabella Titolo_Colonna Visualizzato Ordine Indice_Primario Key_Lingua "
                "Key_Mercato Tipo_Colonna") +
        Tabella("Componenti", "Campo01", "('C1')") +
        Tabella("Componenti_Web", "Ordine Key_Prodotto Key_Mercato"));
    EXPECT_FALSE(prova.DB.Recordset_Componenti("").EOF_());
    EXPECT_EQ(prova.DB.SQL(), "SELECT * FROM Componenti ;");
    EXPECT_FALSE(prova.DB.Recordset_Tabella_Componenti("qualunque", "").EOF_());
    EXPECT_EQ(prova.DB.SQL(), "SELECT *,1 as Tipo_associazione,'-#-' as Key_Prodotto FROM Componenti ;");
    EXPECT_TRUE(prova.DB.Recordset_Tabella_Componenti("qualunque", "Campo01 = 'x'").EOF_());
    EXPECT_THROW(prova.DB.Recordset_Componenti_Web("P_1", "1"), Errore_DB) << "an empty list of columns";
}

}  // namespace

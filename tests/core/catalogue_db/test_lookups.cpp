// SYSTEM, opening and closing, products, the column model, codes and quantities.

#include <gmock/gmock.h>

#include <QFile>

#include "database_di_prova.h"

namespace {

using testing::ElementsAre;

TEST(Apertura, UnFallimentoSiMostra) {
    Messaggi_Finti messaggi;
    Class_DBOper db(messaggi);
    QTemporaryDir cartella;
    EXPECT_FALSE(db.Open_Database(cartella.filePath("manca.db")));
    EXPECT_FALSE(db.Aperto());
    Database altro;
    altro.Apri(cartella.filePath("altro.db"), {}, Database::Modo::Scrittura);
    for (const QString& sql : Istruzioni_Protezione("un'altra"))
        altro.Esegui(sql);
    EXPECT_FALSE(db.Open_Database(cartella.filePath("altro.db")));
    EXPECT_THAT(messaggi.Testi(), ElementsAre("Error open file The file doesn't exist.",
                                              "Error open file Not a valid password."));
    EXPECT_EQ(messaggi.Mostrati.front().icona, Icona::Nessuna);
}

class System : public testing::Test {
  protected:
    Database_Di_Prova prova{QStringList{"CREATE TABLE SYSTEM (KEY TEXT COLLATE NOCASE, VALORE TEXT)",
                                        "INSERT INTO SYSTEM VALUES ('A', '  b c '), ('VUOTO', '   '), "
                                        "('NULLO', NULL), ('D', 'uno'), ('D', 'due'), "
                                        "('L''ORA', 'si')"}};
};

TEST_F(System, ChiusoNonSaNullaENonLoDice) {
    prova.DB.Close_database();
    prova.DB.Close_database();
    EXPECT_FALSE(prova.DB.Aperto());
    EXPECT_EQ(prova.DB.System_Leggi_Key("A"), "");
    EXPECT_EQ(prova.DB.Restituisci_ID_Lingua("x"), 0);
    EXPECT_THROW(prova.DB.Recordset_Struttura_Lingue(), Errore_DB);
    EXPECT_TRUE(prova.DB.Open_Database(prova.Percorso()));
    EXPECT_FALSE(prova.DB.Open_Database(prova.Percorso() + "x"));
    EXPECT_FALSE(prova.DB.Aperto()) << "the failed one took its place";
    EXPECT_EQ(prova.Messaggi_.Mostrati.size(), 1u);
}

TEST_F(System, Valori) {
    for (const QStringList& riga : Righe("A=b c|a=b c|D=uno|L''ORA=si|VUOTO=|NULLO=|MANCA=|=|L'ORA="))
        EXPECT_EQ(prova.DB.System_Leggi_Key(riga[0]), riga[1]) << qPrintable(riga[0]);
    EXPECT_EQ(prova.DB.SQL(), "SELECT VALORE FROM SYSTEM WHERE KEY = 'L'ORA';");
    EXPECT_TRUE(prova.Messaggi_.Mostrati.empty());
}

class Prodotti : public testing::Test {
  protected:
    Database_Di_Prova prova_{
        Tabella("Prodotti",
                "Key_Prodotto Key_Associazione Foto_1_Prodotto Foto_2_Prodotto Mappa_Associata Flag_2",
                R"(('P_1', 'A1', 'f1.jpg', NULL, 'm1.svg', ' 1 '), ('P_2', 'A2', NULL, 'f2.jpg', NULL, NULL),
                   ('P_3', 'A2', NULL, NULL, NULL, '0'), ('P_l''olio', 'A3', NULL, NULL, 'olio.svg', ''))") +
        Tabella("Albero", "Key_Prodotto Descrizione_Nodo", "('R', 'Radice'), ('P_1', 'Motore')") +
        Tabella(
            "Albero_Web", "Key_Prodotto Key_Padre Testo_Visualizzato_1 Testo_Visualizzato_2",
            R"(('P_1', 'R', ' Motore ', NULL), ('P_2', 'G_1', 'Cambio', 'Gearbox'), ('P_3', 'G_2', 'Sterzo', ''))") +
        Tabella("Traduzioni_Prodotti",
                "Key_Prodotto Traduzione_Matricola_1 Traduzione_Descrizione_1 Traduzione_Nota_1",
                "('P_1', 'M-1', 'Motore diesel', ' nota '), ('P_2', NULL, NULL, NULL)") +
        Tabella(
            "Componenti_Mappe", "Key_Riferimento Key_Associazione Key_Componente_Distinta_1",
            R"(('10', 'A1', 'PRODOTTO#$#P_2'), ('11', 'A1', 'CODICI#$#x'), ('12', 'A1', 'SOTTO_PRODOTTO#$#A2'),
                   ('13', 'A1', 'P##P_3'), ('14', 'A1', NULL))") +
        Tabella("Traduzioni_Componenti_Mappe", "Key Traduzione_Nota_1 Traduzione_Nota_2",
                "('N1', 'Solo destra ', NULL), ('N2', '  ', NULL)") +
        Tabella("Lingue", "ID Chiave Descrizione_Lingua Attiva_Lingua", "(1, 'IT', 'Italiano', 'TRUE')") +
        Tabella("Traduzioni_Albero", "Key_Testo_Visualizzato Traduzione_1", "('K', 'Kappa')")};
    const Class_DBOper& db_ = prova_.DB;
};

TEST_F(Prodotti, Riga) {
    EXPECT_EQ(db_.Restituisci_NomeTavola_Prodotto("P_1"), "m1.svg");
    EXPECT_EQ(db_.SQL(), "SELECT * FROM Prodotti WHERE Key_Prodotto = 'P_1';");
    EXPECT_EQ(db_.Restituisci_NomeTavola_Prodotto("P_2"), "");
    EXPECT_EQ(db_.Restituisci_NomeTavola_Prodotto("P_9"), "");
    EXPECT_EQ(db_.Restituisci_NomeTavola_Prodotto("P_l''olio"), "olio.svg");
    EXPECT_EQ(db_.Restituisci_NomeTavola_Prodotto("P_l'olio"), "") << "the caller doubles the quotes";
    EXPECT_EQ(db_.Restituisci_NomeFoto_1_Prodotto("P_1"), "f1.jpg");
    EXPECT_EQ(db_.Restituisci_NomeFoto_2_Prodotto("P_2"), "f2.jpg");
    EXPECT_EQ(db_.Restituisci_KeyAssociazione_Prodotto("p_1"), "A1");
}

TEST_F(Prodotti, EsistenzaDellaTavola) {
    // NULL counts as yes.
    for (const auto& [prodotto, esiste] :
         {std::pair("P_1", true), {"P_2", true}, {"P_3", false}, {"P_l''olio", false}, {"P_9", false}})
        EXPECT_EQ(db_.Restituisci_Esistenza_Tavola_Prodotto(prodotto), esiste) << prodotto;
}

TEST_F(Prodotti, Nomi) {
    EXPECT_EQ(db_.Restituisci_Nome_Prodotto("P_1"), "Motore");
    EXPECT_EQ(db_.SQL(), "SELECT * FROM Albero WHERE Key_Prodotto = 'P_1';");
    EXPECT_EQ(db_.Restituisci_Descrizione_Root_albero(), "Radice");
    EXPECT_EQ(db_.SQL(), "SELECT * FROM Albero WHERE Key_Prodotto = 'R' ;");
    // NULL gives the key; 12 is no column.
    for (const QStringList& riga : Righe("P_1=12=|P_1=2=P_1|P_3=2=|P_9=1=|P_1=1= Motore "))
        EXPECT_EQ(db_.Restituisci_Traduzione_Prodotto(riga[0], riga[1]), riga[2])
            << qPrintable(riga.join(' '));
    EXPECT_EQ(db_.SQL(), "SELECT * FROM Albero_Web WHERE Key_Prodotto = 'P_1';");
    EXPECT_EQ(db_.Restituisci_NomeProdotto_Tradotto("P_1", "1"), "Motore");
    EXPECT_EQ(db_.SQL(), "SELECT Testo_Visualizzato_1 FROM Albero_Web WHERE Key_Prodotto = 'P_1';");
    EXPECT_EQ(db_.Restituisci_NomeProdotto_Tradotto("P_1", "2"), "");
    EXPECT_EQ(db_.Restituisci_NomeProdotto_Tradotto("", "1"), "");
    EXPECT_FALSE(db_.Restituisci_Abilitazione_Prodotto("P_1", "1", "a"));
}

TEST_F(Prodotti, Traduzioni) {
    EXPECT_EQ(db_.Restituisci_Descrizione_Tradotta("P_1", "1"), "Motore diesel");
    EXPECT_EQ(db_.SQL(),
              "SELECT Traduzione_Descrizione_1 FROM  Traduzioni_Prodotti  WHERE Key_Prodotto = 'P_1' ;");
    EXPECT_EQ(db_.Restituisci_Matricola_Tradotta("P_1", "1"), "M-1");
    EXPECT_EQ(db_.Restituisci_Nota_Tradotta("P_1", "1"), " nota ");
    EXPECT_EQ(db_.Restituisci_Nota_Tradotta("P_2", "1"), "");
    EXPECT_EQ(db_.Restituisci_Nota_Tradotta("P_1", "12"), "");
}

TEST_F(Prodotti, Note) {
    EXPECT_EQ(db_.Restituisci_Traduzioni_Nota_Componenti_Mappe("N1", "1"), "Solo destra ");
    EXPECT_EQ(db_.SQL(), "SELECT Traduzione_Nota_1 FROM Traduzioni_Componenti_Mappe WHERE Key = 'N1' ;");
    for (const QStringList& riga : Righe("N1=2=N1|N2=1=N2|N9=1=N9|=1=|N1=12="))
        EXPECT_EQ(db_.Restituisci_Traduzioni_Nota_Componenti_Mappe(riga[0], riga[1]), riga[2])
            << qPrintable(riga.join(' '));
}

TEST_F(Prodotti, KeyVirtuale) {
    EXPECT_EQ(db_.Restituisci_Prodotto_KeyVirtuale("A2", "G_2"), "P_3");
    EXPECT_EQ(db_.SQL(),
              "SELECT Prodotti.Key_Prodotto FROM Prodotti,Albero_Web WHERE Key_Associazione = 'A2' AND "
              "Prodotti.Key_Prodotto = Albero_Web.Key_Prodotto AND Albero_Web.Key_Padre = 'G_2' ; ");
    EXPECT_EQ(db_.Restituisci_Prodotto_KeyVirtuale("A2", "R"), "A2");
    EXPECT_EQ(db_.Restituisci_Prodotto_KeyVirtuale("A'2", "R"), "");
}

TEST_F(Prodotti, CrossReference) {
    for (const QStringList& riga : Righe("10=PRODOTTO#$#P_2|11=|12=SOTTO_PRODOTTO#$#A2|13=P##P_3|14=|15="))
        EXPECT_EQ(db_.Restituisci_KeyProdotto_Cross_Reference(riga[0], "1", "A1"), riga[1])
            << qPrintable(riga[0]);
    EXPECT_EQ(db_.SQL(),
              "SELECT Key_Componente_Distinta_1 FROM Componenti_Mappe WHERE Key_Riferimento = '15' "
              "AND Key_Associazione='A1' ; ");
    EXPECT_EQ(db_.Restituisci_KeyProdotto_Cross_Reference("10", "12", "A1"), "");
}

TEST_F(Prodotti, TraduzioniAlbero) {
    EXPECT_FALSE(db_.Recordset_Traduzioni_Albero_Filtro("").E_Impostato());
    const Recordset riga = db_.Recordset_Traduzioni_Albero_Filtro("K");
    EXPECT_EQ(db_.SQL(),
              "SELECT [Traduzione_1] as [Traduzione_ _Italiano] FROM Traduzioni_Albero WHERE "
              "Key_Testo_Visualizzato = 'K' ;");
    EXPECT_EQ(riga.Campo(u"Traduzione_ _Italiano").Testo(), "Kappa");
    EXPECT_TRUE(Class_DBOper::Esiste_Colonna("Traduzione_ _Italiano", riga));
    EXPECT_FALSE(Class_DBOper::Esiste_Colonna("traduzione_ _italiano", riga)) << "exactly that name";
}

class Componenti : public testing::Test {
  protected:
    Database_Di_Prova prova_{
        Tabella("Struttura_Componenti",
                "Nome_Colonna_Tabella Titolo_Colonna Visualizzato Ordine Indice_Primario Key_Lingua "
                "Key_Mercato Key_Gruppo "
                "Tipo_Colonna Size",
                R"(('Campo03', 'Quantità', 'yes', 3, NULL, '', NULL, '', 'Quantity', NULL),
                   ('Campo01', 'Codice', 'Yes', 2, 'Yes', '', NULL, '', 'String [255 car.]', '15'),
                   ('Campo02', 'Prezzo', 'YES', 1, 'No', '/2/', NULL, '', 'Price', '2'),
                   ('Campo00', 'Nascosta', 'No', 0, 'Yes', '', NULL, '', 'Memo', NULL))") +
        Tabella("Componenti", "Campo00 Campo01 Campo02 Campo03",
                "(NULL, 'C1', '1', '6'), (NULL, 'C2', '2', NULL)") +
        Tabella(
            "Componenti_Web",
            "Ordine Key_Prodotto Key_Riferimento Codice_Componente Tipo_Associazione Quantita_min "
            "Key_Mercato Key_Gruppo",
            R"(('2', 'P_1', '10', 'C2', '2', '4', '/3/', NULL), ('1', 'P_1', '10', 'C1', '1', NULL, NULL, ''),
                   ('3', 'P_1', '10', NULL, '1', '9', '', NULL), ('4', 'P_1', '11', 'C3', '1', NULL, '/13/', '/a/'),
                   ('5', 'P_1', '12', 'C4', '1', NULL, '', ''), ('6', 'P_1', '12', 'C4', '1', '', '', ''),
                   ('7', 'P_1', '12', 'C4', '1', '3', '', ''))")};
    const Class_DBOper& db_ = prova_.DB;

    QString Codici(const QString& riferimento, const QString& mercato, int tipo) {
        QString elenco = "vecchio";
        db_.Restituisci_Codice_Componente("P_1", riferimento, mercato, tipo, elenco);
        return elenco;
    }
    QString Quantita(const QString& codice, const QString& riferimento, const Filtri& filtri = {}) {
        QString quantita = "vecchia";
        db_.Restituisci_Quantita_Componente("P_1", codice, riferimento, filtri, quantita);
        return quantita;
    }
};

TEST_F(Componenti, ColonnaPrimaria) {
    EXPECT_EQ(db_.Restituisci_NomeReale_Colonna(), "Campo01") << "hidden columns don't count";
    EXPECT_EQ(db_.SQL(),
              "SELECT Nome_Colonna_Tabella,Indice_Primario FROM Struttura_Componenti WHERE "
              "Visualizzato='Yes' ORDER BY Ordine ASC;");
    EXPECT_EQ(db_.Restituisci_Numero_Colonna_Primaria_Distinta("", "", ""), 0)
        << "the column for language 2 is out";
    EXPECT_EQ(db_.Restituisci_Numero_Colonna_Primaria_Distinta("/2/", "", ""), 1);
}

TEST_F(Componenti, TipoESize) {
    QString tipo = "x", size = "x";
    db_.Restituisci_Tipo_Size_Colonna("Campo02", tipo, size);
    EXPECT_EQ(tipo + "|" + size, "Price|2");
    EXPECT_EQ(db_.SQL(),
              "SELECT Tipo_colonna,Size FROM Struttura_Componenti WHERE Nome_Colonna_Tabella "
              "='Campo02' ;");
    db_.Restituisci_Tipo_Size_Colonna("Campo99", tipo, size);
    EXPECT_EQ(tipo + "|" + size, "|");
}

TEST_F(Componenti, Codici) {
    EXPECT_EQ(Codici("10", "3", 0), "|C1|C2|") << "in order, without the NULL code";
    EXPECT_EQ(Codici("10", "4", 0), "|C1|");
    EXPECT_EQ(Codici("10", "3", 2), "|C2|");
    EXPECT_EQ(db_.SQL(),
              "SELECT * FROM Componenti_Web WHERE ( Key_Prodotto='P_1' ) AND (Key_Mercato LIKE "
              "'*/3/*' OR Key_Mercato = '' OR Key_Mercato IS NULL ) AND (Key_Riferimento = '10') "
              "AND ( Tipo_Associazione = 2 ) ORDER BY Ordine ;");
    EXPECT_EQ(Codici("C2", "3", 0), "|C2|") << "the reference taken as a code";
    EXPECT_EQ(Codici("11", "3", 0), "") << "market 3 is not 13";
    EXPECT_EQ(Codici("99", "3", 0), "");
    EXPECT_EQ(Codici("1'0", "3", 0), "");
}

TEST_F(Componenti, Quantita) {
    // Of C1 only NULL is there; without a code the first that isn't NULL counts; an empty text isn't NULL, so
    // it is the answer for C4; under 99 the quantity column of the master answers.
    for (const QStringList& riga : Righe("C2=10=4|C1=10=1|=10=4|C4=12=|C1=99=6|C2=99=1|C9=99=1"))
        EXPECT_EQ(Quantita(riga[0], riga[1]), riga[2]) << qPrintable(riga.join(' '));
    EXPECT_EQ(Quantita("C2", "10", {"1", "4", "", ""}), "1") << "hidden in this market, NULL in the master";
}

TEST(ColonnaPrimaria, SiValeNelleRicercheENonNellaTabella) {
    Database_Di_Prova prova(
        Tabella(
            "Struttura_Componenti",
            "Nome_Colonna_Tabella Visualizzato Ordine Indice_Primario Titolo_Colonna Key_Lingua Key_Mercato "
            "Key_Gruppo",
            R"(('Campo01', 'Yes', 1, 'SI', NULL, NULL, NULL, NULL), ('Campo02', 'Yes', 2, 'Si', NULL, NULL, NULL, NULL))") +
        Tabella("Componenti", "Campo01 Campo02"));
    EXPECT_EQ(prova.DB.Restituisci_NomeReale_Colonna(), "Campo02");
    EXPECT_EQ(prova.DB.Restituisci_Numero_Colonna_Primaria_Distinta("", "", ""), 1);
    prova.DB.Recordset_Componenti("");
    EXPECT_EQ(prova.DB.SQL(), "SELECT * FROM Componenti ;");
}

TEST(ComponentiMancanti, NienteESilenzio) {
    Database_Di_Prova prova(Tabella("T", "a"));
    QString codici = "x", quantita = "x";
    prova.DB.Restituisci_Codice_Componente("P_1", "1", "1", 0, codici);
    prova.DB.Restituisci_Quantita_Componente("P_1", "C", "1", {}, quantita);
    EXPECT_EQ(codici + quantita + prova.DB.Restituisci_NomeReale_Colonna(), "");
    EXPECT_EQ(prova.DB.Restituisci_Numero_Colonna_Primaria_Distinta("1", "1", ""), 0);
    EXPECT_FALSE(prova.DB.Restituisci_Esistenza_Tavola_Prodotto("P_1"));
    EXPECT_TRUE(prova.Messaggi_.Mostrati.empty());
}

}  // namespace

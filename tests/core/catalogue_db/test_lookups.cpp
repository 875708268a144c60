// SYSTEM, opening and closing, products, the column model, codes and quantities.

#include <gmock/gmock.h>

#include <QTemporaryFile>

#include "database_di_prova.h"

namespace {

using testing::ElementsAre;

TEST(Apertura, UnFallimentoSiMostra) {
    Messaggi_Finti messaggi;
    QTemporaryFile estraneo;  // of no engine that is known
    ASSERT_TRUE(estraneo.open() && estraneo.write("no database") > 0 && estraneo.flush());
    for (const QString& percorso : {QString("manca.db"), estraneo.fileName()})
        EXPECT_FALSE(Class_DBOper(messaggi).Open_Database(percorso));
    EXPECT_THAT(messaggi.Testi(), ElementsAre("Error open file The file doesn't exist.",
                                              "Error open file The file isn't a catalogue database."));
}

class System : public testing::Test {
  protected:
    Database_Di_Prova prova{Tabella("SYSTEM", "KEY VALORE",
                                    "('A', '  b c '), ('VUOTO', '   '), ('NULLO', NULL), ('D', 'uno'), "
                                    "('D', 'due'), ('L''ORA', 'si')")};
};

TEST_F(System, ChiusoNonSaNullaENonLoDice) {
    prova.DB.Close_database();
    EXPECT_FALSE(prova.DB.Aperto());
    EXPECT_EQ(prova.DB.System_Leggi_Key("A"), "");
    EXPECT_THROW(prova.DB.Recordset_Struttura_Lingue(), Errore_DB);
    EXPECT_TRUE(prova.Messaggi_.Mostrati.empty());
    ASSERT_TRUE(prova.DB.Open_Database(prova.Percorso()));
    EXPECT_FALSE(prova.DB.Open_Database(prova.Percorso() + "x"));
    EXPECT_FALSE(prova.DB.Aperto()) << "the failed one took its place";
}

TEST_F(System, Valori) {
    for (const QStringList& riga : Righe("A=b c|a=b c|D=uno|L''ORA=si|VUOTO=|NULLO=|MANCA=|=|L'ORA="))
        EXPECT_EQ(prova.DB.System_Leggi_Key(riga[0]), riga[1]) << qPrintable(riga[0]);
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
                "('N1', 'Solo destra ', NULL), ('N2', '  ', NULL)")};
    const Class_DBOper& db_ = prova_.DB;
};

TEST_F(Prodotti, Riga) {
    // The caller doubles the quotes.
    for (const QStringList& riga : Righe("P_1=m1.svg|P_2=|P_9=|P_l''olio=olio.svg|P_l'olio="))
        EXPECT_EQ(db_.Restituisci_NomeTavola_Prodotto(riga[0]), riga[1]) << qPrintable(riga[0]);
    EXPECT_EQ(db_.Restituisci_NomeFoto_1_Prodotto("P_1") + db_.Restituisci_NomeFoto_2_Prodotto("P_2"),
              "f1.jpgf2.jpg");
    EXPECT_EQ(db_.Restituisci_KeyAssociazione_Prodotto("p_1"), "A1");
}

TEST_F(Prodotti, EsistenzaDellaTavola) {
    // NULL counts as yes.
    for (const QStringList& riga : Righe("P_1=1|P_2=1|P_3=0|P_l''olio=0|P_9=0"))
        EXPECT_EQ(db_.Restituisci_Esistenza_Tavola_Prodotto(riga[0]), riga[1] == "1") << qPrintable(riga[0]);
}

TEST_F(Prodotti, Nomi) {
    EXPECT_EQ(db_.Restituisci_Descrizione_Root_albero(), "Radice");
    // NULL gives the key; 12 is no column.
    for (const QStringList& riga : Righe("P_1=12=|P_1=2=P_1|P_3=2=|P_9=1=|P_1=1= Motore "))
        EXPECT_EQ(db_.Restituisci_Traduzione_Prodotto(riga[0], riga[1]), riga[2])
            << qPrintable(riga.join(' '));
    EXPECT_EQ(db_.Restituisci_NomeProdotto_Tradotto("P_1", "1"), "Motore");
    EXPECT_EQ(db_.Restituisci_NomeProdotto_Tradotto("P_1", "2"), "");
}

TEST_F(Prodotti, TraduzioniENote) {
    EXPECT_EQ(db_.Restituisci_Descrizione_Tradotta("P_1", "1"), "Motore diesel");
    EXPECT_EQ(db_.Restituisci_Matricola_Tradotta("P_1", "1"), "M-1");
    for (const QStringList& riga : Righe("P_1=1= nota |P_2=1=|P_1=12="))
        EXPECT_EQ(db_.Restituisci_Nota_Tradotta(riga[0], riga[1]), riga[2]) << qPrintable(riga.join(' '));
    for (const QStringList& riga : Righe("N1=1=Solo destra |N1=2=N1|N2=1=N2|N9=1=N9|=1=|N1=12="))
        EXPECT_EQ(db_.Restituisci_Traduzioni_Nota_Componenti_Mappe(riga[0], riga[1]), riga[2])
            << qPrintable(riga.join(' '));
}

TEST_F(Prodotti, KeyVirtualeECrossReference) {
    for (const QStringList& riga : Righe("A2=G_2=P_3|A2=R=A2|A'2=R="))
        EXPECT_EQ(db_.Restituisci_Prodotto_KeyVirtuale(riga[0], riga[1]), riga[2]) << qPrintable(riga[0]);
    for (const QStringList& riga : Righe("10=PRODOTTO#$#P_2|11=|12=SOTTO_PRODOTTO#$#A2|13=P##P_3|14=|15="))
        EXPECT_EQ(db_.Restituisci_KeyProdotto_Cross_Reference(riga[0], "1", "A1"), riga[1])
            << qPrintable(riga[0]);
}

class Componenti : public testing::Test {
  protected:
    Database_Di_Prova prova_{
        Tabella("Struttura_Componenti",
                "Nome_Colonna_Tabella Titolo_Colonna Visualizzato Ordine Indice_Primario Key_Lingua "
                "Key_Mercato Key_Gruppo Tipo_Colonna Size",
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
};

TEST_F(Componenti, ColonnaPrimaria) {
    EXPECT_EQ(db_.Restituisci_NomeReale_Colonna(), "Campo01") << "hidden columns don't count";
    EXPECT_EQ(db_.Restituisci_Numero_Colonna_Primaria_Distinta("", "", ""), 0) << "Campo02 is out";
    EXPECT_EQ(db_.Restituisci_Numero_Colonna_Primaria_Distinta("/2/", "", ""), 1);
}

TEST_F(Componenti, Codici) {
    // In order, without the NULL code; a reference also taken as a code; market 3 is not 13.
    for (const QStringList& riga :
         Righe("10=3=0=/C1/C2/|10=4=0=/C1/|10=3=2=/C2/|C2=3=0=/C2/|11=3=0=|99=3=0=|1'0=3=0=")) {
        QString codici = "vecchio";
        db_.Restituisci_Codice_Componente("P_1", riga[0], riga[1], riga[2].toInt(), codici);
        EXPECT_EQ(codici.replace('|', '/'), riga[3]) << qPrintable(riga.join(' '));
    }
}

TEST_F(Componenti, Quantita) {
    // Of C1 only NULL is there; without a code the first that isn't NULL counts; an empty text isn't NULL, so
    // it is the answer for C4; under 99, and where the market hides the row, the quantity column of the
    // master answers.
    for (const QStringList& riga :
         Righe("C2=10==4|C1=10==1|=10==4|C4=12==|C1=99==6|C2=99==1|C9=99==1|C2=10=4=1")) {
        QString quantita = "vecchia";
        db_.Restituisci_Quantita_Componente("P_1", riga[0], riga[1], {"", riga[2], "", ""}, quantita);
        EXPECT_EQ(quantita, riga[3]) << qPrintable(riga.join(' '));
    }
}

TEST(ColonnaPrimaria, SiValeNelleRicercheENonNellaTabella) {
    Database_Di_Prova prova(
        Tabella("Struttura_Componenti",
                "Nome_Colonna_Tabella Visualizzato Ordine Indice_Primario Key_Lingua Key_Mercato Key_Gruppo "
                "Titolo_Colonna",
                "('Campo01', 'Yes', 1, 'SI', '', '', '', ''), ('Campo02', 'Yes', 2, 'Si', '', '', '', '')") +
        Tabella("Componenti", "Campo01 Campo02"));
    EXPECT_EQ(prova.DB.Restituisci_NomeReale_Colonna(), "Campo02");
    EXPECT_EQ(prova.DB.Restituisci_Numero_Colonna_Primaria_Distinta("", "", ""), 1);
    EXPECT_EQ(prova.DB.Recordset_Componenti("").Count(), 2) << "no column for the code beside the table's";
}

}  // namespace

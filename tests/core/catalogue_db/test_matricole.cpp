#include <gmock/gmock.h>

#include "database_di_prova.h"

namespace {

class Matricole : public testing::Test {
  protected:
    Database_Di_Prova prova_{
        Tabella("Matricola_Nodo",
                "Key_Prodotto Matricola Min_Matricola Max_Matricola Min_Matricola_n Max_Matricola_n",
                R"(('P_1', NULL, '100', '200', 100, 200), ('P_2', 'A12', NULL, NULL, NULL, NULL),
                   ('p_3', NULL, 'A10', 'B20', NULL, NULL), ('P_4', '15', '1', '2', 900, 999),
                   ('P_4', '77', NULL, NULL, NULL, NULL), (NULL, '77', NULL, NULL, NULL, NULL),
                   ('G_È', '77', NULL, NULL, NULL, NULL), ('P_l''olio', '77', NULL, NULL, NULL, NULL))")};
    const Class_DBOper& db_ = prova_.DB;
};

TEST_F(Matricole, SiConfrontanoComeTesti) {
    EXPECT_TRUE(db_.Matricola_Valida_Prodotto("P_9", "")) << "no serial: every product";
    EXPECT_TRUE(db_.Matricola_Valida_Prodotto("", "A12")) << "any product";
    // As a text 1999 lies between 100 and 200; the numeric columns decide nothing.
    for (const QStringList& riga :
         Righe("P_1=1999=1|P_4=15=1|P_4=950=0|P_1=99=0|P_1=3e99=0|P_2=a12=1|P_3=b1=1|P_3=C=0"))
        EXPECT_EQ(db_.Matricola_Valida_Prodotto(riga[0], riga[1]), riga[2] == "1")
            << qPrintable(riga.join(' '));
    EXPECT_THROW(db_.Matricola_Valida_Prodotto("P_1", "l'a"), Errore_DB);
}

TEST_F(Matricole, LaFormaInUnPassoDiceLoStesso) {
    const QStringList prodotti{"P_1", "P_2", "P_3", "P_4", "p_4", "G_È", "g_è", "P_l'olio", "P_9"};
    for (const char* matricola :
         {"150", "1999", "15", "950", "99", "A12", "a12", "b1", "77", "0", "zz", " 15"}) {
        const auto trovati = db_.Prodotti_Con_Matricola(matricola);
        for (const QString& prodotto : prodotti)
            EXPECT_EQ(trovati.contains(Class_DBOper::Chiave_Senza_Maiuscole(prodotto)),
                      db_.Matricola_Valida_Prodotto(QString(prodotto).replace("'", "''"), matricola))
                << matricola << " " << prodotto.toStdString();
    }
    EXPECT_EQ(db_.Prodotti_Con_Matricola("77").size(), 3);
}

TEST(MatricoleMancanti, LErroreEDiChiChiede) {
    Database_Di_Prova prova(Tabella("T", "a"));
    EXPECT_THROW(prova.DB.Matricola_Valida_Prodotto("P_1", "1"), Errore_DB);
    EXPECT_THROW(prova.DB.Prodotti_Con_Matricola("1"), Errore_DB);
}

}  // namespace

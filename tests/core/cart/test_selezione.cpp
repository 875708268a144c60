#include <gmock/gmock.h>

#include "../base/righe.h"
#include "core/cart/selezione.h"
#include "support/fakes.h"

namespace {

TEST(Selezione, KeysOfLines) {
    for (const auto& [riferimento, chiave] : {std::pair("", "A"), {"-", "A-A"}, {"12", "A-12"}, {"A", "A-A"}})
        EXPECT_EQ(Chiave_Elenco(riferimento, "A"), chiave) << riferimento;
}

TEST(Selezione, EntriesOfLinkedCodes) {
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    const Numeri numeri(sistema, messaggi);
    // Entry, code and factor.
    for (const QStringList& riga :
         Righe("A§2=A=2|A=A=0| A § 2 =A=2|A§2.5=A=2.5|A§2,5=A=2.5|==0|§3==3|A§=A=0|A§0,1=A=0.1|"
               "A§due=A=0|A B§-1=A B=-1|A§1§9=A=1|A§1E9=A=1000000000")) {
        EXPECT_EQ(Codice_Da_Memo(riga[0]), riga[1]) << qPrintable(riga[0]);
        EXPECT_EQ(Quantita_Da_Memo(riga[0], numeri), QString(riga[2]).replace('.', ','))
            << qPrintable(riga[0]);
        EXPECT_EQ(Fattore_Da_Memo(riga[0], numeri), riga[2].toDouble()) << qPrintable(riga[0]);
    }
}

TEST(Selezione, FindsLinesByProductAndKey) {
    Collection_Prodotti_Sele prodotti;
    prodotti.Add("P_2");
    prodotti.Add("P_1").Collection_Elenco_Selezionati().Add("A-1").Quantita = 3;
    EXPECT_THROW(prodotti.Add("P_1"), Errore_Collezione);
    EXPECT_EQ(Cerca_Riga(prodotti, "P_1", "A-1")->Quantita, 3);
    for (const auto& [prodotto, chiave] : {std::pair("P_1", "A-2"), {"p_1", "A-1"}, {"P_3", "A-1"}})
        EXPECT_EQ(Cerca_Riga(prodotti, prodotto, chiave), nullptr) << prodotto << ' ' << chiave;
    prodotti.Item("P_1").Collection_Elenco_Selezionati().Remove("A-1");
    EXPECT_TRUE(prodotti.Esiste("P_1")) << "a product stays without lines";
}

}  // namespace

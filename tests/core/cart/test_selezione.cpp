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

}  // namespace

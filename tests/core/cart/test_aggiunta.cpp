#include <gmock/gmock.h>

#include "../base/righe.h"
#include "core/cart/modifica.h"
#include "support/catalogo_aperto.h"
#include "support/ordini_di_prova.h"
#include "tavola_finta.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Adding to the store, over the catalogue of the worked orders.
class Aggiunta : public testing::Test {
  protected:
    /// The lines of the product: key, quantity, name on the drawing, reference.
    QStringList Righe() const {
        QStringList righe;
        if (selezionati.Esiste("P_1"))
            for (const Class_Elenco& riga : selezionati.Item("P_1").Collection_Elenco_Selezionati())
                righe += riga.Key + QString(" %1 ").arg(riga.Quantita) + riga.Chiave_Grafica + ' ' +
                         riga.Riferimento;
        return righe;
    }

    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Numeri numeri{sistema, messaggi};
    Catalogo_Aperto aperto{Catalogo_Ordini(Variante::Libera)};
    Collection_Prodotti_Sele selezionati;
    Aggiunta_Carrello carrello{aperto.DB, numeri, {"1", "1", "", ""}, selezionati};
};

TEST_F(Aggiunta, FindsTheObjectUnderOneOfThreeNames) {
    // The objects of the drawing, code, reference, the line, the object painted.
    for (const QStringList& caso : ::Righe(R"(1 CODICI#$#1=A=1=A-1 1 1 1=1
|CODICI#$#1 ASSOCIAZIONE#$#1=A=1=A-1 1 CODICI#$#1 1=CODICI#$#1|2=A=1=A-1 1 1 1=|W=W=-=W-W 1 W W=W
|CODICI#$#W=W=-=W-W 1 CODICI#$#W W=CODICI#$#W|=W=CODICI#$#W==|=A=##7==|=A=NOTO#$#7=A-7 1 NOTO#$#7 7=)")) {
        while (selezionati.Count() > 0)
            selezionati.Remove(1);
        Tavola_Finta tavola(caso[0].split(' '));
        carrello.Aggiungi_Componente_Carrello_Evidenzia_Tavola(tavola, "P_1", caso[1], caso[2]);
        EXPECT_EQ(Righe().join('+'), caso[3]) << qPrintable(caso.join('='));
        EXPECT_EQ(QStringList(tavola.Colori.keys()).join(' '), caso[4]) << qPrintable(caso.join('='));
    }
}

TEST_F(Aggiunta, OfSeveralComponentsTheUserChoosesAndAnObjectOfACodeLooksForCodesOnly) {
    std::optional<Componente_Scelto> scelto;
    QString chiesto;
    const auto scegli = [&](const QString& riferimento) {
        chiesto += riferimento;
        return scelto;
    };
    EXPECT_FALSE(carrello.Aggiungi_Da_Tavola("ASSOCIAZIONE#$#40", "P_1", "40", scegli));
    // Reference 1 has a row of kind 2 only.
    for (const char* nome : {"CODICI#$#1", "ASSOCIAZIONE#$#1", "ALTRO#$#1"})
        EXPECT_TRUE(carrello.Aggiungi_Da_Tavola(nome, "P_1", "1", scegli)) << nome;
    EXPECT_TRUE(carrello.Aggiungi_Da_Tavola("x'y", "P_1", "x'y", scegli));
    EXPECT_EQ(chiesto, "40");
    for (const auto& quale : {Componente_Scelto{"B", "40"}, {"W", "-"}}) {
        scelto = quale;
        EXPECT_TRUE(carrello.Aggiungi_Da_Tavola("ASSOCIAZIONE#$#40", "P_1", "40", scegli));
    }
    EXPECT_THAT(Righe(), ElementsAre("NO_CODE-1 1 CODICI#$#1 1", "A-1 2 ALTRO#$#1 1", "NO_CODE-x'y 1 x'y x'y",
                                     "B-40 1 40 40", "W-W 1 W W"));
}

TEST_F(Aggiunta, RemovingTakesTheColourUnlessAnotherCodeHasTheObject) {
    Tavola_Finta tavola({"40", "1"});
    for (const char* codice : {"A", "B"})
        carrello.Aggiungi_Componente_Carrello_Evidenzia_Tavola(tavola, "P_1", codice, "40");
    carrello.Aggiungi_Componente_Carrello_Evidenzia_Tavola(tavola, "P_1", "A", "1");

    EXPECT_TRUE(Elimina_Riga(selezionati, "P_1", "A-40", tavola));
    EXPECT_THAT(tavola.Colori.keys(), ElementsAre("1", "40"));
    EXPECT_TRUE(Elimina_Riga(selezionati, "P_1", "B-40", tavola));
    EXPECT_THAT(tavola.Colori.keys(), ElementsAre("1"));
    EXPECT_FALSE(Elimina_Riga(selezionati, "P_1", "B-40", tavola));

    // The order screen leaves the drawing alone.
    EXPECT_TRUE(Elimina_Riga(selezionati, "P_1", "A-1"));
    EXPECT_THAT(tavola.Colori.keys(), ElementsAre("1"));
    EXPECT_THAT(Righe(), IsEmpty());
}

TEST_F(Aggiunta, AFailedQuantityStaysAsItWas) {
    Catalogo_Aperto obbligato(Catalogo_Ordini(Variante::Obbligata));
    const Aggiunta_Carrello altro{obbligato.DB, numeri, {"1", "1", "", ""}, selezionati};
    altro.Aggiungi_Componente_Carrello("P_1", "Z", "10");
    EXPECT_THROW(Modifica_Quantita(altro, "P_1", "Z-10", "4"), std::domain_error);
    EXPECT_FALSE(Modifica_Quantita(altro, "P_1", "Z-10", "0"));
    EXPECT_TRUE(Modifica_Quantita(altro, "P_1", "Z-10", "-4"));
    EXPECT_THAT(Righe(), ElementsAre("Z-10 0 10 10"));
    altro.Aggiungi_Componente_Carrello("P_1", "ENORME", "1");
    EXPECT_THAT(Righe().at(1), "ENORME-1 1 1 1");
    EXPECT_THROW(Modifica_Quantita(altro, "P_1", "ENORME-1", "1E10"), std::overflow_error);
}

}  // namespace

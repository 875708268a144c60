#include <gmock/gmock.h>

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
                righe += QString("%1 %2 %3 %4")
                             .arg(riga.Key)
                             .arg(riga.Quantita)
                             .arg(riga.Chiave_Grafica, riga.Riferimento);
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
    struct Caso {
        QStringList oggetti;
        const char *codice, *riferimento, *riga;
        QStringList dipinti;
    };
    const Caso casi[] = {{{"1", "CODICI#$#1"}, "A", "1", "A-1 1 1 1", {"1"}},
                         {{"CODICI#$#1", "ASSOCIAZIONE#$#1"}, "A", "1", "A-1 1 CODICI#$#1 1", {"CODICI#$#1"}},
                         {{"ASSOCIAZIONE#$#1"}, "A", "1", "A-1 1 ASSOCIAZIONE#$#1 1", {"ASSOCIAZIONE#$#1"}},
                         {{"2"}, "A", "1", "A-1 1 1 1", {}},
                         {{"CODICI#$#W"}, "W", "-", "W-W 1 CODICI#$#W W", {"CODICI#$#W"}},
                         {{"W"}, "W", "-", "W-W 1 W W", {"W"}},
                         {{"CODICI#$#W"}, "W", "CODICI#$#W", "W-W 1 CODICI#$#W W", {"CODICI#$#W"}},
                         {{}, "W", "CODICI#$#W", "", {}},
                         {{}, "A", "##7", "", {}},
                         {{}, "A", "NOTO#$#7", "A-7 1 NOTO#$#7 7", {}}};
    for (const Caso& caso : casi) {
        while (selezionati.Count() > 0)
            selezionati.Remove(1);
        Tavola_Finta tavola(caso.oggetti);
        carrello.Aggiungi_Componente_Carrello_Evidenzia_Tavola(tavola, "P_1", caso.codice, caso.riferimento);
        EXPECT_EQ(Righe().join('+'), caso.riga) << caso.riferimento;
        EXPECT_EQ(tavola.Colori.keys(), caso.dipinti) << caso.riferimento;
    }
    Tavola_Finta tavola;
    carrello.Aggiungi_Componente_Carrello_Evidenzia_Tavola(tavola, "P_1", "A", "1");
    EXPECT_THAT(tavola.Chiamate, ElementsAre("blu 1", "blu CODICI#$#1", "blu ASSOCIAZIONE#$#1"));
}

TEST_F(Aggiunta, ALaterAddMovesTheLineToItsObject) {
    carrello.Aggiungi_Componente_Carrello("P_1", "A", "1");
    carrello.Aggiungi_Componente_Carrello("P_1", "A", "ASSOCIAZIONE#$#1");
    EXPECT_THAT(Righe(), ElementsAre("A-1 2 ASSOCIAZIONE#$#1 1"));
}

TEST_F(Aggiunta, AsksWhichOfSeveralComponents) {
    QStringList chieste;
    const auto scegli = [&](bool esito) {
        return [&chieste, esito](const QString& chiave, const QString& prodotto, const QString& riferimento) {
            chieste += chiave + ' ' + prodotto + ' ' + riferimento;
            return esito;
        };
    };
    EXPECT_TRUE(carrello.Aggiungi_Da_Tavola("ASSOCIAZIONE#$#40", "P_1", "40", scegli(true)));
    EXPECT_FALSE(carrello.Aggiungi_Da_Tavola("40", "P_1", "40", scegli(false)));
    EXPECT_THAT(chieste, ElementsAre("ASSOCIAZIONE#$#40 P_1 40", "40 P_1 40"));
    EXPECT_THAT(Righe(), IsEmpty());

    carrello.Aggiungi_Da_Selezione("P_1", "B", "40");
    carrello.Aggiungi_Da_Selezione("P_1", "W", "-");
    EXPECT_THAT(Righe(), ElementsAre("B-40 1 40 40", "W-W 1 W W"));
}

TEST_F(Aggiunta, AnObjectOfACodeLooksForCodesOnly) {
    const auto mai = [](const QString&, const QString&, const QString&) {
        ADD_FAILURE();
        return false;
    };
    // Reference 1 has a row of kind 2 only.
    EXPECT_TRUE(carrello.Aggiungi_Da_Tavola("CODICI#$#1", "P_1", "1", mai));
    EXPECT_TRUE(carrello.Aggiungi_Da_Tavola("ASSOCIAZIONE#$#1", "P_1", "1", mai));
    EXPECT_TRUE(carrello.Aggiungi_Da_Tavola("ALTRO#$#1", "P_1", "1", mai));
    EXPECT_TRUE(carrello.Aggiungi_Da_Tavola("x'y", "P_1", "x'y", mai));
    EXPECT_FALSE(carrello.Aggiungi_Da_Tavola("  ", "P_1", "1", mai));
    EXPECT_THAT(Righe(),
                ElementsAre("NO_CODE-1 1 CODICI#$#1 1", "A-1 2 ALTRO#$#1 1", "NO_CODE-x'y 1 x'y x'y"));
}

TEST_F(Aggiunta, RemovingTakesTheColourUnlessAnotherCodeHasTheObject) {
    Tavola_Finta tavola({"40", "1"});
    for (const char* codice : {"A", "B"})
        carrello.Aggiungi_Componente_Carrello_Evidenzia_Tavola(tavola, "P_1", codice, "40");
    carrello.Aggiungi_Componente_Carrello_Evidenzia_Tavola(tavola, "P_1", "A", "1");
    tavola.Chiamate.clear();

    EXPECT_TRUE(Elimina_Riga(selezionati, "P_1", "A-40", tavola));
    EXPECT_THAT(tavola.Chiamate, ElementsAre("blu 40", "blu 1"));
    EXPECT_THAT(tavola.Colori.keys(), ElementsAre("1", "40"));
    tavola.Chiamate.clear();
    EXPECT_TRUE(Elimina_Riga(selezionati, "P_1", "B-40", tavola));
    EXPECT_THAT(tavola.Chiamate, ElementsAre("via 40", "blu 1"));
    EXPECT_THAT(tavola.Colori.keys(), ElementsAre("1"));
    EXPECT_FALSE(Elimina_Riga(selezionati, "P_1", "B-40", tavola));

    // The order screen leaves the drawing alone.
    EXPECT_TRUE(Elimina_Riga(selezionati, "P_1", "A-1"));
    EXPECT_THAT(tavola.Colori.keys(), ElementsAre("1"));
    EXPECT_TRUE(selezionati.Esiste("P_1"));
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

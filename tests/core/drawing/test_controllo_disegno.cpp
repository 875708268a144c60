// Highlights, links and the canvas's events.

#include "pagina_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Disegno : public Con_Disegno {
  protected:
    Disegno() {
        catalogo.Nodo("G_1", "R", "Gruppo")
            .Prodotto("P_1", "G_1", "Pompa")
            .Prodotto("P_2", "G_1", "Valvola")
            .Nodo("P_3", "G_1", std::nullopt)
            .Nodo("P_d'4", "G_1", std::nullopt);
        Nodo_Visibile& gruppo = albero.Add(nullptr, "G_1", "");
        for (const char* key : {"P_1", "P_2"})
            albero.Add(&gruppo, key, "");
        Apri();
    }
    bool Click(const QString& stringa) { return lavagna.Evento.Click_Su_HotSpot("id", stringa); }
    void Entra(const QString& stringa) { lavagna.Evento.Mouse_Su_HotSpot(0, "id", stringa); }
    void Esci(const QString& stringa) { lavagna.Evento.Mouse_Su_HotSpot(1, "id", stringa); }
    void Muovi_Fuori() { lavagna.Evento.Mouse_Fuori(0, 0, 10, 20); }

    /// How the canvas is asked to light the three names of a component.
    static Diario Tre_Nomi(const QString& come, const QString& key) {
        return {come + ' ' + key + " ff00", come + " CODICI#$#" + key + " ff00",
                come + " ASSOCIAZIONE#$#" + key + " ff00"};
    }
};

TEST_F(Disegno, ARowLightsItsComponentUnderAnyNameElseItsCode) {
    disegno->Evidenzia_Componente_Grafico("P_1", "C1", "123");
    EXPECT_EQ(Fatto(), Diario{"Azzera_Evidenziazione "} + Tre_Nomi("Colora_HotSpot", "123"));
    disegno->Evidenzia_Componente_Grafico("P_1", "C1", "-");
    EXPECT_EQ(Fatto().mid(1), Tre_Nomi("Colora_HotSpot", "C1"));
    disegno->Evidenzia_Componente_Grafico("P_1", "C1", "CODICI#$#C1");
    EXPECT_THAT(Fatto().mid(1), ElementsAre("Colora_HotSpot CODICI#$#C1 ff00"));
}

TEST_F(Disegno, WhatTheCartHoldsIsLitForTheMomentOnly) {
    lavagna.stati["3"].segnato = true;
    for (const char* riga : {"C1-1", "C5-C5"})
        (selezionati.Esiste("P_1") ? selezionati.Item("P_1") : selezionati.Add("P_1"))
            .Collection_Elenco_Selezionati()
            .Add(riga);
    // Product on show (it decides, not the one that the row names), code, reference, whether the colour
    // lasts.
    const std::tuple<const char*, const char*, const char*, bool> casi[] = {
        {"P_1", "C1", "1", false},
        {"P_1", "C5", "-", false},  // in the cart
        {"P_1", "C2", "2", true},   // not in it, not marked
        {"P_1", "C3", "3", false},  // not in it, marked
        {"P_2", "C1", "1", true}};  // no record of the product
    for (const auto& [corrente, codice, riferimento, fisso] : casi) {
        schermo.Corrente = corrente;
        disegno->Evidenzia_Componente_Grafico("P_1", codice, riferimento);
        EXPECT_EQ(Fatto().filter(fisso ? "Colora_HotSpot" : "Evidenzia_HotSpot").size(), 3)
            << corrente << codice;
    }
}

TEST_F(Disegno, OneRowIsLitAtATimeUntilTheMouseMoves) {
    const auto verdi = [&] {
        QStringList nomi;
        for (const auto& [nome, stato] : lavagna.stati.asKeyValueRange())
            if (stato.colore)
                nomi << nome;
        return nomi;
    };
    lavagna.stati = {{"1", {}}, {"2", {}}, {"3", {true, BLU, {}}}};
    for (const char* riferimento : {"1", "2"}) {
        disegno->Evidenzia_Componente_Grafico("P_1", "C", riferimento);
        EXPECT_THAT(verdi(), ElementsAre(riferimento, "3"));
    }
    Muovi_Fuori();
    EXPECT_THAT(verdi(), ElementsAre("3"));
}

TEST_F(Disegno, UncolouringTakesOffTheMarkToo) {
    Lavagna_Finta::Stato& stato = lavagna.stati["CODICI#$#9"];
    stato.segnato = true;
    stato.colore = BLU;
    disegno->Decolora_componente_in_tavola_grafica("9");
    EXPECT_THAT(Fatto(), ElementsAre("Decolora_HotSpot 9", "Togli_Segno_HotSpot CODICI#$#9",
                                     "Decolora_HotSpot CODICI#$#9", "Decolora_HotSpot ASSOCIAZIONE#$#9"));
    EXPECT_FALSE(stato.segnato || stato.colore);
}

TEST_F(Disegno, TheNextMovementEndsAHighlightOnce) {
    Muovi_Fuori();
    EXPECT_THAT(Fatto(), IsEmpty());  // nothing stands on the drawing
    disegno->Evidenzia_componente_in_tavola_grafica("1", false);
    Fatto();
    Muovi_Fuori();
    Muovi_Fuori();
    EXPECT_THAT(Fatto(), ElementsAre("Azzera_Evidenziazione "));
    disegno->Segna_Evidenziazione_Transitoria();
    Esci("2");
    EXPECT_THAT(Fatto(), ElementsAre("Pannello ", "Azzera_Evidenziazione "));
}

TEST_F(Disegno, HoveringALinkTellsWhereItLeads) {
    const std::pair<QString, QString> casi[] = {
        {"P_2", "Valvola"},
        {"P_3", "P_3"},  // a product without a name in this language
        {"P_d'4", "P_d'4"},
        {"P_9", ""},  // one that isn't in the catalogue
    };
    for (const auto& [key, nome] : casi) {
        EXPECT_EQ(lavagna.Evento.Suggerimento("PRODOTTO#$#" + key), nome);
        Entra("PRODOTTO#$#" + key);
        EXPECT_EQ(Fatto(),
                  (Diario{"Evidenzia_HotSpot PRODOTTO#$#" + key + " ff00", "Pannello Link a : " + nome}));
    }
}

TEST_F(Disegno, HoveringAComponentMarksItsRows) {
    EXPECT_EQ(lavagna.Evento.Suggerimento("CODICI#$#C7"), "C7");
    Entra("CODICI#$#C7");
    EXPECT_THAT(Fatto(), ElementsAre("Evidenzia_HotSpot CODICI#$#C7 ff00", "Pannello ", "Riga C7"));
    Entra("7");
    EXPECT_EQ(Fatto(), Tre_Nomi("Evidenzia_HotSpot", "7") + Diario({"Pannello ", "Riga 7"}));
    lavagna.Evento.Mouse_Su_HotSpot(0, "  ", "PRODOTTO#$#P_2");  // one without a name
    EXPECT_THAT(Fatto(), ElementsAre("Pannello "));
}

TEST_F(Disegno, ALinkIsFollowed) {
    EXPECT_TRUE(Click("PRODOTTO#$#P_2"));
    EXPECT_THAT(Fatto(),
                ElementsAre("Ferma_Azione", "Nodo P_2", "Disegno P_2", "Toolbar", "Azzera_Evidenziazione "));
}

TEST_F(Disegno, AComponentGoesToTheCartAndIsBlueThen) {
    const std::pair<QString, QString> casi[] = {
        {"CODICI#$#C7", "C7"},
        {"12", "12"},
        {"PRODOTTO#$#P_3", "P_3"},      // hidden by the filters
        {"SOTTO_PRODOTTO#$#A9", "A9"},  // found nowhere
    };
    for (const auto& [stringa, riferimento] : casi)
        for (const bool esito : {true, false}) {
            Esito = esito;
            EXPECT_EQ(Click(stringa), esito);
            // A double click is handled whatever comes of it.
            EXPECT_TRUE(lavagna.Evento.Doppio_Click_Su_HotSpot("id", stringa));
            const Diario fatto = Fatto();
            EXPECT_EQ(fatto.count("Aggiungi " + stringa + " P_1 " + riferimento), 2);
            EXPECT_EQ(fatto.count("Colora_HotSpot " + stringa + " ff"), esito ? 2 : 0);
        }
    EXPECT_FALSE(Click("   "));  // a blank one does nothing
    EXPECT_THAT(Fatto(), IsEmpty());
}

}  // namespace

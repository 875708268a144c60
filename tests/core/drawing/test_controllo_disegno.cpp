// Highlights, links and the canvas's events.

#include "pagina_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Disegno : public Con_Disegno {
  protected:
    void SetUp() override {
        catalogo.Nodo("G_1", "R", u"Gruppo"_qs)
            .Prodotto("P_1", "G_1", "Pompa")
            .Prodotto("P_2", "G_1", "Valvola")
            .Nodo("P_3", "G_1", std::nullopt)
            .Nodo("P_d'4", "G_1", std::nullopt);
        pagina.Nodi = {u"G_1"_qs, u"P_1"_qs, u"P_2"_qs};
        Apri();
    }
    bool Click(const QString& stringa) { return lavagna.Evento.Click_Su_HotSpot(u"id"_qs, stringa); }
    void Entra(const QString& stringa) { lavagna.Evento.Mouse_Su_HotSpot(0, u"id"_qs, stringa); }
    void Esci(const QString& stringa) { lavagna.Evento.Mouse_Su_HotSpot(1, u"id"_qs, stringa); }
    void Muovi_Fuori() { lavagna.Evento.Mouse_Fuori(0, 0, 10, 20); }

    /// How the canvas is asked to light the three names of a component.
    static Diario Tre_Nomi(const QString& come, const QString& key) {
        return {u"%1 %2 ff00"_qs.arg(come, key), u"%1 CODICI#$#%2 ff00"_qs.arg(come, key),
                u"%1 ASSOCIAZIONE#$#%2 ff00"_qs.arg(come, key)};
    }
};

// --- highlights

TEST_F(Disegno, ARowLightsItsComponentUnderAnyName) {
    lavagna.stati[u"CODICI#$#123"_qs] = {};
    disegno->Evidenzia_Componente_Grafico(u"P_1"_qs, u"C1"_qs, u"123"_qs);
    EXPECT_EQ(Fatto(), Diario{u"Azzera_Evidenziazione "_qs} + Tre_Nomi(u"Colora_HotSpot"_qs, u"123"_qs));
    EXPECT_EQ(lavagna.stati[u"CODICI#$#123"_qs].colore, VERDE);
}

TEST_F(Disegno, ARowWithoutAReferenceLightsItsCode) {
    disegno->Evidenzia_Componente_Grafico(u"P_1"_qs, u"C1"_qs, u"-"_qs);
    EXPECT_EQ(Fatto().mid(1), Tre_Nomi(u"Colora_HotSpot"_qs, u"C1"_qs));
    disegno->Evidenzia_Componente_Grafico(u"P_1"_qs, u"C1"_qs, u"CODICI#$#C1"_qs);
    EXPECT_THAT(Fatto().mid(1), ElementsAre(u"Colora_HotSpot CODICI#$#C1 ff00"_qs));
}

TEST_F(Disegno, WhatTheCartHoldsIsLitForTheMomentOnly) {
    disegno->Collega_Carrello(&carrello);
    lavagna.stati[u"3"_qs].segnato = true;
    struct Caso {
        QString prodotto, codice, riferimento;
        bool fisso;
    };
    carrello.Prodotti = {{u"P_1"_qs, {u"C1-1"_qs, u"C5-C5"_qs}}};
    const Caso casi[] = {
        {u"P_1"_qs, u"C1"_qs, u"1"_qs, false},                                        // in the cart
        {u"P_1"_qs, u"C5"_qs, u"-"_qs, false}, {u"P_1"_qs, u"C2"_qs, u"2"_qs, true},  // not in it, not marked
        {u"P_1"_qs, u"C3"_qs, u"3"_qs, false},                                        // not in it, marked
        {u"P_2"_qs, u"C1"_qs, u"1"_qs, true},  // no record of the product
    };
    for (const Caso& caso : casi) {
        pagina.Prodotto = caso.prodotto;
        Fatto();
        disegno->Evidenzia_Componente_Grafico(caso.prodotto, caso.codice, caso.riferimento);
        EXPECT_EQ(Fatto().filter(u"Colora_HotSpot"_qs).isEmpty(), !caso.fisso)
            << caso.codice.toStdString() << ' ' << caso.riferimento.toStdString();
    }
    // The product on show decides, not the one that the row names.
    pagina.Prodotto = u"P_1"_qs;
    disegno->Evidenzia_Componente_Grafico(u"P_2"_qs, u"C1"_qs, u"1"_qs);
    EXPECT_EQ(Fatto().mid(1), Tre_Nomi(u"Evidenzia_HotSpot"_qs, u"1"_qs));
}

TEST_F(Disegno, UncolouringTakesOffTheMarkToo) {
    Lavagna_Finta::Stato& stato = lavagna.stati[u"CODICI#$#9"_qs];
    stato.segnato = true;
    stato.colore = BLU;
    disegno->Decolora_componente_in_tavola_grafica(u"9"_qs);
    EXPECT_THAT(Fatto(),
                ElementsAre(u"Decolora_HotSpot 9"_qs, u"Togli_Segno_HotSpot CODICI#$#9"_qs,
                            u"Decolora_HotSpot CODICI#$#9"_qs, u"Decolora_HotSpot ASSOCIAZIONE#$#9"_qs));
    EXPECT_FALSE(stato.segnato || stato.colore);

    disegno->Decolora_componente_in_tavola_grafica(u"CODICI#$#9"_qs);
    EXPECT_THAT(Fatto(), ElementsAre(u"Decolora_HotSpot CODICI#$#9"_qs));
}

TEST_F(Disegno, TheCartIsSeenOnANewlyShownDrawing) {
    disegno->Ricolora_Selezionati(u"P_1"_qs);  // no cart yet
    EXPECT_THAT(Fatto(), IsEmpty());
    disegno->Collega_Carrello(&carrello);
    carrello.Grafiche = {{u"P_1"_qs, {u"CODICI#$#2"_qs, u"1"_qs}}};
    disegno->Ricolora_Selezionati(u"P_1"_qs);
    EXPECT_THAT(Fatto(), ElementsAre(u"Segna_HotSpot CODICI#$#2"_qs, u"Colora_HotSpot CODICI#$#2 ff"_qs,
                                     u"Segna_HotSpot 1"_qs, u"Colora_HotSpot 1 ff"_qs));
    disegno->Ricolora_Selezionati(u"P_2"_qs);
    EXPECT_THAT(Fatto(), IsEmpty());
}

TEST_F(Disegno, TheNextMovementEndsAHighlightOnce) {
    Muovi_Fuori();
    EXPECT_THAT(Fatto(), IsEmpty());  // nothing stands on the drawing

    const std::function<void()> accendi[] = {
        [this] { disegno->Evidenzia_componente_in_tavola_grafica(u"1"_qs, false); },
        [this] { disegno->Evidenzia_componente_in_tavola_grafica(u"1"_qs, true); },
        [this] { disegno->Segna_Evidenziazione_Transitoria(); },
    };
    for (const auto& fai : accendi) {
        fai();
        Fatto();
        Muovi_Fuori();
        EXPECT_THAT(Fatto(), ElementsAre(u"Azzera_Evidenziazione "_qs));
        Muovi_Fuori();
        EXPECT_THAT(Fatto(), IsEmpty());
        fai();
        Fatto();
        Esci(u"2"_qs);
        EXPECT_THAT(Fatto(), ElementsAre(u"Pulisci"_qs, u"Azzera_Evidenziazione "_qs));
        Esci(u"2"_qs);
        EXPECT_THAT(Fatto(), ElementsAre(u"Pulisci"_qs));
    }
}

// --- hovering

TEST_F(Disegno, HoveringALinkTellsWhereItLeads) {
    struct Caso {
        QString stringa, nome;
    };
    const Caso casi[] = {
        {u"PRODOTTO#$#P_2"_qs, u"Valvola"_qs},
        {u"PRODOTTO#$#P_3"_qs, u"P_3"_qs},  // a product without a name in this language
        {u"PRODOTTO#$#P_d'4"_qs, u"P_d'4"_qs},
        {u"PRODOTTO#$#P_9"_qs, u""_qs},  // one that isn't in the catalogue
    };
    for (const Caso& caso : casi) {
        Entra(caso.stringa);
        EXPECT_THAT(Fatto(), ElementsAre(u"Evidenzia_HotSpot %1 ff00"_qs.arg(caso.stringa),
                                         u"Pannello Link a : "_qs + caso.nome));
        Esci(caso.stringa);
        EXPECT_THAT(Fatto(), ElementsAre(u"Pulisci"_qs, u"Azzera_Evidenziazione "_qs));
    }
}

TEST_F(Disegno, HoveringAComponentMarksItsRows) {
    Entra(u"CODICI#$#C7"_qs);
    EXPECT_THAT(Fatto(), ElementsAre(u"Evidenzia_HotSpot CODICI#$#C7 ff00"_qs, u"Pulisci"_qs, u"Riga C7"_qs));
    Entra(u"7"_qs);
    EXPECT_EQ(Fatto(), Tre_Nomi(u"Evidenzia_HotSpot"_qs, u"7"_qs) + Diario({u"Pulisci"_qs, u"Riga 7"_qs}));
}

TEST_F(Disegno, TheDetailWindowFollowsTheMouseWhileItIsUp) {
    disegno->Collega_Dettaglio(&dettaglio);
    Entra(u"PRODOTTO#$#P_2"_qs);
    EXPECT_THAT(Fatto().mid(1), ElementsAre(u"Pannello Link a : Valvola"_qs, u"Dettaglio PRODOTTO#$#P_2"_qs,
                                            u"Banda Link a : Valvola"_qs));
    Entra(u"CODICI#$#C7"_qs);
    EXPECT_THAT(Fatto().mid(1), ElementsAre(u"Pulisci"_qs, u"Dettaglio C7"_qs, u"Riga C7"_qs));
    disegno->Collega_Dettaglio(nullptr);
    Entra(u"CODICI#$#C7"_qs);
    EXPECT_THAT(Fatto().mid(1), ElementsAre(u"Pulisci"_qs, u"Riga C7"_qs));
}

TEST_F(Disegno, AnObjectWithoutANameOnlyBlanksTheHelpLine) {
    for (const qint16 stato : {0, 1}) {
        disegno->Segna_Evidenziazione_Transitoria();
        lavagna.Evento.Mouse_Su_HotSpot(stato, u"  "_qs, u"PRODOTTO#$#P_2"_qs);
        EXPECT_THAT(Fatto(), ElementsAre(u"Pulisci"_qs));
    }
}

// --- clicks

TEST_F(Disegno, ALinkIsFollowed) {
    disegno->Collega_Carrello(&carrello);
    for (const QString& stringa : {u"PRODOTTO#$#P_2"_qs, u"vai##P_2"_qs}) {
        EXPECT_TRUE(Click(stringa));
        EXPECT_THAT(Fatto(), ElementsAre(u"Ferma_Azione"_qs, u"Nodo P_2"_qs, u"Disegno P_2"_qs, u"Toolbar"_qs,
                                         u"Azzera_Evidenziazione "_qs));
    }
}

TEST_F(Disegno, AComponentGoesToTheCart) {
    disegno->Collega_Carrello(&carrello);
    struct Caso {
        QString stringa, riferimento;
    };
    const Caso casi[] = {
        {u"CODICI#$#C7"_qs, u"C7"_qs},
        {u"12"_qs, u"12"_qs},
        {u"PRODOTTO#$#P_3"_qs, u"P_3"_qs},      // hidden by the filters
        {u"SOTTO_PRODOTTO#$#A9"_qs, u"A9"_qs},  // found nowhere
    };
    for (const Caso& caso : casi)
        for (const bool esito : {true, false}) {
            carrello.Esito = esito;
            EXPECT_EQ(Click(caso.stringa), esito);
            EXPECT_THAT(Fatto(), ElementsAre(u"Aggiungi %1 P_1 %2"_qs.arg(caso.stringa, caso.riferimento),
                                             u"Azzera_Evidenziazione "_qs));
        }
}

TEST_F(Disegno, WithoutACartAComponentIsOnlyShown) {
    EXPECT_FALSE(Click(u"CODICI#$#C7"_qs));
    EXPECT_THAT(Fatto(), ElementsAre(u"Riga C7"_qs, u"Azzera_Evidenziazione "_qs));
}

TEST_F(Disegno, ABlankHotspotDoesNothing) {
    disegno->Collega_Carrello(&carrello);
    for (const QString& stringa : {u""_qs, u"   "_qs}) {
        EXPECT_FALSE(Click(stringa));
        EXPECT_TRUE(lavagna.Evento.Doppio_Click_Su_HotSpot(u"id"_qs, stringa));
        EXPECT_THAT(Fatto(), IsEmpty());
    }
}

TEST_F(Disegno, ADoubleClickIsHandledWhateverComesOfIt) {
    disegno->Collega_Carrello(&carrello);
    carrello.Esito = false;
    EXPECT_TRUE(lavagna.Evento.Doppio_Click_Su_HotSpot(u"id"_qs, u"12"_qs));
    EXPECT_THAT(Fatto(), ElementsAre(u"Aggiungi 12 P_1 12"_qs, u"Azzera_Evidenziazione "_qs));
}

}  // namespace

// The cart among the screens: adding from the parts list and the drawing, the cart window, the order.

#include "vista_finta.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// P_1 with a drawing that names parts in each way, of which reference 4 stands for two; P_2 has no drawing.
class Carrello : public Con_Programma {
  protected:
    Carrello() {
        Catalogo_Di_Prova c;
        c.Nodo("G_1", "R", "Motore").Prodotto("P_1", "G_1", "Uno").Prodotto("P_2", "G_1", "Due");
        c.Cambia("Prodotti", 1, "Mappa_Associata", "tz1.svg").Cambia("Prodotti", 1, "Flag_2", "1");
        c.Cambia("Prodotti", 2, "Flag_2", "0").File("tz1.svg", "<svg/>");
        c.Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "R");
        for (const auto& [riferimento, codice] :
             {std::pair("1", "A"), std::pair("2", "B"), std::pair("3", "C"), std::pair("4", "D"),
              std::pair("4", "E")})
            c.Parte("P_1", riferimento, codice, codice, {{"Campo03", "10"}});
        c.Parte("P_2", "1", "A", "A");
        Apri(c);
        lavagna.documenti[progetto.Cartella_Estrazione + "tz1.svg"] = {
            {"1", "1"}, {"h2", "CODICI#$#2"}, {"4", "4"}, {"9", "9"}};
        Bottone("KEY_DISEGNO").Pressed = true;
        Clic_Nodo("P_1");
    }
    void Clic_Aggiungi(int riga) { schermo.Prodotto.Clic_Distinta(riga, 1); }
    bool Clic_HotSpot(const char* nome) { return lavagna.Evento.Click_Su_HotSpot(nome, nome); }
    /// The cart's lines as "key x quantity of object".
    QStringList Righe(const char* prodotto = "P_1") {
        QStringList righe;
        if (progetto.Prodotti_Selezionati.Esiste(prodotto))
            for (const Class_Elenco& riga :
                 progetto.Prodotti_Selezionati.Item(QString(prodotto)).Collection_Elenco_Selezionati())
                righe += QString("%1 x %2 of %3").arg(riga.Key).arg(riga.Quantita).arg(riga.Chiave_Grafica);
        return righe;
    }
    /// The hotspots that bear the cart's blue.
    QStringList Blu() {
        QStringList blu;
        for (auto i = lavagna.stati.cbegin(); i != lavagna.stati.cend(); ++i)
            if (i->colore == BLU)
                blu += i.key();
        return blu;
    }
    Griglia& Del(Faccia faccia) { return schermo.Ordine.Carrello().Di(faccia).Griglia_; }
    Lavagna_Finta& lavagna = vista.Lavagna_;
};

TEST_F(Carrello, TheAddCellFindsThePartOnTheDrawingUnderAnyName) {
    for (const int riga : {1, 2, 2, 3})
        Clic_Aggiungi(riga);
    EXPECT_THAT(Righe(), ElementsAre("A-1 x 1 of 1", "B-2 x 2 of CODICI#$#2", "C-3 x 1 of 3"));
    EXPECT_THAT(Blu(), ElementsAre("1", "CODICI#$#2"));
    Clic_Nodo("P_2");
    Clic_Aggiungi(1);
    EXPECT_THAT(Righe("P_2"), ElementsAre("A-1 x 1 of 1"));
    Clic_Nodo("P_1");
    EXPECT_THAT(Blu(), ElementsAre("1", "CODICI#$#2")) << "on the drawing shown again";
}

TEST_F(Carrello, AClickOnTheDrawingAddsWhatStandsThere) {
    EXPECT_TRUE(Clic_HotSpot("1"));
    EXPECT_TRUE(Clic_HotSpot("9"));
    EXPECT_THAT(Righe(), ElementsAre("A-1 x 1 of 1", "NO_CODE-9 x 1 of 9"));
    EXPECT_THAT(Blu(), ElementsAre("1", "9"));
}

TEST_F(Carrello, OfSeveralPartsTheUserChoosesOne) {
    vista.Alla_Scelta = [&](Controllo_Seleziona& scelta) {
        EXPECT_TRUE(progetto.Finestra_Aggiungi_Aperta);
        scelta.Ricarica();
        EXPECT_FALSE(scelta.Clic(0, 1) || scelta.Clic(9, 1)) << "no row";
        for (const int colonna : {0, 1, 3})
            EXPECT_TRUE(scelta.Clic(2, colonna)) << colonna;
    };
    EXPECT_TRUE(Clic_HotSpot("4"));
    EXPECT_THAT(Righe(), ElementsAre("E-4 x 1 of 4"));
    EXPECT_THAT(Blu(), ElementsAre("4"));
    EXPECT_FALSE(progetto.Finestra_Aggiungi_Aperta);
}

TEST_F(Carrello, TheCartWindowFollowsTheProductOnShow) {
    Premi("KEY_CARELLO_PARZIALE");
    EXPECT_TRUE(progetto.Finestra_Carrello_Aperta);
    EXPECT_FALSE(Del(Faccia::Prodotto).Visible);
    Clic_Aggiungi(1);
    EXPECT_EQ(Del(Faccia::Prodotto).TextMatrix(1, 2), "A");
    struct Caso {
        const char *nodo, *bottone;
        bool righe;
    };
    // The sheet of a product, a group, and the drawing's page again.
    for (const Caso& caso : {Caso{"P_2", "KEY_DISEGNO", false}, Caso{"P_1", "", true}, Caso{"G_1", "", false},
                             Caso{"P_1", "KEY_DISEGNO", true}}) {
        if (*caso.bottone)
            Premi(caso.bottone);
        Clic_Nodo(caso.nodo);
        EXPECT_EQ(Del(Faccia::Prodotto).Visible, caso.righe) << caso.nodo;
    }
    Premi("KEY_HOME");
    EXPECT_FALSE(Del(Faccia::Prodotto).Visible) << "the home page has no product";
    Premi("KEY_CARELLO_PARZIALE");  // greyed there
    EXPECT_TRUE(progetto.Finestra_Carrello_Aperta);
    Clic_Nodo("P_1");
    Premi("KEY_CARELLO_PARZIALE");
    EXPECT_FALSE(progetto.Finestra_Carrello_Aperta);
}

TEST_F(Carrello, TheOrderTakesThePageAndGivesItBack) {
    Clic_Aggiungi(1);
    Clic_Nodo("P_2");
    Clic_Aggiungi(1);
    Clic_Nodo("P_1");
    Premi("KEY_EVADI_ORDINE");
    EXPECT_EQ(Zona(), 3);
    EXPECT_FALSE(lavagna.visibile);
    EXPECT_EQ(lavagna.percorso, "");
    EXPECT_EQ(Del(Faccia::Ordine).TextMatrix(1, 1), "Uno");
    EXPECT_EQ(Del(Faccia::Ordine).TextMatrix(2, 1), "Due");
    Premi("KEY_EVADI_ORDINE");
    EXPECT_EQ(Zona(), 2);
    EXPECT_THAT(Blu(), ElementsAre("1"));

    Premi("KEY_DISEGNO");  // the sheet
    Premi("KEY_EVADI_ORDINE");
    Premi("KEY_EVADI_ORDINE");
    EXPECT_EQ(Zona(), 5);
    progetto.Key_Prodotto_Corrente.clear();
    Premi("KEY_EVADI_ORDINE");
    Premi("KEY_EVADI_ORDINE");
    EXPECT_EQ(Zona(), 5);
    EXPECT_TRUE(Stato().Label_Help_Albero);
    // Kept: a link of the home page takes the button as it stands.
    schermo.Comandi.Clic_Link("KEY_EVADI_ORDINE");
    EXPECT_EQ(Zona(), 5);
}

TEST_F(Carrello, RemovingInTheCartWindowTakesTheBlueOff) {
    Premi("KEY_CARELLO_PARZIALE");
    Clic_Aggiungi(1);
    Clic_Aggiungi(2);
    schermo.Ordine.Carrello().Elimina_Riga(Faccia::Prodotto, 1);
    EXPECT_THAT(Blu(), ElementsAre("CODICI#$#2"));
    schermo.Ordine.Carrello().Aziona_Cella(Faccia::Prodotto, 1, 5);  // the quantity
    EXPECT_EQ(lavagna.stati["CODICI#$#2"].colore, VERDE);
    EXPECT_TRUE(schermo.Prodotto.Griglia_Distinta().At(2, 2).Bold);
}

TEST_F(Carrello, FollowsLanguageAndMarketAndGoesWithTheCatalogue) {
    Premi("KEY_CARELLO_PARZIALE");
    Clic_Aggiungi(1);
    schermo.Apertura.Ricarica_Vista_Catalogo();
    EXPECT_THAT(Righe(), ElementsAre("A-1 x 1 of 1"));
    EXPECT_FALSE(Del(Faccia::Prodotto).Visible) << "no product is on show, and old prices neither";
    Clic_Nodo("P_1");
    EXPECT_TRUE(Del(Faccia::Prodotto).Visible);
    // Whatever empties the cart asks first.
    schermo.Apertura.Apri_Catalogo(cartella.filePath("assente.TZF"));
    EXPECT_FALSE(schermo.Apertura.Chiudi());
    EXPECT_EQ(messaggi.Domande.size(), 2);
    EXPECT_THAT(Righe(), ElementsAre("A-1 x 1 of 1"));
    messaggi.Risposte = {true};
    schermo.Apertura.Apri_Catalogo(cartella.filePath("assente.TZF"));
    EXPECT_FALSE(progetto.Finestra_Carrello_Aperta);
    EXPECT_THAT(Righe(), IsEmpty());
    EXPECT_FALSE(Bottone("KEY_CARELLO_PARZIALE").Enabled || Bottone("KEY_CARELLO_PARZIALE").Pressed);
    schermo.Visualizza_Evasione_Ordine();
    EXPECT_EQ(Zona(), 1);
}

}  // namespace

// The page of a product: drawing, parts list and sheet, and what the user does on them.

#include <QFile>

#include "vista_finta.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The page under the pressed drawing button: P_1 has drawing and parts, P_2 the drawing alone, P_3 the parts
/// alone, P_4 a drawing that isn't named.
class Pagina : public Con_Programma {
  protected:
    Pagina() {
        Catalogo_Di_Prova c;
        c.Nodo("G_1", "R", "Motore");
        for (const char* key : {"P_1", "P_2", "P_3", "P_4"})
            c.Prodotto(key, "G_1", QString("nome ") + key);
        for (const int riga : {1, 2})
            c.Cambia("Prodotti", riga, "Mappa_Associata", QString("disegni/tz%1.svg").arg(riga))
                .Cambia("Prodotti", riga, "Flag_2", "1");
        c.Cambia("Prodotti", 3, "Flag_2", "0")
            .Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo04"},
                                           {"Visualizzato", "Yes"},
                                           {"Ordine", "8"},
                                           {"Tipo_Colonna", "Image"}})
            .Parte("P_1", "1", "A1", "Vite", {{"Campo04", "foto.png"}})
            .Parte("P_1", "2", "A2", "Dado", {{"Campo04", "assente.png"}})
            .Parte("P_3", "1", "A1", "Vite")
            .Parte("P_4", "1", "A1", "Vite")
            .Riga("Scheda_Prodotti", {{"Key_Prodotto", "P_1"}, {"Titolo_1", "Olio"}, {"Descrizione_1", "1"}})
            .Sistema("LAMPEGGIO_COMPONENTI", "NO")
            .File("disegni/tz1.svg", "<svg/>")
            .File("disegni/tz2.svg", "<svg/>")
            .File("immagini/foto.png", "x");
        Apri(c);
        Bottone("KEY_DISEGNO").Pressed = true;
        Clic_Nodo("P_1");
        lavagna.chiamate.clear();
    }
    void Clic_Cella(int riga, int colonna) { schermo.Prodotto.Clic_Distinta(riga, colonna); }
    Lavagna_Finta& lavagna = vista.Lavagna_;
    Griglia& griglia = schermo.Prodotto.Griglia_Distinta();
};

TEST_F(Pagina, TheSplitFollowsWhatTheProductHas) {
    const int posizione = 9000 - 2400;
    // Product, split, drawing, whether its absence is told.
    const std::tuple<const char*, int, const char*, bool> casi[] = {{"P_2", SOLO_DISEGNO, "tz2.svg", false},
                                                                    {"P_3", SOLO_DISTINTA, "", false},
                                                                    {"P_1", posizione, "tz1.svg", false},
                                                                    {"P_4", posizione, "", true}};
    for (const auto& [key, divisione, disegno, nessun_disegno] : casi) {
        lavagna.chiamate.clear();
        Clic_Nodo(key);
        EXPECT_EQ(Stato().Divisione_V, divisione) << key;
        EXPECT_TRUE(lavagna.chiamate.filter("Carica_Layout").join("").contains(disegno)) << key;
        EXPECT_EQ(lavagna.visibile, *disegno != 0) << key;
        EXPECT_EQ(vista.Mostrato.Label_Nessun_Disegno, nessun_disegno) << key;
    }
}

TEST_F(Pagina, ADraggedSplitHoldsItsBoundsAndTheNextDrawingTakesIt) {
    schermo.Prodotto.Splitter_V_Spostato(8900);
    EXPECT_EQ(Stato().Divisione_V, 7800);
    Clic_Nodo("P_3");
    schermo.Prodotto.Splitter_V_Spostato(6000);  // the window grew while there was no drawing
    EXPECT_EQ(Stato().Divisione_V, SOLO_DISTINTA);
    Clic_Nodo("P_1");
    EXPECT_EQ(Stato().Divisione_V, 6000);
}

TEST_F(Pagina, TheSheetTakesTheDrawingDown) {
    ASSERT_TRUE(lavagna.visibile);
    Premi("KEY_DISEGNO");
    EXPECT_FALSE(lavagna.visibile);
    EXPECT_EQ(Zona(), 5);
    EXPECT_TRUE(Stato().Frame_Scheda_Prodotto_Dett);
    EXPECT_EQ(vista.Scheda.Righe.size(), 1U);
    EXPECT_TRUE(vista.Scheda.Link_Disegno);
    schermo.Prodotto.Consulta_Esploso();
    EXPECT_EQ(Zona(), 2);
    EXPECT_TRUE(lavagna.visibile);
    Clic_Nodo("G_1");
    EXPECT_EQ(Zona(), 5);
    EXPECT_EQ(vista.Scheda.Nome, "Motore");  // a group's name is shown without entries
    schermo.Seleziona_Prodotto({});
    EXPECT_TRUE(Stato().Label_Help_Albero);
    EXPECT_FALSE(Stato().Frame_Scheda_Prodotto_Dett);
}

TEST_F(Pagina, ZoomAndBlinkingReachTheCanvas) {
    EXPECT_EQ(lavagna.opzioni.value("LAMPEGGIA"), "NO");
    for (const char* chiave : {"KEY_ZOOM_WIN", "KEY_ZOOM_WIN"})
        Premi(chiave);
    EXPECT_THAT(lavagna.chiamate.filter("Esegui "),
                ElementsAre("Esegui ZOOM_WINDOWS 1", "Esegui SELEZIONA 1"));
    Clic_Nodo("G_1");  // the sheet has no drawing to zoom
    lavagna.chiamate.clear();
    Premi("KEY_ZOOM_PIU");
    EXPECT_THAT(lavagna.chiamate, IsEmpty());
}

TEST_F(Pagina, AnImageCellShowsItsPicture) {
    const int foto = griglia.Cols() - 1;
    Clic_Cella(1, foto);
    Clic_Cella(2, foto);  // the package doesn't hold it
    Clic_Cella(1, 1);
    ASSERT_EQ(vista.Immagini.size(), 1);
    EXPECT_TRUE(QFile::exists(vista.Immagini[0]));
    EXPECT_THAT(sistema.Aperti, IsEmpty());
}

TEST_F(Pagina, AHotspotMarksItsRowsByCodeElseByReference) {
    for (const auto& [key, riga] : {std::pair{"A1", 1}, {"2", 2}, {"3", 0}, {"", 0}}) {
        schermo.Evidenzia_In_Distinta(key);
        for (const int r : {1, 2})
            EXPECT_EQ(griglia.At(r, 0).Bold, r == riga) << key;
    }
}

TEST_F(Pagina, AClickOnTheListEndsWithTheMouseOverTheDrawing) {
    lavagna.Evento.Mouse_Fuori(0, 0, 1, 1);
    EXPECT_THAT(lavagna.chiamate, IsEmpty());
    Clic_Cella(1, 1);
    lavagna.chiamate.clear();
    lavagna.Evento.Mouse_Fuori(0, 0, 1, 1);
    EXPECT_THAT(lavagna.chiamate, ElementsAre("Azzera_Evidenziazione "));
}

}  // namespace

// The page of a product: drawing, parts list and sheet, and what the user does on them.

#include <gmock/gmock.h>

#include <QFile>

#include "vista_finta.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Pagina : public testing::Test {
  protected:
    static Catalogo_Di_Prova Catalogo() {
        Catalogo_Di_Prova c;
        c.Nodo("G_1", "R", "Motore")
            .Prodotto("P_1", "G_1", "Basamento")
            .Prodotto("P_2", "G_1", "Solo disegno")
            .Prodotto("P_3", "G_1", "Solo distinta")
            .Prodotto("P_4", "G_1", "Disegno scordato");
        c.Cambia("Prodotti", 1, "Mappa_Associata", "disegni/tz1.svg")
            .Cambia("Prodotti", 1, "Flag_2", "1")
            .Cambia("Prodotti", 2, "Mappa_Associata", "disegni/tz2.svg")
            .Cambia("Prodotti", 2, "Flag_2", "1")
            .Cambia("Prodotti", 3, "Flag_2", "0");
        c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo04"},
                                        {"Titolo_Colonna", "Foto"},
                                        {"Visualizzato", "Yes"},
                                        {"Ordine", "8"},
                                        {"Tipo_Colonna", "Image"}});
        c.Parte("P_1", "1", "A1", "Vite", {{"Campo04", "foto.png"}})
            .Parte("P_1", "2", "A2", "Dado", {{"Campo04", "assente.png"}})
            .Parte("P_3", "1", "A1", "Vite")
            .Parte("P_4", "1", "A1", "Vite");
        c.Riga("Scheda_Prodotti", {{"Key_Prodotto", "P_1"},
                                   {"Ordine", "1"},
                                   {"Titolo_1", "Olio"},
                                   {"Descrizione_1", "1 litro"},
                                   {"Allegato_1", "guida.pdf"}});
        c.File("disegni/tz1.svg", "<svg/>").File("disegni/tz2.svg", "<svg/>");
        c.File("immagini/foto.png", "x").File("documenti/guida.pdf", "x");
        return c;
    }
    void Apri(const Catalogo_Di_Prova& catalogo = Catalogo()) {
        p.Apri(catalogo);
        ASSERT_TRUE(p.progetto.Progetto_Aperto);
        p.Premi("KEY_DISEGNO");
    }
    void Apri_Disegno(const char* key) {
        Apri();
        p.controllo.Clic_Nodo(QLatin1String(key));
    }
    /// The drawing's file, as far as the canvas was asked for it.
    QString Caricato() const {
        const QStringList chiamate = lavagna.chiamate.filter(QStringLiteral("Carica_Layout "));
        return chiamate.isEmpty() ? QString() : chiamate.last().section(u'/', -1).section(u' ', 0, 0);
    }
    void Clic_Cella(int riga, int colonna) {
        Griglia& griglia = p.controllo.Griglia_Distinta();
        griglia.MouseRow = riga;
        griglia.MouseCol = colonna;
        griglia.MousePointer = 1;
        p.controllo.Clic_Distinta();
    }

    Programma_Di_Prova p;
    Lavagna_Finta& lavagna = p.vista.Lavagna_;
};

TEST_F(Pagina, TheSplitFollowsWhatTheProductHas) {
    struct Caso {
        const char* key;
        int divisione;
        const char* disegno;
        bool nessun_disegno;
    };
    Apri();
    const int posizione = p.Stato().Posizione_Splitter_V;
    EXPECT_EQ(posizione, 9000 - 2400);
    for (const Caso& caso :
         {Caso{"P_1", posizione, "tz1.svg", false}, Caso{"P_2", SOLO_DISEGNO, "tz2.svg", false},
          Caso{"P_3", SOLO_DISTINTA, "", false}, Caso{"P_4", posizione, "", true}}) {
        lavagna.chiamate.clear();
        p.controllo.Clic_Nodo(QLatin1String(caso.key));
        EXPECT_EQ(p.Stato().Divisione_V, caso.divisione) << caso.key;
        EXPECT_EQ(Caricato(), QLatin1String(caso.disegno)) << caso.key;
        EXPECT_EQ(lavagna.visibile, *caso.disegno != 0) << caso.key;
        EXPECT_EQ(p.vista.Mostrato.Label_Nessun_Disegno, caso.nessun_disegno) << caso.key;
    }
}

TEST_F(Pagina, ADraggedSplitHoldsItsBoundsAndTheNextDrawingTakesIt) {
    Apri_Disegno("P_1");
    p.controllo.Splitter_V_Spostato(5000);
    EXPECT_EQ(p.Stato().Divisione_V, 5000);
    p.controllo.Splitter_V_Spostato(100);
    EXPECT_EQ(p.Stato().Divisione_V, 1200);
    p.controllo.Splitter_V_Spostato(8900);
    EXPECT_EQ(p.Stato().Divisione_V, 7800);
    p.controllo.Clic_Nodo("P_3");
    p.controllo.Splitter_V_Spostato(6000);  // the window grew while there was no drawing
    EXPECT_EQ(p.Stato().Divisione_V, SOLO_DISTINTA);
    p.controllo.Clic_Nodo("P_1");
    EXPECT_EQ(p.Stato().Divisione_V, 6000);
}

TEST_F(Pagina, TheSheetTakesTheDrawingDown) {
    Apri_Disegno("P_1");
    ASSERT_TRUE(lavagna.visibile);
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_FALSE(lavagna.visibile);
    EXPECT_TRUE(lavagna.chiamate.contains("Svuota"));
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 5);
    EXPECT_TRUE(p.Stato().Frame_Scheda_Prodotto_Dett);
    ASSERT_EQ(p.vista.Scheda.Righe.size(), 1U);
    EXPECT_EQ(p.vista.Scheda.Righe[0].Titolo, "Olio");
    EXPECT_TRUE(QFile::exists(p.vista.Scheda.Righe[0].Allegato));
    EXPECT_TRUE(p.vista.Scheda.Link_Disegno);

    p.controllo.Consulta_Esploso();
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 2);
    EXPECT_TRUE(lavagna.visibile);
}

TEST_F(Pagina, AGroupHasASheetWithoutEntries) {
    Apri();
    p.controllo.Consulta_Catalogo(false);
    p.controllo.Clic_Nodo("G_1");
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 5);
    EXPECT_TRUE(p.Stato().Frame_Scheda_Prodotto_Dett);  // its name is shown all the same
    EXPECT_EQ(p.vista.Scheda.Nome, "Motore");
    EXPECT_FALSE(p.vista.Scheda.Link_Disegno);
    EXPECT_FALSE(lavagna.visibile);
    p.controllo.Seleziona_Prodotto({});
    EXPECT_TRUE(p.Stato().Label_Help_Albero);
    EXPECT_FALSE(p.Stato().Frame_Scheda_Prodotto_Dett);
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 5);  // the frames stay as they are
}

TEST_F(Pagina, TheZoomButtonsCommandTheCanvas) {
    Apri_Disegno("P_1");
    lavagna.chiamate.clear();
    p.controllo.Clic_Bottone("KEY_ZOOM_WIN");
    EXPECT_EQ(lavagna.modo, "ZOOM_WINDOWS");
    p.controllo.Clic_Bottone("KEY_ZOOM_ALL");
    EXPECT_EQ(lavagna.modo, "ZOOM_WINDOWS");
    p.controllo.Clic_Bottone("KEY_ZOOM_WIN");
    EXPECT_EQ(lavagna.modo, "SELEZIONA");
    p.controllo.Clic_Bottone("KEY_ZOOM_PIU");
    p.controllo.Clic_Bottone("KEY_ZOOM_MENO");
    const QStringList comandi = lavagna.chiamate.filter(QStringLiteral("Esegui "));
    EXPECT_THAT(comandi, ElementsAre("Esegui ZOOM_WINDOWS 1", "Esegui ZOOM_PAGINA 1", "Esegui ZOOM_WINDOWS 1",
                                     "Esegui SELEZIONA 1", "Esegui ZOOM_PIU 1", "Esegui ZOOM_MENO 1"));
    EXPECT_TRUE(lavagna.opzioni.value("LAVAGNA_FISSA").toBool());

    p.controllo.Clic_Nodo("G_1");  // the sheet has no drawing to zoom
    lavagna.chiamate.clear();
    p.controllo.Clic_Bottone("KEY_ZOOM_PIU");
    EXPECT_THAT(lavagna.chiamate, IsEmpty());
}

TEST_F(Pagina, AHoverMarksTheRowAndTouchesNothingElse) {
    Apri_Disegno("P_1");
    int intere = 0, righe = 0;
    p.vista.Alla_Mostra = [&](const Stato_Finestra&) { ++intere; };
    p.controllo.Griglia_Distinta().Evidenziata = [&] { ++righe; };
    lavagna.Evento.Mouse_Su_HotSpot(0, "A2", "CODICI#$#A2");
    EXPECT_FALSE(p.controllo.Griglia_Distinta().At(1, 1).Bold);
    EXPECT_TRUE(p.controllo.Griglia_Distinta().At(2, 1).Bold);
    lavagna.Evento.Mouse_Su_HotSpot(1, "A2", "CODICI#$#A2");
    EXPECT_EQ(righe, 1);
    EXPECT_EQ(intere, 0);
    EXPECT_THAT(p.vista.Pannelli, IsEmpty());  // the help line was blank all the time
}

TEST_F(Pagina, ALinkTellsWhereItLeadsAndAClickGoesThere) {
    Apri_Disegno("P_1");
    p.progetto.Tree1.Seleziona(p.progetto.Tree1.Nodo("P_1"));
    lavagna.Evento.Mouse_Su_HotSpot(0, "x", "PRODOTTO#$#P_2");
    lavagna.Evento.Mouse_Su_HotSpot(1, "x", "PRODOTTO#$#P_2");
    EXPECT_THAT(p.vista.Pannelli, ElementsAre("Link a : Solo disegno", ""));
    EXPECT_TRUE(lavagna.Evento.Click_Su_HotSpot("x", "PRODOTTO#$#P_2"));
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "P_2");
    EXPECT_EQ(p.progetto.Tree1.SelectedItem()->Key, "P_2");
    EXPECT_EQ(Caricato(), "tz2.svg");
    EXPECT_FALSE(lavagna.Evento.Click_Su_HotSpot("x", "PRODOTTO#$#P_99"));
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "P_2");
}

TEST_F(Pagina, AnImageCellShowsItsPictureOnce) {
    Apri_Disegno("P_1");
    const int foto = p.controllo.Griglia_Distinta().Cols() - 1;
    Clic_Cella(1, foto);
    ASSERT_EQ(p.vista.Immagini.size(), 1);
    EXPECT_TRUE(QFile::exists(p.vista.Immagini[0]));
    Clic_Cella(2, foto);  // the package doesn't hold it
    Clic_Cella(1, 1);
    EXPECT_EQ(p.vista.Immagini.size(), 1);
    EXPECT_THAT(p.sistema.Aperti, IsEmpty());
}

TEST_F(Pagina, AClickOnTheListEndsWithTheMouseOverTheDrawing) {
    Apri_Disegno("P_1");
    lavagna.Evento.Mouse_Fuori(0, 0, 1, 1);
    lavagna.chiamate.clear();
    lavagna.Evento.Mouse_Fuori(0, 0, 1, 1);
    EXPECT_THAT(lavagna.chiamate, IsEmpty());
    Clic_Cella(1, 1);
    lavagna.Evento.Mouse_Fuori(0, 0, 1, 1);
    EXPECT_EQ(lavagna.chiamate.filter(QStringLiteral("Azzera_Evidenziazione")).size(), 1);
}

TEST_F(Pagina, AttachmentsAndPhotographsGoTheirWays) {
    Apri();
    p.controllo.Apri_Allegato("/tmp/a.pdf");
    p.controllo.Apri_Allegato({});
    EXPECT_THAT(p.sistema.Aperti, ElementsAre("/tmp/a.pdf"));
    p.controllo.Mostra_Immagine("/tmp/a.png");
    p.controllo.Mostra_Immagine({});
    EXPECT_THAT(p.vista.Immagini, ElementsAre("/tmp/a.png"));
}

TEST_F(Pagina, TheCatalogueDecidesWhetherHighlightsBlink) {
    for (const auto& [valore, atteso] : {std::pair{"", "SI"}, {"SI", "SI"}, {"NO", "NO"}, {"no", "NO"}}) {
        Catalogo_Di_Prova catalogo = Catalogo();
        catalogo.Sistema("LAMPEGGIO_COMPONENTI", QString::fromLatin1(valore));
        p.Apri(catalogo);
        EXPECT_EQ(lavagna.opzioni.value("LAMPEGGIA").toString(), QLatin1String(atteso)) << valore;
    }
}

TEST_F(Pagina, WithoutAWindowNothingIsDrawn) {
    Apri_Disegno("P_1");
    p.controllo.Scollega();
    EXPECT_FALSE(lavagna.Evento.Click_Su_HotSpot);
    lavagna.chiamate.clear();
    p.controllo.Clic_Nodo("P_2");
    EXPECT_THAT(lavagna.chiamate, IsEmpty());
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "P_2");
}

}  // namespace

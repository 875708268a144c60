// Loading drawings, and the commands and options of the page.

#include "pagina_di_prova.h"

namespace {

using testing::ElementsAre;

class Tavola : public Con_Disegno {
  protected:
    Tavola() {
        const Valore_Prova prodotti[][2] = {{"P_1", " uno.svg "},   {"P_2", "due.svg"},
                                            {"P_3", "  "},          {"P_4", std::nullopt},
                                            {"P_5", "assente.svg"}, {"P_l'6", "due.svg"}};
        for (const auto& [key, tavola] : prodotti)
            catalogo.Riga("Prodotti", {{"Key_Prodotto", key}, {"Mappa_Associata", tavola}});
        file.Percorsi = {{"uno.svg", "/t/uno.svg"}, {"due.svg", "/t/due.svg"}};
        lavagna.documenti = {{"/t/uno.svg", {}}, {"/t/due.svg", {}}};
        Apri();
    }
};

TEST_F(Tavola, IsLoadedReadyForTheMouse) {
    EXPECT_TRUE(disegno->Carica_Tavola("P_1"));
    EXPECT_THAT(Fatto(),
                ElementsAre("Svuota", "Carica_Layout /t/uno.svg 0", "Imposta_Opzione LAVAGNA_FISSA true",
                            "Esegui SELEZIONA 1", "Ridisegna 1", "Visibile 1"));
    for (const char* key : {"P_3", "P_4", "P_9"}) {  // no drawing
        EXPECT_TRUE(disegno->Carica_Tavola(key));
        EXPECT_THAT(Fatto(), ElementsAre("Visibile 0")) << key;
    }
    for (const auto& [key, carica] :
         {std::pair("P_5", "Carica_Layout  0"),  // not in the package: an empty page
          std::pair("P_l'6", "Carica_Layout /t/due.svg 0")}) {
        EXPECT_TRUE(disegno->Carica_Tavola(key));
        EXPECT_TRUE(Fatto().contains(carica)) << key;
    }
}

TEST_F(Tavola, TheBorderOfASelectionTakesItsFilling) {
    lavagna.Evento.Tavola_Pronta = [this] { lavagna.opzioni["PICKBACKCOLOR"] = 0xFFEE00; };
    disegno->Carica_Tavola("P_1");
    EXPECT_EQ(lavagna.opzioni.value("PICKBORDERCOLOR"), QVariant(0xFFEE00));
}

TEST_F(Tavola, TheLastOneAskedForStays) {
    // While pending events run the user chooses another product, before the load.
    sistema.In_Attesa = [this] { EXPECT_TRUE(disegno->Carica_Tavola("P_2")); };
    EXPECT_FALSE(disegno->Carica_Tavola("P_1"));
    EXPECT_FALSE(Fatto().contains("Carica_Layout /t/uno.svg 0"));
    // Or goes to a page without a drawing, after it.
    lavagna.Evento.Tavola_Pronta = [this] { sistema.In_Attesa = [this] { disegno->Togli_Tavola(); }; };
    EXPECT_FALSE(disegno->Carica_Tavola("P_1"));
    EXPECT_EQ(Fatto().last(), "Visibile 0");
}

TEST_F(Tavola, TheZoomButtonsCommandTheCanvas) {
    const QString fissa = "Imposta_Opzione LAVAGNA_FISSA true", seleziona = "Esegui SELEZIONA 1",
                  zoom = "Esegui ZOOM_WINDOWS 1";
    const std::pair<std::function<void()>, Diario> casi[] = {
        {[this] { disegno->Zoom_Pagina(false); }, {"Esegui ZOOM_PAGINA 1", seleziona}},
        {[this] { disegno->Zoom_Pagina(true); }, {"Esegui ZOOM_PAGINA 1", zoom}},
        {[this] { disegno->Zoom_Finestra(true); }, {zoom, fissa}},
        {[this] { disegno->Zoom_Finestra(false); }, {seleziona, fissa}},
        {[this] { disegno->Zoom("ZOOM_PIU"); }, {"Esegui ZOOM_PIU 1", fissa}}};
    for (const auto& [comando, fatto] : casi) {
        comando();
        EXPECT_EQ(Fatto(), fatto);
    }
}

TEST_F(Tavola, TheCatalogueSaysWhetherHighlightsBlink) {
    for (const auto& [valore, lampeggia] : {std::pair("", "SI"), {"SI", "SI"}, {"si", "NO"}}) {
        catalogo.Sistema("LAMPEGGIO_COMPONENTI", valore);
        Apri().Imposta_Lampeggio();
        EXPECT_EQ(lavagna.opzioni.value("LAMPEGGIA").toString(), lampeggia) << valore;
    }
}

}  // namespace

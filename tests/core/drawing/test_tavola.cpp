// Loading drawings, and the commands and options of the page.

#include "pagina_di_prova.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Tavola : public Con_Disegno {
  protected:
    void SetUp() override {
        Prodotto(u"P_1"_qs, u" uno.svg "_qs);
        Prodotto(u"P_2"_qs, u"due.svg"_qs);
        Prodotto(u"P_3"_qs, u"  "_qs);
        Prodotto(u"P_4"_qs, std::nullopt);
        Prodotto(u"P_5"_qs, u"assente.svg"_qs);
        Prodotto(u"P_l'6"_qs, u"due.svg"_qs);
        file.Percorsi = {{u"uno.svg"_qs, u"/t/uno.svg"_qs}, {u"due.svg"_qs, u"/t/due.svg"_qs}};
        lavagna.documenti = {{u"/t/uno.svg"_qs, {}}, {u"/t/due.svg"_qs, {}}};
    }
    void Prodotto(const QString& key, const Valore_Prova& tavola) {
        catalogo.Riga(u"Prodotti"_qs, {{"Key_Prodotto", key}, {"Mappa_Associata", tavola}});
    }
};

TEST_F(Tavola, IsLoadedReadyForTheMouse) {
    Apri();
    EXPECT_TRUE(disegno->Carica_Tavola(u"P_1"_qs));
    EXPECT_THAT(Fatto(), ElementsAre(u"Svuota"_qs, u"Carica_Layout /t/uno.svg 0"_qs,
                                     u"Imposta_Opzione LAVAGNA_FISSA true"_qs, u"Esegui SELEZIONA 1"_qs,
                                     u"Ridisegna 1"_qs, u"Visibile 1"_qs));
    EXPECT_EQ(sistema.Giri_Eventi, 2);
}

TEST_F(Tavola, TheBorderOfASelectionTakesItsFilling) {
    Apri();
    lavagna.Evento.Tavola_Pronta = [this] { lavagna.opzioni[u"PICKBACKCOLOR"_qs] = 0xFFEE00; };
    disegno->Carica_Tavola(u"P_1"_qs);
    EXPECT_EQ(lavagna.opzioni.value(u"PICKBORDERCOLOR"_qs), QVariant(0xFFEE00));
}

TEST_F(Tavola, AProductWithoutADrawingHidesTheCanvas) {
    Apri();
    for (const QString& key : {u"P_3"_qs, u"P_4"_qs, u"P_9"_qs}) {
        EXPECT_TRUE(disegno->Carica_Tavola(key));
        EXPECT_THAT(Fatto(), ElementsAre(u"Visibile 0"_qs)) << key.toStdString();
    }
}

TEST_F(Tavola, ADrawingThatThePackageLacksIsAnEmptyPage) {
    Apri();
    EXPECT_TRUE(disegno->Carica_Tavola(u"P_5"_qs));
    EXPECT_TRUE(Fatto().contains(u"Carica_Layout  0"_qs));
}

TEST_F(Tavola, AKeyMayHoldAQuote) {
    Apri();
    disegno->Carica_Tavola(u"P_l'6"_qs);
    EXPECT_TRUE(Fatto().contains(u"Carica_Layout /t/due.svg 0"_qs));
}

TEST_F(Tavola, TheLastOneAskedForStays) {
    Apri();
    // The user chooses another product while pending events run: before the load, and after it.
    sistema.In_Attesa = [this] { EXPECT_TRUE(disegno->Carica_Tavola(u"P_2"_qs)); };
    EXPECT_FALSE(disegno->Carica_Tavola(u"P_1"_qs));
    EXPECT_FALSE(Fatto().contains(u"Carica_Layout /t/uno.svg 0"_qs));

    lavagna.Evento.Tavola_Pronta = [this, prima = true]() mutable {
        if (std::exchange(prima, false))
            sistema.In_Attesa = [this] { EXPECT_TRUE(disegno->Carica_Tavola(u"P_2"_qs)); };
    };
    EXPECT_FALSE(disegno->Carica_Tavola(u"P_1"_qs));
    EXPECT_EQ(Fatto().filter(u"Carica_Layout"_qs),
              (QStringList{u"Carica_Layout /t/uno.svg 0"_qs, u"Carica_Layout /t/due.svg 0"_qs}));
}

TEST_F(Tavola, TakenDownWhileItLoadsItStaysHidden) {
    Apri();
    lavagna.Evento.Tavola_Pronta = [this] { sistema.In_Attesa = [this] { disegno->Togli_Tavola(); }; };
    EXPECT_FALSE(disegno->Carica_Tavola(u"P_1"_qs));
    EXPECT_THAT(Fatto().last(2), ElementsAre(u"Svuota"_qs, u"Visibile 0"_qs));
}

TEST_F(Tavola, TheZoomButtonsCommandTheCanvas) {
    Apri();
    struct Caso {
        QString key;
        bool premuto;
        Diario fatto;
    };
    const QString fissa = u"Imposta_Opzione LAVAGNA_FISSA true"_qs, seleziona = u"Esegui SELEZIONA 1"_qs,
                  finestra_zoom = u"Esegui ZOOM_WINDOWS 1"_qs;
    const Caso casi[] = {
        {u"KEY_ZOOM_ALL"_qs, false, {u"Esegui ZOOM_PAGINA 1"_qs, seleziona}},
        {u"KEY_ZOOM_ALL"_qs, true, {u"Esegui ZOOM_PAGINA 1"_qs, finestra_zoom}},
        {u"KEY_ZOOM_WIN"_qs, true, {finestra_zoom, fissa}},
        {u"KEY_ZOOM_WIN"_qs, false, {seleziona, fissa}},
        {u"KEY_ZOOM_PIU"_qs, true, {u"Esegui ZOOM_PIU 1"_qs, fissa}},
        {u"KEY_ZOOM_MENO"_qs, false, {u"Esegui ZOOM_MENO 1"_qs, fissa}},
        {u"KEY_HOME"_qs, false, {}},
    };
    for (const Caso& caso : casi) {
        disegno->Comando_Zoom(caso.key, caso.premuto);
        EXPECT_EQ(Fatto(), caso.fatto) << caso.key.toStdString() << caso.premuto;
    }
}

TEST_F(Tavola, TheCatalogueSaysWhetherHighlightsBlink) {
    const std::pair<Valore_Prova, QString> casi[] = {{std::nullopt, u"SI"_qs}, {u""_qs, u"SI"_qs},
                                                     {u"SI"_qs, u"SI"_qs},     {u"NO"_qs, u"NO"_qs},
                                                     {u"si"_qs, u"NO"_qs},     {u"1"_qs, u"NO"_qs}};
    for (const auto& [valore, lampeggia] : casi) {
        catalogo.Sistema(u"LAMPEGGIO_COMPONENTI"_qs, valore);
        Apri().Imposta_Lampeggio();
        EXPECT_EQ(lavagna.opzioni.value(u"LAMPEGGIA"_qs).toString(), lampeggia);
    }
}

TEST_F(Tavola, TheCanvasIsFreeAgainWhenTheDrawingEnds) {
    Apri();
    EXPECT_TRUE(lavagna.Evento.Mouse_Su_HotSpot && lavagna.Evento.Mouse_Fuori &&
                lavagna.Evento.Click_Su_HotSpot && lavagna.Evento.Doppio_Click_Su_HotSpot);
    disegno.reset();
    EXPECT_FALSE(lavagna.Evento.Mouse_Su_HotSpot || lavagna.Evento.Mouse_Fuori ||
                 lavagna.Evento.Click_Su_HotSpot || lavagna.Evento.Doppio_Click_Su_HotSpot);
}

}  // namespace

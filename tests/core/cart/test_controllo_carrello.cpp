#include <gmock/gmock.h>

#include "carrello_aperto.h"
#include "core/cart/controllo_carrello.h"
#include "support/schermo_finto.h"
#include "tavola_finta.h"

namespace {

using testing::ElementsAre;

/// The boxes over a grid, and where the last one was shown: row, column, text.
struct Vista_Finta : Vista_Carrello {
    void Mostra_Casella(Casella casella, int riga, int colonna, const QString& testo) override {
        (casella == Casella::Qta ? Qta : Note) = true;
        Mostrata = QString("%1,%2 %3").arg(riga).arg(colonna).arg(testo);
    }
    void Nascondi_Casella(Casella casella) override { (casella == Casella::Qta ? Qta : Note) = false; }
    int TopRow() const override { return riga_; }
    void TopRow(int riga) override { riga_ = riga; }
    bool Qta = false, Note = false;
    QString Mostrata;
    int riga_ = 1;
};

/// The cart over the catalogue of the worked orders, with a product on show and both faces up.
class Carrello : public testing::Test, public Schermo_Finto {
  protected:
    Carrello() : Schermo_Finto(chiamate) {
        controllo.Carrello().Vista = &vista_carrello;
        controllo.Ordine().Vista = &vista_ordine;
    }
    void Visualizza_Evasione_Ordine() override {
        Schermo_Finto::Visualizza_Evasione_Ordine();
        controllo.Aggiorna_Griglia_Evadi();
    }

    void Aggiungi(const QString& codice, const QString& riferimento, const QString& prodotto = "P_1") {
        controllo.Aggiungi_Componente_Carrello_Evidenzia_Tavola(prodotto, codice, riferimento);
    }
    QString Cella(Faccia faccia, int riga, int colonna) {
        return controllo.Di(faccia).Griglia_.TextMatrix(riga, colonna);
    }
    Class_Elenco& Riga(const QString& chiave, const QString& prodotto = "P_1") {
        return *Cerca_Riga(c.progetto.Prodotti_Selezionati, prodotto, chiave);
    }

    /// Types into the box of the quantity, or of the note.
    void Scrivi(Faccia faccia, const QString& testo, Casella casella = Casella::Qta) {
        controllo.Testo_Cambiato(faccia, casella, testo);
    }

    // Columns of the two faces.
    static constexpr int QTA = 5, TOTALE = 7;
    static constexpr int QTA_ORDINE = 6, NOTA_ORDINE = 7;

    ::Carrello_Aperto c{Catalogo_Ordini(Variante::Libera)};
    Tavola_Finta tavola{{"1", "2", "40"}};
    bool carrello_aperto = true;
    QStringList chiamate;
    Vista_Finta vista_carrello, vista_ordine;
    Controllo_Carrello controllo{{*this, c.messaggi, tavola, carrello_aperto, [this] { return c.Contesto(); },
                                  [](const QString& riferimento) {
                                      return Componente_Scelto{"B", riferimento};
                                  }}};
};

TEST_F(Carrello, TheCartWindowFollowsWhatIsAdded) {
    Aggiungi("A", "1");
    EXPECT_TRUE(controllo.Aggiungi_Da_Tavola("1", "P_1", "1"));
    EXPECT_EQ(Cella(Faccia::Prodotto, 1, TOTALE), u"20.00");
    EXPECT_TRUE(controllo.Aggiungi_Da_Tavola("40", "P_1", "40"));
    EXPECT_EQ(Cella(Faccia::Prodotto, 2, 2), u"B");

    carrello_aperto = false;
    Aggiungi("A", "1");
    EXPECT_EQ(Cella(Faccia::Prodotto, 1, TOTALE), u"20.00");
    Aggiungi("ENORME", "25");
    EXPECT_THAT(c.messaggi.Testi(), ElementsAre("Overflow")) << "a failed add is shown";
}

TEST_F(Carrello, EditsAQuantityLetterByLetter) {
    Aggiungi("B", "2");
    controllo.Aggiorna_Griglia_Evadi();
    controllo.Aziona_Cella(Faccia::Prodotto, 1, QTA);
    EXPECT_EQ(vista_carrello.Mostrata, "1,5 5");
    EXPECT_THAT(chiamate, ElementsAre("Riga B"));
    EXPECT_EQ(tavola.Colori["2"], VERDE);
    vista_carrello.TopRow(3);
    Scrivi(Faccia::Prodotto, "");
    EXPECT_EQ(Riga("B-2").Quantita, 1);
    for (const char* testo : {"1", "12", "12,"})
        Scrivi(Faccia::Prodotto, testo);
    EXPECT_EQ(Cella(Faccia::Prodotto, 1, QTA), u"12");
    EXPECT_EQ(Cella(Faccia::Prodotto, 1, TOTALE), u"30.00");
    EXPECT_EQ(vista_carrello.TopRow(), 3);
    EXPECT_TRUE(vista_carrello.Qta);

    // The order screen, not up, learns of it when it comes up, and once.
    controllo.Fuoco_Perso(Faccia::Prodotto, Casella::Qta);
    EXPECT_FALSE(vista_carrello.Qta);
    EXPECT_EQ(Cella(Faccia::Ordine, 1, QTA_ORDINE), u"5");
    Zona = 3;
    for (int volta = 0; volta < 2; ++volta)
        controllo.Fuoco_Perso(Faccia::Prodotto, Casella::Qta);
    EXPECT_EQ(chiamate.count("Ordine"), 1);
    EXPECT_EQ(Cella(Faccia::Ordine, 1, QTA_ORDINE), u"12");
}

TEST_F(Carrello, TheOrdersNoteAppliesTheLinesNoteAgain) {
    Aggiungi("A", "1");
    controllo.Aggiorna_Griglia_Evadi();
    controllo.Aziona_Cella(Faccia::Ordine, 1, NOTA_ORDINE);
    Scrivi(Faccia::Ordine, "prima", Casella::Note);
    controllo.Fuoco_Perso(Faccia::Ordine, Casella::Note);
    Riga("A-1").Nota = "dopo";
    controllo.Text_Nota_Ordine_Cambiato();
    EXPECT_EQ(Riga("A-1").Nota, u"prima");
}

TEST_F(Carrello, RemovesFromTheOrderScreen) {
    Aggiungi("A", "1");
    Aggiungi("B", "2");
    controllo.Aggiorna_Griglia_Evadi();
    controllo.Aziona_Cella(Faccia::Ordine, 1, 0);
    EXPECT_EQ(Cella(Faccia::Ordine, 1, 3), u"B");
    EXPECT_EQ(Cella(Faccia::Prodotto, 1, 2), u"B");
    // By keyboard, and only a row that has a line.
    controllo.Elimina_Riga(Faccia::Ordine, 2);
    EXPECT_TRUE(controllo.Ordine().Griglia_.Visible);
    controllo.Elimina_Riga(Faccia::Ordine, 1);
    EXPECT_FALSE(controllo.Ordine().Griglia_.Visible);
}

TEST_F(Carrello, AClickOnAPlainCellLightsTheComponent) {
    Aggiungi("A", "1");
    controllo.Aggiorna_Griglia_Evadi();
    controllo.Aziona_Cella(Faccia::Prodotto, 1, 2);
    for (const int colonna : {1, 3})
        controllo.Aziona_Cella(Faccia::Ordine, 1, colonna);
    EXPECT_THAT(chiamate, ElementsAre("Evidenzia P_1 A 1"));
}

TEST_F(Carrello, ScrollingAndClickingElsewhereCloseTheBoxes) {
    Aggiungi("A", "1");
    const std::function<void()> modi[] = {[this] { controllo.Scorsa(Faccia::Prodotto); },
                                          [this] { controllo.Aziona_Cella(Faccia::Prodotto, 0, 0); },
                                          [this] { controllo.Ridimensionata(); }};
    for (const auto& chiudi : modi) {
        controllo.Aziona_Cella(Faccia::Prodotto, 1, QTA);
        ASSERT_TRUE(vista_carrello.Qta);
        chiudi();
        EXPECT_FALSE(vista_carrello.Qta);
    }
    controllo.Aziona_Cella(Faccia::Prodotto, 1, QTA);
    controllo.Carrello().In_Riempimento = true;
    controllo.Scorsa(Faccia::Prodotto);
    EXPECT_TRUE(vista_carrello.Qta) << "a fill scrolls too";
}

TEST_F(Carrello, TheNextCellToEdit) {
    Aggiungi("KIT", "30");
    Aggiungi("A", "1");
    int riga = 1, colonna = QTA;
    QStringList celle;
    while (controllo.Prossima_Cella(Faccia::Prodotto, true, riga, colonna))
        celle += QString("%1,%2").arg(riga).arg(colonna);
    // The linked components stand in between, the totals behind.
    EXPECT_THAT(celle, ElementsAre("1,6", "5,5", "5,6"));
    EXPECT_TRUE(controllo.Prossima_Cella(Faccia::Prodotto, false, riga, colonna));
    EXPECT_EQ(colonna, QTA);
    riga = 1;
    EXPECT_FALSE(controllo.Prossima_Cella(Faccia::Prodotto, false, riga, colonna));
}

TEST_F(Carrello, PaintsTheLinesOfAProduct) {
    Aggiungi("A", "1");
    Aggiungi("B", "2", "P_2");
    tavola.Colori.clear();
    Ricolora_Selezionati(c.progetto.Prodotti_Selezionati, "P_1", tavola);
    EXPECT_THAT(tavola.Colori.keys(), ElementsAre("1"));
}

}  // namespace

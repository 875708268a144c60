#include <gmock/gmock.h>

#include "carrello_aperto.h"
#include "core/cart/controllo_carrello.h"
#include "support/schermo_finto.h"
#include "tavola_finta.h"

namespace {

using testing::ElementsAre;
using enum Faccia;

/// The boxes over a grid, and where the last one was shown: row, column, text.
struct Vista_Finta : Vista_Carrello {
    void Mostra_Casella(Casella casella, int riga, int colonna, const QString& testo) override {
        Di(casella) = true;
        Mostrata = QString("%1,%2 %3").arg(riga).arg(colonna).arg(testo);
    }
    void Nascondi_Casella(Casella casella) override { Di(casella) = false; }
    void Spiega_Casella(Casella, const QString& testo) override { Spiegata = testo; }
    int TopRow() const override { return riga_; }
    void TopRow(int riga) override { riga_ = riga; }
    bool& Di(Casella casella) { return casella == Casella::Qta ? Qta : Note; }
    bool Qta = false, Note = false;
    QString Mostrata, Spiegata;
    int riga_ = 1;
};

/// The cart over the catalogue of the worked orders, with a product on show and both faces up.
class Facce : public testing::Test, public Schermo_Finto {
  protected:
    Facce() : Schermo_Finto(chiamate) {
        controllo.Carrello().Vista = &vista;
        controllo.Ordine().Vista = &vista_ordine;
    }
    void Visualizza_Evasione_Ordine() override {
        Schermo_Finto::Visualizza_Evasione_Ordine();
        controllo.Aggiorna_Griglia_Evadi();
    }

    void Aggiungi(const QString& codice, const QString& riferimento) {
        controllo.Aggiungi_Componente_Carrello_Evidenzia_Tavola("P_1", codice, riferimento);
    }
    QString Cella(Faccia faccia, int riga, int colonna) {
        return controllo.Di(faccia).Griglia_.TextMatrix(riga, colonna);
    }
    Class_Elenco& Riga(const QString& chiave) {
        return *Cerca_Riga(c.progetto.Prodotti_Selezionati, "P_1", chiave);
    }

    // Columns of the two faces.
    static constexpr int QTA = 5, TOTALE = 7;
    static constexpr int QTA_ORDINE = 6, NOTA_ORDINE = 7;

    ::Carrello_Aperto c{Catalogo_Ordini(Variante::Libera).Cambia("Componenti_Web", 1, "Key_Mercato", "/1/")};
    Tavola_Finta tavola{{"1", "2", "40"}};
    bool carrello_aperto = true;
    QStringList chiamate;
    Vista_Finta vista, vista_ordine;
    Controllo_Carrello controllo{{*this, c.messaggi, tavola, carrello_aperto, [this] { return c.Contesto(); },
                                  [](const QString& riferimento) {
                                      return Componente_Scelto{"B", riferimento};
                                  }}};
};

TEST_F(Facce, TheCartWindowFollowsWhatIsAdded) {
    Aggiungi("A", "1");
    EXPECT_TRUE(controllo.Aggiungi_Da_Tavola("1", "P_1", "1"));
    EXPECT_EQ(Cella(Prodotto, 1, TOTALE), u"20.00");
    EXPECT_TRUE(controllo.Aggiungi_Da_Tavola("40", "P_1", "40"));
    EXPECT_EQ(Cella(Prodotto, 2, 2), u"B");
    carrello_aperto = false;
    Aggiungi("A", "1");
    EXPECT_EQ(Cella(Prodotto, 1, TOTALE), u"20.00");
    Aggiungi("ENORME", "25");
    EXPECT_THAT(c.messaggi.Testi(), ElementsAre("Overflow")) << "a failed add is shown";
    tavola.Colori.clear();
    Ricolora_Selezionati(c.progetto.Prodotti_Selezionati, "P_1", tavola);
    EXPECT_THAT(tavola.Colori.keys(), ElementsAre("1", "40"));
}

TEST_F(Facce, ALineThatTheMarketHidesIsEditedAndRemoved) {
    for (const char* riferimento : {"1", "8"})
        Aggiungi("A", riferimento);
    c.progetto.Mercato = "2";
    controllo.Ricarica();
    EXPECT_EQ(Cella(Prodotto, 1, 1), "-");
    controllo.Aziona_Cella(Prodotto, 1, QTA);
    controllo.Testo_Cambiato(Prodotto, Casella::Qta, "4");
    EXPECT_EQ(Riga("A-1").Quantita, 4);
    controllo.Aggiorna_Griglia_Evadi();
    controllo.Elimina_Riga(Ordine, 2);
    controllo.Elimina_Riga(Prodotto, 1);
    EXPECT_FALSE(controllo.Carrello().Griglia_.Visible);
}

TEST_F(Facce, EditsAQuantityLetterByLetter) {
    Aggiungi("B", "2");
    controllo.Aggiorna_Griglia_Evadi();
    controllo.Aziona_Cella(Prodotto, 1, QTA);
    EXPECT_EQ(vista.Mostrata, "1,5 5");
    EXPECT_THAT(chiamate.filter("Riga"), ElementsAre("Riga B"));
    EXPECT_EQ(tavola.Colori["2"], VERDE);
    vista.TopRow(3);
    controllo.Testo_Cambiato(Prodotto, Casella::Qta, "");
    EXPECT_EQ(Riga("B-2").Quantita, 1);
    for (const char* testo : {"1", "12", "12,"})
        controllo.Testo_Cambiato(Prodotto, Casella::Qta, testo);
    EXPECT_EQ(Cella(Prodotto, 1, QTA) + ' ' + Cella(Prodotto, 1, TOTALE), "12 30.00");
    EXPECT_EQ(vista.TopRow(), 3);
    EXPECT_TRUE(vista.Qta);

    // The order screen, not up, learns of it when it comes up, and once.
    controllo.Fuoco_Perso(Prodotto, Casella::Qta);
    EXPECT_FALSE(vista.Qta);
    EXPECT_EQ(Cella(Ordine, 1, QTA_ORDINE), u"5");
    Zona = 3;
    for (int volta = 0; volta < 2; ++volta)
        controllo.Fuoco_Perso(Prodotto, Casella::Qta);
    EXPECT_EQ(chiamate.count("Ordine"), 1);
    EXPECT_EQ(Cella(Ordine, 1, QTA_ORDINE), u"12");
}

TEST_F(Facce, TheBoxSaysWhatItsTextCountsAsAndGivesBackWhatWasThere) {
    Aggiungi("B", "2");
    Riga("B-2").Nota = "prima";
    controllo.Tasto_Cella(Prodotto, 1, 0);  // from the cell that removes
    EXPECT_EQ(vista.Mostrata, "1,5 5");
    for (const auto& [testo, detto] : {std::pair("abc", "= 1"), {"7", ""}, {"2,50", ""}, {"3 pz", "= 3"}}) {
        controllo.Testo_Cambiato(Prodotto, Casella::Qta, testo);
        EXPECT_EQ(vista.Spiegata, detto) << testo;
    }
    controllo.Annulla_Casella(Prodotto, Casella::Qta);
    EXPECT_EQ(Riga("B-2").Quantita, 5);
    EXPECT_EQ(Cella(Prodotto, 1, QTA), "5");
    controllo.Tasto_Cella(Prodotto, 1, QTA + 1);
    controllo.Testo_Cambiato(Prodotto, Casella::Note, "dopo");
    controllo.Annulla_Casella(Prodotto, Casella::Note);
    EXPECT_EQ(Riga("B-2").Nota, "prima");
}

TEST_F(Facce, AddsAndRemovalsAreTakenBackOneByOne) {
    for (const char* codice : {"A", "B", "A"})
        Aggiungi(codice, codice == QString("A") ? "1" : "2");
    EXPECT_EQ(chiamate.last(), "Pannello A: 2 in the cart");
    controllo.Aggiorna_Griglia_Evadi();
    controllo.Elimina_Riga(Prodotto, 1);
    EXPECT_EQ(tavola.Stato("1"), 1);
    // Code and quantity of the lines after each step back.
    for (const char* righe : {"A 2 B 5", "A 1 B 5", "A 1", "", ""}) {
        controllo.Annulla();
        QStringList ora;
        for (const Class_Elenco& riga :
             c.progetto.Prodotti_Selezionati.Item("P_1").Collection_Elenco_Selezionati())
            ora << riga.Codice << QString::number(riga.Quantita);
        EXPECT_EQ(ora.join(' '), righe);
        EXPECT_EQ(tavola.Stato("1") == 0, ora.contains("A"));
    }
    EXPECT_EQ(chiamate.last(), "Pannello A: 0 in the cart");
    Aggiungi("A", "1");
    controllo.Dimentica_Cambi();
    controllo.Annulla();
    EXPECT_EQ(Riga("A-1").Quantita, 1);
}

TEST_F(Facce, TheOrderScreenRemovesAndItsNoteAppliesTheLinesNoteAgain) {
    Aggiungi("A", "1");
    Aggiungi("B", "2");
    controllo.Aggiorna_Griglia_Evadi();
    controllo.Aziona_Cella(Ordine, 1, NOTA_ORDINE);
    controllo.Testo_Cambiato(Ordine, Casella::Note, "prima");
    controllo.Fuoco_Perso(Ordine, Casella::Note);
    Riga("A-1").Nota = "dopo";
    controllo.Text_Nota_Ordine_Cambiato();
    EXPECT_EQ(Riga("A-1").Nota, u"prima");

    // By keyboard, and only a row that has a line.
    controllo.Elimina_Riga(Ordine, 3);
    EXPECT_EQ(Cella(Ordine, 1, 3) + Cella(Prodotto, 1, 2), "AA");
    controllo.Elimina_Riga(Ordine, 1);
    EXPECT_EQ(Cella(Ordine, 1, 3) + Cella(Prodotto, 1, 2), "BB");
}

TEST_F(Facce, AClickElsewhereClosesTheBoxesAndOnAPlainCellLightsTheComponent) {
    Aggiungi("A", "1");
    const std::function<void()> modi[] = {[this] { controllo.Scorsa(Prodotto); },
                                          [this] { controllo.Aziona_Cella(Prodotto, 1, 2); },
                                          [this] { controllo.Ridimensionata(); }};
    for (const auto& chiudi : modi) {
        controllo.Aziona_Cella(Prodotto, 1, QTA);
        ASSERT_TRUE(vista.Qta);
        chiudi();
        EXPECT_FALSE(vista.Qta);
    }
    controllo.Aziona_Cella(Prodotto, 1, QTA);
    controllo.Carrello().In_Riempimento = true;
    controllo.Scorsa(Prodotto);
    EXPECT_TRUE(vista.Qta) << "a fill scrolls too";
    EXPECT_THAT(chiamate.filter("Evidenzia"), ElementsAre("Evidenzia P_1 A 1"));
}

}  // namespace

#include <gmock/gmock.h>

#include "core/cart/clic_carrello.h"

namespace {

/// A grid of one row of a cart, one linked component and one total; the order screen's has the product in
/// column 1.
struct Carrello_Finto {
    explicit Carrello_Finto(Faccia f) : faccia(f), p(f == Faccia::Ordine ? 1 : 0), tag(20) {
        griglia.Cols(6 + p);
        for (const char* riferimento : {"7", "^", " "})
            griglia.AddItem(QString(p ? "\tUno\t" : "\t") + riferimento);
        griglia.RemoveItem(1);
        for (int r = 1; r <= 3; ++r) {
            if (p)
                tag.Imposta(r, 1, r == 3 ? "Prodotto| " : "Prodotto|P_1");
            tag.Imposta(r, 4 + p, r == 1 ? "Qta|A" : "Qta|");
            tag.Imposta(r, 5 + p, r == 1 ? "Note|A" : "Note|");
        }
        tag.Imposta(1, 0, "Elimina|A");
        tag.Imposta(1, 2 + p, "Image|a.png");
        tag.Imposta(1, 3 + p, "Document|a.pdf");
    }
    Azione_Carrello Azione(int riga, int colonna) const {
        return Azione_Cella_Carrello(griglia, tag, faccia, riga, colonna);
    }
    /// The kinds of the row's cells, a letter each.
    std::string Generi(int riga) const {
        std::string generi;
        for (int c = 0; c < griglia.Cols(); ++c)
            generi += "-VIDXQN"[static_cast<int>(Azione(riga, c).Tipo)];
        return generi;
    }
    int Puntatore(int riga, int colonna, int y = 0) {
        griglia.MouseRow = riga;
        griglia.MouseCol = colonna;
        Mouse_Move_Carrello(griglia, tag, faccia, y);
        return griglia.MousePointer;
    }
    Faccia faccia;
    int p;
    Griglia griglia;
    Tag_Griglia tag;
};

TEST(Clic_Carrello, CartWindow) {
    const Carrello_Finto c(Faccia::Prodotto);
    EXPECT_EQ(c.Generi(1), "XVIDQN");
    for (const int riga : {0, 2, 3, 9})
        EXPECT_EQ(c.Generi(riga), "------") << riga;
    EXPECT_EQ(c.Azione(1, 0).Chiave, "A-7");
    EXPECT_EQ(c.Azione(1, 1).Codice + c.Azione(1, 1).Riferimento, "A7");
    EXPECT_EQ(c.Azione(1, 2).Voce, "a.png");
    for (const auto& [r, colonna] : {std::pair(21, 0), {1, 26}, {1, -1}})
        EXPECT_EQ(c.Azione(r, colonna).Tipo, Azione_Carrello::Genere::Nessuna);
}

TEST(Clic_Carrello, OrderScreen) {
    Carrello_Finto c(Faccia::Ordine);
    EXPECT_EQ(c.Generi(1), "X--IDQN");
    for (const int riga : {2, 3})
        EXPECT_EQ(c.Generi(riga), "-------") << riga;
    EXPECT_EQ(c.Azione(1, 5).Prodotto + c.Azione(1, 5).Chiave, "P_1A-7");
    c.griglia.TextMatrix(1, 2, "-");
    EXPECT_EQ(c.Azione(1, 0).Chiave, "A-A") << "a row without a reference names its code twice";
    c.tag.Imposta(1, 1, "");
    EXPECT_EQ(c.Azione(1, 5).Tipo, Azione_Carrello::Genere::Nessuna);
}

TEST(Clic_Carrello, Pointer) {
    for (const Faccia faccia : {Faccia::Prodotto, Faccia::Ordine}) {
        Carrello_Finto c(faccia);
        const int p = c.p, niente = p ? 0 : 1, fondo = c.griglia.RowHeight * c.griglia.Rows();
        const std::tuple<int, int, int, int> casi[] = {{1, 0, 0, 99},        {2, 0, 0, niente},
                                                       {1, 2 + p, 0, 99},    {3, 5 + p, 0, 3},
                                                       {1, 4 + p, fondo, 3}, {1, 4 + p, fondo + 1, niente},
                                                       {0, 4 + p, 0, niente}};
        for (const auto& [riga, colonna, y, atteso] : casi)
            EXPECT_EQ(c.Puntatore(riga, colonna, y), atteso) << riga << ',' << colonna << ' ' << y;
    }
}

}  // namespace

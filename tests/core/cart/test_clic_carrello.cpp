#include <gmock/gmock.h>

#include "core/cart/clic_carrello.h"

namespace {

/// A grid of one row of a cart, one linked component and one total; the order screen's has the product in
/// column 1.
struct Carrello_Finto {
    explicit Carrello_Finto(Faccia f) : faccia(f), p(f == Faccia::Ordine ? 1 : 0) {
        griglia.Cols(6 + p);
        griglia.RemoveItem(1);
        for (const auto& [r, riferimento] : {std::pair(1, "7"), {2, "^"}, {3, " "}}) {
            griglia.AddItem({" ", riferimento, riferimento});
            if (p)
                tag.Imposta(r, 1, r == 3 ? "Prodotto| " : "Prodotto|P_1");
            tag.Imposta(r, 4 + p, r == 1 ? "Qta|A" : "Qta|");
            tag.Imposta(r, 5 + p, r == 1 ? "Note|A" : "Note|");
        }
        griglia.RemoveItem(1);
        tag.Imposta(1, 0, "Elimina|A");
        tag.Imposta(1, 2 + p, "Image|a.png");
        tag.Imposta(1, 3 + p, "Document|a.pdf");
    }
    Azione_Cella Azione(int riga, int colonna) const {
        return Clic_Carrello(griglia, tag, faccia, riga, colonna);
    }
    /// The kinds of the row's cells, and their pointers, a letter each.
    std::string Generi(int riga) const {
        std::string generi, puntatori;
        for (int c = -1; c <= Tag_Griglia::ULTIMA_COLONNA + 1; ++c)
            generi += "-VIDAXQN"[static_cast<int>(Azione(riga, c).Tipo)];
        for (int c = -1; c < griglia.Cols(); ++c)
            puntatori += std::map<Puntatore, char>{
                {Puntatore::Nessuno, '0'},
                {Puntatore::Freccia, '1'},
                {Puntatore::Testo, 'T'},
                {Puntatore::Mano,
                 'M'}}.at(Puntatore_Carrello(griglia, tag, faccia, riga, c));
        return generi.substr(0, generi.find_last_not_of('-') + 1) + ' ' + puntatori;
    }
    Faccia faccia;
    int p;
    Griglia griglia;
    Tag_Griglia tag{20};
};

TEST(Clic_Carrello, CartWindow) {
    const Carrello_Finto c(Faccia::Prodotto);
    const char* righe[] = {" 1111111", "-XVIDQNVVVVVVVVVVVVVVVVVVVV 1M1MMTT", " 11111TT", " 11111TT",
                           " 1111111"};
    for (int riga = 0; riga < 5; ++riga)
        EXPECT_EQ(c.Generi(riga), righe[riga]) << riga;
    EXPECT_EQ(c.Azione(1, 1).Codice + c.Azione(1, 1).Riferimento, "A7");
    EXPECT_EQ(c.Azione(1, 2).Voce, "a.png");
    EXPECT_EQ(c.Azione(1, 0).Codice + c.Azione(1, 0).Riferimento + c.Azione(1, 0).Prodotto, "A7");
}

TEST(Clic_Carrello, OrderScreen) {
    Carrello_Finto c(Faccia::Ordine);
    const char* righe[] = {" 00000000", "-X--IDQN 0MM0MMTT", " 00M000TT", " 00M000TT", " 00000000"};
    for (int riga = 0; riga < 5; ++riga)
        EXPECT_EQ(c.Generi(riga), righe[riga]) << riga;
    EXPECT_EQ(c.Azione(1, 5).Codice + c.Azione(1, 5).Riferimento + c.Azione(1, 5).Prodotto, "A7P_1");
    c.tag.Imposta(1, 1, "");
    EXPECT_EQ(c.Azione(1, 5).Tipo, Azione_Cella::Genere::Nessuna);
}

}  // namespace

#include <gmock/gmock.h>

#include "core/cart/clic_carrello.h"

namespace {

using Genere = Azione_Carrello::Genere;

/// A grid of one row of a cart, one linked component and one total; the order screen's has the product in
/// column 1.
struct Carrello_Finto {
    explicit Carrello_Finto(Faccia f) : faccia(f), tag(20) {
        const int p = f == Faccia::Ordine ? 1 : 0;
        griglia.Cols(6 + p);
        for (const char* riferimento : {"7", "^", " "})
            griglia.AddItem(QString(p ? "\tUno\t" : "\t") + riferimento);
        griglia.RemoveItem(1);
        for (int r = 1; r <= 3; ++r) {
            const QString chiave = r == 1 ? "A" : "";
            tag.Imposta(r, 0, r == 1 ? "Elimina|A" : "");
            if (p)
                tag.Imposta(r, 1, r == 3 ? "Prodotto| " : "Prodotto|P_1");
            tag.Imposta(r, 2 + p, r == 1 ? "Image|a.png" : "");
            tag.Imposta(r, 3 + p, r == 1 ? "Document|a.pdf" : "");
            tag.Imposta(r, 4 + p, "Qta|" + chiave);
            tag.Imposta(r, 5 + p, "Note|" + chiave);
        }
    }
    Azione_Carrello Azione(int riga, int colonna) const {
        return Azione_Cella_Carrello(griglia, tag, faccia, riga, colonna);
    }
    int Puntatore(int riga, int colonna, int y = 0) {
        griglia.MouseRow = riga;
        griglia.MouseCol = colonna;
        Mouse_Move_Carrello(griglia, tag, faccia, y);
        return griglia.MousePointer;
    }
    Faccia faccia;
    Griglia griglia;
    Tag_Griglia tag;
};

TEST(Clic_Carrello, CartWindow) {
    const Carrello_Finto c(Faccia::Prodotto);
    const Genere attesi[][6] = {
        {Genere::Nessuna, Genere::Nessuna, Genere::Nessuna, Genere::Nessuna, Genere::Nessuna,
         Genere::Nessuna},
        {Genere::Elimina, Genere::Evidenzia, Genere::Image, Genere::Document, Genere::Qta, Genere::Note},
        {Genere::Nessuna, Genere::Nessuna, Genere::Nessuna, Genere::Nessuna, Genere::Nessuna,
         Genere::Nessuna},
        {Genere::Nessuna, Genere::Nessuna, Genere::Nessuna, Genere::Nessuna, Genere::Nessuna,
         Genere::Nessuna},
    };
    for (int r = 0; r < 4; ++r)
        for (int colonna = 0; colonna < 6; ++colonna)
            EXPECT_EQ(c.Azione(r, colonna).Tipo, attesi[r][colonna]) << r << ' ' << colonna;
    EXPECT_EQ(c.Azione(1, 0).Chiave, u"A-7");
    EXPECT_EQ(c.Azione(1, 4).Chiave, u"A-7");
    EXPECT_EQ(c.Azione(1, 4).Prodotto, QString());
    EXPECT_EQ(c.Azione(1, 1).Codice + c.Azione(1, 1).Riferimento, u"A7");
    EXPECT_EQ(c.Azione(1, 2).Voce, u"a.png");
    for (const auto& [r, colonna] : {std::pair(9, 0), std::pair(21, 0), std::pair(1, 26), std::pair(1, -1)})
        EXPECT_EQ(c.Azione(r, colonna).Tipo, Genere::Nessuna);
}

TEST(Clic_Carrello, OrderScreen) {
    Carrello_Finto c(Faccia::Ordine);
    const Genere attesi[] = {Genere::Elimina,  Genere::Nessuna, Genere::Nessuna, Genere::Image,
                             Genere::Document, Genere::Qta,     Genere::Note};
    for (int colonna = 0; colonna < 7; ++colonna) {
        EXPECT_EQ(c.Azione(1, colonna).Tipo, attesi[colonna]) << colonna;
        EXPECT_EQ(c.Azione(2, colonna).Tipo, Genere::Nessuna) << colonna;
        EXPECT_EQ(c.Azione(3, colonna).Tipo, Genere::Nessuna) << colonna;
    }
    EXPECT_EQ(c.Azione(1, 5).Prodotto, u"P_1");
    EXPECT_EQ(c.Azione(1, 5).Chiave, u"A-7");
    // A row without a reference names its code twice.
    c.griglia.TextMatrix(1, 2, "-");
    EXPECT_EQ(c.Azione(1, 0).Chiave, u"A-A");
    c.tag.Imposta(1, 1, "");
    EXPECT_EQ(c.Azione(1, 5).Tipo, Genere::Nessuna);
}

TEST(Clic_Carrello, Pointer) {
    for (const Faccia faccia : {Faccia::Prodotto, Faccia::Ordine}) {
        Carrello_Finto c(faccia);
        const int p = faccia == Faccia::Ordine ? 1 : 0;
        const int niente = faccia == Faccia::Ordine ? 0 : 1;
        EXPECT_EQ(c.Puntatore(1, 0), 99);
        EXPECT_EQ(c.Puntatore(2, 0), niente);
        EXPECT_EQ(c.Puntatore(1, 1 + p), niente);
        EXPECT_EQ(c.Puntatore(1, 2 + p), 99);
        EXPECT_EQ(c.Puntatore(1, 4 + p), 3);
        EXPECT_EQ(c.Puntatore(3, 5 + p), 3);
        EXPECT_EQ(c.Puntatore(1, 4 + p, c.griglia.RowHeight * c.griglia.Rows()), 3);
        EXPECT_EQ(c.Puntatore(1, 4 + p, c.griglia.RowHeight * c.griglia.Rows() + 1), niente);
        EXPECT_EQ(c.Puntatore(0, 4 + p), niente);
        EXPECT_EQ(c.Puntatore(1, 26), niente);
    }
    EXPECT_EQ(Carrello_Finto(Faccia::Ordine).Puntatore(1, 1), 99);
}

}  // namespace

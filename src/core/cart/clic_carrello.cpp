#include "core/cart/clic_carrello.h"

namespace {

using Genere = Azione_Cella::Genere;

bool Dentro(const Griglia& griglia, const Tag_Griglia& tag, int riga, int colonna) {
    return riga >= 1 && riga < griglia.Rows() && tag.Contiene(riga, colonna);
}

/// A click on a plain cell of the cart window stands for the component of its row.
Azione_Cella Evidenzia_Riga(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga) {
    Azione_Cella azione;
    if (faccia == Faccia::Prodotto)
        azione = Cerca_Azione(tag, riga, Genere::Qta);
    azione.Tipo = azione.Codice.isEmpty() ? Genere::Nessuna : Genere::Evidenzia;
    azione.Riferimento = griglia.TextMatrix(riga, 1);
    return azione;
}

}  // namespace

Azione_Cella Clic_Carrello(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga,
                           int colonna) {
    if (!Dentro(griglia, tag, riga, colonna))
        return {};
    if (tag.At(riga, colonna).isEmpty())
        return Evidenzia_Riga(griglia, tag, faccia, riga);
    Azione_Cella azione = Leggi_Tag(tag, riga, colonna);
    if (azione.Tipo == Genere::Image || azione.Tipo == Genere::Document)
        return azione;
    // A click that concerns the line of the row.
    const bool ordine = faccia == Faccia::Ordine;
    azione.Prodotto = ordine ? Campo_Tag(tag.At(riga, 1), 2) : QString();
    azione.Riferimento = griglia.TextMatrix(riga, ordine ? 2 : 1);
    // What the row shows doesn't tell the line: a part that the market hides has no reference.
    azione.Chiave = tag.Riga(riga);
    if (azione.Codice.isEmpty() || (ordine && azione.Prodotto.isEmpty()))
        azione.Tipo = Genere::Nessuna;
    return azione;
}

Puntatore Puntatore_Carrello(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga,
                             int colonna) {
    const Puntatore puntatore =
        Dentro(griglia, tag, riga, colonna) ? Puntatore_Tag(tag.At(riga, colonna)) : Puntatore::Freccia;
    return puntatore == Puntatore::Freccia && faccia == Faccia::Ordine ? Puntatore::Nessuno : puntatore;
}

#include "core/cart/clic_carrello.h"

#include "core/cart/selezione.h"
#include "core/griglia/celle.h"

namespace {

using Genere = Azione_Carrello::Genere;

bool Dentro(const Tag_Griglia& tag, int riga, int colonna) {
    return riga >= 1 && riga <= tag.Ultima_Riga() && colonna >= 0 && colonna <= Tag_Griglia::ULTIMA_COLONNA;
}

/// A click on a plain cell stands for the component of its row.
Azione_Carrello Evidenzia_Riga(const Griglia& griglia, const Tag_Griglia& tag, int riga) {
    Azione_Carrello azione;
    for (int c = 0; c <= Tag_Griglia::ULTIMA_COLONNA; ++c)
        if (const QString& testo = tag.At(riga, c); Campo_Tag(testo, 1) == u"Qta") {
            azione.Codice = Campo_Tag(testo, 2);
            azione.Riferimento = griglia.TextMatrix(riga, 1);
            if (!azione.Codice.isEmpty())
                azione.Tipo = Genere::Evidenzia;
            break;
        }
    return azione;
}

/// A click that concerns the line of the row.
Azione_Carrello Azione_Riga(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga,
                            const QString& codice, Genere genere) {
    Azione_Carrello azione;
    azione.Codice = codice;
    azione.Prodotto = faccia == Faccia::Ordine ? Campo_Tag(tag.At(riga, 1), 2) : QString();
    if (codice.isEmpty() || (faccia == Faccia::Ordine && azione.Prodotto.isEmpty()))
        return azione;
    azione.Riferimento = griglia.TextMatrix(riga, faccia == Faccia::Ordine ? 2 : 1);
    azione.Chiave = Chiave_Elenco(azione.Riferimento, codice);
    azione.Tipo = genere;
    return azione;
}

}  // namespace

Azione_Carrello Azione_Cella_Carrello(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga,
                                      int colonna) {
    if (!Dentro(tag, riga, colonna) || riga >= griglia.Rows())
        return {};
    const QString& testo = tag.At(riga, colonna);
    if (testo.isEmpty())
        return faccia == Faccia::Prodotto ? Evidenzia_Riga(griglia, tag, riga) : Azione_Carrello();
    const QString genere = Campo_Tag(testo, 1), voce = Campo_Tag(testo, 2);
    if (genere == u"Image" || genere == u"Document") {
        Azione_Carrello azione;
        azione.Tipo = genere == u"Image" ? Genere::Image : Genere::Document;
        azione.Voce = voce;
        return azione;
    }
    if (genere == u"Elimina")
        return Azione_Riga(griglia, tag, faccia, riga, voce, Genere::Elimina);
    if (genere == u"Qta")
        return Azione_Riga(griglia, tag, faccia, riga, voce, Genere::Qta);
    if (genere == u"Note")
        return Azione_Riga(griglia, tag, faccia, riga, voce, Genere::Note);
    return {};
}

void Mouse_Move_Carrello(Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int y) {
    griglia.MousePointer = faccia == Faccia::Ordine ? 0 : 1;
    const int r = griglia.MouseRow, c = griglia.MouseCol;
    if (y > griglia.RowHeight * griglia.Rows() || !Dentro(tag, r, c))
        return;
    const QString genere = Campo_Tag(tag.At(r, c), 1);
    if (!genere.isEmpty())
        griglia.MousePointer = genere == u"Note" || genere == u"Qta" ? 3 : 99;
}

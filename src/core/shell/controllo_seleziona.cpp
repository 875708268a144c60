#include "core/shell/controllo_seleziona.h"

#include "core/parts_tables/allegati_griglia.h"
#include "core/shell/controllo_principale.h"

void Controllo_Seleziona::Ricarica() {
    const QString& prodotto = schermo_.Progetto().Key_Prodotto_Corrente;
    if (!prodotto.isEmpty()) {
        Visualizza_Griglia_Distinta_Prodotto(schermo_.Contesto_Distinta_Corrente(), prodotto, riferimento_,
                                             true, griglia_, tag_, true);
        return;
    }
    griglia_.Visible = false;
    if (griglia_.Cambiata)
        griglia_.Cambiata();
}

bool Controllo_Seleziona::Clic() {
    using Genere = Azione_Cella::Genere;
    const Azione_Cella azione = Clic_Griglia(griglia_, tag_);
    switch (azione.Tipo) {
        case Genere::Image:
            schermo_.Mostra_Immagine(Percorso_Immagine_Cella(azione.Voce, schermo_.Progetto()));
            break;
        case Genere::Document:
            Apri_Documento_Cella(azione.Voce, schermo_.Progetto(), schermo_.Progetto().Desktop().sistema);
            break;
        case Genere::Add_Componente:
            esito_ =
                schermo_.Carrello().Aggiungi_Da_Selezione(azione.Prodotto, azione.Codice, azione.Riferimento);
            break;
        case Genere::Evidenzia:  // a plain cell of this list does nothing
        case Genere::Nessuna:
            break;
    }
    return esito_;
}

#include "core/shell/controllo_seleziona.h"

#include "core/parts_tables/clic_griglia.h"
#include "core/parts_tables/distinta.h"

void Controllo_Seleziona::Ricarica() {
    if (const QString prodotto = schermo_.Prodotto_Corrente(); !prodotto.isEmpty())
        Visualizza_Griglia_Distinta_Prodotto(Contesto_Lista(), prodotto, riferimento_, true, griglia_, tag_,
                                             true);
    else
        griglia_.Nascondi();
}

bool Controllo_Seleziona::Clic(int riga, int colonna) {
    // A plain cell of this list does nothing.
    Esegui_Azione(Clic_Griglia(tag_, riga, colonna), Contesto_Lista(),
                  {.Mostra_Immagine = [this](const QString& percorso) { schermo_.Mostra_Immagine(percorso); },
                   .Aggiungi =
                       [this](const Azione_Cella& a) {
                           scelto_ = {a.Codice, a.Riferimento};
                       }});
    return scelto_.has_value();
}

#include "core/shell/controllo_seleziona.h"

#include "core/shell/controllo_principale.h"

void Controllo_Seleziona::Ricarica() {
    const QString& prodotto = schermo_.Progetto().Key_Prodotto_Corrente;
    if (!prodotto.isEmpty()) {
        Visualizza_Griglia_Distinta_Prodotto(schermo_.Contesto_Distinta_Corrente(), prodotto, riferimento_,
                                             true, griglia_, tag_, true);
        return;
    }
    griglia_.Nascondi();
}

bool Controllo_Seleziona::Clic(int riga, int colonna) {
    // A plain cell of this list does nothing.
    Esegui_Azione(Clic_Griglia(tag_, riga, colonna), schermo_.Contesto_Distinta_Corrente(),
                  {.Mostra_Immagine = [this](const QString& percorso) { schermo_.Mostra_Immagine(percorso); },
                   .Aggiungi =
                       [this](const Azione_Cella& a) {
                           esito_ =
                               schermo_.Carrello().Aggiungi_Da_Selezione(a.Prodotto, a.Codice, a.Riferimento);
                       }});
    return esito_;
}

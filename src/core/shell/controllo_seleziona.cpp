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
    Azione_Cella azione = Clic_Griglia(tag_, riga, colonna);
    // A row is there to be picked: any cell of it does, but for a picture or a document to look at first.
    if (riga < 1 || riga >= griglia_.Rows() || !tag_.Contiene(riga, 0))
        return false;
    if (azione.Tipo == Azione_Cella::Genere::Nessuna || azione.Tipo == Azione_Cella::Genere::Evidenzia)
        azione = Cerca_Azione(tag_, riga, Azione_Cella::Genere::Add_Componente);
    Esegui_Azione(azione, Contesto_Lista(),
                  {.Mostra_Immagine = [this](const QString& percorso) { schermo_.Mostra_Immagine(percorso); },
                   .Aggiungi =
                       [this](const Azione_Cella& a) {
                           scelto_ = {a.Codice, a.Riferimento};
                       }});
    return scelto_.has_value();
}

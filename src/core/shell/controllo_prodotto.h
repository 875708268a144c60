#pragma once

#include "core/drawing/controllo_disegno.h"
#include "core/shell/stanza.h"

/// The page of a product: its sheet, or its drawing and parts list in step with each other.
class Controllo_Prodotto : public Stanza {
  public:
    Controllo_Prodotto(Ambiente& ambiente, Schermo& schermo, Lavagna& lavagna);
    Controllo_Disegno& Disegno() { return disegno_; }
    Griglia& Griglia_Distinta() { return griglia_; }
    Tag_Griglia& Tag_Distinta() { return tag_; }

    // What `Schermo` offers of this page.

    void Consulta_Catalogo(bool forza);
    void Mostra_Nodo(const QString& key);
    void Seleziona_Prodotto(const QString& key);
    void Visualizza_Disegno_Esploso(const QString& key);
    void Evidenzia_In_Distinta(const QString& key);

    /// The user clicked a cell of the parts list.
    void Clic_Distinta(int riga, int colonna);
    /// The parts list has another width: its columns are rebuilt, its rows kept.
    void Griglia_Ridimensionata();
    /// The user gave the parts list this height, in twips: it is kept for the next start too.
    void Altezza_Distinta_Scelta(int altezza);
    /// The vertical splitter moved, or the window grew: `posizione` in twips from the toolbar.
    void Splitter_V_Spostato(int posizione);
    /// The user asked the sheet for the drawing of its product.
    void Consulta_Esploso();
    /// The user clicked the attachment of a sheet's entry.
    void Apri_Allegato(const QString& percorso);

    void Catalogo_Ricaricato() override { disegno_.Imposta_Lampeggio(); }

  private:
    void Carica_Scheda(const QString& key);
    void Mostra_Disegno(const QString& prodotto);
    void Riempi_Distinta(const QString& prodotto, bool ricarica_righe);
    void Nascondi_Vista_Prodotto();

    Controllo_Disegno disegno_;
    Griglia griglia_;
    Tag_Griglia tag_{1000};
    QString prodotto_in_distinta_;  ///< whose parts the grid shows, "" for none
    int colonna_codice_ = 0;        ///< of the grid as it was last filled
};

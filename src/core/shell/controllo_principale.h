#pragma once

#include <QString>
#include <memory>

#include "core/base/finestra_principale.h"
#include "core/drawing/controllo_disegno.h"
#include "core/package/class_progetto_aperto.h"
#include "core/parts_tables/distinta.h"
#include "core/shell/carrello_principale.h"
#include "core/shell/controllo_accesso.h"
#include "core/shell/stato_finestra.h"
#include "core/shell/vista_principale.h"

/// The main screen: the command routine behind toolbar and links, the states of all buttons and panels,
/// opening a catalogue with all its consequences, what follows from a click in the tree, and the page of a
/// product: its sheet, or its drawing and parts list in step with each other and with the cart.
class Controllo_Principale : public Finestra_Principale, private Pagina_Disegno {
  public:
    Controllo_Principale(Class_Progetto_Aperto& progetto, Class_Progetto_Aperto::Porte porte,
                         QString cartella_installazione);
    ~Controllo_Principale() override;
    /// The window, once it is made; before that nothing is shown.
    void Collega(Vista_Principale& vista);
    /// The window is about to go, and the canvas with it.
    void Scollega();

    Stato_Finestra& Stato() { return stato_; }
    Griglia& Griglia_Distinta() { return griglia_distinta_; }
    Tag_Griglia& Tag_Distinta() { return tag_distinta_; }
    Class_Progetto_Aperto& Progetto() { return progetto_; }
    /// The cart with its two faces, `Form_Carrello_Prodotto` and the order screen.
    Controllo_Carrello& Carrello() { return carrello_.Controllo(); }
    /// What a fill of a parts list works on, with the filters of the moment.
    Contesto_Griglia Contesto_Distinta_Corrente();
    /// What the dialogs of log-in, language and market work on.
    Controllo_Accesso& Accesso() { return accesso_; }

    /// Runs a command by its key. For a two-state button, the state in `Stato().Bottoni` is the new one
    /// already.
    void Esegui_Comando(const QString& key);
    /// A click on a toolbar button: flips a two-state button, then runs its command. Nothing when it is
    /// disabled.
    void Clic_Bottone(const QString& key);

    // --- opening
    // -----------------------------------------------------------------------------------------------------
    /// Long work is under way: commands are ignored meanwhile, and the window refuses to close.
    bool Occupato() const { return occupato_; }
    /// The window's load: opens the catalogue of the command line, else shows the empty state.
    void Avvia(const QString& riga_comando);
    /// The window's first activation: the vertical split by the catalogue of the command line. Forgets the
    /// command line.
    void Prima_Attivazione();
    /// The window's unload: false when it has to stay; else the catalogue is closed, and the document of a
    /// command line that was never activated is opened.
    bool Chiudi();
    /// Opens a catalogue with all its screen consequences. Anything that isn't a `.TZF` file is ignored.
    void Apri_Catalogo(const QString& percorso);
    void Apri_Progetto();
    /// Rebuilds all that hangs on user, language or market. Fails on a tree that can't be shown.
    void Ricarica_Vista_Catalogo();

    // --- screens
    // -----------------------------------------------------------------------------------------------------
    qint16 Restitusci_Zona_catalogo() const override { return stato_.Zona(); }
    void Mostra_Intro() override;
    void Consulta_Catalogo(bool forza);
    void Mostra_Ordine();
    void Aggiorna_Toolbar() override;
    void Abilita_Finestra(bool abilita);
    void Nascondi_Vista_Prodotto();
    void Pulisci_Barra_Stato() override;
    bool Verifica_Accesso(bool forza) override;
    void Seleziona_Prodotto(const QString& key) override;
    void Visualizza_Disegno_Esploso(const QString& key) override;
    /// The user chose a language on the home page.
    void Scegli_Lingua_Home(const QString& descrizione);
    void Visualizza_Help();
    /// Opens the updates page in the browser.
    void Visualizza_Aggiornamenti();

    // --- tree
    // --------------------------------------------------------------------------------------------------------
    void Seleziona_Nodo_Albero(const QString& key) override;
    /// The user clicked a node of the tree.
    void Clic_Nodo(const QString& key);
    /// The user opened or closed a node.
    void Nodo_Aperto(const QString& key, bool aperto);
    void Cerca_Nodo_Albero(const QString& testo);
    void Applica_Filtro_Matricola();

    /// The user moved the vertical splitter, or the window grew: `posizione` in twips from the toolbar.
    void Splitter_V_Spostato(int posizione);
    /// Columns rebuilt for a new width of the grid, rows kept.
    void Griglia_Ridimensionata();
    /// The user clicked a cell of the parts list.
    void Clic_Distinta(int riga, int colonna);
    /// The user clicked the attachment of a sheet's entry.
    void Apri_Allegato(const QString& percorso);
    /// The user clicked a photograph of the sheet, or a picture of the parts list: `percorso` "" is none.
    void Mostra_Immagine(const QString& percorso);
    /// The user asked the sheet for the drawing of its product.
    void Consulta_Esploso();
    /// Marks the rows of a component in the parts list (`Evidenzia_Componente_in_distinta`).
    void Evidenzia_In_Distinta(const QString& key) override;

    // --- cart and order
    // ------------------------------------------------------------------------------------------------
    /// The order screen, with all lines of the cart.
    void Visualizza_Evasione_Ordine();
    /// The order's grid has another width: it is filled anew while it is on the screen.
    void Ordine_Ridimensionato();
    /// `Form_Carrello_Prodotto` was loaded, or unloaded in whichever way: its button follows.
    void Carrello_Caricato(bool caricato);
    /// The window in which the user chooses between the components of a reference; whether one was added.
    bool Mostra_Seleziona_Componente(const QString& riferimento);

  private:
    class Lavoro;

    // Command bodies, without the guard against commands during long work.
    void Comando(const QString& key);
    void Comando_Home();
    void Comando_Disegno();
    void Comando_Lingua();
    void Comando_Carrello();
    void Comando_Ordine();
    void Ricarica_Carrello();
    void Scarica_Carrello();
    void Carica_Lingue_Home();
    void Al_Clic_Nodo();
    void Seleziona_Nodo(const QString& key);
    bool Apri_E_Mostra(const QString& percorso, Avanzamento& avanzamento);
    bool Ricarica_O_Segnala();
    void Dividi_Come_Vuole_Il_Catalogo();

    // What the drawing asks of its page.
    Filtri Filtri_Correnti() const override { return progetto_.Filtri_Correnti(); }
    QString Prodotto_Corrente() const override { return progetto_.Key_Prodotto_Corrente; }
    bool Esiste_Nodo_Albero(const QString& key) const override {
        return progetto_.Tree1.Esiste_Nodo_Albero(key);
    }
    QString Padre_Nodo_Selezionato() const override;
    void Scrivi_Pannello(const QString& testo) override;

    void Carica_Scheda(const QString& key);
    void Mostra_Disegno(const QString& prodotto);
    void Riempi_Distinta(const QString& prodotto, bool ricarica_righe);
    void Aggiorna_Bottoni_Per_Zona();
    void Applica_Esclusioni();
    bool Impaginazione_Presente(const QString& tipo);
    QString System(const char* key) const;
    Stato_Bottone& Bottone(const QString& key) { return stato_.Bottoni[key]; }
    void Mostra();

    Class_Progetto_Aperto& progetto_;
    Class_Progetto_Aperto::Porte porte_;
    QString cartella_installazione_;
    Controllo_Accesso accesso_;
    QString riga_comando_;
    Vista_Principale* vista_ = nullptr;
    Stato_Finestra stato_;
    Griglia griglia_distinta_;
    Tag_Griglia tag_distinta_{1000};
    QString prodotto_in_distinta_;  ///< whose parts the grid shows, "" for none
    int colonna_codice_ = 0;        ///< of the grid as it was last filled
    Carrello_Principale carrello_{*this};
    std::unique_ptr<Controllo_Disegno> disegno_;  ///< as long as there is a canvas
    bool occupato_ = false;
    bool ridimensionata_ = false;  ///< the grid's width changed during long work
};

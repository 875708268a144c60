#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "core/base/schermo.h"
#include "core/cart/aggiunta.h"
#include "core/cart/clic_carrello.h"
#include "core/cart/cronologia.h"
#include "core/cart/griglia_carrello.h"

/// The text box that lies over a cell while it is edited: `Text_Qta` or `Text_Note`.
enum class Casella { Qta, Note };

/// The window of one face of the cart, with its grid and its two text boxes.
class Vista_Carrello {
  public:
    virtual ~Vista_Carrello() = default;
    /// Makes the cell current, lays the box over it with all its text selected and gives it the focus.
    virtual void Mostra_Casella(Casella casella, int riga, int colonna, const QString& testo) = 0;
    virtual void Nascondi_Casella(Casella casella) = 0;
    /// Says beside the box what its text was taken for; "" when that is plain.
    virtual void Spiega_Casella(Casella casella, const QString& testo) = 0;
    /// First data row in view.
    virtual int TopRow() const = 0;
    virtual void TopRow(int riga) = 0;
};

/// The zone in which the order screen is up.
inline constexpr qint16 ZONA_ORDINE = 3;

/// A face of the cart as it stands.
struct Faccia_Carrello {
    Griglia Griglia_;
    Tag_Griglia Tag;
    std::vector<Colonna_Griglia> Colonne;
    Vista_Carrello* Vista = nullptr;  ///< nullptr while the window is down
    bool Modificato = false;          ///< a line was changed here and the other face doesn't show it yet
    bool In_Riempimento = false;      ///< a scroll of the grid is no user's: the boxes stay

    /// What a text box holds; it keeps it when it is hidden.
    struct Testo_Casella {
        QString Prodotto, Chiave;  ///< the line being edited
        QString Testo;
        int riga = 0, colonna = 0;
        bool Visibile = false;
        QString Nota_Prima = {};   ///< what the line held when its editing began
        float Quantita_Prima = 0;  ///< likewise
    };
    Testo_Casella Qta, Note;
    Testo_Casella& Di(Casella casella) { return casella == Casella::Qta ? Qta : Note; }
};

/// The cart: adding, the two faces with their editors, and what each change asks of the screens around.
/// Failures of a click or a fill are silent; those of adding and of the quantity are shown.
class Controllo_Carrello {
  public:
    /// What is around the cart.
    struct Vicini {
        Schermo& schermo;
        Messaggi& messaggi;
        Tavola_Carrello& tavola;
        const bool& aperto;  ///< the cart's window is up
        std::function<Contesto_Carrello()>
            Contesto;  ///< what a fill works on, with the filters of the moment
        Scelta_Componente Scegli;
    };
    explicit Controllo_Carrello(Vicini vicini) : vicini_(std::move(vicini)), schermo_(vicini_.schermo) {}

    Faccia_Carrello& Carrello() { return carrello_; }
    Faccia_Carrello& Ordine() { return ordine_; }
    Faccia_Carrello& Di(Faccia faccia) { return faccia == Faccia::Ordine ? ordine_ : carrello_; }
    const Faccia_Carrello& Di(Faccia faccia) const { return faccia == Faccia::Ordine ? ordine_ : carrello_; }

    // --- adding
    // ----------------------------------------------------------------------------------------------------
    /// A row of a parts list; the cart window, if up, follows.
    void Aggiungi_Componente_Carrello_Evidenzia_Tavola(const QString& prodotto, const QString& codice,
                                                       const QString& riferimento);
    /// A drawing object; whether something was added.
    bool Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto, const QString& riferimento);

    /// Takes back the last add or removal; nothing when there was none in this catalogue.
    void Annulla();
    /// What was done can't be taken back any more.
    void Dimentica_Cambi() { cronologia_.Dimentica(); }

    // --- fills
    // -----------------------------------------------------------------------------------------------------
    /// The cart window, with the current product.
    void Ricarica();
    /// The cart window changed its size: columns only, the boxes go.
    void Ridimensionata();
    void Aggiorna_Griglia_Evadi();

    // --- events of a face
    // ----------------------------------------------------------------------------------------------
    /// The pointer over a cell.
    Puntatore Puntatore_Su(Faccia faccia, int riga, int colonna) const;
    /// A click on a cell: edits it, removes its line, or what else its tag says.
    void Aziona_Cella(Faccia faccia, int riga, int colonna);
    /// Enter or F2 on a cell: what a click does there, but where that removes the line its quantity is
    /// edited.
    void Tasto_Cella(Faccia faccia, int riga, int colonna);
    /// Gives the line back what it held when the box came up.
    void Annulla_Casella(Faccia faccia, Casella casella);
    /// Removes the line of a row, as a click on its `Elimina` cell does.
    void Elimina_Riga(Faccia faccia, int riga);
    /// The next cell that can be edited, row by row; false when there is none.
    bool Prossima_Cella(Faccia faccia, bool avanti, int& riga, int& colonna) const;
    /// The user scrolled the grid.
    void Scorsa(Faccia faccia);
    /// The text of a box changed, letter by letter.
    void Testo_Cambiato(Faccia faccia, Casella casella, const QString& testo);
    /// Kept: typing in the order's note applies the box of the lines' notes once more, and nothing else.
    void Text_Nota_Ordine_Cambiato();
    void Fuoco_Perso(Faccia faccia, Casella casella);

  private:
    Aggiunta_Carrello Aggiunta() const;
    void Aggiungi(const std::function<void()>& lavoro);
    void Mostra_Aggiunta();
    void Scrivi_Nel_Carrello(const QString& prodotto, const Class_Elenco& riga);
    void Mostra_Quantita(Faccia faccia, const Aggiunta_Carrello& carrello);
    void Con_Messaggio(const std::function<void()>& lavoro);
    void Riempi(Faccia faccia, const QString& chiave, bool ricarica_righe);
    Azione_Cella Azione(Faccia faccia, int riga, int colonna) const;
    void Esegui(Faccia faccia, const Azione_Cella& azione);
    void Elimina(Faccia faccia, const Azione_Cella& azione);
    void Modifica(Faccia faccia, const Azione_Cella& azione);
    void Evidenzia_Riga_Carrello(const QString& chiave);
    void Quantita_Cambiata(Faccia faccia, const QString& testo);
    void Nota_Cambiata(Faccia faccia, const QString& testo);
    void Nascondi(Faccia faccia, Casella casella);
    void Nascondi_Caselle(Faccia faccia);

    Vicini vicini_;
    Schermo& schermo_;
    Faccia_Carrello carrello_, ordine_;
    Cronologia_Carrello cronologia_;
};

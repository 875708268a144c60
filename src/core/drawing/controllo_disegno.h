#pragma once

#include <QString>
#include <QStringList>

#include "core/base/filtri.h"
#include "core/base/finestra_principale.h"
#include "core/base/porte.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/drawing/lavagna.h"

/// What the drawing asks of the screen around it.
class Pagina_Disegno {
  public:
    virtual ~Pagina_Disegno() = default;
    virtual Filtri Filtri_Correnti() const = 0;
    /// Key of the product on show, "" for none.
    virtual QString Prodotto_Corrente() const = 0;
    /// Whether the filters leave a node of this key in the visible tree.
    virtual bool Esiste_Nodo_Albero(const QString& key) const = 0;
    /// Key of the parent of the tree's selected node; "" when nothing is selected or it has no parent.
    virtual QString Padre_Nodo_Selezionato() const = 0;
    /// Marks the rows of a component in the parts list (`Evidenzia_Componente_in_distinta`).
    virtual void Evidenzia_In_Distinta(const QString& key) = 0;
    /// Writes the help line of the status bar.
    virtual void Scrivi_Pannello(const QString& testo) = 0;
};

/// What the drawing asks of the cart.
class Carrello_Disegno {
  public:
    virtual ~Carrello_Disegno() = default;
    /// Whether the store has a record of the product, also one without lines.
    virtual bool Esiste_Prodotto(const QString& prodotto) const = 0;
    /// Whether the product has the line of this component; "-" and "" are references too.
    virtual bool Esiste_Riga(const QString& prodotto, const QString& riferimento,
                             const QString& codice) const = 0;
    /// Adds what a hotspot stands for, through the choice window when it has several codes; whether it did.
    virtual bool Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto,
                                    const QString& riferimento) = 0;
};

/// What the drawing asks of the component detail window while that is up.
class Dettaglio_Disegno {
  public:
    virtual ~Dettaglio_Disegno() = default;
    /// Sets the window's tag and reloads it.
    virtual void Mostra_Riferimento(const QString& riferimento) = 0;
    /// Writes the band `Frame_Banda_Intro`.
    virtual void Scrivi_Banda(const QString& testo) = 0;
};

/// The exploded drawing: shows a product's drawing on the canvas, keeps its hotspots in step with the parts
/// list and the cart, and follows links. It answers the canvas's events as long as it lives; the canvas
/// outlives it.
class Controllo_Disegno {
  public:
    struct Vicini {
        Lavagna& lavagna;
        const Class_DBOper& DB;
        Fonte_File& file;
        Sistema& sistema;
        Finestra_Principale& finestra;
        Pagina_Disegno& pagina;
    };
    explicit Controllo_Disegno(Vicini vicini);
    ~Controllo_Disegno();
    Controllo_Disegno(const Controllo_Disegno&) = delete;
    Controllo_Disegno& operator=(const Controllo_Disegno&) = delete;

    /// nullptr for none: then hotspots can be looked at and followed, and nothing is added.
    void Collega_Carrello(Carrello_Disegno* carrello) { carrello_ = carrello; }
    /// nullptr while the window is down.
    void Collega_Dettaglio(Dettaglio_Disegno* dettaglio) { dettaglio_ = dettaglio; }

    // --- the page
    // ----------------------------------------------------------------------------------------------------
    /// Loads and shows the drawing of a product; one without a drawing hides the canvas. Lets pending events
    /// run: false when they brought another drawing up, or took it down, so that this one isn't wanted any
    /// more.
    bool Carica_Tavola(const QString& key);
    /// Empties and hides the canvas, as the sheet and the order want it.
    void Togli_Tavola();
    /// The commands of the zoom buttons; any other key does nothing. `zoom_win_premuto` is the state of
    /// `KEY_ZOOM_WIN`.
    void Comando_Zoom(const QString& key, bool zoom_win_premuto);
    /// Hands the catalogue's wish for blinking highlights to the canvas.
    void Imposta_Lampeggio();

    // --- highlights
    // --------------------------------------------------------------------------------------------------
    /// A click on a plain cell of a grid: lights the component of that row.
    void Evidenzia_Componente_Grafico(const QString& prodotto, const QString& codice,
                                      const QString& riferimento);
    /// Paints a component green under any of its names: lastingly when `fisso`, else for the moment.
    void Evidenzia_componente_in_tavola_grafica(const QString& key, bool fisso);
    /// Takes mark and colour off a component under any of its names.
    void Decolora_componente_in_tavola_grafica(const QString& key);
    /// The next movement of the mouse over the drawing ends the momentary highlight. Every click on live rows
    /// of the parts list asks for it.
    void Segna_Evidenziazione_Transitoria() { transitoria_ = true; }

    // --- hotspots
    // ----------------------------------------------------------------------------------------------------
    /// The product to which a hotspot leads, "" for none.
    QString Risolvi_HotSpot(const QString& stringa) const;
    /// A click on a hotspot: follows a link, or adds the component to the cart. Whether something came of it.
    bool Click_HotSpot(const QString& nome, const QString& stringa);

    // --- events of the canvas
    // ----------------------------------------------------------------------------------------
    /// Entering: lights the hotspot for the moment and tells where it leads, or marks its rows in the parts
    /// list.
    void Mouse_Su_HotSpot(qint16 stato, const QString& nome, const QString& stringa);
    void Mouse_Fuori();
    bool Click_Su_HotSpot(const QString& nome, const QString& stringa);
    /// As a click, and handled whatever came of it.
    bool Doppio_Click_Su_HotSpot(const QString& nome, const QString& stringa);

  private:
    void Segui_Link(const QString& key);
    bool Usa_Componente(const QString& stringa);
    void Spegni_Transitoria();
    QString Nome_Prodotto(const QString& key) const;

    Vicini vicini_;
    Lavagna& lavagna_;
    Carrello_Disegno* carrello_ = nullptr;
    Dettaglio_Disegno* dettaglio_ = nullptr;
    bool transitoria_ = false;  ///< a highlight stands on the drawing that the next mouse movement ends
    unsigned turno_ = 0;        ///< counts what has been asked of the page; pending events may ask again
};

#pragma once

#include <QString>
#include <functional>

#include "core/base/porte.h"
#include "core/base/schermo.h"
#include "core/cart/aggiunta.h"
#include "core/drawing/lavagna.h"
#include "core/navigation/albero_visibile.h"

/// The exploded drawing: shows a product's drawing on the canvas, keeps its hotspots in step with the parts
/// list and the cart, and follows links. It answers the canvas's events; the canvas goes before it, or tells
/// nothing any more.
class Controllo_Disegno : public Tavola_Carrello {
  public:
    struct Vicini {
        Lavagna& lavagna;
        const Class_DBOper& DB;
        Fonte_File& file;
        Sistema& sistema;
        Schermo& schermo;
        const Albero_Visibile& albero;
        const Collection_Prodotti_Sele& selezionati;
    };
    /// Adds to the cart what a hotspot stands for; whether it did.
    using Aggiungi =
        std::function<bool(const QString& chiave, const QString& prodotto, const QString& riferimento)>;

    explicit Controllo_Disegno(Vicini vicini);
    Controllo_Disegno(const Controllo_Disegno&) = delete;
    Controllo_Disegno& operator=(const Controllo_Disegno&) = delete;
    /// The way into the cart.
    void Collega_Carrello(Aggiungi aggiungi) { aggiungi_ = std::move(aggiungi); }

    // --- the page
    // ----------------------------------------------------------------------------------------------------
    /// Loads and shows the drawing of a product; one without a drawing hides the canvas. Lets pending events
    /// run: false when they brought another drawing up, or took it down, so that this one isn't wanted any
    /// more.
    bool Carica_Tavola(const QString& key);
    /// Empties and hides the canvas, as the sheet and the order want it.
    void Togli_Tavola();
    /// Hides the canvas; what it shows stays.
    void Nascondi() { lavagna_.Visibile(false); }
    /// The whole page; the mouse then selects, or draws a window while `a_finestra`.
    void Zoom_Pagina(bool a_finestra);
    /// The mouse draws the window to be enlarged, or selects again.
    void Zoom_Finestra(bool a_finestra);
    /// `comando`: ZOOM_PIU or ZOOM_MENO.
    void Zoom(const QString& comando);
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
    // The same for the cart.
    void Colora(const QString& nome, Colore colore) override;
    void Decolora(const QString& nome) override { Decolora_componente_in_tavola_grafica(nome); }
    qint16 Stato(const QString& nome) const override { return lavagna_.Stato_HotSpot(nome); }
    /// The next movement of the mouse over the drawing ends the momentary highlight. Every click on live rows
    /// of the parts list asks for it.
    void Segna_Evidenziazione_Transitoria() { transitoria_ = true; }

    // --- hotspots
    // ----------------------------------------------------------------------------------------------------
    /// The product to which a hotspot leads, "" for none.
    QString Risolvi_HotSpot(const QString& stringa) const;
    /// A click on a hotspot: follows a link, or adds the component to the cart. Whether something came of it.
    bool Click_HotSpot(const QString& nome, const QString& stringa);

  private:
    void Mouse_Su_HotSpot(qint16 stato, const QString& nome, const QString& stringa);
    void Segui_Link(const QString& key);
    bool Usa_Componente(const QString& stringa);
    void Spegni_Transitoria();
    QString Nome_Prodotto(const QString& key) const;

    Vicini vicini_;
    Lavagna& lavagna_;
    Aggiungi aggiungi_;
    bool transitoria_ = false;  ///< a highlight stands on the drawing that the next mouse movement ends
    unsigned turno_ = 0;        ///< counts what has been asked of the page; pending events may ask again
};

#pragma once

#include <QString>
#include <QVariant>
#include <functional>

#include "core/base/colori.h"

/// The contract of the drawing canvas: what the system asks of it and what it tells. Calls and events stay on
/// the interface thread. A name that no object bears is no failure: the operations do nothing.
class Lavagna {
  public:
    virtual ~Lavagna() = default;

    // --- document ------------------------------------------------------------------------------
    /// Empties the canvas.
    virtual void Svuota() = 0;
    /// Loads a file and fits its page. A missing or unreadable file leaves an empty page. `indicatore` is
    /// always 0.
    virtual void Carica_Layout(const QString& percorso, qint16 indicatore) = 0;
    /// Ends the canvas's work when its window closes.
    virtual void Chiudi() = 0;
    virtual void Ridisegna(bool attivo) = 0;
    virtual void Visibile(bool visibile) = 0;

    // --- options -------------------------------------------------------------------------------
    // PICKBACKCOLOR and PICKBORDERCOLOR (colours; each load replaces them by the document's own, if it has
    // any), LAVAGNA_FISSA (bool), LAMPEGGIA ("SI" or "NO").
    virtual void Imposta_Opzione(const QString& nome, const QVariant& valore) = 0;
    /// Invalid when not set.
    virtual QVariant Leggi_Opzione(const QString& nome) const = 0;

    /// SELEZIONA, ZOOM_WINDOWS, ZOOM_PAGINA, ZOOM_PIU, ZOOM_MENO; `conteggio` is always 1.
    virtual void Esegui(const QString& comando, qint16 conteggio) = 0;

    // --- hotspots ------------------------------------------------------------------------------
    // `nome` is a hotspot string or, where no hotspot has it as its string, the name of an object. Objects
    // that bear the same string act together: marked, coloured and highlighted at once.

    /// Takes any earlier colour off the object and prepares it for a lasting one; `Colora_HotSpot` follows.
    virtual void Segna_HotSpot(const QString& nome) = 0;
    /// Undoes `Segna_HotSpot`. A colour stays.
    virtual void Togli_Segno_HotSpot(const QString& nome) = 0;
    /// 0 when the drawing holds an object of this name in the state that `Segna_HotSpot` gives, else 1.
    /// Colours and highlights don't count, and taking a colour off doesn't unmark. Who paints lastingly and
    /// wants to know whether the drawing holds the object calls `Segna_HotSpot`, `Colora_HotSpot` and then
    /// this.
    virtual qint16 Stato_HotSpot(const QString& nome) const = 0;
    /// Colours lastingly where `Segna_HotSpot` prepared it, else until `Azzera_Evidenziazione`.
    virtual void Colora_HotSpot(const QString& nome, Colore colore) = 0;
    /// Shows in a colour for the moment; blinks if `LAMPEGGIA` is "SI".
    virtual void Evidenzia_HotSpot(const QString& nome, Colore colore) = 0;
    /// Takes the colour off.
    virtual void Decolora_HotSpot(const QString& nome) = 0;
    /// Ends the momentary highlight of an object, and the colour of one that isn't marked; "" for all.
    virtual void Azzera_Evidenziazione(const QString& nome) = 0;
    /// Ends the action under way, before the page is replaced from one of the canvas's own events.
    virtual void Ferma_Azione() = 0;

    // --- events --------------------------------------------------------------------------------
    struct Eventi {
        std::function<void()> Tavola_Pronta;
        /// The tip over a hotspot, by its string.
        std::function<QString(const QString& stringa)> Suggerimento;
        /// Name and hotspot string; the answer is "handled": then the canvas has nothing more to do about the
        /// click, and a second one that makes it a double click isn't told.
        std::function<bool(const QString& nome, const QString& stringa)> Click_Su_HotSpot;
        std::function<bool(const QString& nome, const QString& stringa)> Doppio_Click_Su_HotSpot;
        /// State 0: the mouse enters; other: it leaves.
        std::function<void(qint16 stato, const QString& nome, const QString& stringa)> Mouse_Su_HotSpot;
        /// The mouse moves outside any hotspot. Buttons 1 left, 2 right, 4 middle; keys 1 shift, 2 control, 4
        /// alt; position in twips of the canvas.
        std::function<void(qint16 bottone, qint16 maiusc, double x, double y)> Mouse_Fuori;
    };
    Eventi Evento;
};

#pragma once
// What the mouse does on a grid: the tag of a cell says it.

#include <QString>
#include <functional>

#include "core/parts_tables/riempimento.h"

/// What a click on a cell asks for.
struct Azione_Cella {
    enum class Genere {
        Nessuna,
        Evidenzia,       ///< light the component on the drawing
        Image,           ///< show the picture `Voce`
        Document,        ///< open the document `Voce` in its own application
        Add_Componente,  ///< add the component to the cart
        Elimina,         ///< remove the line of the cart
        Qta,             ///< edit its quantity
        Note             ///< edit its note
    };
    Genere Tipo = Genere::Nessuna;
    QString Voce;                           ///< entry of the package
    QString Codice, Prodotto, Riferimento;  ///< of the row's component
    QString Chiave;                         ///< of the cart's line that the row shows
    int Riga = 0, Colonna = 0;              ///< of the cell
};

/// A field of a tag, from 1; "" when it isn't there.
QString Campo_Tag(const QString& tag, int n);
/// What the tag of a cell says; a cell beyond the tags fails with `std::out_of_range`.
Azione_Cella Leggi_Tag(const Tag_Griglia& tag, int riga, int colonna);
/// The first cell of a row that does something of this kind, `Nessuna` when there is none.
Azione_Cella Cerca_Azione(const Tag_Griglia& tag, int riga, Azione_Cella::Genere genere);
/// What a click on a cell of a parts list does. Nothing on the header, on the reference column, beyond the
/// tags, or on a plain cell of a row that adds no component.
Azione_Cella Clic_Griglia(const Tag_Griglia& tag, int riga, int colonna);

/// How a screen does what its cells ask for; what is left out does nothing.
struct Esecutore_Cella {
    using Lavoro = std::function<void(const Azione_Cella& azione)>;
    std::function<void(const QString& percorso)> Mostra_Immagine;
    Lavoro Evidenzia = {}, Aggiungi = {}, Elimina = {}, Modifica = {};
};
/// Carries out a click. A picture shows when its file is there; a document is opened without a test, and what
/// becomes of it isn't reported. Any failure ends the click silently.
void Esegui_Azione(const Azione_Cella& azione, const Contesto_Griglia& contesto,
                   const Esecutore_Cella& esecutore);

/// The pointer over a grid, with the flexible grid's numbers.
enum class Puntatore { Nessuno = 0, Freccia = 1, Testo = 3, Mano = 99 };

/// The pointer over a tag: of text over what is edited, the hand over what does anything else.
Puntatore Puntatore_Tag(const QString& tag);
/// The pointer over a cell of a parts list: none below the last row, which is `Rows` and beyond.
Puntatore Puntatore_Griglia(const Griglia& griglia, const Tag_Griglia& tag, int riga, int colonna);

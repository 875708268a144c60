#pragma once

#include <QString>
#include <vector>

#include "core/base/numeri.h"
#include "core/griglia/griglia.h"

/// The kinds of columns. The catalogue's model knows those up to `Document` by their own texts; any other
/// text of it is a `Testo`.
enum class Genere_Colonna {
    Number,             ///< a number with decimals
    Price,              ///< likewise; the cart totals it
    Discount,           ///< keys of discounts; the cart alone shows it, as percentages
    Quantity,           ///< the step of one add; no column of parts list and cart
    Memo,               ///< linked codes; never a column
    Image,              ///< entry of a picture: a tag, and a lens in its place
    Document,           ///< entry of a document: a tag, and a clip in its place
    Testo,              ///< a text, cut to its size
    Nota_Associazione,  ///< key of a note, shown as its text
    Riferimento,        ///< reference on the drawing
    Aggiungi,           ///< adds the row's component to the cart
    Dett_Codice,        ///< shows where a code is used
    Prodotto,           ///< key of a product, shown as its name
    Elimina,            ///< removes a line of the cart
    Qta,                ///< quantity of a line
    Note,               ///< note of a line
    Price_Totale        ///< price by quantity
};

/// One column of a grid: its header, the field that fills it, its kind and size.
struct Colonna_Griglia {
    Genere_Colonna Genere;
    QString Titolo;         ///< header text, or "IMMAGINE##||##" + picture name
    QString Nome;           ///< field of the data row; "" for none
    QString Tipo;           ///< the kind as a text, of a catalogue's column its own
    QString Size;           ///< decimals of numbers; width in characters of texts, which also cuts them
    qint16 Misura = 0;      ///< the size as a number
    QString Maschera = {};  ///< of numbers
};

/// A column that a grid has of itself. `titolo` "" takes the picture that stands for the kind.
Colonna_Griglia Colonna_Fissa(Genere_Colonna genere, const QString& nome, const QString& size,
                              const QString& titolo = {});
/// The kind that a catalogue's `Tipo_Colonna` means, told with its case.
Genere_Colonna Genere_Catalogo(const QString& tipo);
/// A column of the catalogue's model. Its size becomes a whole number, 20 where a text says none; beyond 16
/// bits it fails with `std::overflow_error`.
Colonna_Griglia Colonna_Catalogo(const QString& tipo, const QString& titolo, const QString& nome,
                                 const QString& size, const Numeri& numeri);

/// Header row, widths and alignment of any grid: the widths fill `Griglia::Width` less 300 twips. Data rows
/// keep their content.
void Imposta_Colonne_Griglia(const std::vector<Colonna_Griglia>& colonne, const Numeri& numeri,
                             Griglia& griglia);

#pragma once
// What the fills of the grids have in common: sizes, masks, lines and cells with a picture.

#include <QString>

#include "core/base/numeri.h"
#include "core/griglia/griglia.h"

/// A `Size` as the whole number it stands for; beyond 16 bits it fails with `std::overflow_error`.
qint16 Dimensione(const QString& size, const Numeri& numeri);
/// The `Size` of a catalogue's column as the grids use it: decimals of `Number` and `Price`, as stored for
/// `Image` and `Document`, else the width in characters, 20 where the catalogue says none.
QString Size_Normale(const QString& tipo, const QString& size, const Numeri& numeri);

/// The mask of a number with this many decimals: "0", or "0." and zeros.
QString Maschera_Numero(int decimali);
/// The first `lunghezza` characters. A text that has to be cut to a negative length fails.
QString Taglia(const QString& testo, qint16 lunghezza);

/// Adds a cell to a line for `Griglia::AddItem`. Cells stand between tabs. As long as all were empty no tab
/// is written, so that an empty first cell moves the others one column to the left: kept.
void Aggiungi_Cella(const QString& cella, QString& riga);
/// Some cell of row 1 has a text. Looks as far as there are rows, not columns: kept; fails beyond the
/// columns.
bool Riga_Presente(const Griglia& griglia);
/// Removes all data rows but the last one.
void Lascia_Una_Riga(Griglia& griglia);

/// A field of a cell's tag, from 1; "" when it isn't there.
QString Campo_Tag(const QString& tag, int n);
void Mostra_Immagine(Cella& cella, const QString& immagine);
/// A cell of kind `Image` or `Document`: its text, unless blank, goes into the tag, and a picture shows in
/// its place.
void Scrivi_Allegato(Griglia& griglia, Tag_Griglia& tag, int riga, int colonna, const QString& tipo);

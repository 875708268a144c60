#pragma once
// Changes to the lines of the cart.

#include "core/cart/aggiunta.h"

/// A change of the note's text: stored when it differs. Whether it was; false when there is no such line.
bool Modifica_Nota(const Collection_Prodotti_Sele& selezionati, const QString& prodotto,
                   const QString& chiave, const QString& testo);

/// A change of the quantity's text. Where the catalogue enforces it, the quantity is rounded up to a multiple
/// of the component's step; else only 0 becomes 1. Whether the cart is to be shown anew; false when there is
/// no such line or the number is the one that stands. A step of 0, when enforced, fails with
/// `std::domain_error`, a number too large to be divided with `std::overflow_error`; the quantity stays.
bool Modifica_Quantita(const Aggiunta_Carrello& carrello, const QString& prodotto, const QString& chiave,
                       const QString& testo);

/// Removes a line as the cart window does: its object on the drawing loses the colour unless another code's
/// line has the same object, and the other lines are painted again. False when there is no such line.
bool Elimina_Riga(const Collection_Prodotti_Sele& selezionati, const QString& prodotto, const QString& chiave,
                  Tavola_Carrello& tavola);
/// Removes a line as the order screen does. Kept: the drawing isn't touched.
bool Elimina_Riga(const Collection_Prodotti_Sele& selezionati, const QString& prodotto,
                  const QString& chiave);

#pragma once
// The last adds and removals, to be taken back one by one.

#include <functional>
#include <optional>
#include <vector>

#include "core/cart/selezione.h"

/// A line that was added to, or removed.
struct Cambio_Carrello {
    QString Prodotto;
    Class_Elenco Riga;    ///< as it was before; of a new line as it became
    bool Nuova = false;   ///< there was no such line before
    qsizetype Posto = 0;  ///< of the line among those of its product, from 0
};

class Cronologia_Carrello {
  public:
    /// Does some work on the store, and remembers the line whose quantity it changed, which it added or
    /// removed; it is answered, nullptr for none. A failure of the work is passed on.
    const Cambio_Carrello* Esegui(const Collection_Prodotti_Sele& selezionati,
                                  const std::function<void()>& lavoro);
    /// The last change, which is then forgotten; none when nothing is left.
    std::optional<Cambio_Carrello> Prendi();
    void Dimentica() { cambi_.clear(); }

  private:
    std::vector<Cambio_Carrello> cambi_;
};

/// Puts a line back as it was: at its place when it was removed, else with its former quantity. Its note
/// stays. Nothing for a product that the store doesn't know.
void Ripristina(const Collection_Prodotti_Sele& selezionati, const Cambio_Carrello& cambio);

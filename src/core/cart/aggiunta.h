#pragma once
// The ways into the cart.

#include <QString>
#include <functional>
#include <optional>

#include "core/base/colori.h"
#include "core/base/filtri.h"
#include "core/base/numeri.h"
#include "core/cart/selezione.h"
#include "core/catalogue_db/class_dboper.h"

/// What the cart asks of the drawing. A name that no object bears is no failure.
class Tavola_Carrello {
  public:
    virtual ~Tavola_Carrello() = default;
    /// Takes any earlier colour off the object and gives it a lasting one, 0xRRGGBB.
    virtual void Colora(const QString& nome, Colore colore) = 0;
    /// Takes mark and colour off a component under any of its names.
    virtual void Decolora(const QString& nome) = 0;
    /// 0 when the drawing holds an object of this name and it bears a lasting colour, else 1.
    virtual qint16 Stato(const QString& nome) const = 0;
};

/// No drawing is up.
class Senza_Tavola : public Tavola_Carrello {
  public:
    void Colora(const QString&, Colore) override {}
    void Decolora(const QString&) override {}
    qint16 Stato(const QString&) const override { return 1; }
};

/// A component that the user picked.
struct Componente_Scelto {
    QString Codice, Riferimento;
};
/// Lets the user choose one of the several components of a reference; none when nothing was chosen.
using Scelta_Componente = std::function<std::optional<Componente_Scelto>(const QString& riferimento)>;

/// What adding works on. Values are taken as they are; quotes need no doubling.
struct Aggiunta_Carrello {
    const Class_DBOper& DB;
    const Numeri& Numeri_;
    Filtri Filtri_;
    Collection_Prodotti_Sele& Selezionati;

    /// One step more of a component: a new line, or a higher quantity of the one that is there. Fails with
    /// `std::overflow_error` on a step beyond 16 bits.
    void Aggiungi_Componente_Carrello(const QString& prodotto, const QString& codice,
                                      const QString& chiave_grafica) const;
    /// Adds the component of a grid's row and paints its object on the drawing, which it finds under one of
    /// three names. A component that the drawing doesn't show is added all the same, unless its reference
    /// is an object's own name.
    void Aggiungi_Componente_Carrello_Evidenzia_Tavola(Tavola_Carrello& tavola, const QString& prodotto,
                                                       const QString& codice,
                                                       const QString& riferimento) const;
    /// Adds what a drawing object stands for, `NESSUN_CODICE` when the catalogue knows no component for it;
    /// of several the user chooses. Whether something was added.
    bool Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto, const QString& riferimento,
                            const Scelta_Componente& scegli) const;
    /// Adds a row picked in the choice window. The drawing isn't touched.
    void Aggiungi_Da_Selezione(const QString& prodotto, const QString& codice,
                               const QString& riferimento) const;
    /// The quantity of one add, as text.
    QString Quantita_Passo(const QString& prodotto, const QString& codice, const QString& riferimento) const;
};

/// Paints all lines of a product blue; nothing when the product isn't in the store.
void Ricolora_Selezionati(const Collection_Prodotti_Sele& selezionati, const QString& prodotto,
                          Tavola_Carrello& tavola);

#pragma once
// The columns of the cart, and what fills their cells.

#include <QStringList>
#include <vector>

#include "core/cart/griglia_carrello.h"

enum class Genere_Colonna {
    Elimina,
    Prodotto,
    Riferimento,
    Numero,
    Allegato,
    Sconto,
    Testo,
    Qta,
    Note,
    Totale
};

/// A column of the cart beside its `Colonna_Griglia`.
struct Colonna_Carrello {
    Genere_Colonna Genere;
    int Campo = -1;        ///< which of `Modello_Carrello::Campi` fills it, of a total its price; -1 for none
    int Decimali = 0;      ///< of numbers and totals
    qint16 Lunghezza = 0;  ///< of texts
};

/// The column model of one fill.
struct Modello_Carrello {
    std::vector<Colonna_Griglia> Titoli;
    std::vector<Colonna_Carrello> Colonne;  ///< one for each title
    QStringList Campi;                      ///< fields of a component that are shown
    QStringList Colonne_Memo;               ///< fields that hold linked codes
    int Primo_Prezzo = -1;                  ///< the field whose price feeds the discounts, -1 for none
};

/// `con_prodotto`: with the column of the whole order that says the product.
Modello_Carrello Colonne_Carrello(const Contesto_Carrello& contesto, bool con_prodotto);

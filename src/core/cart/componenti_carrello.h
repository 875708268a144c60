#pragma once
// What the catalogue says of the components in the cart.

#include <QHash>
#include <QStringList>
#include <vector>

#include "core/cart/collegati.h"
#include "core/cart/griglia_carrello.h"

/// The components of one fill, each read once.
class Componenti_Carrello {
  public:
    /// The first record of a component.
    struct Componente {
        bool Trovato = false;
        bool Senza_Riferimento = false;
        std::vector<Valore> Campi;  ///< those asked for
        Valori_Memo Memo = {};      ///< of all records
    };
    /// `campi`: the fields to be read; `memo`: those that hold linked codes.
    Componenti_Carrello(const Contesto_Carrello& contesto, QStringList campi, QStringList memo)
        : contesto_(contesto), campi_(std::move(campi)), memo_(std::move(memo)) {}

    /// The component of a line as its product has it, else as all components have it. Works out the line's
    /// linked codes.
    Componente Della_Riga(const QString& prodotto, Class_Elenco& elenco);
    const Componente& Di(const QString& codice);

  private:
    /// Where the fields stand in a table's records.
    struct Posizioni {
        int tipo_associazione = -1;
        std::vector<int> campi, memo;
    };
    void Cerca_Posizioni(const Recordset& record, Posizioni& posizioni) const;
    static Componente Prendi(const Recordset& record, const Posizioni& posizioni);
    static Valori_Memo Prendi_Memo(const Recordset& record, const Posizioni& posizioni);

    const Contesto_Carrello& contesto_;
    const QStringList campi_, memo_;
    Posizioni posizioni_righe_, posizioni_componenti_;
    QHash<QString, Componente> componenti_;
};

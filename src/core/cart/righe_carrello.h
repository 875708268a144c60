#pragma once
// The rows of the cart: what a line, or a component linked to it, shows in each column.

#include <QHash>
#include <vector>

#include "core/cart/collegati.h"
#include "core/cart/colonne_carrello.h"

/// Makes the rows of one fill.
class Righe_Carrello {
  public:
    /// Takes a finished row, cells between tabs. `chiave` is the line's code, "" for a linked component.
    using Scrivi = std::function<void(const QString& riga, const QString& chiave)>;

    Righe_Carrello(const Contesto_Carrello& contesto, const Modello_Carrello& modello, Scrivi scrivi)
        : contesto_(contesto), modello_(modello), scrivi_(std::move(scrivi)) {}

    /// The row of a line and those of its linked components; none when the catalogue doesn't know the code.
    void Riga(const QString& prodotto, Class_Elenco& elenco);

  private:
    /// The first record of a component, read once for a fill.
    struct Componente {
        bool trovato = false;
        QString tipo_associazione;
        std::vector<Valore> campi;  ///< as in `Modello_Carrello::Campi`
        Valori_Memo memo;           ///< of all records
    };
    /// Where the fields stand in a table's records.
    struct Posizioni {
        bool cercate = false;
        int tipo_associazione = -1;
        std::vector<int> campi, memo;
    };
    /// What a row is made from.
    struct Sorgente {
        const QString& prodotto;
        const Class_Elenco& elenco;
        const Componente& componente;
        bool collegata = false;
        QString voce = {};  ///< the entry of a linked component
        float sconto = 0;   ///< product of the discount columns so far, 0 for none
    };

    void Riga_Senza_Codice(const QString& prodotto, const Class_Elenco& elenco);
    Componente Leggi_Riga(const QString& prodotto, Class_Elenco& elenco);
    const Componente& Leggi_Componente(const QString& codice);
    void Cerca_Posizioni(const Recordset& record, Posizioni& posizioni) const;
    Componente Prendi(const Recordset& record, const Posizioni& posizioni) const;
    static void Prendi_Memo(const Recordset& record, const Posizioni& posizioni, Valori_Memo& valori);

    QString Componi_Riga(Sorgente sorgente) const;
    QString Cella(const Colonna_Carrello& colonna, Sorgente& sorgente) const;
    QString Cella_Sconto(const Valore& chiavi, Sorgente& sorgente) const;
    QString Cella_Totale(const Colonna_Carrello& colonna, const Sorgente& sorgente) const;
    float Prezzo(const Sorgente& sorgente, int campo) const;

    const Contesto_Carrello& contesto_;
    const Modello_Carrello& modello_;
    Scrivi scrivi_;
    Posizioni posizioni_righe_, posizioni_componenti_;
    QHash<QString, Componente> componenti_;
};

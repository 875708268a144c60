#pragma once
// The cart's memory: the components picked, product by product, line by line. Nothing of it is written to
// disk.

#include <QString>
#include <memory>

#include "core/base/collezione.h"
#include "core/base/numeri.h"

/// Code of a line that stands for a drawing object without a component.
inline const QString NESSUN_CODICE = QStringLiteral("NO_CODE");

/// One line of the cart.
class Class_Elenco {
  public:
    QString Key;  ///< `Chiave_Elenco` of reference and code
    QString Codice;
    float Quantita = 0;
    QString Nota;
    QString Chiave_Grafica;  ///< the object on the drawing, with its type prefix if it has one
    QString Riferimento;     ///< the same without prefix
    QString Lista_Memo;      ///< linked codes, "code§factor" between "/"; worked out at each fill
    QString Memo_Visti;      ///< codes whose linked codes are in the list, "/code/code/"
};

/// Records by key, in order of insertion. `Item` and `Remove` fail with `Errore_Collezione` on an unknown
/// key.
template <class Record>
class Collection_Selezione {
  public:
    /// A new record under the key, without one when it is "". A key that is there already fails.
    Record& Add(const QString& key) {
        Record& record = record_.Inserisci(key, std::make_shared<Record>());
        record.Key = key;
        return record;
    }
    Record& Item(const QString& key) const { return record_.Item(key); }
    Record& Item(qsizetype posizione) const { return record_.Item(posizione); }
    qsizetype Count() const { return record_.Count(); }
    void Remove(const QString& key) { record_.Remove(key); }
    void Remove(qsizetype posizione) { record_.Remove(posizione); }
    bool Esiste(const QString& key) const { return record_.Contiene(key); }
    auto begin() const { return record_.begin(); }
    auto end() const { return record_.end(); }

  private:
    Collezione<Record> record_;
};

/// The lines of one product.
using Collection_Elenco = Collection_Selezione<Class_Elenco>;

/// A product from which something was picked; it stays when its lines are gone.
class Class_Prodotti_Selezionati {
  public:
    QString Key;  ///< node key of the product
    Collection_Elenco& Collection_Elenco_Selezionati() const { return *elenco_; }
    void Collection_Elenco_Selezionati(std::shared_ptr<Collection_Elenco> elenco) {
        elenco_ = std::move(elenco);
    }

  private:
    std::shared_ptr<Collection_Elenco> elenco_ = std::make_shared<Collection_Elenco>();
};

/// The products, in the order in which they were first picked from.
using Collection_Prodotti_Sele = Collection_Selezione<Class_Prodotti_Selezionati>;

/// The line of a product; nullptr when product or line isn't there.
Class_Elenco* Cerca_Riga(const Collection_Prodotti_Sele& selezionati, const QString& prodotto,
                         const QString& chiave);

/// Key of a line: "code-reference"; the code twice for the reference "-", alone for "".
QString Chiave_Elenco(const QString& riferimento, const QString& codice);
/// The code of an entry "code§factor"; "" for an empty one.
QString Codice_Da_Memo(const QString& voce);
/// The factor of an entry as text; "0" for one without factor.
QString Quantita_Da_Memo(const QString& voce, const Numeri& numeri);
/// The same factor as a number, in double precision.
double Fattore_Da_Memo(const QString& voce, const Numeri& numeri);

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

/// The lines of one product.
using Collection_Elenco = Collection_Record<Class_Elenco>;

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
using Collection_Prodotti_Sele = Collection_Record<Class_Prodotti_Selezionati>;

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

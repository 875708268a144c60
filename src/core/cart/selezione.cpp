#include "core/cart/selezione.h"

#include "core/base/testo.h"

namespace {
const QStringView SEPARATORE_MEMO = u"§";
}  // namespace

Class_Elenco* Cerca_Riga(const Collection_Prodotti_Sele& selezionati, const QString& prodotto,
                         const QString& chiave) {
    if (!selezionati.Esiste(prodotto))
        return nullptr;
    const Collection_Elenco& elenco = selezionati.Item(prodotto).Collection_Elenco_Selezionati();
    return elenco.Esiste(chiave) ? &elenco.Item(chiave) : nullptr;
}

QString Chiave_Elenco(const QString& riferimento, const QString& codice) {
    if (riferimento.isEmpty())
        return codice;
    return codice + u'-' + (riferimento == u"-" ? codice : riferimento);
}

QString Codice_Da_Memo(const QString& voce) {
    const QString codice = Estrai_Token(voce, 1, SEPARATORE_MEMO);
    return codice == FINE_TOKEN ? QString() : Trim(codice);
}

QString Quantita_Da_Memo(const QString& voce, const Numeri& numeri) {
    return numeri.Testo(numeri.Converti_Numero(Trim(Estrai_Token(voce, 2, SEPARATORE_MEMO))));
}

double Fattore_Da_Memo(const QString& voce, const Numeri& numeri) {
    return Quantita_Da_Memo(voce, numeri).replace(numeri.Restituisci_Separatore_Decimale(), u'.').toDouble();
}

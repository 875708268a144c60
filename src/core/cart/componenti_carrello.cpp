#include "core/cart/componenti_carrello.h"

#include "core/base/testo.h"

Componenti_Carrello::Componente Componenti_Carrello::Della_Riga(const QString& prodotto,
                                                                Class_Elenco& elenco) {
    elenco.Lista_Memo.clear();
    elenco.Memo_Visti.clear();
    Componente componente;
    Recordset record = contesto_.DB.Recordset_Tabella_Componenti_Web(
        Con_Apici_Raddoppiati(prodotto), contesto_.Filtri_.Mercato, Con_Apici_Raddoppiati(elenco.Riferimento),
        contesto_.Filtri_.Gruppo, Con_Apici_Raddoppiati(elenco.Codice), QString());
    if (!record.EOF_()) {
        Cerca_Posizioni(record, posizioni_righe_);
        componente = Prendi(record, posizioni_righe_);
        const int codice = memo_.isEmpty() ? -1 : Cerca_Campo(record, u"Codice_Componente");
        for (; !memo_.isEmpty() && !record.EOF_(); record.MoveNext())
            Aggiungi_Memo(elenco, Prendi_Memo(record, posizioni_righe_), record.Campo(codice).Testo());
    }
    Espandi_Collegati(elenco, [this](const QString& codice) { return Di(codice).Memo; });
    return componente.Trovato ? componente : Di(elenco.Codice);
}

const Componenti_Carrello::Componente& Componenti_Carrello::Di(const QString& codice) {
    if (const auto letto = componenti_.constFind(codice); letto != componenti_.constEnd())
        return *letto;
    Componente componente;
    Recordset record = contesto_.DB.Recordset_Tabella_Componenti(Con_Apici_Raddoppiati(codice), QString());
    if (!record.EOF_()) {
        Cerca_Posizioni(record, posizioni_componenti_);
        componente = Prendi(record, posizioni_componenti_);
        for (; !memo_.isEmpty() && !record.EOF_(); record.MoveNext())
            componente.Memo += Prendi_Memo(record, posizioni_componenti_);
    }
    return *componenti_.insert(codice, std::move(componente));
}

void Componenti_Carrello::Cerca_Posizioni(const Recordset& record, Posizioni& posizioni) const {
    if (posizioni.tipo_associazione >= 0)
        return;
    for (const QString& nome : campi_)
        posizioni.campi.push_back(Cerca_Campo(record, nome));
    for (const QString& nome : memo_)
        posizioni.memo.push_back(Cerca_Campo(record, nome));
    posizioni.tipo_associazione = Cerca_Campo(record, u"Tipo_associazione");
}

Componenti_Carrello::Componente Componenti_Carrello::Prendi(const Recordset& record,
                                                            const Posizioni& posizioni) {
    Componente componente{true, record.Campo(posizioni.tipo_associazione).Testo() == u"1", {}};
    componente.Campi.reserve(posizioni.campi.size());
    for (const int posizione : posizioni.campi)
        componente.Campi.push_back(record.Campo(posizione));
    return componente;
}

Valori_Memo Componenti_Carrello::Prendi_Memo(const Recordset& record, const Posizioni& posizioni) {
    Valori_Memo valori;
    for (const int posizione : posizioni.memo)
        if (const Valore valore = record.Campo(posizione); !valore.E_Nullo())
            valori += valore.Testo();
    return valori;
}

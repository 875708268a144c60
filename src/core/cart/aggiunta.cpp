#include "core/cart/aggiunta.h"

#include "core/base/testo.h"

QString Aggiunta_Carrello::Quantita_Passo(const QString& prodotto, const QString& codice,
                                          const QString& riferimento) const {
    QString quantita;
    DB.Restituisci_Quantita_Componente(Con_Apici_Raddoppiati(prodotto), Con_Apici_Raddoppiati(codice),
                                       Con_Apici_Raddoppiati(riferimento), Filtri_, quantita);
    return quantita;
}

void Aggiunta_Carrello::Aggiungi_Componente_Carrello(const QString& prodotto, const QString& codice,
                                                     const QString& chiave_grafica) const {
    const QString riferimento = Key_Da_Nodo(chiave_grafica);
    const auto& record =
        Selezionati.Esiste(prodotto) ? Selezionati.Item(prodotto) : Selezionati.Add(prodotto);
    Collection_Elenco& elenco = record.Collection_Elenco_Selezionati();
    const QString chiave = Chiave_Elenco(riferimento, codice);
    Class_Elenco& riga = elenco.Esiste(chiave) ? elenco.Item(chiave) : elenco.Add(chiave);
    const QString passo = Quantita_Passo(prodotto, codice, riferimento);
    riga.Codice = codice;
    riga.Chiave_Grafica = chiave_grafica;
    riga.Riferimento = riferimento;
    riga.Quantita += Numeri::In_Intero<qint16>(Numeri_.Converti_Numero(passo));
}

void Aggiunta_Carrello::Aggiungi_Componente_Carrello_Evidenzia_Tavola(Tavola_Carrello& tavola,
                                                                      const QString& prodotto,
                                                                      const QString& codice,
                                                                      const QString& riferimento) const {
    const QString key = riferimento == u"-" ? codice : riferimento;
    if (key.isEmpty())
        return;
    const auto dipinta = [&tavola](const QString& nome) {
        tavola.Colora(nome, BLU);
        return tavola.Stato(nome) == 0;
    };
    QString nome = key;
    if (!dipinta(nome)) {
        if (Tipo_Nodo(key) != 0)
            return;
        nome = QStringLiteral("CODICI#$#") + key;
        if (!dipinta(nome)) {
            nome = QStringLiteral("ASSOCIAZIONE#$#") + key;
            if (!dipinta(nome))
                nome = key;
        }
    }
    Aggiungi_Componente_Carrello(prodotto, codice, nome);
}

bool Aggiunta_Carrello::Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto,
                                           const QString& riferimento,
                                           const Scelta_Componente& scegli) const {
    if (Trim(chiave).isEmpty())
        return false;
    const qint16 tipo = Tipo_Nodo(chiave);
    QString elenco;
    DB.Restituisci_Codice_Componente(Con_Apici_Raddoppiati(prodotto), Con_Apici_Raddoppiati(riferimento),
                                     Filtri_.Mercato, tipo == 1 || tipo == 2 ? tipo : 0, elenco);
    QStringList codici = Token(elenco, u"|");
    codici.removeAll(QString());
    if (codici.size() > 1) {
        const auto scelto = scegli(riferimento);
        if (scelto)
            Aggiungi_Da_Selezione(prodotto, scelto->Codice, scelto->Riferimento);
        return scelto.has_value();
    }
    Aggiungi_Componente_Carrello(prodotto, codici.isEmpty() ? NESSUN_CODICE : codici.first(), chiave);
    return true;
}

void Aggiunta_Carrello::Aggiungi_Da_Selezione(const QString& prodotto, const QString& codice,
                                              const QString& riferimento) const {
    Aggiungi_Componente_Carrello(prodotto, codice, riferimento == u"-" ? codice : riferimento);
}

void Ricolora_Selezionati(const Collection_Prodotti_Sele& selezionati, const QString& prodotto,
                          Tavola_Carrello& tavola) {
    if (!selezionati.Esiste(prodotto))
        return;
    for (const Class_Elenco& riga : selezionati.Item(prodotto).Collection_Elenco_Selezionati())
        tavola.Colora(riga.Chiave_Grafica, BLU);
}

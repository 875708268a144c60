#include "core/cart/righe_carrello.h"

#include "core/base/testo.h"
#include "core/griglia/celle.h"

namespace {
const QString TRATTINO = QStringLiteral("-");

int Cerca_Campo(const Recordset& record, QStringView nome) {
    const int posizione = record.Posizione(nome);
    if (posizione < 0)
        throw Errore_DB(QStringLiteral("The components have no column %1").arg(nome));
    return posizione;
}
}  // namespace

void Righe_Carrello::Riga(const QString& prodotto, Class_Elenco& elenco) {
    if (elenco.Codice == NESSUN_CODICE) {
        Riga_Senza_Codice(prodotto, elenco);
        return;
    }
    elenco.Lista_Memo.clear();
    elenco.Memo_Visti.clear();
    const Componente della_riga = Leggi_Riga(prodotto, elenco);
    const Componente& principale = della_riga.trovato ? della_riga : Leggi_Componente(elenco.Codice);
    if (principale.trovato)
        scrivi_(Componi_Riga({prodotto, elenco, principale}), elenco.Codice);

    Espandi_Collegati(elenco, [this](const QString& codice) { return Leggi_Componente(codice).memo; });
    for (const QString& voce : Token(elenco.Lista_Memo, u"/")) {
        const Componente& collegato = Leggi_Componente(Codice_Da_Memo(voce));
        // Kept: a linked code that the catalogue doesn't know shows the line's own component.
        const Componente& mostrato = collegato.trovato ? collegato : Leggi_Componente(elenco.Codice);
        if (mostrato.trovato)
            scrivi_(Componi_Riga({prodotto, elenco, mostrato, true, voce}), QString());
    }
}

// --- reading -----------------------------------------------------------------------------------------------

Righe_Carrello::Componente Righe_Carrello::Leggi_Riga(const QString& prodotto, Class_Elenco& elenco) {
    Recordset record = contesto_.DB.Recordset_Tabella_Componenti_Web(
        Con_Apici_Raddoppiati(prodotto), contesto_.Filtri_.Mercato, Con_Apici_Raddoppiati(elenco.Riferimento),
        contesto_.Filtri_.Gruppo, Con_Apici_Raddoppiati(elenco.Codice), QString());
    if (record.EOF_())
        return {};
    Cerca_Posizioni(record, posizioni_righe_);
    Componente componente = Prendi(record, posizioni_righe_);
    if (modello_.Colonne_Memo.isEmpty())
        return componente;
    const int codice = Cerca_Campo(record, u"Codice_Componente");
    for (; !record.EOF_(); record.MoveNext()) {
        Valori_Memo memo;
        Prendi_Memo(record, posizioni_righe_, memo);
        Aggiungi_Memo(elenco, memo, record.Campo(codice).Testo());
    }
    return componente;
}

const Righe_Carrello::Componente& Righe_Carrello::Leggi_Componente(const QString& codice) {
    if (const auto letto = componenti_.constFind(codice); letto != componenti_.constEnd())
        return *letto;
    Recordset record = contesto_.DB.Recordset_Tabella_Componenti(Con_Apici_Raddoppiati(codice), QString());
    Componente componente;
    if (!record.EOF_()) {
        Cerca_Posizioni(record, posizioni_componenti_);
        componente = Prendi(record, posizioni_componenti_);
        for (; !record.EOF_() && !modello_.Colonne_Memo.isEmpty(); record.MoveNext())
            Prendi_Memo(record, posizioni_componenti_, componente.memo);
    }
    return *componenti_.insert(codice, componente);
}

void Righe_Carrello::Cerca_Posizioni(const Recordset& record, Posizioni& posizioni) const {
    if (posizioni.cercate)
        return;
    posizioni.cercate = true;
    posizioni.tipo_associazione = Cerca_Campo(record, u"Tipo_associazione");
    for (const QString& nome : modello_.Campi)
        posizioni.campi.push_back(Cerca_Campo(record, nome));
    for (const QString& nome : modello_.Colonne_Memo)
        posizioni.memo.push_back(Cerca_Campo(record, nome));
}

Righe_Carrello::Componente Righe_Carrello::Prendi(const Recordset& record, const Posizioni& posizioni) const {
    Componente componente{true, record.Campo(posizioni.tipo_associazione).Testo(), {}, {}};
    componente.campi.reserve(posizioni.campi.size());
    for (const int posizione : posizioni.campi)
        componente.campi.push_back(record.Campo(posizione));
    return componente;
}

void Righe_Carrello::Prendi_Memo(const Recordset& record, const Posizioni& posizioni, Valori_Memo& valori) {
    for (const int posizione : posizioni.memo)
        if (const Valore valore = record.Campo(posizione); !valore.E_Nullo())
            valori += valore.Testo();
}

// --- cells -------------------------------------------------------------------------------------------------

QString Righe_Carrello::Componi_Riga(Sorgente sorgente) const {
    QString riga;
    for (const Colonna_Carrello& colonna : modello_.Colonne)
        Aggiungi_Cella(Cella(colonna, sorgente), riga);
    return riga;
}

QString Righe_Carrello::Cella(const Colonna_Carrello& colonna, Sorgente& sorgente) const {
    const Numeri& numeri = contesto_.Numeri_;
    const auto campo = [&] { return sorgente.componente.campi[static_cast<size_t>(colonna.Campo)]; };
    switch (colonna.Genere) {
        case Genere_Colonna::Elimina:
            return QStringLiteral(" ");
        case Genere_Colonna::Prodotto:
            return sorgente.prodotto;
        case Genere_Colonna::Riferimento:
            if (sorgente.collegata)
                return QStringLiteral("^");
            return sorgente.componente.tipo_associazione == u"1" ? TRATTINO : sorgente.elenco.Riferimento;
        case Genere_Colonna::Numero:
            return numeri.Formatta(campo().Testo(), Maschera_Numero(colonna.Decimali));
        case Genere_Colonna::Allegato:
            return campo().Testo();
        case Genere_Colonna::Sconto:
            return Cella_Sconto(campo(), sorgente);
        case Genere_Colonna::Testo:
            return Taglia(campo().Testo(), colonna.Lunghezza);
        case Genere_Colonna::Qta:
            if (!sorgente.collegata)
                return numeri.Testo(sorgente.elenco.Quantita);
            return numeri.Testo(static_cast<float>(Fattore_Da_Memo(sorgente.voce, numeri) *
                                                   static_cast<double>(sorgente.elenco.Quantita)));
        case Genere_Colonna::Note:
            return sorgente.collegata ? QString() : sorgente.elenco.Nota;
        case Genere_Colonna::Totale:
            return Cella_Totale(colonna, sorgente);
    }
    return {};
}

QString Righe_Carrello::Cella_Sconto(const Valore& chiavi, Sorgente& sorgente) const {
    if (chiavi.E_Nullo())
        return QStringLiteral("0");
    const Numeri& numeri = contesto_.Numeri_;
    const float quantita = sorgente.elenco.Quantita;
    const float totale = Prezzo(sorgente, modello_.Primo_Prezzo) * quantita;
    const auto mercato = Numeri::In_Intero<qint16>(numeri.Converti_Numero(contesto_.Filtri_.Mercato));
    QString testo;
    const float fattore = contesto_.DB.Restituisci_Sconto_Calcolato(contesto_.Sconto, chiavi.Testo(), mercato,
                                                                    quantita, totale, testo);
    // A column without a discount takes back what the columns before it gave: kept.
    sorgente.sconto = sorgente.sconto == 0.0f ? fattore : sorgente.sconto * fattore;
    return u'(' + testo + QStringLiteral(") %");
}

QString Righe_Carrello::Cella_Totale(const Colonna_Carrello& colonna, const Sorgente& sorgente) const {
    const float quantita = sorgente.elenco.Quantita;
    const float prezzo = Prezzo(sorgente, colonna.Campo);
    float totale = sorgente.sconto > 0.0f ? prezzo * sorgente.sconto * quantita : prezzo * quantita;
    // The factor of a linked component alone is in double precision.
    if (sorgente.collegata)
        totale = static_cast<float>(static_cast<double>(totale) *
                                    Fattore_Da_Memo(sorgente.voce, contesto_.Numeri_));
    return contesto_.Numeri_.Formatta(totale, Maschera_Numero(colonna.Decimali));
}

float Righe_Carrello::Prezzo(const Sorgente& sorgente, int campo) const {
    return campo < 0 ? 0.0f
                     : contesto_.Numeri_.Converti_Numero(
                           sorgente.componente.campi[static_cast<size_t>(campo)].Testo());
}

void Righe_Carrello::Riga_Senza_Codice(const QString& prodotto, const Class_Elenco& elenco) {
    QString riga;
    for (const Colonna_Carrello& colonna : modello_.Colonne) {
        QString cella = TRATTINO;
        if (colonna.Genere == Genere_Colonna::Riferimento)
            cella = elenco.Riferimento;
        else if (colonna.Genere == Genere_Colonna::Qta)
            cella = contesto_.Numeri_.Testo(elenco.Quantita);
        else if (colonna.Genere == Genere_Colonna::Note)
            cella = elenco.Nota;
        else if (colonna.Genere == Genere_Colonna::Prodotto)
            cella = prodotto;
        else if (colonna.Genere == Genere_Colonna::Sconto)
            cella = QStringLiteral("0");
        Aggiungi_Cella(cella, riga);
    }
    scrivi_(riga, elenco.Codice);
}

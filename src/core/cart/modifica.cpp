#include "core/cart/modifica.h"

#include <stdexcept>

namespace {

/// The next multiple of the step; a quantity whose whole number is one stays as it is.
float Multiplo(float quantita, qint16 passo) {
    const qint64 intero = Numeri::In_Intero<qint32>(quantita);
    if (passo == 0)
        throw std::domain_error("Division by zero");
    if (intero % passo == 0)
        return quantita;
    return static_cast<float>((intero / passo + 1) * passo);
}

}  // namespace

bool Modifica_Nota(const Collection_Prodotti_Sele& selezionati, const QString& prodotto,
                   const QString& chiave, const QString& testo) {
    Class_Elenco* riga = Cerca_Riga(selezionati, prodotto, chiave);
    if (riga == nullptr || riga->Nota == testo)
        return false;
    riga->Nota = testo;
    return true;
}

bool Modifica_Quantita(const Aggiunta_Carrello& carrello, const QString& prodotto, const QString& chiave,
                       const QString& testo) {
    Class_Elenco* riga = Cerca_Riga(carrello.Selezionati, prodotto, chiave);
    if (riga == nullptr)
        return false;
    const float valore = carrello.Numeri_.Converti_Numero(testo);
    if (valore == riga->Quantita)
        return false;
    const QString quantita_passo = carrello.Quantita_Passo(prodotto, riga->Codice, riga->Riferimento);
    const auto passo = Numeri::In_Intero<qint16>(carrello.Numeri_.Converti_Numero(quantita_passo));
    const bool obbligata =
        carrello.DB.System_Leggi_Key(QStringLiteral("IMPOSTAZIONE_RICHIEDI_QUANTITA_MINIMA")) == u"SI";
    if (!obbligata)
        riga->Quantita = valore == 0.0f && valore <= passo ? 1.0f : valore;
    else
        riga->Quantita = valore <= passo ? passo : Multiplo(valore, passo);
    return true;
}

bool Elimina_Riga(const Collection_Prodotti_Sele& selezionati, const QString& prodotto, const QString& chiave,
                  Tavola_Carrello& tavola) {
    const Class_Elenco* riga = Cerca_Riga(selezionati, prodotto, chiave);
    if (riga == nullptr)
        return false;
    const Collection_Elenco& elenco = selezionati.Item(prodotto).Collection_Elenco_Selezionati();
    bool di_altri = false;
    for (const Class_Elenco& altra : elenco)
        di_altri = di_altri || (altra.Chiave_Grafica == riga->Chiave_Grafica && altra.Codice != riga->Codice);
    if (!di_altri)
        tavola.Decolora(riga->Chiave_Grafica);
    Elimina_Riga(selezionati, prodotto, chiave);
    Ricolora_Selezionati(selezionati, prodotto, tavola);
    return true;
}

bool Elimina_Riga(const Collection_Prodotti_Sele& selezionati, const QString& prodotto,
                  const QString& chiave) {
    if (Cerca_Riga(selezionati, prodotto, chiave) == nullptr)
        return false;
    selezionati.Item(prodotto).Collection_Elenco_Selezionati().Remove(chiave);
    return true;
}

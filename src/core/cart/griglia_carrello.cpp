#include "core/cart/griglia_carrello.h"

#include "core/base/testo.h"
#include "core/cart/componenti_carrello.h"

namespace {

using enum Genere_Colonna;

constexpr int ROSA = 0xFFC0C0;  ///< background of what can be edited, and of the cells above and below it
const QString TRATTINO = QStringLiteral("-");

class Sorgente_Carrello : public Sorgente_Griglia {
  public:
    Sorgente_Carrello(const Contesto_Carrello& contesto, const QString& chiave)
        : contesto_(contesto), numeri_(contesto.Numeri_), chiave_(chiave) {}

    void Leggi_Colonne(bool con_righe) override;
    void Leggi_Righe() override;
    QString Tag(Griglia& griglia, int riga, int colonna, const QString& codice) override;
    Assenza Motivo() const override { return con_righe_ ? Assenza::Nascoste : Assenza::Vuota; }

  private:
    /// What a row is made from.
    struct Sorgente {
        const QString& prodotto;
        const Class_Elenco& elenco;
        const Componenti_Carrello::Componente& componente;
        bool collegata = false;
        double fattore = 1;  ///< of a linked component
        float sconto = 0;    ///< product of the discount columns so far, 0 for none
    };

    QString Testo_Catalogo(const char* key) const {
        return contesto_.Traduzioni.Item(QLatin1String(key)).Testo;
    }
    void Aggiungi_Colonna(Colonna_Griglia colonna, int campo = -1) {
        Colonne.push_back(std::move(colonna));
        campo_.push_back(campo);
    }
    void Aggiungi_Colonne_Totali();

    void Leggi_Riga(const QString& prodotto, Class_Elenco& elenco, Componenti_Carrello& componenti);
    void Aggiungi_Riga(Sorgente sorgente);
    QString Componi_Cella(size_t colonna, Sorgente& sorgente) const;
    QString Cella_Sconto(const Valore& chiavi, Sorgente& sorgente) const;
    QString Cella_Totale(size_t colonna, const Sorgente& sorgente) const;
    float Prezzo(const Sorgente& sorgente, int campo) const;
    QString Cella_Senza_Codice(Genere_Colonna genere, const QString& prodotto,
                               const Class_Elenco& elenco) const;

    float Somma(size_t colonna, QStringView escluso, bool& contata) const;
    void Aggiungi_Totali();
    template <class Importo>
    void Aggiungi_Totale(const char* testo, Importo&& importo);

    const QString& Nome_Prodotto(const QString& key);

    const Contesto_Carrello& contesto_;
    const Numeri& numeri_;
    const QString& chiave_;
    std::vector<int>
        campo_;  ///< for each column, which of `campi_` fills it, of a total its price; -1 for none
    QStringList campi_, memo_;  ///< fields of a component that are shown, and that hold linked codes
    int primo_prezzo_ = -1;     ///< the field whose price feeds the discounts, -1 for none
    QString ultimo_prodotto_, nome_prodotto_;
    bool con_righe_ = false;  ///< the store has lines for this face
};

// --- columns -----------------------------------------------------------------------------------------------

void Sorgente_Carrello::Leggi_Colonne(bool) {
    const QString nessuna = QStringLiteral("0");
    Aggiungi_Colonna(Colonna_Fissa(Elimina, QString(), nessuna));
    if (chiave_ == TUTTI_I_PRODOTTI)
        Aggiungi_Colonna(Colonna_Fissa(Prodotto, QString(), QStringLiteral("25")));
    Aggiungi_Colonna(Colonna_Fissa(Riferimento, QStringLiteral("Key_Associazioni"), QStringLiteral("5")));
    for (Colonna_Griglia& colonna : Colonne_Catalogo(contesto_, {Quantity})) {
        if (colonna.Genere == Memo) {
            memo_ += colonna.Nome;
            continue;
        }
        const int campo = static_cast<int>(campi_.size());
        if (colonna.Genere == Price && primo_prezzo_ < 0)
            primo_prezzo_ = campo;
        campi_ += colonna.Nome;
        Aggiungi_Colonna(std::move(colonna), campo);
    }
    Aggiungi_Colonna(Colonna_Fissa(Qta, QString(), nessuna, Testo_Catalogo("QUANTITA")));
    Aggiungi_Colonna(Colonna_Fissa(Note, QString(), nessuna, Testo_Catalogo("NOTE")));
    Aggiungi_Colonne_Totali();
}

void Sorgente_Carrello::Aggiungi_Colonne_Totali() {
    const size_t fino = Colonne.size();
    for (size_t i = 0; i < fino; ++i) {
        const Colonna_Griglia prezzo = Colonne[i];
        if (prezzo.Genere != Price)
            continue;
        // The field of a total is the number of its price column, from 1.
        Aggiungi_Colonna(Colonna_Fissa(Price_Totale, QString::number(i + 1), prezzo.Size,
                                       prezzo.Titolo + Testo_Catalogo("TOTALE")),
                         campo_[i]);
        Colonne.back().Maschera = prezzo.Maschera;
    }
}

// --- rows --------------------------------------------------------------------------------------------------

void Sorgente_Carrello::Leggi_Righe() {
    Componenti_Carrello componenti(contesto_, campi_, memo_);
    for (const Class_Prodotti_Selezionati& prodotto : contesto_.Selezionati)
        if (chiave_ == TUTTI_I_PRODOTTI || chiave_ == prodotto.Key)
            for (Class_Elenco& elenco : prodotto.Collection_Elenco_Selezionati()) {
                con_righe_ = true;
                Leggi_Riga(prodotto.Key, elenco, componenti);
            }
    Aggiungi_Totali();
}

/// The row of a line and those of its linked components; none when the catalogue doesn't know the code.
void Sorgente_Carrello::Leggi_Riga(const QString& prodotto, Class_Elenco& elenco,
                                   Componenti_Carrello& componenti) {
    if (elenco.Codice == NESSUN_CODICE) {
        QStringList celle;
        for (const Colonna_Griglia& colonna : Colonne)
            celle += Cella_Senza_Codice(colonna.Genere, prodotto, elenco);
        Righe.push_back({std::move(celle), elenco.Codice, elenco.Key});
        return;
    }
    const Componenti_Carrello::Componente principale = componenti.Della_Riga(prodotto, elenco);
    if (principale.Trovato)
        Aggiungi_Riga({prodotto, elenco, principale});
    for (const QString& voce : Token(elenco.Lista_Memo, u"/")) {
        const auto& collegato = componenti.Di(Codice_Da_Memo(voce));
        // Kept: a linked code that the catalogue doesn't know shows the line's own component.
        const auto& mostrato = collegato.Trovato ? collegato : componenti.Di(elenco.Codice);
        if (mostrato.Trovato)
            Aggiungi_Riga({prodotto, elenco, mostrato, true, Fattore_Da_Memo(voce, numeri_)});
    }
}

void Sorgente_Carrello::Aggiungi_Riga(Sorgente sorgente) {
    QStringList celle;
    celle.reserve(static_cast<qsizetype>(Colonne.size()));
    for (size_t c = 0; c < Colonne.size(); ++c)
        celle += Componi_Cella(c, sorgente);
    if (sorgente.collegata)
        Righe.push_back({std::move(celle), QString()});
    else
        Righe.push_back({std::move(celle), sorgente.elenco.Codice, sorgente.elenco.Key});
}

QString Sorgente_Carrello::Componi_Cella(size_t colonna, Sorgente& sorgente) const {
    const Class_Elenco& elenco = sorgente.elenco;
    const auto campo = [&] { return sorgente.componente.Campi[static_cast<size_t>(campo_[colonna])]; };
    switch (Colonne[colonna].Genere) {
        case Elimina:
            return QStringLiteral(" ");
        case Prodotto:
            return sorgente.prodotto;
        case Riferimento:
            if (sorgente.collegata)
                return QStringLiteral("^");
            return sorgente.componente.Senza_Riferimento ? TRATTINO : elenco.Riferimento;
        case Discount:
            return Cella_Sconto(campo(), sorgente);
        case Qta:
            if (!sorgente.collegata)
                return numeri_.Testo(elenco.Quantita);
            return numeri_.Testo(static_cast<float>(sorgente.fattore * static_cast<double>(elenco.Quantita)));
        case Note:
            return sorgente.collegata ? QString() : elenco.Nota;
        case Price_Totale:
            return Cella_Totale(colonna, sorgente);
        default:
            return Cella_Catalogo(Colonne[colonna], campo(), numeri_);
    }
}

QString Sorgente_Carrello::Cella_Sconto(const Valore& chiavi, Sorgente& sorgente) const {
    if (chiavi.E_Nullo())
        return QStringLiteral("0");
    const float quantita = sorgente.elenco.Quantita;
    const float totale = Prezzo(sorgente, primo_prezzo_) * quantita;
    const auto mercato = Numeri::In_Intero<qint16>(numeri_.Converti_Numero(contesto_.Filtri_.Mercato));
    QString testo;
    const float fattore = contesto_.DB.Restituisci_Sconto_Calcolato(contesto_.Sconto, chiavi.Testo(), mercato,
                                                                    quantita, totale, testo);
    // A column without a discount takes back what the columns before it gave: kept.
    sorgente.sconto = sorgente.sconto == 0.0f ? fattore : sorgente.sconto * fattore;
    return u'(' + testo + QStringLiteral(") %");
}

QString Sorgente_Carrello::Cella_Totale(size_t colonna, const Sorgente& sorgente) const {
    const float quantita = sorgente.elenco.Quantita;
    const float prezzo = Prezzo(sorgente, campo_[colonna]);
    float totale = sorgente.sconto > 0.0f ? prezzo * sorgente.sconto * quantita : prezzo * quantita;
    // The factor of a linked component alone is in double precision.
    if (sorgente.collegata)
        totale = static_cast<float>(static_cast<double>(totale) * sorgente.fattore);
    return numeri_.Formatta(totale, Colonne[colonna].Maschera);
}

float Sorgente_Carrello::Prezzo(const Sorgente& sorgente, int campo) const {
    return campo < 0 ? 0.0f
                     : numeri_.Converti_Numero(sorgente.componente.Campi[static_cast<size_t>(campo)].Testo());
}

QString Sorgente_Carrello::Cella_Senza_Codice(Genere_Colonna genere, const QString& prodotto,
                                              const Class_Elenco& elenco) const {
    switch (genere) {
        case Prodotto:
            return prodotto;
        case Riferimento:
            return elenco.Riferimento;
        case Discount:
            return QStringLiteral("0");
        case Qta:
            return numeri_.Testo(elenco.Quantita);
        case Note:
            return elenco.Nota;
        default:
            return TRATTINO;
    }
}

// --- totals ------------------------------------------------------------------------------------------------

/// Adds up what a column shows.
float Sorgente_Carrello::Somma(size_t colonna, QStringView escluso, bool& contata) const {
    float somma = 0;
    for (const Riga_Griglia& riga : Righe)
        if (const QString& cella = riga.Celle[static_cast<qsizetype>(colonna)]; cella != escluso) {
            somma += numeri_.Converti_Numero(cella);
            contata = true;
        }
    return somma;
}

void Sorgente_Carrello::Aggiungi_Totali() {
    bool con_prezzi = false, con_quantita = false;
    float quantita = 0;
    std::vector<float> somme;
    for (size_t c = 0; c < Colonne.size(); ++c) {
        if (Colonne[c].Genere == Price_Totale)
            somme.push_back(Somma(c, TRATTINO, con_prezzi));
        else if (Colonne[c].Genere == Qta)
            quantita = Somma(c, u"", con_quantita);
    }
    if (!con_prezzi)
        return;
    const auto importi = [&](size_t i, const Colonna_Griglia& colonna) {
        return numeri_.Formatta(somme[i], Formato_Decimali(colonna.Misura));
    };
    Aggiungi_Totale("TOTALE_ORDINE", importi);
    QString descrizione;
    float fattore = 0;
    Aggiungi_Totale("TOTALE_SCONTO", [&](size_t i, const Colonna_Griglia&) {
        fattore = contesto_.Restituisci_Sconto_Utente(quantita, somme[i], descrizione);
        somme[i] *= fattore;
        return u'(' + descrizione + QStringLiteral(") %");
    });
    if (fattore > 0.0f)
        Aggiungi_Totale("TOTALE_ORDINE_NETTO", importi);
}

template <class Importo>
void Sorgente_Carrello::Aggiungi_Totale(const char* testo, Importo&& importo) {
    QStringList celle;
    size_t totale = 0;
    for (const Colonna_Griglia& colonna : Colonne) {
        if (colonna.Genere == Price_Totale)
            celle += importo(totale++, colonna);
        else
            celle += colonna.Genere == Note ? Testo_Catalogo(testo) : QStringLiteral(" ");
    }
    Righe.push_back({std::move(celle), QString()});
}

// --- tags --------------------------------------------------------------------------------------------------

QString Sorgente_Carrello::Tag(Griglia& griglia, int riga, int colonna, const QString& codice) {
    const Colonna_Griglia& modello = Colonne[static_cast<size_t>(colonna)];
    Cella& cella = griglia.At(riga, colonna);
    switch (modello.Genere) {
        case Image:
        case Document:
            return Trim(cella.Text) == TRATTINO ? QString() : Tag_Allegato(modello, cella);
        case Elimina:
            if (codice.isEmpty())
                return {};
            cella.Text.clear();
            cella.Picture = QStringLiteral("Elimina.bmp");
            return QStringLiteral("Elimina|") + codice;
        case Qta:
        case Note:
            // Rows of linked components and totals as well; their tag has no code, so nothing is edited.
            cella.Sfondo = ROSA;
            return modello.Tipo + u'|' + codice;
        case Prodotto: {
            const QString key = std::exchange(cella.Text, Nome_Prodotto(cella.Text));
            return QStringLiteral("Prodotto|") + key;
        }
        default:
            return {};
    }
}

/// The rows of a product stand together, so its name is looked up once.
const QString& Sorgente_Carrello::Nome_Prodotto(const QString& key) {
    if (key != ultimo_prodotto_ || nome_prodotto_.isNull()) {
        ultimo_prodotto_ = key;
        nome_prodotto_ = contesto_.DB.Restituisci_Traduzione_Prodotto(Con_Apici_Raddoppiati(key),
                                                                      contesto_.Filtri_.Lingua);
    }
    return nome_prodotto_;
}

}  // namespace

std::vector<Colonna_Griglia> Visualizza_Griglia_Carello_Prodotto(Contesto_Carrello contesto,
                                                                 const QString& chiave, bool ricarica_righe,
                                                                 Griglia& griglia, Tag_Griglia& tag) {
    Sorgente_Carrello sorgente(contesto, chiave);
    return Riempi_Griglia(contesto, sorgente, ricarica_righe, griglia, tag);
}

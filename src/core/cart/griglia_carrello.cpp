#include "core/cart/griglia_carrello.h"

#include <stdexcept>

#include "core/base/testo.h"
#include "core/cart/righe_carrello.h"
#include "core/griglia/celle.h"

namespace {

constexpr int ROSA = 0xFFC0C0;  ///< background of what can be edited, and of the cells above and below it

/// One fill of a cart.
class Carrello {
  public:
    Carrello(const Contesto_Carrello& contesto, const QString& chiave, Griglia& griglia, Tag_Griglia& tag)
        : contesto_(contesto), chiave_(chiave), griglia_(griglia), tag_(tag) {}

    void Riempi(bool ricarica_righe) {
        modello_ = Colonne_Carrello(contesto_, chiave_ == TUTTI_I_PRODOTTI);
        Imposta_Colonne_Griglia(modello_.Titoli, contesto_.Numeri_, griglia_);
        bool presenti = false;
        if (ricarica_righe) {
            Ricarica_Righe();
            Scrivi_Totali();
            if (griglia_.Rows() >= 3)
                griglia_.RemoveItem(1);
            presenti = !chiavi_riga_.empty();
            if (presenti)
                Scrivi_Tag();
        } else {
            presenti = Riga_Presente(griglia_);
        }
        if (presenti)
            griglia_.Visible = true;
        else
            griglia_.Clear();
    }

    std::vector<Colonna_Griglia> Colonne() const { return modello_.Titoli; }

  private:
    void Ricarica_Righe() {
        Lascia_Una_Riga(griglia_);
        Righe_Carrello righe(contesto_, modello_, [this](const QString& riga, const QString& chiave) {
            // The tags would end the fill later on all the same.
            if (static_cast<int>(chiavi_riga_.size()) >= tag_.Ultima_Riga())
                throw std::out_of_range("Subscript out of range: more rows than tags");
            griglia_.AddItem(riga);
            chiavi_riga_.push_back(chiave);
        });
        for (const Class_Prodotti_Selezionati& prodotto : contesto_.Selezionati)
            if (chiave_ == TUTTI_I_PRODOTTI || chiave_ == prodotto.Key)
                for (Class_Elenco& elenco : prodotto.Collection_Elenco_Selezionati())
                    righe.Riga(prodotto.Key, elenco);
    }

    // --- totals
    // ----------------------------------------------------------------------------------------------

    /// Adds up what a column shows, "-" left out. The first data row is the one left over from before.
    float Somma(int colonna, QStringView escluso, bool& contata) const {
        float somma = 0;
        for (int r = 2; r < griglia_.Rows(); ++r)
            if (const QString cella = griglia_.TextMatrix(r, colonna); cella != escluso) {
                somma += contesto_.Numeri_.Converti_Numero(cella);
                contata = true;
            }
        return somma;
    }

    void Scrivi_Totali() {
        bool con_prezzi = false, con_quantita = false;
        float quantita = 0;
        std::vector<float> somme;
        for (size_t c = 0; c < modello_.Colonne.size(); ++c) {
            const Genere_Colonna genere = modello_.Colonne[c].Genere;
            if (genere == Genere_Colonna::Totale)
                somme.push_back(Somma(static_cast<int>(c), u"-", con_prezzi));
            else if (genere == Genere_Colonna::Qta)
                quantita = Somma(static_cast<int>(c), u"", con_quantita);
        }
        if (!con_prezzi)
            return;
        const auto importi = [&](size_t i, const Colonna_Carrello& colonna) {
            return contesto_.Numeri_.Formatta(somme[i], Formato_Decimali(colonna.Decimali));
        };
        Riga_Totale(QStringLiteral("TOTALE_ORDINE"), importi);
        QString descrizione;
        float fattore = 0;
        Riga_Totale(QStringLiteral("TOTALE_SCONTO"), [&](size_t i, const Colonna_Carrello&) {
            fattore = contesto_.Restituisci_Sconto_Utente(quantita, somme[i], descrizione);
            somme[i] *= fattore;
            return u'(' + descrizione + QStringLiteral(") %");
        });
        if (fattore > 0.0f)
            Riga_Totale(QStringLiteral("TOTALE_ORDINE_NETTO"), importi);
    }

    template <class Importo>
    void Riga_Totale(const QString& testo, Importo&& importo) {
        QString riga;
        size_t totale = 0;
        for (const Colonna_Carrello& colonna : modello_.Colonne) {
            QString cella = QStringLiteral(" ");
            if (colonna.Genere == Genere_Colonna::Totale)
                cella = importo(totale++, colonna);
            else if (colonna.Genere == Genere_Colonna::Note)
                cella = contesto_.Traduzioni.Item(testo).Testo;
            Aggiungi_Cella(cella, riga);
        }
        griglia_.AddItem(riga);
    }

    // --- tags
    // ------------------------------------------------------------------------------------------------

    void Scrivi_Tag() {
        for (int r = 1; r < griglia_.Rows(); ++r) {
            const auto i = static_cast<size_t>(r - 1);
            const QString chiave = i < chiavi_riga_.size() ? chiavi_riga_[i] : QString();
            for (int c = 0; c < griglia_.Cols(); ++c) {
                tag_.Imposta(r, c, QString());
                Scrivi_Tag(r, c, chiave);
            }
        }
    }

    void Scrivi_Tag(int r, int c, const QString& chiave) {
        Cella& cella = griglia_.At(r, c);
        const QString& tipo = modello_.Titoli[static_cast<size_t>(c)].Tipo;
        switch (modello_.Colonne[static_cast<size_t>(c)].Genere) {
            case Genere_Colonna::Allegato:
                if (Trim(cella.Text) != u"-")
                    Scrivi_Allegato(griglia_, tag_, r, c, tipo);
                break;
            case Genere_Colonna::Elimina:
                if (chiave.isEmpty())
                    break;
                tag_.Imposta(r, c, QStringLiteral("Elimina|") + chiave);
                cella.Text.clear();
                Mostra_Immagine(cella, QStringLiteral("Elimina.bmp"));
                break;
            case Genere_Colonna::Qta:
            case Genere_Colonna::Note:
                // Rows of linked components and totals as well; their tag has no code, so nothing is edited.
                tag_.Imposta(r, c, tipo + u'|' + chiave);
                cella.Sfondo = ROSA;
                break;
            case Genere_Colonna::Prodotto:
                tag_.Imposta(r, c, QStringLiteral("Prodotto|") + cella.Text);
                cella.Text = Nome_Prodotto(cella.Text);
                break;
            default:
                break;
        }
    }

    /// The rows of a product stand together, so its name is looked up once.
    QString Nome_Prodotto(const QString& key) {
        if (key != ultimo_prodotto_ || nome_prodotto_.isNull()) {
            ultimo_prodotto_ = key;
            nome_prodotto_ = contesto_.DB.Restituisci_Traduzione_Prodotto(Con_Apici_Raddoppiati(key),
                                                                          contesto_.Filtri_.Lingua);
        }
        return nome_prodotto_;
    }

    const Contesto_Carrello& contesto_;
    const QString& chiave_;
    Griglia& griglia_;
    Tag_Griglia& tag_;
    Modello_Carrello modello_;
    std::vector<QString> chiavi_riga_;  ///< for each row from 1: the code of a line, "" of a linked component
    QString ultimo_prodotto_, nome_prodotto_;
};

}  // namespace

std::vector<Colonna_Griglia> Visualizza_Griglia_Carello_Prodotto(const Contesto_Carrello& contesto,
                                                                 const QString& chiave, bool ricarica_righe,
                                                                 Griglia& griglia, Tag_Griglia& tag) {
    if (!contesto.Verifica_Accesso()) {
        contesto.Mostra_Intro();
        return {};
    }
    griglia.Visible = false;
    Carrello carrello(contesto, chiave, griglia, tag);
    try {
        carrello.Riempi(ricarica_righe);
    } catch (const std::exception&) {
        // Nothing is reported: a cart that can't be shown stays hidden.
    }
    if (griglia.Cambiata)
        griglia.Cambiata();
    return carrello.Colonne();
}

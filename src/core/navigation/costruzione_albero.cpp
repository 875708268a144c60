#include <QSet>
#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

#include "core/base/testo.h"
#include "core/navigation/albero_visibile.h"

namespace {

/// The images of a node by the prefix of its key; {0, 0} for a key that is no node's.
std::pair<int, int> Immagini_Nodo(const QString& key) {
    if (key.size() < 2 || key[1] != u'_')
        return {0, 0};
    switch (key[0].unicode()) {
        case u'G':
            return {1, 2};
        case u'P':
            return {3, 4};
        case u'X':
            return {5, 6};
        default:
            return {0, 0};
    }
}

/// The market and group tests.
class Filtro_Nodi {
  public:
    Filtro_Nodi(int mercato, const QString& gruppo)
        : mercato_(QString::number(mercato)), gruppo_vuoto_(gruppo.isEmpty()) {
        // Empty tokens count here: "//" in a node's list lets any list of groups pass. Kept.
        for (const QString& token : Token(gruppo, u"/"))
            gruppi_.append(u'/' + token + u'/');
    }
    bool Passa(const Class_Albero& nodo) const {
        return Mercato(nodo.Key_Mercato) && Gruppo(nodo.Key_Gruppo);
    }

  private:
    bool Mercato(const QString& lista) const {
        if (lista.isEmpty())
            return true;
        for (const QStringView token : QStringView(lista).tokenize(u'/'))
            if (token == mercato_)
                return true;
        return false;
    }
    bool Gruppo(const QString& lista) const {
        if (lista.isEmpty() || gruppo_vuoto_)
            return true;
        return std::any_of(gruppi_.begin(), gruppi_.end(),
                           [&lista](const QString& gruppo) { return lista.contains(gruppo); });
    }

    const QString mercato_;
    const bool gruppo_vuoto_;
    QStringList gruppi_;
};

/// The serial test of every node, answered from one statement in place of one for each node.
class Segni_Matricola {
  public:
    Segni_Matricola(const Class_DBOper& db, const QString& matricola) : db_(db), matricola_(matricola) {
        if (!matricola.isEmpty())
            prodotti_ = db.Prodotti_Con_Matricola(matricola);
    }
    bool Segnato(const QString& key) const {
        if (matricola_.isEmpty())
            return false;
        // A quote in a key breaks the node's own statement, and that failure is kept.
        if (key.contains(u'\''))
            return db_.Matricola_Valida_Prodotto(key, matricola_);
        return !prodotti_.isEmpty() && prodotti_.contains(Class_DBOper::Chiave_Senza_Maiuscole(key));
    }

  private:
    const Class_DBOper& db_;
    const QString matricola_;
    QSet<QString> prodotti_;
};

/// Makes the visible nodes one by one. Parents and equal captions are found by position, through the model's
/// index.
class Costruttore {
  public:
    Costruttore(const Collection_Albero& modello, Albero_Visibile& albero)
        : indice_(modello.Indice_Nodi()),
          albero_(albero),
          fatti_(indice_.Padre.size(), nullptr),
          in_elenco_(static_cast<size_t>(indice_.Testi), false) {}

    /// Adds the model's record at a position from 0, unless its parent isn't shown or its key is no node's.
    void Aggiungi(size_t posizione, const Class_Albero& nodo, bool segnato) {
        const bool primo_livello = nodo.Key_Padre.isEmpty() || nodo.Key_Padre == u"R";
        const qsizetype posto_padre = primo_livello ? -1 : indice_.Padre[posizione];
        Nodo_Visibile* padre = posto_padre < 0 ? nullptr : fatti_[static_cast<size_t>(posto_padre)];
        const auto [immagine, immagine_selezione] = Immagini_Nodo(nodo.Key_Prodotto);
        if ((!primo_livello && !padre) || immagine == 0)
            return;
        if (nodo.Testo_Visualizzato_.E_Nullo())
            throw std::runtime_error("The node \"" + nodo.Key_Prodotto.toStdString() +
                                     "\" has no caption in this language");
        Nodo_Visibile& nuovo = albero_.Add(padre, nodo.Key_Prodotto, nodo.Testo_Visualizzato_.Testo());
        fatti_[posizione] = &nuovo;
        nuovo.Figli.reserve(indice_.Figli[posizione]);
        nuovo.Image = immagine;
        nuovo.SelectedImage = immagine_selezione;
        if (segnato) {
            nuovo.Bold = true;
            nuovo.Expanded = true;
            albero_.Seleziona(&nuovo);
        }
        Carica_Combo_Nodi(static_cast<size_t>(indice_.Testo[posizione]), nuovo.Text);
    }

  private:
    void Carica_Combo_Nodi(size_t numero, const QString& testo) {
        if (!in_elenco_[numero])
            albero_.Combo_Nodi.append(testo);
        in_elenco_[numero] = true;
    }

    const Collection_Albero::Indice& indice_;
    Albero_Visibile& albero_;
    std::vector<Nodo_Visibile*> fatti_;  ///< by position in the model
    std::vector<bool> in_elenco_;        ///< by number of the caption
};

}  // namespace

void Crea_Albero_Da_Struttura(const Class_DBOper& db, const Collection_Albero& modello, int lingua,
                              int mercato, const QString& matricola, const QString& gruppo,
                              const std::function<QString(int)>& titolo, Albero_Visibile& albero) {
    if (modello.Count() == 0)
        return;
    albero.Clear();
    albero.Titolo = titolo(lingua);
    const Filtro_Nodi filtro(mercato, gruppo);
    const Segni_Matricola segni(db, matricola);
    Costruttore costruttore(modello, albero);
    size_t posizione = 0;
    for (const Class_Albero& nodo : modello) {
        const size_t questa = posizione++;
        if (nodo.Key_Prodotto == u"R")
            continue;
        const bool segnato = segni.Segnato(nodo.Key_Prodotto);
        if (filtro.Passa(nodo))
            costruttore.Aggiungi(questa, nodo, segnato);
    }
}

QString Titolo_Albero(const Class_DBOper& db, int lingua) {
    const QString radice = db.Restituisci_Descrizione_Root_albero();
    try {
        const Recordset righe = db.Apri_Recordset(
            QStringLiteral("SELECT * FROM Traduzioni_Albero WHERE Descrizione_Nodo = '%1' ;")
                .arg(Con_Apici_Raddoppiati(radice)));
        if (!righe.EOF_()) {
            const QString tradotto = righe.Campo(QStringLiteral("Traduzione_%1").arg(lingua)).Testo();
            if (!Trim(tradotto).isEmpty())
                return tradotto;
        }
    } catch (const Errore_DB&) {
        // No such table or column: the title stays as the catalogue's author wrote it.
    }
    return radice;
}

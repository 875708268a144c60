#include <QHash>
#include <QSet>
#include <stdexcept>
#include <utility>

#include "core/base/testo.h"
#include "core/navigation/albero_visibile.h"

namespace {

/// The images of a node by the prefix of its key; {0, 0} for a key that is no node's.
std::pair<int, int> Immagini_Nodo(const QString& key) {
    if (key.startsWith(u"G_"))
        return {1, 2};
    if (key.startsWith(u"P_"))
        return {3, 4};
    if (key.startsWith(u"X_"))
        return {5, 6};
    return {0, 0};
}

/// The market and group tests. Few different lists stand on many nodes, so each list is judged once.
class Filtro_Nodi {
  public:
    Filtro_Nodi(int mercato, const QString& gruppo)
        : mercato_(QString::number(mercato)), gruppo_vuoto_(gruppo.isEmpty()) {
        // Empty tokens count here: "//" in a node's list lets any list of groups pass. Kept.
        for (const QString& token : Token(gruppo, u"/"))
            gruppi_.append(u'/' + token + u'/');
    }
    bool Passa(const Class_Albero& nodo) {
        return Ricordato(mercati_visti_, nodo.Key_Mercato, [this](const QString& l) { return Mercato(l); }) &&
               Ricordato(gruppi_visti_, nodo.Key_Gruppo, [this](const QString& l) { return Gruppo(l); });
    }

  private:
    template <class Prova>
    static bool Ricordato(QHash<QString, bool>& visti, const QString& lista, Prova prova) {
        const auto it = visti.constFind(lista);
        return it != visti.constEnd() ? *it : *visti.insert(lista, prova(lista));
    }
    bool Mercato(const QString& lista) const {
        return Trim(lista).isEmpty() || Token(lista, u"/").contains(mercato_);
    }
    bool Gruppo(const QString& lista) const {
        if (lista.isEmpty() || gruppo_vuoto_)
            return true;
        for (const QString& gruppo : gruppi_)
            if (lista.contains(gruppo))
                return true;
        return false;
    }

    const QString mercato_;
    const bool gruppo_vuoto_;
    QStringList gruppi_;
    QHash<QString, bool> mercati_visti_, gruppi_visti_;
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
        return !prodotti_.isEmpty() && prodotti_.contains(key.toCaseFolded());
    }

  private:
    const Class_DBOper& db_;
    const QString matricola_;
    QSet<QString> prodotti_;
};

void Aggiungi_Nodo(const Class_Albero& nodo, bool segnato, Albero_Visibile& albero) {
    const bool primo_livello = nodo.Key_Padre.isEmpty() || nodo.Key_Padre == u"R";
    Nodo_Visibile* padre = primo_livello ? nullptr : albero.Nodo(nodo.Key_Padre);
    if (!primo_livello && !padre)
        return;
    const auto [immagine, immagine_selezione] = Immagini_Nodo(nodo.Key_Prodotto);
    if (immagine == 0)
        return;
    if (nodo.Testo_Visualizzato_.E_Nullo())
        throw std::runtime_error("The node \"" + nodo.Key_Prodotto.toStdString() +
                                 "\" has no caption in this language");
    Nodo_Visibile& nuovo = albero.Add(padre, nodo.Key_Prodotto, nodo.Testo_Visualizzato_.Testo());
    nuovo.Image = immagine;
    nuovo.SelectedImage = immagine_selezione;
    if (segnato) {
        nuovo.Bold = true;
        nuovo.Expanded = true;
        albero.Seleziona(&nuovo);
    }
}

}  // namespace

void Crea_Albero_Da_Struttura(const Class_DBOper& db, const Collection_Albero& modello, int lingua,
                              int mercato, const QString& matricola, const QString& gruppo,
                              const std::function<QString(int)>& titolo, Albero_Visibile& albero) {
    if (modello.Count() > 0) {
        albero.Clear();
        albero.Titolo = titolo(lingua);
        Filtro_Nodi filtro(mercato, gruppo);
        const Segni_Matricola segni(db, matricola);
        for (const Class_Albero& nodo : modello) {
            if (nodo.Key_Prodotto == u"R")
                continue;
            const bool segnato = segni.Segnato(nodo.Key_Prodotto);
            if (filtro.Passa(nodo))
                Aggiungi_Nodo(nodo, segnato, albero);
        }
    }
    albero.Carica_Combo_Nodi();
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

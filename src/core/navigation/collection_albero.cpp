#include "core/navigation/collection_albero.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <limits>
#include <stdexcept>

#include "core/base/testo.h"

namespace {

constexpr int LATO_TABELLA = 10;

/// Cell of a layout table, the first index running fastest; -1 for an index below 1.
int Cella_Tabella(int lingua, int mercato) {
    if (lingua < 1 || mercato < 1)
        return -1;
    if (lingua > LATO_TABELLA || mercato > LATO_TABELLA)
        throw std::out_of_range("Subscript out of range: layout table");
    return (lingua - 1) + (mercato - 1) * LATO_TABELLA;
}

/// A whole number held within 16 bits; 0 for NULL.
qint16 Intero_16(const Valore& valore) {
    using Limiti = std::numeric_limits<qint16>;
    return static_cast<qint16>(std::clamp<qint64>(valore.Intero(), Limiti::min(), Limiti::max()));
}

/// Fields of `Albero_Web` by position, looked up once: a catalogue has many rows.
struct Campi_Albero_Web {
    explicit Campi_Albero_Web(const Recordset& righe, const QString& lingua)
        : key(Cerca(righe, u"Key_Prodotto")),
          padre(Cerca(righe, u"Key_Padre")),
          testo(Cerca(righe, QStringLiteral("Testo_Visualizzato_") + QString::number(lingua.toInt()))),
          percorso(Cerca(righe, u"Percorso")),
          profondita(Cerca(righe, u"Profondita_Nodo")),
          ordine(Cerca(righe, u"Ordine")),
          mercato(Cerca(righe, u"Key_Mercato")),
          gruppo(Cerca(righe, u"Key_Gruppo")) {}

    const int key, padre, testo, percorso, profondita, ordine, mercato, gruppo;

  private:
    static int Cerca(const Recordset& righe, QStringView nome) {
        const int posizione = righe.Posizione(nome);
        if (posizione < 0)
            throw Errore_DB(QStringLiteral("Albero_Web has no column %1").arg(nome));
        return posizione;
    }
};

/// Texts that stand in many rows, each kept once: a large model stays small, and walks over it quick.
class Testi_Condivisi {
  public:
    QString Condividi(const QString& testo) { return testo.isEmpty() ? QString() : *testi_.insert(testo); }

    /// A parent's key is kept with the parent itself, which stands before its children.
    QString Condividi_Padre(const QString& padre, const Collection_Albero& albero) {
        const auto gia_visto = testi_.constFind(padre);
        if (gia_visto != testi_.constEnd())
            return *gia_visto;
        return Condividi(albero.Esiste(padre) ? albero.Item(padre).Key_Prodotto : padre);
    }

  private:
    QSet<QString> testi_;
};

}  // namespace

Class_Albero::Impaginazione& Class_Albero::Pagine() {
    if (!pagine_)
        pagine_ = std::make_unique<Impaginazione>();
    return *pagine_;
}

void Class_Albero::LayOut(int lingua, int mercato, const QString& valore) {
    if (const int cella = Cella_Tabella(lingua, mercato); cella >= 0)
        Pagine().layout[static_cast<size_t>(cella)] = valore;
}

void Class_Albero::Numero_Pagina_Partenza(int lingua, int mercato, qint16 valore) {
    if (const int cella = Cella_Tabella(lingua, mercato); cella >= 0)
        Pagine().pagina[static_cast<size_t>(cella)] = valore;
}

std::shared_ptr<Collection_scheda> Class_Albero::Collection_Scheda_Prodotto() {
    if (!scheda_)
        scheda_ = std::make_shared<Collection_scheda>();
    return scheda_;
}

Class_Albero& Collection_Albero::Add(const QString& key) {
    Dimentica_Indice();
    auto nodo = std::make_shared<Class_Albero>();
    nodo->Key_Prodotto = key;
    return nodi_.Inserisci(key, std::move(nodo));
}

Class_Albero& Collection_Albero::Add_Nodo(const QString& key, std::shared_ptr<Class_Albero> nodo) {
    Dimentica_Indice();
    return nodi_.Inserisci(key, std::move(nodo));
}

void Collection_Albero::Remove(const QString& key) {
    Dimentica_Indice();
    nodi_.Remove(key);
}

void Collection_Albero::Remove(qsizetype posizione) {
    Dimentica_Indice();
    nodi_.Remove(posizione);
}

void Collection_Albero::Svuota() {
    Dimentica_Indice();
    nodi_.Svuota();
}

const Collection_Albero::Indice& Collection_Albero::Indice_Nodi() const {
    if (indice_)
        return *indice_;
    indice_ = Indice();
    QHash<QString, qsizetype> testi;
    indice_->Padre.reserve(static_cast<size_t>(Count()));
    indice_->Testo.reserve(static_cast<size_t>(Count()));
    for (const Class_Albero& nodo : nodi_) {
        indice_->Padre.push_back(nodi_.Posizione_Di(nodo.Key_Padre) - 1);
        qsizetype numero = -1;
        if (!nodo.Testo_Visualizzato_.E_Nullo()) {
            const QString testo = nodo.Testo_Visualizzato_.Testo();
            const auto gia_visto = testi.constFind(testo);
            numero = gia_visto != testi.constEnd() ? *gia_visto : *testi.insert(testo, testi.size());
        }
        indice_->Testo.push_back(numero);
    }
    indice_->Testi = testi.size();
    indice_->Figli.assign(indice_->Padre.size(), 0);
    for (const qsizetype padre : indice_->Padre)
        if (padre >= 0)
            ++indice_->Figli[static_cast<size_t>(padre)];
    return *indice_;
}

bool Collection_Albero::Esiste(const QString& key) const {
    return nodi_.Contiene(key);
}

bool Collection_Albero::Nodo_Abilitato_Sino_Radice(const QString& key) const {
    QString corrente = key;
    // A walk longer than the tree goes in circles; such a node has no root.
    for (qsizetype passi = 0; passi < Count() && Esiste(corrente); ++passi) {
        const Class_Albero& nodo = Item(corrente);
        if (corrente == u"R")
            return nodo.Stato_Abilitazione != u"DISABILITA";
        if (nodo.Stato_Abilitazione != u"ABILITA")
            return false;
        corrente = nodo.Key_Padre;
    }
    return false;
}

void Carica_Struttura_Albero_Web(const Class_DBOper& db, const QString& lingua, Collection_Albero& albero) {
    Collection_Albero nuovo;
    Recordset righe = db.Apri_Recordset(
        QStringLiteral("SELECT * FROM Albero_Web ORDER BY Profondita_nodo ASC,Ordine ASC ;"));
    if (!righe.EOF_()) {
        const Campi_Albero_Web campi(righe, lingua);
        Testi_Condivisi condivisi;
        for (; !righe.EOF_(); righe.MoveNext()) {
            const Valore key = righe.Campo(campi.key);
            if (key.E_Nullo())
                continue;
            Class_Albero& nodo = nuovo.Add(key.Testo());
            nodo.Key_Padre = condivisi.Condividi_Padre(righe.Campo(campi.padre).Testo(), nuovo);
            nodo.Testo_Visualizzato_ = righe.Campo(campi.testo);
            nodo.Percorso = righe.Campo(campi.percorso).Testo();
            nodo.Profondita_Nodo = Intero_16(righe.Campo(campi.profondita));
            nodo.Ordine = Intero_16(righe.Campo(campi.ordine));
            nodo.Key_Mercato = condivisi.Condividi(Trim(righe.Campo(campi.mercato).Testo()));
            nodo.Key_Gruppo = condivisi.Condividi(Trim(righe.Campo(campi.gruppo).Testo()));
        }
    }
    albero = std::move(nuovo);
}

bool Nodo_Valido_Per_Mercato(const QString& key, const Collection_Albero& albero, const QString& mercato) {
    const QString& lista = albero.Item(key).Key_Mercato;
    return lista.isEmpty() || (!mercato.isEmpty() && Token(lista, u"/").contains(mercato));
}

bool Nodo_Visibile_Sino_Radice(const QString& key, const Collection_Albero& albero, const QString& mercato) {
    QString corrente = key;
    for (qsizetype passi = 0; corrente != u"R"; ++passi) {
        // A walk longer than the tree goes in circles and never reaches the root.
        if (passi > albero.Count() || !albero.Esiste(corrente) ||
            !Nodo_Valido_Per_Mercato(corrente, albero, mercato))
            return false;
        corrente = albero.Item(corrente).Key_Padre;
    }
    return true;
}

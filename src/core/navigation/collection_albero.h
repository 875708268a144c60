#pragma once

#include <QString>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "core/base/collezione.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/navigation/collection_scheda.h"

/// One node of the tree model.
class Class_Albero {
  public:
    // What every build of the visible tree reads stands together.
    QString Key_Prodotto;
    QString Key_Padre;           ///< "R" for a top-level node
    Valore Testo_Visualizzato_;  ///< caption in the model's language; NULL where the catalogue has none
    QString Key_Mercato;         ///< "/a/b/", trimmed; "" means every market
    QString Key_Gruppo;          ///< "/a/b/", trimmed; "" means every group
    QString Percorso;            ///< carried, not interpreted
    qint16 Profondita_Nodo = 0;
    qint16 Ordine = 0;
    QString Tipo_Prodotto;       ///< raw tree of an older catalogue only
    QString Stato_Abilitazione;  ///< raw tree only: "ABILITA" or "DISABILITA"
    QString Stato_Espansione;    ///< raw tree only: "APERTO" or "CHIUSO"

    /// Page layouts by (language, market), both from 1 to 10. Write-only, kept so. An index below 1 is
    /// ignored, one above 10 fails.
    void LayOut(int lingua, int mercato, const QString& valore);
    void Numero_Pagina_Partenza(int lingua, int mercato, qint16 valore);

    /// The sheet entries of the product, made at the first call.
    std::shared_ptr<Collection_scheda> Collection_Scheda_Prodotto();
    void Collection_Scheda_Prodotto(std::shared_ptr<Collection_scheda> scheda) {
        scheda_ = std::move(scheda);
    }

  private:
    struct Impaginazione {
        std::array<QString, 100> layout;
        std::array<qint16, 100> pagina{};
    };
    Impaginazione& Pagine();
    std::unique_ptr<Impaginazione> pagine_;  ///< made at the first write: few nodes have one
    std::shared_ptr<Collection_scheda> scheda_;
};

/// The tree model: one record for each row of `Albero_Web`, unfiltered, in one language.
class Collection_Albero {
  public:
    /// A new record under the key (without one when it is ""). A key that is there already fails.
    Class_Albero& Add(const QString& key);
    Class_Albero& Add_Nodo(const QString& key, std::shared_ptr<Class_Albero> nodo);
    Class_Albero& Item(const QString& key) const { return nodi_.Item(key); }
    Class_Albero& Item(qsizetype posizione) const { return nodi_.Item(posizione); }
    qsizetype Count() const { return nodi_.Count(); }
    void Remove(const QString& key);
    void Remove(qsizetype posizione);
    void Svuota();
    bool Esiste(const QString& key) const;
    auto begin() const { return nodi_.begin(); }
    auto end() const { return nodi_.end(); }

    /// What the records refer to, worked out once for all walks over the model. Positions count from 0.
    struct Indice {
        std::vector<qsizetype> Padre;  ///< position of each record's parent; -1 when it isn't in the model
        std::vector<size_t> Figli;     ///< number of each record's children
        std::vector<qsizetype>
            Testo;            ///< number of each record's caption, equal ones sharing theirs; -1 for NULL
        qsizetype Testi = 0;  ///< how many different captions there are
    };
    /// Made at the first call after a change.
    const Indice& Indice_Nodi() const;
    /// A record's parent or caption was changed: the index is made anew when it is next asked for.
    void Dimentica_Indice() { indice_.reset(); }

    /// Whether the node and all its ancestors are enabled (raw tree). An unknown state is enabled at the root
    /// and not elsewhere: kept.
    bool Nodo_Abilitato_Sino_Radice(const QString& key) const;

  private:
    Collezione<Class_Albero> nodi_;
    mutable std::optional<Indice> indice_;
};

/// Fills the model for a language number. Fails with `Errore_DB`, and with `Errore_Collezione` on a key that
/// stands twice; then the model stays as it was.
void Carica_Struttura_Albero_Web(const Class_DBOper& db, const QString& lingua, Collection_Albero& albero);

/// Whether the record's own market list lets the market pass.
bool Nodo_Valido_Per_Mercato(const QString& key, const Collection_Albero& albero, const QString& mercato);
/// The same for the node and all its ancestors; false when one of them isn't in the model.
bool Nodo_Visibile_Sino_Radice(const QString& key, const Collection_Albero& albero, const QString& mercato);

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "core/base/filtri.h"
#include "core/base/porte.h"
#include "core/catalogue_db/engine/database.h"

/// A row of `Lingue` offered to the user.
struct Voce_Lingua {
    QString Chiave;
    QString Descrizione;
    QString Immagine;  ///< name of the flag picture, "" for none
};

/// The gate to a catalogue's database: every table is read through it. Apart from `Open_Database`, no
/// operation tells the user of a failure: a lookup leaves silently with the answer built so far ("" , 0 or
/// false), so that a missing table or column shows as missing data. Operations that answer a recordset let
/// `Errore_DB` pass, unless said otherwise. Values are put into the statements as they are: the caller
/// doubles the quotes.
class Class_DBOper {
  public:
    explicit Class_DBOper(Messaggi& messaggi) : messaggi_(messaggi) {}

    // --- opening, SYSTEM
    // ---------------------------------------------------------------------------------------------
    /// Opens a catalogue database for reading. On failure shows "Error open file" with the reason and answers
    /// false.
    bool Open_Database(const QString& percorso);
    /// Closes; safe when nothing is open.
    void Close_database();
    bool Aperto() const { return database_.Aperto(); }
    /// See `Database::Imposta_Respiro`.
    void Imposta_Respiro(std::function<void()> respiro) { database_.Imposta_Respiro(std::move(respiro)); }
    /// Text of the last statement.
    const QString& SQL() const { return sql_; }
    /// A SYSTEM value, trimmed; "" when absent or NULL.
    QString System_Leggi_Key(const QString& key) const;
    /// Runs a statement of the caller's and keeps its text. Fails with `Errore_DB`.
    Recordset Apri_Recordset(const QString& sql) const;

    // --- languages and markets (lingue.cpp)
    // --------------------------------------------------------------------------
    Recordset Recordset_Struttura_Lingue() const;
    qint16 Restituisci_ID_Lingua(const QString& descrizione) const;
    qint16 Restituisci_ID_Mercato(const QString& descrizione) const;
    qint16 Restituisci_ID_Lingua_o_Mercato_da_Key(const QString& chiave) const;
    QString Restituisci_Key_Lingua(const QString& descrizione) const;
    QString Restituisci_Key_Mercato(const QString& descrizione) const;
    QString Restituisci_Key_Lingua_o_Mercato_ID(int numero) const;
    QString Restituisci_Key_Lingua_Mercato(int numero) const;
    bool Esiste_Lingua(int numero) const;
    bool Esiste_Mercato(int numero) const;
    QString Restituisci_Descrizione_Lingua(int numero) const;
    /// Kept: looks among the rows of active languages, so a market in another row isn't found.
    QString Restituisci_Descrizione_Mercato(int numero) const;
    std::vector<Voce_Lingua> Restituisci_Lingue_Disponibili() const;
    std::vector<Voce_Lingua> Restituisci_Mercati_Disponibili() const;
    std::vector<Voce_Lingua> Restituisci_Lingue_Catalogate() const;
    QString Restitusici_Colonne_Traduzioni() const;
    QString Restituisci_Separatore_Lingue() const;

    // --- products (prodotti.cpp)
    // -------------------------------------------------------------------------------------
    QString Restituisci_NomeTavola_Prodotto(const QString& key) const;
    QString Restituisci_NomeFoto_1_Prodotto(const QString& key) const;
    QString Restituisci_NomeFoto_2_Prodotto(const QString& key) const;
    QString Restituisci_KeyAssociazione_Prodotto(const QString& key) const;
    bool Restituisci_Esistenza_Tavola_Prodotto(const QString& key) const;
    QString Restituisci_Nome_Prodotto(const QString& key) const;
    QString Restituisci_Descrizione_Root_albero() const;
    QString Restituisci_Traduzione_Prodotto(const QString& key, const QString& lingua) const;
    QString Restituisci_NomeProdotto_Tradotto(const QString& key, const QString& lingua) const;
    QString Restituisci_Prodotto_KeyVirtuale(const QString& associazione, const QString& padre) const;
    QString Restituisci_KeyProdotto_Cross_Reference(const QString& riferimento, const QString& colonna,
                                                    const QString& associazione) const;
    /// Kept: always false.
    bool Restituisci_Abilitazione_Prodotto(const QString& key, const QString& mercato,
                                           const QString& gruppo) const;
    QString Restituisci_Descrizione_Tradotta(const QString& key, const QString& lingua) const;
    QString Restituisci_Matricola_Tradotta(const QString& key, const QString& lingua) const;
    QString Restituisci_Nota_Tradotta(const QString& key, const QString& lingua) const;
    QString Restituisci_Traduzioni_Nota_Componenti_Mappe(const QString& nota, const QString& lingua) const;
    /// Not set when the key is "".
    Recordset Recordset_Traduzioni_Albero_Filtro(const QString& key_testo) const;

    // --- column model and components (colonne.cpp, componenti.cpp)
    // ---------------------------------------------------
    static bool Esiste_Colonna(const QString& nome, const Recordset& recordset);
    QString Restituisci_NomeReale_Colonna() const;
    qint16 Restituisci_Numero_Colonna_Primaria_Distinta(const QString& lingue, const QString& mercati,
                                                        const QString& gruppi) const;
    void Restituisci_Tipo_Size_Colonna(const QString& nome, QString& tipo, QString& size) const;
    /// "|code1|code2|", "" for none. `tipo` 0 leaves the association kind out.
    void Restituisci_Codice_Componente(const QString& prodotto, const QString& riferimento,
                                       const QString& mercato, int tipo, QString& elenco) const;
    void Restituisci_Quantita_Componente(const QString& prodotto, const QString& codice,
                                         const QString& riferimento, const Filtri& filtri,
                                         QString& quantita) const;

    // --- filtered component queries (query_componenti.cpp)
    // -----------------------------------------------------------
    Recordset Recorset_StrutturaComponenti(const QString& lingue, const QString& mercati,
                                           const QString& gruppi) const;
    Recordset Recordset_Componenti_Web(const QString& prodotto, const QString& mercato) const;
    Recordset Recordset_Componenti_Web_Filtrato(const QString& prodotto, const QString& mercato,
                                                const QString& riferimento, const QString& gruppi,
                                                const QString& codice) const;
    Recordset Recordset_Tabella_Componenti_Web(const QString& prodotto, const QString& mercato,
                                               const QString& riferimento, const QString& gruppi,
                                               const QString& codice, const QString& condizione) const;
    Recordset Recordset_Componenti(const QString& condizione) const;
    Recordset Recordset_Componenti_Filtrato(const QString& condizione, const QString& codice) const;
    Recordset Recordset_Tabella_Componenti(const QString& codice, const QString& condizione) const;
    bool Esite_Nota_Tabella_Associazione(const QString& prodotto, const QString& mercato,
                                         const QString& riferimento, const QString& gruppi,
                                         const QString& codice, const QString& condizione,
                                         const QString& lingua) const;
    /// Whether the serial falls within what the node allows. "" is true. Fails with `Errore_DB` when even the
    /// text form can't be run.
    bool Matricola_Valida_Prodotto(const QString& prodotto, const QString& matricola) const;
    /// The one-pass form of `Matricola_Valida_Prodotto`, for a whole tree: the products for which it answers
    /// true for this serial, as `Chiave_Senza_Maiuscole` gives them. Not for the serial "", which every
    /// product allows. Fails with `Errore_DB`.
    QSet<QString> Prodotti_Con_Matricola(const QString& matricola) const;
    /// A key such that two of them are equal when the database's "=" says so: "A" to "Z" in small letters.
    static QString Chiave_Senza_Maiuscole(QString key);

  private:
    /// A field of the statement's first row, the first field without a name; NULL without a row.
    Valore Primo_Valore(const QString& sql, QStringView campo = {}) const;
    /// The same as text, trapped: "" for NULL, no row and any failure.
    QString Primo_Testo(const QString& sql, QStringView campo = {}) const;
    /// Select list of the visible columns, with their titles as aliases, from a statement on the model.
    QString Elenco_Colonne(const QString& sql) const;
    /// Name of the visible primary column, "" without one.
    QString Colonna_Primaria() const;
    /// Quantity of a part in the master's quantity column, "" for none.
    QString Quantita_Da_Componenti(const QString& codice, const Filtri& filtri) const;

    Messaggi& messaggi_;
    Database database_;
    mutable QString sql_;
};

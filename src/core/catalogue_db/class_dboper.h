#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "core/base/filtri.h"
#include "core/base/porte.h"
#include "core/catalogue_db/engine/database.h"

class Class_Sconto;

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

    // --- opening, SYSTEM ---
    /// Opens a catalogue database for reading; a file of another engine becomes one of ours, so it has to be
    /// a copy. On failure shows "Error open file" with the reason and answers false.
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
    /// Runs a statement of the caller's and keeps its text.
    Recordset Apri_Recordset(const QString& sql) const;

    // --- languages and markets (dboper_lingue.cpp) ---
    /// All rows of `Lingue` by `ID`.
    Recordset Recordset_Struttura_Lingue() const;
    /// `ID` of the language with this description, active or not; without one the first `ID`, 0 for no row.
    qint16 Restituisci_ID_Lingua(const QString& descrizione) const;
    /// The same for a market.
    qint16 Restituisci_ID_Mercato(const QString& descrizione) const;
    /// `Chiave` of a number, active or not; "" for none.
    QString Restituisci_Key_Lingua_Mercato(int numero) const;
    /// The number is an active language.
    bool Esiste_Lingua(int numero) const;
    /// The number is an active market.
    bool Esiste_Mercato(int numero) const;
    /// Description of an active language; "" for none.
    QString Restituisci_Descrizione_Lingua(int numero) const;
    /// Description of a market; "" for none. Kept: looks among the rows of active languages, so a market in
    /// another row isn't found.
    QString Restituisci_Descrizione_Mercato(int numero) const;
    /// Active languages with key and description, by `ID`.
    std::vector<Voce_Lingua> Restituisci_Lingue_Disponibili() const;
    /// Active markets with key and description, by `ID`.
    std::vector<Voce_Lingua> Restituisci_Mercati_Disponibili() const;
    /// All languages with key and description, active or not, by `ID`.
    std::vector<Voce_Lingua> Restituisci_Lingue_Catalogate() const;

    // --- accounts (dboper_utenti.cpp) ---
    /// Whether this account may log in with this password. An account whose `Password` is NULL needs none;
    /// one of the kind "/0/0/1/" is an address and never may, and a login with a quote isn't found.
    bool Utente_Valido(const QString& login, const QString& password) const;
    /// Groups of an account, a list "/a/b/"; those at start for a login without an account, "" for none.
    QString Restituisci_Gruppi_Appartenneza_Utente(const QString& login) const;
    /// Numbers of the languages and markets that the account's groups may choose, "/" lists; "" is no limit.
    /// False when they can't be read, and then nothing is limited.
    bool Restituisci_Lingue_Mercati_Validi_Per_Utente(const QString& login, QString& lingue,
                                                      QString& mercati) const;

    // --- products (dboper_prodotti.cpp); texts are "" for no row and for NULL, unless said otherwise ---
    /// File name of the product's drawing.
    QString Restituisci_NomeTavola_Prodotto(const QString& key) const;
    /// File name of its first picture.
    QString Restituisci_NomeFoto_1_Prodotto(const QString& key) const;
    /// File name of its second picture.
    QString Restituisci_NomeFoto_2_Prodotto(const QString& key) const;
    /// Association under which the drawing's map knows it.
    QString Restituisci_KeyAssociazione_Prodotto(const QString& key) const;
    /// Whether its drawing is shown: `Flag_2` is NULL or "1"; false without a row.
    bool Restituisci_Esistenza_Tavola_Prodotto(const QString& key) const;
    /// Title above the tree in the catalogue's own language.
    QString Restituisci_Descrizione_Root_albero() const;
    /// Caption of a node in a language, given by its number; the key for NULL.
    QString Restituisci_Traduzione_Prodotto(const QString& key, const QString& lingua) const;
    /// The same trimmed, "" for NULL.
    QString Restituisci_NomeProdotto_Tradotto(const QString& key, const QString& lingua) const;
    /// The product of an association below this parent; the association itself when there is none.
    QString Restituisci_Prodotto_KeyVirtuale(const QString& associazione, const QString& padre) const;
    /// The link to a product that the map has in column `colonna` (a market's number) for a reference; "" for
    /// anything else than a link.
    QString Restituisci_KeyProdotto_Cross_Reference(const QString& riferimento, const QString& colonna,
                                                    const QString& associazione) const;
    /// Description, serial and note of a product in a language.
    QString Restituisci_Descrizione_Tradotta(const QString& key, const QString& lingua) const;
    QString Restituisci_Matricola_Tradotta(const QString& key, const QString& lingua) const;
    QString Restituisci_Nota_Tradotta(const QString& key, const QString& lingua) const;
    /// Text of a parts row's note; the note's key when it has none, "" also on a failure.
    QString Restituisci_Traduzioni_Nota_Componenti_Mappe(const QString& nota, const QString& lingua) const;

    // --- column model and components (dboper_colonne.cpp, dboper_componenti.cpp) ---
    /// A field has exactly this name, letter by letter.
    static bool Esiste_Colonna(const QString& nome, const Recordset& recordset);
    /// The visible primary column of the parts; "" without one.
    QString Restituisci_NomeReale_Colonna() const;
    /// Its position, from 0, among the columns visible under the filters; 0 also without one.
    qint16 Restituisci_Numero_Colonna_Primaria_Distinta(const QString& lingue, const QString& mercati,
                                                        const QString& gruppi) const;
    /// Kind and size of a column; both "" for one that the model doesn't have.
    void Restituisci_Tipo_Size_Colonna(const QString& nome, QString& tipo, QString& size) const;
    /// "|code1|code2|", "" for none. `tipo` 0 leaves the association kind out.
    void Restituisci_Codice_Componente(const QString& prodotto, const QString& riferimento,
                                       const QString& mercato, int tipo, QString& elenco) const;
    /// Least quantity of a part on a product, else that of the master, else "1"; "" on a failure.
    void Restituisci_Quantita_Componente(const QString& prodotto, const QString& codice,
                                         const QString& riferimento, const Filtri& filtri,
                                         QString& quantita) const;

    // --- discounts (dboper_sconti.cpp) ---
    /// Discount keys of a user's own row, "" when there is none.
    QString Restituisci_Sconto_Appartenneza_Utente(const QString& login) const;
    /// Discount keys of the user's groups, one list behind the other. `gruppo` are the groups of an empty
    /// login that has no row.
    QString Restituisci_Sconto_Appartenneza_Gruppo(const QString& login, const QString& gruppo) const;
    /// Discount keys of everybody who has none; "" for none.
    QString Restituisci_Sconto_Default() const;
    /// What the discounts of some keys (a list "/a/b/") come to: the factor by which to multiply, 0 for no
    /// discount, and their percentages as text, "10+5", "0" for none. A failure, also a malformed discount
    /// string, leaves what was worked out so far.
    float Restituisci_Sconto_Calcolato(const Class_Sconto& sconto, const QString& chiavi, qint16 mercato,
                                       float quantita, float totale, QString& descrizione) const;

    // --- filtered component queries (dboper_query_componenti.cpp). An empty argument filters nothing;
    // `condizione` is SQL of the caller's ---
    /// Visible columns of the model, in their order; languages, markets and groups are "/" lists.
    Recordset Recorset_StrutturaComponenti(const QString& lingue, const QString& mercati,
                                           const QString& gruppi) const;
    /// A product's rows in one market, with the visible columns under their titles.
    Recordset Recordset_Componenti_Web(const QString& prodotto, const QString& mercato) const;
    /// The same under more filters.
    Recordset Recordset_Componenti_Web_Filtrato(const QString& prodotto, const QString& mercato,
                                                const QString& riferimento, const QString& gruppi,
                                                const QString& codice) const;
    /// Rows of `Componenti_Web` with the table's own columns.
    Recordset Recordset_Tabella_Componenti_Web(const QString& prodotto, const QString& mercato,
                                               const QString& riferimento, const QString& gruppi,
                                               const QString& codice, const QString& condizione) const;
    /// Parts of the master with their code as `Codice_Componente` too.
    Recordset Recordset_Componenti(const QString& condizione) const;
    /// The same with the visible columns under their titles and a NULL `Key_Riferimento`.
    Recordset Recordset_Componenti_Filtrato(const QString& condizione, const QString& codice) const;
    /// A part of the master in the form of a row of `Componenti_Web`.
    Recordset Recordset_Tabella_Componenti(const QString& codice, const QString& condizione) const;
    /// One of the rows has a first note.
    bool Esite_Nota_Tabella_Associazione(const QString& prodotto, const QString& mercato,
                                         const QString& riferimento, const QString& gruppi,
                                         const QString& codice, const QString& condizione,
                                         const QString& lingua) const;

    // --- serial numbers (dboper_matricole.cpp) ---
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

#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "core/base/filtri.h"
#include "core/base/numeri.h"
#include "core/base/porte.h"
#include "core/cart/griglia_carrello.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/localisation/collection_traduzioni.h"
#include "core/navigation/albero_visibile.h"
#include "core/navigation/collection_albero.h"
#include "core/package/estrazione.h"

/// What a package says of itself.
struct Propieta_Progetto {
    QString Titolo, Autore, Societa, Contatti, Versione, Note, Data;
};

/// What the user is told when a package's database can't be extracted.
QString Messaggio_Apertura(Stato_Archivio stato);

/// Entry of one of the pictures that a catalogue may bring along; "" when it brings none. `chiave_file` gives
/// the extension only.
QString Nome_Immagine_Personalizzata(const Class_DBOper& db, const QString& interruttore,
                                     const QString& chiave_file, const QString& radice);

/// The open catalogue: its database, tree, texts, temporary folder and current language, market, group, user
/// and product. There is one, made at start and alive until the process ends. It remembers the language
/// across runs.
class Class_Progetto_Aperto : public Fonte_File {
  public:
    struct Porte {
        Impostazioni& impostazioni;
        Messaggi& messaggi;
        Sistema& sistema;
    };
    explicit Class_Progetto_Aperto(Porte porte);
    ~Class_Progetto_Aperto() override;

    bool Progetto_Aperto = false;
    QString Cartella_Temporanea;  ///< with trailing separator
    QString Percorso_Database;
    Collection_Albero Albero;
    Albero_Visibile Tree1;  ///< the visible tree under the current filters
    QString Lingua, Mercato, Gruppo, Utente;
    QString Key_Prodotto_Corrente;  ///< key of the tree node on show; "" for none
    bool Finestra_Dettaglio_Aperta = false;
    bool Finestra_Carrello_Aperta = false;
    bool Finestra_Aggiungi_Aperta = false;
    bool Finestra_Cerca_Aperta = false;
    bool Ricarica_Necessaria = false;
    Collection_Prodotti_Sele Prodotti_Selezionati;  ///< the cart; it goes with the catalogue
    Numeri Numeri_;
    Class_Sconto Sconto;
    Class_DBOper DB;
    Collection_Traduzioni Traduzioni;
    bool Stampa_In_Corso = false;
    QString File_Pacchetto;
    QString Cartella_Estrazione;
    Estrattore Estrazione;

    /// The filters of the moment. A list of groups that names none, such as "/", is handed on as "": the
    /// statements would find nothing by it.
    Filtri Filtri_Correnti() const;
    void Imposta_Filtri(const Filtri& filtri);

    /// Properties of a package that isn't open; false when its database can't be opened: then the first six
    /// are "" and the date stays.
    bool Anteprima_Propieta_Progetto(const QString& pacchetto, Propieta_Progetto& propieta);
    /// One SYSTEM value of a package that isn't open; "" if unreadable.
    QString Anteprima_Propieta_Progetto_Cerca(const QString& pacchetto, const QString& key);
    /// The same properties of the open catalogue; false and six empty ones when none is open.
    bool Anteprima_Propieta_Progetto_Aperto(Propieta_Progetto& propieta) const;
    /// Extracts a package's intro picture, if it has one. The caller deletes the file, which is always a
    /// copy. `silenziosa`: a package that can't be read isn't told to the user.
    bool Anteprima_Immagine_Intro(const QString& pacchetto, QString& immagine, bool silenziosa = false);

    /// Opens a package: 1 when done, also for a version refused with a message; 0 for a failure, which the
    /// user has seen. Work of unknown length is told as 0 of 0.
    qint16 Apri_Progetto_TZF(const QString& pacchetto, Avanzamento* avanzamento = nullptr);
    QString Restituisci_Immagine_Logo();
    QString Restituisci_Immagine_Home();
    QString Restituisci_Immagine_Contatti();
    /// The user's discount on an order: the factor by which to multiply, 0 for none; then the description
    /// stays as it was. The user's own discount keys come before those of the groups, and those before the
    /// catalogue's.
    float Restituisci_Sconto_Utente(float quantita, float totale, QString& descrizione) const;
    QString Restitusci_Titolo_Albero(int lingua) const;
    /// The catalogue asks for no log-in, or somebody is logged in.
    bool Autentificazione_Corretta() const;
    QString Scompatta_File_Compattato(const QString& nome) override;
    /// The same without reuse and into the system's temporary folder. Kept: nothing calls it.
    QString Scompatta_File(const QString& nome);
    /// Closes the catalogue and removes all it left on disk.
    void Elimina_Progetto_Aperto();

    /// Loads the tree model for the current language, unless it stands loaded for it. Fails with `Errore_DB`,
    /// and with `Errore_Collezione` on a key that stands twice; then the model stays.
    void Carica_Albero();
    /// Rebuilds the visible tree from the model with the current filters and this serial
    /// number (its quotes doubled; "" marks nothing). Fails on a node without a caption; then the tree stays.
    void Crea_Albero_Da_Struttura(const QString& matricola);
    /// Works out tree model, visible tree and coded texts for the current filters, and only then puts them in
    /// the place of the former ones, without a product on show. `respiro` is called between the steps. Fails
    /// with what is missing; then everything stays, and the filters are again those of what is on show.
    void Ricarica(const std::function<void()>& respiro);
    /// A log-in was refused: a reload that fails doesn't bring back the user of what is on show.
    void Dimentica_Utente_Mostrato() { mostrati_.Utente.clear(); }

    /// What a fill of a grid works on, and one of the cart, with the filters of the moment.
    Contesto_Griglia Griglie(std::function<bool()> verifica_accesso, std::function<void()> mostra_intro);
    Contesto_Carrello Carrello(std::function<bool()> verifica_accesso, std::function<void()> mostra_intro);

    /// The ports that the catalogue works through.
    const Porte& Desktop() const { return porte_; }

  private:
    bool Crea_Cartella_Temporanea();
    Stato_Archivio Estrai_Database(Avanzamento* avanzamento);
    qint16 Apri_Database_Catalogo(Avanzamento* avanzamento);
    void Chiudi_Tutto();
    void Carica_Valori_Iniziali();
    QString Immagine_Personalizzata(const QString& interruttore, const QString& chiave_file,
                                    const QString& radice);

    /// The model of the current language where the one that stands loaded is of another.
    std::optional<Collection_Albero> Leggi_Albero() const;
    Albero_Visibile Costruisci_Albero(const Collection_Albero& modello, const QString& matricola) const;

    Porte porte_;
    Filtri mostrati_;        ///< those under which tree and texts were worked out
    QString lingua_albero_;  ///< language for which the model stands loaded, "" for none
};

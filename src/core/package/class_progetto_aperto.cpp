#include "core/package/class_progetto_aperto.h"

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstring>

#include "core/base/percorsi.h"
#include "core/catalogue_db/engine/protezione.h"
#include "core/catalogue_db/indici.h"
#include "core/users/accesso.h"

namespace {

const QString SEZIONE_LINGUA = QStringLiteral("LINGUA");
const QString CHIAVE_START = QStringLiteral("START");
constexpr int LINGUA_PREDEFINITA = 2;
constexpr int ULTIMA_LINGUA_START = 6;

QString Lingua_Iniziale(const Impostazioni& impostazioni) {
    const QString letta = impostazioni.Leggi(NOME_APPLICAZIONE, SEZIONE_LINGUA, CHIAVE_START,
                                             QString::number(LINGUA_PREDEFINITA));
    const int numero = letta.trimmed().toInt();
    return QString::number(numero < 1 || numero > ULTIMA_LINGUA_START ? LINGUA_PREDEFINITA : numero);
}

/// Indexes for a package that came without: the catalogue is ours here, in the temporary folder.
void Completa_Indici(const QString& percorso, Avanzamento* avanzamento) {
    try {
        Database database;
        if (avanzamento)
            database.Imposta_Respiro([avanzamento] { avanzamento->Avanza(0, 0); });
        database.Apri(percorso, CONNESSIONE_DB, Database::Modo::Scrittura);
        Crea_Indici(database);
    } catch (const Errore_DB&) {
        // only speed
    }
}

}  // namespace

Class_Progetto_Aperto::Class_Progetto_Aperto(Porte porte)
    : Lingua(Lingua_Iniziale(porte.impostazioni)),
      Numeri_(porte.sistema, porte.messaggi),
      Sconto(Numeri_),
      DB(porte.messaggi),
      Traduzioni(porte.messaggi),
      Estrazione(porte.sistema),
      porte_(porte) {}

Class_Progetto_Aperto::~Class_Progetto_Aperto() {
    // Also where the window could not close any more.
    Elimina_Progetto_Aperto();
    porte_.impostazioni.Scrivi(NOME_APPLICAZIONE, SEZIONE_LINGUA, CHIAVE_START, Lingua);
}

// --- opening and closing -----------------------------------------------------------------------------------

bool Class_Progetto_Aperto::Crea_Cartella_Temporanea() {
    const QString sistema = Cartella_Con_Barra(porte_.sistema.Cartella_Temporanea());
    // Making the folder is the test whether it exists: two programs that start together can't share one.
    for (int n = 0;; ++n) {
        const QString cartella = QStringLiteral("%1TZV_%2").arg(sistema).arg(n, 2, 10, QChar(u'0'));
        if (::mkdir(QFile::encodeName(cartella).constData(), 0700) == 0) {
            Cartella_Temporanea = Cartella_Con_Barra(cartella);
            return true;
        }
        if (errno != EEXIST) {
            porte_.messaggi.Mostra(
                cartella + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno)),
                Icona::Critica);
            return false;
        }
        porte_.sistema.Esegui_Eventi();
    }
}

Stato_Archivio Class_Progetto_Aperto::Estrai_Database(Avanzamento* avanzamento) {
    // A folder that a failed opening left behind holds the database of another package.
    Estrazione.Dimentica_Cartella();
    Stato_Archivio stato = ARCHIVIO_OK;
    const QString estratto = Estrazione.Estrai_Da_Pacchetto(File_Pacchetto, NOME_DATABASE,
                                                            Cartella_Estrazione, avanzamento, &stato);
    if (estratto.isEmpty() || estratto.startsWith(Cartella_Temporanea))
        return stato;
    // A database beside the package is used in a copy, like any other: it stays as it is.
    return Copia_Privata(estratto, Cartella_Temporanea + NOME_DATABASE) ? ARCHIVIO_OK : SCRITTURA_FALLITA;
}

qint16 Class_Progetto_Aperto::Apri_Database_Catalogo(Avanzamento* avanzamento) {
    const QString database = Cartella_Temporanea + NOME_DATABASE;
    if (!DB.Open_Database(database))
        return 0;

    // The order of the tests is kept: a version such as 5.0 opens as current, and the last one never holds.
    const float versione = Numeri_.Converti_Numero(DB.System_Leggi_Key(QStringLiteral("VERSIONE")));
    if (versione == 4.3f || versione >= 4.1f) {
        // current
    } else if (versione < 4.3f) {
        DB.Close_database();
        Progetto_Aperto = false;
        porte_.messaggi.Mostra(QStringLiteral("Error version file."), Icona::Critica);
        return 0;
    } else {
        const QString chiave = QStringLiteral("MSG_04");
        const QString testo = Traduzioni.Item(chiave).Testo;
        porte_.messaggi.Mostra(
            testo != chiave ? testo
                            : QStringLiteral("TZF version wrong!Impossible to open the file with Viewer 4.0"),
            Icona::Critica);
        return 1;
    }

    Completa_Indici(database, avanzamento);
    Percorso_Database = database;
    Progetto_Aperto = true;
    Carica_Valori_Iniziali();
    Carica_Albero();
    Traduzioni.Apri_Database_Traduzioni(Percorso_Database);
    return 1;
}

qint16 Class_Progetto_Aperto::Apri_Progetto_TZF(const QString& pacchetto, Avanzamento* avanzamento) {
    const Filtri prima{Lingua, Mercato, Gruppo, {}};
    try {
        if (!Crea_Cartella_Temporanea())
            return 0;
        File_Pacchetto = pacchetto;
        Cartella_Estrazione = Cartella_Temporanea;
        lingua_albero_.clear();
        if (const Stato_Archivio stato = Estrai_Database(avanzamento)) {
            porte_.messaggi.Mostra(Messaggio_Apertura(stato), Icona::Nessuna);
            return 0;
        }
        return Apri_Database_Catalogo(avanzamento);
    } catch (const std::exception& errore) {
        // No catalogue is open, and the screens speak the language they spoke before. The temporary folder
        // stays.
        Chiudi_Tutto();
        Imposta_Filtri(prima);
        porte_.messaggi.Mostra(QString::fromUtf8(errore.what()), Icona::Critica);
        return 0;
    }
}

void Class_Progetto_Aperto::Carica_Valori_Iniziali() {
    Lingua = QString::number(DB.Restituisci_ID_Lingua(DB.System_Leggi_Key(QStringLiteral("LINGUA_START"))));
    Mercato =
        QString::number(DB.Restituisci_ID_Mercato(DB.System_Leggi_Key(QStringLiteral("MERCATO_START"))));
    Gruppo = DB.System_Leggi_Key(QStringLiteral("GRUPPO_START"));
}

void Class_Progetto_Aperto::Imposta_Filtri(const Filtri& filtri) {
    Lingua = filtri.Lingua;
    Mercato = filtri.Mercato;
    Gruppo = filtri.Gruppo;
    Utente = filtri.Utente;
}

void Class_Progetto_Aperto::Chiudi_Tutto() {
    Progetto_Aperto = false;
    Percorso_Database.clear();
    Utente.clear();
    lingua_albero_.clear();
    Albero.Svuota();
    Tree1 = {};
    mostrati_ = {};
    while (Prodotti_Selezionati.Count() > 0)
        Prodotti_Selezionati.Remove(1);
    DB.Close_database();
    Traduzioni.Chiudi_Database_Traduzioni();
}

void Class_Progetto_Aperto::Elimina_Progetto_Aperto() {
    Chiudi_Tutto();
    Estrazione.Elimina_File_Estratti();
    Elimina_Cartella(Cartella_Temporanea);
    // From now on a folder of this name may be another program's.
    Cartella_Temporanea.clear();
    Cartella_Estrazione.clear();
}

// --- the open catalogue
// --------------------------------------------------------------------------------------

Filtri Class_Progetto_Aperto::Filtri_Correnti() const {
    const bool con_gruppi = std::any_of(Gruppo.begin(), Gruppo.end(), [](QChar c) { return c != u'/'; });
    return {Lingua, Mercato, con_gruppi ? Gruppo : QString(), Utente};
}

std::optional<Collection_Albero> Class_Progetto_Aperto::Leggi_Albero() const {
    // The catalogue doesn't change while it is open: what was read for a language stays right.
    if (lingua_albero_ == Lingua && !Lingua.isEmpty())
        return std::nullopt;
    Collection_Albero modello;
    Carica_Struttura_Albero_Web(DB, Lingua, modello);
    return modello;
}

Albero_Visibile Class_Progetto_Aperto::Costruisci_Albero(const Collection_Albero& modello,
                                                         const QString& matricola) const {
    Albero_Visibile albero;
    ::Crea_Albero_Da_Struttura(
        DB, modello, Lingua.toInt(), Mercato.toInt(), matricola, Filtri_Correnti().Gruppo,
        [this](int lingua) { return Restitusci_Titolo_Albero(lingua); }, albero);
    return albero;
}

void Class_Progetto_Aperto::Carica_Albero() {
    if (auto modello = Leggi_Albero()) {
        Albero = std::move(*modello);
        lingua_albero_ = Lingua;
    }
}

void Class_Progetto_Aperto::Crea_Albero_Da_Struttura(const QString& matricola) {
    Tree1 = Costruisci_Albero(Albero, matricola);
}

void Class_Progetto_Aperto::Ricarica(const std::function<void()>& respiro) {
    try {
        std::optional<Collection_Albero> modello = Leggi_Albero();
        respiro();
        Albero_Visibile visibile = Costruisci_Albero(modello ? *modello : Albero, {});
        respiro();
        Traduzioni.Carica_Testi_Codificati(Lingua);  // the last that can fail, and whole or not at all
        if (modello)
            Albero = std::move(*modello);
        Tree1 = std::move(visibile);
    } catch (...) {
        Imposta_Filtri(mostrati_);
        Ricarica_Necessaria = false;
        throw;
    }
    lingua_albero_ = Lingua;
    mostrati_ = Filtri_Correnti();
    Ricarica_Necessaria = false;
    Key_Prodotto_Corrente.clear();
}

QString Class_Progetto_Aperto::Restitusci_Titolo_Albero(int lingua) const {
    return Titolo_Albero(DB, lingua);
}

float Class_Progetto_Aperto::Restituisci_Sconto_Utente(float quantita, float totale,
                                                       QString& descrizione) const {
    QString chiavi = DB.Restituisci_Sconto_Appartenneza_Utente(Utente);
    if (chiavi.isEmpty())
        chiavi = DB.Restituisci_Sconto_Appartenneza_Gruppo(Utente, Gruppo);
    if (chiavi.isEmpty())
        chiavi = DB.Restituisci_Sconto_Default();
    if (chiavi.isEmpty())
        return 0;
    const auto mercato = Numeri::In_Intero<qint16>(Numeri_.Converti_Numero(Mercato));
    return DB.Restituisci_Sconto_Calcolato(Sconto, chiavi, mercato, quantita, totale, descrizione);
}

Contesto_Griglia Class_Progetto_Aperto::Griglie(std::function<bool()> verifica_accesso,
                                                std::function<void()> mostra_intro) {
    return {DB,
            Traduzioni,
            Numeri_,
            *this,
            porte_.sistema,
            Filtri_Correnti(),
            [this, verifica = std::move(verifica_accesso)](Filtri& filtri) {
                const bool passa = verifica();
                filtri = Filtri_Correnti();
                return passa;
            },
            std::move(mostra_intro)};
}

Contesto_Carrello Class_Progetto_Aperto::Carrello(std::function<bool()> verifica_accesso,
                                                  std::function<void()> mostra_intro) {
    return {Griglie(std::move(verifica_accesso), std::move(mostra_intro)), Sconto, Prodotti_Selezionati,
            [this](float quantita, float totale, QString& descrizione) {
                return Restituisci_Sconto_Utente(quantita, totale, descrizione);
            }};
}

bool Class_Progetto_Aperto::Autentificazione_Corretta() const {
    return ::Autentificazione_Corretta(DB, Utente);
}

QString Class_Progetto_Aperto::Scompatta_File_Compattato(const QString& nome) {
    if (nome.isEmpty() || Cartella_Estrazione.isEmpty())
        return {};
    // The name comes from the catalogue: only a plain one is looked up in the folder.
    const QString gia_estratto = Cartella_Estrazione + nome;
    if (nome == Nome_Sicuro(nome) && QFileInfo(gia_estratto).isFile())
        return gia_estratto;
    return Estrazione.Estrai_Da_Pacchetto(File_Pacchetto, nome, Cartella_Estrazione);
}

QString Class_Progetto_Aperto::Scompatta_File(const QString& nome) {
    return nome.isEmpty() ? QString() : Estrazione.Estrai_Da_Pacchetto(File_Pacchetto, nome, {});
}

QString Class_Progetto_Aperto::Immagine_Personalizzata(const QString& interruttore,
                                                       const QString& chiave_file, const QString& radice) {
    const QString nome = Nome_Immagine_Personalizzata(DB, interruttore, chiave_file, radice);
    return nome.isEmpty() ? QString() : Scompatta_File_Compattato(nome);
}

QString Class_Progetto_Aperto::Restituisci_Immagine_Logo() {
    return Immagine_Personalizzata(QStringLiteral("PUBBLICA_TZF_INCLUDI_LOGO"),
                                   QStringLiteral("PUBBLICA_TZF_INCLUDI_LOGO_FILE"),
                                   QStringLiteral("Logo_azienda."));
}

QString Class_Progetto_Aperto::Restituisci_Immagine_Home() {
    return Immagine_Personalizzata(QStringLiteral("PUBBLICA_TZF_VIEWER_IMMAGINE_HOME"),
                                   QStringLiteral("PUBBLICA_TZF_VIEWER_IMMAGINE_HOME_FILE"),
                                   QStringLiteral("Immagine_Home."));
}

QString Class_Progetto_Aperto::Restituisci_Immagine_Contatti() {
    if (!Progetto_Aperto)
        return {};
    return Immagine_Personalizzata(QStringLiteral("PUBBLICA_TZF_VIEWER_IMMAGINE_CONTATTI"),
                                   QStringLiteral("PUBBLICA_TZF_VIEWER_IMMAGINE_CONTATTI_FILE"),
                                   QStringLiteral("Immagine_Contatti."));
}

// What a package tells of itself without being opened, and the same of the open one.
//
// A preview extracts the asked package's own database to a private folder and never reuses what was extracted
// before: the last extraction folder may hold another package's database under the same name, even the open
// catalogue's, which the preview would then read and delete.

#include <QFile>
#include <QTemporaryFile>
#include <cstdio>
#include <functional>

#include "core/base/percorsi.h"
#include "core/package/class_progetto_aperto.h"

namespace {

class Messaggi_Muti : public Messaggi {
  public:
    void Mostra(const QString&, Icona) override {}
    bool Chiedi(const QString&) override { return false; }
};

/// Runs `leggi` on the database of a package that isn't open; false, after a message, when it can't be
/// opened.
bool Leggi_Anteprima(const Sistema& sistema, Messaggi& messaggi, const QString& pacchetto,
                     const std::function<void(const Class_DBOper&)>& leggi) {
    const Estrazione_Privata database(sistema, pacchetto, NOME_DATABASE);
    if (database.Percorso().isEmpty()) {
        messaggi.Mostra(Messaggio_Apertura(database.Stato()), Icona::Nessuna);
        return false;
    }
    Class_DBOper db(messaggi);
    if (!db.Open_Database(database.Percorso()))
        return false;
    leggi(db);
    db.Close_database();
    return true;
}

Propieta_Progetto Leggi_Propieta(const Class_DBOper& db) {
    const auto leggi = [&db](const char* chiave) { return db.System_Leggi_Key(QLatin1String(chiave)); };
    Propieta_Progetto propieta;
    propieta.Titolo = leggi("PROPRIETA_PROGETTO_TITOLO");
    propieta.Autore = leggi("PROPRIETA_PROGETTO_AUTORE");
    propieta.Societa = leggi("PROPRIETA_PROGETTO_SOCIETA");
    propieta.Contatti = leggi("PROPRIETA_PROGETTO_CONTATTI");
    propieta.Versione = leggi("PROPRIETA_PROGETTO_VERSIONE");
    propieta.Note = leggi("PROPRIETA_PROGETTO_NOTE");
    propieta.Data = leggi("PUBBLICA_TZF_DATA");
    return propieta;
}

/// Gives a file a fresh name that ends with `nome`, in the system's temporary folder; "" when it can't.
QString Con_Nome_Nuovo(const Sistema& sistema, const QString& percorso, const QString& nome) {
    QTemporaryFile nuovo(Cartella_Con_Barra(sistema.Cartella_Temporanea()) + QStringLiteral("tzv_XXXXXX_") +
                         nome);
    if (!nuovo.open() || std::rename(QFile::encodeName(percorso).constData(),
                                     QFile::encodeName(nuovo.fileName()).constData()) != 0)
        return {};
    nuovo.setAutoRemove(false);
    return nuovo.fileName();
}

}  // namespace

QString Messaggio_Apertura(Stato_Archivio stato) {
    return QStringLiteral("Error open file ") + Descrizione_Stato(stato);
}

QString Nome_Immagine_Personalizzata(const Class_DBOper& db, const QString& interruttore,
                                     const QString& chiave_file, const QString& radice) {
    if (db.System_Leggi_Key(QStringLiteral("PUBBLICA_TZF_VIEWER_PERSONALIZZATO")) != u"SI" ||
        db.System_Leggi_Key(interruttore) != u"1")
        return {};
    const QString file = db.System_Leggi_Key(chiave_file);
    return file.isEmpty() ? QString() : radice + Estensione_File(file);
}

bool Class_Progetto_Aperto::Anteprima_Propieta_Progetto(const QString& pacchetto,
                                                        Propieta_Progetto& propieta) {
    Propieta_Progetto letta;
    letta.Data = propieta.Data;  // kept: the date of an unreadable package stays as it was
    const bool aperto = Leggi_Anteprima(porte_.sistema, porte_.messaggi, pacchetto,
                                        [&letta](const Class_DBOper& db) { letta = Leggi_Propieta(db); });
    propieta = letta;
    return aperto;
}

QString Class_Progetto_Aperto::Anteprima_Propieta_Progetto_Cerca(const QString& pacchetto,
                                                                 const QString& key) {
    QString valore;
    Leggi_Anteprima(porte_.sistema, porte_.messaggi, pacchetto,
                    [&](const Class_DBOper& db) { valore = db.System_Leggi_Key(key); });
    return valore;
}

bool Class_Progetto_Aperto::Anteprima_Propieta_Progetto_Aperto(Propieta_Progetto& propieta) const {
    Propieta_Progetto letta;
    letta.Data = propieta.Data;
    if (Progetto_Aperto)
        letta = Leggi_Propieta(DB);
    propieta = letta;
    return Progetto_Aperto;
}

bool Class_Progetto_Aperto::Anteprima_Immagine_Intro(const QString& pacchetto, QString& immagine,
                                                     bool silenziosa) {
    immagine.clear();
    Messaggi_Muti muti;
    QString nome;
    Leggi_Anteprima(
        porte_.sistema, silenziosa ? muti : porte_.messaggi, pacchetto, [&nome](const Class_DBOper& db) {
            nome = Nome_Immagine_Personalizzata(db, QStringLiteral("PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO"),
                                                QStringLiteral("PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO_FILE"),
                                                QStringLiteral("Immagine_Intro."));
        });
    if (nome.isEmpty() || nome != Nome_Sicuro(nome))
        return false;
    const Estrazione_Privata estratta(porte_.sistema, pacchetto, nome);
    if (!estratta.Percorso().isEmpty())
        immagine = Con_Nome_Nuovo(porte_.sistema, estratta.Percorso(), nome);
    return !immagine.isEmpty();
}

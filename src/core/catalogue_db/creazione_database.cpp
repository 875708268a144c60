#include "core/catalogue_db/creazione_database.h"

#include "core/catalogue_db/engine/protezione.h"
#include "core/catalogue_db/indici.h"

Creazione_Database::Creazione_Database(const QString& percorso) {
    database_.Apri(percorso, {}, Database::Modo::Creazione);
    database_.Esegui(QStringLiteral("BEGIN"));
}

Statement Creazione_Database::Tabella(const QString& nome,
                                      const std::vector<Definizione_Colonna>& colonne) const {
    database_.Crea_Tabella(nome, colonne);
    return database_.Inserimento(nome);
}

void Creazione_Database::Termina() {
    Crea_Indici(database_);  // last, when they cost least
    for (const QString& istruzione : Istruzioni_Protezione(PASSWORD_DB))
        database_.Esegui(istruzione);
    database_.Esegui(QStringLiteral("COMMIT"));
    database_.Chiudi();
}

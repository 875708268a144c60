#include "core/catalogue_db/class_dboper.h"

#include "core/catalogue_db/con_trappola.h"
#include "core/conversione/conversione.h"

using namespace Qt::StringLiterals;

bool Class_DBOper::Open_Database(const QString& percorso) {
    try {
        Converti_Database(percorso);
        database_.Apri(percorso, QStringLiteral("; pwd=TZ_07_QR;"));
    } catch (const Errore_DB& errore) {
        messaggi_.Mostra(QStringLiteral("Error open file ") + errore.Descrizione(), Icona::Nessuna);
    }
    return Aperto();
}

void Class_DBOper::Close_database() {
    database_.Chiudi();
}

Recordset Class_DBOper::Apri_Recordset(const QString& sql) const {
    sql_ = sql;
    return database_.Apri_Recordset(sql_);
}

Valore Class_DBOper::Primo_Valore(const QString& sql, QStringView campo) const {
    const Recordset riga = Apri_Recordset(sql);
    if (riga.EOF_())
        return {};
    return campo.isEmpty() ? riga.Campo(0) : riga.Campo(campo);
}

QString Class_DBOper::Primo_Testo(const QString& sql, QStringView campo) const {
    return Con_Trappola(QString(), [&](QString& testo) { testo = Primo_Valore(sql, campo).Testo(); });
}

QString Class_DBOper::System_Leggi_Key(const QString& key) const {
    return Primo_Testo(u"SELECT VALORE FROM SYSTEM WHERE KEY = '"_s + key + u"';"_s).trimmed();
}

#include "core/localisation/collection_traduzioni.h"

#include "core/base/testo.h"
#include "core/catalogue_db/engine/protezione.h"

bool Collection_Traduzioni::Apri_Database_Traduzioni(const QString& percorso, Database::Modo modo) {
    database_.Apri(percorso, CONNESSIONE_DB, modo);
    return true;
}

bool Collection_Traduzioni::Chiudi_Database_Traduzioni() {
    database_.Chiudi();
    return true;
}

void Collection_Traduzioni::Carica_Testi_Codificati(const QString& lingua) {
    Collezione<Class_Traduzioni> prima = std::exchange(testi_, {});
    if (lingua.isEmpty())
        return;
    try {
        Carica_Righe(QStringLiteral("SELECT Name_Object,Traduzione_") + lingua +
                         QStringLiteral(" FROM Traduzioni_Viewer_System WHERE Form = 'DESCRIZIONE' ;"),
                     QString());
    } catch (...) {
        testi_ = std::move(prima);
        throw;
    }
}

void Collection_Traduzioni::Carica_Testi_Base() {
    Carica_Righe(QStringLiteral("SELECT Name_Object,Traduzione_1 FROM Traduzioni_Viewer_System "
                                "WHERE Tipo = 'DESCRIZIONE' ;"),
                 QStringLiteral("#TR#"));
}

void Collection_Traduzioni::Carica_Righe(const QString& sql, const QString& prefisso) {
    const QString a_capo = QStringLiteral("\r\n");
    for (Recordset righe = database_.Apri_Recordset(sql); !righe.EOF_(); righe.MoveNext()) {
        const Valore nome = righe.Campo(0);
        if (nome.E_Nullo())
            continue;
        const QString key = prefisso + nome.Testo();
        Class_Traduzioni& voce = testi_.Contiene(key) ? testi_.Item(key) : Crea_Voce_Traduzione(key);
        const Valore testo = righe.Campo(1);
        if (testo.E_Nullo())
            continue;
        voce.Testo = testo.Testo();
        if (voce.Testo.endsWith(a_capo))
            voce.Testo.chop(a_capo.size());
    }
}

Class_Traduzioni& Collection_Traduzioni::Crea_Voce_Traduzione(const QString& key) {
    return testi_.Inserisci(key, std::make_shared<Class_Traduzioni>(Class_Traduzioni{key, QString()}));
}

Class_Traduzioni Collection_Traduzioni::Item(const QString& key) const {
    if (testi_.Contiene(key))
        return testi_.Item(key);
    const QString secondo = Estrai_Token_Barra(key, 2);
    return {QString(), secondo == FINE_TOKEN ? key : secondo};
}

bool Collection_Traduzioni::Esiste_Key(const QString& key) const {
    return testi_.Contiene(key);
}

QString Collection_Traduzioni::Restituisci_Testo(const QString& key) const {
    for (const Class_Traduzioni& voce : testi_)
        if (voce.Key == key)
            return voce.Testo;
    return QString();
}

QString Collection_Traduzioni::Restituisci_Key(const QString& suffisso, const QString& testo) const {
    const QString cercato = u'/' + suffisso;
    for (const Class_Traduzioni& voce : testi_) {
        if (!voce.Key.contains(cercato) || voce.Testo != testo)
            continue;
        const QString secondo = Estrai_Token_Barra(voce.Key, 2);
        return secondo.isEmpty() || secondo == FINE_TOKEN ? testo : secondo;
    }
    return testo;
}

QString Collection_Traduzioni::Nome_Data_DB_Supporto() const {
    return QStringLiteral("TRADUZIONI.QLD");
}

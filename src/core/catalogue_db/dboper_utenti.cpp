// Accounts: who may log in, in which groups, and what languages and markets these may choose.

#include "core/base/testo.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/con_trappola.h"

using namespace Qt::StringLiterals;

namespace {

/// Kind of an entry that is an address only and can't log in.
constexpr QStringView SOLO_INDIRIZZO = u"/0/0/1/";
/// A list that a row without a limit has made unlimited.
const QString SENZA_LIMITE = QStringLiteral("-");

/// Rows of an account. Kept: the quotes of a login aren't doubled, so a login with a quote can't be asked
/// for. It fails here, before its text could become a part of the statement.
Recordset Righe_Account(const Class_DBOper& db, const QString& login, const QString& fine) {
    if (login.contains(u'\''))
        throw Errore_DB(QStringLiteral("a quote in a login"));
    return db.Apri_Recordset(u"SELECT * FROM Anagrafico WHERE Login = '"_s + login + u'\'' + fine);
}

void Aggiungi_Limite(QString& elenco, const Valore& valore) {
    if (valore.E_Nullo())
        elenco = SENZA_LIMITE;
    if (elenco == SENZA_LIMITE)
        return;
    if (!elenco.isEmpty())
        elenco += u'/';
    elenco += valore.Testo();
}

}  // namespace

bool Class_DBOper::Utente_Valido(const QString& login, const QString& password) const {
    return Con_Trappola(false, [&](bool& valido) {
        const Recordset riga = Righe_Account(*this, login, u" ;"_s);
        if (riga.EOF_() || riga.Campo(u"Utente_Tipo").Testo() == SOLO_INDIRIZZO)
            return;
        const Valore attesa = riga.Campo(u"Password");
        valido = attesa.E_Nullo() || attesa.Testo() == password;
    });
}

QString Class_DBOper::Restituisci_Gruppi_Appartenneza_Utente(const QString& login) const {
    return Con_Trappola(QString(), [&](QString& gruppi) {
        const Recordset riga = Righe_Account(*this, login, u";"_s);
        if (!riga.EOF_())
            gruppi = riga.Campo(u"Key_Gruppo").Testo();
        else if (!login.isEmpty())
            gruppi = System_Leggi_Key(QStringLiteral("GRUPPO_START"));
    });
}

bool Class_DBOper::Restituisci_Lingue_Mercati_Validi_Per_Utente(const QString& login, QString& lingue,
                                                                QString& mercati) const {
    lingue.clear();
    mercati.clear();
    const bool letti = Con_Trappola(false, [&](bool& fatto) {
        QString gruppi;
        {
            const Recordset riga = Righe_Account(*this, login, u" ;"_s);
            gruppi = riga.EOF_() ? System_Leggi_Key(QStringLiteral("GRUPPO_START"))
                                 : riga.Campo(u"Key_Gruppo").Testo();
        }
        QStringList chiavi = Token(gruppi, u"/");
        chiavi.removeAll(QString());
        // Kept: the keys are joined by AND, so several groups select no row, and nothing is limited; they
        // aren't quoted, so a key that isn't a number fails.
        const QString condizione =
            chiavi.isEmpty() ? QString()
                             : u"WHERE Key_Gruppo = "_s + chiavi.join(QStringLiteral(" AND Key_Gruppo = "));
        for (auto righe = Apri_Recordset(u"SELECT * FROM Gruppi_Utenti "_s + condizione + u" ;"_s);
             !righe.EOF_(); righe.MoveNext()) {
            Aggiungi_Limite(lingue, righe.Campo(u"ID_Lingue"));
            Aggiungi_Limite(mercati, righe.Campo(u"ID_Mercati"));
        }
        fatto = true;
    });
    for (QString* elenco : {&lingue, &mercati})
        if (!letti || *elenco == SENZA_LIMITE)
            elenco->clear();
    return letti;
}

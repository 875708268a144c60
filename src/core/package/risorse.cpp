#include "core/package/risorse.h"

#include <QDir>
#include <QFile>

#include "core/base/percorsi.h"
#include "core/conversione/conversione.h"

namespace {

const QString NOME_DATI = QStringLiteral("Data_TzVwRk.QLD");

Estrazione_Privata Estrai(const Class_Progetto_Aperto& progetto, const QString& cartella_installazione,
                          const QString& nome) {
    return Estrazione_Privata(progetto.Desktop().sistema, Percorso_Risorse(cartella_installazione), nome);
}

void Estrapola(Class_Progetto_Aperto& progetto, Finestra_Testi& finestra) {
    Collection_Traduzioni& testi = progetto.Traduzioni;
    testi.Apri_Database_Traduzioni(Cartella_Con_Barra(QDir::homePath()) + QStringLiteral("traduzioni.qld"),
                                   Database::Modo::Scrittura);
    testi.Estrapola_Oggetti_Form(finestra);
}

}  // namespace

QString Percorso_Risorse(const QString& cartella_installazione) {
    return Cartella_Con_Barra(cartella_installazione) + QStringLiteral("Data/data40.qld");
}

bool Con_Dati_Risorsa(const Class_Progetto_Aperto& progetto, const QString& cartella_installazione,
                      const std::function<void(const Class_DBOper&)>& leggi) {
    const Estrazione_Privata dati = Estrai(progetto, cartella_installazione, NOME_DATI);
    if (dati.Percorso().isEmpty())
        return false;
    Class_DBOper db(progetto.Desktop().messaggi);
    if (!db.Open_Database(dati.Percorso()))
        return false;
    leggi(db);
    return true;
}

QByteArray Leggi_Risorsa(const Class_Progetto_Aperto& progetto, const QString& cartella_installazione,
                         const QString& nome) {
    const Estrazione_Privata risorsa = Estrai(progetto, cartella_installazione, nome);
    QFile file(risorsa.Percorso());
    return !risorsa.Percorso().isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Carica_Testi_Finestra(Class_Progetto_Aperto& progetto, const QString& cartella_installazione,
                           Finestra_Testi& finestra, bool estrazione) {
    if (estrazione) {
        Estrapola(progetto, finestra);
        return;
    }
    Collection_Traduzioni& testi = progetto.Traduzioni;
    if (progetto.Progetto_Aperto) {
        testi.Carica_Testi_Form(finestra, progetto.Lingua);
        return;
    }
    const Estrazione_Privata dati = Estrai(progetto, cartella_installazione, NOME_DATI);
    if (dati.Percorso().isEmpty())
        return;
    try {
        Converti_Database(dati.Percorso());
        testi.Apri_Database_Traduzioni(dati.Percorso());
        testi.Carica_Testi_Codificati(progetto.Lingua);
        testi.Carica_Testi_Form(finestra, progetto.Lingua);
    } catch (const Errore_DB&) {
        // A damaged template leaves the window as designed.
    }
    testi.Chiudi_Database_Traduzioni();
}

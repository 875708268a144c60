#include "core/localisation/scelta_lingua.h"

#include <algorithm>

#include "core/base/testo.h"

namespace {

constexpr size_t LINGUE_HOME = 5;

/// Removes the entries whose number isn't in a "/" list; "" limits nothing.
template <class Numero>
void Limita(std::vector<Voce_Lingua>& voci, const QString& ammessi, Numero numero) {
    if (ammessi.isEmpty())
        return;
    const QStringList numeri = Token(ammessi, u"/");
    std::erase_if(voci, [&](const Voce_Lingua& voce) {
        return !numeri.contains(QString::number(numero(voce.Descrizione)));
    });
}

int Posto(const std::vector<Voce_Lingua>& voci, const QString& testo, QString Voce_Lingua::*campo) {
    const auto voce =
        std::find_if(voci.begin(), voci.end(), [&](const Voce_Lingua& v) { return v.*campo == testo; });
    return voce == voci.end() ? -1 : static_cast<int>(voce - voci.begin());
}

/// The entry of this description, else the first one.
int Posto_O_Primo(const std::vector<Voce_Lingua>& voci, const QString& descrizione) {
    const int posto = Posto(voci, descrizione, &Voce_Lingua::Descrizione);
    return posto < 0 && !voci.empty() ? 0 : posto;
}

qint16 Lingua_Da_Key(const Class_DBOper& db, const char* key) {
    return db.Restituisci_ID_Lingua(db.System_Leggi_Key(QLatin1String(key)));
}

qint16 Mercato_Da_Key(const Class_DBOper& db, const char* key) {
    return db.Restituisci_ID_Mercato(db.System_Leggi_Key(QLatin1String(key)));
}

}  // namespace

Modo_Scelta Leggi_Modo_Scelta(const Class_DBOper& db) {
    const QString modo = db.System_Leggi_Key(QStringLiteral("UNIFICA_NAVIGAZIONE_VIEWER"));
    if (modo == u"LINGUA")
        return Modo_Scelta::Lingua;
    if (modo == u"MERCATO")
        return Modo_Scelta::Mercato;
    return modo == u"LINGUA_MERCATO" ? Modo_Scelta::Lingua_Mercato : Modo_Scelta::Nessuna;
}

Scelta_Lingua_Mercato Prepara_Scelta(const Class_DBOper& db, const Filtri& filtri) {
    Scelta_Lingua_Mercato scelta;
    QString lingue, mercati;
    scelta.Limiti_Letti = db.Restituisci_Lingue_Mercati_Validi_Per_Utente(filtri.Utente, lingue, mercati);

    scelta.Lingue.Voci = db.Restituisci_Lingue_Disponibili();
    Limita(scelta.Lingue.Voci, lingue, [&](const QString& d) { return db.Restituisci_ID_Lingua(d); });
    scelta.Lingue.Corrente =
        Posto_O_Primo(scelta.Lingue.Voci, db.Restituisci_Descrizione_Lingua(filtri.Lingua.toInt()));

    scelta.Mercati.Voci = db.Restituisci_Mercati_Disponibili();
    Limita(scelta.Mercati.Voci, mercati, [&](const QString& d) { return db.Restituisci_ID_Mercato(d); });
    scelta.Mercati.Corrente =
        Posto_O_Primo(scelta.Mercati.Voci, db.Restituisci_Descrizione_Mercato(filtri.Mercato.toInt()));

    const Modo_Scelta modo = Leggi_Modo_Scelta(db);
    scelta.Lingue.Abilitato = modo == Modo_Scelta::Lingua || modo == Modo_Scelta::Lingua_Mercato;
    scelta.Mercati.Abilitato = modo == Modo_Scelta::Mercato || modo == Modo_Scelta::Lingua_Mercato;
    return scelta;
}

bool Accetta_Scelta(const Class_DBOper& db, const QString& descrizione_lingua,
                    const QString& descrizione_mercato, Filtri& filtri) {
    const QString lingua_prima = filtri.Lingua, mercato_prima = filtri.Mercato;
    const auto lingua = [&](qint16 numero) { filtri.Lingua = QString::number(numero); };
    const auto mercato = [&](qint16 numero) { filtri.Mercato = QString::number(numero); };
    switch (Leggi_Modo_Scelta(db)) {
        case Modo_Scelta::Lingua:
            if (!descrizione_lingua.isEmpty()) {
                const qint16 numero = db.Restituisci_ID_Lingua(descrizione_lingua);
                lingua(numero);
                mercato(db.Esiste_Mercato(numero) ? numero : Mercato_Da_Key(db, "MERCATO_START"));
            }
            break;
        case Modo_Scelta::Mercato:
            if (!descrizione_mercato.isEmpty()) {
                const qint16 numero = db.Restituisci_ID_Mercato(descrizione_mercato);
                mercato(numero);
                lingua(db.Esiste_Lingua(numero) ? numero : Lingua_Da_Key(db, "LINGUA_START"));
            }
            break;
        case Modo_Scelta::Lingua_Mercato:
            if (!descrizione_lingua.isEmpty())
                lingua(db.Restituisci_ID_Lingua(descrizione_lingua));
            if (!descrizione_mercato.isEmpty())
                mercato(db.Restituisci_ID_Mercato(descrizione_mercato));
            break;
        case Modo_Scelta::Nessuna:
            // Kept: each number is looked up under the key of the other.
            lingua(Lingua_Da_Key(db, "MERCATO_START"));
            mercato(Mercato_Da_Key(db, "LINGUA_START"));
            break;
    }
    return filtri.Lingua != lingua_prima || filtri.Mercato != mercato_prima;
}

Elenco_Lingue Prepara_Lingue_Home(const Class_DBOper& db, const QString& lingua) {
    Elenco_Lingue elenco;
    elenco.Voci = db.Restituisci_Lingue_Catalogate();
    if (elenco.Voci.size() > LINGUE_HOME)
        elenco.Voci.resize(LINGUE_HOME);
    elenco.Corrente =
        Posto(elenco.Voci, db.Restituisci_Key_Lingua_Mercato(lingua.toInt()), &Voce_Lingua::Chiave);
    return elenco;
}

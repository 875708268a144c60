#include "support/fakes.h"

#include <QDir>
#include <algorithm>

QString Impostazioni_Finte::Leggi(const QString& applicazione, const QString& sezione, const QString& chiave,
                                  const QString& predefinito) const {
    return valori_.value({applicazione, sezione, chiave}, predefinito);
}

void Impostazioni_Finte::Scrivi(const QString& applicazione, const QString& sezione, const QString& chiave,
                                const QString& valore) {
    valori_.insert({applicazione, sezione, chiave}, valore);
    ++Scritture;
}

QString Impostazioni_Finte::Valore(const QString& sezione, const QString& chiave) const {
    return valori_.value({NOME_APPLICAZIONE, sezione, chiave});
}

void Impostazioni_Finte::Imposta(const QString& sezione, const QString& chiave, const QString& valore) {
    valori_.insert({NOME_APPLICAZIONE, sezione, chiave}, valore);
}

void Messaggi_Finti::Mostra(const QString& testo, Icona icona) {
    Mostrati.push_back({testo, icona});
}

bool Messaggi_Finti::Chiedi(const QString& testo) {
    Domande.append(testo);
    if (Risposte.empty())
        return false;
    const bool risposta = Risposte.front();
    Risposte.pop_front();
    return risposta;
}

QStringList Messaggi_Finti::Testi() const {
    QStringList testi;
    for (const Messaggio& messaggio : Mostrati)
        testi.append(messaggio.testo);
    return testi;
}

QString Sistema_Finto::Cartella_Temporanea() const {
    return QDir::toNativeSeparators(cartella_.path()) + QDir::separator();
}

QStringList Sistema_Finto::Contenuto_Temporaneo() const {
    return QDir(cartella_.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

bool Avanzamento_Finto::Regolare() const {
    return std::is_sorted(Passi.begin(), Passi.end(), [](auto a, auto b) { return a.first < b.first; }) &&
           std::all_of(Passi.begin(), Passi.end(),
                       [](auto p) { return 0 <= p.first && p.first <= p.second; });
}

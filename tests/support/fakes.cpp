#include "support/fakes.h"

#include <QFile>
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

bool Messaggi_Finti::Chiedi(const QString& testo) {
    Domande.append(testo);
    return !Risposte.isEmpty() && Risposte.takeFirst();
}

QStringList Messaggi_Finti::Testi() const {
    QStringList testi;
    for (const Messaggio& messaggio : Mostrati)
        testi.append(messaggio.testo);
    return testi;
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

QString Stampante_Finta::Stampa(const QString& percorso, const Lavoro_Stampa& lavoro) {
    QFile file(percorso);
    if (!Errore.isEmpty() || !file.open(QIODevice::ReadOnly))
        return Errore.isEmpty() ? file.errorString() : Errore;
    Stampati.push_back({lavoro, file.readAll()});
    return {};
}

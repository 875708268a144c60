#include "support/lavagna_finta.h"

#include <algorithm>

QString Lavagna_Finta::Stringa(const QString& nome) const {
    if (stati.contains(nome))
        return nome;
    for (const HotSpot& hotspot : documenti.value(percorso))
        if (hotspot.nome == nome)
            return hotspot.stringa;
    return {};
}

Lavagna_Finta::Stato* Lavagna_Finta::Trova(const QString& nome) {
    const auto it = stati.find(Stringa(nome));
    return it == stati.end() ? nullptr : &*it;
}

void Lavagna_Finta::Svuota() {
    chiamate << QStringLiteral("Svuota");
    percorso.clear();
    stati.clear();
    opzioni.remove(QStringLiteral("PICKBACKCOLOR"));
    opzioni.remove(QStringLiteral("PICKBORDERCOLOR"));
}

void Lavagna_Finta::Carica_Layout(const QString& file, qint16 indicatore) {
    Svuota();
    chiamate.last() = QStringLiteral("Carica_Layout %1 %2").arg(file).arg(indicatore);
    if (!documenti.contains(file))
        return;
    percorso = file;
    for (const HotSpot& hotspot : documenti[file])
        stati[hotspot.stringa] = {};
    if (Evento.Tavola_Pronta)
        Evento.Tavola_Pronta();
}

void Lavagna_Finta::Chiudi() {
    Svuota();
    chiamate.last() = QStringLiteral("Chiudi");
    chiusa = true;
}

void Lavagna_Finta::Ridisegna(bool valore) {
    chiamate << QStringLiteral("Ridisegna %1").arg(valore);
    attivo = valore;
}

void Lavagna_Finta::Visibile(bool valore) {
    chiamate << QStringLiteral("Visibile %1").arg(valore);
    visibile = valore;
}

void Lavagna_Finta::Imposta_Opzione(const QString& nome, const QVariant& valore) {
    chiamate << QStringLiteral("Imposta_Opzione %1 %2").arg(nome, valore.toString());
    opzioni[nome] = valore;
}

QVariant Lavagna_Finta::Leggi_Opzione(const QString& nome) const {
    return opzioni.value(nome);
}

void Lavagna_Finta::Esegui(const QString& comando, qint16 conteggio) {
    chiamate << QStringLiteral("Esegui %1 %2").arg(comando).arg(conteggio);
    if (comando == QLatin1String("SELEZIONA") || comando == QLatin1String("ZOOM_WINDOWS"))
        modo = comando;
}

void Lavagna_Finta::Segna_HotSpot(const QString& nome) {
    chiamate << QStringLiteral("Segna_HotSpot ") + nome;
    if (Stato* stato = Trova(nome)) {
        stato->colore.reset();
        stato->segnato = true;
    }
}

void Lavagna_Finta::Togli_Segno_HotSpot(const QString& nome) {
    chiamate << QStringLiteral("Togli_Segno_HotSpot ") + nome;
    if (Stato* stato = Trova(nome))
        stato->segnato = false;
}

qint16 Lavagna_Finta::Stato_HotSpot(const QString& nome) const {
    const auto it = stati.constFind(Stringa(nome));
    return it != stati.constEnd() && it->segnato ? 0 : 1;
}

void Lavagna_Finta::Colora_HotSpot(const QString& nome, Colore colore) {
    chiamate << QStringLiteral("Colora_HotSpot %1 %2").arg(nome, QString::number(colore, 16));
    if (Stato* stato = Trova(nome))
        stato->colore = colore;
}

void Lavagna_Finta::Evidenzia_HotSpot(const QString& nome, Colore colore) {
    chiamate << QStringLiteral("Evidenzia_HotSpot %1 %2").arg(nome, QString::number(colore, 16));
    if (Stato* stato = Trova(nome))
        stato->evidenza = colore;
}

void Lavagna_Finta::Decolora_HotSpot(const QString& nome) {
    chiamate << QStringLiteral("Decolora_HotSpot ") + nome;
    if (Stato* stato = Trova(nome))
        stato->colore.reset();
}

void Lavagna_Finta::Azzera_Evidenziazione(const QString& nome) {
    chiamate << QStringLiteral("Azzera_Evidenziazione ") + nome;
    if (nome.isEmpty())
        for (Stato& stato : stati)
            stato.evidenza.reset();
    else if (Stato* stato = Trova(nome))
        stato->evidenza.reset();
}

void Lavagna_Finta::Ferma_Azione() {
    chiamate << QStringLiteral("Ferma_Azione");
}

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
    chiamate << u"Svuota"_qs;
    percorso.clear();
    stati.clear();
    opzioni.remove(u"PICKBACKCOLOR"_qs);
    opzioni.remove(u"PICKBORDERCOLOR"_qs);
}

void Lavagna_Finta::Carica_Layout(const QString& file, qint16 indicatore) {
    Svuota();
    chiamate.last() = u"Carica_Layout %1 %2"_qs.arg(file).arg(indicatore);
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
    chiamate.last() = u"Chiudi"_qs;
}

void Lavagna_Finta::Esegui(const QString& comando, qint16 conteggio) {
    chiamate << u"Esegui %1 %2"_qs.arg(comando).arg(conteggio);
    if (comando == QLatin1String("SELEZIONA") || comando == QLatin1String("ZOOM_WINDOWS"))
        modo = comando;
}

void Lavagna_Finta::Segna_HotSpot(const QString& nome) {
    chiamate << u"Segna_HotSpot "_qs + nome;
    Di(nome) = {true, std::nullopt, Di(nome).evidenza};
}

void Lavagna_Finta::Togli_Segno_HotSpot(const QString& nome) {
    chiamate << u"Togli_Segno_HotSpot "_qs + nome;
    Di(nome).segnato = false;
}

qint16 Lavagna_Finta::Stato_HotSpot(const QString& nome) const {
    return stati.value(Stringa(nome)).segnato ? 0 : 1;
}

void Lavagna_Finta::Colora_HotSpot(const QString& nome, Colore colore) {
    chiamate << u"Colora_HotSpot %1 %2"_qs.arg(nome, QString::number(colore, 16));
    Di(nome).colore = colore;
}

void Lavagna_Finta::Evidenzia_HotSpot(const QString& nome, Colore colore) {
    chiamate << u"Evidenzia_HotSpot %1 %2"_qs.arg(nome, QString::number(colore, 16));
    Di(nome).evidenza = colore;
}

void Lavagna_Finta::Decolora_HotSpot(const QString& nome) {
    chiamate << u"Decolora_HotSpot "_qs + nome;
    Di(nome).colore.reset();
}

void Lavagna_Finta::Azzera_Evidenziazione(const QString& nome) {
    chiamate << u"Azzera_Evidenziazione "_qs + nome;
    const auto azzera = [](Stato& stato) {
        stato.evidenza.reset();
        if (!stato.segnato)
            stato.colore.reset();
    };
    if (!nome.isEmpty())
        azzera(Di(nome));
    else
        for (Stato& stato : stati)
            azzera(stato);
}

#include "core/shell/controllo_albero.h"

#include "core/base/testo.h"
#include "core/shell/lavoro.h"

void Controllo_Albero::Seleziona_Nodo_Albero(const QString& key) {
    Albero_Visibile& albero = progetto_.Tree1;
    if (Nodo_Visibile* nodo = albero.Nodo(key); nodo && nodo != albero.SelectedItem())
        Seleziona(*nodo);
}

void Controllo_Albero::Clic_Nodo(const QString& key) {
    Nodo_Visibile* nodo = progetto_.Tree1.Nodo(key);
    if (!ambiente_.Occupato && nodo)
        Seleziona(*nodo);
}

void Controllo_Albero::Seleziona(Nodo_Visibile& nodo) {
    progetto_.Tree1.Seleziona(&nodo);
    if (ambiente_.System("IMPOSTAZIONE_ESPANDI_NODO_ALBERO") == u"SI")
        nodo.Expanded = true;
    ambiente_.Vista.Albero_Aggiornato();
    schermo_.Mostra_Nodo(QString(nodo.Key));  // the node may go with the tree
}

void Controllo_Albero::Nodo_Aperto(const QString& key, bool aperto) {
    Nodo_Visibile* nodo = progetto_.Tree1.Nodo(key);
    if (!ambiente_.Occupato && nodo)
        nodo->Expanded = aperto;
}

void Controllo_Albero::Cerca_Nodo_Albero(const QString& testo) {
    if (ambiente_.Occupato)
        return;
    ::Cerca_Nodo_Albero(progetto_.Tree1, testo,
                        [this](Nodo_Visibile& nodo) { schermo_.Seleziona_Prodotto(nodo.Key); });
    ambiente_.Vista.Albero_Aggiornato();
}

void Controllo_Albero::Applica_Filtro_Matricola(const QString& matricola) {
    if (ambiente_.Occupato)
        return;
    try {
        const Lavoro lavoro(ambiente_);
        progetto_.Crea_Albero_Da_Struttura(Con_Apici_Raddoppiati(matricola));
        ambiente_.Vista.Albero_Ricostruito();
    } catch (const std::exception& errore) {
        // Tree and product stay.
        ambiente_.Messaggi_().Mostra(QString::fromUtf8(errore.what()), Icona::Critica);
        return;
    }
    schermo_.Seleziona_Prodotto({});
}

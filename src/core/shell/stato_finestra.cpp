#include "core/shell/stato_finestra.h"

#include <algorithm>

#include "core/shell/comandi.h"

Stato_Finestra::Stato_Finestra() {
    for (const Comando& comando : Comandi())
        Bottoni[comando.Key];
}

void Stato_Finestra::Mostra_In_Main(bool Stato_Finestra::*pagina) {
    Frame_Intro = Frame_Preferiti = false;
    Frame_Main = true;
    Frame_Prodotto = Frame_scheda_Prodotto = Frame_Evadi_ordine = false;
    this->*pagina = true;
}

void Stato_Finestra::Sposta_Splitter_V(int posizione) {
    Posizione_Splitter_V = posizione;
    if (Divisione_V >= 0)
        Divisione_V = posizione;
}

qint16 Stato_Finestra::Zona() const {
    // A frame inside a hidden one isn't visible, whatever its own state.
    if (Frame_Intro && Frame_Immagine_Intro)
        return 1;
    if (Frame_Main && Frame_Prodotto)
        return 2;
    if (Frame_Main && Frame_scheda_Prodotto)
        return 5;
    if (Frame_Intro && Frame_Preferiti)
        return 4;
    if (Frame_Main && Frame_Evadi_ordine)
        return 3;
    return 1;
}

int Limita_Splitter_V(int posizione, int altezza) {
    return std::max(MINIMO_SPLITTER, std::min(posizione, altezza - MINIMO_SPLITTER));
}

int Divisione_Iniziale(const QString& altezza_distinta_minima, int altezza) {
    return Limita_Splitter_V(altezza - (altezza_distinta_minima == u"SI" ? 1200 : 2400), altezza);
}

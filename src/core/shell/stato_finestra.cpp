#include "core/shell/stato_finestra.h"

#include <algorithm>

const QStringList& Chiavi_Toolbar() {
    static const QStringList chiavi{
        QStringLiteral("KEY_HOME"),
        QStringLiteral("KEY_PREFERITI"),
        QStringLiteral("KEY_OPEN"),
        QStringLiteral("KEY_DISEGNO"),
        QStringLiteral("KEY_LUCCHETTO"),
        QStringLiteral("KEY_LINGUA"),
        QStringLiteral("KEY_DETTAGLI_RICAMBIO"),
        QStringLiteral("KEY_CARELLO_PARZIALE"),
        QStringLiteral("KEY_EVADI_ORDINE"),
        QStringLiteral("KEY_CERCA"),
        QStringLiteral("KEY_STAMPA"),
        QStringLiteral("KEY_EMAIL"),
        QStringLiteral("KEY_ZOOM_ALL"),
        QStringLiteral("KEY_ZOOM_WIN"),
        QStringLiteral("KEY_ZOOM_PIU"),
        QStringLiteral("KEY_ZOOM_MENO"),
        QStringLiteral("KEY_HELP"),
        QStringLiteral("KEY_CONTATTI"),
    };
    return chiavi;
}

bool E_Due_Stati(const QString& chiave) {
    static const QStringList due_stati{
        QStringLiteral("KEY_DISEGNO"),          QStringLiteral("KEY_DETTAGLI_RICAMBIO"),
        QStringLiteral("KEY_CARELLO_PARZIALE"), QStringLiteral("KEY_EVADI_ORDINE"),
        QStringLiteral("KEY_ZOOM_WIN"),
    };
    return due_stati.contains(chiave);
}

const QStringList& Comandi_Presenti() {
    static const QStringList presenti{
        QStringLiteral("KEY_HOME"),         QStringLiteral("KEY_OPEN"),
        QStringLiteral("KEY_DISEGNO"),      QStringLiteral("KEY_LUCCHETTO"),
        QStringLiteral("KEY_LINGUA"),       QStringLiteral("KEY_CARELLO_PARZIALE"),
        QStringLiteral("KEY_EVADI_ORDINE"), QStringLiteral("KEY_ZOOM_ALL"),
        QStringLiteral("KEY_ZOOM_WIN"),     QStringLiteral("KEY_ZOOM_PIU"),
        QStringLiteral("KEY_ZOOM_MENO"),    QStringLiteral("KEY_HELP"),
    };
    return presenti;
}

Stato_Finestra::Stato_Finestra() {
    for (const QString& chiave : Chiavi_Toolbar())
        Bottoni[chiave].Due_Stati = E_Due_Stati(chiave);
}

void Stato_Finestra::Mostra_In_Main(bool Stato_Finestra::*pagina) {
    Frame_Intro = Frame_Preferiti = false;
    Frame_Main = true;
    Frame_Prodotto = Frame_scheda_Prodotto = Frame_Evadi_ordine = false;
    this->*pagina = true;
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

int Limita_Splitter(int posizione, int larghezza) {
    return std::max(MINIMO_SPLITTER, std::min(posizione, larghezza - MINIMO_SPLITTER));
}

int Divisione_Iniziale(const QString& altezza_distinta_minima, int altezza) {
    return Limita_Splitter_V(altezza - (altezza_distinta_minima == u"SI" ? 1200 : 2400), altezza);
}

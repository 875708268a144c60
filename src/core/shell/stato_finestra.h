#pragma once

#include <QString>
#include <map>

/// The settings' section of the main window, and its value for the height that the user gave the parts list
/// (twips).
inline const QString WIN_PRINCIPALE = QStringLiteral("WIN_PRINCIPALE");
inline const QString ALTEZZA_DISTINTA = QStringLiteral("ALTEZZA_DISTINTA");

/// Lower bound of both splitters, in twips.
inline constexpr int MINIMO_SPLITTER = 1200;

// Splits of the product view that leave out one of its halves.
inline constexpr int SOLO_DISTINTA = -1;
inline constexpr int SOLO_DISEGNO = -2;

/// A toolbar button as the main window shows it.
struct Stato_Bottone {
    bool Enabled = true;
    bool Pressed = false;
};

/// All that the main window shows and the system decides: visible frames and labels, button states, the
/// panes' split.
struct Stato_Finestra {
    bool Frame_Intro = true;
    bool Frame_Immagine_Intro = true;
    bool Frame_Main = false;
    bool Frame_Prodotto = false;
    bool Frame_scheda_Prodotto = false;
    bool Frame_Scheda_Prodotto_Dett = false;
    bool Frame_Evadi_ordine = false;
    bool Frame_Preferiti = false;

    bool Etichette_Catalogo = false;  ///< the six links of the home page that need a catalogue
    bool Label_Utente = false;
    bool Label_Lingua_Mercato = false;
    bool Label_Help_Albero = true;
    bool ImageCombo_lingua = false;   ///< the home page's languages, with their caption
    bool Label_Consulta_Cat = false;  ///< the second link into the catalogue, with its picture
    bool Griglia_Distinta = false;
    bool Label_Nessun_Disegno = false;  ///< the product should have a drawing, and the catalogue names none

    bool Abilitata = true;  ///< toolbar and frames answer; false during long work
    bool Attesa = false;    ///< hourglass
    QString Pannello;       ///< help line of the status bar

    /// Where the drawing ends and the parts list begins, in twips from the toolbar; `SOLO_DISTINTA`,
    /// `SOLO_DISEGNO`: one of them takes the whole height.
    int Divisione_V = SOLO_DISTINTA;

    /// Where the vertical splitter stands while drawing and grid share the height, in twips.
    int Posizione_Splitter_V = MINIMO_SPLITTER;

    bool Label_Aggiornamenti = false;  ///< the updates page has an address

    std::map<QString, Stato_Bottone> Bottoni;  ///< of all commands, by their keys

    Stato_Finestra();

    /// Shows one of the three pages of the working area, in place of the home page and of the favourites.
    void Mostra_In_Main(bool Stato_Finestra::*pagina);
    /// Moves the vertical splitter, also the one that the page doesn't show at the moment; twips from the
    /// toolbar.
    void Sposta_Splitter_V(int posizione);
    /// The zone by the visible frames: 1 home, 2 product, 3 order, 4 favourites, 5 sheet.
    qint16 Zona() const;
};

/// A position of the vertical split held within its bounds; `altezza` is the window's inner height less
/// toolbar and status bar, in twips.
int Limita_Splitter_V(int posizione, int altezza);
/// Where the vertical split stands at start: all but 1200 twips with "SI", else all but 2400, for the parts
/// list.
int Divisione_Iniziale(const QString& altezza_distinta_minima, int altezza);

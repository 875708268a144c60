#include "core/shell/comandi.h"

#include <algorithm>
#include <string_view>

#include "core/shell/schermo_principale.h"

using namespace Qt::StringLiterals;

namespace {

/// The sheet or the drawing of the current product, as the button now has it.
void Comando_Disegno(Schermo_Principale& schermo) {
    schermo.Consulta_Catalogo(false);
    if (const QString corrente = schermo.Prodotto_Corrente(); !corrente.isEmpty())
        schermo.Mostra_Nodo(corrente);
}

bool Premuto(Schermo_Principale& schermo, const QString& key) {
    return schermo.Stato().Bottoni.at(key).Pressed;
}

}  // namespace

bool Comando::Del_Catalogo() const {
    return std::string_view(Zone).find_first_not_of(LASCIA) != std::string_view::npos;
}

const std::array<Comando, 18>& Comandi() {
    using S = Schermo_Principale;
    static const std::array<Comando, 18> comandi{{
        {KEY_HOME, false, ".....", "KEY_HOME", "Home page", "Ctrl+Home", [](S& s) { s.Home.Comando_Home(); }},
        {u"KEY_PREFERITI"_s, false, ".....", "", "", ""},
        {KEY_OPEN, false, ".....", "KEY_OPEN", "Open a catalogue", "Ctrl+O",
         [](S& s) { s.Apertura.Apri_Progetto(); }},
        {KEY_DISEGNO, true, "e.e..", "KEY_DISEGNO", "Drawing and parts list", "Ctrl+D", Comando_Disegno},
        {KEY_LUCCHETTO, false, "eeede", "KEY_LUCCHETTO", "Log in", "Ctrl+L",
         [](S& s) { s.Consulta_Catalogo(true); }},
        {KEY_LINGUA, false, "eeede", "KEY_LINGUA", "Language and market", "Ctrl+G",
         [](S& s) { s.Apertura.Cambia_Lingua(); }},
        {u"KEY_DETTAGLI_RICAMBIO"_s, true, "dedde", "", "", ""},
        {KEY_CARELLO_PARZIALE, true, "deede", "KEY_CARELLO_PARZIALE", "Cart of this product", "Ctrl+K",
         [](S& s) { s.Ordine.Comando_Carrello(); }, &Class_Progetto_Aperto::Finestra_Carrello_Aperta},
        {KEY_EVADI_ORDINE, true, "eeeee", "KEY_EVADI_ORDINE", "Order", "Ctrl+E",
         [](S& s) { s.Ordine.Comando_Ordine(); }},
        {u"KEY_CERCA"_s, false, "eeede", "", "", ""},
        {u"KEY_STAMPA"_s, false, "dPOdd", "", "", ""},
        {KEY_EMAIL, false, "ddedd", "", "", ""},
        {u"KEY_ZOOM_ALL"_s, false, "deddd", "KEY_ZOOM_ALL", "Whole drawing", "Ctrl+0",
         [](S& s) { s.Prodotto.Disegno().Zoom_Pagina(Premuto(s, KEY_ZOOM_WIN)); }},
        {KEY_ZOOM_WIN, true, "deddd", "KEY_ZOOM_WIN", "Zoom to a window", "Ctrl+Shift+Z",
         [](S& s) { s.Prodotto.Disegno().Zoom_Finestra(Premuto(s, KEY_ZOOM_WIN)); }},
        // The second one is for keyboards where the plus needs Shift.
        {u"KEY_ZOOM_PIU"_s, false, "deddd", "KEY_ZOOM_PIU", "Zoom in",
         "Ctrl++; Ctrl+=", [](S& s) { s.Prodotto.Disegno().Zoom(u"ZOOM_PIU"_s); }},
        {u"KEY_ZOOM_MENO"_s, false, "deddd", "KEY_ZOOM_MENO", "Zoom out", "Ctrl+-",
         [](S& s) { s.Prodotto.Disegno().Zoom(u"ZOOM_MENO"_s); }},
        {KEY_HELP, false, ".....", "KEY_HELP", "User's guide", "F1", [](S& s) { s.Home.Visualizza_Help(); }},
        {u"KEY_CONTATTI"_s, false, ".....", "", "", ""},
    }};
    return comandi;
}

const Comando* Cerca_Comando(const QString& key) {
    const auto trovato = std::find_if(Comandi().begin(), Comandi().end(),
                                      [&](const Comando& comando) { return comando.Key == key; });
    return trovato == Comandi().end() ? nullptr : &*trovato;
}

// The states of all toolbar buttons and of the home page's links, by zone and by what the catalogue offers.

#include <array>

#include "core/shell/avvio.h"
#include "core/shell/controllo_principale.h"
#include "core/users/accesso.h"

namespace {

/// What a zone does to a button.
enum Effetto : char { ABILITA = 'e', DISABILITA = 'd', LASCIA = ' ', PAGINE = 'P', ORDINE = 'O' };

struct Riga_Bottone {
    const char16_t* chiave;
    std::array<Effetto, 5> per_zona;  ///< home, product, order, favourites, sheet
};

constexpr Effetto e = ABILITA, d = DISABILITA;
constexpr std::array RIGHE{
    Riga_Bottone{u"KEY_LUCCHETTO", {e, e, e, d, e}},
    Riga_Bottone{u"KEY_LINGUA", {e, e, e, d, e}},
    Riga_Bottone{u"KEY_DETTAGLI_RICAMBIO", {d, e, d, d, e}},
    Riga_Bottone{u"KEY_CARELLO_PARZIALE", {d, e, e, d, e}},
    Riga_Bottone{u"KEY_EVADI_ORDINE", {e, e, e, e, e}},
    Riga_Bottone{u"KEY_CERCA", {e, e, e, d, e}},
    Riga_Bottone{u"KEY_STAMPA", {d, PAGINE, ORDINE, d, d}},
    Riga_Bottone{u"KEY_EMAIL", {d, d, e, d, d}},
    Riga_Bottone{u"KEY_ZOOM_ALL", {d, e, d, d, d}},
    Riga_Bottone{u"KEY_ZOOM_WIN", {d, e, d, d, d}},
    Riga_Bottone{u"KEY_ZOOM_PIU", {d, e, d, d, d}},
    Riga_Bottone{u"KEY_ZOOM_MENO", {d, e, d, d, d}},
    Riga_Bottone{u"KEY_DISEGNO", {e, LASCIA, e, LASCIA, LASCIA}},
};

}  // namespace

void Controllo_Principale::Aggiorna_Toolbar() {
    stato_.Label_Aggiornamenti = !Base_Aggiornamenti(porte_.impostazioni).isEmpty();
    const bool aperto = progetto_.Progetto_Aperto;
    stato_.Etichette_Catalogo = aperto;
    stato_.Label_Utente = aperto;
    stato_.Label_Lingua_Mercato = aperto;
    if (aperto) {
        Aggiorna_Bottoni_Per_Zona();
        Applica_Esclusioni();
    } else {
        for (const Riga_Bottone& riga : RIGHE)
            Bottone(QString::fromUtf16(riga.chiave)).Enabled = false;
        Scarica_Carrello();
    }
    Mostra();
}

void Controllo_Principale::Aggiorna_Bottoni_Per_Zona() {
    const size_t zona = static_cast<size_t>(stato_.Zona() - 1);
    for (const Riga_Bottone& riga : RIGHE) {
        Stato_Bottone& bottone = Bottone(QString::fromUtf16(riga.chiave));
        switch (riga.per_zona[zona]) {
            case ABILITA:
                bottone.Enabled = true;
                break;
            case DISABILITA:
                bottone.Enabled = false;
                break;
            case LASCIA:
                break;
            case PAGINE:
                bottone.Enabled = Impaginazione_Presente(QStringLiteral("PAGE"));
                break;
            case ORDINE:
                bottone.Enabled = Impaginazione_Presente(QStringLiteral("ORDER"));
                break;
        }
    }
}

/// Whether the catalogue brings a page layout of this kind along, for the current language and market.
bool Controllo_Principale::Impaginazione_Presente(const QString& tipo) {
    const QString nome = QStringLiteral("%1_%2_%3_").arg(progetto_.Lingua, progetto_.Mercato, tipo);
    const auto dichiarata = [&](const char* n) {
        return progetto_.DB.System_Leggi_Key(QStringLiteral("PRINT_EXTENSION_") + nome + QLatin1String(n)) ==
               u"1";
    };
    if (!dichiarata("1") && !dichiarata("2"))
        return false;
    // Both are extracted, so that the print finds them.
    const QString prima = progetto_.Scompatta_File_Compattato(nome + QStringLiteral("1.mdp"));
    const QString seconda = progetto_.Scompatta_File_Compattato(nome + QStringLiteral("2.mdp"));
    return !prima.isEmpty() || !seconda.isEmpty();
}

void Controllo_Principale::Applica_Esclusioni() {
    if (Leggi_Modo_Accesso(progetto_.DB) == Modo_Accesso::Libera &&
        System("PUBBLICA_TZF_INCLUDI_ANAGRAFICO") != u"1") {
        Bottone(QStringLiteral("KEY_LUCCHETTO")).Enabled = false;
        stato_.Label_Utente = false;
    }
    const QString scelta = System("UNIFICA_NAVIGAZIONE_VIEWER");
    if (scelta.isEmpty() || scelta == u"LINGUA_NESSUNA") {
        Bottone(QStringLiteral("KEY_LINGUA")).Enabled = false;
        stato_.Label_Lingua_Mercato = false;
    }
}

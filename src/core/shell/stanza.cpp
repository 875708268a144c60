#include "core/shell/stanza.h"

#include <algorithm>

void Ambiente::Abilita_Finestra(bool abilita) {
    Stato.Abilitata = abilita;
    Mostra();
}

void Ambiente::Avvisa(void (Stanza::*evento)()) {
    const std::vector<Stanza*> tutte = Stanze;
    for (Stanza* stanza : tutte)
        // One of those before may have closed it.
        if (std::find(Stanze.begin(), Stanze.end(), stanza) != Stanze.end())
            (stanza->*evento)();
}

Stanza::Stanza(Ambiente& ambiente, Schermo& schermo)
    : ambiente_(ambiente), progetto_(ambiente.Progetto), schermo_(schermo) {
    ambiente_.Stanze.push_back(this);
}

Stanza::~Stanza() {
    std::erase(ambiente_.Stanze, this);
}

bool Stanza::Accesso_O_Intro() {
    const bool accesso = schermo_.Verifica_Accesso(false);
    if (!accesso)
        schermo_.Mostra_Intro();
    return accesso;
}

Contesto_Griglia Stanza::Contesto_Lista() const {
    return progetto_.Griglie([this] { return schermo_.Verifica_Accesso(false); },
                             [this] { schermo_.Mostra_Intro(); });
}

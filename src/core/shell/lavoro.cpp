#include "core/shell/lavoro.h"

#include <utility>

namespace {
/// Events run at most this often: the window stays alive and the work isn't slowed down.
constexpr qint64 MS_TRA_EVENTI = 20;
}  // namespace

Lavoro::Lavoro(Ambiente& ambiente) : ambiente_(ambiente), parte_(ambiente.Occupato) {
    timer_.start();
    if (parte_)
        return;
    ambiente_.Occupato = ambiente_.Stato.Attesa = true;
    ambiente_.Progetto.DB.Imposta_Respiro([this] { Respira(); });
    ambiente_.Abilita_Finestra(false);
}

Lavoro::~Lavoro() {
    if (parte_)
        return;
    ambiente_.Progetto.DB.Imposta_Respiro({});
    ambiente_.Occupato = ambiente_.Stato.Attesa = false;
    ambiente_.Abilita_Finestra(true);
    if (const auto rimandato = std::exchange(ambiente_.Dopo_Il_Lavoro, nullptr))
        rimandato();
}

void Lavoro::Avanza(qint64 fatto, qint64 totale) {
    if (timer_.elapsed() < MS_TRA_EVENTI && fatto != totale)
        return;
    if (totale > 0)
        ambiente_.Vista.Barra_Avanzamento().Avanza(fatto, totale);
    Respira();
}

void Lavoro::Respira() {
    if (timer_.elapsed() < MS_TRA_EVENTI)
        return;
    ambiente_.Sistema_().Esegui_Eventi();
    timer_.start();
}

#include "gui/parts_tables/spazio_assenza.h"

#include <QVBoxLayout>

#include "gui/platform/spazio_vuoto.h"

Spazio_Assenza::Spazio_Assenza(const std::vector<Testo>& testi, const QString& immagine, QWidget* padre)
    : QWidget(padre) {
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    for (const Testo& testo : testi) {
        QWidget* spazio = Spazio_Vuoto(Etichetta(testo.Nome, testo.Testo_, this), immagine, this);
        colonna->addWidget(spazio, 1);
        spazi_.emplace_back(testo.Motivo, spazio);
    }
}

void Spazio_Assenza::Mostra(const Griglia& griglia) {
    for (const auto& [motivo, spazio] : spazi_)
        spazio->setVisible(motivo == griglia.Motivo);
    setVisible(!griglia.Visible);
}

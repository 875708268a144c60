#include "gui/localisation/form_lingua_mercato.h"

namespace {
constexpr QSize MISURA_BANDIERA(24, 16);
}

void Riempi_Lingue(QComboBox& lista, const Elenco_Lingue& elenco,
                   const Form_Lingua_Mercato::Bandiera& bandiera) {
    const QSignalBlocker senza_segnali(lista);
    lista.setIconSize(MISURA_BANDIERA);
    lista.clear();
    for (const Voce_Lingua& voce : elenco.Voci)
        lista.addItem(bandiera(voce.Immagine), voce.Descrizione);
    lista.setCurrentIndex(elenco.Corrente);
}

Form_Lingua_Mercato::Form_Lingua_Mercato(Controllo_Accesso& accesso, const Bandiera& bandiera, QWidget* padre)
    : Dialogo_Campi("Form_Lingua_Mercato", "Language and market", "OK", padre), accesso_(accesso) {
    const auto lista = [&](const Elenco_Lingue& elenco) {
        auto* combo = new QComboBox(this);
        Riempi_Lingue(*combo, elenco, bandiera);
        combo->setEnabled(elenco.Abilitato);
        return combo;
    };
    const Scelta_Lingua_Mercato scelta = accesso.Carica_Lingua_Mercato();
    Aggiungi_Campo(lingua_ = lista(scelta.Lingue), "Combo_Lingua", "Label_Lingua", "Language");
    Aggiungi_Campo(mercato_ = lista(scelta.Mercati), "Combo_Mercato", "Label_Mercato", "Market");
}

void Form_Lingua_Mercato::Command_OK_Click() {
    accesso_.Scegli_Lingua_Mercato(lingua_->currentText(), mercato_->currentText());
    accept();
}

#include "gui/localisation/form_lingua_mercato.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int LARGHEZZA_LISTA = 220;
constexpr QSize MISURA_BANDIERA(24, 16);

QLabel* Etichetta(const char* nome, const QString& testo, QComboBox* lista) {
    auto* etichetta = new QLabel(testo, lista->parentWidget());
    etichetta->setObjectName(QLatin1String(nome));
    etichetta->setBuddy(lista);
    return etichetta;
}

}  // namespace

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
    : QDialog(padre), accesso_(accesso) {
    setObjectName(QStringLiteral("Form_Lingua_Mercato"));
    setWindowTitle(QStringLiteral("Language and market"));
    const auto lista = [&](const char* nome, const Elenco_Lingue& elenco) {
        auto* combo = new QComboBox(this);
        combo->setObjectName(QLatin1String(nome));
        combo->setMinimumWidth(LARGHEZZA_LISTA);
        Riempi_Lingue(*combo, elenco, bandiera);
        combo->setEnabled(elenco.Abilitato);
        return combo;
    };
    const Scelta_Lingua_Mercato scelta = accesso.Carica_Lingua_Mercato();
    lingua_ = lista("Combo_Lingua", scelta.Lingue);
    mercato_ = lista("Combo_Mercato", scelta.Mercati);
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("Command_OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &Form_Lingua_Mercato::Command_OK_Click);

    auto* campi = new QFormLayout;
    campi->addRow(Etichetta("Label_Lingua", QStringLiteral("Language"), lingua_), lingua_);
    campi->addRow(Etichetta("Label_Mercato", QStringLiteral("Market"), mercato_), mercato_);
    auto* righe = new QVBoxLayout(this);
    righe->setSpacing(14);
    righe->addLayout(campi);
    righe->addWidget(ok, 0, Qt::AlignRight);
    righe->setSizeConstraint(QLayout::SetFixedSize);
    setTabOrder(lingua_, mercato_);
    setTabOrder(mercato_, ok);
}

void Form_Lingua_Mercato::Command_OK_Click() {
    accesso_.Scegli_Lingua_Mercato(lingua_->currentText(), mercato_->currentText());
    accept();
}

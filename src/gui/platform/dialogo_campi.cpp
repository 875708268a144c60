#include "gui/platform/dialogo_campi.h"

#include <QVBoxLayout>

#include "gui/platform/spazio_vuoto.h"

namespace {
constexpr int LARGHEZZA_CAMPO = 220;
}

Dialogo_Campi::Dialogo_Campi(const char* nome, const char* titolo, const char* testo_ok, QWidget* padre)
    : Finestra_Secondaria(nome, titolo, padre) {
    ok_ = new QPushButton(QLatin1String(testo_ok), this);
    ok_->setObjectName(QStringLiteral("Command_OK"));
    ok_->setDefault(true);
    connect(ok_, &QPushButton::clicked, this, [this] { Command_OK_Click(); });
    auto* righe = new QVBoxLayout(this);
    righe->setSpacing(14);
    righe->addLayout(campi_ = new QFormLayout);
    righe->addLayout(piede_ = new QHBoxLayout);
    righe->setSizeConstraint(QLayout::SetFixedSize);
    piede_->addStretch(1);
    piede_->addWidget(ok_);
}

void Dialogo_Campi::Aggiungi_Campo(QWidget* campo, const char* nome, const char* nome_etichetta,
                                   const char* etichetta) {
    campo->setObjectName(QLatin1String(nome));
    campo->setMinimumWidth(LARGHEZZA_CAMPO);
    QLabel* titolo = Etichetta(nome_etichetta, etichetta, this);
    titolo->setBuddy(campo);
    campi_->addRow(titolo, campo);
    setTabOrder(campo, ok_);
}

#include "gui/shell/indicatore_avanzamento.h"

#include <algorithm>

namespace {
constexpr int MASSIMO = 1000;
}

Indicatore_Avanzamento::Indicatore_Avanzamento(QWidget* padre) : QProgressBar(padre) {
    setObjectName(QStringLiteral("PB_Avanzamento"));
    setRange(0, MASSIMO);
    setTextVisible(false);
    setFixedWidth(180);
    setMaximumHeight(14);
    hide();
}

void Indicatore_Avanzamento::Avanza(qint64 fatto, qint64 totale) {
    const double parte =
        totale > 0 ? std::clamp(static_cast<double>(fatto) / static_cast<double>(totale), 0.0, 1.0) : 0.0;
    setValue(static_cast<int>(parte * MASSIMO));
    show();
    emit Avanzato(value());
}

void Indicatore_Avanzamento::Nascondi() {
    hide();
    reset();
}

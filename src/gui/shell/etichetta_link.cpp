#include "gui/shell/etichetta_link.h"

#include <QPainter>

#include "gui/platform/icone.h"

namespace {
constexpr int LATO_ICONA = 20;
constexpr int MARGINE = 6;
}  // namespace

Etichetta_Link::Etichetta_Link(const QString& nome, const QString& testo, const QString& icona,
                               QWidget* padre)
    : Etichetta_Attiva(nome, padre), icona_(icona.isEmpty() ? QIcon() : Icona_Tema(icona)) {
    setText(testo);
    const int posto_icona = icona.isEmpty() ? 0 : LATO_ICONA + (testo.isEmpty() ? 0 : 8);
    setContentsMargins(MARGINE + posto_icona, 5, testo.isEmpty() ? MARGINE : MARGINE + 4, 5);
    setMinimumHeight(LATO_ICONA + 2 * MARGINE);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void Etichetta_Link::paintEvent(QPaintEvent* evento) {
    Etichetta_Attiva::paintEvent(evento);
    QPainter pittore(this);
    icona_.paint(&pittore, QRect(MARGINE, (height() - LATO_ICONA) / 2, LATO_ICONA, LATO_ICONA),
                 Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    Disegna_Fuoco(pittore);
}

void Etichetta_Link::Sottolinea() {
    QFont carattere = font();
    carattere.setUnderline(underMouse() || Fuoco_Visibile());
    setFont(carattere);
}

void Etichetta_Link::enterEvent(QEnterEvent* evento) {
    Etichetta_Attiva::enterEvent(evento);
    Sottolinea();
}

void Etichetta_Link::leaveEvent(QEvent* evento) {
    Etichetta_Attiva::leaveEvent(evento);
    Sottolinea();
}

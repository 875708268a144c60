#include "gui/shell/etichetta_link.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "gui/platform/icone.h"

namespace {
constexpr int LATO_ICONA = 20;
constexpr int MARGINE = 6;
}  // namespace

Etichetta_Link::Etichetta_Link(const QString& nome, const QString& testo, const QString& icona,
                               QWidget* padre)
    : QLabel(testo, padre), icona_(Icona_Tema(icona)) {
    setObjectName(nome);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setContentsMargins(MARGINE + LATO_ICONA + 8, 5, MARGINE + 4, 5);
    setMinimumHeight(LATO_ICONA + 2 * MARGINE);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void Etichetta_Link::paintEvent(QPaintEvent* evento) {
    QLabel::paintEvent(evento);
    QPainter pittore(this);
    icona_.paint(&pittore, QRect(MARGINE, (height() - LATO_ICONA) / 2, LATO_ICONA, LATO_ICONA),
                 Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (!hasFocus() || !da_tastiera_)
        return;
    QStyleOptionFocusRect cornice;
    cornice.initFrom(this);
    cornice.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &cornice, &pittore, this);
}

void Etichetta_Link::Sottolinea() {
    QFont carattere = font();
    carattere.setUnderline(underMouse() || (hasFocus() && da_tastiera_));
    setFont(carattere);
}

void Etichetta_Link::keyPressEvent(QKeyEvent* evento) {
    const int tasto = evento->key();
    if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter || tasto == Qt::Key_Space)
        emit Attivata();
    else
        QLabel::keyPressEvent(evento);
}

void Etichetta_Link::mousePressEvent(QMouseEvent* evento) {
    premuta_ = evento->button() == Qt::LeftButton;
}

void Etichetta_Link::mouseReleaseEvent(QMouseEvent* evento) {
    const bool clic =
        premuta_ && evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint());
    premuta_ = false;
    if (clic)
        emit Attivata();
}

void Etichetta_Link::enterEvent(QEnterEvent* evento) {
    QLabel::enterEvent(evento);
    Sottolinea();
}

void Etichetta_Link::leaveEvent(QEvent* evento) {
    QLabel::leaveEvent(evento);
    Sottolinea();
}

void Etichetta_Link::focusInEvent(QFocusEvent* evento) {
    QLabel::focusInEvent(evento);
    const Qt::FocusReason motivo = evento->reason();
    da_tastiera_ =
        motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason || motivo == Qt::ShortcutFocusReason;
    Sottolinea();
}

void Etichetta_Link::focusOutEvent(QFocusEvent* evento) {
    QLabel::focusOutEvent(evento);
    Sottolinea();
}

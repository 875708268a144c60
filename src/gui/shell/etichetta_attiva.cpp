#include "gui/shell/etichetta_attiva.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

Etichetta_Attiva::Etichetta_Attiva(const QString& nome, QWidget* padre) : QLabel(padre) {
    setObjectName(nome);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void Etichetta_Attiva::Disegna_Fuoco(QPainter& pittore) {
    if (!Fuoco_Visibile())
        return;
    QStyleOptionFocusRect cornice;
    cornice.initFrom(this);
    cornice.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &cornice, &pittore, this);
}

void Etichetta_Attiva::keyPressEvent(QKeyEvent* evento) {
    const int tasto = evento->key();
    if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter || tasto == Qt::Key_Space)
        emit Attivata();
    else
        QLabel::keyPressEvent(evento);
}

void Etichetta_Attiva::mousePressEvent(QMouseEvent* evento) {
    premuta_ = evento->button() == Qt::LeftButton;
}

void Etichetta_Attiva::mouseReleaseEvent(QMouseEvent* evento) {
    const bool clic =
        premuta_ && evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint());
    premuta_ = false;
    if (clic)
        emit Attivata();
}

void Etichetta_Attiva::focusInEvent(QFocusEvent* evento) {
    QLabel::focusInEvent(evento);
    const Qt::FocusReason motivo = evento->reason();
    da_tastiera_ =
        motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason || motivo == Qt::ShortcutFocusReason;
    Fuoco_Cambiato();
}

void Etichetta_Attiva::focusOutEvent(QFocusEvent* evento) {
    QLabel::focusOutEvent(evento);
    Fuoco_Cambiato();
}

#include "gui/platform/delegato_testo.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

bool Delegato_Testo::helpEvent(QHelpEvent* evento, QAbstractItemView* vista,
                               const QStyleOptionViewItem& opzione, const QModelIndex& indice) {
    if (evento->type() != QEvent::ToolTip || !indice.isValid())
        return QStyledItemDelegate::helpEvent(evento, vista, opzione, indice);
    QStyleOptionViewItem cella(opzione);
    initStyleOption(&cella, indice);
    const QRect visibile = opzione.rect.intersected(vista->viewport()->rect());
    if (sizeHint(cella, indice).width() > visibile.width() && !cella.text.isEmpty())
        QToolTip::showText(evento->globalPos(), cella.text.toHtmlEscaped(), vista);
    else
        QToolTip::hideText();
    return true;
}

#pragma once

#include <QStyledItemDelegate>

/// Draws items as the desktop does, and shows the whole text as a tool tip where it is cut.
class Delegato_Testo : public QStyledItemDelegate {
    Q_OBJECT
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    bool helpEvent(QHelpEvent* evento, QAbstractItemView* vista, const QStyleOptionViewItem& opzione,
                   const QModelIndex& indice) override;
};

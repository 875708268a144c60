#include "gui/navigation/vista_albero.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "gui/platform/delegato_testo.h"

Vista_Albero::Vista_Albero(QWidget* padre) : QTreeView(padre) {
    setModel(&modello_);
    setHeaderHidden(true);
    setUniformRowHeights(true);  // a large tree must not be measured node by node
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setAllColumnsShowFocus(true);
    setAnimated(false);
    header()->setStretchLastSection(true);
    setItemDelegate(new Delegato_Testo(this));
    Misura();
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& indice) {
        modello_.Aperto(indice, true);
        if (!in_aggiornamento_)
            emit Nodo_Aperto(modello_.Key(indice), true);
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& indice) {
        modello_.Aperto(indice, false);
        if (!in_aggiornamento_)
            emit Nodo_Aperto(modello_.Key(indice), false);
    });
}

void Vista_Albero::Misura() {
    const int altezza = fontMetrics().height();
    setIconSize(QSize(std::max(16, altezza), std::max(16, altezza)));
    setIndentation(std::max(18, altezza + 4));
}

void Vista_Albero::changeEvent(QEvent* evento) {
    QTreeView::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange)
        Misura();
}

void Vista_Albero::Ricarica(const Albero_Visibile& albero) {
    const QScopedValueRollback guardia(in_aggiornamento_, true);
    modello_.Ricarica(albero);
    Applica_Stato(albero);
}

void Vista_Albero::Aggiorna(const Albero_Visibile& albero) {
    const QScopedValueRollback guardia(in_aggiornamento_, true);
    modello_.Selezionato(albero.SelectedItem() ? albero.SelectedItem()->Key : QString());
    Applica_Stato(albero);
}

void Vista_Albero::Applica_Stato(const Albero_Visibile& albero) {
    bool ridisposto = false;
    const auto ordine = albero.In_Ordine();
    const int nodi = std::min(static_cast<int>(ordine.size()), modello_.Numero_Nodi());
    for (int i = 0; i < nodi; ++i) {
        const Nodo_Visibile& nodo = *ordine[static_cast<size_t>(i)];
        if (nodo.Figli.empty() || modello_.Aperto(i) == nodo.Expanded)
            continue;
        // With a layout pending, nodes are opened and closed without laying out the tree for each.
        if (!ridisposto)
            scheduleDelayedItemsLayout();
        ridisposto = true;
        setExpanded(modello_.Indice(i), nodo.Expanded);
    }
    const QModelIndex scelto =
        albero.SelectedItem() ? modello_.Indice(albero.SelectedItem()->Key) : QModelIndex();
    if (ridisposto)
        executeDelayedItemsLayout();
    if (scelto.isValid()) {
        if (currentIndex() != scelto || !selectionModel()->isSelected(scelto))
            selectionModel()->setCurrentIndex(scelto, QItemSelectionModel::ClearAndSelect);
        scrollTo(scelto);
    } else {
        selectionModel()->clear();
    }
}

void Vista_Albero::mousePressEvent(QMouseEvent* evento) {
    const QPoint punto = evento->position().toPoint();
    const QModelIndex indice = indexAt(punto);
    // A press on the arrow opens the node and leaves the current one.
    const int bordo = visualRect(indice).left();
    const bool freccia =
        modello_.rowCount(indice) > 0 && punto.x() < bordo && punto.x() >= bordo - indentation();
    QTreeView::mousePressEvent(evento);
    premuto_su_nodo_ = evento->button() == Qt::LeftButton && indice.isValid() && !freccia;
}

void Vista_Albero::mouseReleaseEvent(QMouseEvent* evento) {
    QTreeView::mouseReleaseEvent(evento);
    if (!premuto_su_nodo_ || evento->button() != Qt::LeftButton)
        return;
    premuto_su_nodo_ = false;
    // The pointer may have been drawn to another node meanwhile: that one is current.
    Avvisa_Clic();
}

void Vista_Albero::Avvisa_Clic() {
    const QString key = modello_.Key(currentIndex());
    if (key.isEmpty())
        return;
    modello_.Selezionato(key);
    emit Clic_Nodo(key);
}

void Vista_Albero::keyPressEvent(QKeyEvent* evento) {
    const QString prima = modello_.Key(currentIndex());
    QTreeView::keyPressEvent(evento);
    const QString dopo = modello_.Key(currentIndex());
    const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (invio || dopo != prima)
        Avvisa_Clic();
}

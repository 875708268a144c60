#pragma once

#include <QTreeView>

#include "gui/navigation/modello_albero.h"

/// `Tree1`: the visible tree. What core selects or opens is shown without echo; what the user selects or
/// opens is told.
class Vista_Albero : public QTreeView {
    Q_OBJECT
  public:
    explicit Vista_Albero(QWidget* padre = nullptr);
    /// Takes over a rebuilt tree with its open and selected nodes.
    void Ricarica(const Albero_Visibile& albero);
    /// Takes over selection and open nodes, and scrolls to the selected one.
    void Aggiorna(const Albero_Visibile& albero);
    const Modello_Albero& Modello() const { return modello_; }

  signals:
    /// A click on a node, or the keyboard's move to it, or Enter on it.
    void Clic_Nodo(const QString& key);
    void Nodo_Aperto(const QString& key, bool aperto);

  protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void changeEvent(QEvent* evento) override;

  private:
    void Applica_Stato(const Albero_Visibile& albero);
    void Misura();
    void Avvisa_Clic();

    Modello_Albero modello_;
    bool in_aggiornamento_ = false;
    bool premuto_su_nodo_ = false;
};

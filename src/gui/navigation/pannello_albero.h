#pragma once

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>

#include "gui/navigation/vista_albero.h"

/// The left column of the working area: the tree under its title, the node search and the serial number.
class Pannello_Albero : public QFrame {
    Q_OBJECT
  public:
    explicit Pannello_Albero(QWidget* padre = nullptr);
    /// The tree, its title and the list of captions were rebuilt.
    void Ricarica(const Albero_Visibile& albero);
    void Aggiorna(const Albero_Visibile& albero) { tree1_->Aggiorna(albero); }

    Vista_Albero& Tree1() const { return *tree1_; }
    /// Keyboard access to the two fields.
    void Vai_A_Ricerca();
    void Vai_A_Matricola();

  signals:
    /// A node's caption was chosen, or the next node with it asked for.
    void Cerca_Nodo(const QString& testo);
    /// The text of the serial-number field is to be applied.
    void Applica_Matricola(const QString& matricola);

  private:
    QWidget* Crea_Ricerca();
    QWidget* Crea_Matricola();
    /// Asks for the caption typed; of what is only part of captions, for the first of them.
    void Cerca();

    QLabel* titolo_;
    Vista_Albero* tree1_;
    QStringListModel elenco_nodi_;
    QComboBox* combo_nodi_;
    QLabel* nessun_nodo_;        ///< no caption holds what was typed
    QLabel* nessuna_matricola_;  ///< the serial number applied fits no node
    QLineEdit* text_matricola_;
    bool con_matricola_ =
        false;  ///< a serial number was handed on: the tree that comes next tells whether it fits
};

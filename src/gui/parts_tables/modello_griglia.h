#pragma once

#include <QAbstractTableModel>

#include "core/parts_tables/griglia.h"
#include "gui/parts_tables/immagini_risorsa.h"

/// A grid of core for a table widget: row 0 is the horizontal header.
class Modello_Griglia : public QAbstractTableModel {
    Q_OBJECT
  public:
    Modello_Griglia(const Griglia& griglia, Immagini_Risorsa& immagini, QObject* padre = nullptr);

    /// Everything may have changed.
    void Ricarica();
    /// Texts may have changed; rows and columns are the same in number. False when they aren't.
    bool Aggiorna();
    /// Density of the screen on which the pictures are shown.
    void Densita(double densita) { densita_ = densita; }
    /// The cell behind an index; nullptr when the grid has changed meanwhile.
    const Cella* Cella_Di(const QModelIndex& indice) const;
    QPixmap Immagine(const Cella& cella) const { return immagini_.Immagine(cella.Picture, densita_); }

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

  private:
    const Cella* Cella_A(int riga, int colonna) const;

    const Griglia& griglia_;
    Immagini_Risorsa& immagini_;
    double densita_ = 1.0;
    int righe_ = 0;  ///< as last told to the widget
    int colonne_ = 0;
};

/// The alignment of a column as Qt says it.
Qt::Alignment Allineamento_Qt(Allineamento allineamento);

#pragma once

#include <QTableView>
#include <functional>

#include "core/parts_tables/clic_griglia.h"
#include "gui/parts_tables/modello_griglia.h"

/// A grid of core on the screen. It tells the grid its width and the width of a space; widths, alignment,
/// texts and pictures come from the grid. Ctrl+C copies the selected cells as a spreadsheet takes them.
class Vista_Griglia : public QTableView {
    Q_OBJECT
  public:
    /// The pointer over a cell; row `Griglia::Rows` is below the last one, column -1 beside the columns.
    using Regola_Puntatore = std::function<Puntatore(int riga, int colonna)>;

    /// `puntatore`: none for the rule of the parts lists.
    Vista_Griglia(Griglia& griglia, const Tag_Griglia& tag, Immagini_Risorsa& immagini,
                  QWidget* padre = nullptr, Regola_Puntatore puntatore = {});
    ~Vista_Griglia() override;
    /// A grid that is filled anew after each change of the user's keeps its place: what is in view and the
    /// current cell.
    void Mantieni_Posto() { mantieni_posto_ = true; }
    /// First data row in view.
    int TopRow() const;
    void TopRow(int riga);
    void Copia() const;
    Puntatore Puntatore_Mostrato() const { return mostrato_; }
    const Griglia& Dati() const { return griglia_; }
    const Tag_Griglia& Tag() const { return tag_; }
    const Modello_Griglia& Modello() const { return modello_; }

  signals:
    /// A click on a cell, or Enter on the current one.
    void Clic_Cella(int riga, int colonna);
    /// The grid's width has changed: its columns are to be worked out anew.
    void Ridimensionata();
    /// The grid was filled, and shows it.
    void Ricaricata();
    /// Other rows or columns came into view, and not by a fill.
    void Scorsa();

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void changeEvent(QEvent* evento) override;

  private:
    void Misura();
    void Ricarica();
    void Rifai_Modello();
    void Applica_Larghezze();
    void Mostra_Evidenza(const std::vector<int>& righe);
    void Porta_In_Vista(int riga);

    Griglia& griglia_;
    const Tag_Griglia& tag_;
    Modello_Griglia modello_;
    Regola_Puntatore puntatore_;
    Puntatore mostrato_ = Puntatore::Nessuno;
    QPersistentModelIndex premuta_;
    bool mantieni_posto_ = false;
    bool in_ricarica_ = false;
    bool in_ridimensionamento_ = false;
};

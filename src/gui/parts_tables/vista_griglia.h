#pragma once

#include <QTableView>
#include <functional>

#include "core/griglia/griglia.h"
#include "gui/parts_tables/modello_griglia.h"

/// A grid of core on the screen. It tells the grid its width, the width of a space, the height of a row, what
/// is in view and the cell under the mouse; widths, alignment, texts and pictures come from the grid. Ctrl+C
/// copies the selected cells as a spreadsheet takes them.
class Vista_Griglia : public QTableView {
    Q_OBJECT
  public:
    /// Sets the grid's pointer for the cell under the mouse, `y` twips below the grid's top.
    using Regola_Puntatore = std::function<void(Griglia& griglia, const Tag_Griglia& tag, int y)>;

    /// `puntatore`: none for the rule of the parts lists.
    Vista_Griglia(Griglia& griglia, const Tag_Griglia& tag, Immagini_Risorsa& immagini,
                  QWidget* padre = nullptr, Regola_Puntatore puntatore = {});
    ~Vista_Griglia() override;
    /// A grid that is filled anew after each change of the user's keeps its place: what is in view and the
    /// current cell.
    void Mantieni_Posto() { mantieni_posto_ = true; }
    /// The grid was filled: all cells, widths and alignments are taken over.
    void Ricarica();
    void Copia() const;
    const Griglia& Dati() const { return griglia_; }
    const Tag_Griglia& Tag() const { return tag_; }
    const Modello_Griglia& Modello() const { return modello_; }

  signals:
    /// A click on the cell that the grid holds as the one under the mouse, or Enter on the current cell.
    void Clic_Cella();
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
    void Rifai_Modello();
    void Applica_Larghezze();
    void Segna_Vista();
    void Mostra_Evidenza();
    void Sotto_Il_Mouse(const QPoint& punto);

    Griglia& griglia_;
    const Tag_Griglia& tag_;
    Modello_Griglia modello_;
    Regola_Puntatore puntatore_;
    QPersistentModelIndex premuta_;
    bool mantieni_posto_ = false;
    bool in_ricarica_ = false;
    bool in_ridimensionamento_ = false;
    bool in_evidenza_ = false;  ///< scrolling to what core wants in view
};

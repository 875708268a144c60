#pragma once

#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

/// Alignment of a column, with the flexible grid's numbers.
enum class Allineamento { Sinistra = 1, Centro = 4, Destra = 7 };

struct Cella {
    QString Text;
    QString Picture;  ///< name of a picture of the resource package; "" for none
    Allineamento PictureAlignment = Allineamento::Centro;
    bool Bold = false;
    int Colore = -1;  ///< text colour 0xRRGGBB, -1 for the grid's own
    int Sfondo = -1;  ///< background colour, likewise
};

/// The data of a grid: header row 0 and data rows from 1. It always keeps one data row. It knows nothing of
/// the view that shows it but the width that its columns fill. A row or column that isn't there fails with
/// `std::out_of_range`.
class Griglia {
  public:
    Griglia();

    int Rows() const { return static_cast<int>(righe_.size()); }  ///< header included
    int Cols() const { return static_cast<int>(colonne_.size()); }
    /// Columns at the right are dropped or come empty; the others keep their content.
    void Cols(int n);
    Cella& At(int riga, int colonna);
    const Cella& At(int riga, int colonna) const;
    QString TextMatrix(int riga, int colonna) const { return At(riga, colonna).Text; }
    void TextMatrix(int riga, int colonna, const QString& testo) { At(riga, colonna).Text = testo; }
    /// A new last row; cells beyond the columns are dropped. Kept: empty cells before the first text aren't
    /// written, so that the others move to the left, and cells that are all empty add no row.
    void AddItem(QStringList celle);
    /// Removes a data row; the last one left only loses its content.
    void RemoveItem(int riga);
    /// Empties all cells; rows and columns stay.
    void Clear();

    /// Width of a column in twips.
    int ColWidth(int colonna) const { return colonne_.at(static_cast<size_t>(colonna)).larghezza; }
    void ColWidth(int colonna, int twips) { colonne_.at(static_cast<size_t>(colonna)).larghezza = twips; }
    Allineamento ColAlignment(int colonna) const {
        return colonne_.at(static_cast<size_t>(colonna)).allineamento;
    }
    void ColAlignment(int colonna, Allineamento a) {
        colonne_.at(static_cast<size_t>(colonna)).allineamento = a;
    }

    bool Visible = true;           ///< there is something to show
    int Width = 9000;              ///< twips that the columns fill, told by the view
    double Larghezza_Spazio = 45;  ///< twips of one space in the window's font, told by the view

    /// Called once after a fill or a change of the content.
    std::function<void()> Cambiata;
    /// Called when nothing but bold changed; `righe` are to be brought into view, one after the other.
    std::function<void(const std::vector<int>& righe)> Evidenziata;
    void Segnala_Cambio() const {
        if (Cambiata)
            Cambiata();
    }
    /// There is nothing to show.
    void Nascondi() {
        Visible = false;
        Segnala_Cambio();
    }

  private:
    struct Colonna {
        int larghezza = 960;
        Allineamento allineamento = Allineamento::Sinistra;
    };
    std::vector<Colonna> colonne_;
    /// Rows go from the front, one by one, whenever a list is filled anew.
    std::deque<std::vector<Cella>> righe_;
};

/// A range of cells as spreadsheets take it from the clipboard: cells between tabs, rows between line feeds,
/// a text with a tab, a line end or a quote in quotes. The corners may come in any order.
QString Testo_Celle(const Griglia& griglia, int riga_1, int colonna_1, int riga_2, int colonna_2);

/// The matrix of cell tags beside a grid. It is fixed in size: rows 0 to the highest given, columns 0 to 25;
/// a cell beyond that fails with `std::out_of_range`.
class Tag_Griglia {
  public:
    static constexpr int ULTIMA_COLONNA = 25;
    explicit Tag_Griglia(int ultima_riga);
    int Ultima_Riga() const { return ultima_riga_; }
    bool Contiene(int riga, int colonna) const {
        return riga >= 0 && riga <= ultima_riga_ && colonna >= 0 && colonna <= ULTIMA_COLONNA;
    }
    const QString& At(int riga, int colonna) const;
    void Imposta(int riga, int colonna, const QString& tag);

  private:
    size_t Posizione(int riga, int colonna) const;
    int ultima_riga_;
    std::vector<QString> tag_;
};

#pragma once

#include <QString>
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

/// The data of a grid: header row 0 and data rows from 1. It always keeps one data row. A window shows it
/// through a view. A row or column that isn't there fails with `std::out_of_range`.
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
    /// A new last row, its cells separated by tabs; cells beyond the columns are dropped.
    void AddItem(const QString& riga);
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

    bool Visible = true;
    int Width = 9000;                ///< twips, told by the view
    double Larghezza_Spazio = 45;    ///< twips of one space in the window's font, told by the view
    int RowHeight = 300;             ///< twips of the header row, told by the view
    int MouseRow = 0, MouseCol = 0;  ///< cell under the mouse, told by the view
    int MousePointer = 0;  ///< 0 where a click does nothing, 1 the arrow, 3 the text pointer, 99 the hand

    int TopRow = 1;   ///< first data row in view; kept by the view, which scrolls when told of a change
    int LeftCol = 0;  ///< first column in view, likewise
    int Righe_In_Vista = 0;   ///< data rows that fit in view as a whole, told by the view; 0 for all
    int Larghezza_Vista = 0;  ///< twips that show columns, told by the view; 0 for all
    bool RowIsVisible(int riga) const;
    bool ColIsVisible(int colonna) const;

    /// Called after a fill or a change, so that the view repaints.
    std::function<void()> Cambiata;
    /// Called after bold, `TopRow` or `LeftCol` changed and nothing else.
    std::function<void()> Evidenziata;

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
    const QString& At(int riga, int colonna) const;
    void Imposta(int riga, int colonna, const QString& tag);

  private:
    size_t Posizione(int riga, int colonna) const;
    int ultima_riga_;
    std::vector<QString> tag_;
};

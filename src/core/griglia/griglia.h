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

/// Why a grid shows nothing.
enum class Assenza {
    Vuota,         ///< there is nothing
    Troppe_Righe,  ///< more rows than the grid has tags for
    Guasto,        ///< something can't be read
    Nascoste       ///< the cart's lines are all of parts that the filters hide
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

    bool Visible = true;              ///< there is something to show
    Assenza Motivo = Assenza::Vuota;  ///< else why not
    int Width = 9000;                 ///< twips that the columns fill, told by the view
    double Larghezza_Spazio = 45;     ///< twips of one space in the window's font, told by the view

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
        Motivo = Assenza::Vuota;
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

/// The matrix of cell tags beside a grid, and which line of the cart each row shows. With a highest row it is
/// fixed in size: rows 0 to that one, columns 0 to 25. Without one it grows with what is set, for grids that
/// may hide nothing. A cell that isn't there fails with `std::out_of_range`.
class Tag_Griglia {
  public:
    static constexpr int ULTIMA_COLONNA = 25;
    Tag_Griglia() = default;
    explicit Tag_Griglia(int ultima_riga);
    bool Contiene(int riga, int colonna) const { return colonna >= 0 && colonna < Colonne(riga); }
    /// Whether there is room for a row.
    bool Ammette(int riga) const { return !fissa_ || static_cast<size_t>(riga) < righe_.size(); }
    /// Cells of a row, 0 when it isn't there.
    int Colonne(int riga) const;
    const QString& At(int riga, int colonna) const;
    void Imposta(int riga, int colonna, const QString& tag);
    /// Key of the line of the cart that a row shows, "" for none.
    const QString& Riga(int riga) const;
    void Riga(int riga, const QString& chiave);

  private:
    struct Tag_Riga {
        QString chiave;
        std::vector<QString> tag;
    };
    Tag_Riga& Per_Scrivere(int riga);
    bool fissa_ = false;
    std::vector<Tag_Riga> righe_;
};

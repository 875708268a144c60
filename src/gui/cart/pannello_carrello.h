#pragma once

#include <QLineEdit>
#include <QWidget>
#include <array>
#include <optional>

#include "core/cart/controllo_carrello.h"
#include "gui/parts_tables/spazio_assenza.h"
#include "gui/parts_tables/vista_griglia.h"

/// A face of the cart on the screen: its grid with the two text boxes that are laid over a cell while it is
/// edited, and a text in their place while no line shows. Enter or F2 edits the current cell, or the quantity
/// from the cell that removes the line, Tab goes on to the next one that can be edited, Escape gives it back
/// what it held, Delete removes the current line.
class Pannello_Carrello : public QWidget, private Vista_Carrello {
    Q_OBJECT
  public:
    struct Nomi {
        const char* Griglia;                         ///< name of the grid
        const char* Icona_Vuota;                     ///< picture in its place
        std::vector<Spazio_Assenza::Testo> Assenze;  ///< texts below it
    };
    Pannello_Carrello(Controllo_Carrello& carrello, Faccia faccia, Immagini_Risorsa& immagini,
                      const Nomi& nomi, QWidget* padre = nullptr);
    ~Pannello_Carrello() override;
    Vista_Griglia& Griglia() const { return *griglia_; }

    bool eventFilter(QObject* oggetto, QEvent* evento) override;

  signals:
    /// The grid has another width.
    void Ridimensionato();

  private:
    void Mostra_Casella(Casella casella, int riga, int colonna, const QString& testo) override;
    void Nascondi_Casella(Casella casella) override;
    void Spiega_Casella(Casella casella, const QString& testo) override;
    int TopRow() const override;
    void TopRow(int riga) override;

    void Crea_Casella(Casella casella, const char* nome);
    QLineEdit& Text(Casella casella) const { return *testi_[static_cast<size_t>(casella)]; }
    /// Which of the two boxes an object is; none for any other.
    std::optional<Casella> Casella_Di(const QObject* oggetto) const;
    const Faccia_Carrello::Testo_Casella& Stato(Casella casella) const;
    void Disponi_Casella(Casella casella);
    void Ricaricato();
    bool Tasto_Griglia(int tasto);
    bool Tasto_Casella(Casella casella, const QKeyEvent& evento);
    /// Edits the next cell in the order of reading; false when there is none.
    bool Modifica_Prossima(Casella casella, bool avanti);
    /// Edits the same column of the row below (`passo` 1) or above (-1).
    void Modifica_Riga_Accanto(Casella casella, int passo);

    Controllo_Carrello& carrello_;
    Faccia faccia_;
    Vista_Griglia* griglia_;
    Spazio_Assenza* vuoto_;
    std::array<QLineEdit*, 2> testi_{};
    bool in_disposizione_ = false;  ///< the grid scrolls to the cell that is going to be edited
};

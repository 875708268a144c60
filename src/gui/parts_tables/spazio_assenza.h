#pragma once

#include <QWidget>
#include <utility>
#include <vector>

#include "core/griglia/griglia.h"

/// What stands in the place of a grid that shows nothing: a text for each reason there may be.
class Spazio_Assenza : public QWidget {
  public:
    struct Testo {
        Assenza Motivo;
        const char* Nome;    ///< of the label
        const char* Testo_;  ///< its text when no text catalogue can be read
    };
    /// `immagine`: name of the picture above the text.
    Spazio_Assenza(const std::vector<Testo>& testi, const QString& immagine, QWidget* padre);
    /// Shows the text that the grid needs, and hides itself beside a visible grid.
    void Mostra(const Griglia& griglia);

  private:
    std::vector<std::pair<Assenza, QWidget*>> spazi_;
};

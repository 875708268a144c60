#pragma once

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <vector>

#include "core/navigation/scheda.h"
#include "core/shell/stato_finestra.h"
#include "gui/shell/collegamento.h"

/// `Frame_scheda_Prodotto`: the sheet of a node, or the help that stands in its place. It scrolls when the
/// entries are many; the rows of the entries are made when first needed, and kept.
class Pagina_Scheda : public QFrame {
    Q_OBJECT
  public:
    explicit Pagina_Scheda(QWidget* padre = nullptr);
    void Mostra(const Stato_Finestra& stato);
    void Mostra_Scheda(const Scheda_Prodotto& scheda);
    /// What takes the keyboard first; it can't be seen where the node has no drawing to offer.
    QWidget& Primo_Link() const { return *consulta_; }
    Etichetta_Link& Label_Consulta_Esploso() const { return *consulta_; }

  signals:
    void Consulta_Esploso();
    void Clic_Allegato(const QString& percorso);
    void Clic_Foto(const QString& percorso);

  private:
    struct Riga {
        QLabel* titolo;
        QLabel* oggetto;
        Immagine_Attiva* allegato;
    };
    QWidget* Crea_Dettaglio();
    QLabel* Aggiungi_Dato(const char* nome, const char* testo, const char* nome_dato);
    Riga& Riga_Numero(size_t i);
    void Mostra_Foto(Immagine_Attiva& immagine, const std::optional<Foto_Scheda>& foto);

    QWidget* aiuto_;
    QScrollArea* scorrimento_;
    QFrame* dettaglio_;
    QGridLayout* dati_;
    Immagine_Attiva* disegno_;
    Etichetta_Link* consulta_;
    QLabel *nome_, *codice_, *descrizione_;
    std::vector<Riga> righe_;
    Immagine_Attiva *foto_1_, *foto_2_;
};

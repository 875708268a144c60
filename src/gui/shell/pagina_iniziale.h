#pragma once

#include <QComboBox>
#include <QFrame>
#include <QLabel>

#include "core/package/class_progetto_aperto.h"
#include "core/shell/stato_finestra.h"
#include "gui/localisation/form_lingua_mercato.h"
#include "gui/platform/immagine_adattata.h"
#include "gui/shell/collegamento.h"

/// The home page, `Frame_Intro`: the links that start things, the data of the open catalogue, a picture.
class Pagina_Iniziale : public QFrame {
    Q_OBJECT
  public:
    explicit Pagina_Iniziale(QWidget* padre = nullptr);
    void Mostra(const Stato_Finestra& stato);
    /// Takes over data and pictures of the open catalogue; the program's own without one.
    void Carica_Dati_Home(Class_Progetto_Aperto& progetto);
    void Carica_Lingue_Home(const Elenco_Lingue& lingue, const Form_Lingua_Mercato::Bandiera& bandiera);
    /// The link that takes the keyboard first.
    QWidget& Primo_Link() const;
    /// `Label_consulta_catalogo`.
    QWidget& Link_Consulta() const { return *consulta_; }

  signals:
    /// A link was clicked that raises a command.
    void Link(const QString& key);
    void Aggiornamenti();
    /// A language was chosen, by its description.
    void Lingua(const QString& descrizione);

  private:
    QWidget* Crea_Testi();
    QWidget* Crea_Dati();
    /// Below the picture: the languages, or the second way into the catalogue.
    QWidget* Crea_Piede();
    /// A link; one that raises a command has its icon, unless it has its own.
    Etichetta_Link* Aggiungi_Link(const char* nome, const char* testo, const QString& key,
                                  const char* icona = nullptr);

    QFrame* immagine_intro_;
    Immagine_Adattata* logo_;
    Immagine_Adattata* immagine_;
    Etichetta_Link* apri_;
    Etichetta_Link* consulta_;
    Etichetta_Link* ordine_;
    Etichetta_Link* utente_;
    Etichetta_Link* lingua_;
    Etichetta_Link* mercato_;
    Etichetta_Link* aggiornamenti_;
    QList<QWidget*> consulta_cat_;  ///< picture and label of the second way into the catalogue
    QLabel* label_scelta_lingua_;
    QComboBox* imagecombo_lingua_;
    QList<QLabel*> valori_;     ///< title, author, company, release
    QList<QLabel*> etichette_;  ///< all labels of the block of catalogue data
};

#pragma once

#include "core/cart/aggiunta.h"
#include "core/cart/griglia_carrello.h"
#include "core/package/class_progetto_aperto.h"
#include "support/fakes.h"
#include "support/ordini_di_prova.h"

/// A catalogue opened as the viewer does, with its cart and the grid that shows it.
class Carrello_Aperto {
  public:
    explicit Carrello_Aperto(const Catalogo_Di_Prova& catalogo, QChar separatore = u'.')
        : progetto({impostazioni, messaggi, sistema}) {
        sistema.Separatore = separatore;
        if (progetto.Apri_Progetto_TZF(catalogo.Pacchetto(cartella_.path())) != 1)
            throw std::runtime_error(messaggi.Testi().join(u' ').toStdString());
        progetto.Traduzioni.Carica_Testi_Codificati(progetto.Lingua);
    }

    Contesto_Carrello Contesto() {
        return progetto.Carrello([] { return true; }, [] {});
    }
    Aggiunta_Carrello Aggiunta() {
        return {progetto.DB, progetto.Numeri_, progetto.Filtri_Correnti(), progetto.Prodotti_Selezionati};
    }
    void Aggiungi(const QString& codice, const QString& chiave_grafica, const QString& prodotto = "P_1") {
        Aggiunta().Aggiungi_Componente_Carrello(prodotto, codice, chiave_grafica);
    }
    void Riempi(const QString& chiave = TUTTI_I_PRODOTTI, bool ricarica_righe = true) {
        colonne = Visualizza_Griglia_Carello_Prodotto(Contesto(), chiave, ricarica_righe, griglia, tag);
    }
    /// The texts of a row, and its tags, between ";".
    QString Celle(int riga) const {
        QStringList celle;
        for (int c = 0; c < griglia.Cols(); ++c)
            celle += griglia.TextMatrix(riga, c);
        return celle.join(u';');
    }
    QString Tag(int riga) const {
        QStringList celle;
        for (int c = 0; c < griglia.Cols(); ++c)
            celle += tag.At(riga, c);
        return celle.join(u';');
    }

  private:
    QTemporaryDir cartella_;

  public:
    Impostazioni_Finte impostazioni;
    Messaggi_Finti messaggi;
    Sistema_Finto sistema;
    Griglia griglia;
    Tag_Griglia tag;
    std::vector<Colonna_Griglia> colonne;
    Class_Progetto_Aperto progetto;
};

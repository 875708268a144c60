#include "core/shell/schermo_principale.h"

Schermo_Principale::Schermo_Principale(Class_Progetto_Aperto& progetto, QString cartella_installazione,
                                       Vista_Principale& vista, Vista_Finestre& finestre, Lavagna& lavagna)
    : ambiente_{progetto, std::move(cartella_installazione), vista, finestre},
      Accesso(ambiente_, *this),
      Home(ambiente_, *this, Accesso),
      Apertura(ambiente_, *this),
      Albero(ambiente_, *this),
      Prodotto(ambiente_, *this, lavagna),
      Ordine(ambiente_, *this, Prodotto.Disegno()),
      Comandi(ambiente_, *this) {}

void Schermo_Principale::Mostra_Immagine(const QString& percorso) {
    if (!ambiente_.Occupato && !percorso.isEmpty())
        ambiente_.Finestre.Mostra_Immagine(percorso);
}

/// Runs whenever the mouse enters or leaves a hotspot: the rest of the window isn't touched.
void Schermo_Principale::Scrivi_Pannello(const QString& testo) {
    if (ambiente_.Stato.Pannello == testo)
        return;
    ambiente_.Stato.Pannello = testo;
    ambiente_.Vista.Mostra_Pannello(testo);
}

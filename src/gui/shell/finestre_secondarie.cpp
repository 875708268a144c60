#include "gui/shell/finestre_secondarie.h"

#include "core/package/risorse.h"
#include "gui/cart/form_carrello_prodotto.h"
#include "gui/localisation/finestra_qt.h"
#include "gui/localisation/form_lingua_mercato.h"
#include "gui/parts_tables/form_seleziona_componente.h"
#include "gui/platform/freccia.h"
#include "gui/users/form_autentificazione.h"

namespace {

void Porta_Avanti(QWidget& finestra) {
    finestra.show();
    finestra.raise();
    finestra.activateWindow();
}

}  // namespace

Finestre_Secondarie::Finestre_Secondarie(QWidget& principale, Class_Progetto_Aperto& progetto,
                                         QString cartella_installazione)
    : principale_(principale),
      progetto_(progetto),
      cartella_installazione_(std::move(cartella_installazione)),
      immagini_(
          [this](const QString& nome) { return Leggi_Risorsa(progetto_, cartella_installazione_, nome); }) {}

/// The windows of the commands.
Finestra_Secondaria* Finestre_Secondarie::Crea(const QString& key) {
    if (key == KEY_CARELLO_PARZIALE)
        return new Form_Carrello_Prodotto(schermo_->Ordine.Carrello(), progetto_, immagini_, &principale_);
    throw std::logic_error("no window for " + key.toStdString());
}

void Finestre_Secondarie::Mostra_Finestra(const QString& key) {
    if (!finestre_.value(key)) {
        Finestra_Secondaria* finestra = Crea(key);
        finestre_.insert(key, finestra);
        finestra->setAttribute(Qt::WA_DeleteOnClose);
        Prepara(*finestra);
        QObject::connect(finestra, &Finestra_Secondaria::Scaricata, &principale_, [this, key] {
            finestre_.remove(key);
            schermo_->Comandi.Finestra_Caricata(key, false);
        });
        schermo_->Comandi.Finestra_Caricata(key, true);
    }
    Porta_Avanti(*finestre_.value(key));
}

void Finestre_Secondarie::Chiudi_Finestra(const QString& key) {
    if (Finestra_Secondaria* finestra = finestre_.value(key))
        finestra->close();
}

void Finestre_Secondarie::Mostra_Immagine(const QString& percorso) {
    if (!immagine_)
        immagine_ = new Form_visualizza_Immagine(&principale_);
    Carica_Testi(*immagine_);
    immagine_->Tag(percorso);
    immagine_->Ricarica_Immagine();
    Porta_Avanti(*immagine_);
}

void Finestre_Secondarie::Mostra_Seleziona_Componente(Controllo_Seleziona& scelta) {
    Form_Seleziona_componente dialogo(scelta, progetto_, immagini_, &principale_);
    Esegui(dialogo);
}

void Finestre_Secondarie::Mostra_Autentificazione() {
    Form_Autentificazione dialogo(schermo_->Accesso, &principale_);
    Esegui(dialogo);
}

void Finestre_Secondarie::Mostra_Lingua_Mercato() {
    Form_Lingua_Mercato dialogo(
        schermo_->Accesso, [this](const QString& nome) { return Bandiera(nome); }, &principale_);
    Esegui(dialogo);
}

void Finestre_Secondarie::Esegui(Finestra_Secondaria& dialogo) {
    Prepara(dialogo);
    const Freccia freccia;
    dialogo.exec();
}

void Finestre_Secondarie::Prepara(Finestra_Secondaria& finestra) {
    Carica_Testi(finestra);
    suggerimenti_.Attiva(finestra);
}

void Finestre_Secondarie::Carica_Testi(QWidget& finestra) {
    Finestra_Qt testi(finestra);
    Carica_Testi_Finestra(progetto_, cartella_installazione_, testi);
}

void Finestre_Secondarie::Carica_Testi() {
    Carica_Testi(principale_);
    for (const auto& finestra : std::as_const(finestre_))
        Carica_Testi(*finestra);
}

void Finestre_Secondarie::Abilita(bool abilita) {
    for (const auto& finestra : std::as_const(finestre_))
        finestra->setEnabled(abilita);
}

void Finestre_Secondarie::Scarica() {
    // Also those that were closed just now and are still to be deleted.
    qDeleteAll(principale_.findChildren<Finestra_Secondaria*>(Qt::FindDirectChildrenOnly));
}

QIcon Finestre_Secondarie::Bandiera(const QString& nome) {
    const QPixmap bandiera = immagini_.Immagine(nome, principale_.devicePixelRatioF());
    return bandiera.isNull() ? QIcon(progetto_.Scompatta_File_Compattato(nome)) : QIcon(bandiera);
}

#pragma once

#include <QHash>
#include <QPointer>

#include "core/shell/schermo_principale.h"
#include "gui/parts_tables/immagini_risorsa.h"
#include "gui/platform/finestra_secondaria.h"
#include "gui/platform/suggerimenti.h"
#include "gui/shell/form_visualizza_immagine.h"

/// The windows beside the main one and the dialogs over it: made when they are asked for, with their texts
/// and tool tips.
class Finestre_Secondarie : public Vista_Finestre {
  public:
    /// `cartella_installazione`: where the resource package is, with trailing separator.
    Finestre_Secondarie(QWidget& principale, Class_Progetto_Aperto& progetto, QString cartella_installazione);
    /// Needed before the first window.
    void Collega(Schermo_Principale& schermo) { schermo_ = &schermo; }

    void Mostra_Finestra(const QString& key) override;
    void Chiudi_Finestra(const QString& key) override;
    void Mostra_Immagine(const QString& percorso) override;
    void Mostra_Autentificazione() override;
    void Mostra_Lingua_Mercato() override;
    void Mostra_Seleziona_Componente(Controllo_Seleziona& scelta) override;

    /// The main window stands: its controls get their tool tips.
    void Prepara_Principale() { suggerimenti_.Attiva(principale_); }
    /// Applies the text catalogue to the main window and to those that are up.
    void Carica_Testi();
    /// Long work locks the windows, and unlocks them.
    void Abilita(bool abilita);
    /// The main window goes, and all others with it.
    void Scarica();
    /// The small pictures of the resource package.
    Immagini_Risorsa& Immagini() { return immagini_; }
    /// A flag of the resource package, else one that the catalogue brings along.
    QIcon Bandiera(const QString& nome);

  private:
    Finestra_Secondaria* Crea(const QString& key);
    void Carica_Testi(QWidget& finestra);
    void Prepara(Finestra_Secondaria& finestra);
    void Esegui(Finestra_Secondaria& dialogo);

    QWidget& principale_;
    Class_Progetto_Aperto& progetto_;
    QString cartella_installazione_;
    Immagini_Risorsa immagini_;
    Suggerimenti suggerimenti_;
    Schermo_Principale* schermo_ = nullptr;
    QHash<QString, QPointer<Finestra_Secondaria>> finestre_;  ///< those that are up, by their commands
    Form_visualizza_Immagine* immagine_ = nullptr;            ///< made when the first picture is asked for
};

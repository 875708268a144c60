#pragma once

#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QTimer>

#include "core/shell/controllo_principale.h"
#include "gui/cart/form_carrello_prodotto.h"
#include "gui/navigation/pannello_albero.h"
#include "gui/platform/suggerimenti.h"
#include "gui/shell/area_prodotto.h"
#include "gui/shell/barra_comandi.h"
#include "gui/shell/form_visualizza_immagine.h"
#include "gui/shell/indicatore_avanzamento.h"
#include "gui/shell/pagina_iniziale.h"

/// The main window: a frame around the zones. It shows what the controller decides and hands events to it.
class Form_Main : public QMainWindow, public Vista_Principale {
    Q_OBJECT
  public:
    /// `cartella_installazione`: where the resource package is, with trailing separator.
    Form_Main(Controllo_Principale& controllo, QString cartella_installazione);
    ~Form_Main() override;

    void Mostra(const Stato_Finestra& stato) override;
    void Albero_Ricostruito() override;
    void Albero_Aggiornato() override;
    void Mostra_Pannello(const QString& testo) override;
    void Mostra_Scheda(const Scheda_Prodotto& scheda) override;
    void Mostra_Immagine(const QString& percorso) override;
    void Mostra_Finestra_Carrello() override;
    void Chiudi_Finestra_Carrello() override;
    void Mostra_Seleziona_Componente(Controllo_Seleziona& scelta) override;
    Lavagna_Widget& Tavola() override { return area_->Tavola(); }
    std::optional<QSizeF> Misura_Foto(const QString& percorso) const override;
    void Carica_Testi_Finestra() override;
    void Carica_Dati_Home() override;
    void Carica_Lingue_Home(const Elenco_Lingue& lingue) override;
    void Mostra_Autentificazione() override;
    void Mostra_Lingua_Mercato() override;
    void Massimizza() override;
    int Altezza_Interna() const override;
    QString Scegli_Pacchetto() override;
    QString Text_Matricola() const override { return pannello_->Text_Matricola(); }
    Indicatore_Avanzamento& Barra_Avanzamento() override { return *avanzamento_; }

    Barra_Comandi& Toolbar_Main() const { return *comandi_; }
    Vista_Albero& Tree1() const { return pannello_->Tree1(); }
    Vista_Griglia& Griglia_Distinta() const { return area_->Griglia_Distinta(); }

  protected:
    void changeEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

  private:
    void Crea_Barra_Stato();
    void Crea_Zone();
    void Collega();
    void Crea_Scorciatoie();
    /// Keyboard to the next pane (`passo` 1) or to the one before (-1).
    void Cambia_Riquadro(int passo);
    /// Shows a dialog over the window until it is closed.
    void Esegui_Dialogo(QDialog& dialogo);
    QIcon Bandiera(const QString& nome);
    void Mostra_Attesa(bool attesa);
    void Conserva_Fuoco(bool abilitata);
    void Lampeggia_Link();

    Controllo_Principale& controllo_;
    QString cartella_installazione_;
    Immagini_Risorsa immagini_;
    Suggerimenti suggerimenti_;
    Barra_Comandi* comandi_;
    QLabel* pannello_stato_;
    Indicatore_Avanzamento* avanzamento_;
    Pagina_Iniziale* intro_;
    QFrame* frame_main_;
    QSplitter* divisore_;
    Pannello_Albero* pannello_;
    Area_Prodotto* area_;
    Form_visualizza_Immagine* immagine_ = nullptr;  ///< made when the first picture is asked for
    QPointer<Form_Carrello_Prodotto> carrello_;     ///< while it is up
    QTimer lampeggio_;
    bool fase_ = false;        ///< of the links' blinking
    QPointer<QWidget> fuoco_;  ///< had the keyboard when long work locked the window
    int altezza_ = 0;          ///< inner height before the last resize, in twips
    bool in_attesa_ = false;
    bool attivata_ = false;
};

#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedLayout>
#include <QTimer>
#include <memory>

#include "gui/navigation/pannello_albero.h"
#include "gui/shell/area_prodotto.h"
#include "gui/shell/barra_comandi.h"
#include "gui/shell/finestre_secondarie.h"
#include "gui/shell/indicatore_avanzamento.h"
#include "gui/shell/pagina_iniziale.h"

/// The main window: a frame around the zones. It shows what the rooms decide and hands events to them.
class Form_Main : public QMainWindow, public Vista_Principale {
    Q_OBJECT
  public:
    /// `cartella_installazione`: where the resource package is, with trailing separator.
    Form_Main(Class_Progetto_Aperto& progetto, QString cartella_installazione);
    ~Form_Main() override;
    /// The rooms behind the window.
    Schermo_Principale& Schermo() { return *schermo_; }

    void Mostra(const Stato_Finestra& stato) override;
    void Mostra_Pannello(const QString& testo) override { pannello_stato_->setText(testo); }
    void Albero_Ricostruito() override { pannello_->Ricarica(schermo_->Progetto().Tree1); }
    void Albero_Aggiornato() override { pannello_->Aggiorna(schermo_->Progetto().Tree1); }
    void Mostra_Scheda(const Scheda_Prodotto& scheda) override { area_->Scheda().Mostra_Scheda(scheda); }
    void Carica_Home(const std::optional<Elenco_Lingue>& lingue) override;
    /// The title bar names the open catalogue before the window's own title.
    void Carica_Testi() override;
    void Massimizza() override { setWindowState(windowState() | Qt::WindowMaximized); }
    int Altezza_Interna() const override;
    std::optional<QSizeF> Misura_Foto(const QString& percorso) const override;
    QString Scegli_Pacchetto() override;
    Indicatore_Avanzamento& Barra_Avanzamento() override { return *avanzamento_; }

    /// Closes the window when the program ends anyway: nobody is left to answer a question.
    void Termina();

    Lavagna_Widget& Tavola() const { return *lavagna_; }
    Barra_Comandi& Toolbar_Main() const { return *comandi_; }
    Vista_Albero& Tree1() const { return pannello_->Tree1(); }
    Vista_Griglia& Griglia_Distinta() const { return area_->Griglia_Distinta(); }

  protected:
    void changeEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    bool focusNextPrevChild(bool avanti) override;

  private:
    void Crea_Barra_Stato();
    void Crea_Zone();
    void Collega();
    void Crea_Scorciatoie();
    /// Keyboard to the next pane (`passo` 1) or to the one before (-1).
    void Cambia_Riquadro(int passo);
    void Mostra_Attesa(bool attesa);
    void Conserva_Fuoco(bool abilitata);
    void Rendi_Fuoco();
    void Riprendi_Posto();
    void Scrivi_Posto_Finestra();
    void Lampeggia_Link();

    Finestre_Secondarie finestre_;
    std::unique_ptr<Schermo_Principale> schermo_;
    Barra_Comandi* comandi_;
    QLabel* pannello_stato_;
    Indicatore_Avanzamento* avanzamento_;
    Lavagna_Widget* lavagna_;
    QStackedLayout* pagine_;  ///< home page and working area take turns
    QScrollArea* home_;
    Pagina_Iniziale* intro_;
    QFrame* frame_main_;
    QSplitter* divisore_;
    Pannello_Albero* pannello_;
    Area_Prodotto* area_;
    QTimer lampeggio_;
    bool fase_ = false;            ///< of the links' blinking
    QPointer<QWidget> fuoco_;      ///< had the keyboard when long work locked the window, or its page went
    QPointer<QWidget> supplente_;  ///< has it meanwhile
    QString titolo_;               ///< the window's own title
    int altezza_ = 0;              ///< inner height before the last resize, in twips
    bool in_attesa_ = false;
    bool termina_ = false;
    bool attivata_ = false;
};

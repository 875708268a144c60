#pragma once

#include <QString>
#include <memory>

#include "core/package/class_progetto_aperto.h"
#include "gui/platform/programma_qt.h"
#include "gui/shell/form_main.h"
#include "gui/shell/form_mini_avvio.h"

/// The program put together: the one open catalogue, the main screen, the windows. The ports are handed in,
/// so that the same program runs on a desktop and under the driver. An exception that the program's fence
/// caught is told the user when its event is over.
class Applicazione {
  public:
    struct Opzioni {
        QString Argomenti;               ///< package path, optionally "|" and a document
        QString Cartella_Programma;      ///< folder of the executable
        QString Cartella_Installazione;  ///< "": worked out from the program's folder and the settings
    };
    Applicazione(Programma_Qt& programma, Class_Progetto_Aperto::Porte porte, Opzioni opzioni);
    ~Applicazione();

    /// Shows the splash window; the main window follows by itself. False when the command line asks for no
    /// window at all: the program ends.
    bool Avvia();

    Class_Progetto_Aperto& Progetto() { return progetto_; }
    /// nullptr before the main window has been made.
    Form_Main* Finestra() { return finestra_.get(); }

  private:
    void Carica_Immagine_Intro();
    void Mostra_Finestra();

    Class_Progetto_Aperto::Porte porte_;
    Opzioni opzioni_;
    QString riga_comando_;
    QString cartella_installazione_;
    Class_Progetto_Aperto progetto_;
    std::unique_ptr<Form_Mini_Avvio> avvio_;
    std::unique_ptr<Form_Main> finestra_;
    QObject ascolto_;  ///< its end ends the telling of exceptions
};

#pragma once

#include <QString>
#include <QVariant>
#include <functional>

/// The contract of the canvas that fills a page layout and prints it. For each field that `Aggiorna_Layout`
/// comes upon, it asks for the value by one of two events; the calls say when a filled page goes to paper.
/// Calls and events stay on the interface thread.
class Tavola_Stampa {
  public:
    virtual ~Tavola_Stampa() = default;

    // --- layout --------------------------------------------------------------------------------
    /// PRINT_EXTENSION_RIPRISTINA_ATTRIBUTI ("TRUE").
    virtual void Imposta_Opzione(const QString& nome, const QVariant& valore) = 0;
    /// Loads a layout. A missing or unreadable file leaves an empty page. `indicatore` is always 0.
    virtual void Carica_Layout(const QString& percorso, qint16 indicatore) = 0;
    /// Fills the fields of the loaded layout: asks for each occurrence of each of them.
    virtual void Aggiorna_Layout() = 0;
    /// To be asked from within a field event: whether the field can take one line more on this page.
    /// `conteggio` is always 1.
    virtual bool Spazio_Riga(qint16 conteggio) = 0;
    /// Ends the canvas's work when its window closes.
    virtual void Chiudi() = 0;

    // --- pages ---------------------------------------------------------------------------------
    /// Opens the print job and sends the page as it stands. The arguments are always true, the main window's
    /// handle, false.
    virtual void Stampa_Prima_Pagina(bool primo, quintptr finestra, bool terzo) = 0;
    /// Begins a new page of the job.
    virtual void Nuova_Pagina() = 0;
    /// Sends the following page as it stands. The arguments are always false.
    virtual void Stampa_Pagina_Successiva(bool primo, bool secondo) = 0;
    /// Ends the job.
    virtual void Fine_Stampa() = 0;

    // --- events --------------------------------------------------------------------------------
    /// What is asked for one occurrence of a field.
    struct Campo {
        QString nome;
        /// Of a text, what the layout has, to be replaced; `FINE_TOKEN` shows as nothing. Of a picture, the
        /// file's path followed by "/0", "" for none.
        QString valore;
        bool Campo_Fisso = true;  ///< the value needn't be asked for again
        qint16 Ripeti_Campo = 0;  ///< 1 asks for one more occurrence, one line lower; 0 ends the list here
    };
    struct Eventi {
        std::function<void(Campo&campo)> Richiesta_Testo, Richiesta_Immagine;
    };
    Eventi Evento;
};

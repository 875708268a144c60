#pragma once
// The ports: what the system asks of the desktop it runs on. Real ones stand in gui/platform, fakes in
// tests/support.

#include <QChar>
#include <QSizeF>
#include <QString>
#include <vector>

/// Per-user settings, addressed by application, section and key. All values are texts.
class Impostazioni {
  public:
    virtual ~Impostazioni() = default;
    /// The stored value, or `predefinito` when there is none.
    virtual QString Leggi(const QString& applicazione, const QString& sezione, const QString& chiave,
                          const QString& predefinito) const = 0;
    virtual void Scrivi(const QString& applicazione, const QString& sezione, const QString& chiave,
                        const QString& valore) = 0;
};

/// The application name under which the settings are kept.
inline const QString NOME_APPLICAZIONE = QStringLiteral("Viewer_TZ");
/// The program's title, shown on message boxes.
inline const QString TITOLO_PROGRAMMA = QStringLiteral("Tessarine Viewer");

enum class Icona { Nessuna, Informazione, Esclamazione, Critica };

/// Message boxes.
class Messaggi {
  public:
    virtual ~Messaggi() = default;
    /// Shows a message and returns when the user has closed it.
    virtual void Mostra(const QString& testo, Icona icona) = 0;
    /// A yes/no question; true for yes.
    virtual bool Chiedi(const QString& testo) = 0;
};

/// The operating system and the desktop's shell.
class Sistema {
  public:
    virtual ~Sistema() = default;
    /// The system's temporary folder, with a trailing separator.
    virtual QString Cartella_Temporanea() const = 0;
    /// Opens a file or an address with its default handler. What becomes of it isn't reported.
    virtual void Apri_Con_Predefinito(const QString& percorso) = 0;
    /// Lets pending events run.
    virtual void Esegui_Eventi() = 0;
    /// The decimal separator of the user's locale.
    virtual QChar Separatore_Decimale() const = 0;
};

/// What a long piece of work tells of its progress; the hourglass and the progress bar stand behind it.
class Avanzamento {
  public:
    virtual ~Avanzamento() = default;
    /// Work done so far, between 0 and `totale`. Called often; a call may let pending events run.
    virtual void Avanza(qint64 fatto, qint64 totale) = 0;
};

/// Where files that a catalogue names come from.
class Fonte_File {
  public:
    virtual ~Fonte_File() = default;
    /// Path of the extracted file, "" when the catalogue doesn't hold it.
    virtual QString Scompatta_File_Compattato(const QString& nome) = 0;
};

/// A mail as it is put before the user.
struct Messaggio_Posta {
    QString destinatario;  ///< address, "" to let the user fill it in
    QString oggetto, testo;
    struct Allegato {
        QString percorso, nome;  ///< the file, and the name it goes by
    };
    std::vector<Allegato> allegati;
};

struct Risultato_Posta {
    enum Esito { SPEDITA, ANNULLATA, FALLITA, NESSUN_PROGRAMMA };
    Esito esito = SPEDITA;
    int numero = 0;       ///< of the error, 0 when there is none
    QString descrizione;  ///< of the error
};

/// The user's mail program.
class Posta {
  public:
    virtual ~Posta() = default;
    /// Shows the mail to the user, who sends or drops it. Sent is also what was handed to a program that
    /// doesn't tell what became of it.
    virtual Risultato_Posta Componi(const Messaggio_Posta& messaggio) = 0;
};

/// A printer of the system.
struct Voce_Stampante {
    QString nome, descrizione;
    bool predefinita = false;
    enum Stato { PRONTA, OCCUPATA, FERMA } stato = PRONTA;
};

struct Lavoro_Stampa {
    QString titolo;
    QString stampante;  ///< name, "" for the default one
    int copie = 1;
    int prima_pagina = 0, ultima_pagina = 0;  ///< counted from 1; 0 for all
    QSizeF carta;                             ///< millimetres; empty for the printer's own
};

/// The system's printers.
class Stampante {
  public:
    virtual ~Stampante() = default;
    virtual std::vector<Voce_Stampante> Elenco() const = 0;
    /// Hands a PDF file over to be printed; it may be removed afterwards. "" when it was taken, else the
    /// error's description.
    virtual QString Stampa(const QString& percorso, const Lavoro_Stampa& lavoro) = 0;
};

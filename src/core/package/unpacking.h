#pragma once

#include <QString>
#include <QStringList>

#include "core/base/porte.h"

/// The password of every entry of a package.
inline const QByteArray PASSWORD_PACCHETTO = QByteArrayLiteral("qz_orb_hxmrtl");

/// Address of a file inside a package; without a package, `voce` is a plain file.
struct Indirizzo_Voce {
    QString Pacchetto;
    QString Voce;  ///< entry name, folders written with "/"
};

/// Outcome of an operation on an archive, 0 for success.
using Stato_Archivio = int;
enum : Stato_Archivio {
    ARCHIVIO_OK = 0,
    ARCHIVIO_ASSENTE,      ///< no such file
    ARCHIVIO_NON_VALIDO,   ///< not an archive, or a damaged one, or one that may not be read
    VOCE_ASSENTE,          ///< no such entry
    VOCE_NON_LEGGIBILE,    ///< another password, or damaged content
    VOCE_NON_AMMESSA,      ///< a name that no file can have, or more bytes than a catalogue's file can have
    SPAZIO_INSUFFICIENTE,  ///< the disk is full
    SCRITTURA_FALLITA      ///< the file can't be written
};
/// The outcome in words, for the end of an error message.
QString Descrizione_Stato(Stato_Archivio stato);

/// Names of all entries in the archive's order, as the archive writes them.
Stato_Archivio Elenca_Pacchetto(const QString& archivio, QStringList& voci);

/// Extracts one entry into a folder ("" for `cartella_sistema`), without its own folders, overwriting. The
/// file is the user's alone (0600), its name never leads out of the folder, and nothing of it is left behind
/// when anything fails: a full disk, a wrong password, a damaged entry, an entry that unpacks to more than a
/// catalogue's file can be. Of several entries with this name the last one counts.
Stato_Archivio Scompatta_Voce(const QString& archivio, const QString& cartella,
                              const QString& cartella_sistema, const QString& voce,
                              QString& percorso_estratto, Avanzamento* avanzamento = nullptr);

/// A run over the whole archive: 0 when every entry can be read with its password and its checksum is right.
Stato_Archivio Verifica_Pacchetto(const QString& archivio);

/// The file name that an entry gets on disk: what follows its last slash of either kind; "" for a name that
/// no file can safely have.
QString Nome_Sicuro(const QString& voce);

/// The last entry whose name ends with `nome` (exact case, so "a.jpg" finds "xa.jpg" too: kept); "" for none
/// or when the package can't be read.
QString Cerca_Voce_Pacchetto(const QString& pacchetto, const QString& nome);
/// The same, telling why there is none.
Stato_Archivio Cerca_Voce_Pacchetto(const QString& pacchetto, const QString& nome, QString& voce);

/// The file that lies beside the package under the entry's name and stands in for it; "" for none.
QString File_Accanto(const Indirizzo_Voce& indirizzo);

/// Extraction with its memory: which files were extracted, and where to the last time.
class Estrattore {
  public:
    explicit Estrattore(const Sistema& sistema) : sistema_(sistema) {}

    /// Full path of the extracted file, "" when there is none (`stato` then tells why). A file of the entry's
    /// name beside the package wins over the package's content, and one in the last extraction folder over a
    /// new extraction. `cartella` "" is the system's temporary folder.
    QString Estrai_Da_Pacchetto(const Indirizzo_Voce& indirizzo, const QString& cartella,
                                Avanzamento* avanzamento = nullptr, Stato_Archivio* stato = nullptr);
    /// Forgets the last extraction folder, so that the next file comes out of its package.
    void Dimentica_Cartella() { Ultima_Cartella_Estrazione_.clear(); }
    /// Deletes every extracted file that still exists.
    void Elimina_File_Estratti();
    const QStringList& File_Estratti() const { return file_estratti_; }

  private:
    const Sistema& sistema_;
    QStringList file_estratti_;
    QString Ultima_Cartella_Estrazione_;
};

/// One entry of a package extracted for one use: into a fresh folder of its own, which goes with the object.
/// A file beside the package wins here too; that one stays, of course.
class Estrazione_Privata {
  public:
    Estrazione_Privata(const Sistema& sistema, const QString& pacchetto, const QString& nome);
    ~Estrazione_Privata();
    Estrazione_Privata(const Estrazione_Privata&) = delete;
    Estrazione_Privata& operator=(const Estrazione_Privata&) = delete;

    /// "" when the entry can't be had; `Stato` then tells why.
    const QString& Percorso() const { return percorso_; }
    Stato_Archivio Stato() const { return stato_; }

  private:
    QString cartella_;
    QString percorso_;
    Stato_Archivio stato_ = ARCHIVIO_OK;
};

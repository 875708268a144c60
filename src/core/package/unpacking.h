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

/// Outcome of an operation on an archive, 0 for success. Never shown to the user.
using Stato_Archivio = int;

/// Names of all entries in the archive's order.
Stato_Archivio Elenca_Pacchetto(const QString& archivio, QStringList& voci);

/// Extracts one entry into a folder ("" for `cartella_sistema`), without its own folders, overwriting. The
/// file is the user's alone (0600), its name never leads out of the folder, and nothing of it is left behind
/// when anything fails: a full disk, a wrong password, a damaged entry, an entry that unpacks to more than a
/// catalogue's file can be.
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

/// Extraction with its memory: which files were extracted, and where to the last time.
class Estrattore {
  public:
    explicit Estrattore(const Sistema& sistema) : sistema_(sistema) {}

    /// Full path of the extracted file, "" when there is none. A file of the entry's name beside the package
    /// wins over the package's content, and one in the last extraction folder over a new extraction.
    /// `cartella` "" is the system's temporary folder.
    QString Estrai_Da_Pacchetto(const Indirizzo_Voce& indirizzo, const QString& cartella,
                                Avanzamento* avanzamento = nullptr);
    /// Deletes every extracted file that still exists.
    void Elimina_File_Estratti();
    const QStringList& File_Estratti() const { return file_estratti_; }

  private:
    const Sistema& sistema_;
    QStringList file_estratti_;
    QString Ultima_Cartella_Estrazione_;
};

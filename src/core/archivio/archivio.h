#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "core/archivio/nomi_voci.h"
#include "core/base/porte.h"

class QFileDevice;
struct zip;

/// The password of every entry of a package.
inline const QByteArray PASSWORD_PACCHETTO = QByteArrayLiteral("qz_orb_hxmrtl");
/// Name of the catalogue's database in every package.
inline const QString NOME_DATABASE = QStringLiteral("tzd_qlfrml_cod.tzf");

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

/// One entry of an archive.
struct Voce_Archivio {
    QString Nome;                      ///< as the archive writes it; that of a folder ends with "/"
    qint64 Byte = -1, Compressi = -1;  ///< declared sizes, -1 where the archive doesn't tell them
    bool Cifrata = false;

    bool E_Cartella() const { return Nome.endsWith(u'/'); }
};

/// A package, open for reading with the packages' password; it is never changed. The limits on what an entry
/// may unpack to hold for every operation.
class Archivio {
  public:
    explicit Archivio(const QString& percorso);

    /// Whether it could be opened; one that couldn't has no entries.
    Stato_Archivio Stato() const { return stato_; }
    /// In the archive's order.
    const std::vector<Voce_Archivio>& Voci() const { return voci_; }
    /// See `Nomi_Voci::Cerca`.
    qsizetype Cerca_Voce(const QString& nome) const { return nomi_.Cerca(nome); }
    /// The entry's name as it is looked for.
    const QString& Nome_Cercato(qsizetype voce) const { return nomi_.Nome(voce); }

    /// Extracts an entry (-1 is `VOCE_ASSENTE`) into a folder, without its own folders, overwriting. The file
    /// is the user's alone (0600), its name never leads out of the folder, and nothing of it is left behind
    /// when anything fails; `percorso_estratto` is "" then.
    Stato_Archivio Scompatta_Voce(qsizetype voce, const QString& cartella, QString& percorso_estratto,
                                  Avanzamento* avanzamento = nullptr) const;
    /// Writes an entry's content to a file; after a failure what it holds is worth nothing.
    Stato_Archivio Leggi_Voce(qsizetype voce, QFileDevice& file, Avanzamento* avanzamento = nullptr) const;
    /// The first bytes of an entry; fewer when it is shorter or can't be read.
    QByteArray Inizio_Voce(qsizetype voce, qint64 byte) const;
    /// A run over the whole archive: 0 when every entry can be read and its checksum is right.
    Stato_Archivio Verifica_Pacchetto() const;

  private:
    using Blocco = std::function<Stato_Archivio(const char* dati, qint64 byte)>;
    bool E_Ammessa(const Voce_Archivio& voce) const;
    Stato_Archivio Leggi(qsizetype voce, const Blocco& prendi, Avanzamento* avanzamento) const;

    std::shared_ptr<zip> zip_;
    Stato_Archivio stato_ = ARCHIVIO_OK;
    qint64 dimensione_ = 0;
    std::vector<Voce_Archivio> voci_;
    Nomi_Voci nomi_;
};

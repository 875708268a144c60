#include "core/archivio/archivio_in_scrittura.h"

#include <zip.h>

#include <QFile>
#include <QFileInfo>

#include "core/archivio/archivio.h"

namespace {

// The library's own level is the highest, which takes three times as long for a hundredth less.
constexpr zip_uint32_t LIVELLO = 6;
/// 1 January 1980: the same content gives the same listing.
constexpr zip_uint16_t PRIMO_GIORNO = (1 << 5) | 1;

}  // namespace

Archivio_In_Scrittura::Archivio_In_Scrittura(const QString& percorso)
    : percorso_(percorso),
      zip_(zip_open(QFile::encodeName(percorso).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr)) {
    if (!zip_)
        Fallisci(percorso_, QStringLiteral("the file can't be made"));
}

Archivio_In_Scrittura::~Archivio_In_Scrittura() {
    if (zip_)
        zip_discard(zip_);
}

void Archivio_In_Scrittura::Fallisci(const QString& nome, const QString& motivo) {
    if (errore_.isEmpty())
        errore_ = nome + QStringLiteral(": ") + motivo;
}

void Archivio_In_Scrittura::Aggiungi_Fonte(const QString& voce, zip_source_t* fonte) {
    const zip_int64_t i = fonte ? zip_file_add(zip_, voce.toUtf8().constData(), fonte, ZIP_FL_ENC_UTF_8) : -1;
    // No date of our own here: the encryption takes its check byte from the source's date, and the reader
    // looks for it in the entry's.
    const auto posizione = static_cast<zip_uint64_t>(i);
    if (i < 0 || zip_set_file_compression(zip_, posizione, ZIP_CM_DEFLATE, LIVELLO) != 0 ||
        zip_file_set_encryption(zip_, posizione, ZIP_EM_TRAD_PKWARE, PASSWORD_PACCHETTO.constData()) != 0)
        Fallisci(voce, QString::fromUtf8(zip_strerror(zip_)));
    if (i < 0)
        zip_source_free(fonte);
}

void Archivio_In_Scrittura::Aggiungi_File(const QString& voce, const QString& percorso) {
    // A missing file would be told only when the package is written, and without its name.
    if (!QFileInfo(percorso).isReadable())
        Fallisci(percorso, QStringLiteral("the file can't be read"));
    if (zip_)
        Aggiungi_Fonte(voce, zip_source_file(zip_, QFile::encodeName(percorso).constData(), 0, -1));
}

void Archivio_In_Scrittura::Aggiungi(const QString& voce, const QByteArray& contenuto) {
    if (!zip_)
        return;
    contenuti_.push_back(contenuto);
    Aggiungi_Fonte(voce, zip_source_buffer(zip_, contenuti_.back().constData(),
                                           static_cast<zip_uint64_t>(contenuto.size()), 0));
}

void Archivio_In_Scrittura::Aggiungi_Cartella(const QString& voce) {
    const zip_int64_t i = zip_ ? zip_dir_add(zip_, voce.toUtf8().constData(), ZIP_FL_ENC_UTF_8) : -1;
    if (i >= 0)
        zip_file_set_dostime(zip_, static_cast<zip_uint64_t>(i), 0, PRIMO_GIORNO, 0);
    else if (zip_)
        Fallisci(voce, QString::fromUtf8(zip_strerror(zip_)));
}

QString Archivio_In_Scrittura::Termina() {
    if (errore_.isEmpty() && zip_get_num_entries(zip_, 0) == 0)
        Fallisci(percorso_, QStringLiteral("a package without entries can't be made"));
    if (!errore_.isEmpty())
        return errore_;
    if (zip_close(zip_) == 0)
        zip_ = nullptr;
    else
        Fallisci(percorso_, QString::fromUtf8(zip_strerror(zip_)));
    return errore_;
}

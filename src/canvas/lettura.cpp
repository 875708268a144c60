#include "canvas/lettura.h"

#include <zlib.h>

#include <QFile>
#include <QFileInfo>

namespace {

bool E_Gzip(const QByteArray& dati) {
    return dati.startsWith("\x1f\x8b");
}

/// Inflates one or more gzip members; a damaged or truncated stream, or one beyond the limit, gives false.
bool Espandi(const QByteArray& dati, qint64 massimo, QByteArray& testo) {
    z_stream flusso{};
    if (inflateInit2(&flusso, 15 + 16) != Z_OK)  // 16: the gzip wrapper
        return false;
    flusso.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(dati.constData()));
    flusso.avail_in = static_cast<uInt>(dati.size());
    int esito = Z_OK;
    QByteArray blocco(256 * 1024, Qt::Uninitialized);
    while (esito == Z_OK && testo.size() <= massimo) {
        flusso.next_out = reinterpret_cast<Bytef*>(blocco.data());
        flusso.avail_out = static_cast<uInt>(blocco.size());
        esito = inflate(&flusso, Z_NO_FLUSH);
        testo.append(blocco.constData(), blocco.size() - static_cast<qsizetype>(flusso.avail_out));
        if (esito == Z_STREAM_END && flusso.avail_in > 0)
            esito = inflateReset(&flusso);
    }
    inflateEnd(&flusso);
    return esito == Z_STREAM_END && testo.size() <= massimo;
}

}  // namespace

QByteArray Espandi_Dati(QByteArray dati, const Limiti& limiti, QString& rifiuto) {
    if (E_Gzip(dati)) {
        QByteArray testo;
        if (!Espandi(dati, limiti.byte_documento, testo)) {
            rifiuto = QStringLiteral("damaged or oversized gzip stream");
            return {};
        }
        dati = testo;
    }
    if (dati.size() > limiti.byte_documento) {
        rifiuto = QStringLiteral("document too large");
        return {};
    }
    return dati;
}

QByteArray Leggi_File(const QString& percorso, const Limiti& limiti, QString& rifiuto) {
    QFile file(percorso);
    if (!QFileInfo(percorso).isFile() || !file.open(QIODevice::ReadOnly)) {  // a pipe would never end
        rifiuto = QStringLiteral("file can't be read");
        return {};
    }
    const QByteArray dati = file.read(limiti.byte_file + 1);
    if (dati.size() > limiti.byte_file) {
        rifiuto = QStringLiteral("file too large");
        return {};
    }
    return dati;
}

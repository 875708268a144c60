#include "canvas/lettura.h"

#include <zlib.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

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

/// The encoding that the XML declaration names; "" without one.
QByteArray Codifica_Dichiarata(const QByteArray& dati) {
    static const QRegularExpression dichiarazione(
        QStringLiteral("^\\s*<\\?xml[^>]*?encoding\\s*=\\s*[\"']([A-Za-z0-9._-]+)[\"']"));
    return dichiarazione.match(QString::fromLatin1(dati.left(256))).captured(1).toLatin1();
}

QByteArray Senza_Dichiarazione(const QString& testo) {
    static const QRegularExpression dichiarazione(QStringLiteral("^\\s*<\\?xml[^>]*\\?>"));
    const auto trovata = dichiarazione.match(testo.left(1024));
    return QStringView(testo).mid(trovata.hasMatch() ? trovata.capturedEnd() : 0).toUtf8();
}

QByteArray In_Utf8(QByteArray dati) {
    if (dati.startsWith("\xef\xbb\xbf"))
        return dati.mid(3);
    std::optional<QStringConverter::Encoding> codifica;
    if (dati.startsWith("\xff\xfe") || dati.startsWith("\xfe\xff"))
        codifica = QStringConverter::Utf16;
    else if (const QByteArray nome = Codifica_Dichiarata(dati); !nome.isEmpty())
        codifica = QStringConverter::encodingForName(nome);
    if (!codifica || *codifica == QStringConverter::Utf8 || *codifica == QStringConverter::System)
        return dati;
    return Senza_Dichiarazione(QStringDecoder(*codifica)(dati));
}

}  // namespace

QByteArray Prepara_Xml(QByteArray dati, const Limiti& limiti, QString& rifiuto) {
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
    dati = In_Utf8(dati);
    qsizetype inizio = 0;
    while (inizio < dati.size() && isspace(static_cast<uchar>(dati[inizio])))
        ++inizio;
    if (inizio == dati.size() || dati[inizio] != '<') {
        rifiuto = QStringLiteral("not an XML document");
        return {};
    }
    return dati;
}

QByteArray Leggi_Xml(const QString& percorso, const Limiti& limiti, QString& rifiuto) {
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
    return Prepara_Xml(dati, limiti, rifiuto);
}

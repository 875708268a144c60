#include "canvas/immagini_incluse.h"

#include <QByteArray>
#include <QtEndian>

namespace {

double Pixel_Jpeg(const QByteArray& dati) {
    const auto* byte = reinterpret_cast<const uchar*>(dati.constData());
    qsizetype p = 2;
    while (p + 9 < dati.size() && byte[p] == 0xff) {
        const uchar marca = byte[p + 1];
        const bool fotogramma =
            marca >= 0xc0 && marca <= 0xcf && marca != 0xc4 && marca != 0xc8 && marca != 0xcc;
        if (fotogramma)
            return double(qFromBigEndian<quint16>(byte + p + 5)) * qFromBigEndian<quint16>(byte + p + 7);
        p += marca == 0xff ? 1 : 2 + qFromBigEndian<quint16>(byte + p + 2);
    }
    return -1;
}

double Pixel_Intestazione(const QByteArray& dati) {
    const auto* byte = reinterpret_cast<const uchar*>(dati.constData());
    if (dati.startsWith("\x89PNG\r\n\x1a\n") && dati.size() >= 24)
        return double(qFromBigEndian<quint32>(byte + 16)) * qFromBigEndian<quint32>(byte + 20);
    if (dati.startsWith("GIF8") && dati.size() >= 10)
        return double(qFromLittleEndian<quint16>(byte + 6)) * qFromLittleEndian<quint16>(byte + 8);
    if (dati.startsWith("\xff\xd8"))
        return Pixel_Jpeg(dati);
    return -1;
}

}  // namespace

double Pixel_Immagine_Inclusa(std::string_view indirizzo) {
    const size_t virgola = indirizzo.find(',');
    if (virgola == std::string_view::npos)
        return -1;
    const auto testa = QByteArray(indirizzo.data(), static_cast<qsizetype>(virgola)).toLower();
    const auto corpo = QByteArray::fromRawData(indirizzo.data() + virgola + 1,
                                               static_cast<qsizetype>(indirizzo.size() - virgola - 1));
    if (testa.contains("svg") || testa.contains("xml"))
        return -1;
    return Pixel_Intestazione(testa.trimmed().endsWith(";base64") ? QByteArray::fromBase64(corpo)
                                                                  : QByteArray::fromPercentEncoding(corpo));
}

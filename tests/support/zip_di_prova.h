#pragma once

#include <zip.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QtEndian>
#include <stdexcept>
#include <vector>

#include "core/archivio/archivio.h"

/// An entry of an archive made by a test, hostile ones included.
struct Voce_Zip {
    QByteArray nome;
    QByteArray contenuto;
    QByteArray password = PASSWORD_PACCHETTO;  ///< empty for an entry without encryption
};

inline QString Scrivi_Zip(const QString& percorso, const std::vector<Voce_Zip>& voci) {
    zip_t* zip = zip_open(QFile::encodeName(percorso).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    if (!zip)
        throw std::runtime_error("zip_open");
    for (const Voce_Zip& voce : voci) {
        zip_source_t* fonte = zip_source_buffer(zip, voce.contenuto.constData(),
                                                static_cast<zip_uint64_t>(voce.contenuto.size()), 0);
        const zip_int64_t i = zip_file_add(zip, voce.nome.constData(), fonte, ZIP_FL_ENC_UTF_8);

        if (!voce.password.isEmpty())
            zip_file_set_encryption(zip, static_cast<zip_uint64_t>(i), ZIP_EM_TRAD_PKWARE,
                                    voce.password.constData());
    }
    if (zip_close(zip) != 0)
        throw std::runtime_error("zip_close");
    return percorso;
}

inline QByteArray Leggi_Tutto(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

inline QString Scrivi_File(const QString& percorso, const QByteArray& contenuto) {
    QFile file(percorso);
    if (!QDir().mkpath(QFileInfo(percorso).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(contenuto) != contenuto.size())
        throw std::runtime_error("can't write " + percorso.toStdString());
    return percorso;
}

/// Overwrites the unpacked size that a one-entry archive declares, in both of its headers.
inline void Dichiara_Dimensione(const QString& percorso, quint32 byte) {
    QByteArray zip = Leggi_Tutto(percorso);
    const qsizetype centrale = zip.indexOf("PK\x01\x02");
    qToLittleEndian(byte, zip.data() + zip.indexOf("PK\x03\x04") + 22);
    qToLittleEndian(byte, zip.data() + centrale + 24);
    Scrivi_File(percorso, zip);
}

inline QStringList Contenuto(const QString& cartella) {
    return QDir(cartella).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

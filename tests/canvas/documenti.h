#pragma once

#include <gtest/gtest.h>
#include <zlib.h>

#include <QByteArray>
#include <QFile>
#include <QTemporaryFile>
#include <algorithm>
#include <cmath>

#include "canvas/disegnatore.h"
#include "canvas/documento_tavola.h"
#include "canvas/superficie.h"

/// A document of 100 x 100 with this content.
inline QByteArray Svg(const QByteArray& contenuto, const QByteArray& radice = "viewBox=\"0 0 100 100\"") {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" " +
           radice + ">" + contenuto + "</svg>";
}

/// One blue pixel.
inline const QByteArray PUNTO_BLU =
    "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGNgYPgPAAEDAQAIicLsAAAAAElFTkSuQmCC";

inline QByteArray Immagine(const QByteArray& tipo, const QByteArray& dati) {
    return "<image width='100' height='50' y='50' xlink:href='data:image/" + tipo + ";base64," + dati + "'/>";
}

/// The document, which has to be accepted.
inline std::shared_ptr<const Documento_Tavola> Leggi(const QByteArray& dati) {
    QString rifiuto;
    auto documento = Documento_Tavola::Da_Dati(dati, &rifiuto);
    EXPECT_TRUE(documento) << qPrintable(rifiuto) << dati.left(60).constData();
    return documento;
}

inline QByteArray Gzip(const QByteArray& dati) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    const gzFile compresso = gzopen(qPrintable(file.fileName()), "wb");
    EXPECT_EQ(gzwrite(compresso, dati.data(), static_cast<unsigned>(dati.size())), dati.size());
    gzclose(compresso);
    return file.readAll();
}

inline void Scrivi(const QString& percorso, const QByteArray& dati) {
    QFile file(percorso);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(dati) == dati.size());
}

inline Disegnatore Disegnatore_Di(const std::shared_ptr<const Documento_Tavola>& documento) {
    return {documento->Testo(), documento->Pagina()};
}

/// Equal but for rounding.
inline bool Uguali(const QRectF& a, const QRectF& b) {
    const auto vicini = [](double x, double y) { return std::abs(x - y) < 1e-2; };
    return vicini(a.left(), b.left()) && vicini(a.top(), b.top()) && vicini(a.right(), b.right()) &&
           vicini(a.bottom(), b.bottom());
}

/// The page drawn on white at `scala`, as gray values.
struct Pagina_Disegnata {
    explicit Pagina_Disegnata(const std::shared_ptr<const Documento_Tavola>& documento, double scala = 1)
        : larghezza(static_cast<int>(documento->Pagina().width() * scala)),
          altezza(static_cast<int>(documento->Pagina().height() * scala)),
          pixel(static_cast<size_t>(larghezza * altezza), 0xffffffff) {
        const Superficie_In_Memoria superficie(Superficie_In_Memoria::Formato::COLORI,
                                               reinterpret_cast<uchar*>(pixel.data()), larghezza, altezza,
                                               larghezza * 4);
        Disegnatore_Di(documento).Disegna(superficie.Contesto(), {}, scala);
    }
    quint32 Colore(int x, int y) const { return pixel[static_cast<size_t>(y * larghezza + x)] & 0xffffff; }
    bool Bianca() const {
        return std::all_of(pixel.begin(), pixel.end(), [](quint32 p) { return p == 0xffffffff; });
    }
    int larghezza, altezza;
    std::vector<quint32> pixel;
};

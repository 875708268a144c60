#pragma once

#include <gtest/gtest.h>

#include <QByteArray>

#include "canvas/disegnatore.h"

/// A document of 100 x 100 with this content.
inline QByteArray Svg(const QByteArray& contenuto, const QByteArray& radice = "viewBox=\"0 0 100 100\"") {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" " +
           radice + ">" + contenuto + "</svg>";
}

/// The page drawn on white at `scala`, as gray values.
struct Pagina_Disegnata {
    explicit Pagina_Disegnata(const std::shared_ptr<const Documento_Tavola>& documento, double scala = 1)
        : larghezza(static_cast<int>(documento->Pagina().width() * scala)),
          altezza(static_cast<int>(documento->Pagina().height() * scala)),
          pixel(static_cast<size_t>(larghezza * altezza), 0xffffffff) {
        riuscita = Disegnatore(documento).Disegna(
            {reinterpret_cast<uchar*>(pixel.data()), larghezza, altezza, larghezza * 4}, {}, scala);
    }
    quint32 Colore(int x, int y) const { return pixel[static_cast<size_t>(y * larghezza + x)] & 0xffffff; }
    bool Bianca() const {
        for (const quint32 p : pixel)
            if (p != 0xffffffff)
                return false;
        return true;
    }
    int larghezza, altezza;
    std::vector<quint32> pixel;
    bool riuscita;
};

#include "gui/platform/icone.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPalette>

#include "core/shell/comandi.h"

namespace {

class Icone : public testing::Test {
  protected:
    ~Icone() override { QApplication::setPalette(prima); }
    static QImage Immagine(const QString& nome, QIcon::Mode modo = QIcon::Normal) {
        return Icona_Tema(nome).pixmap(QSize(64, 64), modo).toImage();
    }
    /// The lightest and the darkest grey of the picture's inked points.
    static std::pair<int, int> Grigi(const QImage& immagine) {
        int minimo = 255, massimo = 0;
        for (int y = 0; y < immagine.height(); ++y)
            for (int x = 0; x < immagine.width(); ++x)
                if (const QColor c = immagine.pixelColor(x, y); c.alpha() > 200) {
                    minimo = std::min(minimo, qGray(c.rgb()));
                    massimo = std::max(massimo, qGray(c.rgb()));
                }
        return {minimo, massimo};
    }
    const QPalette prima = QApplication::palette();
};

TEST_F(Icone, EveryCommandAndEveryKindOfNodeHasItsPicture) {
    QList<QImage> viste;
    QStringList nomi = QString("nodo_1 nodo_2 nodo_3 nodo_4 nodo_5 nodo_6").split(' ');
    for (const Comando& comando : Comandi())
        if (comando.Esegui)
            nomi.append(comando.Icona);
    for (const QString& nome : nomi) {
        const QImage immagine = Immagine(nome);
        EXPECT_LE(Grigi(immagine).first, Grigi(immagine).second) << qPrintable(nome) << " is blank";
        EXPECT_FALSE(viste.contains(immagine)) << qPrintable(nome) << " looks like another";
        viste.append(immagine);
    }
}

TEST_F(Icone, TakesTheInkOfTheDesktop) {
    for (const Qt::GlobalColor colore : {Qt::white, Qt::black}) {
        QPalette tavolozza = prima;
        tavolozza.setColor(QPalette::WindowText, colore);
        tavolozza.setColor(QPalette::Disabled, QPalette::WindowText, QColor(160, 160, 160));
        QApplication::setPalette(tavolozza);
        const auto [minimo, massimo] = Grigi(Immagine("KEY_HOME"));
        EXPECT_TRUE(colore == Qt::white ? massimo > 225 : minimo < 30) << minimo << ' ' << massimo;
    }
    EXPECT_GT(Grigi(Immagine("KEY_HOME", QIcon::Disabled)).first, 120);
}

}  // namespace

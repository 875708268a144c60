#include "gui/platform/icone.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QSet>

#include "core/shell/stato_finestra.h"

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
    QStringList nomi = Comandi_Presenti();
    for (int i = 1; i <= 6; ++i)
        nomi.append(QStringLiteral("nodo_%1").arg(i));
    for (const QString& nome : nomi) {
        const auto [minimo, massimo] = Grigi(Immagine(nome));
        EXPECT_LE(minimo, massimo) << nome.toStdString() << " is blank";
    }
}

TEST_F(Icone, PicturesOfNodesDiffer) {
    QList<QImage> viste;
    for (int i = 1; i <= 6; ++i) {
        const QImage immagine = Immagine(QStringLiteral("nodo_%1").arg(i));
        EXPECT_FALSE(viste.contains(immagine)) << i;
        viste.append(immagine);
    }
}

TEST_F(Icone, TakesTheInkOfTheDesktop) {
    QPalette chiara = prima, scura = prima;
    chiara.setColor(QPalette::WindowText, Qt::black);
    scura.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(chiara);
    EXPECT_LT(Grigi(Immagine(QStringLiteral("KEY_HOME"))).first, 30);
    QApplication::setPalette(scura);
    EXPECT_GT(Grigi(Immagine(QStringLiteral("KEY_HOME"))).second, 225);
}

TEST_F(Icone, ADisabledOneIsDrawnInTheDisabledInk) {
    QPalette tavolozza = prima;
    tavolozza.setColor(QPalette::Active, QPalette::WindowText, Qt::black);
    tavolozza.setColor(QPalette::Disabled, QPalette::WindowText, QColor(160, 160, 160));
    QApplication::setPalette(tavolozza);
    EXPECT_GT(Grigi(Immagine(QStringLiteral("KEY_OPEN"), QIcon::Disabled)).first, 120);
}

}  // namespace

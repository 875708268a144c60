// What the eye would see at once: blank or unreadable screens, texts that don't fit.

#include <QSet>

#include "gui/finestra_di_prova.h"
#include "gui/nel_dialogo.h"

namespace {

class Aspetto : public Finestra_Di_Prova {
  protected:
    ~Aspetto() override { QApplication::setPalette(prima); }
    /// Number of different colours among the points of a picture.
    static qsizetype Colori(const QImage& immagine) {
        QSet<QRgb> colori;
        for (int y = 0; y < immagine.height(); y += 2)
            for (int x = 0; x < immagine.width(); x += 2)
                colori.insert(immagine.pixel(x, y));
        return colori.size();
    }
    const QPalette prima = QApplication::palette();
};

TEST_F(Aspetto, ScreensAreDrawnAndTheirTextsFit) {
    Apri(Macchina());
    EXPECT_GT(Colori(finestra->grab().toImage()), 20);
    EXPECT_EQ(Testi_Tagliati(*finestra), QStringList());
    Clic("Label_consulta_catalogo");
    EXPECT_GT(Colori(finestra->grab().toImage()), 20);
    EXPECT_EQ(Testi_Tagliati(*finestra), QStringList());
    schermo.Seleziona_Nodo_Albero("P_1");
    EXPECT_GT(Colori(finestra->Griglia_Distinta().grab().toImage()), 5);
    EXPECT_EQ(Testi_Tagliati(*finestra), QStringList());
}

TEST_F(Aspetto, ADarkDesktopGetsADarkWindow) {
    QPalette scura(QColor(0x3a, 0x3c, 0x40), QColor(0x2b, 0x2d, 0x30));
    scura.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    QApplication::setPalette(scura);
    Consulta(Macchina(), "P_1");
    const QImage immagine = finestra->grab().toImage();
    double chiari = 0, punti = 0;
    for (int y = 0; y < immagine.height(); y += 2)
        for (int x = 0; x < immagine.width(); x += 2, ++punti)
            chiari += qGray(immagine.pixel(x, y)) > 128;
    // Ink is bright, surfaces are dark: no zone keeps a light background of its own.
    EXPECT_LT(chiari / punti, 0.1);
    EXPECT_GT(chiari, 0);
}

}  // namespace

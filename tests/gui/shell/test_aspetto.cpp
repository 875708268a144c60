// What the eye would see at once: blank or unreadable screens, texts that don't fit.

#include <QLabel>
#include <QPushButton>
#include <QSet>

#include "gui/finestra_di_prova.h"

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
    /// Labels and buttons whose text is wider than their place.
    QStringList Tagliati() const {
        QStringList tagliati;
        for (const QLabel* etichetta : finestra->findChildren<QLabel*>())
            if (etichetta->isVisible() && !etichetta->text().isEmpty() && !etichetta->wordWrap() &&
                etichetta->sizeHint().width() > etichetta->width())
                tagliati.append(etichetta->objectName());
        for (const QPushButton* bottone : finestra->findChildren<QPushButton*>())
            if (bottone->isVisible() && bottone->minimumSizeHint().width() > bottone->width())
                tagliati.append(bottone->objectName());
        return tagliati;
    }
    static QPalette Scura() {
        QPalette scura(QColor(0x3a, 0x3c, 0x40), QColor(0x2b, 0x2d, 0x30));
        scura.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
        return scura;
    }
    const QPalette prima = QApplication::palette();
};

TEST_F(Aspetto, ScreensAreDrawnAndTheirTextsFit) {
    Apri(Macchina());
    EXPECT_GT(Colori(finestra->grab().toImage()), 20);
    EXPECT_EQ(Tagliati(), QStringList());
    Clic("Label_consulta_catalogo");
    EXPECT_GT(Colori(finestra->grab().toImage()), 20);
    EXPECT_EQ(Tagliati(), QStringList());
    controllo.Seleziona_Nodo_Albero(QStringLiteral("P_1"));
    EXPECT_GT(Colori(finestra->Griglia_Distinta().grab().toImage()), 5);
    EXPECT_EQ(Tagliati(), QStringList());
}

TEST_F(Aspetto, ADarkDesktopGetsADarkWindow) {
    QApplication::setPalette(Scura());
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    controllo.Seleziona_Nodo_Albero(QStringLiteral("P_1"));
    const QImage schermo = finestra->grab().toImage();
    qint64 chiari = 0, punti = 0;
    for (int y = 0; y < schermo.height(); y += 2)
        for (int x = 0; x < schermo.width(); x += 2) {
            ++punti;
            chiari += qGray(schermo.pixel(x, y)) > 128;
        }
    // Ink is bright, surfaces are dark: no zone keeps a light background of its own.
    EXPECT_LT(static_cast<double>(chiari) / static_cast<double>(punti), 0.1);
    EXPECT_GT(chiari, 0);
}

TEST_F(Aspetto, TheUnreadableResourcePackageLeavesEnglishTexts) {
    Mostra();
    EXPECT_EQ(Testo("Label_Start"), QStringLiteral("Getting started"));
    for (const QLabel* etichetta : finestra->findChildren<QLabel*>())
        if (etichetta->objectName().startsWith(u"Label_") && etichetta->isVisible()) {
            EXPECT_FALSE(etichetta->text().isEmpty()) << etichetta->objectName().toStdString();
        }
}

}  // namespace

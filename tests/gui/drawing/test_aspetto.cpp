// What is seen: colours, highlights, sharpness, raster pages, pages that can't be shown.

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QImageWriter>
#include <QPainter>
#include <QScrollBar>

#include "disegni.h"

namespace {

class Aspetto : public Con_Lavagna {
  protected:
    /// What is seen at a pixel of the window, whatever the density of the screen.
    static QRgb Pixel(const QImage& foto, QPoint punto) {
        return foto.pixel(punto * foto.devicePixelRatio());
    }
    QRgb Pixel(QPoint punto) { return Pixel(Foto(), punto); }
};

const QRgb BIANCO = qRgb(255, 255, 255);

TEST_F(Aspetto, ColoursFillTheWholeSilhouetteOfEveryElement) {
    Carica(disegni.Palloni());
    EXPECT_EQ(Pixel(Qui(100, 100)), BIANCO);
    lavagna.Colora_HotSpot("CODICI#$#A1", BLU);
    const QImage foto = Foto();
    EXPECT_GT(qBlue(Pixel(foto, Qui(100, 100))), 200);
    for (const QPoint punto : {Qui(100, 100), Qui(40, 240)})  // and the part that bears the same string
        EXPECT_LT(qRed(Pixel(foto, punto)), 150);
    for (const QPoint punto : {Qui(300, 200), Qui(65, 65)})  // and the corner of the bounds
        EXPECT_EQ(Pixel(foto, punto), BIANCO);
    EXPECT_LT(qGray(Pixel(foto, Qui(60, 100))), 120) << "the line work stays dark";
    lavagna.Decolora_HotSpot("CODICI#$#A1");
    EXPECT_EQ(Pixel(Qui(100, 100)), BIANCO);
}

TEST_F(Aspetto, AHighlightCoversTheLastingColourAndGivesItBack) {
    lavagna.Carica_Layout(disegni.Palloni(), 0);
    lavagna.Segna_HotSpot("2");
    lavagna.Colora_HotSpot("2", BLU);  // before the first picture
    const QRgb blu = Pixel(Qui(300, 200));
    EXPECT_NE(blu, BIANCO);
    lavagna.Evidenzia_HotSpot("2", VERDE);
    EXPECT_GT(qGreen(Pixel(Qui(300, 200))), 200);
    EXPECT_LT(qBlue(Pixel(Qui(300, 200))), 150);
    lavagna.Azzera_Evidenziazione("");
    EXPECT_EQ(Pixel(Qui(300, 200)), blu);
}

TEST_F(Aspetto, HighlightsBlinkTwiceASecondWhenAsked) {
    Carica(disegni.Palloni());
    lavagna.Evidenzia_HotSpot("2", VERDE);
    lavagna.Colora_HotSpot("CODICI#$#A1", VERDE);
    for (const auto& [lampeggia, minimo, massimo] : {std::tuple("SI", 3, 5), {"NO", 0, 0}}) {
        lavagna.Imposta_Opzione("LAMPEGGIA", lampeggia);
        int cambi = 0;
        QElapsedTimer tempo;
        for (tempo.start(); tempo.elapsed() < 1100; QTest::qWait(20)) {
            const QImage foto = Foto();
            EXPECT_NE(Pixel(foto, Qui(100, 100)), BIANCO) << "a lasting colour stays";
            cambi += (Pixel(foto, Qui(300, 200)) == BIANCO) == (cambi % 2 == 0);  // it starts lit
        }
        EXPECT_THAT(cambi, testing::AllOf(testing::Ge(minimo), testing::Le(massimo)));
    }
}

TEST_F(Aspetto, AMarkHasTheDocumentsColoursForSelections) {
    Carica(disegni.Palloni(
        "c.svg", "viewBox='0 0 400 300' data-pickbackcolor='#ff0000' data-pickbordercolor='#00ffff'"));
    lavagna.Segna_HotSpot("CODICI#$#A1");
    EXPECT_GT(qRed(Pixel(Qui(40, 240))), qGreen(Pixel(Qui(40, 240))) + 30);
    EXPECT_GT(qBlue(Pixel(Qui(20, 240))), qRed(Pixel(Qui(20, 240))) + 60);
}

TEST_F(Aspetto, AZoomedPictureIsSharp) {
    Carica(disegni.Svg("edge.svg", "<rect width='200' height='300'/>"));
    Foto();
    Esegui("ZOOM_PIU", 9);
    const QImage foto = Foto();
    int grigi = 0;
    for (int x = 0; x < 412; ++x)
        grigi += std::abs(qGray(Pixel(foto, {x, 150})) - 128) < 108;
    EXPECT_LE(grigi, 1);
}

TEST_F(Aspetto, ScrollingShowsTheNextPartOfThePage) {
    Carica(disegni.Svg("long.svg", "<rect y='2000' width='400' height='2000' fill='red'/>",
                       "viewBox='0 0 400 4000'"));
    Esegui("ZOOM_PIU", 12);
    QScrollBar& barra = *lavagna.verticalScrollBar();
    for (const auto& [dove, verde] : {std::pair(0, 255), {barra.maximum(), 0}, {0, 255}}) {
        barra.setValue(dove);
        EXPECT_EQ(qGreen(Pixel({lavagna.viewport()->width() / 2, 150})), verde);
    }
}

TEST_F(Aspetto, RasterFilesShowAsAPageWithoutHotspots) {
    QImage immagine(200, 150, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter(&immagine).fillRect(0, 0, 100, 150, Qt::blue);
    for (const char* formato : {"png", "jpeg"}) {
        const QString percorso = disegni.Percorso(QString(formato) + ".dwg");
        ASSERT_TRUE(QImageWriter(percorso, formato).write(immagine)) << formato;
        Carica(percorso);
        EXPECT_TRUE(lavagna.Introspezione().hotspot.empty());
        EXPECT_LT(qRed(Pixel(Qui(50, 150))), 60) << formato;
        EXPECT_GT(qRed(Pixel(Qui(350, 150))), 230) << formato;
    }
}

TEST_F(Aspetto, WhatCannotBeShownIsAnEmptyPage) {
    const QByteArray png_senza_fine =
        QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200000064000000640802000000ff800203");
    for (const QString& caso :
         {QString(), disegni.Percorso("none.svg"), disegni.Scrivi("text", "hello"),
          disegni.Scrivi("cut.svg", "<svg viewBox='0 0 9 9'><g>"), disegni.Scrivi("cut.png", png_senza_fine),
          disegni.Svg("vast.svg", "", "viewBox='0 0 1e30 1e30'"), disegni.Svg("zero.svg", "", "width='0'")}) {
        Carica(disegni.Palloni());
        Carica(caso);
        EXPECT_TRUE(lavagna.Introspezione().hotspot.empty()) << qPrintable(caso);
        Foto();
    }
}

}  // namespace

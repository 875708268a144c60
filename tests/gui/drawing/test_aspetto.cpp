// What is seen: colours, highlights, sharpness, raster pages, pages that can't be shown.

#include <QElapsedTimer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QScrollBar>

#include "disegni.h"

namespace {

class Aspetto : public Con_Lavagna {};

/// What is seen at a pixel of the window, whatever the density of the screen.
QRgb Pixel(const QImage& foto, QPoint punto) {
    return foto.pixel(punto * foto.devicePixelRatio());
}

const QRgb BIANCO = qRgb(255, 255, 255);

TEST_F(Aspetto, ColoursFillTheWholeSilhouetteOfEveryElement) {
    Carica(disegni.Palloni());
    EXPECT_EQ(Pixel(Foto(), Qui(100, 100)), BIANCO);
    lavagna.Colora_HotSpot("CODICI#$#A1", BLU);
    const QImage foto = Foto();
    for (const QPoint punto : {Qui(100, 100), Qui(80, 80)}) {
        EXPECT_GT(qBlue(Pixel(foto, punto)), 200);
        EXPECT_LT(qRed(Pixel(foto, punto)), 150);
    }
    EXPECT_LT(qRed(Pixel(foto, Qui(40, 240))), 150) << "the part that bears the same string";
    EXPECT_EQ(Pixel(foto, Qui(300, 200)), BIANCO);
    EXPECT_EQ(Pixel(foto, Qui(65, 65)), BIANCO) << "the corner of the bounds";
    EXPECT_LT(qGray(Pixel(foto, Qui(60, 100))), 120) << "the line work stays dark";
    lavagna.Decolora_HotSpot("CODICI#$#A1");
    EXPECT_EQ(Pixel(Foto(), Qui(100, 100)), BIANCO);
}

TEST_F(Aspetto, TintsShowOnDarkPagesAndKeepLightLines) {
    Carica(disegni.Svg(
        "dark.svg",
        "<rect width='400' height='300' fill='#101018'/><g data-hotspot='1' fill='none' stroke='white' "
        "stroke-width='4'><circle cx='100' cy='100' r='40'/><path d='M70 100h60'/></g>"));
    const QRgb prima = Pixel(Foto(), Qui(100, 80));
    for (const Colore colore : {VERDE, BLU}) {
        lavagna.Colora_HotSpot("1", colore);
        const QRgb dopo = Pixel(Foto(), Qui(100, 80));
        EXPECT_GT(qRed(dopo) + qGreen(dopo) + qBlue(dopo), qRed(prima) + qGreen(prima) + qBlue(prima) + 100);
        EXPECT_GT(qGray(Pixel(Foto(), Qui(100, 100))), 230) << "the white line";
    }
}

TEST_F(Aspetto, AHighlightCoversTheLastingColourAndGivesItBack) {
    Carica(disegni.Palloni());
    lavagna.Segna_HotSpot("2");
    lavagna.Colora_HotSpot("2", BLU);
    const QRgb blu = Pixel(Foto(), Qui(300, 200));
    lavagna.Evidenzia_HotSpot("2", VERDE);
    const QRgb verde = Pixel(Foto(), Qui(300, 200));
    EXPECT_GT(qGreen(verde), 200);
    EXPECT_LT(qBlue(verde), 150);
    lavagna.Azzera_Evidenziazione("");
    EXPECT_EQ(Pixel(Foto(), Qui(300, 200)), blu);
}

TEST_F(Aspetto, HighlightsBlinkTwiceASecondWhenAsked) {
    lavagna.Imposta_Opzione("LAMPEGGIA", "SI");
    Carica(disegni.Palloni());
    lavagna.Evidenzia_HotSpot("2", VERDE);
    lavagna.Colora_HotSpot("CODICI#$#A1", VERDE);
    int cambi = 0;
    bool acceso = true;
    const auto guarda = [&](int ms) {
        QElapsedTimer tempo;
        for (tempo.start(); tempo.elapsed() < ms; QTest::qWait(20)) {
            const QImage foto = Foto();
            EXPECT_NE(Pixel(foto, Qui(100, 100)), BIANCO) << "a lasting colour stays";
            if ((Pixel(foto, Qui(300, 200)) != BIANCO) != acceso) {
                acceso = !acceso;
                ++cambi;
            }
        }
    };
    guarda(1100);
    EXPECT_GE(cambi, 3);
    EXPECT_LE(cambi, 5);
    lavagna.Imposta_Opzione("LAMPEGGIA", "NO");
    EXPECT_NE(Pixel(Foto(), Qui(300, 200)), BIANCO);
    acceso = true;
    cambi = 0;
    guarda(400);
    EXPECT_EQ(cambi, 0);
}

TEST_F(Aspetto, AMarkShowsASelectionWithItsBorder) {
    Carica(disegni.Palloni(
        "colours.svg", "viewBox='0 0 400 300' data-pickbackcolor='#ff0000' data-pickbordercolor='#00ffff'"));
    EXPECT_EQ(lavagna.Leggi_Opzione("PICKBACKCOLOR").toUInt(), 0xff0000u);
    EXPECT_EQ(lavagna.Leggi_Opzione("PICKBORDERCOLOR").toUInt(), 0x00ffffu);
    lavagna.Segna_HotSpot("CODICI#$#A1");
    EXPECT_GT(qRed(Pixel(Foto(), Qui(40, 240))), 180);
    EXPECT_LT(qGreen(Pixel(Foto(), Qui(40, 240))), 150);
    const QRgb bordo = Pixel(Foto(), Qui(20, 240));
    EXPECT_GT(qBlue(bordo), qRed(bordo) + 60);
    lavagna.Imposta_Opzione("PICKBORDERCOLOR", 0xff0000u);
    EXPECT_GT(qRed(Pixel(Foto(), Qui(20, 240))), qBlue(Pixel(Foto(), Qui(20, 240))) + 60);
}

TEST_F(Aspetto, ColoursGivenBeforeTheFirstPictureShowInIt) {
    lavagna.Carica_Layout(disegni.Palloni(), 0);
    lavagna.Colora_HotSpot("2", BLU);
    EXPECT_NE(Pixel(Foto(), Qui(300, 200)), BIANCO);
}

TEST_F(Aspetto, AZoomShowsAScaledPictureAtOnceAndASharpOneAfterwards) {
    Carica(disegni.Svg("edge.svg", "<rect width='200' height='300'/>"));
    Foto();
    lavagna.Esegui("ZOOM_PIU", 1);
    for (int i = 0; i < 8; ++i)
        lavagna.Esegui("ZOOM_PIU", 1);
    const auto grigi = [](const QImage& foto) {
        int numero = 0;
        for (int x = 0; x < 412; ++x)
            numero += qGray(Pixel(foto, QPoint(x, 150))) > 20 && qGray(Pixel(foto, QPoint(x, 150))) < 235;
        return numero;
    };
    const QImage subito = lavagna.viewport()->grab().toImage();
    EXPECT_LT(qGray(Pixel(subito, QPoint(50, 150))), 20);
    EXPECT_GT(qGray(Pixel(subito, QPoint(350, 150))), 235);
    EXPECT_GT(grigi(subito), 2) << "scaled, so its edge is soft";
    EXPECT_LE(grigi(Foto()), 1) << "sharp";
}

TEST_F(Aspetto, ScrollingShowsTheNextPartOfThePage) {
    QByteArray righe;
    for (int i = 0; i < 40; ++i)
        righe += "<rect y='" + QByteArray::number(i * 100) + "' width='400' height='100' fill='rgb(" +
                 QByteArray::number(i * 6) + ",0,0)'/>";
    Carica(disegni.Svg("long.svg", righe, "viewBox='0 0 400 4000'"));
    for (int i = 0; i < 12; ++i)
        lavagna.Esegui("ZOOM_PIU", 1);
    QScrollBar* barra = lavagna.verticalScrollBar();
    for (const double parte : {0.0, 0.3, 0.5, 1.0, 0.1}) {
        barra->setValue(static_cast<int>(barra->maximum() * parte));
        const double altezza = barra->maximum() + lavagna.viewport()->height();
        const int riga = static_cast<int>((barra->value() + 150) / altezza * 40);
        const int rosso = qRed(Pixel(Foto(), QPoint(lavagna.viewport()->width() / 2, 150)));
        EXPECT_NEAR(rosso, riga * 6, 6) << parte;
    }
}

class Raster : public Con_Lavagna, public testing::WithParamInterface<const char*> {};

TEST_P(Raster, ShowsAsAPageWithoutHotspots) {
    const char* formato = GetParam();
    if (!QImageReader::supportedImageFormats().contains(formato))
        GTEST_SKIP() << "no plug-in for " << formato;
    QImage immagine(200, 150, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter(&immagine).fillRect(0, 0, 100, 150, Qt::blue);
    const QString percorso = disegni.Percorso("picture.dwg");
    if (QByteArray(formato) == "gif") {  // it can be read but not written: two pixels, blue and white
        disegni.Scrivi("picture.dwg", QByteArray::fromHex("47494638396102000100800100"
                                                          "0000ffffffff2c0000000002000100000202440a003b"));
    } else {
        ASSERT_TRUE(QImageWriter(percorso, formato).write(immagine));
    }
    Carica(percorso);
    const Stato_Lavagna stato = lavagna.Introspezione();
    EXPECT_EQ(stato.documento, percorso);
    EXPECT_TRUE(stato.hotspot.empty());
    const QImage foto = Foto();
    EXPECT_GT(qBlue(Pixel(foto, Qui(50, 150))), 200);
    EXPECT_LT(qRed(Pixel(foto, Qui(50, 150))), 60);
    EXPECT_GT(qRed(Pixel(foto, Qui(350, 150))), 230);
}
INSTANTIATE_TEST_SUITE_P(Formats, Raster, testing::Values("png", "jpeg", "bmp", "gif", "tiff"),
                         [](const auto& caso) { return std::string(caso.param); });

TEST_F(Aspetto, WhatCannotBeShownIsAnEmptyPage) {
    const QByteArray png_senza_fine(
        "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\x64\0\0\0\x64\x08\x02\0\0\0\xff\x80\x02\x03", 33);
    const QString casi[] = {"",
                            disegni.Percorso("none.svg"),
                            disegni.Scrivi("empty", ""),
                            disegni.Scrivi("text", "hello"),
                            disegni.Scrivi("cut.svg", "<svg viewBox='0 0 9 9'><g>"),
                            disegni.Scrivi("cut.png", png_senza_fine),
                            disegni.Svg("vast.svg", "", "viewBox='0 0 1e30 1e30'"),
                            disegni.Svg("zero.svg", "", "width='0' height='5'")};
    for (const QString& caso : casi) {
        Carica(disegni.Palloni());
        lavagna.Carica_Layout(caso, 0);
        Attendi();
        EXPECT_TRUE(lavagna.Introspezione().hotspot.empty()) << qPrintable(caso);
        Foto();
    }
}

TEST_F(Aspetto, EndsWhileWorkIsUnderWay) {
    QByteArray molti;
    for (int i = 0; i < 800; ++i)
        molti += "<circle data-hotspot='" + QByteArray::number(i) + "' cx='" + QByteArray::number(i % 400) +
                 "' cy='" + QByteArray::number(i / 10) + "' r='5'/>";
    const QString percorso = disegni.Svg("many.svg", molti);
    for (int i = 0; i < 5; ++i) {
        auto altra = std::make_unique<Lavagna_Widget>();
        altra->show();
        altra->Carica_Layout(percorso, 0);
        altra->Aggiornata();
        if (i % 2)
            altra->Carica_Layout(percorso, 0);
        QTest::qWait(i * 10);
    }
    Carica(disegni.Palloni());
    EXPECT_EQ(lavagna.Introspezione().hotspot.size(), 3u);
}

}  // namespace

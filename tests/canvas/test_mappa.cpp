#include <QRandomGenerator>

#include "canvas/documenti.h"
#include "canvas/mappa_hotspot.h"

namespace {

Mappa_HotSpot Mappa(const QByteArray& contenuto, const QByteArray& radice = "viewBox='0 0 100 100'") {
    return Mappa_HotSpot(Documento_Tavola::Da_Dati(Svg(contenuto, radice)));
}

TEST(HotspotMap, TellsWhichElementIsHit) {
    struct Colpo {
        double x, y;
        int elemento;
    };
    const struct {
        const char* nome;
        const char* contenuto;
        std::vector<Colpo> colpi;
        const char* radice = "viewBox='0 0 100 100'";
    } casi[] = {
        {"an empty circle, whose bounds have corners outside it",
         "<g data-hotspot='7'><circle cx='50' cy='50' r='20' fill='none' stroke='black'/></g>",
         {{50, 50, 0}, {50, 30.2, 0}, {35, 35, -1}, {90, 90, -1}}},
        {"a balloon drawn with a hairline is closed too",
         "<circle data-hotspot='7' cx='500' cy='500' r='400' fill='none' stroke='black' stroke-width='.3'/>",
         {{500, 500, 0}, {120, 120, -1}},
         "viewBox='0 0 1000 1000'"},
        {"a hotspot inside another wins",
         "<g data-hotspot='outer'><rect width='50' height='50'/>"
         "<rect data-hotspot='inner' x='10' y='10' width='10' height='10'/></g>",
         {{15, 15, 1}, {40, 40, 0}}},
        {"a small curve of a small page is as large as it is drawn",
         "<path data-hotspot='1' d='M 1 5 c 0 -0.27 0.1 -0.52 0.29 -0.71 c 0.39 -0.39 1.02 -0.39 1.41 0 Z'/>",
         {{2, 4.05, 0}},
         "viewBox='0 0 16 16'"},
        {"a letter's outline is closed",
         "<text data-hotspot='1' x='100' y='140' text-anchor='end' font-size='80' fill='none' stroke='black' "
         "stroke-width='2.5' font-family='DejaVu Serif'>E</text>",
         {{46, 82.5, 0}, {49, 138, 0}, {92, 127, 0}},
         "viewBox='0 0 160 160'"},
        {"a hairline far from the page's corner",
         "<path data-hotspot='1' d='m 510,1290 h 40' stroke='black' stroke-width='2'/>",
         {{511, 1290.9, 0}, {549, 1289.1, 0}, {530, 1292, -1}, {530, 1288, -1}},
         "viewBox='0 0 2000 2000'"},
        {"what draws nothing, or off the page, is not hit",
         "<g data-hotspot='empty'/><rect data-hotspot='hidden' width='50' height='50' display='none'/>"
         "<defs><rect data-hotspot='kept' width='50' height='50'/></defs>"
         "<rect data-hotspot='away' x='200' width='50' height='50'/>"
         "<rect data-hotspot='invisible' width='50' height='50' fill='none'/>",
         {{1, 25, -1}, {25, 25, -1}, {49, 25, -1}, {99, 25, -1}, {210, 10, -1}}},
    };
    for (const auto& caso : casi) {
        Mappa_HotSpot mappa = Mappa(caso.contenuto, caso.radice);
        for (const auto& [x, y, elemento] : caso.colpi)
            EXPECT_EQ(mappa.Elemento_In({x, y}), elemento) << caso.nome << ": " << x << ", " << y;
    }
}

TEST(HotspotMap, TheUpperOneWins) {
    Mappa_HotSpot mappa = Mappa(
        "<rect data-hotspot='under' x='10' y='10' width='20' height='20'/>"
        "<rect data-hotspot='over' x='5' y='5' width='30' height='30' fill='none' stroke='black'/>"
        "<rect data-hotspot='aside' x='30' y='30' width='40' height='40'/>");
    EXPECT_EQ(mappa.Elemento_In({20, 20}), 1) << "covered by an outline that encloses it";
    EXPECT_EQ(mappa.Elemento_In({32, 32}), 2);
    EXPECT_EQ(mappa.Elemento_In({60, 60}), 2);
    const auto ovunque = [](QPointF) { return true; };
    EXPECT_FALSE(mappa.Punto_Scoperto(0, ovunque));
    EXPECT_EQ(mappa.Elemento_In(mappa.Punto_Scoperto(1, ovunque).value()), 1);
    EXPECT_FALSE(mappa.Punto_Scoperto(1, [](QPointF punto) { return punto.x() > 50; }));
}

TEST(HotspotMap, LiesWhereItIsDrawnWhateverTheSizeOfThePaper) {
    const QByteArray vista = "viewBox='0 0 1000 800' ";
    const struct {
        QByteArray radice;
        double x = 500, y = 400;  ///< where on the page the square of 100 begins that stands at 500, 400
    } casi[] = {
        {vista},
        {vista + "width='1000' height='800'"},
        {vista + "width='100' height='80'"},
        {vista + "width='100'"},
        {vista + "width='100mm' height='80mm'"},
        {vista + "width='10cm' height='8cm'"},
        {vista + "width='5in' height='4in'"},
        {vista + "width='50pt' height='40pt'"},
        {vista + "width='50pc' height='40pc'"},
        {vista + "width='200px' height='160px'"},
        {vista + "width='50%' height='30%'"},
        {vista + "width='10em' height='4ex'"},
        {vista + "width='100' height='800'"},
        {vista + "width='100' height='800' preserveAspectRatio='none'"},
        {vista + "width='2000' height='800' preserveAspectRatio='xMaxYMin slice'"},
        {vista + "x='70' y='30'"},
        {vista + "style='width:70px;height:3in'"},
        {"viewBox='-100 -50 1000 800'", 600, 450},
        {"viewBox='250 200 500 400' width='100mm'", 250, 200},
        {"viewBox='250,200,500,400' width='3in' height='9in'", 250, 200},
        {"width='1000' height='800'"},
        {"width='10in' height='254mm'"},
        {"width='100em' height='100em'"},
        {""},
    };
    for (const auto& [radice, x, y] : casi) {
        const auto documento =
            Leggi(Svg("<rect width='10' height='10'/><g transform='translate(300 200) scale(2)'>"
                      "<rect data-hotspot='1' x='100' y='100' width='50' height='50'/></g>",
                      radice));
        ASSERT_TRUE(documento);
        Mappa_HotSpot mappa(documento);
        EXPECT_TRUE(Uguali(mappa.Ingombro(0), {x, y, 100, 100})) << radice.constData();
        EXPECT_EQ(mappa.Elemento_In({x + 99, y + 99}), 0) << radice.constData();
        const Pagina_Disegnata pagina(documento);
        const auto colore = [&](double dx, double dy) {
            return pagina.Colore(static_cast<int>(x + dx), static_cast<int>(y + dy));
        };
        EXPECT_EQ((colore(1, 1) | colore(98, 98)) & 0xf0f0f0, 0u) << radice.constData();
        EXPECT_EQ(colore(-2, 50) & colore(50, -2), 0xffffffu) << radice.constData();
    }
}

TEST(HotspotMap, AgreesWithAPlainSearch) {
    QRandomGenerator caso(4);
    QByteArray svg;
    for (int i = 0; i < 300; ++i) {
        const int lato = i % 50 == 0 ? 700 : 5 + static_cast<int>(caso.bounded(60));
        svg += QByteArray("<circle data-hotspot='") + QByteArray::number(i) +
               "' fill='none' stroke='black' cx='" + QByteArray::number(caso.bounded(1000)) + "' cy='" +
               QByteArray::number(caso.bounded(600)) + "' r='" + QByteArray::number(lato / 2.0) + "'/>";
    }
    Mappa_HotSpot mappa = Mappa(svg, "viewBox='0 0 1000 600'");
    int colpiti = 0;
    for (int i = 0; i < 4000; ++i) {
        const QPointF punto(caso.bounded(1000.0), caso.bounded(600.0));
        int atteso = -1;
        for (int e = 299; e >= 0 && atteso < 0; --e)
            if (mappa.Sagoma_Di(e).Contiene(punto))
                atteso = e;
        EXPECT_EQ(mappa.Elemento_In(punto), atteso);
        colpiti += atteso >= 0;
    }
    EXPECT_GT(colpiti, 1000);
    EXPECT_LT(colpiti, 4000);
}

}  // namespace

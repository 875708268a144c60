#include <cairo-pdf.h>
#include <gmock/gmock.h>

#include <QTemporaryDir>

#include "canvas/documenti.h"
#include "canvas/documento_svg.h"

using testing::ElementsAre;

namespace {

TEST(Documento, TellsItsPageAndItsPaper) {
    const struct {
        const char* radice;
        QSizeF pagina, carta;  // user units, millimetres
    } casi[] = {
        {"viewBox='0 0 200 100'", {200, 100}, {52.9167, 26.4583}},
        {"viewBox='-5,-5, 30.5 , 2e2'", {30.5, 200}, {8.0698, 52.9167}},
        {"viewBox='0 0 200 100' width='210mm' height='29.7cm'", {200, 100}, {210, 297}},
        {"viewBox='0 0 200 100' width='144px' height='6pc'", {200, 100}, {38.1, 25.4}},
        {"viewBox='0 0 200 100' width='50%' height='3em'", {200, 100}, {52.9167, 26.4583}},
        {"width='1in' height='2.54cm'", {96, 96}, {25.4, 25.4}},
        {"width='72pt' height='25.4mm'", {96, 96}, {25.4, 25.4}},
        {"width='100%' height='100%'", {25, 15}, {6.6146, 3.9688}},
        {"", {25, 15}, {6.6146, 3.9688}},
    };
    for (const auto& [radice, pagina, carta] : casi) {
        QString rifiuto;
        const auto documento =
            Documento_Svg::Da_Dati(Svg("<rect x='5' y='5' width='20' height='10'/>", radice), rifiuto);
        ASSERT_TRUE(documento) << radice;
        EXPECT_EQ(documento->Pagina(), pagina) << radice;  // but for rounding
        EXPECT_NEAR(documento->Carta().width(), carta.width(), 1e-3) << radice;
        EXPECT_NEAR(documento->Carta().height(), carta.height(), 1e-3) << radice;
    }
}

TEST(Documento, NamesItsHotspots) {
    const auto documento =
        Leggi(Svg("<g id='balloon-1' data-hotspot='CODICI#$#A1'><circle r='5'/></g>"
                  "<text data-hotspot='12'>12</text>"
                  "<path id='part' data-hotspot='CODICI#$#A1' d='M0 0h9'/>"
                  "<use data-hotspot='A &amp; B' xlink:href='#part'/>"
                  "<g data-hotspot=''/>"));
    std::vector<QString> nomi, stringhe;
    for (const auto& elemento : documento->Elementi())
        nomi.push_back(elemento.nome);
    for (const auto& gruppo : documento->Gruppi())
        stringhe.push_back(gruppo.stringa);
    EXPECT_THAT(nomi, ElementsAre("balloon-1", "12", "part", "A & B"));
    EXPECT_THAT(stringhe, ElementsAre("CODICI#$#A1", "12", "A & B"));
    EXPECT_THAT(documento->Gruppi()[0].elementi, ElementsAre(0, 2));
    for (const auto& [nome, gruppo] : {std::pair("CODICI#$#A1", 0), std::pair("part", 0), std::pair("12", 1),
                                       std::pair("A1", -1), std::pair("", -1)})
        EXPECT_EQ(documento->Gruppo(nome), gruppo) << nome;
}

TEST(Documento, AddressesElementsWhateverTheirId) {
    // no id, one id twice, one that can't be addressed, one that looks like a private one, namespaces, a tab
    // in the tag
    const auto documento =
        Leggi(Svg("<rect data-hotspot='1' width='10' height='10'/>"
                  "<g id='twice'/>"
                  "<rect id='twice' data-hotspot='2' x='20' width='10' height='10'/>"
                  "<rect id='CODICI#$#3' data-hotspot='3' x='40' width='10' height='10'/>"
                  "<rect id='hotspot.1' data-hotspot='4' x='60' width='10' height='10'/>"
                  "<rect\tid='' data-hotspot='5' x='80' width='10' height='10'/>"));
    const Disegnatore disegnatore = Disegnatore_Di(documento);
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(Uguali(disegnatore.Ingombro(documento->Elementi()[static_cast<size_t>(i)].id),
                           QRectF(i * 20, 0, 10, 10)))
            << i;
    EXPECT_EQ(documento->Elementi()[2].nome, "CODICI#$#3");
    EXPECT_EQ(documento->Elementi()[4].nome, "5");
}

TEST(Documento, TellsItsSelectionColours) {
    const QByteArray radice = "viewBox='0 0 1 1' data-pickbackcolor='#ff8000' data-pickbordercolor='";
    EXPECT_EQ(Leggi(Svg("", radice + "#0f0'"))->Colore_Scelta(), 0xff8000u);
    EXPECT_EQ(Leggi(Svg("", radice + "#0f0'"))->Bordo_Scelta(), 0x00ff00u);
    EXPECT_FALSE(Leggi(Svg("", radice + "red'"))->Bordo_Scelta()) << "names aren't read";
}

TEST(Documento, ReadsEveryFormOfText) {
    const QByteArray svg = Svg("<rect data-hotspot='\xc3\xa8' width='50' height='50'/>");
    const QString testo = QString::fromUtf8(svg);
    const QByteArray utf16 =
        QByteArray("\xff\xfe") + QByteArray(reinterpret_cast<const char*>(testo.utf16()), testo.size() * 2);
    const QByteArray con_entita =
        "<!DOCTYPE svg [<!ENTITY ns 'http://www.w3.org/2000/svg'><!ENTITY n '50'><!ENTITY m '&n;'>"
        "<!ENTITY r \"<rect data-hotspot='\xc3\xa8' width='&m;' height='50'/>\">]>"
        "<svg xmlns='&ns;' viewBox='0 0 100 100'>&r;</svg>";
    for (const QByteArray& caso : {svg, "\xef\xbb\xbf" + svg, "\n <!-- first a comment --> " + svg,
                                   "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + svg,
                                   "<?xml version='1.0' encoding='ISO-8859-1'?>" + testo.toLatin1(), utf16,
                                   Gzip(svg), Gzip(svg.left(40)) + Gzip(svg.mid(40)), con_entita}) {
        const auto documento = Leggi(caso);
        ASSERT_TRUE(documento);
        EXPECT_EQ(documento->Gruppo(QStringLiteral("è")), 0) << caso.left(60).constData();
        EXPECT_EQ(Pagina_Disegnata(documento).Colore(25, 25), 0u) << caso.left(60).constData();
    }
}

TEST(Documento, ReadsAFileWhateverItsName) {
    QTemporaryDir cartella;
    const QString percorso = cartella.filePath("drawing.dwz");
    Scrivi(percorso, Gzip(Svg("<rect width='9' height='9'/>")));
    EXPECT_TRUE(Documento_Tavola::Da_File(percorso));
    QString rifiuto;
    EXPECT_FALSE(Documento_Tavola::Da_File(cartella.filePath("none.svg"), &rifiuto));
    EXPECT_FALSE(rifiuto.isEmpty());
    EXPECT_FALSE(Documento_Tavola::Da_File(cartella.path()));
}

TEST(Documento, DrawsAPartAtAScale) {
    const auto documento =
        Leggi(Svg("<rect x='-20' y='-20' width='30' height='30' fill='#00f'/>", "viewBox='-50 -50 100 100'"));
    std::vector<quint32> pixel(20 * 20, 0xffffffff);
    {  // page point 25,25 comes to the corner; at 2 pixels to a unit the rectangle begins at pixel 10
        const Superficie_In_Memoria superficie(Superficie_In_Memoria::Formato::COLORI,
                                               reinterpret_cast<uchar*>(pixel.data()), 20, 20, 80);
        ASSERT_TRUE(Disegnatore_Di(documento).Disegna(superficie.Contesto(), {25, 25}, 2));
    }
    EXPECT_EQ(pixel[9 * 20 + 9], 0xffffffffu);
    EXPECT_EQ(pixel[10 * 20 + 10], 0xff0000ffu);
    EXPECT_EQ(pixel[9 * 20 + 15], 0xffffffffu);
}

/// What cairo writes when it draws the content on a PDF page of 10 cm.
QByteArray Pdf(const QByteArray& contenuto) {
    QByteArray pdf;
    const auto scrivi = [](void* dove, const unsigned char* dati, unsigned lunghezza) {
        static_cast<QByteArray*>(dove)->append(reinterpret_cast<const char*>(dati), lunghezza);
        return CAIRO_STATUS_SUCCESS;
    };
    cairo_surface_t* superficie = cairo_pdf_surface_create_for_stream(scrivi, &pdf, 283.5, 283.5);
    cairo_pdf_surface_restrict_to_version(superficie, CAIRO_PDF_VERSION_1_4);  // its objects can be read
    cairo_t* contesto = cairo_create(superficie);
    EXPECT_TRUE(Disegnatore_Di(Leggi(Svg(contenuto))).Disegna(contesto, {}, 2.835));
    cairo_destroy(contesto);
    cairo_surface_destroy(superficie);
    return pdf;
}

TEST(Documento, StaysLinesAndTextOnPaper) {
    const QByteArray pdf = Pdf("<circle r='30' stroke='red' opacity='.5'/><text y='50'>Bolt</text>");
    EXPECT_TRUE(pdf.contains("/FontFile"));
    EXPECT_FALSE(pdf.contains("/Subtype /Image"));
    EXPECT_TRUE(Pdf(Immagine("png", PUNTO_BLU)).contains("/Subtype /Image"));
}

}  // namespace

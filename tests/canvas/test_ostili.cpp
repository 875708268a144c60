// Documents that a viewer must survive: refused, or shown in part; quickly, within bounds, and without a look
// outside.

#include <zlib.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include "canvas/documenti.h"
#include "canvas/mappa_hotspot.h"

namespace {

QByteArray Molte(const QByteArray& testo, int volte) {
    return testo.repeated(volte);
}

/// The head of a PNG that claims these sizes.
QByteArray Testa_Png(quint32 larghezza, quint32 altezza) {
    QByteArray dati("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    for (const quint32 n : {larghezza, altezza})
        for (int i = 3; i >= 0; --i)
            dati.append(static_cast<char>(n >> (8 * i)));
    return dati.append("\x08\x06\0\0\0\0\0\0\0", 9).toBase64();
}

QByteArray Catena_Use(int anelli) {
    QByteArray svg = "<defs>";
    for (int i = 0; i < anelli; ++i)
        svg += "<g id='a" + QByteArray::number(i) + "'><use xlink:href='#a" + QByteArray::number(i + 1) +
               "'/></g>";
    return svg + "<rect id='a" + QByteArray::number(anelli) +
           "' width='9' height='9'/></defs><use xlink:href='#a0'/>";
}

QByteArray Piramide_Use(int piani) {
    QByteArray svg = "<defs><rect id='b0' width='9' height='9'/>";
    for (int i = 0; i < piani; ++i)
        svg += "<g id='b" + QByteArray::number(i + 1) + "'>" +
               Molte("<use xlink:href='#b" + QByteArray::number(i) + "'/>", 10) + "</g>";
    return svg + "</defs><use xlink:href='#b" + QByteArray::number(piani) + "'/>";
}

QByteArray Entita(int piani) {
    QByteArray tipo = "<!DOCTYPE svg [<!ENTITY e0 'aaaaaaaaaa'>";
    for (int i = 0; i < piani; ++i)
        tipo += "<!ENTITY e" + QByteArray::number(i + 1) + " '" +
                Molte("&e" + QByteArray::number(i) + ";", 10) + "'>";
    return tipo + "]>" + Svg("<text>&e" + QByteArray::number(piani) + ";</text>");
}

struct Ostile {
    const char* nome;
    QByteArray dati;
};
std::ostream& operator<<(std::ostream& uscita, const Ostile& ostile) {
    return uscita << ostile.nome;
}

class Rifiutati : public testing::TestWithParam<Ostile> {};

TEST_P(Rifiutati, AreRefusedAtOnce) {
    QElapsedTimer tempo;
    tempo.start();
    QString rifiuto;
    const auto documento = Documento_Tavola::Da_Dati(GetParam().dati, &rifiuto);
    EXPECT_TRUE(!documento || !Disegnatore(documento).Valido());
    EXPECT_TRUE(documento || !rifiuto.isEmpty());
    EXPECT_LT(tempo.elapsed(), 5000);
}

INSTANTIATE_TEST_SUITE_P(
    Ostili, Rifiutati,
    testing::Values(
        Ostile{"empty", ""}, Ostile{"blank", " \n "}, Ostile{"text", "hello"},
        Ostile{"zeros", QByteArray(4096, '\0')}, Ostile{"html", "<html><body/></html>"}, Ostile{"open", "<"},
        Ostile{"truncated", Svg("<g><rect/>").left(110)}, Ostile{"unbalanced", Svg("<g></rect>")},
        Ostile{"truncated_gzip", QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\x03\x4b", 11)},
        Ostile{"zero_page", Svg("", "viewBox='0 0 0 0'")},
        Ostile{"zero_width", Svg("", "width='0' height='9'")},
        Ostile{"negative_page", Svg("", "viewBox='0 0 -5 10'")},
        Ostile{"vast_page", Svg("", "viewBox='0 0 1e30 1e30'")},
        Ostile{"vast_size", Svg("", "width='1e30' height='1'")},
        Ostile{"infinite", Svg("", "viewBox='0 0 inf nan'")},
        Ostile{"overflow", Svg("", "viewBox='0 0 1e999 1'")}, Ostile{"nothing_to_measure", Svg("", "")},
        Ostile{"nested_groups", Svg(Molte("<g>", 10000) + Molte("</g>", 10000))},
        Ostile{"million_elements", Svg(Molte("<path d='M0 0'/>", 1'000'000))},
        Ostile{"million_open", "<svg>" + Molte("<g>", 1'000'000)}, Ostile{"entity_bomb", Entita(9)},
        Ostile{"long_entity", "<!DOCTYPE svg [<!ENTITY a '" + QByteArray(100'000, 'a') + "'>]>" +
                                  Svg("<text>" + Molte("&a;", 10'000) + "</text>")},
        Ostile{"parametric_entity",
               "<!DOCTYPE svg [<!ENTITY % p '<!ENTITY a \"b\">'>%p;]>" + Svg("<text>&a;</text>")},
        Ostile{"elements_in_entity", "<!DOCTYPE svg [<!ENTITY a '<g/>'>]>" + Svg("&a;")},
        Ostile{"use_chain", Svg(Catena_Use(5000))}, Ostile{"use_pyramid", Svg(Piramide_Use(9))},
        Ostile{"use_in_styles", Svg("<style>.a{fill:url(#p0)}</style>" + Catena_Use(300))},
        Ostile{"endless_text", Svg("<text>" + QByteArray(1'000'000, 'a') + "</text>")}),
    [](const auto& caso) { return std::string(caso.param.nome); });

class Mostrati : public testing::TestWithParam<Ostile> {};

TEST_P(Mostrati, AreDrawnWithinBounds) {
    QElapsedTimer tempo;
    tempo.start();
    const auto documento = Documento_Tavola::Da_Dati(GetParam().dati);
    ASSERT_TRUE(documento);
    const double scala = std::min(10.0, std::sqrt(documento->Pixel_Massimi() / 1e4));
    Pagina_Disegnata pagina(documento, scala);
    EXPECT_EQ(pagina.Colore(pagina.larghezza / 20, pagina.altezza / 20), 0x0000ffu)
        << "what is harmless is drawn";
    EXPECT_LT(tempo.elapsed(), 20'000);
}

const QByteArray BLU = "<rect width='10' height='10' fill='#00f'/>";

INSTANTIATE_TEST_SUITE_P(
    Ostili, Mostrati,
    testing::Values(
        Ostile{"script", Svg(BLU + "<script>while(true);</script><g onclick='f()'/>")},
        Ostile{"circular_use",
               Svg(BLU + "<g id='a'><use xlink:href='#b'/></g><g id='b'><use xlink:href='#a'/></g>")},
        Ostile{"turbulence",
               Svg("<filter id='f'><feTurbulence baseFrequency='.1' numOctaves='100000000'/></filter>" + BLU +
                   "<rect y='50' width='10' height='10' filter='url(#f)'/>")},
        Ostile{"convolution",
               Svg("<filter id='f'><feConvolveMatrix order='100' kernelMatrix='" + Molte("1 ", 10000) +
                   "'/></filter>" + BLU + "<rect y='50' width='10' height='10' filter='url(#f)'/>")},
        Ostile{"picture_bomb",
               Svg(BLU + "<image width='9' height='9' y='50' xlink:href='data:image/png;base64," +
                   Testa_Png(100'000, 100'000) + "'/>")},
        Ostile{"document_in_document",
               Svg(BLU + "<image width='9' height='9' y='50' xlink:href='data:image/svg+xml;base64," +
                   Svg(Catena_Use(5000)).toBase64() + "'/>")},
        Ostile{"layers_in_layers", Svg(BLU + Molte("<g opacity='.99'>", 200) +
                                       "<rect y='50' width='9' height='9'/>" + Molte("</g>", 200))},
        Ostile{"many_layers", Svg(BLU + Molte("<rect y='50' width='9' height='9' opacity='.5'/>", 10'000))},
        Ostile{"vast_coordinates",
               Svg(BLU + "<path d='M50 50 L1e30 1e30 -1e300 4z' stroke='red' stroke-width='1e-30'/>")},
        Ostile{"tiny_dashes", Svg(BLU + "<path d='M0 50L1e8 1e8' stroke='red' stroke-dasharray='1e-5'/>")}),
    [](const auto& caso) { return std::string(caso.param.nome); });

/// Colours a square of 10 x 10 red, for references that must not be followed.
QByteArray Quadrato(const QByteArray& id) {
    return Svg("<rect id='" + id + "' width='100' height='100' fill='red'/>");
}

TEST(Ostili, NothingOutsideTheFileIsLoaded) {
    QTemporaryDir cartella;
    const auto scrivi = [&](const QString& nome, const QByteArray& dati) {
        QFile file(cartella.filePath(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(dati);
    };
    scrivi("other.svg", Quadrato("q"));
    scrivi("style.css", "rect { fill: red }");
    scrivi("secret.txt", "MMMMMMMM");
    for (const QByteArray& base :
         {QByteArray("other.svg"), QUrl::fromLocalFile(cartella.filePath("other.svg")).toEncoded()}) {
        const QByteArray cartella_base = base.left(base.size() - 9);
        const QByteArray casi[] = {
            "<image width='100' height='100' xlink:href='" + base + "'/>",
            "<use xlink:href='" + base + "#q'/>",
            "<rect width='100' height='100' fill='none' stroke='none'/><style>@import url('" + cartella_base +
                "style.css');</style>",
            "<xi:include xmlns:xi='http://www.w3.org/2001/XInclude' href='" + base + "'/>",
            "<text y='50' font-size='50'><xi:include xmlns:xi='http://www.w3.org/2001/XInclude' parse='text' "
            "href='" +
                cartella_base + "secret.txt'/></text>"};
        for (const QByteArray& caso : casi) {
            scrivi("main.svg", Svg(caso));
            const auto documento = Documento_Tavola::Da_File(cartella.filePath("main.svg"));
            ASSERT_TRUE(documento);
            EXPECT_TRUE(Pagina_Disegnata(documento).Bianca()) << caso.constData();
        }
        scrivi("main.svg", "<!DOCTYPE svg [<!ENTITY s SYSTEM '" + cartella_base + "secret.txt'>]>" +
                               Svg("<text y='50' font-size='50'>&s;</text>"));
        const auto documento = Documento_Tavola::Da_File(cartella.filePath("main.svg"));
        EXPECT_TRUE(!documento || Pagina_Disegnata(documento).Bianca());
    }
}

TEST(Ostili, PicturesInsideTheFileAreShown) {
    // one blue pixel
    const QByteArray png =
        "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGNgYPgPAAEDAQAIicLsAAAAAElFTkSuQmCC";
    const auto documento = Documento_Tavola::Da_Dati(
        Svg("<image width='100' height='100' xlink:href='data:image/png;base64," + png + "'/>"));
    ASSERT_TRUE(documento);
    EXPECT_EQ(Pagina_Disegnata(documento).Colore(50, 50), 0x0000ffu);
}

TEST(Ostili, AGzipBombIsNotInflatedWhole) {
    z_stream flusso{};
    deflateInit2(&flusso, 9, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
    QByteArray compresso(4 << 20, 0), blocco(1 << 20, ' ');
    flusso.next_out = reinterpret_cast<Bytef*>(compresso.data());
    flusso.avail_out = static_cast<uInt>(compresso.size());
    for (int i = 0; i < 200; ++i) {
        flusso.next_in = reinterpret_cast<Bytef*>(blocco.data());
        flusso.avail_in = static_cast<uInt>(blocco.size());
        deflate(&flusso, i == 199 ? Z_FINISH : Z_NO_FLUSH);
    }
    compresso.truncate(static_cast<qsizetype>(flusso.total_out));
    deflateEnd(&flusso);
    QString rifiuto;
    EXPECT_FALSE(Documento_Tavola::Da_Dati(compresso, &rifiuto));
    EXPECT_TRUE(rifiuto.contains("gzip")) << qPrintable(rifiuto);
}

TEST(Ostili, OnlySoManyHotspots) {
    Limiti limiti;
    limiti.hotspot = 3;
    const auto documento = Documento_Tavola::Da_Dati(
        Svg(Molte("<rect data-hotspot='1' width='9' height='9'/>", 9)), nullptr, limiti);
    ASSERT_TRUE(documento);
    EXPECT_EQ(documento->Elementi().size(), 3u);
}

}  // namespace

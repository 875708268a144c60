// Documents that a viewer must survive: refused, or shown in part; quickly, within bounds, and without a look
// outside.

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QUrl>

#include "canvas/documenti.h"
#include "canvas/mappa_hotspot.h"
#include "canvas/stili.h"

namespace {

/// The head of a PNG that claims these sizes.
QByteArray Testa_Png(quint32 larghezza, quint32 altezza) {
    QByteArray dati("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    for (const quint32 n : {larghezza, altezza})
        for (int i = 3; i >= 0; --i)
            dati.append(static_cast<char>(n >> (8 * i)));
    return dati.append("\x08\x06\0\0\0\0\0\0\0", 9).toBase64();
}

QByteArray Molte(const QByteArray& testo, int volte) {
    return testo.repeated(volte);
}

/// `testo` so many times, "@" as the number of the turn and "^" as the next.
QByteArray Serie(const QByteArray& testo, int volte) {
    QString tutto;
    for (int i = 0; i < volte; ++i)
        tutto += QString(testo).replace('@', QString::number(i)).replace('^', QString::number(i + 1));
    return tutto.toUtf8();
}

QByteArray Catena_Use(int anelli) {
    return "<defs>" + Serie("<g id='a@'><use xlink:href='#a^'/></g>", anelli) + "<rect id='a" +
           QByteArray::number(anelli) + "' width='9' height='9'/></defs><use xlink:href='#a0'/>";
}

const QByteArray PIRAMIDE_USE = "<defs><rect id='b0' width='9' height='9'/>" +
                                Serie("<g id='b^'>" + Molte("<use xlink:href='#b@'/>", 10) + "</g>", 9) +
                                "</defs><use xlink:href='#b9'/>";
const QByteArray BOMBA_ENTITA = "<!DOCTYPE svg [<!ENTITY e0 'aaaaaaaaaa'>" +
                                Serie("<!ENTITY e^ '" + Molte("&e@;", 10) + "'>", 9) + "]>" +
                                Svg("<text>&e9;</text>");

TEST(Ostili, WhatAsksForTooMuchOrIsNoDrawingIsRefusedAtOnce) {
    const std::pair<const char*, QByteArray> casi[] = {
        {"empty", ""},
        {"text", "hello"},
        {"zeros", QByteArray(4096, '\0')},
        {"another document", "<html><body/></html>"},
        {"truncated", Svg("<g><rect/>").left(110)},
        {"truncated gzip", QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\x03\x4b", 11)},
        {"nothing to measure", Svg("", "")},
        {"no width", Svg("", "width='0' height='9'")},
        {"vast page", Svg("", "viewBox='0 0 1e30 1e30'")},
        {"endless page", Svg("", "viewBox='0 0 inf nan'")},
        {"nested groups", Svg(Molte("<g>", 10000) + Molte("</g>", 10000))},
        {"a million elements", Svg(Molte("<path d='M0 0'/>", 1'000'000))},
        {"entities in entities", BOMBA_ENTITA},
        {"long entity", "<!DOCTYPE svg [<!ENTITY a '" + Molte("a", 100'000) + "'>]>" +
                            Svg("<text>" + Molte("&a;", 10'000) + "</text>")},
        {"parameter entities in parameter entities",
         "<!DOCTYPE svg [<!ENTITY % p0 'aaaaaaaaaa'>" +
             Serie("<!ENTITY % p^ '" + Molte("&#37;p@;", 10) + "'>", 9) + "%p9;]>" + Svg("")},
        {"chain of references", Svg(Catena_Use(5000))},
        {"pyramid of references", Svg(PIRAMIDE_USE)},
        {"chain hidden by an entity",
         "<!DOCTYPE svg [<!ENTITY h '#a'>]>" + Svg(Serie("<g id='a@'><use xlink:href='&h;^'/></g>", 5000))},
        {"chain hidden by default attributes",
         "<!DOCTYPE svg [" + Serie("<!ATTLIST p@:use xlink:href CDATA '#a^'>", 1000) + "]>" +
             Svg(Serie("<g id='a@'><p@:use xmlns:p@='http://www.w3.org/2000/svg'/></g>", 1000))},
        {"chain hidden by an encoding", "<?xml version='1.0' encoding='UTF-7'?>" +
                                            Svg(Serie("<g id='a@'><use xlink:href='+ACM-a^'/></g>", 5000))},
        {"chain of other ids", Svg(Serie("<g xml:id='a@'><use href=' #a^'/></g>", 5000))},
        {"chain of patterns in styles",
         Svg("<style>" + Serie(".c@{FILL:u\\72l( '#p^' )}", 300) + "</style>" +
             Serie("<pattern id='p@'><rect class='c@'/></pattern>", 300) + "<rect class='c0'/>")},
        {"references from styles", Svg("<style>.a{fill:url(#p0)}</style>" + Catena_Use(300))},
        {"endless text", Svg("<text>" + Molte("a", 1'000'000) + "</text>")},
    };
    for (const auto& [nome, dati] : casi) {
        SCOPED_TRACE(nome);
        QElapsedTimer tempo;
        tempo.start();
        QString rifiuto;
        const auto documento = Documento_Tavola::Da_Dati(dati, &rifiuto);
        EXPECT_TRUE(!documento || !Disegnatore_Di(documento).Valido());
        EXPECT_TRUE(documento || !rifiuto.isEmpty());
        EXPECT_LT(tempo.elapsed(), 5000);
    }
}

TEST(Ostili, WhatStandsBesideTheHarmlessIsDrawnWithinBounds) {
    const QByteArray filtrato = "<rect y='50' width='10' height='10' filter='url(#f)'/>";
    const std::pair<const char*, QByteArray> casi[] = {
        {"script", "<script>while(true);</script><g onclick='f()'/>"},
        {"references in a circle",
         "<g id='a'><use xlink:href='#b'/></g><g id='b'><use xlink:href='#a'/></g>"},
        {"turbulence",
         "<filter id='f'><feTurbulence baseFrequency='.1' numOctaves='100000000'/></filter>" + filtrato},
        {"convolution", "<filter id='f'><feConvolveMatrix order='100' kernelMatrix='" + Molte("1 ", 10000) +
                            "'/></filter>" + filtrato},
        {"picture bomb", Immagine("png", Testa_Png(100'000, 100'000))},
        {"document in a document", Immagine("svg+xml", Svg(Catena_Use(5000)).toBase64())},
        {"document in a reference",
         "<use xlink:href='data:image/svg+xml;base64," + Svg(Catena_Use(5000)).toBase64() + "#a0'/>"},
        {"document in an inclusion",
         "<xi:include xmlns:xi='http://www.w3.org/2001/XInclude' "
         "href='data:image/svg+xml;base64," +
             Svg(Catena_Use(5000)).toBase64() + "'/>"},
        {"sheet in an address", "<style>@import 'data:text/css,rect%7Bfill:red%7D';</style>"},
        {"layers in layers",
         Molte("<g opacity='.99'>", 200) + "<rect y='50' width='9' height='9'/>" + Molte("</g>", 200)},
        {"many layers", Molte("<rect y='50' width='9' height='9' opacity='.5'/>", 10'000)},
        {"vast coordinates", "<path d='M50 50 L1e30 1e30 -1e300 4z' stroke='red' stroke-width='1e-30'/>"},
        {"tiny dashes", "<path d='M0 50L1e8 1e8' stroke='red' stroke-dasharray='1e-5'/>"},
    };
    for (const auto& [nome, dati] : casi) {
        SCOPED_TRACE(nome);
        QElapsedTimer tempo;
        tempo.start();
        const auto documento = Leggi(Svg("<rect width='10' height='10' fill='#00f'/>" + dati));
        ASSERT_TRUE(documento);
        const double scala = std::min(10.0, std::sqrt(documento->Pixel_Massimi() / 1e4));
        const Pagina_Disegnata pagina(documento, scala);
        EXPECT_EQ(pagina.Colore(pagina.larghezza / 20, pagina.altezza / 20), 0x0000ffu);
        EXPECT_LT(tempo.elapsed(), 20'000);
    }
}

TEST(Ostili, StyleIsReadAsTheRendererReadsIt) {
    const struct {
        const char *scritto, *letto;
        bool foglio = true;
    } casi[] = {
        {"a{opacity:.5}", "a{opacity:.5}"},
        {"a/*{*/{o\\70 acity:.5}", "a {opacity:.5}"},
        {"a{x:{};opacity:.5}", "a{x: } opacity:.5 "},
        {"a{x:(});opacity:.5}", "a{x: }  opacity:.5 "},
        {"a{x:'}';opacity:.5}", "a{x: }  opacity:.5 "},
        {"@media all{a{opacity:.5}}b{fill:red}", " b{fill:red}"},
        {"@import url(x.css);a{fill:red", " a{fill:red}"},
        {"fill:URL( \"#a\" );mask:url(data:x#b)", "fill:url(#a);mask:none", false},
        {"a:not(.b)[c='d']{fill:rgb(1,2,3)}", "a:not(.b)[c='d']{fill:rgb(1,2,3)}"},
    };
    for (const auto& [scritto, letto, foglio] : casi)
        EXPECT_EQ(Css_Pulito(scritto, foglio), letto);
}

TEST(Ostili, TellsWhatIsLeftOut) {
    const std::pair<const char*, QByteArray> casi[] = {
        {"", "<rect width='9' height='9' stroke-dasharray='1' opacity='.5'/>"},
        {"dashed", "<style>path{stroke-dasharray:1e-5}</style><path d='M0 0h100v100'/>"},
        {"dashed", "<g style='STROKE-DASHARRAY:1e-5'><circle r='50'/></g>"},
        {"rules",
         "<style>" + Serie("rect.c@ ~ g > rect{fill:red}", 2000) + "</style>" + Molte("<rect/>", 5000)},
        {"hotspots", Molte("<g data-hotspot='1'>", 200) + Molte("<rect/>", 50'000) + Molte("</g>", 200)},
        {"filters", "<filter id='f'><feTurbulence/></filter>"},
        {"pictures", Immagine("png", Testa_Png(100'000, 100'000))},
    };
    for (const auto& [motivo, dati] : casi) {
        const auto documento = Leggi(Svg(dati));
        ASSERT_TRUE(documento) << motivo;
        EXPECT_EQ(documento->Lasciato_Fuori().size(), *motivo ? 1 : 0) << motivo;
        EXPECT_TRUE(documento->Lasciato_Fuori().join(' ').contains(motivo)) << motivo;
    }
}

TEST(Ostili, NothingOutsideTheFileIsLoaded) {
    const QTemporaryDir cartella;
    Scrivi(cartella.filePath("other.svg"), Svg("<rect id='q' width='100' height='100' fill='red'/>"));
    Scrivi(cartella.filePath("style.css"), "rect { fill: red }");
    Scrivi(cartella.filePath("secret.txt"), "MMMMMMMM");
    const QByteArray include = "<xi:include xmlns:xi='http://www.w3.org/2001/XInclude' ";
    const QByteArray entita = "<!DOCTYPE svg [<!ENTITY s SYSTEM 'BASE/secret.txt'>]>";
    const QByteArray casi[] = {
        Svg("<image width='100' height='100' xlink:href='BASE/other.svg'/>"),
        Svg("<use xlink:href='BASE/other.svg#q'/>"),
        Svg("<rect width='100' height='100' fill='none'/><style>@import url('BASE/style.css');</style>"),
        Svg(include + "href='BASE/other.svg'/>"),
        Svg("<text y='50' font-size='50'>" + include + "parse='text' href='BASE/secret.txt'/></text>"),
        entita + Svg("<text y='50' font-size='50'>&s;</text>")};
    for (const QByteArray& base : {QByteArray(), QUrl::fromLocalFile(cartella.path() + '/').toEncoded()})
        for (QByteArray caso : casi) {
            Scrivi(cartella.filePath("main.svg"), caso.replace("BASE/", base));
            const auto documento = Documento_Tavola::Da_File(cartella.filePath("main.svg"));
            EXPECT_TRUE(documento || caso.startsWith("<!DOCTYPE")) << caso.constData();
            EXPECT_TRUE(!documento || Pagina_Disegnata(documento).Bianca()) << caso.constData();
        }
}

TEST(Ostili, PicturesInsideTheFileAreShown) {
    const auto documento = Leggi(Svg(Immagine("png", PUNTO_BLU)));
    ASSERT_TRUE(documento);
    EXPECT_EQ(Pagina_Disegnata(documento).Colore(50, 75), 0x0000ffu);
}

TEST(Ostili, AGzipBombIsNotInflatedWhole) {
    QString rifiuto;
    EXPECT_FALSE(Documento_Tavola::Da_Dati(Gzip(QByteArray(1 << 20, ' ')).repeated(200), &rifiuto));
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

// Drawings that ask for much work in few lines: whatever is shown of them is there within seconds, in little
// memory.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>

#include "canvas/documenti.h"
#include "canvas/mappa_hotspot.h"

namespace {

constexpr double SECONDI = 10, MEGABYTE = 500;

const QByteArray RETTANGOLO = "<rect width='100' height='100' ";

QByteArray Zigzag(int vertici) {
    QByteArray d = "M0 0";
    for (int i = 1; i < vertici; ++i)
        d += " L" + QByteArray::number(i * 7 % 100) + ' ' + QByteArray::number(i * 13 % 100);
    return d;
}

QByteArray Regole(int numero, const char* selettore, const char* dichiarazioni) {
    return "<style>" + (QByteArray(selettore) + "{" + dichiarazioni + "}").repeated(numero) + "</style>";
}

struct Caso {
    const char* nome;
    QByteArray contenuto;
};

std::vector<Caso> Casi() {
    const QByteArray d = Zigzag(20'000), molti = RETTANGOLO.repeated(1) + "fill='none' class='a b c'/>";
    return {
        {"dashes",
         QByteArray("<path stroke='red' stroke-width='.01' stroke-dasharray='.06' d='" + Zigzag(2000) + "'/>")
             .repeated(500)},
        {"dashes by style", "<style>path{stroke-dasharray:.06;stroke:red;stroke-width:.01}</style>" +
                                QByteArray("<path d='" + Zigzag(2000) + "'/>").repeated(500)},
        {"markers", "<marker id='m'>" + QByteArray("<circle r='1' fill='red'/>").repeated(50) +
                        "</marker><path fill='none' d='" + d + "' marker-mid='url(#m)'/>"},
        {"markers by style", "<style>path{marker:url(#m)}</style><marker id='m'>" +
                                 QByteArray("<circle r='1' fill='red'/>").repeated(50) +
                                 "</marker><path fill='none' d='" + d + "'/>"},
        {"nested hotspots", QByteArray("<g data-hotspot='1'>").repeated(200) +
                                (RETTANGOLO + "data-hotspot='2'/>").repeated(9000) +
                                QByteArray("</g>").repeated(200)},
        {"many selectors", Regole(3000, ".a .b .c, g > rect ~ rect.d", "fill:red") + molti.repeated(20'000)},
        {"one long selector", "<style>" + QByteArray("g ").repeated(20'000) + "rect{fill:red}</style>" +
                                  QByteArray("<g>").repeated(200) + molti.repeated(2000) +
                                  QByteArray("</g>").repeated(200)},
        {"siblings",
         "<style>" + QByteArray("rect~").repeated(20) + "line{fill:red}</style>" + molti.repeated(20'000)},
        {"opacity", (RETTANGOLO + "opacity='.5'/>").repeated(20'000)},
        {"opacity by style", "<style>rect{opacity:.5}</style>" + (RETTANGOLO + "/>").repeated(20'000)},
        {"opacity in hotspots",
         ("<g data-hotspot='1' opacity='.5'>" + RETTANGOLO + "opacity='.5'/></g>").repeated(10'000)},
        {"filters", "<filter id='f'><feGaussianBlur stdDeviation='9'/></filter>" +
                        (RETTANGOLO + "filter='url(#f)'/>").repeated(5000)},
        {"masks", "<mask id='f'><circle r='50' fill='white'/></mask>" +
                      (RETTANGOLO + "mask='url(#f)'/>").repeated(5000)},
        {"clips", "<clipPath id='f'><text y='50'>clip</text></clipPath>" +
                      (RETTANGOLO + "clip-path='url(#f)'/>").repeated(5000)},
        {"patterns", "<pattern id='p' width='.01' height='.01' patternUnits='userSpaceOnUse'>" + RETTANGOLO +
                         "/></pattern>" + (RETTANGOLO + "fill='url(#p)'/>").repeated(2000)},
        {"gradients", "<radialGradient id='p'><stop stop-color='red'/><stop offset='1'/></radialGradient>" +
                          (RETTANGOLO + "fill='url(#p)'/>").repeated(10'000)},
        {"large shapes", QByteArray("<circle r='90' fill='red' fill-opacity='.1'/>").repeated(100'000)},
        {"text", QByteArray("<text x='5' y='50'>abcdefghij</text>").repeated(25'000)},
        {"large text", QByteArray("<text font-size='90' y='90'>abcde</text>").repeated(2000)},
        {"long path", "<path fill='none' stroke='red' stroke-linejoin='round' stroke-width='5' d='" +
                          Zigzag(300'000) + "'/>"},
        {"filled path", "<path d='" + Zigzag(30'000) + "'/>"},
        {"pictures", "<defs><g id='i'>" + Immagine("png", PUNTO_BLU) + "</g></defs>" +
                         QByteArray("<use xlink:href='#i'/>").repeated(20'000)},
    };
}

/// Reads the drawing, draws its page as a screen shows it and works out its hotspots, as far as a user waits.
void Mostra(const QByteArray& svg) {
    const auto documento = Documento_Tavola::Da_Dati(svg);
    if (!documento)
        return;
    const double lato =
        std::min(1600., std::sqrt(std::min(documento->Pixel_Massimi(), documento->Pixel_Insieme())));
    Pagina_Disegnata(documento, lato / 100);
    Mappa_HotSpot mappa(documento);
    mappa.Prepara();
    mappa.Elemento_In({50, 50});
}

TEST(Costs, AreBounded) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizers' own cost";
#endif
    for (const Caso& caso : Casi()) {
        const QByteArray svg = Svg(caso.contenuto);
        const pid_t figlio = fork();
        if (figlio == 0) {
            const rlimit tempo{60, 60};
            setrlimit(RLIMIT_CPU, &tempo);
            Mostra(svg);
            _exit(0);
        }
        int esito = 0;
        rusage uso{};
        ASSERT_EQ(wait4(figlio, &esito, 0, &uso), figlio);
        const double secondi = double(uso.ru_utime.tv_sec + uso.ru_stime.tv_sec);
        EXPECT_EQ(esito, 0) << caso.nome;
        EXPECT_LE(secondi, SECONDI) << caso.nome;
        EXPECT_LE(double(uso.ru_maxrss) / 1024, MEGABYTE) << caso.nome;
    }
}

}  // namespace

// The drawing canvas: showing a drawing beside the bare renderer, and what the hand must not notice.

#include <benchmark/benchmark.h>
#include <librsvg/rsvg.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTemporaryDir>
#include <cstdio>

#include "core/archivio/archivio.h"
#include "core/archivio/archivio_in_scrittura.h"
#include "desktop.h"
#include "gui/drawing/lavagna_widget.h"
#include "ratios.h"

namespace {

constexpr int LARGHEZZA = 1920, ALTEZZA = 1080;
constexpr int MOLTI = 5000, CARRELLO = 500;

QTemporaryDir& Cartella() {
    static QTemporaryDir cartella;
    return cartella;
}

QString Scrivi(const QString& nome, const QByteArray& dati) {
    const QString percorso = Cartella().filePath(nome);
    if (!QFile::exists(percorso)) {
        QFile file(percorso);
        Check(file.open(QIODevice::WriteOnly) && file.write(dati) == dati.size(), "writing a drawing");
    }
    return percorso;
}

/// An exploded view: shaded parts drawn with curves and hatching, an axis, numbered balloons with their
/// leaders.
QByteArray Esploso(int palloni) {
    QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 1600 900' font-family='DejaVu Sans' "
        "font-size='14'>"
        "<rect width='1600' height='900' fill='white'/>";
    for (int i = 0; i < palloni; ++i) {
        const int x = 60 + i % 8 * 190, y = 80 + i / 8 * 160;
        const QByteArray posto = "translate(" + QByteArray::number(x) + ' ' + QByteArray::number(y) + ')';
        svg += "<g data-hotspot='CODICI#$#P" + QByteArray::number(i) + "' transform='" + posto +
               "' fill='#f4f4f0' stroke='#222' stroke-width='1.2'>";
        for (int k = 0; k < 30; ++k) {
            const QByteArray r = QByteArray::number(60 - k);
            svg += "<path d='M0 " + r + " C20 " + r + " 60 " + QByteArray::number(40 + k % 7) + " " + r +
                   " 0 S40 -" + r + " 0 -" + r + " S-60 -20 -" + r + " 0 S-20 " + r + " 0 " + r + "Z'/>";
        }
        for (int k = 0; k < 30; ++k)
            svg += "<path d='M" + QByteArray::number(-40 + k * 2) + " -20 l12 30' stroke-width='.5'/>";
        svg += "</g><g data-hotspot='" + QByteArray::number(i) + "' transform='" + posto +
               "' fill='none' stroke='black'><path d='M30 -30L62 -62'/><circle cx='74' cy='-72' r='15'/>"
               "<text x='74' y='-67' text-anchor='middle' fill='black' stroke='none'>" +
               QByteArray::number(i) + "</text></g>";
    }
    return svg + "</svg>";
}

QByteArray Palloni(int numero) {
    QByteArray svg =
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 3200 1800' font-family='DejaVu Sans' "
        "font-size='9'>";
    for (int i = 0; i < numero; ++i) {
        const QByteArray x = QByteArray::number(20 + i % 100 * 32), y = QByteArray::number(20 + i / 100 * 35);
        svg += "<g data-hotspot='" + QByteArray::number(i) + "'><circle cx='" + x + "' cy='" + y +
               "' r='12' fill='none' stroke='black'/><text x='" + x + "' y='" + y +
               "' text-anchor='middle'>" + QByteArray::number(i) + "</text></g>";
    }
    return svg + "</svg>";
}

/// A canvas of the measured size, as the screen has it.
struct Tela {
    Tela() {
        lavagna.resize(LARGHEZZA, ALTEZZA);
        lavagna.show();
        QApplication::processEvents();
    }
    void Attendi() {
        while (!lavagna.Aggiornata())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QApplication::processEvents();
    }
    void Carica(const QString& percorso) {
        lavagna.Carica_Layout(percorso, 0);
        Attendi();
        lavagna.viewport()->repaint();
    }
    void Muovi(QPointF dove) {
        QMouseEvent evento(QEvent::MouseMove, dove, lavagna.viewport()->mapToGlobal(dove), Qt::NoButton,
                           Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(lavagna.viewport(), &evento);
    }
    Lavagna_Widget lavagna;
};

// --- showing -----------------------------------------------------------------------------------

void show_bare(benchmark::State& state) {
    const QByteArray percorso = Scrivi("exploded.svg", Esploso(40)).toUtf8();
    const Vista_Pagina vista = [] {
        Vista_Pagina v;
        v.Imposta_Finestra({LARGHEZZA, ALTEZZA});
        v.Imposta_Pagina({1600, 900});
        return v;
    }();
    const int larghezza = static_cast<int>(1600 * vista.Scala()),
              altezza = static_cast<int>(900 * vista.Scala());
    for (auto _ : state) {
        RsvgHandle* handle = rsvg_handle_new_from_file(percorso.constData(), nullptr);
        Check(handle != nullptr, "rsvg_handle_new_from_file");
        cairo_surface_t* immagine = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, larghezza, altezza);
        cairo_t* cr = cairo_create(immagine);
        const RsvgRectangle dove{0, 0, double(larghezza), double(altezza)};
        Check(rsvg_handle_render_document(handle, cr, &dove, nullptr), "rsvg_handle_render_document");
        cairo_destroy(cr);
        cairo_surface_destroy(immagine);
        g_object_unref(handle);
    }
}

/// From the package to the first sharp picture on the screen.
void show_canvas(benchmark::State& state) {
    const QByteArray svg = Esploso(40);
    const QString pacchetto = Cartella().filePath("drawing.zip");
    if (!QFile::exists(pacchetto)) {
        Archivio_In_Scrittura archivio(pacchetto);
        archivio.Aggiungi("exploded.svg", svg);
        Check(archivio.Termina().isEmpty(), "packing");
    }
    Tela tela;
    for (auto _ : state) {
        QString estratto;
        const Archivio archivio(pacchetto);
        Check(archivio.Scompatta_Voce(archivio.Cerca_Voce("exploded.svg"), Cartella().path(), estratto) ==
                  ARCHIVIO_OK,
              "extraction");
        tela.lavagna.Carica_Layout(estratto, 0);
        while (!tela.lavagna.Nitida())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        tela.lavagna.viewport()->repaint();
        state.PauseTiming();
        tela.Attendi();
        tela.lavagna.Svuota();
        state.ResumeTiming();
    }
}
BENCHMARK(show_bare)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(show_canvas)->Unit(benchmark::kMillisecond)->UseRealTime();

// --- the mouse ---------------------------------------------------------------------------------

void hover_5000(benchmark::State& state) {
    Tela tela;
    tela.Carica(Scrivi("many.svg", Palloni(MOLTI)));
    int passo = 0, cambi = 0;
    tela.lavagna.Evento.Mouse_Su_HotSpot = [&](qint16, const QString&, const QString&) { ++cambi; };
    const auto avanti = [&] {
        passo = (passo + 7) % (LARGHEZZA * 40);
        tela.Muovi(QPointF(passo % LARGHEZZA, 20 + passo / LARGHEZZA * 26));
    };
    for (int i = 0; i < LARGHEZZA * 40; ++i)  // first touches
        avanti();
    for (auto _ : state)
        avanti();
    Check(cambi > MOLTI, "hovering");
}
BENCHMARK(hover_5000)->Unit(benchmark::kMicrosecond);

/// The slowest of 200 first touches.
void first_touch_5000(benchmark::State& state) {
    const QString percorso = Scrivi("many.svg", Palloni(MOLTI));
    for (auto _ : state) {
        Tela tela;
        tela.Carica(percorso);
        const Stato_Lavagna stato = tela.lavagna.Introspezione();
        tela.Muovi({1, 1});
        double lento = 0;
        for (size_t i = 0; i < 200; ++i) {
            QElapsedTimer tempo;
            tempo.start();
            tela.Muovi(stato.hotspot[i * 25].area.center());
            lento = std::max(lento, double(tempo.nsecsElapsed()) / 1e9);
        }
        state.SetIterationTime(lento);
    }
}
BENCHMARK(first_touch_5000)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(3);

// --- repainting --------------------------------------------------------------------------------

void repaint_scroll(benchmark::State& state) {
    Tela tela;
    tela.Carica(Scrivi("many.svg", Palloni(MOLTI)));
    for (int i = 0; i < CARRELLO; ++i)
        tela.lavagna.Colora_HotSpot(QString::number(i * 10), BLU);
    for (int i = 0; i < 4; ++i)
        tela.lavagna.Esegui("ZOOM_PIU", 1);
    tela.Attendi();
    tela.lavagna.viewport()->repaint();
    QScrollBar* barra = tela.lavagna.verticalScrollBar();
    int verso = 20;
    for (auto _ : state) {
        if (barra->value() + verso < 0 || barra->value() + verso > barra->maximum())
            verso = -verso;
        barra->setValue(barra->value() + verso);
        tela.lavagna.viewport()->repaint();
    }
}

void repaint_highlight(benchmark::State& state) {
    Tela tela;
    tela.Carica(Scrivi("exploded.svg", Esploso(40)));
    for (int i = 0; i < 40; ++i) {
        tela.lavagna.Segna_HotSpot("CODICI#$#P" + QString::number(i));
        tela.lavagna.Colora_HotSpot("CODICI#$#P" + QString::number(i), BLU);
    }
    tela.lavagna.viewport()->repaint();
    int passo = 0;
    for (auto _ : state) {
        tela.lavagna.Azzera_Evidenziazione("");
        tela.lavagna.Evidenzia_HotSpot("CODICI#$#P" + QString::number(++passo % 40), VERDE);
        tela.lavagna.viewport()->repaint();
    }
}
BENCHMARK(repaint_scroll)->Unit(benchmark::kMillisecond);
BENCHMARK(repaint_highlight)->Unit(benchmark::kMillisecond);

// --- the cart ----------------------------------------------------------------------------------

void silhouettes_500(benchmark::State& state) {
    const auto documento = Documento_Tavola::Da_Dati(Palloni(CARRELLO));
    for (auto _ : state) {
        state.PauseTiming();
        Mappa_HotSpot mappa(documento);
        mappa.Prepara();
        state.ResumeTiming();
        for (int i = 0; i < CARRELLO; ++i)
            benchmark::DoNotOptimize(mappa.Sagoma_Di(i).Vuota());
    }
}

void colour_500(benchmark::State& state) {
    Tela tela;
    const QString percorso = Scrivi("cart.svg", Palloni(CARRELLO));
    for (auto _ : state) {
        state.PauseTiming();
        tela.Carica(percorso);
        state.ResumeTiming();
        for (int i = 0; i < CARRELLO; ++i) {
            tela.lavagna.Segna_HotSpot(QString::number(i));
            tela.lavagna.Colora_HotSpot(QString::number(i), BLU);
        }
        tela.lavagna.viewport()->repaint();
    }
}
BENCHMARK(silhouettes_500)->Unit(benchmark::kMillisecond);
BENCHMARK(colour_500)->Unit(benchmark::kMillisecond);

// --- bounds that are times, not ratios ---------------------------------------------------------

void limit_1_ms(benchmark::State& state) {
    for (auto _ : state)
        state.SetIterationTime(1e-3);
}
void limit_16_ms(benchmark::State& state) {
    for (auto _ : state)
        state.SetIterationTime(16e-3);
}
BENCHMARK(limit_1_ms)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(limit_16_ms)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter({
        {"showing a drawing / bare rendering", "show_canvas", "show_bare", 1.3},
        {"hover over 5,000 hotspots / 1 ms", "hover_5000", "limit_1_ms", 1.0},
        {"slowest first touch of 200 / 16 ms", "first_touch_5000", "limit_16_ms", 1.0},
        {"repaint of a scroll step / 16 ms", "repaint_scroll", "limit_16_ms", 1.0},
        {"repaint of a highlight step / 16 ms", "repaint_highlight", "limit_16_ms", 1.0},
        {"colouring 500 cart lines / 500 silhouettes", "colour_500", "silhouettes_500", 1.2},
    });
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.Conclude() ? 0 : 1;
}

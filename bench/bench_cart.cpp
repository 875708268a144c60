// Filling and editing a cart of many lines of the sample, each beside the bare statements it can't do
// without.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QSet>
#include <QTemporaryDir>
#include <cstdio>

#include "core/base/testo.h"
#include "core/cart/modifica.h"
#include "core/package/class_progetto_aperto.h"
#include "gui/shell/form_main.h"
#include "plain_sqlite.h"
#include "ratios.h"

namespace {

constexpr int MANY = 500;
constexpr int HALF = 250;

/// Puts the sample's first parts into the cart.
void Pick(Class_Progetto_Aperto& project, int lines) {
    const Aggiunta_Carrello steps{project.DB, project.Numeri_, project.Filtri_Correnti(),
                                  project.Prodotti_Selezionati};
    Recordset rows =
        project.DB.Recordset_Tabella_Componenti_Web({}, project.Mercato, {}, project.Gruppo, {}, {});
    for (int n = 0; n < lines; rows.MoveNext()) {
        Check(!rows.EOF_(), "the sample's parts");
        const QString product = rows.Campo(u"Key_Prodotto").Testo();
        const QString code = rows.Campo(u"Codice_Componente").Testo();
        const QString reference = rows.Campo(u"Key_Riferimento").Testo();
        if (Cerca_Riga(project.Prodotti_Selezionati, product, Chiave_Elenco(reference, code)))
            continue;
        steps.Aggiungi_Componente_Carrello(product, code, reference);
        ++n;
    }
}

/// The sample with a cart of its first parts.
class Cart {
  public:
    explicit Cart(int lines) : project({desktop, desktop, desktop}) {
        Check(project.Apri_Progetto_TZF(QStringLiteral(SAMPLE_PACKAGE)) == 1, "opening");
        project.Traduzioni.Carica_Testi_Codificati(project.Lingua);
        Pick(project, lines);
    }
    ~Cart() { project.Elimina_Progetto_Aperto(); }

    Aggiunta_Carrello Steps() {
        return {project.DB, project.Numeri_, project.Filtri_Correnti(), project.Prodotti_Selezionati};
    }
    void Fill() {
        Visualizza_Griglia_Carello_Prodotto(project.Carrello([] { return true; }, [] {}), TUTTI_I_PRODOTTI,
                                            true, grid, tags);
        Check(grid.Visible, "filling");
    }

    Desktop desktop;
    Class_Progetto_Aperto project;
    Griglia grid;
    Tag_Griglia tags{1000};
};

void Fill(benchmark::State& state, int lines) {
    Cart cart(lines);
    for (auto _ : state)
        cart.Fill();
    state.counters["rows"] = cart.grid.Rows() - 1;
}
void fill_500(benchmark::State& state) {
    Fill(state, MANY);
}
void fill_250(benchmark::State& state) {
    Fill(state, HALF);
}
BENCHMARK(fill_500)->Unit(benchmark::kMillisecond);
BENCHMARK(fill_250)->Unit(benchmark::kMillisecond);

/// One letter typed into the quantity of the last line: the change and the fill that follows.
void quantity_change_500(benchmark::State& state) {
    Cart cart(MANY);
    const auto& products = cart.project.Prodotti_Selezionati;
    const Class_Prodotti_Selezionati& product = products.Item(products.Count());
    const Collection_Elenco& lines = product.Collection_Elenco_Selezionati();
    const QString line = lines.Item(lines.Count()).Key;
    bool more = false;
    for (auto _ : state) {
        more = !more;
        Check(Modifica_Quantita(cart.Steps(), product.Key, line, QString::number(more ? 2000 : 1000)),
              "the change");
        cart.Fill();
    }
}
BENCHMARK(quantity_change_500)->Unit(benchmark::kMillisecond);

void add_500(benchmark::State& state) {
    Cart cart(MANY);
    const Aggiunta_Carrello steps = cart.Steps();
    for (auto _ : state)
        for (const Class_Prodotti_Selezionati& product : cart.project.Prodotti_Selezionati)
            for (Class_Elenco& line : product.Collection_Elenco_Selezionati()) {
                line.Quantita = 0;
                steps.Aggiungi_Componente_Carrello(product.Key, line.Codice, line.Chiave_Grafica);
            }
}
BENCHMARK(add_500)->Unit(benchmark::kMillisecond);

// --- in the windows
// -------------------------------------------------------------------------

/// The viewer on the sample, with the drawing and the parts list of a product.
class Program {
  public:
    Program() {
        window.resize(1280, 800);
        screen.Apertura.Avvia(QStringLiteral(SAMPLE_PACKAGE));
        window.show();
        screen.Stato().Bottoni[KEY_DISEGNO].Pressed = true;
        screen.Consulta_Catalogo(false);
        screen.Albero.Clic_Nodo(QStringLiteral("P_1010"));
        while (!Canvas().Aggiornata())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        for (int r = 1; r < screen.Prodotto.Griglia_Distinta().Rows(); ++r)
            if (const QString name = screen.Prodotto.Griglia_Distinta().TextMatrix(r, 0);
                name != u"-" && !names.contains(name)) {
                rows.append(r);
                names.append(name);
            }
        Check(rows.size() > 10, "the sample's parts list");
    }
    ~Program() { window.close(); }
    Lavagna_Widget& Canvas() { return window.Tavola(); }
    void Click_Add(int row) { screen.Prodotto.Clic_Distinta(row, 1); }
    void Empty() {
        while (project.Prodotti_Selezionati.Count() > 0)
            project.Prodotti_Selezionati.Remove(1);
        for (const QString& name : names) {
            Canvas().Togli_Segno_HotSpot(name);
            Canvas().Decolora_HotSpot(name);
        }
        Canvas().viewport()->repaint();
    }

    Desktop desktop;
    Class_Progetto_Aperto project{{desktop, desktop, desktop}};
    Form_Main window{project, QString()};
    Schermo_Principale& screen = window.Schermo();
    QList<int> rows;    ///< of the parts list whose part is on the drawing
    QStringList names;  ///< their hotspots
};

/// Each part of a list, from the click on its cart to the blue on the screen.
void add_to_cart(benchmark::State& state) {
    Program p;
    for (auto _ : state) {
        state.PauseTiming();
        p.Empty();
        state.ResumeTiming();
        for (const int row : std::as_const(p.rows)) {
            p.Click_Add(row);
            p.Canvas().viewport()->repaint();
        }
    }
    Check(p.project.Prodotti_Selezionati.Item(1).Collection_Elenco_Selezionati().Count() == p.rows.size(),
          "adding");
}

/// The same hotspots coloured by the canvas alone.
void colour_one_by_one(benchmark::State& state) {
    Program p;
    for (auto _ : state) {
        state.PauseTiming();
        p.Empty();
        state.ResumeTiming();
        for (const QString& name : std::as_const(p.names)) {
            p.Canvas().Segna_HotSpot(name);
            p.Canvas().Colora_HotSpot(name, BLU);
            p.Canvas().viewport()->repaint();
        }
    }
}
BENCHMARK(add_to_cart)->Unit(benchmark::kMillisecond);
BENCHMARK(colour_one_by_one)->Unit(benchmark::kMillisecond);

/// One letter typed into a quantity on the order screen, until the screen shows it.
void quantity_change_window_500(benchmark::State& state) {
    Program p;
    Pick(p.project, MANY);
    p.screen.Stato().Bottoni[KEY_EVADI_ORDINE].Pressed = true;
    p.screen.Esegui_Comando(KEY_EVADI_ORDINE);
    QApplication::processEvents();
    auto* grid = p.window.findChild<Vista_Griglia*>(QStringLiteral("Griglia_Evadi"));
    auto* box = grid->findChild<QLineEdit*>(QStringLiteral("Text_Qta"));
    int column = 0;
    while (p.screen.Ordine.Carrello().Ordine().Colonne.at(static_cast<size_t>(column)).Genere !=
           Genere_Colonna::Qta)
        ++column;
    p.screen.Ordine.Carrello().Aziona_Cella(Faccia::Ordine, MANY / 2, column);
    Check(box->isVisible(), "editing");
    bool more = false;
    for (auto _ : state) {
        more = !more;
        box->selectAll();
        box->insert(QString::number(more ? 2000 : 1000));
        grid->viewport()->repaint();
    }
    Check(box->isVisible(), "editing");
}
BENCHMARK(quantity_change_window_500)->Unit(benchmark::kMillisecond);

void limit_100_ms(benchmark::State& state) {
    for (auto _ : state)
        state.SetIterationTime(0.1);
}
BENCHMARK(limit_100_ms)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

// --- bare baseline
// -------------------------------------------------------------------------------------------

/// The statements of a fill: the column model, each line's row, the discounts of each line that has one, each
/// linked part once, each product's name.
QStringList Statements(Cart& cart) {
    const QString quoted_line = QStringLiteral(
        "SELECT * FROM Componenti_Web WHERE ( Key_Prodotto='%1' ) AND (Key_Mercato LIKE '%/%5/%' OR "
        "Key_Mercato = '' OR "
        "Key_Mercato IS NULL ) AND (Key_Gruppo = '' OR Key_Gruppo IS NULL OR  Key_Gruppo LIKE '%/%6/%' ) AND "
        "(Key_Riferimento = '%2') AND ( Codice_Componente = '%3' ) ORDER BY Ordine ;");
    QStringList statements{
        QStringLiteral("SELECT * FROM Struttura_Componenti WHERE Visualizzato = 'YES' ORDER BY Ordine ;")};
    Class_Progetto_Aperto& project = cart.project;
    const auto sql = [](QString text) { return Apici_Raddoppiati(text); };
    QSet<QString> linked;
    for (const Class_Prodotti_Selezionati& product : project.Prodotti_Selezionati) {
        statements +=
            QStringLiteral("SELECT Testo_Visualizzato_%1 FROM Albero_Web WHERE Key_Prodotto = '%2';")
                .arg(project.Lingua, product.Key);
        for (const Class_Elenco& line : product.Collection_Elenco_Selezionati()) {
            QString text = quoted_line;
            text.replace(QStringLiteral("%1"), product.Key)
                .replace(QStringLiteral("%2"), sql(line.Riferimento))
                .replace(QStringLiteral("%3"), sql(line.Codice))
                .replace(QStringLiteral("%5"), project.Mercato)
                .replace(QStringLiteral("%6"), Estrai_Token_Barra(project.Gruppo, 2));
            statements += text;
            const Recordset row = project.DB.Recordset_Tabella_Componenti(sql(line.Codice), {});
            if (!row.EOF_() && !row.Campo(u"Campo14").E_Nullo())
                statements += QStringLiteral("SELECT * FROM Sconti ORDER BY Ordine ;");
            for (const QString& entry : Token(line.Lista_Memo, u"/"))
                linked += Codice_Da_Memo(entry);
        }
    }
    for (const QString& code : linked)
        statements += QStringLiteral("SELECT * FROM Componenti WHERE Campo01 = '%1' ;").arg(sql(code));
    return statements;
}

void fill_bare_500(benchmark::State& state) {
    Cart cart(MANY);
    cart.Fill();
    const QStringList statements = Statements(cart);
    sqlite3* db = Open(cart.project.Percorso_Database);
    int rows = 0;
    for (auto _ : state)
        for (const QString& statement : statements)
            rows += Read(db, statement.toUtf8());
    Check(rows > 0, "reading");
    state.counters["statements"] = static_cast<double>(statements.size());
    sqlite3_close(db);
}
BENCHMARK(fill_bare_500)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter({
        {"cart of 500 lines / bare SELECTs", "fill_500", "fill_bare_500", 3.0},
        {"cart of 500 lines / of 250 lines", "fill_500", "fill_250", 2.3},
        {"one quantity change in 500 lines / one fill", "quantity_change_500", "fill_500", 1.5},
        {"the same on the screen / one fill", "quantity_change_window_500", "fill_500", 1.5},
        {"the same on the screen / 100 ms", "quantity_change_window_500", "limit_100_ms", 1.0},
        {"adding parts, to the blue / colouring them", "add_to_cart", "colour_one_by_one", 2.0},
    });
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.Conclude() ? 0 : 1;
}

// Opening, walking and reading a large generated catalogue, each beside the bare work it can't do without.

#include <benchmark/benchmark.h>
#include <zip.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

#include "core/package/class_progetto_aperto.h"
#include "core/parts_tables/distinta.h"
#include "plain_sqlite.h"
#include "ratios.h"

namespace {

struct Size {
    int nodes, rows, products;
    QString Name() const { return QStringLiteral("n%1_r%2_p%3.TZF").arg(nodes).arg(rows).arg(products); }
};
constexpr Size LARGE{100000, 1000000, 40000};
constexpr Size HALF_TREE{50000, 10000, 20000};
constexpr Size FEW_ROWS{100000, 10000, 400};

QString folder;

QString Package(const Size& size) {
    const QString path = folder + '/' + size.Name();
    if (!QFileInfo::exists(path)) {
        std::fprintf(stderr, "generating %s ...\n", qPrintable(size.Name()));
        const int status = QProcess::execute(
            TZF_PROGRAM, {"generate", path, "--nodes", QString::number(size.nodes), "--rows",
                          QString::number(size.rows), "--products", QString::number(size.products)});
        if (status != 0)
            std::exit(1);
    }
    return path;
}

class Catalogue {
  public:
    explicit Catalogue(const Size& size, bool open = true)
        : package(Package(size)), project({desktop, desktop, desktop}) {
        if (open && project.Apri_Progetto_TZF(package) != 1)
            std::exit(1);
    }
    ~Catalogue() { project.Elimina_Progetto_Aperto(); }

    /// The key of the n-th product that has parts, in the order of the parts table.
    QString Product(int n) {
        Recordset rows = project.DB.Apri_Recordset(
            QStringLiteral("SELECT DISTINCT Key_Prodotto FROM Componenti_Web ORDER BY Key_Prodotto;"));
        for (int i = 0; i < n && !rows.EOF_(); ++i)
            rows.MoveNext();
        return rows.Campo(0).Testo();
    }

    Desktop desktop;
    QString package;
    Class_Progetto_Aperto project;
};

// --- bare baselines
// ----------------------------------------------------------------------------------------------------

/// libzip extraction of the database into `target`, in large blocks.
void Extract(const QString& package, const QString& target) {
    int error = 0;
    zip_t* archive = zip_open(QFile::encodeName(package), ZIP_RDONLY, &error);
    Check(archive != nullptr, "zip_open");
    zip_set_default_password(archive, PASSWORD_PACCHETTO);
    zip_file_t* entry = zip_fopen(archive, NOME_DATABASE.toUtf8(), 0);
    Check(entry != nullptr, "zip_fopen");
    QFile file(target);
    Check(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered), "open");
    std::vector<char> block(256 * 1024);
    for (zip_int64_t n; (n = zip_fread(entry, block.data(), block.size())) > 0;)
        file.write(block.data(), n);
    zip_fclose(entry);
    zip_discard(archive);
}

void open_bare(benchmark::State& state) {
    const QString package = Package(LARGE);
    Desktop desktop;
    const QString target = desktop.Cartella_Temporanea() + NOME_DATABASE;
    for (auto _ : state) {
        Extract(package, target);
        sqlite3* db = Open(target);
        Read(db, "SELECT * FROM Albero_Web ORDER BY Profondita_nodo ASC,Ordine ASC ;");
        sqlite3_close(db);
        state.PauseTiming();
        QFile::remove(target);
        state.ResumeTiming();
    }
}
BENCHMARK(open_bare)->Unit(benchmark::kMillisecond);

void open_viewer(benchmark::State& state) {
    Catalogue catalogue(LARGE, false);
    for (auto _ : state) {
        Check(catalogue.project.Apri_Progetto_TZF(catalogue.package) == 1, "opening");
        state.PauseTiming();
        Check(catalogue.project.Albero.Count() >= LARGE.nodes, "tree model");
        catalogue.project.Elimina_Progetto_Aperto();
        state.ResumeTiming();
    }
}
BENCHMARK(open_viewer)->Unit(benchmark::kMillisecond);

// --- the visible tree
// --------------------------------------------------------------------------------------------------

void Visible_Tree(benchmark::State& state, const Size& size) {
    Catalogue catalogue(size);
    for (auto _ : state)
        catalogue.project.Crea_Albero_Da_Struttura({});
    state.counters["nodes"] = static_cast<double>(catalogue.project.Tree1.Count());
}
void visible_tree_100000(benchmark::State& state) {
    Visible_Tree(state, LARGE);
}
void visible_tree_50000(benchmark::State& state) {
    Visible_Tree(state, HALF_TREE);
}
BENCHMARK(visible_tree_100000)->Unit(benchmark::kMillisecond);
BENCHMARK(visible_tree_50000)->Unit(benchmark::kMillisecond);

/// What opening does for the tree: the model, then the visible tree from it.
void first_tree_build(benchmark::State& state) {
    Catalogue catalogue(LARGE);
    Class_Progetto_Aperto& project = catalogue.project;
    for (auto _ : state) {
        state.PauseTiming();
        project.Albero.Svuota();
        project.Tree1.Clear();
        state.ResumeTiming();
        Carica_Struttura_Albero_Web(project.DB, project.Lingua, project.Albero);
        project.Crea_Albero_Da_Struttura({});
    }
}
BENCHMARK(first_tree_build)->Unit(benchmark::kMillisecond);

/// A switch of language and market on an open catalogue: model and visible tree made again.
void switch_language(benchmark::State& state) {
    Catalogue catalogue(LARGE);
    Class_Progetto_Aperto& project = catalogue.project;
    project.Crea_Albero_Da_Struttura({});
    bool second = false;
    for (auto _ : state) {
        second = !second;
        project.Lingua = project.Mercato = QString::number(second ? 2 : 1);
        Carica_Struttura_Albero_Web(project.DB, project.Lingua, project.Albero);
        project.Crea_Albero_Da_Struttura({});
    }
}
BENCHMARK(switch_language)->Unit(benchmark::kMillisecond);

// --- parts lists
// -------------------------------------------------------------------------------------------------------

constexpr int PRODUCTS_READ = 50;

std::vector<QString> Products(Catalogue& catalogue) {
    std::vector<QString> keys;
    for (int i = 0; i < PRODUCTS_READ; ++i)
        keys.push_back(catalogue.Product(i * 7));
    return keys;
}

void Fill(benchmark::State& state, const Size& size) {
    Catalogue catalogue(size);
    Class_Progetto_Aperto& project = catalogue.project;
    const auto products = Products(catalogue);
    const Contesto_Griglia context = project.Griglie([] { return true; }, [] {});
    Griglia grid;
    Tag_Griglia tags(1000);
    qint64 rows = 0;
    for (auto _ : state)
        for (const QString& product : products) {
            Visualizza_Griglia_Distinta_Prodotto(context, product, {}, true, grid, tags, true);
            rows += grid.Rows() - 1;
            Check(grid.Visible, "filling");
        }
    state.counters["rows"] = static_cast<double>(rows) / static_cast<double>(state.iterations());
}
void fill_at_1000000_rows(benchmark::State& state) {
    Fill(state, LARGE);
}
void fill_at_10000_rows(benchmark::State& state) {
    Fill(state, FEW_ROWS);
}
BENCHMARK(fill_at_1000000_rows)->Unit(benchmark::kMillisecond);
BENCHMARK(fill_at_10000_rows)->Unit(benchmark::kMillisecond);

void fill_bare(benchmark::State& state) {
    Catalogue catalogue(LARGE);
    const auto products = Products(catalogue);
    sqlite3* db = Open(catalogue.project.Percorso_Database);
    qint64 rows = 0;
    for (auto _ : state)
        for (const QString& product : products)
            rows += Read(db, "SELECT * FROM Componenti_Web WHERE Key_Prodotto='" + product.toUtf8() +
                                 "' ORDER BY Ordine ;");
    state.counters["rows"] = static_cast<double>(rows) / static_cast<double>(state.iterations());
    sqlite3_close(db);
}
BENCHMARK(fill_bare)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath() + "/bench_catalogues";
    QDir().mkpath(folder);
    RatioReporter reporter({
        {"opening / extraction + bare reading of the tree", "open_viewer", "open_bare", 1.5},
        {"visible tree, 100,000 nodes / 50,000 nodes", "visible_tree_100000", "visible_tree_50000", 2.3},
        {"switch of language and market / first tree build", "switch_language", "first_tree_build", 1.0},
        {"parts list / bare indexed SELECT of its rows", "fill_at_1000000_rows", "fill_bare", 5.0},
        {"parts list at 1,000,000 rows / at 10,000 rows", "fill_at_1000000_rows", "fill_at_10000_rows", 1.5},
    });
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.Conclude() ? 0 : 1;
}

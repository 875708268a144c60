// Filling and editing a cart of many lines of the sample, each beside the bare statements it can't do
// without.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QCoreApplication>
#include <QSet>
#include <QTemporaryDir>
#include <cstdio>

#include "core/base/testo.h"
#include "core/cart/modifica.h"
#include "core/package/class_progetto_aperto.h"
#include "ratios.h"

namespace {

constexpr int MANY = 500;
constexpr int HALF = 250;

/// A desktop that does nothing: the benchmarks measure the system's own work.
class Desktop : public Impostazioni, public Messaggi, public Sistema {
  public:
    QString Leggi(const QString&, const QString&, const QString&, const QString& predefinito) const override {
        return predefinito;
    }
    void Scrivi(const QString&, const QString&, const QString&, const QString&) override {}
    void Mostra(const QString& testo, Icona) override {
        std::fprintf(stderr, "message: %s\n", qPrintable(testo));
        std::exit(1);
    }
    bool Chiedi(const QString&) override { return false; }
    QString Cartella_Temporanea() const override { return folder.path() + '/'; }
    void Apri_Con_Predefinito(const QString&) override {}
    void Esegui_Eventi() override {}
    QChar Separatore_Decimale() const override { return '.'; }

    QTemporaryDir folder;
};

void Check(bool good, const char* what) {
    if (!good) {
        std::fprintf(stderr, "%s failed\n", what);
        std::exit(1);
    }
}

/// The sample with a cart of its first parts.
class Cart {
  public:
    explicit Cart(int lines) : project({desktop, desktop, desktop}) {
        Check(project.Apri_Progetto_TZF(QStringLiteral(SAMPLE_PACKAGE)) == 1, "opening");
        project.Traduzioni.Carica_Testi_Codificati(project.Lingua);
        Recordset rows =
            project.DB.Recordset_Tabella_Componenti_Web({}, project.Mercato, {}, project.Gruppo, {}, {});
        for (int n = 0; n < lines; rows.MoveNext()) {
            Check(!rows.EOF_(), "the sample's parts");
            const QString product = rows.Campo(u"Key_Prodotto").Testo();
            const QString code = rows.Campo(u"Codice_Componente").Testo();
            const QString reference = rows.Campo(u"Key_Riferimento").Testo();
            if (Cerca_Riga(project.Prodotti_Selezionati, product, Chiave_Elenco(reference, code)))
                continue;
            Steps().Aggiungi_Componente_Carrello(product, code, reference);
            ++n;
        }
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

// --- bare baseline
// -------------------------------------------------------------------------------------------

/// Runs a statement on plain SQLite and reads every field as text.
int Read(sqlite3* db, const QString& sql) {
    const QByteArray text = sql.toUtf8();
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(db, text, -1, &statement, nullptr) == SQLITE_OK, "prepare");
    int rows = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int i = 0; i < sqlite3_column_count(statement); ++i)
            benchmark::DoNotOptimize(sqlite3_column_text(statement, i));
        ++rows;
    }
    sqlite3_finalize(statement);
    return rows;
}

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
    sqlite3* db = nullptr;
    Check(sqlite3_open_v2(cart.project.Percorso_Database.toUtf8(), &db, SQLITE_OPEN_READONLY, nullptr) ==
              SQLITE_OK,
          "sqlite3_open");
    int rows = 0;
    for (auto _ : state)
        for (const QString& statement : statements)
            rows += Read(db, statement);
    Check(rows > 0, "reading");
    state.counters["statements"] = static_cast<double>(statements.size());
    sqlite3_close(db);
}
BENCHMARK(fill_bare_500)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter({
        {"cart of 500 lines / bare SELECTs", "fill_500", "fill_bare_500", 3.0},
        {"cart of 500 lines / of 250 lines", "fill_500", "fill_250", 2.3},
        {"one quantity change in 500 lines / one fill", "quantity_change_500", "fill_500", 1.5},
    });
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.Conclude() ? 0 : 1;
}

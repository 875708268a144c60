#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include "support/catalogo_di_prova.h"

namespace {

using testing::HasSubstr;

struct Outcome {
    int code = -1;
    QByteArray out, err;

    QJsonArray array() const { return QJsonDocument::fromJson(out).array(); }
    QJsonObject object() const { return QJsonDocument::fromJson(out).object(); }
};

/// The program itself, with a temporary folder that shows what it leaves behind.
class Tool : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(folder.path()).mkdir("tmp"));
        Catalogo_Di_Prova c;
        c.Riga("Gruppi_Utenti", {{"Key_Gruppo", "A"}});
        c.Nodo("G_1", "R", "Motore").Prodotto("P_1", "G_1", "Cilindro", {{"Key_Mercato", "/1/"}});
        c.Prodotto("X_2", "R", "Attrezzo \"speciale\"")
            .Nodo("G_9", "R", "Riservato", {{"Key_Gruppo", "/A/"}});
        c.Riga("Matricola_Nodo",
               {{"Key_Prodotto", "P_1"}, {"Min_Matricola", "100"}, {"Max_Matricola", "200"}});
        c.Parte("P_1", "1", "A1", "Vite", {{"Campo03", "1.5"}}).Parte("P_1", "2", "A2", "Dado");
        c.Cambia("Albero_Web", 2, "Testo_Visualizzato_2", "Engine");
        package = c.File("a.svg", "<svg/>").Pacchetto(folder.path());
    }
    void TearDown() override {
        EXPECT_TRUE(QDir(folder.filePath("tmp")).isEmpty()) << "something is left behind";
    }

    Outcome run(const QStringList& arguments) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", folder.filePath("tmp"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(TZF_PROGRAM, arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};  // QProcess wants one
    QTemporaryDir folder;
    QString package;
};

TEST_F(Tool, ExitCodesTellUseAndWorkApart) {
    const struct {
        QStringList arguments;
        int code;
    } cases[] = {{{}, 2},
                 {{"nothing"}, 2},
                 {{"--nothing"}, 2},
                 {{"pack"}, 2},
                 {{"list"}, 2},
                 {{"list", ""}, 2},
                 {{"list", package, package}, 2},
                 {{"list", "--nothing", package}, 2},
                 {{"unpack", package}, 2},
                 {{"tree", package, "--lingua", "x"}, 2},
                 {{"tree", package, "--lingua"}, 2},
                 {{"generate", "x.TZF", "--nodes", "10"}, 2},
                 {{"generate", "x.TZF", "--nodes", "4", "--rows", "1", "--products", "4"}, 2},
                 {{"list", "missing.TZF"}, 1},
                 {{"info", "missing.TZF"}, 1},
                 {{"check", "missing.TZF"}, 1},
                 {{"tree", "missing.TZF"}, 1},
                 {{"pack", "missing", "x.TZF"}, 1},
                 {{"unpack", "missing.TZF", "d"}, 1},
                 {{"parts", package, "P_NO"}, 1},
                 {{"tree", package, "--mercato", "9"}, 1},
                 {{"list", package}, 0},
                 {{"check", package}, 0},
                 {{"--help"}, 0},
                 {{"--version"}, 0}};
    for (const auto& [arguments, code] : cases) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.code, code) << arguments.join(' ').toStdString() << outcome.err.constData();
        EXPECT_EQ(outcome.err.isEmpty(), code == 0) << arguments.join(' ').toStdString();
        if (code != 0) {
            EXPECT_EQ(outcome.out, "") << arguments.join(' ').toStdString();
        }
    }
}

TEST_F(Tool, EveryCommandHasHelp) {
    const Outcome help = run({"--help"});
    for (const char* command : {"pack", "unpack", "list", "check", "info", "tree", "parts", "generate"}) {
        EXPECT_THAT(help.out.toStdString(), HasSubstr(std::string("  ") + command + " "));
        const Outcome own = run({command, "--help"});
        EXPECT_EQ(own.code, 0);
        EXPECT_THAT(own.out.toStdString(), HasSubstr(std::string("Usage: tzf ") + command));
    }
}

TEST_F(Tool, ListAsJson) {
    const QJsonArray entries = run({"list", package, "--json"}).array();
    ASSERT_EQ(entries.size(), 2);
    const QJsonObject entry = entries[1].toObject();
    EXPECT_EQ(entry.keys(), QStringList({"compressed", "encrypted", "name", "size"}));
    EXPECT_EQ(entry["name"], "a.svg");
    EXPECT_EQ(entry["size"], 6);
    EXPECT_EQ(entry["encrypted"], true);
}

TEST_F(Tool, InfoAsJson) {
    const QJsonObject info = run({"info", package, "--json"}).object();
    EXPECT_EQ(info["system"].toObject()["VERSIONE"], "4.3");
    ASSERT_EQ(info["languages"].toArray().size(), 3);
    const QJsonObject language = info["languages"].toArray()[1].toObject();
    EXPECT_EQ(language["id"], 2);
    EXPECT_EQ(language["key"], "UK");
    EXPECT_EQ(language["active_language"], true);
}

QStringList keysOf(const QJsonArray& nodes) {
    QStringList keys;
    for (const QJsonValue& node : nodes)
        keys << node.toObject()["key"].toString();
    return keys;
}

TEST_F(Tool, TreeAsJsonUnderEveryFilter) {
    QJsonArray nodes = run({"tree", package, "--json"}).array();
    EXPECT_EQ(keysOf(nodes), QStringList({"G_1", "P_1", "X_2", "G_9"}));
    const QJsonObject expected{{"key", "P_1"},  {"parent", "G_1"},   {"text", "Cilindro"}, {"image", 3},
                               {"bold", false}, {"expanded", false}, {"selected", false}};
    EXPECT_EQ(nodes[1].toObject(), expected);

    EXPECT_EQ(keysOf(run({"tree", package, "--json", "--mercato", "2"}).array()),
              QStringList({"G_1", "X_2", "G_9"}));
    EXPECT_EQ(keysOf(run({"tree", package, "--json", "--gruppo", "/B/"}).array()),
              QStringList({"G_1", "P_1", "X_2"}));
    nodes = run({"tree", package, "--json", "--lingua", "2"}).array();
    EXPECT_EQ(nodes[0].toObject()["text"], "Engine");
    EXPECT_EQ(nodes[0].toObject()["parent"], "");

    nodes = run({"tree", package, "--json", "--matricola", "150"}).array();
    EXPECT_EQ(nodes[1].toObject()["bold"], true);
    EXPECT_EQ(nodes[1].toObject()["selected"], true);
    EXPECT_EQ(nodes[0].toObject()["bold"], false);
    EXPECT_EQ(run({"tree", package, "--json", "--matricola", "it's"}).array()[1].toObject()["bold"], false);
}

TEST_F(Tool, TreeShowsTheStateAfterOpening) {
    Catalogo_Di_Prova c;
    c.Nodo("G_1", "R", "a").Nodo("G_2", "G_1", "b").Nodo("G_3", "G_2", "c");
    c.Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "G_2").Sistema("IMPOSTAZIONE_ESPANDI_NODO_ALBERO", "SI");
    const auto expanded = [&](const QString& path) {
        QList<bool> result;
        for (const QJsonValue& node : run({"tree", path, "--json"}).array())
            result << node.toObject()["expanded"].toBool();
        return result;
    };
    const QString some = c.Pacchetto(folder.path(), "home.TZF");
    EXPECT_EQ(expanded(some), QList<bool>({true, true, false}));
    EXPECT_EQ(run({"tree", some, "--json"}).array()[1].toObject()["selected"], true);
    c.Sistema("IMPOSTAZIONE_ESPANDI_ALBERO", "SI");
    EXPECT_EQ(expanded(c.Pacchetto(folder.path(), "all.TZF")), QList<bool>({true, true, true}));
}

TEST_F(Tool, PartsAsJson) {
    const QJsonObject parts = run({"parts", package, "P_1", "--json", "--lingua", "2"}).object();
    EXPECT_EQ(parts["visible"], true);
    const QJsonArray columns = parts["columns"].toArray();
    ASSERT_EQ(columns.size(), 5);
    EXPECT_EQ(columns[2].toObject(),
              (QJsonObject{{"title", "Code"}, {"kind", "String [255 car.]"}, {"size", "15"}}));
    ASSERT_EQ(parts["rows"].toArray().size(), 2);
    const QJsonObject row = parts["rows"].toArray()[0].toObject();
    ASSERT_EQ(row["cells"].toArray().size(), 5);
    EXPECT_EQ(row["cells"].toArray()[0], "1");
    EXPECT_EQ(row["cells"].toArray()[3], "Vite");
    EXPECT_EQ(row["tags"].toArray()[1], "Add_Componente|A1|P_1|1");

    const QJsonObject none = run({"parts", package, "X_2", "--json"}).object();
    EXPECT_EQ(none["visible"], false);
    EXPECT_EQ(none["rows"].toArray().size(), 0);
    EXPECT_THAT(run({"parts", package, "P_1"}).out.toStdString(), HasSubstr("Vite"));
}

TEST_F(Tool, CheckAsJsonAndItsExitCode) {
    const QString faulty = Catalogo_Di_Prova().Sistema("NOTHING", "1").Pacchetto(folder.path(), "f.TZF");
    const Outcome outcome = run({"check", faulty, "--json"});
    EXPECT_EQ(outcome.code, 1);
    ASSERT_EQ(outcome.array().size(), 1);
    const QJsonObject finding = outcome.array()[0].toObject();
    EXPECT_EQ(finding["severity"], "error");
    EXPECT_EQ(finding["table"], "SYSTEM");
    EXPECT_EQ(finding["row"], 4);
    EXPECT_THAT(finding["message"].toString().toStdString(), HasSubstr("NOTHING"));
    EXPECT_THAT(run({"check", faulty}).out.toStdString(), testing::StartsWith("error: SYSTEM row 4, KEY: "));

    const QString doubtful = Catalogo_Di_Prova().Rimuovi_Tabella("Sconti").Pacchetto(folder.path(), "w.TZF");
    EXPECT_EQ(run({"check", doubtful}).code, 0);
    EXPECT_EQ(run({"check", package, "--json"}).out.trimmed(), "[\n]");
}

TEST_F(Tool, PackUsesTheNameOfTheSourceWhenNoneIsGiven) {
    Catalogo_Di_Prova().Sorgente(folder.filePath("source"));
    QFile::remove(package);
    EXPECT_EQ(run({"pack", "source"}).code, 0);
    EXPECT_TRUE(QFile::exists(folder.filePath("prova.TZF")));
    EXPECT_EQ(run({"unpack", "prova.TZF", "source"}).code, 1);
    EXPECT_EQ(run({"unpack", "prova.TZF", "source", "--force"}).code, 0);
}

TEST_F(Tool, BadPackagesAreMessagesAndNoMore) {
    QFile whole(package);
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    const std::pair<const char*, QByteArray> cases[] = {
        {"empty.TZF", ""},
        {"text.TZF", "not a zip"},
        {"half.TZF", bytes.left(bytes.size() / 2)},
        {"changed.TZF", QByteArray(bytes).replace(200, 100, QByteArray(100, 'x'))}};
    for (const auto& [file_name, content] : cases) {
        QFile file(folder.filePath(file_name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        for (const QStringList& arguments :
             {QStringList{"info", file_name}, QStringList{"tree", file_name}, QStringList{"check", file_name},
              QStringList{"unpack", file_name, "d"}}) {
            const Outcome outcome = run(arguments);
            EXPECT_EQ(outcome.code, 1) << arguments.join(' ').toStdString();
            EXPECT_FALSE(outcome.err.isEmpty()) << arguments.join(' ').toStdString();
        }
    }
}

}  // namespace

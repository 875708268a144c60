#include "support/catalogo_di_prova.h"
#include "tool.h"

namespace {

using testing::HasSubstr;

class Commands : public Tool {
  protected:
    void SetUp() override {
        Tool::SetUp();
        Catalogo_Di_Prova c;
        c.Riga("Gruppi_Utenti", {{"Key_Gruppo", "5"}});
        c.Nodo("G_1", "R", "Motore").Prodotto("P_1", "G_1", "Cilindro", {{"Key_Mercato", "/1/"}});
        c.Prodotto("X_2", "R", "Attrezzo \"speciale\"")
            .Nodo("G_9", "R", "Riservato", {{"Key_Gruppo", "/5/"}});
        c.Riga("Matricola_Nodo",
               {{"Key_Prodotto", "P_1"}, {"Min_Matricola", "100"}, {"Max_Matricola", "200"}});
        c.Parte("P_1", "1", "A1", "Vite", {{"Campo03", "1.5"}}).Parte("P_1", "2", "A2", "Dado");
        c.Cambia("Albero_Web", 2, "Testo_Visualizzato_2", "Engine");
        package = c.File("a.svg", "<svg/>").Pacchetto(folder.path());
    }
    QJsonArray tree(const QStringList& filter = {}) const {
        return run(QStringList{"tree", package, "--json"} + filter).array();
    }
    QString package;
};

TEST_F(Commands, ExitCodesTellUseAndWorkApart) {
    const std::pair<int, const char*> cases[] = {
        {2, "|nothing|--nothing|pack|list|list |list PACKAGE PACKAGE|list --nothing PACKAGE|unpack PACKAGE"},
        {2, "tree PACKAGE --lingua x|tree PACKAGE --lingua|generate x.TZF --nodes 10"},
        {2, "generate x.TZF --nodes 4 --rows 1 --products 4"},
        {1, "list missing.TZF|info missing.TZF|check missing.TZF|tree missing.TZF|pack missing x.TZF"},
        {1, "unpack missing.TZF d|parts PACKAGE P_NO|tree PACKAGE --mercato 9"},
        {0, "list PACKAGE|check PACKAGE|--help|--version"}};
    for (const auto& [code, commands] : cases)
        for (const QString& command : QString(commands).split('|')) {
            SCOPED_TRACE("tzf " + command.toStdString());
            QStringList arguments = command.isEmpty() ? QStringList() : command.split(' ');
            const Outcome outcome = run(arguments.replaceInStrings("PACKAGE", package));
            EXPECT_EQ(outcome.code, code) << outcome.err.constData();
            EXPECT_EQ(outcome.err.isEmpty(), code == 0);
            EXPECT_TRUE(outcome.out.isEmpty() || code == 0);
        }
}

TEST_F(Commands, EveryCommandHasHelp) {
    const Outcome help = run({"--help"});
    for (const char* command : {"pack", "unpack", "list", "check", "info", "tree", "parts", "generate"}) {
        EXPECT_THAT(help.out.toStdString(), HasSubstr(std::string("  ") + command + " "));
        const Outcome own = run({command, "--help"});
        EXPECT_EQ(own.code, 0);
        EXPECT_THAT(own.out.toStdString(), HasSubstr(std::string("Usage: tzf ") + command));
    }
}

TEST_F(Commands, ListAsJson) {
    const QJsonArray entries = run({"list", package, "--json"}).array();
    ASSERT_EQ(entries.size(), 2);
    const QJsonObject entry = entries[1].toObject();
    EXPECT_EQ(entry.keys(), QStringList({"compressed", "encrypted", "name", "size"}));
    EXPECT_EQ(entry["name"], "a.svg");
    EXPECT_EQ(entry["size"], 6);
    EXPECT_EQ(entry["encrypted"], true);
}

TEST_F(Commands, InfoAsJson) {
    const QJsonObject info = run({"info", package, "--json"}).object();
    EXPECT_EQ(info["system"]["VERSIONE"], "4.3");
    ASSERT_EQ(info["languages"].toArray().size(), 3);
    const QJsonValue language = info["languages"][1];
    EXPECT_EQ(language["id"], 2);
    EXPECT_EQ(language["key"], "UK");
    EXPECT_EQ(language["active_language"], true);
}

QString keysOf(const QJsonArray& nodes) {
    QStringList keys;
    for (const QJsonValue& node : nodes)
        keys << node["key"].toString();
    return keys.join(' ');
}

TEST_F(Commands, TreeAsJsonUnderEveryFilter) {
    EXPECT_EQ(keysOf(tree()), "G_1 P_1 X_2 G_9");
    const QJsonObject expected{{"key", "P_1"},  {"parent", "G_1"},   {"text", "Cilindro"}, {"image", 3},
                               {"bold", false}, {"expanded", false}, {"selected", false}};
    EXPECT_EQ(tree()[1].toObject(), expected);
    EXPECT_EQ(keysOf(tree({"--mercato", "2"})), "G_1 X_2 G_9");
    EXPECT_EQ(keysOf(tree({"--gruppo", "/B/"})), "G_1 P_1 X_2");
    const QJsonValue engine = tree({"--lingua", "2"})[0];
    EXPECT_EQ(engine["text"], "Engine");
    EXPECT_EQ(engine["parent"], "");
    const QJsonArray nodes = tree({"--matricola", "150"});
    EXPECT_EQ(nodes[1]["bold"], true);
    EXPECT_EQ(nodes[1]["selected"], true);
    EXPECT_EQ(nodes[0]["bold"], false);
    EXPECT_EQ(tree({"--matricola", "it's"}).at(1)["bold"], false);
}

TEST_F(Commands, TreeShowsTheStateAfterOpening) {
    Catalogo_Di_Prova c;
    c.Nodo("G_1", "R", "a").Nodo("G_2", "G_1", "b").Nodo("G_3", "G_2", "c");
    c.Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "G_2").Sistema("IMPOSTAZIONE_ESPANDI_NODO_ALBERO", "SI");
    const auto expanded = [this] {
        QList<bool> result;
        for (const QJsonValue& node : tree())
            result << node["expanded"].toBool();
        return result;
    };
    package = c.Pacchetto(folder.path(), "home.TZF");
    EXPECT_EQ(expanded(), QList<bool>({true, true, false}));
    EXPECT_EQ(tree().at(1)["selected"], true);
    package = c.Sistema("IMPOSTAZIONE_ESPANDI_ALBERO", "SI").Pacchetto(folder.path(), "all.TZF");
    EXPECT_EQ(expanded(), QList<bool>({true, true, true}));
}

TEST_F(Commands, PartsAsJson) {
    const QJsonObject parts = run({"parts", package, "P_1", "--json", "--lingua", "2"}).object();
    EXPECT_EQ(parts["visible"], true);
    ASSERT_EQ(parts["columns"].toArray().size(), 5);
    EXPECT_EQ(parts["columns"][2].toObject(),
              (QJsonObject{{"title", "Code"}, {"kind", "String [255 car.]"}, {"size", "15"}}));
    ASSERT_EQ(parts["rows"].toArray().size(), 2);
    const QJsonValue row = parts["rows"][0];
    ASSERT_EQ(row["cells"].toArray().size(), 5);
    EXPECT_EQ(row["cells"][0], "1");
    EXPECT_EQ(row["cells"][3], "Vite");
    EXPECT_EQ(row["tags"][1], "Add_Componente|A1|P_1|1");

    const QJsonObject none = run({"parts", package, "X_2", "--json"}).object();
    EXPECT_EQ(none["visible"], false);
    EXPECT_EQ(none["rows"].toArray().size(), 0);
    EXPECT_THAT(run({"parts", package, "P_1"}).out.toStdString(), HasSubstr("Vite"));
}

TEST_F(Commands, CheckAsJsonAndItsExitCode) {
    const QString faulty = Catalogo_Di_Prova().Sistema("NOTHING", "1").Pacchetto(folder.path(), "f.TZF");
    const Outcome outcome = run({"check", faulty, "--json"});
    EXPECT_EQ(outcome.code, 1);
    ASSERT_EQ(outcome.array().size(), 1);
    const QJsonValue finding = outcome.array()[0];
    EXPECT_EQ(finding["severity"], "error");
    EXPECT_EQ(finding["table"], "SYSTEM");
    EXPECT_EQ(finding["row"], 4);
    EXPECT_THAT(finding["message"].toString().toStdString(), HasSubstr("NOTHING"));
    EXPECT_THAT(run({"check", faulty}).out.toStdString(), testing::StartsWith("error: SYSTEM row 4, KEY: "));

    const QString doubtful = Catalogo_Di_Prova().Rimuovi_Tabella("Sconti").Pacchetto(folder.path(), "w.TZF");
    EXPECT_EQ(run({"check", doubtful}).code, 0);
    EXPECT_EQ(run({"check", package, "--json"}).out.trimmed(), "[\n]");
}

TEST_F(Commands, PackUsesTheNameOfTheSourceWhenNoneIsGiven) {
    Catalogo_Di_Prova().Sorgente(folder.filePath("source"));
    QFile::remove(package);
    EXPECT_EQ(run({"pack", "source"}).code, 0);
    EXPECT_TRUE(QFile::exists(package));
    EXPECT_EQ(run({"unpack", "prova.TZF", "source"}).code, 1);
    EXPECT_EQ(run({"unpack", "prova.TZF", "source", "--force"}).code, 0);
}

TEST_F(Commands, BadPackagesAreMessagesAndNoMore) {
    QByteArray bytes = readFile(package);
    writeFile(folder.filePath("empty"), "");
    writeFile(folder.filePath("text"), "not a zip");
    writeFile(folder.filePath("half"), bytes.left(bytes.size() / 2));
    writeFile(folder.filePath("changed"), bytes.replace(200, 100, QByteArray(100, 'x')));
    for (const char* file : {"empty", "text", "half", "changed"})
        for (const char* command : {"info", "tree", "check", "unpack"}) {
            const Outcome outcome =
                run(QStringList{command, file} + QStringList(command[0] == 'u' ? 1 : 0, "d"));
            EXPECT_EQ(outcome.code, 1) << command << file;
            EXPECT_FALSE(outcome.err.isEmpty()) << command << file;
        }
}

}  // namespace

#include "tzf/source_of.h"

namespace {

using testing::HasSubstr;

class Commands : public Tool {
  protected:
    void SetUp() override {
        Tool::SetUp();
        Catalogo_Di_Prova c;
        c.Riga("Gruppi_Utenti", {{"Key_Gruppo", "5"}});
        c.Nodo("G_1", "R", "Motore").Prodotto("P_1", "G_1", "Cilindro", {{"Key_Mercato", "/1/"}});
        c.Prodotto("X_2", "R", "Attrezzo").Nodo("G_9", "R", "Riservato", {{"Key_Gruppo", "/5/"}});
        c.Riga("Matricola_Nodo",
               {{"Key_Prodotto", "P_1"}, {"Min_Matricola", "100"}, {"Max_Matricola", "200"}});
        c.Parte("P_1", "1", "A1", "Vite", {{"Campo03", "1.5"}}).Parte("P_1", "2", "A2", "Dado");
        c.Cambia("Componenti", 1, "Campo03", "1.5");
        c.Cambia("Albero_Web", 2, "Testo_Visualizzato_2", "Engine");
        package = c.File("a.svg", "<svg/>").Pacchetto(folder.path());
    }
    QJsonArray tree(const QStringList& filter = {}) const {
        return run(QStringList{"tree", package, "--json"} + filter).array();
    }
    static QString keysOf(const QJsonArray& nodes) {
        QStringList keys;
        for (const QJsonValue& node : nodes)
            keys << node["key"].toString();
        return keys.join(' ');
    }
    QString package;
};

TEST_F(Commands, ExitCodesTellWrongUseFromPackagesThatAreMissingOrBad) {
    QByteArray bytes = readFile(package);
    writeFile(folder.filePath("empty"), "");
    writeFile(folder.filePath("half"), bytes.left(bytes.size() / 2));
    writeFile(folder.filePath("changed"), bytes.replace(200, 100, QByteArray(100, 'x')));
    const std::pair<int, const char*> cases[] = {
        {2, "|nothing|--nothing|pack|list|list |list PACKAGE PACKAGE|list --nothing PACKAGE|unpack PACKAGE"},
        {2, "tree PACKAGE --lingua|generate x.TZF --nodes 10"},
        {2, "generate x.TZF --nodes 4 --rows 1 --products 4"},
        {1, "list missing.TZF|info missing.TZF|check missing.TZF|tree missing.TZF|pack missing x.TZF"},
        {1, "unpack missing.TZF d|parts PACKAGE P_NO|tree PACKAGE --mercato 9|tree PACKAGE --lingua x"},
        {1, "info empty|info half|info changed|unpack half d"},
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

TEST_F(Commands, ListAndInfoAsJson) {
    const QJsonArray entries = run({"list", package, "--json"}).array();
    EXPECT_EQ(entries[1]["name"], "a.svg");
    EXPECT_EQ(entries[1]["size"], 6);
    EXPECT_EQ(entries[1]["encrypted"], true);
    const QJsonObject info = run({"info", package, "--json"}).object();
    EXPECT_EQ(info["system"]["VERSIONE"], "4.3");
    EXPECT_EQ(info["languages"][1]["key"], "UK");
}

TEST_F(Commands, TreeAsJsonUnderEveryFilter) {
    EXPECT_EQ(keysOf(tree()), "G_1 P_1 X_2 G_9");
    const QJsonObject expected{{"key", "P_1"},  {"parent", "G_1"},   {"text", "Cilindro"}, {"image", 3},
                               {"bold", false}, {"expanded", false}, {"selected", false}};
    EXPECT_EQ(tree()[1].toObject(), expected);
    EXPECT_EQ(keysOf(tree({"--mercato", "2"})), "G_1 X_2 G_9");
    EXPECT_EQ(keysOf(tree({"--gruppo", "/B/"})), "G_1 P_1 X_2");
    for (const char* english : {"2", "uk"})
        EXPECT_EQ(tree({"--lingua", english}).at(0)["text"], "Engine");
    EXPECT_EQ(tree({"--matricola", "150"}).at(1)["bold"], true);
    EXPECT_EQ(tree({"--matricola", "it's"}).at(1)["bold"], false);
}

TEST_F(Commands, PartsAsJson) {
    const QJsonObject parts = run({"parts", package, "P_1", "--json", "--lingua", "2"}).object();
    EXPECT_EQ(parts["visible"], true);
    EXPECT_EQ(parts["columns"][2].toObject(),
              (QJsonObject{{"title", "Code"}, {"kind", "String [255 car.]"}, {"size", "15"}}));
    EXPECT_EQ(parts["rows"][0]["cells"][3], "Vite");
    EXPECT_EQ(parts["rows"][0]["tags"][1], "Add_Componente|A1|P_1|1");
    EXPECT_EQ(run({"parts", package, "X_2", "--json"}).object()["visible"], false);
    EXPECT_THAT(run({"parts", package, "P_1"}).out.toStdString(), HasSubstr("Vite"));
}

TEST_F(Commands, CheckAsJsonAndItsExitCode) {
    const QString faulty = Catalogo_Di_Prova().Sistema("NOTHING", "1").Pacchetto(folder.path(), "f.TZF");
    const Outcome outcome = run({"check", faulty, "--json"});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.array()[0].toObject()["severity"], "error");
    EXPECT_EQ(outcome.array()[0].toObject()["row"], 4);
    EXPECT_THAT(run({"check", faulty}).out.toStdString(), testing::StartsWith("error: SYSTEM row 4, KEY: "));

    const QString doubtful = Catalogo_Di_Prova().Rimuovi_Tabella("Sconti").Pacchetto(folder.path(), "w.TZF");
    EXPECT_EQ(run({"check", doubtful}).code, 0);
}

TEST_F(Commands, PackNamesThePackageAndUnpackOverwritesOnlyWhenForced) {
    sourceOf(Catalogo_Di_Prova(), folder.filePath("source"));
    QFile::remove(package);
    EXPECT_EQ(run({"pack", "source"}).code, 0);
    EXPECT_TRUE(QFile::exists(package));
    writeFile(folder.filePath("full/mine.txt"), "");
    EXPECT_EQ(run({"unpack", "prova.TZF", "full"}).code, 1);
    EXPECT_EQ(QDir(folder.filePath("full")).entryList(QDir::Files), QStringList("mine.txt"));
    EXPECT_EQ(run({"unpack", "prova.TZF", "full", "--force"}).code, 0);
    EXPECT_THAT(QDir(folder.filePath("full")).entryList(), testing::IsSupersetOf({"SYSTEM.csv", "mine.txt"}));
}

}  // namespace

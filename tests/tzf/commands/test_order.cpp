#include <map>

#include "support/ordini_di_prova.h"
#include "tzf/tool.h"

namespace {

using testing::ElementsAre, testing::ElementsAreArray, testing::HasSubstr;

QStringList texts(const QJsonValue& array) {
    QStringList list;
    for (const QJsonValue& value : array.toArray())
        list += value.toString();
    return list;
}

/// The rows of the tool's answer in the form of the worked orders.
QStringList rows(const QJsonObject& answer) {
    int notes = 0;
    while (notes < answer["columns"].toArray().size() && answer["columns"][notes]["kind"] != "Note")
        ++notes;
    QStringList list;
    for (const QJsonValue& row : answer["rows"].toArray())
        list += Riga_Ordine(texts(row["cells"]), texts(row["tags"]), notes);
    return list;
}

class Order : public Tool {
  protected:
    /// Runs `tzf order` on steps, one a line.
    Outcome order(const QByteArray& steps, const QStringList& options = {"--json"},
                  Variante variante = Variante::Libera) {
        QString& package = packages[variante];
        if (package.isEmpty())
            package = Catalogo_Ordini(variante).Pacchetto(folder.path(),
                                                          QString("%1.TZF").arg(static_cast<int>(variante)));
        writeFile(folder.filePath("steps"), steps);
        return run(QStringList{"order", package, "--lines", "steps"} + options);
    }
    std::map<Variante, QString> packages;
};

TEST_F(Order, ComesOutAsWorkedByHand) {
    for (const Ordine_Di_Prova& ordine : Ordini_Di_Prova()) {
        SCOPED_TRACE(ordine.nome);
        QByteArray steps;
        for (const Passo_Ordine& passo : ordine.passi)
            steps += passo.Riga();
        QStringList options{"--json"};
        if (!ordine.login.isEmpty())
            options << "--user" << ordine.login;
        const Outcome outcome = order(steps, options, ordine.variante);
        EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
        EXPECT_THAT(rows(outcome.object()), ElementsAreArray(ordine.righe));
        EXPECT_EQ(outcome.object()["visible"].toBool(), !ordine.righe.isEmpty());
        for (const QString& message : ordine.messaggi)
            EXPECT_THAT(outcome.err.toStdString(), HasSubstr(message.toStdString()));
    }
}

TEST_F(Order, TellsColumnsTagsAndStore) {
    const QJsonObject answer = order(R"({"add":{"product":"P_1","code":"B","reference":"2"}}

{"hotspot":{"product":"P_1","name":"ASSOCIAZIONE#$#1"}}
{"quantity":{"product":"P_1","line":"A-1","text":"10,4"}}
{"note":{"product":"P_1","line":"A-1","text":"presto"}}
{"add":{"product":"P_2","code":"A","reference":"1"}}
{"remove":{"product":"P_2","line":"A-1"}}
)")
                                   .object();
    QStringList columns;
    for (const QJsonValue& c : answer["columns"].toArray())
        columns += c["title"].toString() + ',' + c["kind"].toString() + ',' + c["size"].toString();
    EXPECT_THAT(columns,
                ElementsAre("IMMAGINE##||##Cestino.GIF,Elimina,0", "IMMAGINE##||##prodotto.GIF,Prodotto,25",
                            "IMMAGINE##||##Riferimenti.GIF,Riferimento,5", "Codice,Text [255 car.],15",
                            "Prezzo,Price,2", "Sconto,Discount,20", "Quantità,Qta,0", "Nota,Note,0",
                            "Prezzo totale,Price_Totale,2"));
    EXPECT_THAT(texts(answer["rows"][0]["tags"]),
                ElementsAre("Elimina|B", "Prodotto|P_1", "", "", "", "", "Qta|B", "Note|B", ""));
    EXPECT_EQ(QJsonDocument(answer["store"].toArray()).toJson(QJsonDocument::Compact),
              R"([{"lines":[{"code":"B","graphic":"2","key":"B-2","note":"","quantity":5,"reference":"2"},)"
              R"({"code":"A","graphic":"ASSOCIAZIONE#$#1","key":"A-1","note":"presto","quantity":10.4,)"
              R"("reference":"1"}],"product":"P_1"},{"lines":[],"product":"P_2"}])");
}

TEST_F(Order, ALinkOrdersNothing) {
    const Outcome outcome = order(R"({"hotspot":{"product":"P_1","name":"PRODOTTO#$#P_2"}})", {});
    EXPECT_THAT(outcome.err.toStdString(), HasSubstr("is a link to P_2"));
    EXPECT_EQ(outcome.out, "(nothing to show)\n");
}

TEST_F(Order, PrintsATable) {
    const Outcome outcome = order(R"({"add":{"product":"P_1","code":"KIT","reference":"30"}})", {});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out.split('\n').at(1).simplified(), "(Elimina) Uno 30 KIT 50.00 0 1 50.00");
    EXPECT_EQ(order("", {}).out, "(nothing to show)\n");
}

TEST_F(Order, FollowsLanguageMarketAndUser) {
    const QByteArray steps = R"({"add":{"product":"P_1","code":"D","reference":"4"}})";
    // Market 2 has 20 percent on the key.
    EXPECT_THAT(rows(order(steps, {"--json", "--mercato", "2", "--lingua", "2"}).object()),
                ElementsAre("|Uno|4|D|100.00|(20) %|1||80.00", "Totale = 80.00", "Sconto = () %"));
    EXPECT_THAT(
        rows(order(steps, {"--json", "--gruppo", "/G5/"}).object()),
        ElementsAre("|Uno|4|D|100.00|(10) %|1||90.00", "Totale = 90.00", "Sconto = (5) %", "Netto = 85.50"));
}

TEST_F(Order, RefusesWhatIsNoOrder) {
    const std::pair<const char*, const char*> cases[] = {
        {"{", "line 1"},
        {"\n[]", "line 2"},
        {R"({"add":1})", "a step is an object"},
        {R"({"add":{},"note":{}})", "a step is an object"},
        {R"({"buy":{"product":"P_1"}})", "\"buy\" is no step"},
        {R"({"add":{"product":"P_1","code":7,"reference":"1"}})", "\"code\""},
        {R"({"quantity":{"product":"P_1","line":"A-1"}})", "A-1"},
    };
    for (const auto& [steps, message] : cases) {
        const Outcome outcome = order(steps);
        EXPECT_THAT(outcome.err.toStdString(), HasSubstr(message)) << steps;
        EXPECT_EQ(outcome.code, QByteArray(steps).contains("A-1") ? 0 : 1) << steps;
    }
    EXPECT_EQ(order("", {"--password", "x"}).code, 2);
    for (const QStringList& login : {QStringList{"--user", "nobody"}, QStringList{"--user", "o'r"}}) {
        const Outcome outcome = order("", login);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_THAT(outcome.err.toStdString(), HasSubstr("log-in"));
    }
}

}  // namespace

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include "driver/driver.h"
#include "gui/finestra_di_prova.h"
#include "support/catalogo_di_prova.h"

namespace {

class Guida : public testing::Test {
  protected:
    Guida() {
        Catalogo_Di_Prova catalogo;
        catalogo.Nodo("G_A", "R", "Motore")
            .Prodotto("P_1", "G_A", "Carburatore")
            .Parte("P_1", "1", "A.001", "Vite")
            .Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "R");
        pacchetto = catalogo.Pacchetto(cartella.path());
        applicazione.Avvia();
        Affretta_Avvio();
    }
    QJsonObject Esegui(const QJsonObject& comando) {
        risposte.clear();
        driver.Accoda(QJsonDocument(comando).toJson(QJsonDocument::Compact));
        EXPECT_TRUE(QTest::qWaitFor([this] { return !risposte.isEmpty(); }, 10'000));
        return QJsonDocument::fromJson(risposte.value(0)).object();
    }
    QJsonObject Fai(const char* comando, QJsonObject altro = {}) {
        altro.insert(QStringLiteral("do"), QLatin1String(comando));
        return Esegui(altro);
    }
    static bool Riuscito(const QJsonObject& risposta) {
        return risposta.value(QStringLiteral("ok")).toBool();
    }

    QTemporaryDir cartella;
    QString pacchetto;
    Impostazioni_Finte impostazioni;
    Messaggi_Driver messaggi;
    Sistema_Driver sistema;
    Applicazione applicazione{{impostazioni, messaggi, sistema}, {{}, cartella.path(), {}}};
    QList<QByteArray> risposte;
    Driver driver{applicazione, messaggi, sistema, [this](const QByteArray& r) { risposte.append(r); }};
};

TEST_F(Guida, WalksFromTheSplashToAPartsList) {
    const QJsonArray finestre = Fai("windows").value(QStringLiteral("windows")).toArray();
    EXPECT_EQ(finestre.first().toObject().value(QStringLiteral("name")).toString(),
              QStringLiteral("Form_Mini_Avvio"));
    EXPECT_TRUE(Fai("open", {{QStringLiteral("path"), pacchetto}}).value(QStringLiteral("open")).toBool());
    EXPECT_TRUE(
        Riuscito(Fai("click", {{QStringLiteral("object"), QStringLiteral("Label_consulta_catalogo")}})));
    EXPECT_TRUE(Riuscito(Fai("command", {{QStringLiteral("key"), QStringLiteral("KEY_DISEGNO")}})));
    const QJsonArray nodi = Fai("tree").value(QStringLiteral("nodes")).toArray();
    ASSERT_EQ(nodi.size(), 2);
    EXPECT_EQ(nodi[1].toObject().value(QStringLiteral("parent")).toString(), QStringLiteral("G_A"));
    EXPECT_TRUE(Riuscito(Fai("double_click", {{QStringLiteral("object"), QStringLiteral("Tree1")},
                                              {QStringLiteral("index"), 0}})));
    EXPECT_TRUE(Riuscito(Fai("click_node", {{QStringLiteral("key"), QStringLiteral("P_1")}})));
    const QJsonObject griglia = Fai("grid", {{QStringLiteral("object"), QStringLiteral("Griglia_Distinta")}});
    EXPECT_TRUE(griglia.value(QStringLiteral("visible")).toBool());
    const QJsonArray righe = griglia.value(QStringLiteral("rows")).toArray();
    ASSERT_EQ(righe.size(), 1);
    EXPECT_EQ(righe[0].toArray()[1].toObject().value(QStringLiteral("text")).toString(),
              QStringLiteral("A.001"));
    EXPECT_FALSE(Fai("tree")
                     .value(QStringLiteral("nodes"))
                     .toArray()[0]
                     .toObject()
                     .value(QStringLiteral("selected"))
                     .toBool());
    const QString file = cartella.filePath(QStringLiteral("a.png"));
    EXPECT_TRUE(Riuscito(Fai("screenshot", {{QStringLiteral("file"), file}})));
    EXPECT_FALSE(QImage(file).isNull());
}

TEST_F(Guida, KeepsMessagesAndWhatWasOpened) {
    const QString assente = cartella.filePath(QStringLiteral("assente.TZF"));
    EXPECT_FALSE(Fai("open", {{QStringLiteral("path"), assente}}).value(QStringLiteral("open")).toBool());
    EXPECT_EQ(Fai("messages").value(QStringLiteral("messages")).toArray().size(), 1);
    EXPECT_EQ(Fai("messages").value(QStringLiteral("messages")).toArray().size(), 0);
    EXPECT_TRUE(Riuscito(Fai("command", {{QStringLiteral("key"), QStringLiteral("KEY_HELP")}})));
    EXPECT_EQ(Fai("opened").value(QStringLiteral("opened")).toArray().size(), 1);
}

TEST_F(Guida, RefusesWhatAUserCouldNotDo) {
    EXPECT_FALSE(Riuscito(Fai("command", {{QStringLiteral("key"), QStringLiteral("KEY_DISEGNO")}})));
    EXPECT_FALSE(Riuscito(Fai("command", {{QStringLiteral("key"), QStringLiteral("KEY_EMAIL")}})));
    EXPECT_FALSE(
        Riuscito(Fai("click", {{QStringLiteral("object"), QStringLiteral("Label_consulta_catalogo")}})));
    EXPECT_FALSE(Riuscito(Fai("click", {{QStringLiteral("object"), QStringLiteral("Nessuno")}})));
    EXPECT_FALSE(Riuscito(Fai("nothing")));
    risposte.clear();
    driver.Accoda("not json");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !risposte.isEmpty(); }));
    EXPECT_FALSE(Riuscito(QJsonDocument::fromJson(risposte.first()).object()));
}

TEST_F(Guida, WorksInsideAQuestion) {
    ASSERT_TRUE(Riuscito(Fai("toolbar")));
    risposte.clear();
    // While the question is up, the window behind it is out of reach.
    driver.Accoda(R"({"do":"click","object":"Label_Help"})");
    driver.Accoda(R"({"do":"answer","button":"yes"})");
    EXPECT_TRUE(messaggi.Chiedi(QStringLiteral("Sicuro?")));
    ASSERT_EQ(risposte.size(), 2);
    EXPECT_FALSE(Riuscito(QJsonDocument::fromJson(risposte[0]).object()));
    EXPECT_TRUE(Riuscito(QJsonDocument::fromJson(risposte[1]).object()));
    const QJsonObject domanda = Fai("messages").value(QStringLiteral("messages")).toArray()[0].toObject();
    EXPECT_EQ(domanda.value(QStringLiteral("icon")).toString(), QStringLiteral("question"));
}

TEST_F(Guida, TypesInPlaceOfWhatAFieldHolds) {
    Fai("open", {{QStringLiteral("path"), pacchetto}});
    Fai("click", {{QStringLiteral("object"), QStringLiteral("Label_consulta_catalogo")}});
    const QJsonObject campo{{QStringLiteral("object"), QStringLiteral("Text_Matricola")}};
    for (const QString& testo : {QStringLiteral("Nº 12/é"), QStringLiteral("7"), QString()}) {
        QJsonObject scrivi = campo;
        scrivi.insert(QStringLiteral("text"), testo);
        EXPECT_TRUE(Riuscito(Fai("type", scrivi)));
        QJsonObject leggi = campo;
        leggi.insert(QStringLiteral("properties"), QJsonArray{QStringLiteral("text")});
        EXPECT_EQ(Fai("get", leggi)
                      .value(QStringLiteral("properties"))
                      .toObject()
                      .value(QStringLiteral("text"))
                      .toString(),
                  testo);
    }
}

}  // namespace

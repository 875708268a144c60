#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QJsonDocument>

#include "driver/driver.h"
#include "gui/finestra_di_prova.h"

namespace {

/// A control that no key suits.
class Difetto : public QWidget {
  public:
    using QWidget::QWidget;
    void keyPressEvent(QKeyEvent*) override { throw std::runtime_error("out of order"); }
};

class Guida : public testing::Test {
  protected:
    Guida() {
        applicazione.Avvia();
        Affretta_Avvio();
    }
    QJsonValue Esegui(const QByteArray& comando) {
        risposte.clear();
        driver.Accoda(comando);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !risposte.isEmpty(); }, 10'000));
        return Risposta(0);
    }
    QJsonValue Fai(const char* comando, QJsonObject altro = {}) {
        altro.insert("do", comando);
        return Esegui(QJsonDocument(altro).toJson(QJsonDocument::Compact));
    }
    bool Riesce(const char* comando, const QJsonObject& altro = {}) {
        return Fai(comando, altro)["ok"].toBool();
    }
    QJsonValue Risposta(int i) const { return QJsonDocument::fromJson(risposte.value(i)).object(); }

    QTemporaryDir cartella;
    const QString pacchetto =
        Macchina().Sistema("IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI", "NO").Pacchetto(cartella.path());
    Impostazioni_Finte impostazioni;
    Messaggi_Driver messaggi;
    Sistema_Driver sistema;
    Applicazione applicazione{Programma(), {impostazioni, messaggi, sistema}, {{}, cartella.path(), {}}};
    QList<QByteArray> risposte;
    Driver driver{applicazione, messaggi, sistema, [this](const QByteArray& r) { risposte.append(r); }};
    QMetaObject::Connection guasti =
        QObject::connect(&Programma(), &Programma_Qt::Eccezione, &driver, &Driver::Guasto);
};

TEST_F(Guida, WalksFromTheSplashToAPartsList) {
    EXPECT_EQ(Fai("windows")["windows"][0]["name"], "Form_Mini_Avvio");
    EXPECT_TRUE(Fai("open", {{"path", pacchetto}})["open"].toBool());
    EXPECT_TRUE(Riesce("click", {{"object", "Label_consulta_catalogo"}}));
    EXPECT_TRUE(Riesce("command", {{"key", "KEY_DISEGNO"}}));
    EXPECT_EQ(Fai("tree")["nodes"][1]["parent"], "G_A");
    EXPECT_TRUE(Riesce("double_click", {{"object", "Tree1"}, {"index", 0}}));
    EXPECT_TRUE(Riesce("click_node", {{"key", "P_1"}}));
    const QJsonValue griglia = Fai("grid", {{"object", "Griglia_Distinta"}});
    EXPECT_TRUE(griglia["visible"].toBool());
    EXPECT_EQ(griglia["rows"].toArray().size(), 3);
    EXPECT_EQ(griglia["rows"][0][2]["text"], "A.001");
    for (const char* testo : {"Nº 12/é", "7"}) {  // in place of what the field holds
        EXPECT_TRUE(Riesce("type", {{"object", "Text_Matricola"}, {"text", testo}}));
        const QJsonValue letto =
            Fai("get", {{"object", "Text_Matricola"}, {"properties", QJsonArray{"text"}}});
        EXPECT_EQ(letto["properties"]["text"], testo);
    }
    const QString file = cartella.filePath("a.png");
    EXPECT_TRUE(Riesce("screenshot", {{"file", file}}));
    EXPECT_FALSE(QImage(file).isNull());
}

TEST_F(Guida, RefusesWhatAUserCouldNotDo) {
    EXPECT_FALSE(Riesce("command", {{"key", "KEY_DISEGNO"}}));
    EXPECT_FALSE(Riesce("command", {{"key", "KEY_EMAIL"}}));
    EXPECT_FALSE(Riesce("click", {{"object", "Label_consulta_catalogo"}}));
    EXPECT_FALSE(Riesce("click", {{"object", "Nessuno"}}));
    EXPECT_FALSE(Riesce("nothing"));
    EXPECT_EQ(Esegui("not json")["ok"], false);
}

TEST_F(Guida, WorksInsideAQuestion) {
    ASSERT_TRUE(Riesce("toolbar"));
    risposte.clear();
    // While the question is up, the window behind it is out of reach.
    driver.Accoda(R"({"do":"click","object":"Label_Help"})");
    driver.Accoda(R"({"do":"answer","button":"yes"})");
    EXPECT_TRUE(messaggi.Chiedi("Sicuro?"));
    ASSERT_EQ(risposte.size(), 2);
    EXPECT_EQ(Risposta(0)["ok"], false);
    EXPECT_EQ(Risposta(1)["ok"], true);
    EXPECT_EQ(Fai("messages")["messages"][0]["icon"], "question");
}

TEST_F(Guida, AFaultOfTheProgramFailsTheCommandAndTheRunAndTheWindowIsLeftAsItWas) {
    const QJsonObject apri{{"path", pacchetto}};
    ASSERT_TRUE(Riesce("open", apri));
    Difetto difetto(applicazione.Finestra());
    difetto.setObjectName("Difetto");
    difetto.show();
    EXPECT_NONFATAL_FAILURE(Riesce("key", {{"object", "Difetto"}, {"key", "F2"}}), "out of order");
    EXPECT_EQ(Risposta(0)["error"], "the program failed: out of order");

    EXPECT_TRUE(Riesce("click", {{"object", "Label_consulta_catalogo"}}));
    EXPECT_TRUE(Riesce("click_node", {{"key", "G_A"}}));
    EXPECT_EQ(Fai("messages")["messages"],
              QJsonArray({QJsonObject{{"text", "out of order"}, {"icon", "critical"}}}));
    driver.Accoda(R"({"do":"quit"})");
    EXPECT_EQ(QApplication::exec(), 1);
}

TEST_F(Guida, ARunWithRefusedCommandsAloneEndsWell) {
    EXPECT_FALSE(Riesce("nothing"));
    driver.Accoda(R"({"do":"quit"})");
    EXPECT_EQ(QApplication::exec(), 0);
}

}  // namespace

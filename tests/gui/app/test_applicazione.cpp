#include "app/applicazione.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>

#include "gui/finestra_di_prova.h"
#include "gui/platform/sistema_qt.h"

namespace {

/// Events really run, everything else is a fake.
class Sistema_Con_Eventi : public Sistema_Finto {
  public:
    void Esegui_Eventi() override { QApplication::processEvents(); }
};

class Avvio : public testing::Test {
  protected:
    Applicazione& Crea(const QString& argomenti) {
        const Class_Progetto_Aperto::Porte porte{impostazioni, messaggi, sistema};
        const Applicazione::Opzioni opzioni{argomenti, cartella.path(), {}};
        return *(applicazione = std::make_unique<Applicazione>(Programma(), porte, opzioni));
    }
    static QWidget* Finestra(const char* nome) {
        for (QWidget* finestra : QApplication::topLevelWidgets())
            if (finestra->objectName() == QLatin1String(nome) && finestra->isVisible())
                return finestra;
        return nullptr;
    }
    /// Starts, and skips the wait before the main window.
    void Fino_Alla_Finestra(const QString& argomenti) {
        ASSERT_TRUE(Crea(argomenti).Avvia());
        Affretta_Avvio();
        EXPECT_EQ(messaggi.Mostrati.size(), 0u);
        ASSERT_TRUE(QTest::qWaitFor([] { return Finestra("Form_Main") != nullptr; }, 5000));
    }
    QTemporaryDir cartella;
    Impostazioni_Finte impostazioni;
    Messaggi_Finti messaggi;
    Sistema_Con_Eventi sistema;
    std::unique_ptr<Applicazione> applicazione;
};

TEST_F(Avvio, TheSplashComesFirstAndTheWindowTwoSecondsLater) {
    QElapsedTimer tempo;
    tempo.start();
    ASSERT_TRUE(Crea({}).Avvia());
    QWidget* avvio = Finestra("Form_Mini_Avvio");
    ASSERT_NE(avvio, nullptr);
    EXPECT_EQ(avvio->findChild<QWidget*>("Label2")->property("text"), "Tessarine Viewer 4.0");
    QTest::qWait(600);
    EXPECT_GT(avvio->findChild<QWidget*>("PB")->property("value").toInt(), 2);
    EXPECT_EQ(Finestra("Form_Main"), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([] { return Finestra("Form_Main") != nullptr; }, 5000));
    EXPECT_GE(tempo.elapsed(), 1900);
    EXPECT_EQ(Finestra("Form_Mini_Avvio"), nullptr);
}

TEST_F(Avvio, ALoneQuoteBringsUpNoWindow) {
    EXPECT_FALSE(Crea("\"").Avvia());
    EXPECT_EQ(Finestra("Form_Mini_Avvio"), nullptr);
}

TEST_F(Avvio, OpensTheCatalogueOfTheCommandLineAndRemembersItsFullPath) {
    const QString pacchetto = Macchina().Pacchetto(cartella.path(), "mia macchina.TZF");
    Fino_Alla_Finestra(QDir::current().relativeFilePath(pacchetto) + "|fine.txt");
    EXPECT_TRUE(applicazione->Progetto().Progetto_Aperto);
    EXPECT_EQ(applicazione->Finestra()->Tree1().Modello().rowCount(), 2);
    EXPECT_EQ(impostazioni.Valore("SalvataggioTZF", "1"), pacchetto);
    // The window has been activated: the document at the end is forgotten.
    ASSERT_TRUE(QTest::qWaitForWindowActive(applicazione->Finestra()));
    applicazione.reset();
    EXPECT_EQ(sistema.Aperti, QStringList());
    EXPECT_EQ(sistema.Contenuto_Temporaneo(), QStringList());
}

}  // namespace

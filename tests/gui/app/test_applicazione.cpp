#include "app/applicazione.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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
        applicazione =
            std::make_unique<Applicazione>(Class_Progetto_Aperto::Porte{impostazioni, messaggi, sistema},
                                           Applicazione::Opzioni{argomenti, cartella.path(), {}});
        return *applicazione;
    }
    static QWidget* Finestra(const char* nome) {
        for (QWidget* finestra : QApplication::topLevelWidgets())
            if (finestra->objectName() == QLatin1String(nome) && finestra->isVisible())
                return finestra;
        return nullptr;
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
    EXPECT_EQ(avvio->findChild<QWidget*>(QStringLiteral("Label2"))->property("text").toString(),
              QStringLiteral("Tessarine Viewer 4.0"));
    EXPECT_EQ(avvio->findChild<QWidget*>(QStringLiteral("Lbl_Status"))->property("text").toString(),
              QStringLiteral("Loading ..."));
    QTest::qWait(600);
    EXPECT_GT(avvio->findChild<QWidget*>(QStringLiteral("PB"))->property("value").toInt(), 2);
    EXPECT_EQ(Finestra("Form_Main"), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([] { return Finestra("Form_Main") != nullptr; }, 5000));
    EXPECT_GE(tempo.elapsed(), 1900);
    EXPECT_EQ(Finestra("Form_Mini_Avvio"), nullptr);
}

TEST_F(Avvio, ALoneQuoteBringsUpNoWindow) {
    EXPECT_FALSE(Crea(QStringLiteral("\"")).Avvia());
    EXPECT_EQ(Finestra("Form_Mini_Avvio"), nullptr);
}

TEST_F(Avvio, OpensTheCatalogueOfTheCommandLine) {
    Catalogo_Di_Prova catalogo;
    catalogo.Nodo("G_A", "R", "Motore").Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "R");
    Crea(catalogo.Pacchetto(cartella.path(), QStringLiteral("mia macchina.TZF")) +
         QStringLiteral("|fine.txt"));
    ASSERT_TRUE(applicazione->Avvia());
    Affretta_Avvio();
    ASSERT_TRUE(QTest::qWaitFor([] { return Finestra("Form_Main") != nullptr; }, 5000));
    EXPECT_TRUE(applicazione->Progetto().Progetto_Aperto);
    EXPECT_EQ(applicazione->Finestra()->Tree1().Modello().rowCount(), 1);
    // The window has been activated: the document at the end is forgotten.
    ASSERT_TRUE(QTest::qWaitForWindowActive(applicazione->Finestra()));
    applicazione.reset();
    EXPECT_EQ(sistema.Aperti, QStringList());
    EXPECT_EQ(sistema.Contenuto_Temporaneo(), QStringList());
}

TEST_F(Avvio, RemembersAPackageNamedFromTheCurrentFolderByItsFullPath) {
    Catalogo_Di_Prova catalogo;
    catalogo.Nodo("G_A", "R", "Motore");
    const QString pacchetto = catalogo.Pacchetto(cartella.path(), QStringLiteral("mio.TZF"));
    ASSERT_TRUE(Crea(QDir::current().relativeFilePath(pacchetto)).Avvia());
    Affretta_Avvio();
    ASSERT_TRUE(QTest::qWaitFor([] { return Finestra("Form_Main") != nullptr; }, 5000));
    EXPECT_EQ(applicazione->Progetto().File_Pacchetto, pacchetto);
    EXPECT_EQ(
        impostazioni.Leggi(NOME_APPLICAZIONE, QStringLiteral("SalvataggioTZF"), QStringLiteral("1"), {}),
        pacchetto);
}

TEST_F(Avvio, ABadCatalogueOnTheCommandLineEndsAtHomeWithAMessage) {
    QFile file(cartella.filePath(QStringLiteral("rotto.TZF")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a package");
    file.close();
    ASSERT_TRUE(Crea(file.fileName()).Avvia());
    Affretta_Avvio();
    EXPECT_EQ(messaggi.Mostrati.size(), 0u);
    ASSERT_TRUE(QTest::qWaitFor([] { return Finestra("Form_Main") != nullptr; }, 5000));
    EXPECT_EQ(messaggi.Mostrati.size(), 1u);
    EXPECT_FALSE(applicazione->Progetto().Progetto_Aperto);
    EXPECT_EQ(applicazione->Controllo()->Restitusci_Zona_catalogo(), 1);
}

}  // namespace

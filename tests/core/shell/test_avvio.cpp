#include "core/shell/avvio.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/fakes.h"

using testing::ElementsAre;

namespace {

TEST(Avvio, CommandLine) {
    struct Caso {
        const char *argomenti, *riga;
        bool continua;
    };
    for (const Caso& caso : {Caso{"", "", true},
                             {"/a b.TZF", "/a b.TZF", true},
                             {"\"/a b.TZF\"", "/a b.TZF", true},
                             {"\"/a.TZF|x", "/a.TZF|", true},
                             {"\"\"", "", true},
                             {"\"", "", false},
                             {"a\"", "a\"", true}}) {
        QString riga;
        EXPECT_EQ(Prepara_Riga_Comando(caso.argomenti, riga), caso.continua) << caso.argomenti;
        if (caso.continua) {
            EXPECT_EQ(riga, caso.riga) << caso.argomenti;
        }
    }
}

TEST(Avvio, ThePackageOfTheCommandLineGetsItsFullPath) {
    const std::pair<const char*, const char*> casi[] = {
        {"", ""},
        {"  ", "  "},
        {"|x.pdf", "|x.pdf"},
        {"/b/a.TZF|x.pdf", "/b/a.TZF|x.pdf"},
        {"a b.TZF", "/casa/mia/a b.TZF"},
        {"../a.TZF|x.pdf", "/casa/a.TZF|x.pdf"},
    };
    for (const auto& [riga, attesa] : casi)
        EXPECT_EQ(Con_Pacchetto_Assoluto(riga, "/casa/mia"), attesa) << riga;
}

TEST(Avvio, InstallFolder) {
    QTemporaryDir con_dati, senza_dati;
    ASSERT_TRUE(QDir(con_dati.path()).mkdir("DATA"));
    QFile finto(senza_dati.filePath("data"));  // a file marks no install
    ASSERT_TRUE(finto.open(QIODevice::WriteOnly));
    const QString con = con_dati.path() + "/", senza = senza_dati.path() + "/";
    struct Caso {
        QString salvata, programma, risposta, dopo;
    };
    for (const Caso& caso : {Caso{"", senza_dati.path(), senza, senza},
                             {"  ", con_dati.path(), con, con},
                             {"/old/", con_dati.path(), con, con},
                             {"/old/", senza_dati.path(), "/old/", "/old/"},
                             {"/old", senza_dati.path(), "/old/", "/old"},
                             {con, con_dati.path(), con, con}}) {
        Impostazioni_Finte impostazioni;
        impostazioni.Imposta("INSTALLAZIONE", "PATH", caso.salvata);
        EXPECT_EQ(Restituisci_Cartella_Installazione(caso.programma, impostazioni), caso.risposta);
        EXPECT_EQ(impostazioni.Valore("INSTALLAZIONE", "PATH"), caso.dopo);
    }
}

TEST(Avvio, UpdatesAddress) {
    EXPECT_EQ(Indirizzo_Aggiornamenti("https://host", 4, 12, 3, 7),
              "https://host/site/page.wnode?ID_COUNT=hjk222rty456&IDVT1=VIEW0400120003&LN=2");
    const int attese[] = {2, 1, 2, 2, 4, 5, 5, 2, 2, 2, 2, 2};
    for (int lingua = 0; lingua < 12; ++lingua)
        EXPECT_TRUE(
            Indirizzo_Aggiornamenti("", 4, 0, 0, lingua).endsWith(QString("&LN=%1").arg(attese[lingua])))
            << lingua;
    EXPECT_GE(Versione().Maggiore, 4);

    Impostazioni_Finte impostazioni;
    EXPECT_EQ(Base_Aggiornamenti(impostazioni), "");
    impostazioni.Imposta("INSTALLAZIONE", "AGGIORNAMENTI", " https://host ");
    EXPECT_EQ(Base_Aggiornamenti(impostazioni), "https://host");
}

TEST(Avvio, HelpFile) {
    QTemporaryDir cartella;
    QFile italiano(cartella.filePath("HELP_Viewer_4_IT.pdf"));
    ASSERT_TRUE(italiano.open(QIODevice::WriteOnly));
    EXPECT_EQ(Percorso_Help(cartella.path(), "IT"), italiano.fileName());
    for (const char* chiave : {"FR", "UK", ""})  // the English one is named even when it is missing
        EXPECT_EQ(Percorso_Help(cartella.path(), chiave), cartella.filePath("HELP_Viewer_4_UK.pdf"));
}

class Recenti : public testing::Test {
  protected:
    void Imposta(const QStringList& percorsi) {
        for (qsizetype i = 0; i < percorsi.size(); ++i)
            impostazioni_.Imposta("SalvataggioTZF", QString::number(i + 1), percorsi[i]);
        impostazioni_.Scritture = 0;
    }
    std::vector<std::string> Primi(int n) {
        std::vector<std::string> primi;
        for (int i = 1; i <= n; ++i)
            primi.push_back(impostazioni_.Valore("SalvataggioTZF", QString::number(i)).toStdString());
        return primi;
    }
    Impostazioni_Finte impostazioni_;
};

TEST_F(Recenti, TheFirstAgainWritesNothing) {
    Imposta({"1", "2"});
    Aggiungi_Recente(impostazioni_, " 1 ");
    Aggiungi_Recente(impostazioni_, "  ");
    EXPECT_EQ(impostazioni_.Scritture, 0);
}

TEST_F(Recenti, AnotherMovesToTheHead) {
    Imposta({"1", "2", "3", "4", "5"});
    Aggiungi_Recente(impostazioni_, "4");
    EXPECT_THAT(Primi(6), ElementsAre("4", "1", "2", "3", "5", ""));
    Aggiungi_Recente(impostazioni_, "new");
    EXPECT_THAT(Primi(7), ElementsAre("new", "4", "1", "2", "3", "5", ""));
}

TEST_F(Recenti, AHoleIsntMoved) {
    Imposta({"1", "", "3"});
    Aggiungi_Recente(impostazioni_, "new");
    EXPECT_THAT(Primi(5), ElementsAre("new", "1", "3", "3", ""));
}

TEST_F(Recenti, TheOldestFallsOff) {
    QStringList cento;
    for (int i = 1; i <= 100; ++i)
        cento << QString::number(i);
    Imposta(cento);
    Aggiungi_Recente(impostazioni_, "new");
    EXPECT_EQ(impostazioni_.Valore("SalvataggioTZF", "1"), "new");
    EXPECT_EQ(impostazioni_.Valore("SalvataggioTZF", "100"), "99");
    EXPECT_EQ(impostazioni_.Valore("SalvataggioTZF", "101"), QString());
    Aggiungi_Recente(impostazioni_, "99");  // from the last place
    EXPECT_EQ(impostazioni_.Valore("SalvataggioTZF", "1"), "99");
    EXPECT_EQ(impostazioni_.Valore("SalvataggioTZF", "100"), "98");
}

}  // namespace

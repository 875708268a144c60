#include "core/shell/avvio.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/fakes.h"

namespace {

TEST(Avvio, CommandLine) {
    const char* casi[][2] = {
        {"", ""}, {"/a b.TZF", "/a b.TZF"}, {"\"/a b.TZF\"", "/a b.TZF"}, {"\"/a.TZF|x", "/a.TZF|"}};
    QString riga;
    for (const auto& [argomenti, attesa] : casi) {
        EXPECT_TRUE(Prepara_Riga_Comando(argomenti, riga)) << argomenti;
        EXPECT_EQ(riga, attesa) << argomenti;
    }
    EXPECT_FALSE(Prepara_Riga_Comando("\"", riga));  // the program doesn't start
}

TEST(Avvio, ThePackageOfTheCommandLineGetsItsFullPath) {
    const char* casi[][2] = {{"", ""},
                             {"|x.pdf", "|x.pdf"},
                             {"/b/a.TZF|x.pdf", "/b/a.TZF|x.pdf"},
                             {"../a b.TZF|x.pdf", "/casa/a b.TZF|x.pdf"}};
    for (const auto& [riga, attesa] : casi)
        EXPECT_EQ(Con_Pacchetto_Assoluto(riga, "/casa/mia"), attesa) << riga;
}

TEST(Avvio, InstallFolder) {
    QTemporaryDir con_dati, senza_dati;
    ASSERT_TRUE(QDir(con_dati.path()).mkdir("DATA"));
    const QString con = con_dati.path() + "/", senza = senza_dati.path() + "/";
    // Saved before, folder of the program, answer, saved then.
    const QString casi[][4] = {{"", senza_dati.path(), senza, senza},
                               {"/old/", con_dati.path(), con, con},
                               {"/old", senza_dati.path(), "/old/", "/old"}};
    for (const auto& [salvata, programma, risposta, dopo] : casi) {
        Impostazioni_Finte impostazioni;
        impostazioni.Imposta("INSTALLAZIONE", "PATH", salvata);
        EXPECT_EQ(Restituisci_Cartella_Installazione(programma, impostazioni), risposta);
        EXPECT_EQ(impostazioni.Valore("INSTALLAZIONE", "PATH"), dopo);
    }
}

TEST(Avvio, UpdatesAddress) {
    EXPECT_EQ(Indirizzo_Aggiornamenti("https://host", 4, 12, 3, 7),
              "https://host/site/page.wnode?ID_COUNT=hjk222rty456&IDVT1=VIEW0400120003&LN=2");
    const int attese[] = {2, 1, 2, 2, 4, 5, 5, 2};
    for (int lingua = 0; lingua < 8; ++lingua)
        EXPECT_TRUE(
            Indirizzo_Aggiornamenti("", 4, 0, 0, lingua).endsWith(QString("&LN=%1").arg(attese[lingua])))
            << lingua;
}

TEST(Avvio, RecentCataloguesMoveToTheHead) {
    QStringList cento;
    for (int i = 1; i <= 100; ++i)
        cento << QString::number(i);
    struct Caso {
        QStringList prima;
        const char* nuovo;
        QStringList dopo;
        bool scrive = true;
    };
    const Caso casi[] = {
        {{"1", "2"}, " 1 ", {"1", "2", ""}, false},

        {{"1", "2", "3", "4", "5"}, "4", {"4", "1", "2", "3", "5", ""}},
        {{"1", "", "3"}, "new", {"new", "1", "3", "3", ""}},  // a hole isn't moved
        {cento, "100", QStringList{"100"} + cento.first(99) + QStringList{""}},
    };
    for (const Caso& caso : casi) {
        Impostazioni_Finte impostazioni;
        for (qsizetype i = 0; i < caso.prima.size(); ++i)
            impostazioni.Imposta("SalvataggioTZF", QString::number(i + 1), caso.prima[i]);
        impostazioni.Scritture = 0;
        Aggiungi_Recente(impostazioni, caso.nuovo);
        QStringList dopo;
        for (qsizetype i = 1; i <= caso.dopo.size(); ++i)
            dopo << impostazioni.Valore("SalvataggioTZF", QString::number(i));
        EXPECT_EQ(dopo, caso.dopo) << caso.nuovo;
        EXPECT_EQ(impostazioni.Scritture > 0, caso.scrive) << caso.nuovo;
    }
}

}  // namespace

#include "gui/platform/impostazioni_qt.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

class Impostazioni_Di_Prova : public testing::Test {
  protected:
    QString File() const { return cartella.filePath(QStringLiteral("s.ini")); }
    QTemporaryDir cartella;
};

TEST_F(Impostazioni_Di_Prova, GivesBackWhatWasWrittenInAnotherRun) {
    const QStringList valori{QStringLiteral("/dati/a, b/c \"d\".TZF"), QStringLiteral("C:\\Programmi\\V\\"),
                             QStringLiteral("Città è ½ €"), QString(), QStringLiteral("=;#[x]")};
    {
        Impostazioni_Qt scritte(File());
        for (qsizetype i = 0; i < valori.size(); ++i)
            scritte.Scrivi(NOME_APPLICAZIONE, QStringLiteral("SalvataggioTZF"), QString::number(i + 1),
                           valori[i]);
    }
    const Impostazioni_Qt lette(File());
    for (qsizetype i = 0; i < valori.size(); ++i)
        EXPECT_EQ(lette.Leggi(NOME_APPLICAZIONE, QStringLiteral("SalvataggioTZF"), QString::number(i + 1),
                              QStringLiteral("none")),
                  valori[i]);
}

TEST_F(Impostazioni_Di_Prova, AnswersTheDefaultForWhatWasNeverWritten) {
    Impostazioni_Qt impostazioni(File());
    impostazioni.Scrivi(NOME_APPLICAZIONE, QStringLiteral("LINGUA"), QStringLiteral("START"),
                        QStringLiteral("3"));
    EXPECT_EQ(impostazioni.Leggi(NOME_APPLICAZIONE, QStringLiteral("LINGUA"), QStringLiteral("ALTRA"),
                                 QStringLiteral("2")),
              QStringLiteral("2"));
    EXPECT_EQ(impostazioni.Leggi(QStringLiteral("Altro"), QStringLiteral("LINGUA"), QStringLiteral("START"),
                                 QStringLiteral("2")),
              QStringLiteral("2"));
}

TEST_F(Impostazioni_Di_Prova, ReadsATextWithCommasThatWasTypedWithoutQuotes) {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[INSTALLAZIONE]\nPATH=/opt/a, b/c\n");
    file.close();
    EXPECT_EQ(Impostazioni_Qt(File()).Leggi(NOME_APPLICAZIONE, QStringLiteral("INSTALLAZIONE"),
                                            QStringLiteral("PATH"), {}),
              QStringLiteral("/opt/a, b/c"));
}

}  // namespace

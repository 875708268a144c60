#include "gui/platform/impostazioni_qt.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

TEST(Impostazioni_Qt_, GivesBackWhatWasWrittenInAnotherRunElseTheDefault) {
    const QTemporaryDir cartella;
    const QString file = cartella.filePath("s.ini");
    const QStringList valori{R"(/dati/a, b/c "d".TZF)", R"(C:\Programmi\V\)", "Città è ½ €", "", "=;#[x]"};
    for (int i = 0; i < valori.size(); ++i)
        Impostazioni_Qt(file).Scrivi(NOME_APPLICAZIONE, "SalvataggioTZF", QString::number(i), valori[i]);
    const Impostazioni_Qt lette(file);
    for (int i = 0; i < valori.size(); ++i)
        EXPECT_EQ(lette.Leggi(NOME_APPLICAZIONE, "SalvataggioTZF", QString::number(i), "none"), valori[i]);
    EXPECT_EQ(lette.Leggi(NOME_APPLICAZIONE, "SalvataggioTZF", "99", "none"), "none");
}

TEST(Impostazioni_Qt_, ReadsATextWithCommasThatWasTypedWithoutQuotes) {
    const QTemporaryDir cartella;
    QFile file(cartella.filePath("s.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[INSTALLAZIONE]\nPATH=/opt/a, b/c\n");
    file.close();
    EXPECT_EQ(Impostazioni_Qt(file.fileName()).Leggi(NOME_APPLICAZIONE, "INSTALLAZIONE", "PATH", {}),
              "/opt/a, b/c");
}

}  // namespace

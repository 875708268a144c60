// What the program leaves behind when it is asked to end from outside.

#include <gtest/gtest.h>

#include <QDir>

#include "programma.h"

namespace {

TEST(End, ASignalLeavesTheTemporaryFolderAsCleanAsClosing) {
    const QTemporaryDir temp, cartella;
    const auto rimasti = [&] { return QDir(temp.path()).entryList({"TZV_*"}, QDir::Dirs); };
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert("TMPDIR", temp.path());
    processo.setProcessEnvironment(ambiente);
    processo.start(VIEWER_DRIVER, {"--settings", cartella.filePath("s.ini"), SAMPLE_PACKAGE});
    processo.write("{\"do\":\"tree\"}\n");
    ASSERT_TRUE(processo.waitForReadyRead(MS_RISPOSTA));
    ASSERT_EQ(rimasti().size(), 1);
    processo.terminate();
    ASSERT_TRUE(processo.waitForFinished(MS_RISPOSTA));
    EXPECT_EQ(processo.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(rimasti(), QStringList());
}

}  // namespace

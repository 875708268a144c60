#pragma once

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

/// Writes a file, with the folders that it needs.
inline void writeFile(const QString& path, const QByteArray& content,
                      QIODevice::OpenMode mode = QIODevice::WriteOnly) {
    QFile file(path);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()) && file.open(mode)) << path.toStdString();
    file.write(content);
}

inline QByteArray readFile(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// The program itself, with a temporary folder that shows what it leaves behind.
class Tool : public testing::Test {
  protected:
    struct Outcome {
        int code = -1;
        QByteArray out, err;

        QJsonArray array() const { return QJsonDocument::fromJson(out).array(); }
        QJsonObject object() const { return QJsonDocument::fromJson(out).object(); }
    };

    Outcome run(const QStringList& arguments) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", folder.filePath("tmp"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(TZF_PROGRAM, arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    void SetUp() override { ASSERT_TRUE(QDir(folder.path()).mkdir("tmp")); }
    void TearDown() override {
        EXPECT_TRUE(QDir(folder.filePath("tmp")).isEmpty()) << "something is left behind";
    }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};  // QProcess wants one
    QTemporaryDir folder;
};

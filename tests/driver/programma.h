#pragma once

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <stdexcept>

inline constexpr int MS_RISPOSTA = 60'000;

/// The viewer as a process of its own on the sample, led through its driver.
class Programma {
  public:
    Programma() {
        processo_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        processo_.start(VIEWER_DRIVER, {"--settings", cartella_.filePath("s.ini"), SAMPLE_PACKAGE});
    }
    ~Programma() {
        Prova("quit");
        EXPECT_TRUE(processo_.waitForFinished(MS_RISPOSTA)) << "the program doesn't end";
    }

    QJsonObject Prova(const char* comando, QJsonObject altro = {}) {
        altro.insert(u"do"_qs, comando);
        processo_.write(QJsonDocument(altro).toJson(QJsonDocument::Compact) + '\n');
        while (!processo_.canReadLine())
            if (!processo_.waitForReadyRead(MS_RISPOSTA))
                throw std::runtime_error("the program doesn't answer");
        return QJsonDocument::fromJson(processo_.readLine()).object();
    }
    /// The same for what has to succeed.
    QJsonObject Fai(const char* comando, const QJsonObject& altro = {}) {
        const QJsonObject risposta = Prova(comando, altro);
        if (!risposta["ok"].toBool())
            throw std::runtime_error(std::string(comando) + QJsonDocument(altro).toJson().toStdString() +
                                     risposta["error"].toString().toStdString());
        return risposta;
    }
    void Premi(const char* key) { Fai("command", {{"key", key}}); }
    void HotSpot(const QString& nome, const char* evento) {
        Fai("hotspot", {{"name", nome}, {"event", evento}});
    }

  private:
    QTemporaryDir cartella_;
    QProcess processo_;
};

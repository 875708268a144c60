// Commands about the session: opening, filters, windows, messages, pictures, time.

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QThread>

#include "driver/driver.h"
#include "driver/oggetti.h"

namespace {

/// A dark desktop's colours.
QPalette Tavolozza_Scura() {
    QPalette scura;
    const QColor sfondo(0x2b, 0x2d, 0x30), base(0x1e, 0x1f, 0x22), testo(0xdf, 0xe1, 0xe5),
        spento(0x7f, 0x83, 0x89);
    scura.setColor(QPalette::Window, sfondo);
    scura.setColor(QPalette::WindowText, testo);
    scura.setColor(QPalette::Base, base);
    scura.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    scura.setColor(QPalette::Text, testo);
    scura.setColor(QPalette::Button, QColor(0x3a, 0x3c, 0x40));
    scura.setColor(QPalette::ButtonText, testo);
    scura.setColor(QPalette::ToolTipBase, sfondo);
    scura.setColor(QPalette::ToolTipText, testo);
    scura.setColor(QPalette::PlaceholderText, QColor(0x9a, 0x9e, 0xa5));
    scura.setColor(QPalette::Highlight, QColor(0x3d, 0x7e, 0xc1));
    scura.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        scura.setColor(QPalette::Disabled, ruolo, spento);
    return scura;
}

constexpr int MS_QUIETE = 30;
constexpr int MS_MASSIMO_QUIETE = 5000;
}  // namespace

void Driver::Calma() {
    guardia_.stop();  // its own ticks would be taken for work
    QElapsedTimer totale, quiete;
    totale.start();
    quiete.start();
    QAbstractEventDispatcher* eventi = QAbstractEventDispatcher::instance();
    while (quiete.elapsed() < MS_QUIETE && totale.elapsed() < MS_MASSIMO_QUIETE) {
        const bool lavoro = eventi->processEvents(QEventLoop::ExcludeSocketNotifiers);
        // A drawing comes sharp from another thread.
        if (lavoro ||
            (Finestra_Pronta() && Finestra().Tavola().isVisible() && !Finestra().Tavola().Aggiornata()))
            quiete.start();
        else
            QThread::msleep(2);
    }
}

void Driver::Registra_Sessione() {
    comandi_[QStringLiteral("open")] = {[this](const QJsonObject& c) -> Esito {
        applicazione_.Controllo()->Apri_Catalogo(c.value(QStringLiteral("path")).toString());
        return QJsonObject{{QStringLiteral("open"), applicazione_.Progetto().Progetto_Aperto}};
    }};
    comandi_[QStringLiteral("filter")] = {[this](const QJsonObject& c) -> Esito {
        Class_Progetto_Aperto& progetto = applicazione_.Progetto();
        if (!progetto.Progetto_Aperto)
            throw Errore_Comando(QStringLiteral("no catalogue is open"));
        const auto prendi = [&c](const char* nome, QString& valore) {
            if (c.contains(QLatin1String(nome)))
                valore = c.value(QLatin1String(nome)).toVariant().toString();
        };
        prendi("lingua", progetto.Lingua);
        prendi("mercato", progetto.Mercato);
        prendi("gruppo", progetto.Gruppo);
        Controllo_Principale& controllo = *applicazione_.Controllo();
        controllo.Ricarica_Vista_Catalogo();
        controllo.Mostra_Intro();
        controllo.Aggiorna_Toolbar();
        return QJsonObject{};
    }};
    comandi_[QStringLiteral("windows")] = {
        [](const QJsonObject&) -> Esito {
            QJsonArray finestre;
            for (const QWidget* f : Finestre_Aperte())
                finestre.append(QJsonObject{{QStringLiteral("name"), f->objectName()},
                                            {QStringLiteral("title"), f->windowTitle()},
                                            {QStringLiteral("modal"), f->isModal()}});
            return QJsonObject{{QStringLiteral("windows"), finestre}};
        },
        false};
    comandi_[QStringLiteral("close")] = {[](const QJsonObject& c) -> Esito {
                                             QWidget& oggetto =
                                                 Trova_Oggetto(c.value(QStringLiteral("object")).toString());
                                             const bool chiusa = oggetto.window()->close();
                                             return QJsonObject{{QStringLiteral("closed"), chiusa}};
                                         },
                                         false};
    comandi_[QStringLiteral("messages")] = {
        [this](const QJsonObject&) -> Esito {
            return QJsonObject{{QStringLiteral("messages"), messaggi_.Prendi()}};
        },
        false};
    comandi_[QStringLiteral("answer")] = {[this](const QJsonObject& c) -> Esito {
                                              const QString b = c.value(QStringLiteral("button")).toString();
                                              if (!messaggi_.Rispondi(b))
                                                  throw Errore_Comando(QStringLiteral("no button %1").arg(b));
                                              return QJsonObject{};
                                          },
                                          false};
    comandi_[QStringLiteral("opened")] = {
        [this](const QJsonObject&) -> Esito {
            return QJsonObject{{QStringLiteral("opened"), sistema_.Prendi()}};
        },
        false};
    comandi_[QStringLiteral("screenshot")] = {
        [this](const QJsonObject& c) -> Esito {
            Calma();
            const QString nome = c.value(QStringLiteral("object")).toString();
            const QString file = c.value(QStringLiteral("file")).toString();
            const QWidgetList aperte = Finestre_Aperte();
            QWidget* oggetto = nome.isEmpty() ? QApplication::activeModalWidget() : &Trova_Oggetto(nome);
            if (!oggetto)
                oggetto = Finestra_Pronta() ? &Finestra() : aperte.value(0);
            if (!oggetto)
                throw Errore_Comando(QStringLiteral("no window is up"));
            if (!oggetto->grab().save(file, "PNG"))
                throw Errore_Comando(QStringLiteral("%1 can't be written").arg(file));
            return QJsonObject{{QStringLiteral("file"), file}};
        },
        false};
    comandi_[QStringLiteral("theme")] = {
        [](const QJsonObject& c) -> Esito {
            const bool scuro = c.value(QStringLiteral("dark")).toBool();
            QApplication::setPalette(scuro ? Tavolozza_Scura() : QApplication::style()->standardPalette());
            return QJsonObject{};
        },
        false};
    comandi_[QStringLiteral("settle")] = {[this](const QJsonObject&) -> Esito {
                                              Calma();
                                              return QJsonObject{};
                                          },
                                          false};
    comandi_[QStringLiteral("wait")] = {
        [this](const QJsonObject& c) -> Esito {
            QTimer::singleShot(c.value(QStringLiteral("ms")).toInt(), this, [this, n = numero_] {
                Rispondi(n, {{QStringLiteral("ok"), true}});
            });
            return std::nullopt;
        },
        false};
    comandi_[QStringLiteral("quit")] = {[](const QJsonObject&) -> Esito {
                                            QTimer::singleShot(0, qApp, [] { QApplication::quit(); });
                                            return QJsonObject{};
                                        },
                                        false};
}

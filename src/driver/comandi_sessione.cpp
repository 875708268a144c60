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
    const std::pair<QPalette::ColorRole, const char*> colori[] = {
        {QPalette::Window, "#2b2d30"},      {QPalette::WindowText, "#dfe1e5"},
        {QPalette::Base, "#1e1f22"},        {QPalette::AlternateBase, "#26282b"},
        {QPalette::Text, "#dfe1e5"},        {QPalette::Button, "#3a3c40"},
        {QPalette::ButtonText, "#dfe1e5"},  {QPalette::ToolTipBase, "#2b2d30"},
        {QPalette::ToolTipText, "#dfe1e5"}, {QPalette::PlaceholderText, "#9a9ea5"},
        {QPalette::Highlight, "#3d7ec1"},   {QPalette::HighlightedText, "#ffffff"}};
    QPalette scura;
    for (const auto& [ruolo, colore] : colori)
        scura.setColor(ruolo, QColor(colore));
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        scura.setColor(QPalette::Disabled, ruolo, QColor("#7f8389"));
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
    Comanda("open", CON_FINESTRA, [this](const QJsonObject& c) {
        Finestra().Schermo().Apertura.Apri_Catalogo(c["path"].toString());
        return QJsonObject{{"open", applicazione_.Progetto().Progetto_Aperto}};
    });
    Comanda("filter", CON_FINESTRA, [this](const QJsonObject& c) {
        Class_Progetto_Aperto& progetto = applicazione_.Progetto();
        if (!progetto.Progetto_Aperto)
            throw Errore_Comando(u"no catalogue is open"_qs);
        const auto prendi = [&c](const char* nome, QString& valore) {
            if (c.contains(nome))
                valore = c[nome].toVariant().toString();
        };
        prendi("lingua", progetto.Lingua);
        prendi("mercato", progetto.Mercato);
        prendi("gruppo", progetto.Gruppo);
        Schermo_Principale& schermo = Finestra().Schermo();
        schermo.Apertura.Ricarica_Vista_Catalogo();
        schermo.Mostra_Intro();
        schermo.Aggiorna_Toolbar();
    });
    Comanda("windows", SEMPRE, [](const QJsonObject&) {
        QJsonArray finestre;
        for (const QWidget* f : Finestre_Aperte())
            finestre.append(
                QJsonObject{{"name", f->objectName()}, {"title", f->windowTitle()}, {"modal", f->isModal()}});
        return QJsonObject{{"windows", finestre}};
    });
    Comanda("close", SEMPRE, [](const QJsonObject& c) {
        return QJsonObject{{"closed", Trova_Oggetto(c["object"].toString()).window()->close()}};
    });
    Comanda("messages", SEMPRE, [this](const QJsonObject&) {
        return QJsonObject{{"messages", messaggi_.Prendi()}};
    });
    Comanda("answer", SEMPRE, [this](const QJsonObject& c) {
        if (!messaggi_.Rispondi(c["button"].toString()))
            throw Errore_Comando(u"no button %1"_qs.arg(c["button"].toString()));
    });
    Comanda("opened", SEMPRE, [this](const QJsonObject&) {
        return QJsonObject{{"opened", sistema_.Prendi()}};
    });
    Comanda("screenshot", SEMPRE, [this](const QJsonObject& c) {
        Calma();
        const QString nome = c["object"].toString(), file = c["file"].toString();
        const QWidgetList aperte = Finestre_Aperte();
        QWidget* oggetto = nome.isEmpty() ? QApplication::activeModalWidget() : &Trova_Oggetto(nome);
        if (!oggetto)
            oggetto = Finestra_Pronta() ? &Finestra() : aperte.value(0);
        if (!oggetto)
            throw Errore_Comando(u"no window is up"_qs);
        if (!oggetto->grab().save(file, "PNG"))
            throw Errore_Comando(u"%1 can't be written"_qs.arg(file));
        return QJsonObject{{"file", file}};
    });
    Comanda("theme", SEMPRE, [](const QJsonObject& c) {
        const bool scuro = c["dark"].toBool();
        QApplication::setPalette(scuro ? Tavolozza_Scura() : QApplication::style()->standardPalette());
    });
    Comanda("settle", SEMPRE, [this](const QJsonObject&) { Calma(); });
    Comanda("wait", SEMPRE, [this](const QJsonObject& c) -> Esito {
        QTimer::singleShot(c["ms"].toInt(), this, [this, n = numero_] { Rispondi(n, {{"ok", true}}); });
        return std::nullopt;
    });
    Comanda("quit", SEMPRE, [this](const QJsonObject&) { QTimer::singleShot(0, this, &Driver::Termina); });
}

#include "driver/driver.h"

#include <unistd.h>

#include <QApplication>
#include <QJsonDocument>

#include "driver/oggetti.h"

namespace {
constexpr int MS_GUARDIA = 10;
constexpr int MS_ATTESA_FINESTRA = 60'000;

/// A dialog of the main window is up, which may be in the midst of opening a catalogue.
bool In_Un_Dialogo() {
    const QWidget* modale = QApplication::activeModalWidget();
    return modale && modale->parentWidget() && !qobject_cast<const QMessageBox*>(modale);
}

QJsonObject Errore(const QString& testo) {
    return {{"ok", false}, {"error", testo}};
}
}  // namespace

Driver::Driver(Applicazione& applicazione, Messaggi_Driver& messaggi, Sistema_Driver& sistema,
               std::function<void(const QByteArray&)> scrivi)
    : applicazione_(applicazione), messaggi_(messaggi), sistema_(sistema), scrivi_(std::move(scrivi)) {
    Registra_Sessione();
    Registra_Finestra();
    Registra_Griglia();
    Registra_Carrello();
    Registra_Tavola();
    guardia_.setInterval(MS_GUARDIA);
    connect(&guardia_, &QTimer::timeout, this, [this] {
        // The command is inside a window of its own that waits for the next command.
        QWidget* modale = QApplication::activeModalWidget();
        if (in_corso_ && modale && modale != modale_prima_ && !Messaggio_Che_Si_Chiude())
            Rispondi(numero_, {{"ok", true}, {"modal", modale->objectName()}});
    });
}

void Driver::Leggi_Da(int descrittore) {
    ingresso_ = std::make_unique<QSocketNotifier>(descrittore, QSocketNotifier::Read);
    connect(ingresso_.get(), &QSocketNotifier::activated, this, [this] { Leggi(); });
}

void Driver::Leggi() {
    char pezzo[4096];
    const ssize_t letti = ::read(static_cast<int>(ingresso_->socket()), pezzo, sizeof pezzo);
    if (letti <= 0) {
        ingresso_->setEnabled(false);
        finito_ = true;
        Prossimo();
        return;
    }
    resto_.append(pezzo, letti);
    for (qsizetype fine = resto_.indexOf('\n'); fine >= 0; fine = resto_.indexOf('\n')) {
        Accoda(resto_.left(fine));
        resto_.remove(0, fine + 1);
    }
}

void Driver::Accoda(const QByteArray& riga) {
    if (riga.trimmed().isEmpty())
        return;
    righe_.push_back(riga);
    QTimer::singleShot(0, this, &Driver::Prossimo);
}

void Driver::Prossimo() {
    if (in_corso_)
        return;
    if (righe_.empty()) {
        if (finito_)
            Termina();
        return;
    }
    const QByteArray riga = righe_.front();
    righe_.pop_front();
    in_corso_ = true;
    const int numero = ++numero_;
    modale_prima_ = QApplication::activeModalWidget();
    da_.start();
    guardia_.start();
    QJsonParseError errore;
    const QJsonDocument documento = QJsonDocument::fromJson(riga, &errore);
    if (!documento.isObject()) {
        Rispondi(numero, Errore(u"not a JSON object: %1"_qs.arg(errore.errorString())));
        return;
    }
    Prova(numero, documento.object());
}

bool Driver::Finestra_Pronta() const {
    Form_Main* finestra = applicazione_.Finestra();
    return finestra && finestra->isVisible() && !finestra->Schermo().Occupato();
}

bool Driver::Messaggio_Che_Si_Chiude() const {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) && !messaggi_.In_Attesa();
}

void Driver::Prova(int numero, const QJsonObject& comando) {
    const QString nome = comando["do"].toString();
    const auto voce = comandi_.constFind(nome);
    if (voce == comandi_.constEnd()) {
        Rispondi(numero, Errore(u"no command %1"_qs.arg(nome)));
        return;
    }
    const bool pronta = !Messaggio_Che_Si_Chiude() && (Finestra_Pronta() || In_Un_Dialogo());
    if (voce->quando == CON_FINESTRA && !pronta) {
        if (da_.elapsed() > MS_ATTESA_FINESTRA)
            Rispondi(numero, Errore(u"the main window isn't there"_qs));
        else
            QTimer::singleShot(MS_GUARDIA, this, [this, numero, comando] { Prova(numero, comando); });
        return;
    }
    if (voce->quando == CON_FINESTRA)
        Ascolta_Tavola();
    Esito esito;
    try {
        esito = voce->Esegui(comando);
    } catch (const Errore_Comando& errore) {
        esito = Errore(QString::fromUtf8(errore.what()));
    } catch (const std::exception& errore) {
        Guasto(QString::fromUtf8(errore.what()));
        esito.emplace();
    }
    if (!esito)
        return;
    esito->insert("ok", esito->value("ok").toBool(true));
    Rispondi(numero, *esito);
}

void Driver::Rispondi(int numero, QJsonObject risposta) {
    // A command answered early, for the modal window that it brought up, comes back here when that is closed.
    if (numero != numero_ || !in_corso_)
        return;
    in_corso_ = false;
    guardia_.stop();
    if (const QString guasto = std::exchange(guasto_, {}); !guasto.isEmpty())
        risposta = Errore(guasto);
    scrivi_(QJsonDocument(risposta).toJson(QJsonDocument::Compact));
    QTimer::singleShot(0, this, &Driver::Prossimo);
}

void Driver::Guasto(const QString& testo) {
    fallito_ = true;
    guasto_ = u"the program failed: %1"_qs.arg(testo);
}

void Driver::Termina() {
    QApplication::exit(fallito_ ? 1 : 0);
}

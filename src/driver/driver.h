#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QSocketNotifier>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <functional>
#include <optional>

#include "app/applicazione.h"
#include "driver/porte_driver.h"

/// Drives the application: reads commands, one JSON object a line, carries each out from the event loop and
/// writes one answer a line, in the commands' order. A command that brings up a modal window is answered as
/// soon as that window is there, so that the next one can work inside it.
class Driver : public QObject {
    Q_OBJECT
  public:
    /// `scrivi` takes an answer, a line without its end.
    Driver(Applicazione& applicazione, Messaggi_Driver& messaggi, Sistema_Driver& sistema,
           std::function<void(const QByteArray&)> scrivi);
    /// Reads the commands from a file descriptor; its end ends the program.
    void Leggi_Da(int descrittore);
    /// Takes a command line.
    void Accoda(const QByteArray& riga);
    /// A fault of the program, not of a command: the answer under way, or else the next one, fails, and so
    /// does the run.
    void Guasto(const QString& testo);

  private:
    using Esito = std::optional<QJsonObject>;  ///< none: the command answers by itself later
    using Comando = std::function<Esito(const QJsonObject&)>;
    /// When a command can be carried out: once the main window is up and idle, or whatever is up.
    enum Quando { CON_FINESTRA, SEMPRE };
    struct Voce {
        Quando quando;
        Comando Esegui;
    };
    /// Registers a command. What returns nothing is answered with a plain "ok".
    template <typename Lavoro>
    void Comanda(const QString& nome, Quando quando, Lavoro lavoro) {
        comandi_[nome] = {quando, [lavoro](const QJsonObject& c) -> Esito {
                              if constexpr (std::is_void_v<decltype(lavoro(c))>) {
                                  lavoro(c);
                                  return QJsonObject{};
                              } else {
                                  return lavoro(c);
                              }
                          }};
    }

    void Registra_Sessione();
    void Registra_Finestra();
    void Registra_Griglia();
    void Registra_Carrello();
    void Registra_Tavola();
    void Ascolta_Tavola();
    void Leggi();
    void Prossimo();
    void Prova(int numero, const QJsonObject& comando);
    void Rispondi(int numero, QJsonObject risposta);
    bool Finestra_Pronta() const;
    /// A plain message is up, which the driver is about to close.
    bool Messaggio_Che_Si_Chiude() const;
    /// Lets events run until none has come for a while.
    void Calma();
    /// Ends the program: with 0, or with 1 after a fault.
    void Termina();
    Form_Main& Finestra() { return *applicazione_.Finestra(); }

    Applicazione& applicazione_;
    Messaggi_Driver& messaggi_;
    Sistema_Driver& sistema_;
    std::function<void(const QByteArray&)> scrivi_;
    QHash<QString, Voce> comandi_;
    std::unique_ptr<QSocketNotifier> ingresso_;
    QByteArray resto_;
    std::deque<QByteArray> righe_;
    QTimer guardia_;
    QElapsedTimer da_;
    QWidget* modale_prima_ = nullptr;
    int numero_ = 0;
    bool in_corso_ = false;
    bool finito_ = false;
    bool fallito_ = false;
    QString guasto_;            ///< fault that no answer has told yet
    QJsonArray eventi_tavola_;  ///< what the canvas told since the last `canvas`
    bool ascolta_tavola_ = false;
};

#include "driver/porte_driver.h"

#include <QAbstractButton>
#include <QHash>
#include <QJsonObject>
#include <QTimer>
#include <utility>

namespace {

QString Nome_Icona(QMessageBox::Icon icona) {
    static const QHash<int, QString> nomi{{QMessageBox::Information, "information"},
                                          {QMessageBox::Warning, "exclamation"},
                                          {QMessageBox::Critical, "critical"},
                                          {QMessageBox::Question, "question"}};
    return nomi.value(icona, "none");
}

QMessageBox::StandardButton Bottone(const QString& nome) {
    static const QHash<QString, QMessageBox::StandardButton> bottoni{{"ok", QMessageBox::Ok},
                                                                     {"yes", QMessageBox::Yes},
                                                                     {"no", QMessageBox::No},
                                                                     {"cancel", QMessageBox::Cancel}};
    return bottoni.value(nome.toLower(), QMessageBox::NoButton);
}

}  // namespace

QJsonArray Messaggi_Driver::Prendi() {
    return std::exchange(mostrati_, {});
}

bool Messaggi_Driver::Rispondi(const QString& nome) {
    const QMessageBox::StandardButton bottone = Bottone(nome);
    if (bottone == QMessageBox::NoButton)
        return false;
    if (in_attesa_) {
        QAbstractButton* da_premere = in_attesa_->button(bottone);
        if (!da_premere)
            return false;
        QTimer::singleShot(0, da_premere, &QAbstractButton::click);
    } else {
        risposte_.push_back(bottone);
    }
    return true;
}

QMessageBox::StandardButton Messaggi_Driver::Esegui(QMessageBox& finestra) {
    mostrati_.append(QJsonObject{{"text", finestra.text()}, {"icon", Nome_Icona(finestra.icon())}});
    QAbstractButton* risposta = finestra.button(QMessageBox::Ok);
    if (!risposta && !risposte_.empty()) {
        risposta = finestra.button(risposte_.front());
        risposte_.pop_front();
    }
    if (risposta)
        QTimer::singleShot(0, risposta, &QAbstractButton::click);
    else
        in_attesa_ = &finestra;
    const auto esito = Messaggi_Qt::Esegui(finestra);
    in_attesa_.clear();
    return esito;
}

QJsonArray Sistema_Driver::Prendi() {
    return std::exchange(aperti_, {});
}

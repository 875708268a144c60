#pragma once

#include <QJsonArray>
#include <QPointer>
#include <deque>

#include "gui/platform/messaggi_qt.h"
#include "gui/platform/sistema_qt.h"

/// Message boxes that are really shown, and answered by the driver. A plain message is closed at once; a
/// question takes the next answer of the queue, or stays open until there is one.
class Messaggi_Driver : public Messaggi_Qt {
  public:
    /// Boxes since the last call: text, icon.
    QJsonArray Prendi();
    /// Answers the question that is up, else the next one. False for a name that is no button.
    bool Rispondi(const QString& bottone);
    /// A box that waits for an answer; nullptr when there is none.
    const QMessageBox* In_Attesa() const { return in_attesa_; }

  protected:
    QMessageBox::StandardButton Esegui(QMessageBox& finestra) override;

  private:
    QJsonArray mostrati_;
    std::deque<QMessageBox::StandardButton> risposte_;
    QPointer<QMessageBox> in_attesa_;
};

/// The real system, except that nothing is opened: what would be is kept.
class Sistema_Driver : public Sistema_Qt {
  public:
    void Apri_Con_Predefinito(const QString& percorso) override { aperti_.append(percorso); }
    /// What was opened since the last call.
    QJsonArray Prendi();

  private:
    QJsonArray aperti_;
};

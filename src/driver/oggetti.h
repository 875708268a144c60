#pragma once

#include <QJsonValue>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <stdexcept>

/// What a command answers when it can't be carried out.
class Errore_Comando : public std::runtime_error {
  public:
    explicit Errore_Comando(const QString& testo) : std::runtime_error(testo.toStdString()) {}
};

/// The object of this name ("Form/Name" where several windows have one), in the windows that are up first.
/// Fails when there is none.
QWidget& Trova_Oggetto(const QString& nome);
/// The same for an object that the user could act upon: shown, enabled, not behind a modal window.
QWidget& Trova_Usabile(const QString& nome);
/// Fails unless the user could act upon the object.
void Richiedi_Usabile(const QWidget& oggetto);
/// A property's value as JSON: numbers, texts, switches; points, sizes and rectangles as arrays.
QJsonValue In_Json(const QVariant& valore);
/// The windows that are up, as the user sees them.
QList<QWidget*> Finestre_Aperte();

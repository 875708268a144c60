#pragma once

#include <QByteArray>
#include <QString>

#include "canvas/limiti.h"

/// Reads a file whole. "" with the reason in `rifiuto` when it can't be read or is larger than the limits.
QByteArray Leggi_File(const QString& percorso, const Limiti& limiti, QString& rifiuto);
/// Inflates the data if they are gzip. "" with the reason in `rifiuto` when they are damaged or too large.
QByteArray Espandi_Dati(QByteArray dati, const Limiti& limiti, QString& rifiuto);

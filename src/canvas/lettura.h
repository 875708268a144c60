#pragma once

#include <QByteArray>
#include <QString>

#include "canvas/limiti.h"

/// Reads a file whole, inflates it if it is gzip, and brings UTF-16 and Latin-1 documents to UTF-8. "" with
/// the reason in `rifiuto` when the file can't be read, is larger than the limits, or doesn't begin as an XML
/// document does.
QByteArray Leggi_Xml(const QString& percorso, const Limiti& limiti, QString& rifiuto);
/// The same for data in memory.
QByteArray Prepara_Xml(QByteArray dati, const Limiti& limiti, QString& rifiuto);

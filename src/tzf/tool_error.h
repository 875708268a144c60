#pragma once

#include <QString>
#include <stdexcept>

#include "core/archivio/archivio.h"
#include "core/catalogue_db/engine/database.h"

/// Work that failed, with a message for the publisher; the tool ends with code 1.
class ToolError : public std::runtime_error {
  public:
    explicit ToolError(const QString& message)
        : std::runtime_error(message.toStdString()), message_(message) {}
    const QString& message() const { return message_; }

  private:
    QString message_;
};

/// Work on a database, which told what is wrong with `Errore_DB`, as work of the tool: `what` stands in
/// front.
template <class Work>
auto onDatabase(const char* what, Work&& work) {
    try {
        return work();
    } catch (const Errore_DB& error) {
        throw ToolError(QLatin1String(what) + error.Descrizione());
    }
}

/// A fault in a source file: `line` is the line of the file, from 1.
class SourceError : public ToolError {
  public:
    SourceError(const QString& file, qint64 line, const QString& message)
        : ToolError(QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(message)) {}
};

/// Fails with `ToolError` unless the outcome of an operation on an archive is success. `what` is the archive,
/// entry or file.
inline void require(Stato_Archivio outcome, const QString& what) {
    if (outcome == SPAZIO_INSUFFICIENTE)
        throw ToolError(what + QStringLiteral(": the disk is full"));
    if (outcome == SCRITTURA_FALLITA)
        throw ToolError(what + QStringLiteral(": the file can't be written"));
    if (outcome != ARCHIVIO_OK)
        throw ToolError(what + QStringLiteral(": ") + Descrizione_Stato(outcome));
}

/// A command line that can't be understood; the tool ends with code 2.
class UsageError : public ToolError {
  public:
    using ToolError::ToolError;
};

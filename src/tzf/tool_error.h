#pragma once

#include <QString>
#include <stdexcept>

/// Work that failed, with a message for the publisher; the tool ends with code 1.
class ToolError : public std::runtime_error {
  public:
    explicit ToolError(const QString& message)
        : std::runtime_error(message.toStdString()), message_(message) {}
    const QString& message() const { return message_; }

  private:
    QString message_;
};

/// A fault in a source file: `line` is the line of the file, from 1.
class SourceError : public ToolError {
  public:
    SourceError(const QString& file, qint64 line, const QString& message)
        : ToolError(QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(message)) {}
};

/// A command line that can't be understood; the tool ends with code 2.
class UsageError : public ToolError {
  public:
    using ToolError::ToolError;
};

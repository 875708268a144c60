#pragma once

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QString>
#include <QStringList>
#include <vector>

/// How the tool ends.
enum ExitCode {
    EXIT_DONE = 0,
    EXIT_FAULTS = 1,  ///< errors were found, or the work failed
    EXIT_USAGE = 2    ///< the command line can't be understood
};

/// A command line whose options are read already.
struct CommandLine {
    const QCommandLineParser& options;
    QStringList arguments;

    bool json() const { return options.isSet(QStringLiteral("json")); }
    /// A whole number of at least `lowest`. Fails with `UsageError`.
    qint64 number(const QString& option, qint64 lowest) const;
};

/// One command of the tool.
struct Command {
    QString name;
    QStringList arguments;  ///< names of the arguments; one in brackets may be left out
    QString summary;        ///< one line
    QString description;    ///< for its help
    bool json;              ///< it prints something that `--json` makes readable for programs
    QList<QCommandLineOption> options;
    int (*run)(const CommandLine&);
};

Command newCommand();
Command packCommand();
Command unpackCommand();
Command listCommand();
Command infoCommand();
Command checkCommand();
Command treeCommand();
Command partsCommand();
Command orderCommand();
Command generateCommand();

/// Writes a line on the standard output.
void print(const QString& line);
/// Writes a document on the standard output.
void print(const QJsonDocument& document);
/// Writes a line on the standard error.
void printError(const QString& line);

/// Runs the tool and answers its exit code. `arguments` begin with the program's name.
int runTool(const QStringList& arguments);

#include <QCoreApplication>
#include <cstdio>

#include "core/catalogue_db/engine/database.h"
#include "tzf/commands/command.h"
#include "tzf/tool_error.h"

namespace {

std::vector<Command> allCommands() {
    return {newCommand(),   packCommand(), unpackCommand(), listCommand(),  infoCommand(),
            checkCommand(), treeCommand(), partsCommand(),  orderCommand(), generateCommand()};
}

QString usage(const Command& command) {
    return QStringLiteral("tzf %1 [options] %2").arg(command.name, command.arguments.join(u' '));
}

void printHelp() {
    print(
        QStringLiteral("Usage: tzf COMMAND [options] ...\n\nMakes, takes apart and examines the packages of "
                       "parts catalogues.\n\nCommands:"));
    for (const Command& command : allCommands())
        print(QStringLiteral("  %1  %2").arg(command.name, -9).arg(command.summary));
    print(
        QStringLiteral("\n  tzf COMMAND --help   tells more of a command\n"
                       "  tzf --version        prints the version\n\n"
                       "Ends with 0 when all is well, with 1 when errors were found or the work failed,\n"
                       "with 2 when the command line is wrong."));
}

void printHelp(const Command& command, const QCommandLineParser& parser) {
    // The parser's own text, with the usage line of a program that has commands.
    const QString text = parser.helpText();
    const qsizetype options = text.indexOf(QStringLiteral("Options:"));
    print(QStringLiteral("Usage: %1\n\n%2\n\n%3")
              .arg(usage(command), command.description, text.mid(options).trimmed()));
}

int runCommand(const Command& command, const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this text.")});
    if (command.json)
        parser.addOption({QStringLiteral("json"), QStringLiteral("Prints JSON.")});
    parser.addOptions(command.options);
    if (!parser.parse(arguments))
        throw UsageError(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        printHelp(command, parser);
        return EXIT_DONE;
    }
    const QStringList given = parser.positionalArguments();
    const auto optional = std::count_if(command.arguments.begin(), command.arguments.end(),
                                        [](const QString& name) { return name.startsWith(u'['); });
    if (given.size() < command.arguments.size() - optional || given.size() > command.arguments.size())
        throw UsageError(QStringLiteral("usage: ") + usage(command));
    for (const QString& argument : given)
        if (argument.isEmpty())
            throw UsageError(QStringLiteral("an argument is empty; usage: ") + usage(command));
    return command.run({parser, given});
}

int dispatch(const QStringList& arguments) {
    const QString first = arguments.value(1);
    if (first == u"--help" || first == u"-h" || first == u"help") {
        printHelp();
        return EXIT_DONE;
    }
    if (first == u"--version") {
        print(QStringLiteral("tzf ") + QCoreApplication::applicationVersion());
        return EXIT_DONE;
    }
    for (const Command& command : allCommands())
        if (command.name == first)
            return runCommand(command, arguments.mid(1));
    throw UsageError(first.isEmpty()
                         ? QStringLiteral("a command is missing; tzf --help lists them")
                         : QStringLiteral("\"%1\" is no command; tzf --help lists them").arg(first));
}

}  // namespace

qint64 CommandLine::number(const QString& option, qint64 lowest) const {
    bool ok = false;
    const qint64 value = options.value(option).toLongLong(&ok);
    if (!ok || value < lowest)
        throw UsageError(QStringLiteral("--%1 wants a whole number of at least %2").arg(option).arg(lowest));
    return value;
}

void print(const QString& line) {
    const QByteArray text = line.toUtf8() + '\n';
    std::fwrite(text.constData(), 1, static_cast<size_t>(text.size()), stdout);
}

void print(const QJsonDocument& document) {
    const QByteArray text = document.toJson();
    std::fwrite(text.constData(), 1, static_cast<size_t>(text.size()), stdout);
}

void printError(const QString& line) {
    const QByteArray text = "tzf: " + line.toUtf8() + '\n';
    std::fwrite(text.constData(), 1, static_cast<size_t>(text.size()), stderr);
}

int runTool(const QStringList& arguments) {
    try {
        const int code = dispatch(arguments);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
            throw ToolError(QStringLiteral("the output can't be written"));
        return code;
    } catch (const UsageError& error) {
        printError(error.message());
        return EXIT_USAGE;
    } catch (const ToolError& error) {
        printError(error.message());
    } catch (const Errore_DB& error) {
        printError(error.Descrizione());
    } catch (const std::exception& error) {
        printError(QString::fromUtf8(error.what()));
    }
    return EXIT_FAULTS;
}

#include "app/argomenti.h"

#include <QCommandLineParser>

Argomenti Leggi_Argomenti(const QCoreApplication& programma, const QString& descrizione) {
    QCommandLineParser argomenti;
    argomenti.setApplicationDescription(descrizione);
    argomenti.addHelpOption();
    argomenti.addVersionOption();
    const QCommandLineOption impostazioni(
        QStringLiteral("settings"), QStringLiteral("Keep the settings in FILE."), QStringLiteral("FILE"));
    const QCommandLineOption installazione(
        QStringLiteral("install"), QStringLiteral("Folder that holds Data and Help."), QStringLiteral("DIR"));
    argomenti.addOptions({impostazioni, installazione});
    argomenti.addPositionalArgument(QStringLiteral("package"),
                                    QStringLiteral("Catalogue to open, a .TZF file."),
                                    QStringLiteral("[package]"));
    argomenti.process(programma);
    return {argomenti.value(impostazioni),
            {argomenti.positionalArguments().join(u' '), QCoreApplication::applicationDirPath(),
             argomenti.value(installazione)}};
}

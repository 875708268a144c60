#include "core/catalogue_db/schema.h"
#include "tzf/commands/command.h"
#include "tzf/package/generate.h"
#include "tzf/tool_error.h"

namespace {

int generate(const CommandLine& line) {
    for (const char* needed : {"nodes", "rows", "products"})
        if (!line.options.isSet(QLatin1String(needed)))
            throw UsageError(QStringLiteral("--%1 is missing").arg(QLatin1String(needed)));
    GeneratedSize size;
    size.nodes = line.number(QStringLiteral("nodes"), 3);
    size.rows = line.number(QStringLiteral("rows"), 0);
    size.products = line.number(QStringLiteral("products"), 1);
    size.seed = static_cast<quint32>(line.number(QStringLiteral("seed"), 0));
    const qint64 languages = line.number(QStringLiteral("lingue"), 1);
    if (languages > ULTIMA_LINGUA)
        throw UsageError(QStringLiteral("--lingue wants at most %1").arg(ULTIMA_LINGUA));
    size.languages = static_cast<int>(languages);
    generateCatalogue(line.arguments.at(0), size);
    return EXIT_DONE;
}

}  // namespace

Command generateCommand() {
    const QString number = QStringLiteral("N");
    return {
        QStringLiteral("generate"),
        {QStringLiteral("PACKAGE")},
        QStringLiteral("makes a large catalogue for measuring"),
        QStringLiteral(
            "Makes a large, plausible catalogue without media, to measure how fast the viewer is."),
        false,
        {{QStringLiteral("nodes"), QStringLiteral("Nodes of the tree, products included."), number},
         {QStringLiteral("rows"), QStringLiteral("Rows of all parts lists together."), number},
         {QStringLiteral("products"), QStringLiteral("Products."), number},
         {QStringLiteral("lingue"), QStringLiteral("Languages, 5 without it."), number, QStringLiteral("5")},
         {QStringLiteral("seed"), QStringLiteral("The same seed gives the same catalogue; 1 without it."),
          number, QStringLiteral("1")}},
        generate};
}

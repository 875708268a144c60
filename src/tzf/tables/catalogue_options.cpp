#include "tzf/tables/catalogue_options.h"

#include <QDir>
#include <QFileInfo>

namespace {

SheetMapping readMapping(const OptionReader& import, const QString& key, const QString& folder,
                         const QString& place) {
    SheetMapping mapping;
    if (!import.has(key))
        return mapping;
    const OptionReader options = import.object(key);
    options.allow({QStringLiteral("file"), QStringLiteral("sheet"), QStringLiteral("decimal"),
                   QStringLiteral("columns"), QStringLiteral("titles")});
    const QString file = options.text(QStringLiteral("file"));
    mapping.file = QDir::cleanPath(QDir(folder).absoluteFilePath(file));
    if (!QFileInfo(mapping.file).isFile())
        options.fail(QStringLiteral("\"import.%1.file\": \"%2\" isn't there").arg(key, file));
    mapping.sheet = options.text(QStringLiteral("sheet"));
    const QString decimal = options.text(QStringLiteral("decimal"));
    if (!decimal.isEmpty() && decimal != u"," && decimal != u".")
        options.fail(QStringLiteral("\"import.%1.decimal\" can be \",\" or \".\"").arg(key));
    mapping.decimal = decimal.isEmpty() ? QChar() : decimal.front();
    mapping.columns = options.map(QStringLiteral("columns"));
    const OptionReader titles = options.object(QStringLiteral("titles"));
    for (const QString& column : titles.keys())
        mapping.titles.insert(column, titles.map(column));
    mapping.place = place;
    return mapping;
}

}  // namespace

QStringList CatalogueOptions::known() {
    return {QStringLiteral("complete"), QStringLiteral("title"), QStringLiteral("languages"),
            QStringLiteral("settings"), QStringLiteral("import")};
}

CatalogueOptions CatalogueOptions::read(const OptionReader& options, const QString& folder,
                                        const QString& place) {
    CatalogueOptions result;
    result.place = place;
    result.complete = options.boolean(QStringLiteral("complete"), true);
    const QString title = QStringLiteral("title");
    if (options.isText(title))
        result.title.insert({}, options.text(title));
    else
        result.title = options.map(title);
    result.languages = options.list(QStringLiteral("languages"));
    result.settings = options.map(QStringLiteral("settings"));
    const OptionReader import = options.object(QStringLiteral("import"));
    import.allow({QStringLiteral("parts"), QStringLiteral("products"), QStringLiteral("lists")});
    result.parts = readMapping(import, QStringLiteral("parts"), folder, place);
    result.products = readMapping(import, QStringLiteral("products"), folder, place);
    result.lists = readMapping(import, QStringLiteral("lists"), folder, place);
    return result;
}

void CatalogueOptions::inherit(const CatalogueOptions& base) {
    complete = complete && base.complete;
    if (title.isEmpty())
        title = base.title;
    if (languages.isEmpty())
        languages = base.languages;
    for (auto it = base.settings.begin(); it != base.settings.end(); ++it)
        if (!settings.contains(it.key()))
            settings.insert(it.key(), *it);
    const auto take = [](SheetMapping& own, const SheetMapping& theirs) {
        if (!own.isGiven())
            own = theirs;
    };
    take(parts, base.parts);
    take(products, base.products);
    take(lists, base.lists);
}

QStringList CatalogueOptions::files() const {
    QStringList files;
    for (const SheetMapping* mapping : {&parts, &products, &lists})
        if (mapping->isGiven())
            files << mapping->file;
    return files;
}

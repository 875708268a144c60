#include "tzf/tables/option_reader.h"

#include <QJsonArray>

#include "tzf/tool_error.h"

void OptionReader::fail(const QString& message) const {
    throw ToolError(QStringLiteral("%1: %2").arg(place_, message));
}

QString OptionReader::named(const QString& key) const {
    return path_.isEmpty() ? u'"' + key + u'"' : u'"' + path_ + u'.' + key + u'"';
}

void OptionReader::allow(const QStringList& known) const {
    for (const QString& key : object_.keys())
        if (!known.contains(key))
            fail(QStringLiteral("%1 is no option; there are: %2")
                     .arg(named(key), known.join(QStringLiteral(", "))));
}

QString OptionReader::text(const QString& key, const QString& absent) const {
    const QJsonValue value = object_.value(key);
    if (value.isUndefined())
        return absent;
    if (!value.isString())
        fail(named(key) + QStringLiteral(" must be a text"));
    return value.toString();
}

bool OptionReader::boolean(const QString& key, bool absent) const {
    const QJsonValue value = object_.value(key);
    if (value.isUndefined())
        return absent;
    if (!value.isBool())
        fail(named(key) + QStringLiteral(" must be true or false"));
    return value.toBool();
}

QStringList OptionReader::list(const QString& key) const {
    QStringList texts;
    const QJsonValue value = object_.value(key);
    if (!value.isUndefined() && !value.isArray())
        fail(named(key) + QStringLiteral(" must be a list of texts"));
    const QJsonArray items = value.toArray();
    for (const auto item : items) {
        if (!item.isString())
            fail(named(key) + QStringLiteral(" must be a list of texts"));
        texts << item.toString();
    }
    return texts;
}

QMap<QString, QString> OptionReader::map(const QString& key) const {
    QMap<QString, QString> texts;
    const QJsonValue value = object_.value(key);
    if (!value.isUndefined() && !value.isObject())
        fail(named(key) + QStringLiteral(" must be an object of texts"));
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!it->isString())
            fail(named(key) + QStringLiteral(" must be an object of texts"));
        texts.insert(it.key(), it->toString());
    }
    return texts;
}

OptionReader OptionReader::object(const QString& key) const {
    const QJsonValue value = object_.value(key);
    if (!value.isUndefined() && !value.isObject())
        fail(named(key) + QStringLiteral(" must be an object"));
    return {value.toObject(), place_, path_.isEmpty() ? key : path_ + u'.' + key};
}

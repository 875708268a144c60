#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

/// An object of `catalogue.json`, read strictly: what it holds is of the form that is asked for, or the
/// reading fails with a `ToolError` that names file and option.
class OptionReader {
  public:
    /// `place` is the file, `path` the names of the options around this object ("" for the file's own
    /// object).
    OptionReader(QJsonObject object, QString place, QString path = {})
        : object_(std::move(object)), place_(std::move(place)), path_(std::move(path)) {}

    /// Fails on an option that isn't among the known ones.
    void allow(const QStringList& known) const;
    bool has(const QString& key) const { return object_.contains(key); }
    bool isText(const QString& key) const { return object_.value(key).isString(); }
    QStringList keys() const { return object_.keys(); }

    QString text(const QString& key, const QString& absent = {}) const;
    bool boolean(const QString& key, bool absent) const;
    QStringList list(const QString& key) const;
    QMap<QString, QString> map(const QString& key) const;
    /// An object in this one; an empty one when it isn't there.
    OptionReader object(const QString& key) const;
    [[noreturn]] void fail(const QString& message) const;

  private:
    QString named(const QString& key) const;

    QJsonObject object_;
    QString place_, path_;
};

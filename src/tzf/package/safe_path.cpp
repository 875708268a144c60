#include "tzf/package/safe_path.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include "tzf/tool_error.h"

namespace {

constexpr qsizetype LONGEST_PART = 200;
constexpr qsizetype LONGEST_PATH = 1000;

bool isSafePart(const QString& part) {
    static const QRegularExpression refused(QStringLiteral("[\\x00-\\x1f\\x7f\\\\:*?\"<>|]"));
    static const QRegularExpression device(QStringLiteral("^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\..*)?$"),
                                           QRegularExpression::CaseInsensitiveOption);
    return !part.isEmpty() && part.toUtf8().size() <= LONGEST_PART && !part.startsWith(u'.') &&
           !part.endsWith(u'.') && part == part.trimmed() && !part.contains(refused) &&
           !part.contains(device) && !part.contains(QChar::ReplacementCharacter);
}

}  // namespace

bool isSafePath(const QString& entry) {
    if (entry.toUtf8().size() > LONGEST_PATH)
        return false;
    const QStringList parts = entry.split(u'/');
    return std::all_of(parts.begin(), parts.end(), isSafePart);
}

bool PathRegister::take(const QString& path) {
    const QString key = path.toCaseFolded();
    if (files_.contains(key) || folders_.contains(key))
        return false;
    if (const qsizetype slash = path.lastIndexOf(u'/'); slash > 0 && !takeFolder(path.left(slash)))
        return false;
    files_.insert(key);
    return true;
}

bool PathRegister::takeFolder(const QString& path) {
    for (qsizetype slash = path.indexOf(u'/'); slash >= 0; slash = path.indexOf(u'/', slash + 1))
        if (files_.contains(path.left(slash).toCaseFolded()))
            return false;
    if (files_.contains(path.toCaseFolded()))
        return false;
    for (qsizetype slash = path.indexOf(u'/'); slash >= 0; slash = path.indexOf(u'/', slash + 1))
        folders_.insert(path.left(slash).toCaseFolded());
    folders_.insert(path.toCaseFolded());
    return true;
}

QString substitutePath(const QString& entry, int number) {
    static const QRegularExpression other(QStringLiteral("[^A-Za-z0-9._-]"));
    QString last = entry.section(QRegularExpression(QStringLiteral("[/\\\\]")), -1);
    last = last.replace(other, QStringLiteral("_")).right(60);
    return QStringLiteral("_entries/%1_%2x").arg(number, 4, 10, QChar(u'0')).arg(last);
}

QString pathInside(const QString& folder, const QString& relative) {
    QString path = folder;
    for (const QString& part : relative.split(u'/')) {
        path += u'/' + part;
        if (QFileInfo(path).isSymLink())
            throw ToolError(QStringLiteral("%1: is a link; nothing is written through it").arg(path));
    }
    const QString parent = QFileInfo(path).path();
    if (!QDir().mkpath(parent))
        throw ToolError(QStringLiteral("%1: the folder can't be made").arg(parent));
    return path;
}

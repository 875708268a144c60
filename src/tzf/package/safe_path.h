#pragma once

#include <QSet>
#include <QString>

/// Whether an entry's name can be the path of a file in a source folder as it is: relative, "/" between
/// folders, nothing that leads out of the folder, that a desktop system refuses, or that is hidden.
bool isSafePath(const QString& entry);

/// The paths given out in one folder. No two of them are the same file on a system that knows no upper and
/// lower case, and none is both a file and a folder.
class PathRegister {
  public:
    /// Takes a path; false when it collides with one that is taken.
    bool take(const QString& path);
    /// Takes a folder, so that no file can have its name; any number of times.
    bool takeFolder(const QString& path);

  private:
    QSet<QString> files_;
    QSet<QString> folders_;
};

/// A path that is always safe for an entry that can't keep its name: its last part, cleaned, under
/// "_entries" with a number.
QString substitutePath(const QString& entry, int number);

/// The full path of a file in a folder, its own folders made. Fails with `ToolError` where a link would lead
/// the file out of the folder.
QString pathInside(const QString& folder, const QString& relative);

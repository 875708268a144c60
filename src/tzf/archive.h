#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

struct zip;

/// One entry of a package.
struct ArchiveEntry {
    QString name;  ///< folders written with "/"; a folder's own entry ends with it
    qint64 size = 0;
    qint64 compressed = 0;
    bool encrypted = false;

    bool isFolder() const { return name.endsWith(u'/'); }
};

/// An existing package, opened for reading with the packages' password.
class ArchiveReader {
  public:
    /// Fails with `ToolError` on a file that isn't a zip archive.
    explicit ArchiveReader(const QString& path);

    /// In the archive's order.
    const std::vector<ArchiveEntry>& entries() const { return entries_; }
    /// Writes the content of the entry at that position into a file. Fails with
    /// `ToolError` on a wrong password, a damaged entry, one that doesn't keep to its size, and a full disk;
    /// then nothing is left of the file.
    void extract(size_t position, const QString& path) const;
    /// The first bytes of an entry.
    QByteArray head(size_t position, qint64 bytes) const;
    /// Position of the last entry whose name ends with `name`, as the viewer looks for files; -1 for none.
    int lastEndingWith(const QString& name) const;

  private:
    std::shared_ptr<zip> archive_;
    std::vector<ArchiveEntry> entries_;
};

/// Makes a package: every entry compressed and under the packages' password, with one fixed time, so that
/// packing the same content twice gives the same listing. The package appears under its name when it is
/// finished: a failure leaves an existing file as it was.
class ArchiveWriter {
  public:
    explicit ArchiveWriter(const QString& path);
    ~ArchiveWriter();
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;

    /// The file must stay until `finish`.
    void addFile(const QString& entry, const QString& path);
    void addContent(const QString& entry, const QByteArray& content);
    void addFolder(const QString& entry);
    /// Writes the package; `progress` is told a part between 0 and 1.
    void finish(const std::function<void(double)>& progress = {});

  private:
    QString path_;
    QString temporary_;
    zip* archive_ = nullptr;
    std::vector<QByteArray> contents_;
};

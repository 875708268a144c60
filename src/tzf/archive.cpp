#include "tzf/archive.h"

#include <zip.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include "core/package/unpacking.h"
#include "tzf/tool_error.h"

namespace {

// Larger than any file of a catalogue; what claims or gives more is a bomb.
constexpr qint64 LARGEST_ENTRY = qint64(4) << 30;

QString errorText(int code) {
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    const QString text = QString::fromUtf8(zip_error_strerror(&error));
    zip_error_fini(&error);
    return text;
}

}  // namespace

ArchiveReader::ArchiveReader(const QString& path) {
    int code = 0;
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, &code);
    if (archive == nullptr)
        throw ToolError(QStringLiteral("%1: %2").arg(path, errorText(code)));
    archive_.reset(archive, zip_discard);
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    entries_.reserve(static_cast<size_t>(count));
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t stat;
        zip_stat_init(&stat);
        if (zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &stat) != 0)
            throw ToolError(QStringLiteral("%1: %2").arg(path, QString::fromUtf8(zip_strerror(archive))));
        entries_.push_back({QString::fromUtf8(stat.name), static_cast<qint64>(stat.size),
                            static_cast<qint64>(stat.comp_size), stat.encryption_method != ZIP_EM_NONE});
    }
}

namespace {

/// An entry that is being read.
class EntryStream {
  public:
    EntryStream(zip_t* archive, size_t position, const ArchiveEntry& entry)
        : entry_(entry),
          file_(zip_fopen_index_encrypted(archive, position, 0, PASSWORD_PACCHETTO.constData())) {
        if (file_ == nullptr)
            throw ToolError(
                QStringLiteral("%1: %2").arg(entry.name, QString::fromUtf8(zip_strerror(archive))));
    }
    EntryStream(const EntryStream&) = delete;
    EntryStream& operator=(const EntryStream&) = delete;
    ~EntryStream() { zip_fclose(file_); }

    /// Number of bytes read, 0 at the end.
    qint64 read(char* data, qint64 size) {
        const zip_int64_t n = zip_fread(file_, data, static_cast<zip_uint64_t>(size));
        if (n < 0)
            throw ToolError(QStringLiteral("%1: %2").arg(
                entry_.name, QString::fromUtf8(zip_error_strerror(zip_file_get_error(file_)))));
        return n;
    }

  private:
    const ArchiveEntry& entry_;
    zip_file_t* file_;
};

}  // namespace

void ArchiveReader::extract(size_t position, const QString& path) const {
    const ArchiveEntry& entry = entries_.at(position);
    if (entry.size > LARGEST_ENTRY)
        throw ToolError(QStringLiteral("%1: too large, %2 bytes").arg(entry.name).arg(entry.size));
    EntryStream stream(archive_.get(), position, entry);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
    try {
        QByteArray buffer(1 << 18, Qt::Uninitialized);
        qint64 total = 0;
        while (const qint64 n = stream.read(buffer.data(), buffer.size())) {
            total += n;
            if (total > entry.size)
                break;
            if (file.write(buffer.constData(), n) != n)
                throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
        }
        if (total != entry.size)
            throw ToolError(QStringLiteral("%1: its length isn't what the archive says").arg(entry.name));
        if (!file.flush())
            throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
    } catch (const ToolError&) {
        file.remove();
        throw;
    }
}

QByteArray ArchiveReader::head(size_t position, qint64 bytes) const {
    EntryStream stream(archive_.get(), position, entries_.at(position));
    QByteArray content(bytes, Qt::Uninitialized);
    content.truncate(stream.read(content.data(), bytes));
    return content;
}

int ArchiveReader::lastEndingWith(const QString& name) const {
    for (size_t i = entries_.size(); i-- > 0;)
        if (entries_[i].name.endsWith(name))
            return static_cast<int>(i);
    return -1;
}

ArchiveWriter::ArchiveWriter(const QString& path) : path_(path) {
    const QFileInfo info(path);
    temporary_ = info.absoluteDir().filePath(QStringLiteral(".%1.%2").arg(
        info.fileName(), QString::number(QRandomGenerator::global()->generate(), 36)));
    int code = 0;
    archive_ = zip_open(QFile::encodeName(temporary_).constData(), ZIP_CREATE | ZIP_EXCL, &code);
    if (archive_ == nullptr)
        throw ToolError(QStringLiteral("%1: %2").arg(path, errorText(code)));
}

ArchiveWriter::~ArchiveWriter() {
    if (archive_ != nullptr)
        zip_discard(archive_);
    QFile::remove(temporary_);
}

namespace {

void addSource(zip_t* archive, const QString& entry, zip_source_t* source) {
    const QByteArray name = entry.toUtf8();
    const zip_int64_t index =
        source == nullptr ? -1 : zip_file_add(archive, name.constData(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        const QString text = QString::fromUtf8(zip_strerror(archive));
        zip_source_free(source);
        throw ToolError(QStringLiteral("%1: %2").arg(entry, text));
    }
    const auto position = static_cast<zip_uint64_t>(index);
    // No date of our own here: the encryption takes its check byte from the source's date, and the reader
    // looks for it in the entry's.
    // The library's own level is the highest, which takes three times as long for a hundredth less.
    zip_set_file_compression(archive, position, ZIP_CM_DEFLATE, 6);
    if (zip_file_set_encryption(archive, position, ZIP_EM_TRAD_PKWARE, PASSWORD_PACCHETTO.constData()) != 0)
        throw ToolError(QStringLiteral("%1: %2").arg(entry, QString::fromUtf8(zip_strerror(archive))));
}

}  // namespace

void ArchiveWriter::addFile(const QString& entry, const QString& path) {
    // A missing file would be told only when the package is written, and without its name.
    if (!QFileInfo(path).isReadable())
        throw ToolError(QStringLiteral("%1: the file can't be read").arg(path));
    addSource(archive_, entry, zip_source_file(archive_, QFile::encodeName(path).constData(), 0, -1));
}

void ArchiveWriter::addContent(const QString& entry, const QByteArray& content) {
    contents_.push_back(content);
    addSource(archive_, entry,
              zip_source_buffer(archive_, contents_.back().constData(),
                                static_cast<zip_uint64_t>(contents_.back().size()), 0));
}

void ArchiveWriter::addFolder(const QString& entry) {
    const zip_int64_t index = zip_dir_add(archive_, entry.toUtf8().constData(), ZIP_FL_ENC_UTF_8);
    if (index < 0)
        throw ToolError(QStringLiteral("%1: %2").arg(entry, QString::fromUtf8(zip_strerror(archive_))));
    zip_file_set_dostime(archive_, static_cast<zip_uint64_t>(index), 0, (1 << 5) | 1, 0);
}

void ArchiveWriter::finish(const std::function<void(double)>& progress) {
    if (zip_get_num_entries(archive_, 0) == 0)
        throw ToolError(QStringLiteral("%1: a package without entries can't be made").arg(path_));
    if (progress)
        zip_register_progress_callback_with_state(
            archive_, 0.01,
            [](zip_t*, double part, void* state) {
                (*static_cast<const std::function<void(double)>*>(state))(part);
            },
            nullptr, const_cast<std::function<void(double)>*>(&progress));
    if (zip_close(archive_) != 0)
        throw ToolError(QStringLiteral("%1: %2").arg(path_, QString::fromUtf8(zip_strerror(archive_))));
    archive_ = nullptr;
    if (std::rename(QFile::encodeName(temporary_).constData(), QFile::encodeName(path_).constData()) != 0)
        throw ToolError(QStringLiteral("%1: the finished package can't be put in its place").arg(path_));
}

#include "DatabaseFiles.h"

#include "DatabaseError.h"
#include "basDatabase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlRecord>
#include <QTemporaryFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

// The language's "Path/File access error", for a file operation the system fails for a reason
// other than a refused access.
constexpr int kFileAccessError = 75;

QuillonError fileError(const QFileDevice &file)
{
    if (file.error() == QFileDevice::PermissionsError)
        return QuillonError(QuillonError::PermissionDenied,
                            QStringLiteral("Permission denied: %1").arg(file.fileName()));
    return QuillonError(kFileAccessError,
                        QStringLiteral("Path/File access error (%1): %2").arg(file.errorString(), file.fileName()));
}

QuillonError fileError(const QString &path, int err)
{
    if (err == EACCES || err == EPERM || err == EROFS)
        return QuillonError(QuillonError::PermissionDenied, QStringLiteral("Permission denied: %1").arg(path));
    return QuillonError(kFileAccessError, QStringLiteral("Path/File access error (%1): %2")
                                              .arg(QString::fromLocal8Bit(std::strerror(err)), path));
}

void removeJournals(const QString &path)
{
    for (const char *journal : {"-journal", "-wal", "-shm"})
        QFile::remove(path + QLatin1String(journal));
}

// Write what the system holds of a file (or a folder's list of names) to the disk.
void syncPath(const QString &path, bool directory)
{
    const int fd = ::open(QFile::encodeName(path).constData(), (directory ? O_DIRECTORY : 0) | O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        throw fileError(path, errno);
    const int result = ::fsync(fd);
    const int err = errno;
    ::close(fd);
    // A folder on a file system that cannot sync its list of names is no reason to fail.
    if (result != 0 && !(directory && (err == EINVAL || err == EROFS)))
        throw fileError(path, err);
}

// A new, empty file beside a target, to be filled and then renamed over it; removed unless it
// was put in place.
class PendingFile {
public:
    explicit PendingFile(const QString &target)
    {
        const QFileInfo info(target);
        QTemporaryFile file(info.absoluteDir().filePath(QStringLiteral(".%1.XXXXXX").arg(info.fileName())));
        file.setAutoRemove(false);
        if (file.open())
            m_path = file.fileName();
        else
            m_error = fileError(file);
    }
    ~PendingFile()
    {
        if (m_path.isEmpty() || m_placed)
            return;
        removeJournals(m_path);
        QFile::remove(m_path);
    }
    PendingFile(const PendingFile &) = delete;
    PendingFile &operator=(const PendingFile &) = delete;

    bool created() const { return !m_path.isEmpty(); }
    // Why the file could not be made.
    const QuillonError &error() const { return m_error; }
    const QString &path() const { return m_path; }
    void putInPlace(const QString &target)
    {
        PutInPlace(m_path, target);
        m_placed = true;
    }

private:
    QString m_path;
    bool m_placed = false;
    QuillonError m_error{0, QString()};
};

// Fill a pending file with a consistent copy of a database.  The engine writes the copy from one
// read transaction, whatever else has the file open.
void snapshotInto(const PendingFile &pending, const QString &source)
{
    ConnectionPtr c = OpenDatabaseFile(source, OpenMode::ReadOnly);
    Exec(*c, QStringLiteral("VACUUM INTO ?"), {pending.path()});
}

} // namespace

void RemoveDatabaseFile(const QString &path)
{
    removeJournals(path);
    if (QFileInfo::exists(path) && ::unlink(QFile::encodeName(path).constData()) != 0)
        throw fileError(path, errno);
}

void PutInPlace(const QString &ready, const QString &target)
{
    syncPath(ready, false);
    if (::rename(QFile::encodeName(ready).constData(), QFile::encodeName(target).constData()) != 0)
        throw fileError(target, errno);
    syncPath(QFileInfo(target).absolutePath(), true);
}

void CopyFileWhole(const QString &source, const QString &target)
{
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        throw fileError(in);
    PendingFile pending(target);
    if (!pending.created())
        throw pending.error();
    QFile out(pending.path());
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw fileError(out);
    constexpr qint64 kChunk = 1 << 20;
    while (!in.atEnd()) {
        const QByteArray bytes = in.read(kChunk);
        if (in.error() != QFileDevice::NoError)
            throw fileError(in);
        if (out.write(bytes) != bytes.size())
            throw fileError(out);
    }
    if (!out.flush())
        throw fileError(out);
    out.close();
    pending.putInPlace(target);
}

bool CopyDatabase(const QString &source, const QString &target)
{
    PendingFile pending(target);
    if (!pending.created())
        return false;
    snapshotInto(pending, source);
    try {
        pending.putInPlace(target);
    } catch (const QuillonError &) {
        return false;
    }
    return true;
}

int ReadDatabaseVersion(const QString &path)
{
    ConnectionPtr c = OpenDatabaseFile(path, OpenMode::ReadOnly);
    // The check answers "ok", or names the first damage it found.
    const QString verdict = Scalar(*c, QStringLiteral("PRAGMA integrity_check")).toString();
    if (verdict != QLatin1String("ok"))
        throw QuillonError(kEngineErrorBase + engine::Corrupt,
                           QStringLiteral("database disk image is malformed (%1)").arg(verdict));
    QStringList present;
    for (const QSqlRecord &row :
         Query(*c, QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table'")).rows())
        present << row.value(0).toString().toLower();
    for (const QString &table : requiredTables())
        if (!present.contains(table.toLower()))
            throw QuillonError(kEngineErrorBase + engine::Error, QStringLiteral("no such table: %1").arg(table));
    const Recordset version = Query(*c, QStringLiteral("SELECT DatabaseVersion FROM DBVersion"));
    if (version.isEmpty())
        throw QuillonError(3021, QStringLiteral("No current record"));
    bool ok = false;
    const int number = version.value(0).toInt(&ok);
    if (!ok)
        throw QuillonError::typeMismatch();
    return number;
}

bool RestoreDatabaseFile(const QString &backup, const QString &working, const QString &safetyCopy)
{
    PendingFile pending(working);
    if (!pending.created())
        return false;
    snapshotInto(pending, backup);
    if (QFileInfo::exists(working))
        CopyFileWhole(working, safetyCopy);
    // A journal left beside the old file would be played back onto the new one.
    removeJournals(working);
    pending.putInPlace(working);
    return true;
}

} // namespace quillon

#include "basDatabase.h"

#include "DatabaseError.h"

#include <QAtomicInt>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSqlError>
#include <QSqlRecord>
#include <list>
#include <unistd.h>

namespace quillon {

// Idle prepared statements, the most recently used first.  A statement is taken out while it
// runs, so the same text can be walked twice at once, and the oldest idle ones are dropped
// beyond the bound.
class StatementCache {
public:
    std::optional<QSqlQuery> take(const QString &sql)
    {
        for (auto it = m_idle.begin(); it != m_idle.end(); ++it) {
            if (it->first == sql) {
                QSqlQuery q = std::move(it->second);
                m_idle.erase(it);
                return q;
            }
        }
        return std::nullopt;
    }

    void giveBack(QString sql, QSqlQuery query)
    {
        query.finish();
        m_idle.emplace_front(std::move(sql), std::move(query));
        while (int(m_idle.size()) > Connection::kCachedStatements)
            m_idle.pop_back();
    }

    int size() const { return int(m_idle.size()); }

private:
    std::list<std::pair<QString, QSqlQuery>> m_idle;
};

namespace {

QuillonError &lastError()
{
    static QuillonError error(0, QString());
    return error;
}

QString nextConnectionName()
{
    static QAtomicInt counter;
    return QStringLiteral("quillon-%1").arg(counter.fetchAndAddRelaxed(1) + 1);
}

// How long a statement waits for another program's lock before it fails: long enough for a
// short write elsewhere to end, short enough that a held lock is told rather than felt.
constexpr int kBusyTimeoutMs = 1500;

// The process's own descriptor of a file deleted while it is open, as the system names it:
// through it the deleted file can still be read.  Empty when there is none.
QString deletedFileDescriptor(const QString &path)
{
    const QFileInfo info(path);
    const QString gone = QDir(info.absolutePath()).canonicalPath() + QLatin1Char('/') + info.fileName() +
                         QStringLiteral(" (deleted)");
    const QDir fds(QStringLiteral("/proc/self/fd"));
    for (const QString &fd : fds.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        char target[4096];
        const ssize_t n = ::readlink(QFile::encodeName(fds.filePath(fd)).constData(), target, sizeof target - 1);
        if (n > 0 && QFile::decodeName(QByteArray(target, int(n))) == gone)
            return fds.filePath(fd);
    }
    return QString();
}

} // namespace

Statement::Statement(std::weak_ptr<StatementCache> cache, QString sql, QSqlQuery query)
    : m_cache(std::move(cache)), m_sql(std::move(sql)), m_query(std::move(query))
{
}

Statement::Statement(Statement &&other) noexcept
    : m_cache(std::move(other.m_cache)), m_sql(std::move(other.m_sql)), m_query(std::move(other.m_query)),
      m_owned(other.m_owned)
{
    other.m_owned = false;
}

Statement::~Statement()
{
    if (!m_owned)
        return;
    if (auto cache = m_cache.lock())
        cache->giveBack(std::move(m_sql), std::move(m_query));
}

bool Statement::next()
{
    if (m_query.next())
        return true;
    if (m_query.lastError().isValid())
        throw DatabaseError(m_query.lastError());
    return false;
}

const QStringList &requiredTables()
{
    static const QStringList tables = {
        QStringLiteral("HandicapLog"),   QStringLiteral("ScoreLog"),  QStringLiteral("ScoreDetails"),
        QStringLiteral("ScoringRecord"), QStringLiteral("CourseLog"), QStringLiteral("CourseDetails"),
        QStringLiteral("UnratedTees"),   QStringLiteral("DBVersion"),
    };
    return tables;
}

Connection::Connection(const QString &path)
    : m_name(nextConnectionName()), m_path(path), m_cache(std::make_shared<StatementCache>())
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
    db.setDatabaseName(path);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyTimeoutMs));
}

Connection::~Connection()
{
    close();
    QSqlDatabase::removeDatabase(m_name);
}

QSqlDatabase Connection::database() const
{
    return QSqlDatabase::database(m_name, false);
}

bool Connection::open()
{
    QSqlDatabase db = database();
    if (!db.open())
        return false;
    // SQLite opens any file lazily: reading the catalogue is what tells a database from other bytes.
    QSqlQuery q(db);
    if (!q.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table'")))
        return false;
    QStringList present;
    while (q.next())
        present << q.value(0).toString().toLower();
    for (const QString &t : requiredTables())
        if (!present.contains(t.toLower()))
            return false;
    return true;
}

void Connection::close()
{
    // A new cache: statements still out belong to the closed file and are not taken back.
    m_cache = std::make_shared<StatementCache>();
    QSqlDatabase db = database();
    if (db.isValid() && db.isOpen())
        db.close();
}

int Connection::cachedStatements() const
{
    return m_cache->size();
}

Statement Connection::run(const QString &sql, const Params &params)
{
    std::optional<QSqlQuery> cached = m_cache->take(sql);
    QSqlQuery q = cached ? std::move(*cached) : QSqlQuery(database());
    if (!cached) {
        q.setForwardOnly(true);
        if (!q.prepare(sql))
            throw DatabaseError(q.lastError());
    }
    for (int i = 0; i < params.size(); ++i)
        q.bindValue(i, params.at(i));
    QSqlError error;
    {
        // From here the query goes back to the cache however the run ends.
        Statement statement(m_cache, sql, std::move(q));
        if (statement.m_query.exec())
            return statement;
        error = statement.m_query.lastError();
    }
    fail(error);
}

void Connection::runOnce(const QString &sql)
{
    QSqlError error;
    {
        QSqlQuery q(database());
        if (q.exec(sql))
            return;
        error = q.lastError();
    }
    fail(error);
}

void Connection::fail(const QSqlError &error)
{
    const QuillonError failure = DatabaseError(error);
    // Once its file is deleted the engine refuses to write, and the rows saved so far live only
    // in the open file, to be gone when it closes.
    if (failure.number() != QuillonError::PermissionDenied || m_path.isEmpty() || QFileInfo::exists(m_path))
        throw failure;
    if (putBackDeletedFile())
        throw QuillonError(QuillonError::PermissionDenied,
                           QStringLiteral("The Quillon database was deleted while the program was running.  It has "
                                          "been written back with everything saved before; the last change was not "
                                          "saved."));
    throw QuillonError(QuillonError::PermissionDenied,
                       QStringLiteral("The Quillon database was deleted while the program was running.  Nothing "
                                      "more can be saved to it."));
}

bool Connection::putBackDeletedFile()
{
    // The engine writes nothing to a deleted file, so what it holds is what the last change
    // that went through left there: a whole database.
    QFile held(deletedFileDescriptor(m_path));
    if (held.fileName().isEmpty() || !held.open(QIODevice::ReadOnly))
        return false;
    QSaveFile back(m_path);
    if (!back.open(QIODevice::WriteOnly) || back.write(held.readAll()) != held.size() || !back.commit())
        return false;
    held.close();
    // From here on the program works in the file written back.
    close();
    return open();
}

ConnectionPtr OpenDatabase(const QString &path)
{
    // The engine would create a missing file; a missing database is not ours to make here.
    const QFileInfo info(path);
    if (!info.exists() || !info.isFile())
        return nullptr;
    std::shared_ptr<Connection> c(new Connection(path));
    if (!c->open())
        return nullptr;
    return c;
}

ConnectionPtr OpenDatabaseFile(const QString &path, OpenMode mode)
{
    const QFileInfo info(path);
    if (!info.exists() || !info.isFile())
        throw QuillonError(53, QStringLiteral("File not found: %1").arg(path));
    std::shared_ptr<Connection> c(new Connection(path));
    QSqlDatabase db = c->database();
    if (mode == OpenMode::ReadOnly)
        db.setConnectOptions(db.connectOptions() + QStringLiteral(";QSQLITE_OPEN_READONLY"));
    if (!db.open())
        throw DatabaseError(db.lastError());
    // The engine reads nothing until asked: the catalogue tells a database from other bytes.
    Scalar(*c, QStringLiteral("SELECT COUNT(*) FROM sqlite_master"));
    return c;
}

Writability CheckWritable(Connection &connection)
{
    // The rollback journal is made beside the file, so the folder must take new files too.
    const QFileInfo info(connection.path());
    if (::access(QFile::encodeName(info.absolutePath()).constData(), W_OK) != 0 ||
        ::access(QFile::encodeName(info.absoluteFilePath()).constData(), W_OK) != 0)
        return Writability::ReadOnly;
    // Taking the write lock, and giving it back at once, writes nothing to the file.
    try {
        connection.runOnce(QStringLiteral("BEGIN IMMEDIATE"));
    } catch (const QuillonError &e) {
        if (e.number() == QuillonError::PermissionDenied)
            return Writability::ReadOnly;
        if (e.number() == kEngineErrorBase + engine::Busy || e.number() == kEngineErrorBase + engine::Locked)
            return Writability::InUse;
        throw;
    }
    connection.runOnce(QStringLiteral("ROLLBACK"));
    return Writability::Writable;
}

Recordset Query(Connection &connection, const QString &sql, const Params &params)
{
    Statement q = connection.run(sql, params);
    QVector<QSqlRecord> rows;
    const QSqlRecord columns = q.record();
    while (q.next())
        rows.append(q.record());
    return Recordset(columns, std::move(rows));
}

int Exec(Connection &connection, const QString &sql, const Params &params)
{
    return connection.run(sql, params).numRowsAffected();
}

QVariant Scalar(Connection &connection, const QString &sql, const Params &params)
{
    Statement q = connection.run(sql, params);
    return q.next() ? q.value(0) : QVariant();
}

QStringList FirstColumn(Connection &connection, const QString &sql, const Params &params)
{
    QStringList out;
    Statement q = connection.run(sql, params);
    while (q.next())
        out << q.value(0).toString();
    return out;
}

qint64 LastInsertId(Connection &connection)
{
    return Scalar(connection, QStringLiteral("SELECT last_insert_rowid()")).toLongLong();
}

std::optional<Recordset> OpenRecordset(Connection &connection, const QString &sql, const Params &params)
{
    try {
        return Query(connection, sql, params);
    } catch (const QuillonError &e) {
        lastError() = e;
        return std::nullopt;
    }
}

bool Execute(Connection &connection, const QString &sql, const Params &params)
{
    try {
        Exec(connection, sql, params);
        return true;
    } catch (const QuillonError &e) {
        lastError() = e;
        return false;
    }
}

QuillonError LastDatabaseError()
{
    return lastError();
}

// Every unit uses the same savepoint name: the engine undoes and releases the most recent
// savepoint of a name, which is exactly the nesting of scopes.
namespace {
const QString kSavepoint = QStringLiteral("quillon_unit");
}

Transaction::Transaction(Connection &connection) : m_connection(connection)
{
    m_connection.runOnce(QStringLiteral("SAVEPOINT ") + kSavepoint);
    m_open = true;
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    try {
        m_connection.runOnce(QStringLiteral("ROLLBACK TO ") + kSavepoint);
        m_connection.runOnce(QStringLiteral("RELEASE ") + kSavepoint);
    } catch (const QuillonError &) {
        // The engine may have ended the transaction itself (a full disk does); nothing is left to undo.
    }
}

void Transaction::commit()
{
    m_connection.runOnce(QStringLiteral("RELEASE ") + kSavepoint);
    m_open = false;
}

} // namespace quillon

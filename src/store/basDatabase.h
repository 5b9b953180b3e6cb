#pragma once

#include "Recordset.h"
#include "core/QuillonError.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>
#include <memory>
#include <optional>

namespace quillon {

using Params = QVariantList;

class StatementCache;

// How OpenDatabaseFile opens a file: ReadOnly never changes it.
enum class OpenMode { ReadWrite, ReadOnly };

// One run of a statement, checked out of its connection's cache for as long as it is
// walked: a second run of the same text meanwhile gets a query of its own, and the query
// goes back to the cache when the walk ends.
class Statement {
public:
    Statement(Statement &&other) noexcept;
    Statement &operator=(Statement &&other) = delete;
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    ~Statement();

    // The next row; false past the last.  A fault met while stepping throws QuillonError.
    bool next();
    QVariant value(int column) const { return m_query.value(column); }
    QSqlRecord record() const { return m_query.record(); }
    int numRowsAffected() const { return m_query.numRowsAffected(); }

private:
    friend class Connection;
    Statement(std::weak_ptr<StatementCache> cache, QString sql, QSqlQuery query);

    std::weak_ptr<StatementCache> m_cache;
    QString m_sql;
    QSqlQuery m_query;
    bool m_owned = true;
};

// One open database file.  Statements are prepared once and kept, since the same few texts
// run over and over with new values bound; the cache holds a bounded number of them.
class Connection {
public:
    explicit Connection(const QString &path);
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    QSqlDatabase database() const;
    const QString &path() const { return m_path; }

    // Run one statement with its values bound; the result is positioned before its first row.
    // Throws QuillonError with the engine's failure.
    Statement run(const QString &sql, const Params &params = {});
    // Run a statement that is not worth keeping (transaction control, pragmas).
    void runOnce(const QString &sql);

    // Prepared statements held now, idle ones only; never more than kCachedStatements.
    int cachedStatements() const;
    static constexpr int kCachedStatements = 64;

    // Drop every prepared statement, so that the file can be closed.
    void close();

private:
    friend std::shared_ptr<Connection> OpenDatabase(const QString &path);
    bool open();
    // Throws the engine's failure as ours; a file deleted under the connection is first put back.
    [[noreturn]] void fail(const QSqlError &error);
    bool putBackDeletedFile();

    QString m_name;
    QString m_path;
    std::shared_ptr<StatementCache> m_cache;
};

using ConnectionPtr = std::shared_ptr<Connection>;

// The tables that make a file a Quillon database.
const QStringList &requiredTables();

// Open a Quillon database.  Nothing on any failure, silently: a missing file,
// an unreadable or damaged one, or an SQLite file without our tables.  The caller decides what to say.
ConnectionPtr OpenDatabase(const QString &path);

// Open an SQLite file whatever it holds (an older database being upgraded, a backup being copied or
// checked), reading its catalogue so that other bytes are told at once.  Throws QuillonError: 53 for
// a missing file, else the engine's failure.
ConnectionPtr OpenDatabaseFile(const QString &path, OpenMode mode = OpenMode::ReadWrite);

// Whether the program can write to an open database: a read-only file or folder, or another
// program holding a lock on the file, would let a user type a round that cannot be saved.
enum class Writability { Writable, ReadOnly, InUse };
Writability CheckWritable(Connection &connection);

// The rows of a query, or nothing on failure, silently.
std::optional<Recordset> OpenRecordset(Connection &connection, const QString &sql, const Params &params = {});
// A statement without rows; false on failure, silently.
bool Execute(Connection &connection, const QString &sql, const Params &params = {});
// What the last failed OpenRecordset or Execute met.
QuillonError LastDatabaseError();

// The same for routines that leave faults to their caller: these throw QuillonError.
Recordset Query(Connection &connection, const QString &sql, const Params &params = {});
int Exec(Connection &connection, const QString &sql, const Params &params = {});
QVariant Scalar(Connection &connection, const QString &sql, const Params &params = {});
// The first column of every row, as text, in the statement's order.
QStringList FirstColumn(Connection &connection, const QString &sql, const Params &params = {});
// ScoreIndex and other auto-numbers given by the last insert.
qint64 LastInsertId(Connection &connection);

// One unit of work: kept by commit(), undone if the scope ends before.  Units nest:
// one opened inside another is undone alone, and kept only when the outer one is.
class Transaction {
public:
    explicit Transaction(Connection &connection);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    void commit();

private:
    Connection &m_connection;
    bool m_open = false;
};

} // namespace quillon

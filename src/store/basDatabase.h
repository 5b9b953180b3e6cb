#pragma once

#include "Recordset.h"
#include "core/QuillonError.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>
#include <memory>
#include <optional>

namespace quillon {

using Params = QVariantList;

// One open database file.  Statements are prepared once and kept, since the
// same few texts run over and over with new values bound.
class Connection {
public:
    explicit Connection(const QString &path);
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    QSqlDatabase database() const;
    const QString &path() const { return m_path; }

    // Run one statement with its values bound; the query is left positioned before its first row.
    // Throws QuillonError with the driver's number and text on failure.
    QSqlQuery &run(const QString &sql, const Params &params = {});

    // Drop every prepared statement, so that the file can be closed.
    void close();

private:
    friend std::shared_ptr<Connection> OpenDatabase(const QString &path);
    bool open();

    QString m_name;
    QString m_path;
    QHash<QString, QSqlQuery> m_statements;
};

using ConnectionPtr = std::shared_ptr<Connection>;

// The tables that make a file a Quillon database.
const QStringList &requiredTables();

// Open a Quillon database.  Nothing on any failure, silently: a missing file,
// an unreadable or damaged one, or an SQLite file without our tables.  The caller decides what to say.
ConnectionPtr OpenDatabase(const QString &path);

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
    QString m_name;
    bool m_open = false;
};

} // namespace quillon

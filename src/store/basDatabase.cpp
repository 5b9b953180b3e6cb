#include "basDatabase.h"

#include <QAtomicInt>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlRecord>

namespace quillon {

namespace {

QuillonError &lastError()
{
    static QuillonError error(0, QString());
    return error;
}

QuillonError toError(const QSqlError &e)
{
    bool ok = false;
    int number = e.nativeErrorCode().toInt(&ok);
    if (!ok || number == 0)
        number = 3146; // the general "call failed" of the database layer
    QString text = e.databaseText();
    if (text.isEmpty())
        text = e.text();
    return QuillonError(number, text);
}

QString nextConnectionName()
{
    static QAtomicInt counter;
    return QStringLiteral("quillon-%1").arg(counter.fetchAndAddRelaxed(1) + 1);
}

} // namespace

const QStringList &requiredTables()
{
    static const QStringList tables = {
        QStringLiteral("HandicapLog"),   QStringLiteral("ScoreLog"),  QStringLiteral("ScoreDetails"),
        QStringLiteral("ScoringRecord"), QStringLiteral("CourseLog"), QStringLiteral("CourseDetails"),
        QStringLiteral("UnratedTees"),   QStringLiteral("DBVersion"),
    };
    return tables;
}

Connection::Connection(const QString &path) : m_name(nextConnectionName()), m_path(path)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
    db.setDatabaseName(path);
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
    m_statements.clear();
    QSqlDatabase db = database();
    if (db.isValid() && db.isOpen())
        db.close();
}

QSqlQuery &Connection::run(const QString &sql, const Params &params)
{
    auto it = m_statements.find(sql);
    if (it == m_statements.end()) {
        QSqlQuery q(database());
        q.setForwardOnly(true);
        if (!q.prepare(sql))
            throw toError(q.lastError());
        it = m_statements.insert(sql, q);
    }
    QSqlQuery &q = it.value();
    q.finish();
    for (int i = 0; i < params.size(); ++i)
        q.bindValue(i, params.at(i));
    if (!q.exec())
        throw toError(q.lastError());
    return q;
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

Recordset Query(Connection &connection, const QString &sql, const Params &params)
{
    QSqlQuery &q = connection.run(sql, params);
    QVector<QSqlRecord> rows;
    QSqlRecord columns = q.record();
    while (q.next())
        rows.append(q.record());
    if (q.lastError().isValid())
        throw toError(q.lastError());
    q.finish();
    return Recordset(columns, std::move(rows));
}

int Exec(Connection &connection, const QString &sql, const Params &params)
{
    QSqlQuery &q = connection.run(sql, params);
    const int n = q.numRowsAffected();
    q.finish();
    return n;
}

QVariant Scalar(Connection &connection, const QString &sql, const Params &params)
{
    QSqlQuery &q = connection.run(sql, params);
    QVariant v;
    if (q.next())
        v = q.value(0);
    q.finish();
    return v;
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

Transaction::Transaction(Connection &connection) : m_connection(connection)
{
    static int counter = 0;
    m_name = QStringLiteral("unit%1").arg(++counter);
    Exec(m_connection, QStringLiteral("SAVEPOINT ") + m_name);
    m_open = true;
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    try {
        Exec(m_connection, QStringLiteral("ROLLBACK TO ") + m_name);
        Exec(m_connection, QStringLiteral("RELEASE ") + m_name);
    } catch (const QuillonError &) {
        // The engine may have ended the transaction itself (a full disk does); nothing is left to undo.
    }
}

void Transaction::commit()
{
    Exec(m_connection, QStringLiteral("RELEASE ") + m_name);
    m_open = false;
}

} // namespace quillon

#pragma once

#include "basDatabase.h"

#include <QObject>

namespace quillon {

// A recordset that lives on (the golfer's score log and handicap row): it keeps
// its statement so that it can be read again, and tells its viewers when it was.
// It shares the connection it reads from, so a restore that replaces the global
// connection never leaves it holding a closed one.
class HeldRecordset : public QObject {
    Q_OBJECT
public:
    HeldRecordset(ConnectionPtr connection, QString sql, Params params, QObject *parent = nullptr);

    Recordset &rows() { return m_rows; }
    const QString &sql() const { return m_sql; }
    const Params &params() const { return m_params; }

    // Read the rows again (throws QuillonError on a database fault).
    void requery();

signals:
    void requeried();

private:
    ConnectionPtr m_connection;
    QString m_sql;
    Params m_params;
    Recordset m_rows;
};

} // namespace quillon

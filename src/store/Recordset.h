#pragma once

#include <QSqlRecord>
#include <QVariant>
#include <QVector>

namespace quillon {

class Connection;

// The rows of one query with a current position, read whole when opened:
// EOF and BOF are both true on an empty result, and the count is exact at once.
class Recordset {
public:
    Recordset() = default;
    Recordset(QSqlRecord columns, QVector<QSqlRecord> rows);

    bool eof() const { return m_rows.isEmpty() || m_pos >= m_rows.size(); }
    bool bof() const { return m_rows.isEmpty() || m_pos < 0; }
    bool isEmpty() const { return m_rows.isEmpty(); }
    int rowCount() const { return m_rows.size(); }
    // 1-based position of the current row; 0 off the rows.
    int absolutePosition() const { return (eof() || bof()) ? 0 : m_pos + 1; }

    void moveFirst() { m_pos = 0; }
    void moveLast() { m_pos = m_rows.size() - 1; }
    void moveNext()
    {
        if (m_pos < m_rows.size())
            ++m_pos;
    }
    void movePrevious()
    {
        if (m_pos >= 0)
            --m_pos;
    }

    int columnCount() const { return m_columns.count(); }
    QString columnName(int i) const { return m_columns.fieldName(i); }
    int columnIndex(const QString &name) const { return m_columns.indexOf(name); }

    // Values of the current row; reading off the rows is a fault of the caller.
    QVariant value(const QString &column) const;
    QVariant value(int column) const;
    const QSqlRecord &record() const;
    const QVector<QSqlRecord> &rows() const & { return m_rows; }
    // From a temporary the rows are moved out, so that `for (row : Query(...).rows())` is safe.
    QVector<QSqlRecord> rows() && { return std::move(m_rows); }

private:
    QSqlRecord m_columns;
    QVector<QSqlRecord> m_rows;
    int m_pos = 0;
};

} // namespace quillon

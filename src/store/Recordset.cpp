#include "Recordset.h"

#include "core/QuillonError.h"

namespace quillon {

namespace {
QuillonError noCurrentRow()
{
    return QuillonError(3021, QStringLiteral("No current record."));
}
} // namespace

Recordset::Recordset(QSqlRecord columns, QVector<QSqlRecord> rows)
    : m_columns(std::move(columns)), m_rows(std::move(rows))
{
}

const QSqlRecord &Recordset::record() const
{
    if (eof() || bof())
        throw noCurrentRow();
    return m_rows.at(m_pos);
}

QVariant Recordset::value(const QString &column) const
{
    const QSqlRecord &r = record();
    const int i = r.indexOf(column);
    if (i < 0)
        throw QuillonError(3265, QStringLiteral("Item not found in this collection."));
    return r.value(i);
}

QVariant Recordset::value(int column) const
{
    const QSqlRecord &r = record();
    if (column < 0 || column >= r.count())
        throw QuillonError(3265, QStringLiteral("Item not found in this collection."));
    return r.value(column);
}

} // namespace quillon

#include "QueryTableModel.h"

namespace quillon {

QueryTableModel::QueryTableModel(QVector<GridColumn> columns, QObject *parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns)), m_sourceColumn(m_columns.size(), -1)
{
}

void QueryTableModel::setRows(const Recordset &rows)
{
    beginResetModel();
    m_rows = rows.rows();
    for (int c = 0; c < m_columns.size(); ++c)
        m_sourceColumn[c] = rows.columnIndex(m_columns.at(c).field);
    endResetModel();
}

QVariant QueryTableModel::fieldValue(int row, const QString &field) const
{
    if (row < 0 || row >= m_rows.size())
        return QVariant();
    return m_rows.at(row).value(field);
}

int QueryTableModel::columnOf(const QString &field) const
{
    for (int c = 0; c < m_columns.size(); ++c)
        if (m_columns.at(c).field.compare(field, Qt::CaseInsensitive) == 0)
            return c;
    return -1;
}

int QueryTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int QueryTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant QueryTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size() || index.column() >= m_columns.size())
        return QVariant();
    const GridColumn &column = m_columns.at(index.column());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: {
        const int source = m_sourceColumn.at(index.column());
        if (source < 0)
            return QVariant();
        const QVariant value = m_rows.at(index.row()).value(source);
        if (value.isNull())
            return QString();
        return column.format ? column.format(value) : value.toString();
    }
    case Qt::TextAlignmentRole: return QVariant::fromValue(column.alignment);
    default: return QVariant();
    }
}

QVariant QueryTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (orientation == Qt::Horizontal)
        return section >= 0 && section < m_columns.size() ? QVariant(m_columns.at(section).header)
                                                          : QVariant();
    return QVariant();
}

Qt::ItemFlags QueryTableModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

} // namespace quillon

#pragma once

#include "store/Recordset.h"

#include <QAbstractTableModel>
#include <QVector>
#include <functional>

namespace quillon {

// One column of a grid: the field it shows, its heading, how a value reads, and where it stands.
struct GridColumn {
    QString field;
    QString header;
    std::function<QString(const QVariant &)> format; // none: the value's own text
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool hidden = false;
};

// A read-only table over the rows of a query, for every grid of the program.  The rows are
// handed in whole and replaced whole when the query is read again.
class QueryTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit QueryTableModel(QVector<GridColumn> columns, QObject *parent = nullptr);

    void setRows(const Recordset &rows);
    const QVector<GridColumn> &columns() const { return m_columns; }
    // A field of a row by name, whether shown or not; invalid off the rows.
    QVariant fieldValue(int row, const QString &field) const;
    int columnOf(const QString &field) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QVector<GridColumn> m_columns;
    QVector<int> m_sourceColumn; // position of each column's field in the rows, -1 if absent
    QVector<QSqlRecord> m_rows;
};

} // namespace quillon

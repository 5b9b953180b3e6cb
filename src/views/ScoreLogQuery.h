#pragma once

#include "store/basDatabase.h"
#include "ui/QueryTableModel.h"

#include <QString>

namespace quillon {

// The three selections of the score log, told by the checks of the View menu.
enum class ScoreLogSelection { All, Used, CurrentYear };

struct SqlStatement {
    QString sql;
    Params params;
};

// The score log's statement for a golfer, a selection and a sort order ("Date DESC"); the
// current year is the year of today's date.  Rows of equal sort value stand by ScoreIndex.
SqlStatement ScoreLogStatement(const QString &last, const QString &first, ScoreLogSelection selection,
                               int currentYear, const QString &order);

// The column a heading sorts by ("Coursename", "Date" ...), empty for a heading that does not sort.
QString ScoreLogSortColumn(int position);
// A heading click: "<column> ASC" becomes "<column> DESC" (compared without case), anything else
// becomes "<column> ASC".
QString NextSortOrder(const QString &current, const QString &column);

// What stands in place of an empty grid.
QString EmptyScoreLogMessage(ScoreLogSelection selection, int currentYear);

// " ORDER BY <order>, ScoreIndex" with the tie broken in the order's own direction; empty for no order.
// The order is one of a grid's own sort texts, never typed by a user.
QString OrderByWithTiebreak(const QString &order);
// Cell texts the round grids share: one decimal ("###.0") and the date as M/d/yyyy.
QString OneDecimalCell(const QVariant &value);
QString DateCell(const QVariant &value);

// The grid's columns by position; LastName, FirstName and ScoreIndex are hidden.  Without the
// handicap features the score column shows Score and Differential and Used are hidden.
QVector<GridColumn> ScoreLogColumns(bool handicapMode);

} // namespace quillon

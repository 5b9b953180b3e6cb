#pragma once

#include "store/basDatabase.h"

#include <QDate>
#include <QString>

namespace quillon {

// Remove one round of a golfer: its hole rows, its scoring record row and its score log row,
// all or nothing.  A combined scoring record row that holds the round as its partner is left
// to the next handicap run.  Throws QuillonError on a database failure, having removed nothing.
void DeleteScoreRows(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                     const QDate &date, const QString &course, const QString &tees);

} // namespace quillon

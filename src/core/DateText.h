#pragma once

#include <QDate>
#include <QString>

namespace quillon {

// The default date text "M/d/yyyy" (3/7/2026); an invalid date gives "".
QString DateText(const QDate &date);

// Reads "M/d/yyyy", "M/d/yy" (00-29 are 20xx, 30-99 are 19xx) or ISO
// "yyyy-MM-dd", with surrounding blanks allowed.  Anything else, or a day the
// calendar does not have, gives an invalid QDate.
QDate ParseDateText(const QString &text);

// The storage form "yyyy-MM-dd"; an invalid date gives "".
QString IsoDate(const QDate &date);

} // namespace quillon

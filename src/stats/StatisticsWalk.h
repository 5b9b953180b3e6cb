#pragma once

#include "GolferStatistics.h"
#include "store/basDatabase.h"

#include <QDate>
#include <QString>

namespace quillon {

// What a walk came to besides the record.
struct WalkOutcome {
    bool ran = false;            // false: the golfer has no round in the period; nothing changed
    bool yearBoxEnabled = true;  // the current-year box: off when the latest round is before this year
};

// The whole walk over a golfer's rounds (oldest first) into `stats`; `today` gives the current
// year.  The failures the screen shows in its error box (a 16-bit overflow in the pass over the
// rounds, a value that cannot be read) throw QuillonError; the hole-by-hole part of a round skips
// a failing statement and goes on.
WalkOutcome CalculateStatistics(Connection &c, const QString &last, const QString &first, bool currentYearOnly,
                                const QDate &today, GolferStatistics &stats);

// One round's holes into the record.
void AccumulateRoundDetails(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                            const QDate &scoreDate, const QString &course, const QString &tees, bool currentYearOnly,
                            const QDate &today, GolferStatistics &stats);

} // namespace quillon

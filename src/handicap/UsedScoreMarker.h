#pragma once

#include "HandicapRows.h"

#include <functional>

namespace quillon {

// Which record rows make the handicap: the lowest differentials, found by a
// scan that keeps `count` values, then matched to rows by value.
class UsedScoreMarker {
public:
    // Whether ScoreLog has a row with this ScoreIndex (any golfer's).
    using LogHasRound = std::function<bool(qint64)>;

    // The scan over the differentials in record order: `count` values, the
    // lowest; entries the scan never reaches stay 0.
    static QVector<float> LowestDifferentials(int count, const QVector<float> &differentials);

    // Marks "Y" on the rows found for each value of `best`, in order: the newest
    // row with that value among those still "N".  A value that matches no
    // stored differential marks nothing.  Returns what the ScoreLog rows get,
    // in the order it is written.
    static QVector<LogMark> Mark(const QVector<float> &best, QVector<RecordRow> &rows,
                                 const LogHasRound &logHas);

    // A row's Differential as stored, and as the single-precision number the
    // scan reads; a Null is the fault "Invalid use of Null" (94).
    static double StoredValue(const QVariant &differential);
    static float ScanValue(const QVariant &differential) { return float(StoredValue(differential)); }
};

} // namespace quillon

#pragma once

#include "HandicapRows.h"

#include <QSet>

namespace quillon {

// The scoring record of one golfer, built in memory from the rounds of the
// counting period: 18-hole rounds as they are, 9-hole rounds in pairs of one
// Type, never more than 20 rows, the oldest giving way.
class ScoringRecordBuilder {
public:
    static constexpr int kMaxRows = 20;

    // heldElsewhere: round numbers that rows of other golfers' records refer to;
    // the partner search sees the whole table, so they count as taken.
    explicit ScoringRecordBuilder(QSet<qint64> heldElsewhere = {});

    // walk: the period's rounds by Date, then ScoreIndex.  The result is the
    // record in the order its rows entered it.
    QVector<RecordRow> build(const QVector<LogRound> &walk) const;

private:
    QSet<qint64> m_heldElsewhere;
};

} // namespace quillon

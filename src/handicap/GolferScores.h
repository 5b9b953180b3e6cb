#pragma once

#include "HandicapRows.h"
#include "store/basDatabase.h"

#include <QSet>
#include <optional>

namespace quillon {

// The statements of the handicap engine on one golfer's rows.  Every value is
// bound; the golfer is matched as the columns compare, without regard to case.
class GolferScores {
public:
    GolferScores(Connection &connection, QString last, QString first);

    const QString &lastName() const { return m_last; }
    const QString &firstName() const { return m_first; }

    // Start of the counting period: the Date of the 20th most recent 18-hole
    // round (or of the oldest).  With none, the zero date "", which every date
    // passes; a Null when that round has no date, which no date passes.
    QVariant periodStart();
    // Rounds before the period end "N" and 1 whatever they were; only rows that differ are written.
    void resetMarksBefore(const QVariant &start);
    // The period's rounds, not excluded, by Date and then ScoreIndex.
    QVector<LogRound> periodRounds(const QVariant &start);

    void deleteRecord();
    // Round numbers that the rows left in the table refer to (other golfers' rows).
    QSet<qint64> roundsHeldInRecord();
    void insertRecord(const QVector<RecordRow> &rows);
    // The golfer's record rows as stored, with their row identity.
    QVector<RecordRow> readRecord();
    void setRecordRowUsed(qint64 rowId, const QString &used);
    // The Differential of every "Y" row, by Date and then ScoreIndex.
    QVector<QVariant> usedDifferentials();

    bool logHasRound(qint64 scoreIndex);
    // Used (and CombinedIndex when the mark sets it) of one ScoreLog row.
    void writeMark(const LogMark &mark);

    // The Gender column: nothing when the golfer has no row, a Null when never asked.
    std::optional<QVariant> gender();
    void storeGender(const QString &gender);
    // False when the golfer has no row.
    bool storeHandicap(float value);

private:
    Params golfer() const { return {m_last, m_first}; }

    Connection &m_connection;
    QString m_last;
    QString m_first;
};

} // namespace quillon

#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

namespace quillon {

// One ScoreLog row of the golfer as the handicap run reads it.  Values that the
// run only copies stay QVariants, so that a Null or the stored type goes through unchanged.
struct LogRound {
    qint64 scoreIndex = 0;
    QString lastName;
    QString firstName;
    QString courseName;
    QString date; // ISO text
    QString holes;
    QVariant type;
    QVariant adjustedScore;
    QVariant rating;
    QVariant slope;
    QVariant differential;
    // The marks as they were before the run, so that only rows that change are written.
    QVariant used;
    QVariant combinedIndex;
};

// One ScoringRecord row.
struct RecordRow {
    QString lastName;
    QString firstName;
    QString courseName;
    QString date;
    qint64 scoreIndex = 0;
    QVariant combinedIndex; // Null on an 18-hole row
    QVariant score;
    QVariant rating;
    QVariant slope;
    QVariant differential;
    QString used = QStringLiteral("N");
    QString details;
    // The row's identity in the table when it was read from there (0: not read).
    qint64 rowId = 0;
};

// A mark to carry over to a ScoreLog row.
struct LogMark {
    qint64 scoreIndex = 0;
    QString used;
    bool setsCombinedIndex = false;
    QVariant combinedIndex;
};

} // namespace quillon

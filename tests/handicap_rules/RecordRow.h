#pragma once

#include "store/basDatabase.h"

#include <QDate>
#include <QString>
#include <QVector>
#include <optional>
#include <ostream>

namespace quillon::test {

// One ScoringRecord row with every column that the handicap rules fill.
// Null columns are held as nullopt, so that Null and an empty text stay apart.
struct RecordRow {
    QString lastName;
    QString firstName;
    QString courseName;
    QDate date;
    qint64 scoreIndex = 0;
    std::optional<qint64> combinedIndex;
    int score = 0;
    double rating = 0;
    int slope = 0;
    double differential = 0;
    QString used;
    std::optional<QString> details;
};

bool operator==(const RecordRow &a, const RecordRow &b);
inline bool operator!=(const RecordRow &a, const RecordRow &b)
{
    return !(a == b);
}
void PrintTo(const RecordRow &row, std::ostream *os);

// The golfer's ScoringRecord rows by Date, then ScoreIndex.
QVector<RecordRow> ReadScoringRecord(Connection &c, const QString &last, const QString &first);

// Used and CombinedIndex of one ScoreLog row; the index is nullopt when the column is Null.
struct LogMark {
    QString used;
    std::optional<qint64> combinedIndex;
};
bool operator==(const LogMark &a, const LogMark &b);
void PrintTo(const LogMark &mark, std::ostream *os);

LogMark ReadLogMark(Connection &c, qint64 scoreIndex);

// The double nearest to a value's one-decimal text: how the database holds ratings,
// differentials and the handicap index.
double OneDecimal(double value);

} // namespace quillon::test

#pragma once

#include <QString>

namespace quillon {

// Values stored in the database that carry a meaning of their own; the same texts
// stand in the tables, in the lists the user picks from, and in statements.
namespace Holes {
inline const QString Eighteen = QStringLiteral("18-holes");
inline const QString FrontNine = QStringLiteral("9-holes (front)");
inline const QString BackNine = QStringLiteral("9-holes (back)");
} // namespace Holes

// ScoreLog.Used and ScoringRecord.Used.
namespace UsedMark {
inline const QString Used = QStringLiteral("Y");         // a differential of the current handicap
inline const QString NotUsed = QStringLiteral("N");      // not used
inline const QString CombinedUsed = QStringLiteral("C"); // a 9-hole round of a used combined pair
inline const QString Excluded = QStringLiteral("E");     // excluded by the user
} // namespace UsedMark

// ScoringRecord.CourseName of a pair of 9-hole rounds.
inline const QString CombinedCourse = QStringLiteral("Combined");
// ScoreLog.CombinedIndex of a round that is in no used pair.
inline constexpr qint64 NoPair = 1;

} // namespace quillon

#pragma once

#include "store/basDatabase.h"

#include <QDate>
#include <QString>
#include <QVector>
#include <optional>

namespace quillon {

// Equitable Stroke Control and the handicap differential of one round.

// The standard Slope Rating, in both formulas as a whole number.
inline constexpr int kStandardSlope = 113;

// Which rating and slope of the tees a round uses.
enum class HolesPlayed { Eighteen, Front, Back, Other };
HolesPlayed HolesPlayedFrom(const QString &holesText);

// index x slope / 113 in single precision, floored (11.9 gives 11, -0.2 gives
// -1), as a 16-bit integer (Overflow beyond).  0 when the holes text is none of the three.
qint16 CourseHandicap(float index, int slope, const QString &holesText);

// The most strokes a hole counts for: 7, 8, 9 or 10; nothing when the course
// handicap is 9 or less, where the limit is the hole's par plus 2.
std::optional<int> HoleCap(qint16 courseHandicap);

// One hole of a round; either may be Null in the database.
struct HoleScore {
    std::optional<int> score;
    std::optional<int> par;
};

// The total less what every hole exceeds its limit by.  The total is the one
// entered, not the sum of the holes; a hole without score (or without par,
// where the limit needs it) reduces nothing.
qint16 AdjustedScore(qint16 totalScore, qint16 courseHandicap, const QVector<HoleScore> &holes);

// (adjusted - rating) x 113 / slope, kept in single precision; 0 when the holes
// text is none of the three.  A slope of 0 is a division by zero (11).
float ComputeDifferential(qint16 adjustedScore, double rating, int slope, const QString &holesText);

// The text stored in ScoreLog.Differential and shown: "###.0" (15.2, -3.0, .4).
QString DifferentialText(float differential);

// The rating and slope of a set of tees for the holes played; 0 where not entered.
struct RatingSlope {
    double rating = 0.0;
    int slope = 0;
};

// What the adjusted score of a round rests on, read from the database.
struct ScoreInputs {
    // The golfer's index before this score; the maximum by gender when none yet.
    float index = 0.0f;
    // Of CourseLog; zeros when the tees are not there.
    RatingSlope course;
    // The round's ScoreDetails rows by Hole; empty when it was saved without them.
    QVector<HoleScore> holes;
};

// HandicapLog: Handicap, or 40.4 for "F" and 36.4 for anybody else while it is
// -1000 (or Null).  No golfer row is "No current record." (3021).
float IndexForAdjustment(Connection &c, const QString &last, const QString &first);
// CourseLog: Overall, Front or Back pair by the holes played; nothing when the tees are not there.
std::optional<RatingSlope> CourseRatingSlope(Connection &c, const QString &course, const QString &tees,
                                             const QString &holesText);
// ScoreDetails of one round, by Hole.
QVector<HoleScore> RoundHoleScores(Connection &c, qint64 scoreIndex, const QString &last,
                                   const QString &first, const QDate &date, const QString &course,
                                   const QString &tees);
ScoreInputs LoadScoreInputs(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                            const QString &course, const QString &tees, const QDate &date,
                            const QString &holesText);

// The adjusted score of a saved round of the current golfer: the total itself
// when the round has no hole rows.
qint16 ComputeAdjustedScore(qint16 totalScore, qint64 scoreIndex, const QString &course, const QString &tees,
                            const QDate &date, const QString &holesText);

} // namespace quillon

#include "AdjustedScore.h"

#include "MaximumIndex.h"
#include "core/Convert.h"
#include "core/DateText.h"
#include "core/Format.h"
#include "core/Int16.h"
#include "core/QuillonError.h"
#include "shell/basLogGlobals.h"
#include "store/Encodings.h"

#include <QSqlQuery>
#include <cmath>

namespace quillon {

namespace {

std::optional<int> optionalInt(const QVariant &v)
{
    if (v.isNull())
        return std::nullopt;
    return int(v.toLongLong());
}

// CourseLog's "not entered" (0 or Null) reads as 0.
double numberOrZero(const QVariant &v)
{
    return v.isNull() ? 0.0 : v.toDouble();
}

} // namespace

HolesPlayed HolesPlayedFrom(const QString &holesText)
{
    if (holesText == Holes::Eighteen)
        return HolesPlayed::Eighteen;
    if (holesText == Holes::FrontNine)
        return HolesPlayed::Front;
    if (holesText == Holes::BackNine)
        return HolesPlayed::Back;
    return HolesPlayed::Other;
}

qint16 CourseHandicap(float index, int slope, const QString &holesText)
{
    if (HolesPlayedFrom(holesText) == HolesPlayed::Other)
        return 0;
    // Single precision throughout, as the index is held: 11.3 on slope 130 is 13, not 12.
    const float product = index * float(slope);
    const float courseHandicap = product / float(kStandardSlope);
    return CInt(std::floor(double(courseHandicap)));
}

std::optional<int> HoleCap(qint16 courseHandicap)
{
    if (courseHandicap <= 9)
        return std::nullopt;
    if (courseHandicap <= 19)
        return 7;
    if (courseHandicap <= 29)
        return 8;
    if (courseHandicap <= 39)
        return 9;
    return 10;
}

qint16 AdjustedScore(qint16 totalScore, qint16 courseHandicap, const QVector<HoleScore> &holes)
{
    const std::optional<int> cap = HoleCap(courseHandicap);
    Int16 reduction = 0;
    for (const HoleScore &h : holes) {
        if (!h.score)
            continue;
        if (cap) {
            if (*h.score > *cap)
                reduction += Int16(*h.score - *cap);
        } else if (h.par && *h.score > *h.par + 2) {
            reduction += Int16(*h.score - *h.par - 2);
        }
    }
    return (Int16(totalScore) - reduction).value();
}

float ComputeDifferential(qint16 adjustedScore, double rating, int slope, const QString &holesText)
{
    if (HolesPlayedFrom(holesText) == HolesPlayed::Other)
        return 0.0f;
    if (slope == 0)
        throw QuillonError::divisionByZero();
    return float((double(adjustedScore) - rating) * kStandardSlope / double(slope));
}

QString DifferentialText(float differential)
{
    return Format(differential, QStringLiteral("###.0"));
}

float IndexForAdjustment(Connection &c, const QString &last, const QString &first)
{
    const Recordset golfer = Query(
        c, QStringLiteral("SELECT Handicap, Gender FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
        {last, first});
    const QVariant handicap = golfer.value(0);
    if (!handicap.isNull() && float(handicap.toDouble()) != -1000.0f)
        return float(handicap.toDouble());
    return MaximumIndex(golfer.value(1).toString());
}

std::optional<RatingSlope> CourseRatingSlope(Connection &c, const QString &course, const QString &tees,
                                             const QString &holesText)
{
    const Recordset tee = Query(c,
                                QStringLiteral("SELECT OverallRating, OverallSlope, FrontRating, FrontSlope, "
                                               "BackRating, BackSlope FROM CourseLog "
                                               "WHERE CourseName = ? AND Tees = ?"),
                                {course, tees});
    if (tee.isEmpty())
        return std::nullopt;
    int column = 0;
    switch (HolesPlayedFrom(holesText)) {
    case HolesPlayed::Eighteen: column = 0; break;
    case HolesPlayed::Front: column = 2; break;
    case HolesPlayed::Back: column = 4; break;
    case HolesPlayed::Other: return RatingSlope{};
    }
    return RatingSlope{numberOrZero(tee.value(column)), CInt(numberOrZero(tee.value(column + 1)))};
}

QVector<HoleScore> RoundHoleScores(Connection &c, qint64 scoreIndex, const QString &last,
                                   const QString &first, const QDate &date, const QString &course,
                                   const QString &tees)
{
    Statement q = c.run(QStringLiteral("SELECT Score, PAR FROM ScoreDetails WHERE ScoreIndex = ? "
                                       "AND LastName = ? AND FirstName = ? AND Date = ? AND CourseName = ? "
                                       "AND Tees = ? ORDER BY Hole"),
                        {scoreIndex, last, first, IsoDate(date), course, tees});
    QVector<HoleScore> holes;
    while (q.next())
        holes.append({optionalInt(q.value(0)), optionalInt(q.value(1))});
    return holes;
}

ScoreInputs LoadScoreInputs(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                            const QString &course, const QString &tees, const QDate &date,
                            const QString &holesText)
{
    ScoreInputs in;
    in.index = IndexForAdjustment(c, last, first);
    in.course = CourseRatingSlope(c, course, tees, holesText).value_or(RatingSlope{});
    in.holes = RoundHoleScores(c, scoreIndex, last, first, date, course, tees);
    return in;
}

qint16 ComputeAdjustedScore(qint16 totalScore, qint64 scoreIndex, const QString &course, const QString &tees,
                            const QDate &date, const QString &holesText)
{
    const LogGlobals &g = basLogGlobals();
    const ScoreInputs in =
        LoadScoreInputs(db(), g.gLastName, g.gFirstName, scoreIndex, course, tees, date, holesText);
    const qint16 courseHandicap = CourseHandicap(in.index, in.course.slope, holesText);
    if (in.holes.isEmpty())
        return totalScore;
    return AdjustedScore(totalScore, courseHandicap, in.holes);
}

} // namespace quillon

#include "ScorecardData.h"

#include "core/Convert.h"
#include "core/Int16.h"
#include "core/NumberText.h"
#include "core/VariantKind.h"
#include "store/basDatabase.h"

#include <QVariant>
#include <cmath>
#include <optional>

namespace quillon {

namespace {

// A stored number; nothing for Null and for anything else a numeric column may hold.
std::optional<double> numberOf(const QVariant &value)
{
    if (!IsNumber(value))
        return std::nullopt;
    return value.toDouble();
}

QString numberText(const QVariant &value)
{
    const std::optional<double> n = numberOf(value);
    return n ? DoubleText(*n) : QString();
}

// The rating with its slope, both as stored, where the rating is above 0.
QString ratingText(const QVariant &rating, const QVariant &slope)
{
    const std::optional<double> r = numberOf(rating);
    if (!r || *r <= 0)
        return QString();
    return DoubleText(*r) + QStringLiteral(" / ") + numberText(slope);
}

// A par sum of CourseLog, where it is not 0.
QString parSumText(const QVariant &value)
{
    const std::optional<double> n = numberOf(value);
    return n && *n != 0 ? DoubleText(*n) : QString();
}

QString sumText(Int16 sum)
{
    return sum.value() > 0 ? QString::number(sum.value()) : QString();
}

} // namespace

QStringList CoursesWithHoles(Connection &c)
{
    return FirstColumn(c, QStringLiteral("SELECT DISTINCT CourseName FROM CourseDetails ORDER BY CourseName"));
}

bool TeesHaveHoles(Connection &c, const QString &course, const QString &tees)
{
    Statement s = c.run(QStringLiteral("SELECT 1 FROM CourseDetails WHERE CourseName = ? AND Tees = ?"),
                        {course, tees});
    return s.next();
}

ScorecardData ReadScorecard(Connection &c, const QString &course, const QString &tees)
{
    ScorecardData card;
    {
        Statement s =
            c.run(QStringLiteral("SELECT FrontRating, FrontSlope, BackRating, BackSlope, OverallRating, "
                                 "OverallSlope, ParIn, ParOut, TotalPar FROM CourseLog "
                                 "WHERE CourseName = ? AND Tees = ?"),
                  {course, tees});
        if (s.next()) {
            card.frontRating = ratingText(s.value(0), s.value(1));
            card.backRating = ratingText(s.value(2), s.value(3));
            card.overallRating = ratingText(s.value(4), s.value(5));
            card.inPar = parSumText(s.value(6));
            card.outPar = parSumText(s.value(7));
            card.totalPar = parSumText(s.value(8));
        }
    }

    Statement s =
        c.run(QStringLiteral(
                  "SELECT Hole, Yards, PAR, Handicap FROM CourseDetails WHERE CourseName = ? AND Tees = ?"),
              {course, tees});
    Int16 out, in;
    while (s.next()) {
        card.holesFound = true;
        const std::optional<double> hole = numberOf(s.value(0));
        if (!hole || *hole < 1 || *hole > kCardHoles || std::floor(*hole) != *hole)
            continue; // a hole the card has no column for
        const int h = int(*hole);
        if (const std::optional<double> yards = numberOf(s.value(1))) {
            card.distance[h] = DoubleText(*yards);
            // Each step is kept in the 16-bit counter, as the sums always were.
            Int16 &sum = h > 9 ? in : out;
            sum = CInt(sum.value() + *yards);
        }
        if (const std::optional<double> par = numberOf(s.value(2))) {
            card.par[h] = DoubleText(*par);
            if (*par == 3)
                card.fairway[h] = QStringLiteral("N/A");
        }
        card.handicap[h] = numberText(s.value(3));
    }
    if (!card.holesFound)
        return card;

    card.outDistance = sumText(out);
    card.inDistance = sumText(in);
    card.totalDistance = sumText(out + in);
    card.course = course;
    card.tees = tees;
    return card;
}

QString IncompleteDetailsMessage(const QString &course, const QString &tees)
{
    return QStringLiteral(
               "Course details for the %1 tees at %2 are incomplete.  Unable to print a scorecard for "
               "this course.  Please select Edit Course off the menu to enter course details.")
        .arg(tees, course);
}

} // namespace quillon

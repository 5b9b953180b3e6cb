#pragma once

#include "course/CourseEntry.h"
#include "course/CourseTotals.h"

namespace quillon::test {

// A complete 18-hole set of tees as the entry form holds it: the pars of a par-72 card, yards
// 300 + 10 per hole, stroke indexes 1 to 18 in hole order, and all three rating pairs.  The
// derived totals are left blank; DeriveTotals fills them as the form does.
inline CourseEntry CompleteCourseEntry(const QString &course = QStringLiteral("Pebble Creek"),
                                       const QString &tees = QStringLiteral("White"))
{
    CourseEntry e;
    e.course = course;
    e.tees = tees;
    e.overallRating = QStringLiteral("71.5");
    e.overallSlope = QStringLiteral("125");
    e.frontRating = QStringLiteral("35.7");
    e.frontSlope = QStringLiteral("124");
    e.backRating = QStringLiteral("35.8");
    e.backSlope = QStringLiteral("126");
    const int pars[18] = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};
    for (int i = 0; i < 18; ++i) {
        e.par[i] = QString::number(pars[i]);
        e.yards[i] = QString::number(300 + 10 * i);
        e.hdcp[i] = QString::number(i + 1);
    }
    return e;
}

// Blank the 27 boxes of the nine that starts at `from` (0 or 9).
inline void BlankNine(CourseEntry &e, int from)
{
    for (int i = from; i < from + 9; ++i)
        e.par[i] = e.yards[i] = e.hdcp[i] = QString();
}

inline void BlankRatings(CourseEntry &e)
{
    e.overallRating = e.overallSlope = e.frontRating = e.frontSlope = e.backRating = e.backSlope = QString();
}

// The Out, In and Total labels as the form derives them from the grid.
inline void DeriveTotals(CourseEntry &e)
{
    const RowTotals par = SumRow(e.par);
    const RowTotals yards = SumRow(e.yards);
    e.parOut = par.out;
    e.parIn = par.in;
    e.parTotal = par.total;
    e.yardsOut = yards.out;
    e.yardsIn = yards.in;
    e.yardsTotal = yards.total;
}

} // namespace quillon::test

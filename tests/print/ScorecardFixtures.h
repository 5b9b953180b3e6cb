#pragma once

#include "Fixtures.h"

namespace quillon::test {

// A set of tees as the fixture makes them (18 holes of 350 yards, par 3 on holes 3, 7, 12 and
// 16), under these names.
inline void addTees(Connection &c, const QString &course, const QString &tees)
{
    CourseSpec spec;
    spec.name = course;
    spec.tees = tees;
    addCourse(c, spec);
}

// A set of tees with ratings, slopes and par sums and no hole rows: 36.4 / 130 on the front,
// 36.7 / 132 on the back, 73.1 / 131 overall, par 36 and 36, 72 in all.
inline void addTeesWithoutHoles(Connection &c, const QString &course, const QString &tees)
{
    CourseSpec spec;
    spec.name = course;
    spec.tees = tees;
    spec.frontRating = 36.4;
    spec.frontSlope = 130;
    spec.backRating = 36.7;
    spec.backSlope = 132;
    spec.overallRating = 73.1;
    spec.overallSlope = 131;
    spec.pars = {};
    addCourse(c, spec);
    Exec(
        c,
        QStringLiteral("UPDATE CourseLog SET ParOut = 36, ParIn = 36, TotalPar = 72 WHERE CourseName = ? AND "
                       "Tees = ?"),
        {course, tees});
}

} // namespace quillon::test

#pragma once

#include <QString>
#include <QtGlobal>

namespace quillon {

// The course handicap of a handicap index on tees of the given Slope Rating: index times the
// lenient value of the slope text, divided by the standard slope 113, in double precision, and
// rounded to a 16-bit integer with exact halves going to the even neighbour.  A plus handicap
// (a negative index) goes through the same formula.  A result beyond the 16-bit range throws
// an overflow.
qint16 CourseHandicapFor(double index, const QString &slopeText);

} // namespace quillon

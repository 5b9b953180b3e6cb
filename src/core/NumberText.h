#pragma once

#include <QString>

namespace quillon {

// The text a number turns into when no format is given: at most 7 (single)
// or 15 (double) significant digits, no trailing zeros or point, a leading
// "0" before the point.  Magnitudes outside %g's fixed range for that
// precision take the exponent form "1E+15", "1.5E-05".  Negative zero reads
// "0".  Locale-independent.  A non-finite value: Overflow.
QString SingleText(float value);
QString DoubleText(double value);

} // namespace quillon

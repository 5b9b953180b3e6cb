#pragma once

#include <QString>

namespace quillon {

// Number formatting with digit placeholders, as the original's Format did it:
//   '0'  a digit that always shows (a zero when there is none)
//   '#'  a digit that shows only when significant: before the point, no
//        leading zeros ("###.0" writes .5); after it, trailing zeros drop
//   '.'  the decimal point (always ".", whatever the locale)
// Text before the first and after the last placeholder is copied as is; the
// minus sign comes first.  Rounding is decimal and halves go away from zero,
// applied to the value as the original read it: 15 significant digits for a
// double, 7 for a single.  A value that rounds to zero has no minus sign.
// An empty pattern gives the default text (DoubleText / SingleText).
// A pattern with placeholders after its suffix text, or none at all, is a
// programming error: std::invalid_argument.  A non-finite value: Overflow.
QString Format(double value, const QString &pattern);
QString Format(float value, const QString &pattern);
// Integers are exact in either precision; this overload only spares callers
// an ambiguous call.
QString Format(int value, const QString &pattern);

} // namespace quillon

#pragma once

#include <QString>
#include <QVector>

namespace quillon {

// The handicap index from the differentials used, as text at every step, so
// that it is cut and shown exactly as the golfer sees it.
namespace IndexText {

inline constexpr double kMultiplier = 0.96;

// The running sum of the differentials in single precision, rounded after every addition.
float SumOfDifferentials(const QVector<double> &differentials);

// Cut a number's text to one decimal without rounding: "12" -> "12.0",
// "12." -> "12.0", "8.832" -> "8.8".
QString CutToOneDecimal(const QString &text);

// The product as 15-significant-digit text, cut, read back and formatted "###.0".
QString FromProduct(double product);

// sum / count x 0.96 in double precision, then FromProduct.
// A count of 0 is a division by zero (11).
QString FromSum(float sum, int count);

// The cap by gender: above 40.4 for exactly "F", above 36.4 for anything else.
QString Capped(const QString &text, const QString &gender);

// The index as the single-precision number the text reads.
float Value(const QString &text);

} // namespace IndexText

} // namespace quillon

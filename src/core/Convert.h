#pragma once

#include <QString>
#include <QtGlobal>

namespace quillon {

// Conversions with the original language's rounding and errors.

// To a 16-/32-bit integer: halves round to the even neighbour (2.5 -> 2,
// 3.5 -> 4); a result outside the type's range throws Overflow (6).
qint16 CInt(double value);
qint32 CLng(double value);

// Rounds to single precision; beyond the single range throws Overflow (6).
float CSng(double value);

// Lenient reading: the number at the start of the text, 0 when there is none.
// Blanks, tabs and line feeds are ignored wherever they are ("1 2" is 12).
// Reads an optional sign, digits with one optional point, an optional
// exponent (E or D), or "&H" hex / "&O" (or bare "&") octal, where a value
// that fits 16 (else 32) bits is taken as signed: "&HFFFF" is -1.
// Never throws: a decimal beyond double range reads as infinity.
double Val(const QString &text);

// Strict reading: surrounding blanks and tabs, an optional sign, digits with
// at most one point, an optional exponent (E, with digits); anything else,
// including blank text, throws TypeMismatch (13).  Out of range: Overflow (6).
double CDbl(const QString &text);
float CSng(const QString &text);
qint16 CIntText(const QString &text);

} // namespace quillon

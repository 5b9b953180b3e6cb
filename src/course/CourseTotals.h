#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

// The derived sums of a row of the hole grid (par or yards).
struct RowTotals {
    QString out, in, total; // blank when not above 0
};

// The sums of one row of 18 boxes: each nine summed in a checked 16-bit integer, a blank box
// counting 0; a nine whose sum is below 1 shows blank, and the total is the two shown sums
// together when above 0.  A text that is not a number is a type mismatch; a sum beyond the
// 16-bit range an overflow.
RowTotals SumRow(const QStringList &boxes);

// The spinner buttons beside a rating or slope box: the text the box takes.  A slope button
// that may not step returns the text unchanged.  A strict conversion of a blank or
// non-numeric text throws a type mismatch, as the buttons are designed to.
QString RatingIncrease(const QString &text);
QString RatingDecrease(const QString &text);
QString SlopeIncrease(const QString &text);
QString SlopeDecrease(const QString &text);

// The calculator's buttons: a rating steps by a tenth from its strict value (a blank box fails
// both ways); a yardage steps by one from its lenient value, and goes no lower than 0.
QString RatingStrictIncrease(const QString &text);
QString YardageIncrease(const QString &text);
QString YardageDecrease(const QString &text);

// A rating as the course screens show it: one decimal, no digit before the point below 1.
QString RatingText(double rating);

} // namespace quillon

#include "CourseTotals.h"

#include "core/Convert.h"
#include "core/Format.h"
#include "core/Int16.h"
#include "core/NumberText.h"

namespace quillon {

namespace {

Int16 nineSum(const QStringList &boxes, int from)
{
    Int16 sum;
    for (int i = from; i < from + 9; ++i)
        if (!boxes.at(i).isEmpty())
            sum += CIntText(boxes.at(i));
    return sum;
}

QString shownSum(Int16 sum)
{
    return sum.value() < 1 ? QString() : QString::number(sum.value());
}

} // namespace

RowTotals SumRow(const QStringList &boxes)
{
    RowTotals t;
    t.out = shownSum(nineSum(boxes, 0));
    t.in = shownSum(nineSum(boxes, 9));
    const double total = Val(t.out) + Val(t.in);
    t.total = total > 0 ? DoubleText(total) : QString();
    return t;
}

QString RatingText(double rating)
{
    return Format(rating, QStringLiteral("###.0"));
}

QString RatingIncrease(const QString &text)
{
    if (text.isEmpty())
        return QStringLiteral("0.1");
    return RatingText(CDbl(text) + 0.1);
}

QString RatingDecrease(const QString &text)
{
    return RatingText(CDbl(text) - 0.1);
}

QString RatingStrictIncrease(const QString &text)
{
    return RatingText(CDbl(text) + 0.1);
}

QString YardageIncrease(const QString &text)
{
    return DoubleText(Val(text) + 1);
}

QString YardageDecrease(const QString &text)
{
    const double value = Val(text);
    return value > 0 ? DoubleText(value - 1) : text;
}

QString SlopeIncrease(const QString &text)
{
    if (Val(text) < 155)
        return DoubleText(CDbl(text) + 1);
    return text;
}

QString SlopeDecrease(const QString &text)
{
    if (Val(text) > 55)
        return DoubleText(CDbl(text) - 1);
    return text;
}

} // namespace quillon

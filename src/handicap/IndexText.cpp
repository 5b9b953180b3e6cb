#include "IndexText.h"

#include "MaximumIndex.h"
#include "core/Convert.h"
#include "core/Format.h"
#include "core/NumberText.h"
#include "core/QuillonError.h"

namespace quillon::IndexText {

namespace {
const QString kOneDecimal = QStringLiteral("###.0");
}

float SumOfDifferentials(const QVector<double> &differentials)
{
    float sum = 0.0f;
    for (const double d : differentials)
        sum = float(double(sum) + d);
    return sum;
}

QString CutToOneDecimal(const QString &text)
{
    const int point = text.indexOf(QLatin1Char('.'));
    if (point < 0)
        return text + QStringLiteral(".0");
    if (point == text.size() - 1)
        return text + QStringLiteral("0");
    return text.left(point + 2);
}

QString FromProduct(double product)
{
    // 15 significant digits first: 8.7999999999999998 reads 8.8 and stays so.
    QString text = DoubleText(product);
    // Within 1E-04 of zero the general form turns to an exponent; cut on its characters,
    // "-7.15255737304688E-10" would read -7.1.  Such a product is zero to one decimal.
    if (text.contains(QLatin1Char('E')))
        text = QString::number(product, 'f', 15);
    const QString cut = CutToOneDecimal(text);
    return Format(Val(cut), kOneDecimal);
}

QString FromSum(float sum, int count)
{
    if (count == 0)
        throw QuillonError::divisionByZero();
    return FromProduct(double(sum) / double(count) * kMultiplier);
}

QString Capped(const QString &text, const QString &gender)
{
    // Strictly above the cap only: a value equal to it stays as it is.
    const QString cap = MaximumIndexText(gender);
    return Val(text) > Val(cap) ? cap : text;
}

float Value(const QString &text)
{
    return CSng(text);
}

} // namespace quillon::IndexText

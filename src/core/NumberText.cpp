#include "core/NumberText.h"

#include "core/QuillonError.h"

#include <charconv>
#include <cmath>

namespace quillon {

namespace {

QString generalText(double value, int significantDigits)
{
    if (!std::isfinite(value))
        throw QuillonError::overflow();
    if (value == 0.0)
        return QStringLiteral("0"); // also for -0.0
    char buffer[64];
    // chars_format::general is %g: trailing zeros dropped, exponent of at
    // least two digits, and the same fixed/exponent switching rule.
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, significantDigits);
    QString text = QString::fromLatin1(buffer, int(result.ptr - buffer));
    text.replace(QLatin1Char('e'), QLatin1Char('E'));
    return text;
}

} // namespace

QString SingleText(float value)
{
    return generalText(value, 7);
}

QString DoubleText(double value)
{
    return generalText(value, 15);
}

} // namespace quillon

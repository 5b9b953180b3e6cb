#include "core/Format.h"

#include "core/NumberText.h"
#include "core/QuillonError.h"

#include <charconv>
#include <cmath>
#include <stdexcept>
#include <string>

namespace quillon {

namespace {

struct Pattern {
    QString prefix;
    QString suffix;
    int minIntegerDigits = 0; // '0' placeholders before the point
    bool hasPoint = false;
    QString decimals; // the placeholders after the point, in order
};

bool isPlaceholder(QChar c)
{
    return c == QLatin1Char('#') || c == QLatin1Char('0') || c == QLatin1Char('.');
}

Pattern parsePattern(const QString &pattern)
{
    Pattern parsed;
    int i = 0;
    while (i < pattern.size() && !isPlaceholder(pattern[i]))
        parsed.prefix += pattern[i++];
    if (i == pattern.size())
        throw std::invalid_argument("Format pattern without digit placeholders: " + pattern.toStdString());
    for (; i < pattern.size() && pattern[i] != QLatin1Char('.') && isPlaceholder(pattern[i]); ++i) {
        if (pattern[i] == QLatin1Char('0'))
            ++parsed.minIntegerDigits;
    }
    if (i < pattern.size() && pattern[i] == QLatin1Char('.')) {
        parsed.hasPoint = true;
        for (++i; i < pattern.size() && (pattern[i] == QLatin1Char('#') || pattern[i] == QLatin1Char('0'));
             ++i)
            parsed.decimals += pattern[i];
    }
    parsed.suffix = pattern.mid(i);
    for (const QChar c : parsed.suffix) {
        if (isPlaceholder(c))
            throw std::invalid_argument("Format pattern with placeholders after its text: " +
                                        pattern.toStdString());
    }
    return parsed;
}

// |value| * 10^decimals rounded half away from zero, as decimal digits, taken
// from the value's text at the given number of significant digits so that a
// binary value just below a half (14.25f is exact, 39.55f is 39.5499992)
// rounds as its decimal reading does.
std::string roundedUnits(double value, int significantDigits, int decimals)
{
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                      std::chars_format::scientific, significantDigits - 1);
    const std::string text(buffer, result.ptr); // d.ddddde±xx
    const std::size_t ePos = text.find('e');
    std::string digits = text.substr(0, 1) + text.substr(2, ePos - 2);
    const int exponent = std::stoi(text.substr(ePos + 1));
    if (digits.find_first_not_of('0') == std::string::npos)
        return "0";

    // digits are d1 d2 d3 ... with the point after the (exponent + 1)-th
    const int keep = exponent + 1 + decimals;
    if (keep < 0)
        return "0";
    if (keep == 0)
        return digits[0] >= '5' ? "1" : "0";
    if (keep >= static_cast<int>(digits.size()))
        return digits + std::string(keep - digits.size(), '0');

    const bool roundUp = digits[keep] >= '5';
    digits.resize(keep);
    if (roundUp) {
        int i = keep - 1;
        for (; i >= 0 && digits[i] == '9'; --i)
            digits[i] = '0';
        if (i < 0)
            digits.insert(digits.begin(), '1');
        else
            ++digits[i];
    }
    return digits;
}

QString formatDecimal(double value, int significantDigits, const QString &pattern)
{
    if (!std::isfinite(value))
        throw QuillonError::overflow();
    const Pattern parsed = parsePattern(pattern);
    const int decimals = parsed.decimals.size();

    std::string units = roundedUnits(value, significantDigits, decimals);
    const bool isZero = units.find_first_not_of('0') == std::string::npos;
    if (static_cast<int>(units.size()) < decimals + 1)
        units.insert(0, decimals + 1 - units.size(), '0');

    std::string integer = units.substr(0, units.size() - decimals);
    std::string fraction = units.substr(units.size() - decimals);
    integer.erase(0, std::min(integer.find_first_not_of('0'), integer.size()));
    if (static_cast<int>(integer.size()) < parsed.minIntegerDigits)
        integer.insert(0, parsed.minIntegerDigits - integer.size(), '0');
    // Trailing '#' decimals show only when they are not zero.
    while (!fraction.empty() && parsed.decimals[int(fraction.size()) - 1] == QLatin1Char('#') &&
           fraction.back() == '0')
        fraction.pop_back();

    QString text;
    if (value < 0 && !isZero)
        text += QLatin1Char('-');
    text += parsed.prefix;
    text += QLatin1String(integer.data(), int(integer.size()));
    if (parsed.hasPoint) {
        text += QLatin1Char('.');
        text += QLatin1String(fraction.data(), int(fraction.size()));
    }
    text += parsed.suffix;
    return text;
}

} // namespace

QString Format(double value, const QString &pattern)
{
    if (pattern.isEmpty())
        return DoubleText(value);
    return formatDecimal(value, 15, pattern);
}

QString Format(float value, const QString &pattern)
{
    if (pattern.isEmpty())
        return SingleText(value);
    return formatDecimal(value, 7, pattern);
}

QString Format(int value, const QString &pattern)
{
    return Format(static_cast<double>(value), pattern);
}

} // namespace quillon

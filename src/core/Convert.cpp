#include "core/Convert.h"

#include "core/QuillonError.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace quillon {

namespace {

double roundHalfEven(double value)
{
    // Explicit rather than nearbyint so the result never depends on the
    // floating-point environment's rounding mode.
    if (std::fabs(value - std::trunc(value)) == 0.5)
        return 2.0 * std::round(value / 2.0);
    return std::round(value);
}

template <typename Int>
Int roundedInteger(double value)
{
    const double rounded = roundHalfEven(value);
    // Written so that NaN fails the test too.
    if (!(rounded >= std::numeric_limits<Int>::min() && rounded <= std::numeric_limits<Int>::max()))
        throw QuillonError::overflow();
    return static_cast<Int>(rounded);
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// A decimal number read from the start of an ASCII text.
struct DecimalScan {
    std::size_t end = 0;      // index after the last character read
    bool hasDigits = false;   // at least one mantissa digit
    bool badExponent = false; // an exponent letter without digits after it
    double value = 0.0;
    bool overflow = false; // beyond double range (a tiny value reads as 0)
};

DecimalScan scanDecimal(const std::string &text, const char *exponentLetters)
{
    DecimalScan scan;
    std::string number; // what from_chars reads: no '+', 'e' for the exponent
    std::size_t i = 0;
    const bool negative = i < text.size() && text[i] == '-';
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    if (negative)
        number += '-';

    // The decimal magnitude of the mantissa, to tell overflow from underflow.
    long long magnitude = 0;
    bool seenNonZero = false;
    for (; i < text.size() && isDigit(text[i]); ++i) {
        scan.hasDigits = true;
        seenNonZero = seenNonZero || text[i] != '0';
        if (seenNonZero)
            ++magnitude;
        number += text[i];
    }
    if (i < text.size() && text[i] == '.') {
        number += '.';
        for (++i; i < text.size() && isDigit(text[i]); ++i) {
            scan.hasDigits = true;
            if (!seenNonZero && text[i] == '0')
                --magnitude;
            seenNonZero = seenNonZero || text[i] != '0';
            number += text[i];
        }
    }
    if (!scan.hasDigits)
        return scan;
    scan.end = i;

    long long exponent = 0;
    if (i < text.size() && std::string(exponentLetters).find(text[i]) != std::string::npos) {
        std::size_t j = i + 1;
        const bool negativeExponent = j < text.size() && text[j] == '-';
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            ++j;
        std::string exponentDigits;
        for (; j < text.size() && isDigit(text[j]); ++j)
            exponentDigits += text[j];
        if (exponentDigits.empty()) {
            scan.badExponent = true;
        } else {
            number += negativeExponent ? "e-" : "e";
            number += exponentDigits;
            for (const char c : exponentDigits)
                exponent = std::min(exponent * 10 + (c - '0'), 1'000'000'000LL);
            if (negativeExponent)
                exponent = -exponent;
            scan.end = j;
        }
    }

    const auto result = std::from_chars(number.data(), number.data() + number.size(), scan.value);
    if (result.ec == std::errc::result_out_of_range) {
        scan.overflow = seenNonZero && magnitude + exponent > 0;
        scan.value = scan.overflow ? std::numeric_limits<double>::infinity() : 0.0;
        if (negative)
            scan.value = -scan.value;
    }
    if (scan.value == 0.0)
        scan.value = 0.0; // no negative zero
    return scan;
}

double readPrefixedInteger(const std::string &text)
{
    // text starts with '&'
    int base = 8;
    std::size_t i = 1;
    if (i < text.size() && (text[i] == 'H' || text[i] == 'h')) {
        base = 16;
        ++i;
    } else if (i < text.size() && (text[i] == 'O' || text[i] == 'o')) {
        ++i;
    }
    quint64 value = 0;
    double wideValue = 0.0; // takes over when the digits pass 64 bits
    bool tooLarge = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        int digit = -1;
        if (isDigit(c))
            digit = c - '0';
        else if (base == 16 && c >= 'a' && c <= 'f')
            digit = c - 'a' + 10;
        else if (base == 16 && c >= 'A' && c <= 'F')
            digit = c - 'A' + 10;
        if (digit < 0 || digit >= base)
            break;
        wideValue = wideValue * base + digit;
        if (value > (std::numeric_limits<quint64>::max() - digit) / base)
            tooLarge = true;
        else
            value = value * base + digit;
    }
    if (tooLarge)
        return wideValue;
    // Like the language's own &H literals: 16 bits if they fit, else 32.
    if (value <= 0xFFFF)
        return static_cast<qint16>(static_cast<quint16>(value));
    if (value <= 0xFFFFFFFF)
        return static_cast<qint32>(static_cast<quint32>(value));
    return static_cast<double>(value);
}

} // namespace

qint16 CInt(double value)
{
    return roundedInteger<qint16>(value);
}

qint32 CLng(double value)
{
    return roundedInteger<qint32>(value);
}

float CSng(double value)
{
    // The smallest magnitude that rounds to infinity in single precision:
    // halfway between FLT_MAX and 2^128.
    static const double singleLimit = std::ldexp(1.0, 128) - std::ldexp(1.0, 103);
    if (!(std::fabs(value) < singleLimit))
        throw QuillonError::overflow();
    return static_cast<float>(value);
}

double Val(const QString &text)
{
    std::string compact;
    compact.reserve(text.size());
    for (const QChar c : text) {
        if (c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n'))
            continue;
        // Anything outside ASCII ends the number; '\x7f' never belongs to one.
        compact += c.unicode() < 0x80 ? char(c.unicode()) : '\x7f';
    }
    if (!compact.empty() && compact[0] == '&')
        return readPrefixedInteger(compact);
    return scanDecimal(compact, "eEdD").value;
}

double CDbl(const QString &text)
{
    const std::string ascii = text.toStdString();
    std::size_t begin = 0;
    std::size_t end = ascii.size();
    while (begin < end && (ascii[begin] == ' ' || ascii[begin] == '\t'))
        ++begin;
    while (end > begin && (ascii[end - 1] == ' ' || ascii[end - 1] == '\t'))
        --end;
    const std::string number = ascii.substr(begin, end - begin);

    const DecimalScan scan = scanDecimal(number, "eE");
    if (!scan.hasDigits || scan.badExponent || scan.end != number.size())
        throw QuillonError::typeMismatch();
    if (scan.overflow)
        throw QuillonError::overflow();
    return scan.value;
}

float CSng(const QString &text)
{
    return CSng(CDbl(text));
}

qint16 CIntText(const QString &text)
{
    return CInt(CDbl(text));
}

} // namespace quillon

#pragma once

#include <QtGlobal>

#include <type_traits>

namespace quillon {

// A 16-bit signed integer whose arithmetic raises Overflow (6) instead of
// wrapping, as the original's Integer did.  Built from any integer type
// (range-checked); floating-point values must go through CInt, which rounds.
class Int16 {
public:
    constexpr Int16() = default;

    template <typename T, std::enable_if_t<std::is_integral_v<T> && !std::is_same_v<T, bool>, int> = 0>
    Int16(T value) : m_value(checked(value))
    {
    }
    Int16(float) = delete;
    Int16(double) = delete;
    Int16(long double) = delete;

    qint16 value() const noexcept { return m_value; }

    Int16 &operator+=(Int16 other);
    Int16 &operator-=(Int16 other);
    Int16 &operator*=(Int16 other);
    Int16 &operator++();
    Int16 operator++(int);
    Int16 &operator--();
    Int16 operator--(int);
    Int16 operator-() const; // -(-32768) overflows

    friend Int16 operator+(Int16 a, Int16 b) { return a += b; }
    friend Int16 operator-(Int16 a, Int16 b) { return a -= b; }
    friend Int16 operator*(Int16 a, Int16 b) { return a *= b; }

    friend bool operator==(Int16 a, Int16 b) noexcept { return a.m_value == b.m_value; }
    friend bool operator!=(Int16 a, Int16 b) noexcept { return a.m_value != b.m_value; }
    friend bool operator<(Int16 a, Int16 b) noexcept { return a.m_value < b.m_value; }
    friend bool operator<=(Int16 a, Int16 b) noexcept { return a.m_value <= b.m_value; }
    friend bool operator>(Int16 a, Int16 b) noexcept { return a.m_value > b.m_value; }
    friend bool operator>=(Int16 a, Int16 b) noexcept { return a.m_value >= b.m_value; }

private:
    template <typename T>
    static qint16 checked(T value)
    {
        // Compare in the argument's own signedness so that no conversion
        // wraps; types too narrow to leave the range need no test.
        if constexpr (std::is_signed_v<T> && sizeof(T) > 2) {
            if (value < -32768 || value > 32767)
                throwOverflow();
        } else if constexpr (std::is_unsigned_v<T> && sizeof(T) >= 2) {
            if (value > 32767u)
                throwOverflow();
        }
        return static_cast<qint16>(value);
    }
    [[noreturn]] static void throwOverflow();

    qint16 m_value = 0;
};

} // namespace quillon

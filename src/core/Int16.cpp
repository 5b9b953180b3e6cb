#include "core/Int16.h"

#include "core/QuillonError.h"

namespace quillon {

// Every operation works in int, where no 16-bit result can wrap, and the
// constructor checks the range.

void Int16::throwOverflow()
{
    throw QuillonError::overflow();
}

Int16 &Int16::operator+=(Int16 other)
{
    return *this = Int16(int(m_value) + int(other.m_value));
}

Int16 &Int16::operator-=(Int16 other)
{
    return *this = Int16(int(m_value) - int(other.m_value));
}

Int16 &Int16::operator*=(Int16 other)
{
    return *this = Int16(int(m_value) * int(other.m_value));
}

Int16 &Int16::operator++()
{
    return *this += Int16(1);
}

Int16 Int16::operator++(int)
{
    const Int16 before = *this;
    ++*this;
    return before;
}

Int16 &Int16::operator--()
{
    return *this -= Int16(1);
}

Int16 Int16::operator--(int)
{
    const Int16 before = *this;
    --*this;
    return before;
}

Int16 Int16::operator-() const
{
    return Int16(-int(m_value));
}

} // namespace quillon

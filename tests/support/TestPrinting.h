#pragma once

#include "core/QuillonError.h"

#include <QDate>
#include <QString>

#include <ostream>

// Readable failure messages for Qt values.
inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QDate &date, std::ostream *os)
{
    *os << (date.isValid() ? date.toString(Qt::ISODate).toStdString() : std::string("invalid date"));
}

namespace quillon {

// The number of the QuillonError that f throws, or 0 when it throws none.
template <typename F>
int errorNumberOf(F f)
{
    try {
        f();
    } catch (const QuillonError &error) {
        return error.number();
    }
    return 0;
}

} // namespace quillon

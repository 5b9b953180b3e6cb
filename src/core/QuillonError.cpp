#include "QuillonError.h"

namespace quillon {

QuillonError::QuillonError(int number, const QString &description)
    : std::runtime_error(QStringLiteral("Error %1: %2").arg(number).arg(description).toStdString()),
      m_number(number), m_description(description)
{
}

QString QuillonError::message() const
{
    return QStringLiteral("Error %1: %2").arg(m_number).arg(m_description);
}

QuillonError QuillonError::overflow()
{
    return QuillonError(Overflow, QStringLiteral("Overflow"));
}

QuillonError QuillonError::divisionByZero()
{
    return QuillonError(DivisionByZero, QStringLiteral("Division by zero"));
}

QuillonError QuillonError::typeMismatch()
{
    return QuillonError(TypeMismatch, QStringLiteral("Type mismatch"));
}

} // namespace quillon

#pragma once

#include <QString>
#include <stdexcept>

namespace quillon {

// A run-time fault with the number and description the user sees as
// "Error <number>: <description>".  Handlers catch it at their own edge.
class QuillonError : public std::runtime_error {
public:
    enum Number {
        Overflow = 6,
        DivisionByZero = 11,
        TypeMismatch = 13,
        PermissionDenied = 70,
        DuplicateKey = 3022,
    };

    QuillonError(int number, const QString &description);

    int number() const noexcept { return m_number; }
    const QString &description() const noexcept { return m_description; }
    // "Error <number>: <description>"
    QString message() const;

    static QuillonError overflow();
    static QuillonError divisionByZero();
    static QuillonError typeMismatch();

private:
    int m_number;
    QString m_description;
};

} // namespace quillon

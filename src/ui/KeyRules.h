#pragma once

#include <QString>

class QLineEdit;

namespace quillon {

// Which typed characters an entry box takes.  Only typing is filtered: keys that move, delete,
// leave or paste pass, and so does Enter.
enum class KeyRule {
    Decimal,       // digits and the decimal point (any number of points)
    NoLeadingZero, // digits 1 to 9, and 0 only behind something already typed
    Par,           // exactly the digits 3, 4, 5 and 6
    Digits,        // the digits 0 to 9; a box array makes such boxes keep digits when pasted into too
};

// Whether the character a key types reaches a box that holds `current`.
bool KeyRuleAccepts(KeyRule rule, QChar typed, const QString &current);

// Give a box its rule, and select its whole text whenever it takes the focus.
void ApplyKeyRule(QLineEdit *box, KeyRule rule);

} // namespace quillon

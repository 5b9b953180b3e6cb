#pragma once

#include <QVariant>

namespace quillon {

// What a value read from the database holds: the engine compares numbers with
// numbers only, as the database does (a text never equals a number).
bool IsIntegral(const QVariant &v);
bool IsNumber(const QVariant &v);

} // namespace quillon

#pragma once

#include <QString>

namespace quillon {

// Text comparison as the database's NOCASE collation makes it: only the
// letters A-Z fold, so the engine's in-memory tests agree with its queries.
QString FoldNoCase(const QString &text);
bool SameNoCase(const QString &a, const QString &b);

} // namespace quillon

#pragma once

#include <QString>

namespace quillon {

// The highest index a golfer can hold, which is also the index strokes are
// adjusted by while a golfer has none yet: 40.4 for a woman (Gender exactly "F"),
// 36.4 for anybody else.  As text, the form the index takes before it is stored.
QString MaximumIndexText(const QString &gender);
float MaximumIndex(const QString &gender);

} // namespace quillon

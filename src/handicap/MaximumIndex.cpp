#include "MaximumIndex.h"

#include "core/Convert.h"

namespace quillon {

QString MaximumIndexText(const QString &gender)
{
    return gender == QLatin1String("F") ? QStringLiteral("40.4") : QStringLiteral("36.4");
}

float MaximumIndex(const QString &gender)
{
    return CSng(MaximumIndexText(gender));
}

} // namespace quillon

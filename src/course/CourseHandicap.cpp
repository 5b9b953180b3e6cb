#include "CourseHandicap.h"

#include "core/Convert.h"

namespace quillon {

qint16 CourseHandicapFor(double index, const QString &slopeText)
{
    return CInt(index * Val(slopeText) / 113.0);
}

} // namespace quillon

#include "VariantKind.h"

namespace quillon {

bool IsIntegral(const QVariant &v)
{
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong: return true;
    default: return false;
    }
}

bool IsNumber(const QVariant &v)
{
    return IsIntegral(v) || v.typeId() == QMetaType::Double || v.typeId() == QMetaType::Float;
}

} // namespace quillon

#include "GenderDialogQuestion.h"

#include "frmGender.h"

namespace quillon {

QString GenderDialogQuestion::GetGender(const QString &first, const QString &last)
{
    return frmGender::instance().GetGender(first, last);
}

} // namespace quillon

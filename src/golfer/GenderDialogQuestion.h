#pragma once

#include "shell/basLogGlobals.h"

namespace quillon {

// The gender question of the globals, answered by the user through frmGender.
class GenderDialogQuestion : public GenderQuestion {
public:
    QString GetGender(const QString &first, const QString &last) override;
};

} // namespace quillon

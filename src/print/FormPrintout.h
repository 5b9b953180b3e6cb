#pragma once

#include "platform/Platform.h"

class QWidget;

namespace quillon {

// A page form printed as a picture of itself: its labels, frames and lines as they stand, on
// one page of the given orientation.
PrintJob FormPrintout(const QString &documentName, QWidget &form, PageOrientation orientation);

} // namespace quillon

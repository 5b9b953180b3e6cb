#pragma once

class QWidget;

namespace quillon {

// Stand a dialog in the middle of the main window: left := frame left + frame width / 2 - own
// width / 2, and the same for the top; a dialog without a parent gets the main window as its
// owner.  Nothing when there is no main window.
void CentreOnFrame(QWidget &dialog);

} // namespace quillon

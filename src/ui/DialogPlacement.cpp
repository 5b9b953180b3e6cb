#include "DialogPlacement.h"

#include "platform/Platform.h"

#include <QWidget>

namespace quillon {

void CentreOnFrame(QWidget &dialog)
{
    const QWidget *frame = platformInstalled() ? platform().dialogParent() : nullptr;
    if (!frame)
        return;
    // The window must exist for its border to count in its own outer size.
    dialog.winId();
    const QRect outer = frame->frameGeometry();
    const QSize own = dialog.frameGeometry().size();
    dialog.move(outer.left() + outer.width() / 2 - own.width() / 2,
                outer.top() + outer.height() / 2 - own.height() / 2);
}

} // namespace quillon

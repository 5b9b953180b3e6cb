#include "DialogPlacement.h"

#include "platform/Platform.h"

#include <QWidget>
#include <QWindow>

namespace quillon {

void CentreOnFrame(QWidget &dialog)
{
    QWidget *frame = platformInstalled() ? platform().dialogParent() : nullptr;
    if (!frame)
        return;
    // The window must exist for its border to count in its own outer size.
    dialog.winId();
    // A form made on first use has no parent: the frame owns it while it is up, or a window
    // manager may put it behind the frame, which would then refuse input with nothing to show why.
    if (!dialog.parentWidget() && dialog.windowHandle()) {
        frame->winId();
        dialog.windowHandle()->setTransientParent(frame->windowHandle());
    }
    const QRect outer = frame->frameGeometry();
    const QSize own = dialog.frameGeometry().size();
    dialog.move(outer.left() + outer.width() / 2 - own.width() / 2,
                outer.top() + outer.height() / 2 - own.height() / 2);
}

} // namespace quillon

#include "Guarded.h"

#include "core/QuillonError.h"
#include "platform/Platform.h"

namespace quillon {

bool RunGuarded(const std::function<void()> &handler)
{
    try {
        handler();
        return true;
    } catch (const QuillonError &e) {
        platform().messageBox(e.message(), MsgIcon::Critical, appTitle());
    } catch (const std::bad_alloc &) {
        platform().messageBox(QuillonError(7, QStringLiteral("Out of memory")).message(), MsgIcon::Critical,
                              appTitle());
    } catch (const std::exception &e) {
        platform().messageBox(QuillonError(51, QString::fromLocal8Bit(e.what())).message(), MsgIcon::Critical,
                              appTitle());
    }
    return false;
}

} // namespace quillon

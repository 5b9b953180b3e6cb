#include "Guarded.h"

#include "core/QuillonError.h"
#include "platform/Platform.h"

namespace quillon {

namespace {

bool runReporting(const std::function<void()> &handler, const std::function<QString(const QuillonError &)> &words)
{
    try {
        handler();
        return true;
    } catch (const QuillonError &e) {
        platform().messageBox(words(e), MsgIcon::Critical, appTitle());
    } catch (const std::bad_alloc &) {
        platform().messageBox(words(QuillonError(7, QStringLiteral("Out of memory"))), MsgIcon::Critical,
                              appTitle());
    } catch (const std::exception &e) {
        platform().messageBox(words(QuillonError(51, QString::fromLocal8Bit(e.what()))), MsgIcon::Critical,
                              appTitle());
    }
    return false;
}

} // namespace

bool RunGuarded(const std::function<void()> &handler)
{
    return runReporting(handler, [](const QuillonError &e) { return e.message(); });
}

bool RunUntrapped(const std::function<void()> &handler)
{
    return runReporting(handler, [](const QuillonError &e) {
        return QStringLiteral("Run-time error '%1':\n\n%2").arg(e.number()).arg(e.description());
    });
}

} // namespace quillon

#include "basLogGlobals.h"

namespace quillon {

LogGlobals &basLogGlobals()
{
    static LogGlobals globals;
    return globals;
}

void LogGlobals::releaseAll()
{
    gHandicapLog.reset();
    gScoreLog.reset();
    gConnection.reset();
}

Connection &db()
{
    auto &c = basLogGlobals().gConnection;
    if (!c)
        throw QuillonError(91, QStringLiteral("Object variable or With block variable not set"));
    return *c;
}

FrameServices &frame()
{
    auto *f = basLogGlobals().frame;
    if (!f)
        throw QuillonError(91, QStringLiteral("Object variable or With block variable not set"));
    return *f;
}

} // namespace quillon

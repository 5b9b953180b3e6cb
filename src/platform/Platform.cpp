#include "Platform.h"

#include <QDir>

namespace quillon {

namespace {
std::unique_ptr<Platform> &installed()
{
    static std::unique_ptr<Platform> instance;
    return instance;
}
} // namespace

Platform &platform()
{
    auto &p = installed();
    Q_ASSERT_X(p, "platform()", "no platform installed");
    return *p;
}

bool platformInstalled()
{
    return installed() != nullptr;
}

void installPlatform(std::unique_ptr<Platform> p)
{
    installed() = std::move(p);
}

QString appFile(const QString &fileName)
{
    return QDir(platform().appDir()).filePath(fileName);
}

} // namespace quillon

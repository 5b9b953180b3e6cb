#include "Upgrade.h"

#include "core/QuillonError.h"
#include "platform/Platform.h"

#include <QFile>

namespace quillon {

void CheckForUpdate()
{
    const QString update = appFile(QStringLiteral("Update.qdl"));
    const QString working = appFile(QStringLiteral("Quillon.qdl"));
    if (!QFile::exists(update))
        return;
    if (QFile::exists(working)) {
        // Both present: the data-carrying upgrade is not part of this release yet, so
        // nothing is touched and the user's database stays the working one.
        return;
    }
    if (!QFile::copy(update, working))
        throw QuillonError(QuillonError::PermissionDenied, QStringLiteral("Permission denied"));
    QFile::remove(update);
}

} // namespace quillon

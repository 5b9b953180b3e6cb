#include "DatabaseError.h"

#include <QSqlError>

namespace quillon {

namespace {
// The general "call failed" of the database layer, for a failure with no engine code.
constexpr int kCallFailed = 3146;
} // namespace

int ErrorNumberForEngineCode(int engineCode, const QString &engineText)
{
    if (engineCode <= 0)
        return kCallFailed;
    // Extended codes carry the primary code in their low byte.
    const int primary = engineCode & 0xff;
    switch (primary) {
    case engine::Constraint:
        if (engineText.contains(QLatin1String("UNIQUE"), Qt::CaseInsensitive) ||
            engineText.contains(QLatin1String("PRIMARY KEY"), Qt::CaseInsensitive))
            return QuillonError::DuplicateKey;
        break;
    case engine::ReadOnly:
    case engine::Perm: return QuillonError::PermissionDenied;
    default: break;
    }
    return kEngineErrorBase + primary;
}

QuillonError DatabaseError(const QSqlError &error)
{
    bool ok = false;
    int code = error.nativeErrorCode().toInt(&ok);
    if (!ok)
        code = 0;
    QString text = error.databaseText();
    if (text.isEmpty())
        text = error.text();
    return QuillonError(ErrorNumberForEngineCode(code, text), text);
}

} // namespace quillon

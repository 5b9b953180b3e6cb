#include "NoCase.h"

namespace quillon {

QString FoldNoCase(const QString &text)
{
    QString folded = text;
    for (QChar &c : folded) {
        const char16_t u = c.unicode();
        if (u >= u'A' && u <= u'Z')
            c = QChar(char16_t(u + (u'a' - u'A')));
    }
    return folded;
}

bool SameNoCase(const QString &a, const QString &b)
{
    return a.size() == b.size() && FoldNoCase(a) == FoldNoCase(b);
}

} // namespace quillon

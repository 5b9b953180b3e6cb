#include "FileFilter.h"

#include <QRegularExpression>
#include <QStringList>

namespace quillon {

namespace {

QStringList patternList(const QString &patterns)
{
    static const QRegularExpression separators(QStringLiteral("[;\\s]+"));
    return patterns.split(separators, Qt::SkipEmptyParts);
}

bool samePatterns(QStringList a, QStringList b)
{
    for (QString &p : a)
        p = p.toLower();
    for (QString &p : b)
        p = p.toLower();
    a.sort();
    b.sort();
    a.removeDuplicates();
    b.removeDuplicates();
    return a == b;
}

QString qtEntry(const QString &description, const QString &patterns)
{
    const QStringList wanted = patternList(patterns);
    if (wanted.isEmpty())
        return description;
    const QString shown = QStringLiteral("(%1)").arg(wanted.join(QLatin1Char(' ')));

    // A closing group is read by Qt as the filter's patterns; it is one when it holds a wildcard.
    static const QRegularExpression trailingGroup(QStringLiteral("^(.*?)\\s*\\(([^()]*)\\)\\s*$"));
    const QRegularExpressionMatch m = trailingGroup.match(description);
    if (m.hasMatch()) {
        const QString inside = m.captured(2);
        const bool holdsPatterns = inside.contains(QLatin1Char('*')) || inside.contains(QLatin1Char('?'));
        if (holdsPatterns) {
            if (samePatterns(patternList(inside), wanted))
                return description;
            return m.captured(1).isEmpty() ? shown : m.captured(1) + QLatin1Char(' ') + shown;
        }
    }
    const QString trimmed = description.trimmed();
    return trimmed.isEmpty() ? shown : trimmed + QLatin1Char(' ') + shown;
}

} // namespace

QString toQtFileFilter(const QString &filter)
{
    if (filter.isEmpty())
        return QString();
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList entries;
    for (int i = 0; i < parts.size(); i += 2) {
        const QString patterns = i + 1 < parts.size() ? parts.at(i + 1) : QString();
        if (parts.at(i).trimmed().isEmpty() && patterns.trimmed().isEmpty())
            continue;
        entries << qtEntry(parts.at(i), patterns);
    }
    return entries.join(QStringLiteral(";;"));
}

} // namespace quillon

#include "core/DateText.h"

#include <QRegularExpression>

namespace quillon {

QString DateText(const QDate &date)
{
    if (!date.isValid())
        return QString();
    return QStringLiteral("%1/%2/%3")
        .arg(date.month())
        .arg(date.day())
        .arg(date.year(), 4, 10, QLatin1Char('0'));
}

QDate ParseDateText(const QString &text)
{
    // [0-9], not \d: other scripts' digits are not dates here.
    static const QRegularExpression usForm(QStringLiteral("^([0-9]{1,2})/([0-9]{1,2})/([0-9]{4}|[0-9]{2})$"));
    static const QRegularExpression isoForm(QStringLiteral("^([0-9]{4})-([0-9]{2})-([0-9]{2})$"));

    const QString trimmed = text.trimmed();
    QRegularExpressionMatch match = isoForm.match(trimmed);
    if (match.hasMatch())
        return QDate(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());

    match = usForm.match(trimmed);
    if (!match.hasMatch())
        return QDate();
    int year = match.captured(3).toInt();
    if (match.captured(3).size() == 2)
        year += year < 30 ? 2000 : 1900;
    return QDate(year, match.captured(1).toInt(), match.captured(2).toInt());
}

QString IsoDate(const QDate &date)
{
    if (!date.isValid())
        return QString();
    return date.toString(QStringLiteral("yyyy-MM-dd"));
}

} // namespace quillon

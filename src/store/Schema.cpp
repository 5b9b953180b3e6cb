#include "Schema.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>

namespace quillon {

bool RunSqlScript(QSqlDatabase &db, const QString &script, QString *error)
{
    QStringList lines;
    for (const QString &line : script.split(QLatin1Char('\n'))) {
        const int comment = line.indexOf(QStringLiteral("--"));
        lines << (comment >= 0 ? line.left(comment) : line);
    }
    for (const QString &raw : lines.join(QLatin1Char('\n')).split(QLatin1Char(';'))) {
        const QString statement = raw.trimmed();
        if (statement.isEmpty())
            continue;
        QSqlQuery q(db);
        if (!q.exec(statement)) {
            if (error)
                *error = statement + QStringLiteral(": ") + q.lastError().text();
            return false;
        }
    }
    return true;
}

} // namespace quillon

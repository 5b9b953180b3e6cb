#include "FileFixtures.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <gtest/gtest.h>

namespace quillon::test {

namespace {
QString quoted(QString identifier)
{
    return QLatin1Char('"') + identifier.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}
} // namespace

QStringList TableRows(Connection &c, const QString &table, int columns)
{
    QStringList lines;
    for (const QSqlRecord &row : Query(c, QStringLiteral("SELECT * FROM %1 ORDER BY rowid").arg(quoted(table))).rows()) {
        QStringList values;
        const int n = columns < 0 ? row.count() : std::min(columns, row.count());
        for (int i = 0; i < n; ++i)
            values << (row.isNull(i) ? QStringLiteral("<null>") : row.value(i).toString());
        lines << table + QStringLiteral(": ") + values.join(QLatin1Char('|'));
    }
    return lines;
}

QStringList DatabaseRows(Connection &c)
{
    QStringList lines;
    for (const QSqlRecord &row :
         Query(c, QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND (name NOT LIKE 'sqlite_%' "
                                 "OR name = 'sqlite_sequence') ORDER BY name"))
             .rows())
        lines << TableRows(c, row.value(0).toString());
    return lines;
}

QStringList DatabaseRows(const QString &path)
{
    ConnectionPtr c = OpenDatabaseFile(path, OpenMode::ReadOnly);
    return DatabaseRows(*c);
}

QByteArray FileBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void WriteBytes(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    ASSERT_EQ(f.write(bytes), bytes.size());
}

void LayForeignDatabase(const QString &path)
{
    const QString name = QStringLiteral("foreign-database");
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        other.setDatabaseName(path);
        ASSERT_TRUE(other.open());
        ASSERT_TRUE(QSqlQuery(other).exec(QStringLiteral("CREATE TABLE Photos (Path TEXT)")));
        other.close();
    }
    QSqlDatabase::removeDatabase(name);
}

} // namespace quillon::test

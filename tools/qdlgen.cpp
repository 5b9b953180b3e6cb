// Builds the empty database that ships with the program ("Update.qdl"):
// the schema, the DBVersion row and the UnratedTees reference rows.
#include "store/Schema.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTextStream>
#include <cstdio>

namespace {

QString readAll(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    return QString::fromUtf8(f.readAll());
}

int fail(const QString &what)
{
    std::fprintf(stderr, "qdlgen: %s\n", qPrintable(what));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 5)
        return fail(QStringLiteral("usage: qdlgen SCHEMA.sql DBVERSION UNRATED_TEES.csv OUT.qdl"));
    const QString schema = readAll(args.at(1));
    const QString version = readAll(args.at(2)).trimmed();
    const QString tees = readAll(args.at(3));
    const QString out = args.at(4);
    if (schema.isEmpty() || version.isEmpty() || tees.isEmpty())
        return fail(QStringLiteral("cannot read the inputs"));

    QFile::remove(out);
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("gen"));
        db.setDatabaseName(out);
        if (!db.open())
            return fail(db.lastError().text());
        QString error;
        if (!quillon::RunSqlScript(db, schema, &error))
            return fail(error);
        db.transaction();
        QSqlQuery q(db);
        q.prepare(QStringLiteral("INSERT INTO DBVersion (DatabaseVersion) VALUES (?)"));
        q.addBindValue(version.toInt());
        if (!q.exec())
            return fail(q.lastError().text());
        q.prepare(QStringLiteral("INSERT INTO UnratedTees (Gender, MinDistance, MaxDistance, RatingChange, "
                                 "SlopeChange) VALUES (?, ?, ?, ?, ?)"));
        const QStringList lines = tees.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (int i = 1; i < lines.size(); ++i) { // the first line names the columns
            const QStringList f = lines.at(i).trimmed().split(QLatin1Char(','));
            if (f.size() != 5)
                return fail(QStringLiteral("bad UnratedTees line: ") + lines.at(i));
            q.addBindValue(f.at(0));
            q.addBindValue(f.at(1).toInt());
            q.addBindValue(f.at(2).toInt());
            q.addBindValue(f.at(3).toDouble());
            q.addBindValue(f.at(4).toInt());
            if (!q.exec())
                return fail(q.lastError().text());
        }
        db.commit();
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("gen"));
    return 0;
}

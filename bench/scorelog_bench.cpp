// Opening the score log of a golfer with 5,000 rounds, and one sort by a heading, beside a plain
// walk of the same rows: the view's own cost must stay a small multiple of reading the rows.
#include "BenchMain.h"
#include "core/DateText.h"
#include "store/basDatabase.h"
#include "ui/QueryTableModel.h"
#include "views/ScoreLogQuery.h"

#include <QApplication>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace quillon;

namespace {

class LogDatabase {
public:
    LogDatabase()
    {
        const QString path = m_dir.filePath(QStringLiteral("Quillon.qdl"));
        if (!QFile::copy(QStringLiteral(QUILLON_BENCH_UPDATE_QDL), path))
            qFatal("no shipped database");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        m_connection = OpenDatabase(path);
        Transaction fill(*m_connection);
        for (int i = 0; i < 5000; ++i)
            Exec(*m_connection,
                 QStringLiteral(
                     "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, "
                     "AdjustedScore, Rating, Slope, Type, Differential, Used, Details, Penalties, "
                     "LostBalls, Bunkers, SandSaves, AttemptedSaves, CombinedIndex) VALUES (?, ?, ?, "
                     "'White', ?, '18-holes', ?, ?, 71.5, 125, 'A', ?, 'N', 0, -1, -1, -1, -1, "
                     "-1, 1)"),
                 {QStringLiteral("O'Brien"), QStringLiteral("Pat"),
                  i % 7 ? QStringLiteral("Pebble Creek") : QStringLiteral("Augusta"),
                  IsoDate(QDate(2000, 1, 1).addDays(i)), 80 + i % 20, 80 + i % 18, 10.0 + (i % 150) / 10.0});
        fill.commit();
    }
    Connection &db() { return *m_connection; }

private:
    QTemporaryDir m_dir;
    ConnectionPtr m_connection;
};

LogDatabase &database()
{
    static LogDatabase d;
    return d;
}

void openView(const QString &order, QueryTableModel &model)
{
    const SqlStatement s = ScoreLogStatement(QStringLiteral("O'Brien"), QStringLiteral("Pat"),
                                             ScoreLogSelection::All, 2026, order);
    model.setRows(Query(database().db(), s.sql, s.params));
}

void BM_PlainWalk(benchmark::State &state)
{
    const SqlStatement s = ScoreLogStatement(QStringLiteral("O'Brien"), QStringLiteral("Pat"),
                                             ScoreLogSelection::All, 2026, QStringLiteral("Date DESC"));
    for (auto _ : state) {
        QSqlQuery q(database().db().database());
        q.setForwardOnly(true);
        q.prepare(s.sql);
        q.bindValue(0, s.params.at(0));
        q.bindValue(1, s.params.at(1));
        q.exec();
        int rows = 0;
        while (q.next()) {
            for (int c = 0; c < 21; ++c)
                benchmark::DoNotOptimize(q.value(c));
            ++rows;
        }
        benchmark::DoNotOptimize(rows);
    }
}
BENCHMARK(BM_PlainWalk)->Unit(benchmark::kMillisecond);

void BM_OpenScoreLogView(benchmark::State &state)
{
    QueryTableModel model(ScoreLogColumns(true));
    for (auto _ : state) {
        openView(QStringLiteral("Date DESC"), model);
        benchmark::DoNotOptimize(model.rowCount());
    }
}
BENCHMARK(BM_OpenScoreLogView)->Unit(benchmark::kMillisecond);

void BM_SortByCourseHeading(benchmark::State &state)
{
    QueryTableModel model(ScoreLogColumns(true));
    openView(QStringLiteral("Date DESC"), model);
    QString order = QStringLiteral("Date DESC");
    for (auto _ : state) {
        order = NextSortOrder(order, QStringLiteral("Coursename"));
        openView(order, model);
        benchmark::DoNotOptimize(model.rowCount());
    }
}
BENCHMARK(BM_SortByCourseHeading)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return quillon::bench::RunBenchmarks(argc, argv);
}

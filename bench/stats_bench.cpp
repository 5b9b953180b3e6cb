// The statistics walk for golfers with 100, 1,000 and 5,000 18-hole rounds, every one with its
// 18 hole rows, beside a plain SQLite scan of the same rows through the same driver.  Goals: the
// walk under 100 ms at 1,000 rounds, and within 3x of the plain scan.
#include "BenchMain.h"
#include "core/DateText.h"
#include "stats/GolferStatistics.h"
#include "stats/StatisticsWalk.h"
#include "store/basDatabase.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>
#include <random>

using namespace quillon;

namespace {

const QString kFirst = QStringLiteral("Pat");
const QString kCourse = QStringLiteral("St. Andrew's");
const QString kTees = QStringLiteral("White");
const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};
const QDate kToday(2026, 6, 15);

QString golferOf(int rounds)
{
    return QStringLiteral("Walker%1").arg(rounds);
}

// A database file on disk, laid from the shipped empty one, with one golfer for each size.
class WalkDatabase {
public:
    WalkDatabase()
    {
        const QString path = m_dir.filePath(QStringLiteral("Quillon.qdl"));
        if (!QFile::copy(QStringLiteral(QUILLON_BENCH_UPDATE_QDL), path))
            qFatal("no shipped database at %s", QUILLON_BENCH_UPDATE_QDL);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        m_db = OpenDatabase(path);
        if (!m_db)
            qFatal("cannot open %s", qPrintable(path));

        Transaction fill(*m_db);
        std::mt19937 rng(2026);
        for (int rounds : {100, 1000, 5000})
            addGolfer(golferOf(rounds), rounds, rng);
        fill.commit();
    }

    Connection &db() { return *m_db; }

private:
    // One 18-hole round a day from 2000 on, every one with its holes: par plus -1 to +3 strokes,
    // 0 to 3 putts, a fairway on each par 4 and 5, the green in regulation when strokes less putts
    // leave two under par.  The ScoreLog Score is 0: Total18Score is a 16-bit sum, so about 400
    // rounds of 80 end the walk in the overflow failure the rules prescribe, and the timing would be
    // that of a walk cut short.  The pass over ScoreLog takes the same branches either way.
    void addGolfer(const QString &last, int rounds, std::mt19937 &rng)
    {
        Connection &c = *m_db;
        Exec(c,
             QStringLiteral("INSERT INTO HandicapLog (LastName, FirstName, Gender, Handicap, HomeCourseName) "
                            "VALUES (?, ?, 'M', -1000, ?)"),
             {last, kFirst, kCourse});
        std::discrete_distribution<int> over({1, 4, 4, 2, 1}); // -1 .. +3
        std::uniform_int_distribution<int> putts(0, 3), fairway(0, 1), stat(-1, 2);
        QDate date(2000, 1, 1);
        for (int i = 0; i < rounds; ++i, date = date.addDays(1)) {
            Exec(c,
                 QStringLiteral(
                     "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, "
                     "AdjustedScore, Rating, Slope, Type, Differential, Used, Details, Penalties, LostBalls, "
                     "Bunkers, SandSaves, AttemptedSaves, CombinedIndex) "
                     "VALUES (?, ?, ?, ?, ?, '18-holes', 0, 0, 71.8, 128, 'A', 0, 'N', 1, ?, ?, ?, ?, ?, 1)"),
                 {last, kFirst, kCourse, kTees, IsoDate(date), stat(rng) % 2, stat(rng) % 2, stat(rng),
                  stat(rng) % 2, stat(rng)});
            const qint64 index = LastInsertId(c);
            for (int hole = 1; hole <= 18; ++hole) {
                const int par = kPars.at(hole - 1);
                const int score = par + over(rng) - 1;
                const int putt = putts(rng);
                Exec(c,
                     QStringLiteral("INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, "
                                    "ScoreIndex, Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                                    "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                     {last, kFirst, kCourse, kTees, IsoDate(date), index, hole, score, putt, par,
                      par == 3 ? -1 : fairway(rng), score - putt <= par - 2 ? 1 : 0});
            }
        }
    }

    QTemporaryDir m_dir;
    ConnectionPtr m_db;
};

std::unique_ptr<WalkDatabase> gDatabase;

void BM_StatisticsWalk(benchmark::State &state)
{
    const int rounds = int(state.range(0));
    const QString last = golferOf(rounds);
    GolferStatistics stats;
    for (auto _ : state) {
        const WalkOutcome outcome = CalculateStatistics(gDatabase->db(), last, kFirst, false, kToday, stats);
        benchmark::DoNotOptimize(outcome);
    }
    // What the last walk read, so that a walk that skipped its rounds cannot pass for a fast one.
    state.counters["rounds18"] = stats.Rounds18.value();
    state.counters["detailRounds18"] = stats.DetailRounds18.value();
    if (stats.Rounds18.value() != rounds || stats.DetailRounds18.value() != rounds)
        state.SkipWithError("the walk did not read every round and its holes");
}
BENCHMARK(BM_StatisticsWalk)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime();

// The floor: the golfer's ScoreLog rows and all their ScoreDetails rows read once through the same
// driver, a few columns summed.
void BM_PlainScan(benchmark::State &state)
{
    const int rounds = int(state.range(0));
    const QString last = golferOf(rounds);
    QSqlDatabase sql = gDatabase->db().database();
    QSqlQuery log(sql), holes(sql);
    log.setForwardOnly(true);
    holes.setForwardOnly(true);
    log.prepare(QStringLiteral("SELECT ScoreIndex, Date, Holes, Score, Details, Penalties FROM ScoreLog "
                               "WHERE LastName = ? AND FirstName = ? ORDER BY Date, ScoreIndex"));
    holes.prepare(QStringLiteral("SELECT ScoreIndex, Hole, Score, Putts, PAR, Fairway, GreenInRegulation "
                                 "FROM ScoreDetails WHERE LastName = ? AND FirstName = ?"));
    qint64 logRows = 0, holeRows = 0;
    for (auto _ : state) {
        logRows = holeRows = 0;
        qint64 sum = 0;
        log.bindValue(0, last);
        log.bindValue(1, kFirst);
        if (!log.exec())
            state.SkipWithError(qPrintable(log.lastError().text()));
        while (log.next()) {
            sum += log.value(3).toLongLong() + log.value(5).toLongLong();
            ++logRows;
        }
        holes.bindValue(0, last);
        holes.bindValue(1, kFirst);
        if (!holes.exec())
            state.SkipWithError(qPrintable(holes.lastError().text()));
        while (holes.next()) {
            sum += holes.value(2).toLongLong() + holes.value(3).toLongLong() + holes.value(5).toLongLong();
            ++holeRows;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.counters["rounds18"] = double(logRows);
    state.counters["holes"] = double(holeRows);
    if (logRows != rounds || holeRows != 18 * qint64(rounds))
        state.SkipWithError("the scan did not read every row");
}
BENCHMARK(BM_PlainScan)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    return quillon::bench::RunBenchmarks(
        argc, argv, [] { gDatabase = std::make_unique<WalkDatabase>(); }, [] { gDatabase.reset(); });
}

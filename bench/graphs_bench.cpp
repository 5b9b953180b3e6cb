// The data of the seventeen charts for a golfer with 5,000 detailed 18-hole rounds.  Goal: all
// seventeen under 50 ms together.
#include "BenchMain.h"
#include "core/DateText.h"
#include "core/QuillonError.h"
#include "graphs/ChartData.h"
#include "store/basDatabase.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>
#include <random>

using namespace quillon;

namespace {

const QString kLast = QStringLiteral("O'Brien");
const QString kFirst = QStringLiteral("Pat");
const QString kCourse = QStringLiteral("St. Andrew's");
const QString kTees = QStringLiteral("White");
const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};
constexpr int kRounds = 5000;

// A database file on disk, laid from the shipped empty one, with the golfer's rounds.
class GraphDatabase {
public:
    GraphDatabase()
    {
        const QString path = m_dir.filePath(QStringLiteral("Quillon.qdl"));
        if (!QFile::copy(QStringLiteral(QUILLON_BENCH_UPDATE_QDL), path))
            qFatal("no shipped database at %s", QUILLON_BENCH_UPDATE_QDL);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        m_db = OpenDatabase(path);
        if (!m_db)
            qFatal("cannot open %s", qPrintable(path));
        Transaction fill(*m_db);
        fillRounds();
        fill.commit();
    }

    Connection &db() { return *m_db; }

private:
    // One 18-hole round a day from 2000 on, each with its 18 holes: par plus -1 to +3 strokes, 0 to
    // 3 putts, a fairway on each par 4 and 5, the green when strokes less putts leave two under par.
    void fillRounds()
    {
        Connection &c = *m_db;
        Exec(c,
             QStringLiteral("INSERT INTO HandicapLog (LastName, FirstName, Gender, Handicap, HomeCourseName) "
                            "VALUES (?, ?, 'M', -1000, ?)"),
             {kLast, kFirst, kCourse});
        std::mt19937 rng(2026);
        std::discrete_distribution<int> over({1, 4, 4, 2, 1}); // -1 .. +3
        std::uniform_int_distribution<int> putts(0, 3), fairway(0, 1), penalties(-1, 3);
        QDate date(2000, 1, 1);
        for (int i = 0; i < kRounds; ++i, date = date.addDays(1)) {
            QVector<int> scores, putt;
            int total = 0;
            for (int hole = 0; hole < 18; ++hole) {
                scores << kPars.at(hole) + over(rng) - 1;
                putt << putts(rng);
                total += scores.last();
            }
            Exec(c,
                 QStringLiteral(
                     "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, "
                     "AdjustedScore, Rating, Slope, Type, Differential, Used, Details, Penalties, LostBalls, "
                     "Bunkers, SandSaves, AttemptedSaves, CombinedIndex) "
                     "VALUES (?, ?, ?, ?, ?, '18-holes', ?, ?, 71.8, 128, 'A', 0, 'N', 1, ?, -1, -1, -1, -1, 1)"),
                 {kLast, kFirst, kCourse, kTees, IsoDate(date), total, total, penalties(rng)});
            const qint64 index = LastInsertId(c);
            for (int hole = 1; hole <= 18; ++hole) {
                const int par = kPars.at(hole - 1);
                const int score = scores.at(hole - 1);
                Exec(c,
                     QStringLiteral("INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, "
                                    "ScoreIndex, Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                                    "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                     {kLast, kFirst, kCourse, kTees, IsoDate(date), index, hole, score, putt.at(hole - 1), par,
                      par == 3 ? -1 : fairway(rng), score - putt.at(hole - 1) <= par - 2 ? 1 : 0});
            }
        }
    }

    QTemporaryDir m_dir;
    ConnectionPtr m_db;
};

std::unique_ptr<GraphDatabase> gDatabase;

// One chart; whether it failed.  Three pies count more than 32,767 holes of 5,000 rounds (putts
// and all holes: 90,000; par 4s: 50,000) and fail with Overflow, as their 16-bit counters must.
bool build(const QString &entry, ChartData &out)
{
    try {
        out = BuildChart(gDatabase->db(), entry, kLast, kFirst);
        return true;
    } catch (const QuillonError &e) {
        if (e.number() != QuillonError::Overflow)
            throw;
        return false;
    }
}

void BM_AllCharts(benchmark::State &state)
{
    int built = 0, overflowed = 0, nonEmpty = 0;
    for (auto _ : state) {
        built = overflowed = nonEmpty = 0;
        const QVector<ChartData> all = BuildAllCharts(gDatabase->db(), kLast, kFirst);
        for (const ChartData &c : all) {
            if (c.failure == 0) {
                ++built;
                nonEmpty += c.empty ? 0 : 1;
            } else if (c.failure == QuillonError::Overflow) {
                ++overflowed;
            }
        }
        benchmark::DoNotOptimize(all);
    }
    state.counters["built"] = built;
    state.counters["overflow"] = overflowed;
    if (nonEmpty != built || built != 14 || overflowed != 3)
        state.SkipWithError("a chart read nothing, or an unexpected number of charts failed");
}
BENCHMARK(BM_AllCharts)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_Chart(benchmark::State &state)
{
    const ChartEntry &e = GraphCatalogue().at(int(state.range(0)));
    state.SetLabel(e.entry.toStdString());
    ChartData c;
    for (auto _ : state) {
        build(e.entry, c);
        benchmark::DoNotOptimize(c);
    }
}
BENCHMARK(BM_Chart)->DenseRange(0, 16)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    return quillon::bench::RunBenchmarks(
        argc, argv, [] { gDatabase = std::make_unique<GraphDatabase>(); }, [] { gDatabase.reset(); });
}

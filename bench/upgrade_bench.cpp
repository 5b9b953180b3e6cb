// The upgrade of a database of 10,000 rounds and 150,000 hole rows into a new empty one, and a
// backup of the same database while it is held open.  Goals: the upgrade under 1.5 s with the
// progress moving at least every 0.2 s; the backup under 1 s.
#include "BenchMain.h"
#include "core/QuillonError.h"
#include "store/DatabaseFiles.h"
#include "store/Upgrade.h"
#include "store/basDatabase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <algorithm>
#include <memory>

using namespace quillon;

namespace {

constexpr int kGolfers = 20;
constexpr int kFullRounds = 6667; // 18 holes each
constexpr int kNineHoleRounds = 3333; // 9 holes each: 10,000 rounds, 150,003 hole rows in all

// A user's database of many golfers, ten courses of three tees, and the rounds with their holes.
class LargeDatabase {
public:
    LargeDatabase()
    {
        m_path = m_dir.filePath(DatabaseFile::Working);
        if (!QFile::copy(QStringLiteral(QUILLON_BENCH_UPDATE_QDL), m_path))
            qFatal("no shipped database at %s", QUILLON_BENCH_UPDATE_QDL);
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
        ConnectionPtr c = OpenDatabase(m_path);
        if (!c)
            qFatal("cannot open %s", qPrintable(m_path));
        Transaction fill(*c);
        fillRows(*c);
        fill.commit();
    }

    const QString &path() const { return m_path; }

private:
    static void fillRows(Connection &c)
    {
        Exec(c, QStringLiteral(
                    "WITH RECURSIVE g(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM g WHERE i + 1 < ?) "
                    "INSERT INTO HandicapLog (LastName, FirstName, Gender, Handicap, HomeCourseName) "
                    "SELECT 'O''Golfer ' || i, 'Pat', 'M', 10.0 + i / 10.0, 'Course 1' FROM g"),
             {kGolfers});
        Exec(c, QStringLiteral(
                    "WITH RECURSIVE k(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM k WHERE i + 1 < 30) "
                    "INSERT INTO CourseLog (CourseName, Tees, OverallRating, FrontRating, BackRating, OverallSlope, "
                    "FrontSlope, BackSlope, YardsIn, YardsOut, TotalYards, ParIn, ParOut, TotalPar) "
                    "SELECT 'Course ' || (i / 3), substr('BlueWhiteRed  ', 1 + (i % 3) * 5, 5), 71.5, 35.7, 35.8, "
                    "125, 124, 126, 3200, 3150, 6350, 36, 36, 72 FROM k"));
        Exec(c, QStringLiteral(
                    "WITH RECURSIVE h(hole) AS (SELECT 1 UNION ALL SELECT hole + 1 FROM h WHERE hole < 18) "
                    "INSERT INTO CourseDetails (CourseName, Tees, Hole, PAR, Handicap, Yards) "
                    "SELECT CourseName, Tees, hole, 3 + hole % 3, hole, 350 FROM CourseLog, h"));
        Exec(c, QStringLiteral(
                    "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < ?) "
                    "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, AdjustedScore, "
                    "Rating, Slope, Type, Differential, Used, Details, Penalties, LostBalls, Bunkers, SandSaves, "
                    "AttemptedSaves, CombinedIndex) "
                    "SELECT 'O''Golfer ' || (i % ?), 'Pat', 'Course ' || (i % 10), 'White', "
                    "date('1990-01-01', '+' || (i / ?) || ' days'), "
                    "CASE WHEN i < ? THEN '18-holes' ELSE '9-holes (front)' END, 80 + i % 17, 80 + i % 15, 71.5, "
                    "125, 'A', 8.5, substr('NNNY', 1 + i % 4, 1), 1, i % 4 - 1, -1, -1, -1, -1, 1 FROM n"),
             {kFullRounds + kNineHoleRounds, kGolfers, kGolfers, kFullRounds});
        Exec(c, QStringLiteral(
                    "WITH RECURSIVE h(hole) AS (SELECT 1 UNION ALL SELECT hole + 1 FROM h WHERE hole < 18) "
                    "INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, Hole, Score, "
                    "Putts, PAR, Fairway, GreenInRegulation) "
                    "SELECT s.LastName, s.FirstName, s.CourseName, s.Tees, s.Date, s.ScoreIndex, h.hole, "
                    "3 + (s.ScoreIndex + h.hole) % 4, 1 + (s.ScoreIndex * h.hole) % 3, 4, h.hole % 3 - 1, 0 "
                    "FROM ScoreLog AS s, h WHERE h.hole <= CASE s.Holes WHEN '18-holes' THEN 18 ELSE 9 END "
                    "ORDER BY s.ScoreIndex, h.hole"));
    }

    QTemporaryDir m_dir;
    QString m_path;
};

std::unique_ptr<LargeDatabase> &largeDatabase()
{
    static std::unique_ptr<LargeDatabase> db;
    return db;
}

// Times the longest stretch in which the watcher heard nothing, from Show to Unload.
class TimedProgress : public UpgradeProgress {
public:
    void Show() override
    {
        m_clock.start();
        m_last = 0;
        longestGapMs = 0;
    }
    void SetRange(int maximum) override
    {
        range = maximum;
        heard();
    }
    void SetStatus(const QString &) override { heard(); }
    void SetValue(int value) override
    {
        this->value = value;
        heard();
    }
    void Unload() override { heard(); }

    qint64 longestGapMs = 0;
    int range = 0;
    int value = 0;

private:
    void heard()
    {
        const qint64 now = m_clock.elapsed();
        longestGapMs = std::max(longestGapMs, now - m_last);
        m_last = now;
    }
    QElapsedTimer m_clock;
    qint64 m_last = 0;
};

void BM_Upgrade(benchmark::State &state)
{
    const QString update = QStringLiteral(QUILLON_BENCH_UPDATE_QDL);
    qint64 longestGap = 0;
    TimedProgress progress;
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir dir;
        QFile::copy(largeDatabase()->path(), QDir(dir.path()).filePath(DatabaseFile::Working));
        QFile::copy(update, QDir(dir.path()).filePath(DatabaseFile::Update));
        state.ResumeTiming();
        UpdateDatabase(dir.path(), progress);
        state.PauseTiming();
        longestGap = std::max(longestGap, progress.longestGapMs);
        ConnectionPtr c = OpenDatabase(QDir(dir.path()).filePath(DatabaseFile::Working));
        if (!c || Scalar(*c, QStringLiteral("SELECT COUNT(*) FROM ScoreDetails")).toInt() != 150003)
            state.SkipWithError("the upgraded database lacks rows");
        state.ResumeTiming();
    }
    state.counters["longest_progress_gap_ms"] = double(longestGap);
    state.counters["rows"] = double(progress.range);
}
BENCHMARK(BM_Upgrade)->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_BackupWhileOpen(benchmark::State &state)
{
    // The program holds the database open, as it does while the user works.
    ConnectionPtr held = OpenDatabase(largeDatabase()->path());
    QTemporaryDir dir;
    const QString backup = QDir(dir.path()).filePath(QStringLiteral("Backup.qdl"));
    for (auto _ : state) {
        if (!CopyDatabase(largeDatabase()->path(), backup))
            state.SkipWithError("the backup failed");
    }
    state.counters["bytes"] = double(QFile(backup).size());
}
BENCHMARK(BM_BackupWhileOpen)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

int main(int argc, char **argv)
{
    return bench::RunBenchmarks(
        argc, argv, [] { largeDatabase() = std::make_unique<LargeDatabase>(); }, [] { largeDatabase().reset(); });
}

// Saving one 18-hole round with its hole details for a golfer who already has 2,000 rounds: the
// whole path the score form runs (the rows, the adjusted score and differential, the handicap run,
// the held score log and handicap row read again), beside a plain SQLite insert of the same rows.
// The save must stay well inside a click: under 15 ms.
#include "BenchMain.h"
#include "core/DateText.h"
#include "handicap/Handicap.h"
#include "score/ScoreData.h"
#include "score/ScoreEntry.h"
#include "shell/basLogGlobals.h"
#include "store/HeldRecordset.h"
#include "store/basDatabase.h"
#include "views/ScoreLogQuery.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cmath>
#include <memory>
#include <random>

using namespace quillon;

namespace {

const QString kLast = QStringLiteral("Palmer");
const QString kFirst = QStringLiteral("Arnold");
const QString kCourse = QStringLiteral("Pebble Creek");
const QString kTees = QStringLiteral("White");
const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};
constexpr int kRounds = 2000;

// A database file on disk, laid from the shipped empty one: one course with its 18 holes, the golfer
// with 2,000 rounds (two in three with their hole rows), another golfer beside, the golfer's
// scoring record built, and the golfer's score log and handicap row held as the frame holds them.
class SaveDatabase {
public:
    SaveDatabase()
    {
        const QString path = m_dir.filePath(QStringLiteral("Quillon.qdl"));
        if (!QFile::copy(QStringLiteral(QUILLON_BENCH_UPDATE_QDL), path))
            qFatal("no shipped database at %s", QUILLON_BENCH_UPDATE_QDL);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        LogGlobals &g = basLogGlobals();
        g.gConnection = OpenDatabase(path);
        if (!g.gConnection)
            qFatal("cannot open %s", qPrintable(path));
        Connection &c = *g.gConnection;

        Transaction fill(c);
        addCourse(c);
        std::mt19937 rng(2026);
        addGolfer(c, kLast, kFirst, kRounds, rng);
        addGolfer(c, QStringLiteral("O'Brien"), QStringLiteral("Pat"), 200, rng);
        fill.commit();

        g.gLastName = kLast;
        g.gFirstName = kFirst;
        g.gHandicapLog = std::make_unique<HeldRecordset>(
            g.gConnection, QStringLiteral("SELECT * FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
            Params{kLast, kFirst});
        const SqlStatement log =
            ScoreLogStatement(kLast, kFirst, ScoreLogSelection::All, 2026, QStringLiteral("Date DESC"));
        g.gScoreLog = std::make_unique<HeldRecordset>(g.gConnection, log.sql, log.params);
        ComputeHandicap();
    }

    ~SaveDatabase() { basLogGlobals().releaseAll(); }

    Connection &db() { return *basLogGlobals().gConnection; }

    // Back to the 2,000 rounds, as the delete of a score leaves it (rows gone, handicap run again).
    void removeRound(qint64 scoreIndex)
    {
        Transaction unit(db());
        Exec(db(), QStringLiteral("DELETE FROM ScoreDetails WHERE ScoreIndex = ?"), {scoreIndex});
        Exec(db(), QStringLiteral("DELETE FROM ScoreLog WHERE ScoreIndex = ?"), {scoreIndex});
        unit.commit();
    }

    int golferRounds()
    {
        return Scalar(db(),
                      QStringLiteral("SELECT COUNT(*) FROM ScoreLog WHERE LastName = ? AND FirstName = ?"),
                      {kLast, kFirst})
            .toInt();
    }

private:
    static void addCourse(Connection &c)
    {
        Exec(c,
             QStringLiteral(
                 "INSERT INTO CourseLog (CourseName, Tees, OverallRating, FrontRating, BackRating, "
                 "OverallSlope, FrontSlope, BackSlope, YardsIn, YardsOut, TotalYards, ParIn, ParOut, "
                 "TotalPar) VALUES (?, ?, 71.8, 35.7, 36.1, 128, 124, 131, 3200, 3150, 6350, 36, 36, 72)"),
             {kCourse, kTees});
        for (int hole = 1; hole <= 18; ++hole)
            Exec(c,
                 QStringLiteral("INSERT INTO CourseDetails (CourseName, Tees, Hole, PAR, Handicap, Yards) "
                                "VALUES (?, ?, ?, ?, ?, 350)"),
                 {kCourse, kTees, hole, kPars.at(hole - 1), hole});
    }

    // Rounds every few days from 2010: 18- and 9-hole rounds of the three types, one in twenty
    // excluded, two in three with their hole rows.
    static void addGolfer(Connection &c, const QString &last, const QString &first, int rounds,
                          std::mt19937 &rng)
    {
        Exec(c,
             QStringLiteral("INSERT INTO HandicapLog (LastName, FirstName, Gender, Handicap, HomeCourseName) "
                            "VALUES (?, ?, 'M', -1000, ?)"),
             {last, first, kCourse});
        std::uniform_int_distribution<int> gap(0, 3), kind(0, 9), type(0, 2), over(0, 3), excluded(0, 19),
            detailed(0, 2), putts(1, 3);
        const QStringList types = {"A", "H", "T"};
        QDate date(2010, 1, 1);
        for (int i = 0; i < rounds; ++i) {
            date = date.addDays(gap(rng));
            const int k = kind(rng);
            const QString holes = k < 6   ? QStringLiteral("18-holes")
                                  : k < 8 ? QStringLiteral("9-holes (front)")
                                          : QStringLiteral("9-holes (back)");
            const int firstHole = k < 8 ? 1 : 10;
            const int lastHole = k < 6 ? 18 : firstHole + 8;
            QVector<int> strokes;
            int total = 0;
            for (int hole = firstHole; hole <= lastHole; ++hole) {
                strokes << kPars.at(hole - 1) + over(rng);
                total += strokes.constLast();
            }
            const bool nine = k >= 6;
            const bool details = detailed(rng) != 0;
            Exec(c,
                 QStringLiteral(
                     "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, "
                     "AdjustedScore, Rating, Slope, Type, Differential, Used, Details, Penalties, "
                     "LostBalls, Bunkers, SandSaves, AttemptedSaves, CombinedIndex) "
                     "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, -1, -1, -1, -1, -1, 1)"),
                 {last, first, kCourse, kTees, IsoDate(date), holes, total, total, nine ? 35.7 : 71.8,
                  nine ? 124 : 128, types.at(type(rng)),
                  std::round((total - (nine ? 35.7 : 71.8)) * 113 / (nine ? 124 : 128) * 10) / 10,
                  excluded(rng) == 0 ? QStringLiteral("E") : QStringLiteral("N"), details ? 1 : 0});
            if (!details)
                continue;
            const qint64 index = LastInsertId(c);
            for (int hole = firstHole; hole <= lastHole; ++hole) {
                const int score = strokes.at(hole - firstHole);
                const int putt = putts(rng);
                Exec(c,
                     QStringLiteral("INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, "
                                    "ScoreIndex, Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                                    "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                     {last, first, kCourse, kTees, IsoDate(date), index, hole, score, putt,
                      kPars.at(hole - 1), kPars.at(hole - 1) == 3 ? -1 : hole % 2,
                      score - putt <= kPars.at(hole - 1) - 2 ? 1 : 0});
            }
        }
    }

    QTemporaryDir m_dir;
};

std::unique_ptr<SaveDatabase> gDatabase;

// The form's texts for an 18-hole round of 84 with every hole entered, dated after every other round.
ScoreEntry roundEntry()
{
    ScoreEntry e;
    e.course = kCourse;
    e.tees = kTees;
    e.date = QStringLiteral("11/22/2026");
    e.holes = QStringLiteral("18-holes");
    e.type = 0;
    e.penalties = QStringLiteral("1");
    e.bunkers = QStringLiteral("3");
    e.sandSaves = QStringLiteral("1");
    e.attemptedSaves = QStringLiteral("3");
    const QVector<int> strokes = {5, 4, 3, 6, 5, 4, 4, 5, 5, 4, 5, 3, 6, 4, 5, 3, 4, 9};
    int total = 0;
    for (int i = 0; i < 18; ++i) {
        e.score[i] = QString::number(strokes.at(i));
        e.putts[i] = QString::number(i % 3 ? 2 : 1);
        e.fairwayShown[i] = kPars.at(i) != 3;
        e.fairway[i] = e.fairwayShown.at(i) && i % 2 == 0;
        total += strokes.at(i);
    }
    e.totalScore = QString::number(total);
    return e;
}

// What the score form's Save runs once the entry has passed its checks.
qint64 saveRound(const ScoreEntry &e)
{
    LogGlobals &g = basLogGlobals();
    return SaveScore(db(), g.gLastName, g.gFirstName, 0, e, true);
}

void BM_SaveRoundWithHoles(benchmark::State &state)
{
    SaveDatabase &d = *gDatabase;
    const ScoreEntry e = roundEntry();
    qint64 index = 0;
    for (auto _ : state) {
        index = saveRound(e);
        state.PauseTiming();
        d.removeRound(index);
        ComputeHandicap();
        state.ResumeTiming();
    }
    // What one save left, so that a save doing nothing cannot pass for a fast one.
    index = saveRound(e);
    state.counters["rounds"] = basLogGlobals().gScoreLog->rows().rowCount();
    state.counters["holes"] =
        Scalar(d.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreDetails WHERE ScoreIndex = ?"), {index})
            .toDouble();
    state.counters["adjusted"] =
        Scalar(d.db(), QStringLiteral("SELECT AdjustedScore FROM ScoreLog WHERE ScoreIndex = ?"), {index})
            .toDouble();
    d.removeRound(index);
    ComputeHandicap();
    if (d.golferRounds() != kRounds)
        state.SkipWithError("the saved round was not removed");
}
BENCHMARK(BM_SaveRoundWithHoles)->Unit(benchmark::kMillisecond)->UseRealTime();

// The rows alone, without the handicap run and the requeries: where the time of the whole path goes.
void BM_SaveAndFinishOnly(benchmark::State &state)
{
    SaveDatabase &d = *gDatabase;
    const ScoreEntry e = roundEntry();
    LogGlobals &g = basLogGlobals();
    for (auto _ : state) {
        const qint64 index = SaveNewScore(db(), g.gLastName, g.gFirstName, e, true);
        FinishScore(db(), g.gLastName, g.gFirstName, index, e);
        state.PauseTiming();
        d.removeRound(index);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SaveAndFinishOnly)->Unit(benchmark::kMillisecond)->UseRealTime();

// The handicap run alone, on the 2,000 rounds, with its own read of the held score log at its end.
void BM_HandicapRunOnly(benchmark::State &state)
{
    for (auto _ : state)
        ComputeHandicap();
}
BENCHMARK(BM_HandicapRunOnly)->Unit(benchmark::kMillisecond)->UseRealTime();

// The same run with no score log held, which it would otherwise read again at its end.
void BM_HandicapRunWithoutHeldScoreLog(benchmark::State &state)
{
    LogGlobals &g = basLogGlobals();
    std::unique_ptr<HeldRecordset> held = std::move(g.gScoreLog);
    for (auto _ : state)
        ComputeHandicap();
    g.gScoreLog = std::move(held);
}
BENCHMARK(BM_HandicapRunWithoutHeldScoreLog)->Unit(benchmark::kMillisecond)->UseRealTime();

// The held score log and handicap row read again.
void BM_RequeryHeldRows(benchmark::State &state)
{
    LogGlobals &g = basLogGlobals();
    for (auto _ : state) {
        g.gScoreLog->requery();
        g.gHandicapLog->requery();
    }
}
BENCHMARK(BM_RequeryHeldRows)->Unit(benchmark::kMillisecond)->UseRealTime();

// Plain SQLite through the same driver and file: 1 ScoreLog row and 18 ScoreDetails rows in one
// transaction, statements prepared once.
void BM_PlainInsertBaseline(benchmark::State &state)
{
    SaveDatabase &d = *gDatabase;
    QSqlDatabase sql = d.db().database();
    QSqlQuery log(sql), hole(sql);
    log.prepare(QStringLiteral(
        "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, AdjustedScore, "
        "Rating, "
        "Slope, Type, Differential, Used, Details, Penalties, LostBalls, Bunkers, SandSaves, AttemptedSaves, "
        "CombinedIndex) VALUES (?, ?, ?, ?, '2026-11-22', '18-holes', 84, 82, 71.8, 128, 'A', 9.0, 'N', 1, "
        "1, -1, "
        "3, 1, 3, 1)"));
    hole.prepare(
        QStringLiteral("INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, "
                       "Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                       "VALUES (?, ?, ?, ?, '2026-11-22', ?, ?, ?, 2, ?, 1, 0)"));
    for (auto _ : state) {
        sql.transaction();
        log.bindValue(0, kLast);
        log.bindValue(1, kFirst);
        log.bindValue(2, kCourse);
        log.bindValue(3, kTees);
        if (!log.exec())
            state.SkipWithError(qPrintable(log.lastError().text()));
        const qint64 index = log.lastInsertId().toLongLong();
        for (int h = 1; h <= 18; ++h) {
            hole.bindValue(0, kLast);
            hole.bindValue(1, kFirst);
            hole.bindValue(2, kCourse);
            hole.bindValue(3, kTees);
            hole.bindValue(4, index);
            hole.bindValue(5, h);
            hole.bindValue(6, kPars.at(h - 1) + 1);
            hole.bindValue(7, kPars.at(h - 1));
            if (!hole.exec())
                state.SkipWithError(qPrintable(hole.lastError().text()));
        }
        sql.commit();
        state.PauseTiming();
        d.removeRound(index);
        state.ResumeTiming();
    }
    if (d.golferRounds() != kRounds)
        state.SkipWithError("the inserted round was not removed");
}
BENCHMARK(BM_PlainInsertBaseline)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    return quillon::bench::RunBenchmarks(
        argc, argv, [] { gDatabase = std::make_unique<SaveDatabase>(); }, [] { gDatabase.reset(); });
}

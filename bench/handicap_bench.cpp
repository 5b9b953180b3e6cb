// The cost of one handicap run as the golfer's history grows: every score saved
// or deleted ends in ComputeHandicap, so it must stay well inside a click.
#include "BenchMain.h"
#include "core/DateText.h"
#include "handicap/Handicap.h"
#include "shell/basLogGlobals.h"
#include "store/basDatabase.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>
#include <random>

using namespace quillon;

namespace {

// A database file in a temporary directory, laid from the shipped empty one,
// with a golfer of `rounds` rounds and two other golfers beside.
class GolferDatabase {
public:
    explicit GolferDatabase(int rounds)
    {
        const QString path = m_dir.filePath(QStringLiteral("Quillon.qdl"));
        if (!QFile::copy(QStringLiteral(QUILLON_BENCH_UPDATE_QDL), path))
            qFatal("no shipped database at %s", QUILLON_BENCH_UPDATE_QDL);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        LogGlobals &g = basLogGlobals();
        g.gConnection = OpenDatabase(path);
        if (!g.gConnection)
            qFatal("cannot open %s", qPrintable(path));
        g.gLastName = QStringLiteral("Palmer");
        g.gFirstName = QStringLiteral("Arnold");

        Connection &c = *g.gConnection;
        Transaction fill(c);
        std::mt19937 rng(rounds);
        addGolfer(c, QStringLiteral("Palmer"), QStringLiteral("Arnold"), rounds, rng);
        addGolfer(c, QStringLiteral("Nicklaus"), QStringLiteral("Jack"), 60, rng);
        addGolfer(c, QStringLiteral("O'Brien"), QStringLiteral("Seán"), 60, rng);
        fill.commit();
        // Every golfer has a record, as in use.
        for (const auto &name : {std::pair{"Nicklaus", "Jack"}, std::pair{"O'Brien", "Seán"}}) {
            g.gLastName = QString::fromUtf8(name.first);
            g.gFirstName = QString::fromUtf8(name.second);
            ComputeHandicap();
        }
        g.gLastName = QStringLiteral("Palmer");
        g.gFirstName = QStringLiteral("Arnold");
    }

    ~GolferDatabase() { basLogGlobals().releaseAll(); }

private:
    // Rounds every two or three days, sometimes two on a day: 18- and 9-hole
    // rounds of the three types, one in twenty excluded.
    static void addGolfer(Connection &c, const QString &last, const QString &first, int rounds,
                          std::mt19937 &rng)
    {
        Exec(c,
             QStringLiteral("INSERT INTO HandicapLog (LastName, FirstName, Gender, Handicap, HomeCourseName) "
                            "VALUES (?, ?, 'M', -1000, '')"),
             {last, first});
        std::uniform_int_distribution<int> gap(0, 3), kind(0, 9), type(0, 2), tenths(-20, 400),
            excluded(0, 19);
        const QStringList types = {"A", "H", "T"};
        QDate date(2010, 1, 1);
        for (int i = 0; i < rounds; ++i) {
            date = date.addDays(gap(rng));
            const int k = kind(rng);
            const QString holes = k < 6   ? QStringLiteral("18-holes")
                                  : k < 8 ? QStringLiteral("9-holes (front)")
                                          : QStringLiteral("9-holes (back)");
            const bool nine = k >= 6;
            Exec(c,
                 QStringLiteral(
                     "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, "
                     "AdjustedScore, Rating, Slope, Type, Differential, Used, Details, Penalties, "
                     "LostBalls, Bunkers, SandSaves, AttemptedSaves, CombinedIndex) "
                     "VALUES (?, ?, 'Pebble Creek', 'White', ?, ?, ?, ?, ?, ?, ?, ?, ?, 0, -1, -1, -1, "
                     "-1, -1, 1)"),
                 {last, first, IsoDate(date), holes, nine ? 45 : 90, nine ? 44 : 88, nine ? 35.7 : 71.5,
                  nine ? 124 : 125, types.at(type(rng)), tenths(rng) / 10.0,
                  excluded(rng) == 0 ? QStringLiteral("E") : QStringLiteral("N")});
        }
    }

    QTemporaryDir m_dir;
};

void BM_ComputeHandicap(benchmark::State &state)
{
    const GolferDatabase database(int(state.range(0)));
    for (auto _ : state)
        ComputeHandicap();
    // What the runs produced, so that a run doing nothing cannot pass for a fast one.
    Connection &c = db();
    const Params golfer = {basLogGlobals().gLastName, basLogGlobals().gFirstName};
    state.counters["record"] =
        Scalar(c, QStringLiteral("SELECT COUNT(*) FROM ScoringRecord WHERE LastName = ? AND FirstName = ?"),
               golfer)
            .toDouble();
    state.counters["used"] = Scalar(c,
                                    QStringLiteral("SELECT COUNT(*) FROM ScoreLog WHERE LastName = ? AND "
                                                   "FirstName = ? AND Used IN ('Y', 'C')"),
                                    golfer)
                                 .toDouble();
    state.counters["index"] =
        Scalar(c, QStringLiteral("SELECT Handicap FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
               golfer)
            .toDouble();
    state.SetLabel(QStringLiteral("%1 rounds").arg(state.range(0)).toStdString());
}

BENCHMARK(BM_ComputeHandicap)->Arg(20)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    return quillon::bench::RunBenchmarks(argc, argv);
}

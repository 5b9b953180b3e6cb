// A randomized user drives the whole program offscreen from a seed, and after every hundred
// actions the database must still be sound.  CI runs a few fixed seeds; scripts/random-user runs
// many more, longer, through the environment variables read by the last test here.
#include "RandomUser.h"

#include "Fixtures.h"
#include "TestApp.h"
#include "handicap/Handicap.h"
#include "shell/basLogGlobals.h"

#include <QDir>
#include <QFile>
#include <cstdio>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

// A database with something in it to act on: two golfers (one with an apostrophe in his name),
// two courses (one with two sets of tees), rounds with and without holes, each golfer's handicap
// computed as the program would have left it.
void layStartingData(TestApp &app)
{
    Connection &c = app.db();
    addGolfer(c, QStringLiteral("Palmer"), QStringLiteral("Arnold"), QStringLiteral("M"));
    addGolfer(c, QStringLiteral("O'Hara"), QStringLiteral("Kate"), QStringLiteral("F"));
    addCourse(c);
    CourseSpec blue;
    blue.tees = QStringLiteral("Blue");
    blue.overallRating = 73.1;
    blue.overallSlope = 131;
    addCourse(c, blue);
    CourseSpec links;
    links.name = QStringLiteral("St. Andrew's Links");
    links.tees = QStringLiteral("Red");
    links.overallRating = 69.8;
    links.overallSlope = 118;
    addCourse(c, links);
    addWeeklyRounds(c, QStringLiteral("Palmer"), QStringLiteral("Arnold"), QDate(2026, 3, 1),
                    {16.6, 12.1, 18.4, 9.9, 14.0, 21.3, 11.7});
    const QVector<int> pars = CourseSpec().pars;
    for (int i = 0; i < 2; ++i) {
        RoundSpec r;
        r.date = QDate(2026, 6, 1 + 7 * i);
        r.score = r.adjusted = 88 + i;
        r.details = true;
        const qint64 index = addRound(c, r);
        QVector<int> scores;
        for (int h = 0; h < 18; ++h)
            scores << pars.at(h) + (h + i) % 3;
        addHoleScores(c, r, index, 1, scores, pars);
    }
    RoundSpec kate;
    kate.last = QStringLiteral("O'Hara");
    kate.first = QStringLiteral("Kate");
    kate.course = QStringLiteral("St. Andrew's Links");
    kate.tees = QStringLiteral("Red");
    kate.rating = 69.8;
    kate.slope = 118;
    kate.holes = QStringLiteral("9-holes (front)");
    kate.score = kate.adjusted = 50;
    kate.differential = 20.1;
    addRound(c, kate);
    kate.date = kate.date.addDays(3);
    kate.holes = QStringLiteral("9-holes (back)");
    addRound(c, kate);

    LogGlobals &g = basLogGlobals();
    for (const auto &[last, first] : {std::pair{"Palmer", "Arnold"}, std::pair{"O'Hara", "Kate"}}) {
        g.gLastName = QLatin1String(last);
        g.gFirstName = QLatin1String(first);
        ComputeHandicap();
    }
    g.gLastName.clear();
    g.gFirstName.clear();
    // The program opens the database itself when the user starts it.
    g.releaseAll();
    ASSERT_TRUE(QDir(app.dir()).mkpath(QStringLiteral("backups")));
    ASSERT_TRUE(QFile::copy(app.file(QStringLiteral("Quillon.qdl")), app.file(QStringLiteral("backups/start.qdl"))));
}

RandomUserOutcome runSeed(quint32 seed, int actions, int timeLimitMs)
{
    TestApp app;
    layStartingData(app);
    RandomUserOptions options;
    options.seed = seed;
    options.actions = actions;
    options.timeLimitMs = timeLimitMs;
    RandomUser user(app.platform(), options);
    RandomUserOutcome outcome = user.run();
    std::printf("seed %u: %d actions in %lld ms, %d checks of the invariants, %d different counts of golfers, "
                "tees, rounds and holes%s\n",
                seed, outcome.actionsRun, static_cast<long long>(outcome.elapsedMs), outcome.invariantChecks,
                int(outcome.tableCounts.size()),
                outcome.timedOut ? " (stopped by the time limit)" : "");
    for (auto it = outcome.criticalMessages.cbegin(); it != outcome.criticalMessages.cend(); ++it)
        std::printf("    critical message x%d: %s\n", it.value(), qPrintable(QString(it.key()).replace('\n', ' ')));
    return outcome;
}

// The actions that reproduce a failing seed, printed with the faults.
std::string failureReport(quint32 seed, const RandomUserOutcome &o)
{
    QString out = QStringLiteral("seed %1 broke its promises:\n  %2\nThe actions of the seed, in order "
                                 "(scripts/random-user --seeds %1 --actions %3 runs them again):\n")
                      .arg(seed)
                      .arg(o.faults.join(QStringLiteral("\n  ")))
                      .arg(o.actionsRun);
    out += o.actionLog.join(QLatin1Char('\n'));
    return out.toStdString();
}

class RandomUserSeed : public ::testing::TestWithParam<int> {};

TEST_P(RandomUserSeed, KeepsTheProgramRunningAndTheDatabaseSound)
{
    const quint32 seed = quint32(GetParam());
    const RandomUserOutcome o = runSeed(seed, 3000, 50000);
    EXPECT_TRUE(o.faults.isEmpty()) << failureReport(seed, o);
    // Stopped by the clock or not, the run did real work and looked at the invariants.
    EXPECT_GE(o.actionsRun, 300);
    EXPECT_GE(o.invariantChecks, 3);
}

INSTANTIATE_TEST_SUITE_P(CiSeeds, RandomUserSeed, ::testing::Values(1, 2, 3, 4));

// scripts/random-user: QUILLON_RANDOM_SEEDS ("1-50" or "7") and QUILLON_RANDOM_ACTIONS.
TEST(RandomUserLongRun, SeedsFromTheEnvironment)
{
    const QString seeds = qEnvironmentVariable("QUILLON_RANDOM_SEEDS");
    if (seeds.isEmpty())
        GTEST_SKIP() << "set QUILLON_RANDOM_SEEDS (e.g. 1-50) and QUILLON_RANDOM_ACTIONS to run";
    const int actions = qEnvironmentVariableIntValue("QUILLON_RANDOM_ACTIONS") > 0
                            ? qEnvironmentVariableIntValue("QUILLON_RANDOM_ACTIONS")
                            : 20000;
    const QStringList range = seeds.split(QLatin1Char('-'));
    const int first = range.first().toInt();
    const int last = range.size() > 1 ? range.last().toInt() : first;
    for (int seed = first; seed <= last; ++seed) {
        const RandomUserOutcome o = runSeed(quint32(seed), actions, 24 * 3600 * 1000);
        EXPECT_TRUE(o.faults.isEmpty()) << failureReport(quint32(seed), o);
    }
}

} // namespace
} // namespace quillon::test

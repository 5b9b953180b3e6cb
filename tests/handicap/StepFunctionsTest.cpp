#include "HandicapFixture.h"
#include "handicap/Handicap.h"

#include <random>

using namespace quillon;
using namespace quillon::test;

namespace {

// The run made of its steps, each reading what the one before wrote.
float runStepByStep(Connection &c)
{
    BuildScoringRecord();
    const LogGlobals &g = basLogGlobals();
    Recordset records =
        Query(c,
              QStringLiteral("SELECT * FROM ScoringRecord WHERE LastName = ? AND FirstName = ? "
                             "ORDER BY Date, ScoreIndex"),
              {g.gLastName, g.gFirstName});
    const int scores = records.rowCount();
    qint16 count = DifferentialsUsed(scores);
    if (scores >= 1)
        MarkUsedScores(count, records);
    const float value = scores >= 5 ? AverageDifferentials() : kNoHandicap;
    PublishHandicap(value);
    return value;
}

} // namespace

class StepFunctions : public HandicapFixture {
protected:
    // Rounds of every kind, with ties of date, excluded rounds and rounds without a Type.
    void addRandomRounds(std::mt19937 &rng, const RoundSpec &golfer, int rounds)
    {
        std::uniform_int_distribution<int> day(1, 40), kind(0, 3), type(0, 9), tenths(-50, 450),
            adjusted(36, 110), slope(100, 140), excluded(0, 9);
        for (int i = 0; i < rounds; ++i) {
            RoundSpec r = golfer;
            r.date = dayOf(day(rng));
            const int k = kind(rng);
            r.holes = k < 2    ? QStringLiteral("18-holes")
                      : k == 2 ? QStringLiteral("9-holes (front)")
                               : QStringLiteral("9-holes (back)");
            const int t = type(rng);
            r.type = t == 0  ? QString()
                     : t < 4 ? QStringLiteral("A")
                     : t < 7 ? QStringLiteral("H")
                             : QStringLiteral("T");
            r.differential = tenths(rng) / 10.0;
            r.adjusted = adjusted(rng);
            r.rating = 30.0 + tenths(rng) / 10.0;
            r.slope = slope(rng);
            r.used = excluded(rng) == 0 ? QStringLiteral("E") : QStringLiteral("N");
            addRound(db(), r);
        }
    }

    // The golfer's marks as an earlier run (or an older program) might have left them.
    void scrambleMarks(std::mt19937 &rng)
    {
        std::uniform_int_distribution<int> pick(0, 4);
        const QStringList used = {"N", "Y", "C", "n", "N"};
        const QStringList indexes = columnValues(
            db(), QStringLiteral("SELECT ScoreIndex FROM ScoreLog WHERE LastName = ? AND Used <> 'E'"),
            {spec.last});
        for (const QString &index : indexes) {
            const int p = pick(rng);
            Exec(db(), QStringLiteral("UPDATE ScoreLog SET Used = ?, CombinedIndex = ? WHERE ScoreIndex = ?"),
                 {used.at(p), p == 2 ? index.toLongLong() + 1 : 1, index.toLongLong()});
        }
    }

    QStringList everything()
    {
        return columnValues(db(), QStringLiteral("SELECT rowid, * FROM ScoringRecord ORDER BY rowid")) +
               columnValues(db(), QStringLiteral("SELECT * FROM ScoreLog ORDER BY ScoreIndex")) +
               columnValues(db(), QStringLiteral("SELECT * FROM HandicapLog ORDER BY LastName"));
    }
};

TEST_F(StepFunctions, GiveWhatComputeHandicapGivesOnManyGolfers)
{
    RoundSpec jack = spec;
    jack.last = QStringLiteral("Nicklaus");
    jack.first = QStringLiteral("Jack");
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 rng(seed);
        for (const char *table : {"ScoreLog", "ScoringRecord", "HandicapLog"})
            Exec(db(), QStringLiteral("DELETE FROM %1").arg(QLatin1String(table)));
        addGolfer(db(), spec.last, spec.first, seed % 3 == 0 ? QStringLiteral("F") : QStringLiteral("M"));
        addGolfer(db(), jack.last, jack.first, QStringLiteral("M"));
        std::uniform_int_distribution<int> count(0, 45);
        addRandomRounds(rng, jack, 12);
        addRandomRounds(rng, spec, count(rng));
        // Another golfer's record stands in the table throughout.
        app().setGolfer(jack.last, jack.first);
        ComputeHandicap();
        app().setGolfer(spec.last, spec.first);

        scrambleMarks(rng);
        const float stepped = runStepByStep(db());
        const QStringList afterSteps = everything();
        const QString panelAfterSteps = display.panel;

        scrambleMarks(rng);
        ComputeHandicap();
        EXPECT_EQ(everything(), afterSteps);
        EXPECT_EQ(display.panel, panelAfterSteps);
        EXPECT_EQ(storedHandicap().toDouble(), QString::number(stepped, 'g', 7).toDouble());
        // the record never holds more than 20 rows, and every "Y" row is one of the lowest
        EXPECT_LE(record().size(), 20);
    }
    EXPECT_TRUE(gender.asked.isEmpty());
}

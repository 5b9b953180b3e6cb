// The index depends on the rounds, not on their ScoreIndex numbers or on how often it is computed.
#include "GolferGenerator.h"
#include "HandicapRulesTest.h"
#include "handicap/Handicap.h"

using namespace quillon;
using namespace quillon::test;

namespace {

class HandicapConsistency : public HandicapRulesTest {
protected:
    // Seeds of generated golfers with fifteen rounds or more, enough for a handicap as a rule.
    std::vector<quint32> seedsWithRounds(int wanted)
    {
        std::vector<quint32> seeds;
        for (quint32 seed = 777; int(seeds.size()) < wanted; ++seed) {
            const GeneratedGolfer g = GenerateGolfer(seed, int(seed));
            if (g.rounds.size() >= 15)
                seeds.push_back(seed);
        }
        return seeds;
    }
    QStringList everyRow()
    {
        return columnValues(db(), QStringLiteral("SELECT * FROM HandicapLog ORDER BY LastName, FirstName")) +
               columnValues(db(), QStringLiteral("SELECT * FROM ScoreLog ORDER BY ScoreIndex")) +
               columnValues(db(), QStringLiteral("SELECT * FROM ScoringRecord "
                                                 "ORDER BY LastName, FirstName, ScoreIndex"));
    }
};

} // namespace

TEST_F(HandicapConsistency, TwoGolfersWithTheSameRoundsGetTheSameIndex)
{
    int compared = 0;
    for (quint32 seed : seedsWithRounds(12)) {
        SCOPED_TRACE(QStringLiteral("seed %1").arg(seed).toStdString());
        GeneratedGolfer g = GenerateGolfer(seed, int(seed));
        const GeneratedGolfer twin = StoreTwin(db(), g, QStringLiteral("Twin %1").arg(seed), g.first);
        std::map<qint64, qint64> toTwin;
        for (size_t i = 0; i < g.rounds.size(); ++i)
            toTwin[g.rounds[i].index] = twin.rounds[i].index;

        choose(g.last, g.first);
        gender.answer = g.answer;
        ComputeHandicap();
        const QString panel = display.panel;
        const QVariant handicap = storedHandicap();
        QVector<RecordRow> rows = record();
        std::map<qint64, LogMark> marks = marksOf(g.last, g.first);

        choose(twin.last, twin.first);
        ComputeHandicap();

        EXPECT_EQ(display.panel, panel);
        EXPECT_EQ(storedHandicap(), handicap);
        // The original's rows, renumbered to the twin's rounds.
        const auto renumber = [&](qint64 index) { return toTwin.count(index) ? toTwin[index] : index; };
        for (RecordRow &r : rows) {
            r.lastName = twin.last;
            r.scoreIndex = renumber(r.scoreIndex);
            if (r.combinedIndex)
                r.combinedIndex = renumber(*r.combinedIndex);
        }
        EXPECT_EQ(record(), rows);
        std::map<qint64, LogMark> twinMarks;
        for (auto [index, m] : marks) {
            if (m.used == QLatin1String("C"))
                m.combinedIndex = renumber(*m.combinedIndex);
            twinMarks[renumber(index)] = m;
        }
        // Excluded rounds keep their stale CombinedIndex, which the twin copied as it was.
        EXPECT_EQ(marksOf(twin.last, twin.first), twinMarks);
        compared += !rows.isEmpty();
        if (HasFailure())
            break;
    }
    EXPECT_GE(compared, 10);
}

TEST_F(HandicapConsistency, SecondRunChangesNothing)
{
    for (quint32 seed : seedsWithRounds(12)) {
        SCOPED_TRACE(QStringLiteral("seed %1").arg(seed).toStdString());
        GeneratedGolfer g = GenerateGolfer(seed, int(seed));
        StoreGolfer(db(), g);
        choose(g.last, g.first);
        gender.answer = g.answer;
        ComputeHandicap();
        const QStringList afterFirst = everyRow();
        const QString panel = display.panel;
        const std::optional<bool> calculator = display.calculatorEnabled;
        const int asked = gender.asked.size();

        // A different answer would show if the golfer were asked again.
        gender.answer = g.answer == QLatin1String("F") ? QStringLiteral("M") : QStringLiteral("F");
        ComputeHandicap();

        EXPECT_EQ(everyRow(), afterFirst);
        EXPECT_EQ(display.panel, panel);
        EXPECT_EQ(display.calculatorEnabled, calculator);
        EXPECT_EQ(gender.asked.size(), asked);
        if (HasFailure())
            break;
    }
}

// Hundreds of random golfers in one database, each run compared in every detail
// with the plain model of the rules.
#include "GolferGenerator.h"
#include "GolferLedger.h"
#include "HandicapModel.h"
#include "HandicapRulesTest.h"
#include "handicap/Handicap.h"

#include <algorithm>
#include <cstdlib>

using namespace quillon;
using namespace quillon::test;

namespace {

// Seeds are fixed so that a failing golfer can be made again alone: GenerateGolfer(kFirstSeed + n, n).
constexpr quint32 kFirstSeed = 20261122;
constexpr int kGolfers = 400;
// Every so many golfers, the rows of all earlier ones are compared with what they were.
constexpr int kLedgerEvery = 20;

double textValue(const QString &text)
{
    const QByteArray bytes = text.toLatin1();
    return std::strtod(bytes.constData(), nullptr);
}

std::string describe(const std::vector<double> &values)
{
    std::string s;
    for (double v : values)
        s += QString::number(v, 'g', 17).toStdString() + " ";
    return s;
}

class RandomGolfers : public HandicapRulesTest {
protected:
    // Runs the engine for a stored golfer and compares everything with the model's outcome, which it returns.
    model::Outcome runAndCompare(const GeneratedGolfer &g)
    {
        choose(g.last, g.first);
        gender.answer = g.answer;
        gender.asked.clear();
        display = RecordingHandicapDisplay();
        const QStringList untouched = roundsApartFromMarks(g.last, g.first);

        ComputeHandicap();

        const model::Outcome o = model::Expect(g.last, g.first, g.rounds, g.gender, g.answer);
        EXPECT_EQ(record(), o.record);
        EXPECT_EQ(marksOf(g.last, g.first), o.marks);
        EXPECT_EQ(roundsApartFromMarks(g.last, g.first), untouched);

        const double expectedHandicap = o.computed ? textValue(o.indexText) : -1000.0;
        EXPECT_EQ(storedHandicap().toDouble(), expectedHandicap)
            << "used differentials " << describe(o.usedDifferentials) << "gender " << o.gender.toStdString()
            << "; with single-precision addends the index would read "
            << model::IndexTextSingleAddends(o.usedDifferentials, o.gender).toStdString();
        EXPECT_EQ(display.panel, model::PanelText(o));
        EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(o.computed));

        EXPECT_EQ(gender.asked.size(), o.asksGender ? 1 : 0);
        const QVariant stored = storedGender();
        if (o.asksGender || g.gender) {
            EXPECT_EQ(stored.toString(), o.asksGender ? g.answer : *g.gender);
        } else {
            EXPECT_TRUE(stored.isNull());
        }
        return o;
    }
};

} // namespace

TEST_F(RandomGolfers, EveryRunMatchesThePlainModel)
{
    GolferLedger ledger(db());
    ledger.keep(last, first); // the fixture's golfer
    int withHandicap = 0, withCombined = 0, full = 0, capped = 0, negative = 0, olderPartner = 0,
        splitTie = 0;
    for (int n = 0; n < kGolfers; ++n) {
        const quint32 seed = kFirstSeed + quint32(n);
        SCOPED_TRACE(QStringLiteral("golfer %1, seed %2").arg(n).arg(seed).toStdString());
        GeneratedGolfer g = GenerateGolfer(seed, n);
        StoreGolfer(db(), g);
        const model::Outcome o = runAndCompare(g);
        ledger.keep(g.last, g.first);
        if (n % kLedgerEvery == kLedgerEvery - 1 || n == kGolfers - 1) {
            EXPECT_EQ(ledger.changed(), QStringList())
                << "a run for one of the golfers " << n + 1 - kLedgerEvery << " to " << n
                << " changed rows of another golfer";
        }
        if (HasFailure())
            break; // one golfer's differences are enough to read

        withHandicap += o.computed;
        full += o.record.size() == 20;
        capped += o.indexText == QLatin1String("36.4") || o.indexText == QLatin1String("40.4");
        negative += o.indexText.startsWith(QLatin1Char('-'));
        withCombined += std::any_of(o.record.begin(), o.record.end(),
                                    [](const RecordRow &r) { return r.combinedIndex.has_value(); });
        // A pair freed by the limit of twenty and taken again by a later round: the partner is the older one.
        olderPartner += std::any_of(o.record.begin(), o.record.end(), [](const RecordRow &r) {
            return r.details && QDate::fromString(r.details->section(QLatin1Char(' '), 4, 4),
                                                  QStringLiteral("M/d/yyyy")) > r.date;
        });
        // Equal differentials of which some are used and some not: the newest-first rule decides.
        splitTie += std::any_of(o.record.begin(), o.record.end(), [&](const RecordRow &r) {
            return std::any_of(o.record.begin(), o.record.end(), [&](const RecordRow &q) {
                return q.differential == r.differential && q.used != r.used;
            });
        });
    }
    RecordProperty("olderPartner", olderPartner);
    RecordProperty("splitTie", splitTie);
    RecordProperty("capped", capped);
    // The generator must reach the cases that matter, or the comparison proves little.
    EXPECT_GT(withHandicap, kGolfers / 3);
    EXPECT_GT(withCombined, kGolfers / 4);
    EXPECT_GT(full, kGolfers / 10);
    EXPECT_GT(capped, 5);
    EXPECT_GT(negative, 5);
    EXPECT_GT(olderPartner, 0);
    EXPECT_GT(splitTie, 10);
}

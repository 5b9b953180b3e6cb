#include "views/UltimateCard.h"
#include "TestPrinting.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

using namespace quillon;

namespace {

const QVariant kNull;

QString describe(const QVariant &v)
{
    if (v.isNull())
        return QStringLiteral("Null");
    return QStringLiteral("%1 (%2)").arg(v.toString(), QLatin1String(v.typeName()));
}

// ---- the best of one hole ----

struct BestCase {
    const char *name;
    QVector<QVariant> scores;
    QVariant best;
};

void PrintTo(const BestCase &c, std::ostream *os)
{
    *os << c.name;
}

class BestOfAHole : public ::testing::TestWithParam<BestCase> {};

TEST_P(BestOfAHole, IsTheFirstScoreThenEveryLowerOne)
{
    const BestCase &c = GetParam();
    const QVariant best = BestScore(c.scores);
    EXPECT_EQ(describe(best), describe(c.best));
}

INSTANTIATE_TEST_SUITE_P(
    Rules, BestOfAHole,
    ::testing::Values(BestCase{"ThreeRoundsFourFourFive", {4, 4, 5}, 4},
                      BestCase{"LowestInTheMiddle", {5, 3, 4}, 3}, BestCase{"OneRound", {6}, 6},
                      // A tie changes nothing: the first of two equal scores stays, in its own type.
                      BestCase{"TieKeepsTheFirst", {4.0, qlonglong(4)}, 4.0},
                      BestCase{"LaterNullIsSkipped", {5, kNull, 4}, 4},
                      BestCase{"EmptyTextIsSkipped", {5, QStringLiteral(""), 4}, 4},
                      // Nothing compares as below a Null: the best stays Null.
                      BestCase{"FirstNullStaysNull", {kNull, 3, 4}, kNull},
                      // A number stands below a text that is none.
                      BestCase{"FirstEmptyTextGivesWayToANumber", {QStringLiteral(""), 5, 6}, 5},
                      BestCase{"HalfStrokes", {4.5, 5}, 4.5}, BestCase{"NoRows", {}, kNull}),
    [](const auto &info) { return std::string(info.param.name); });

// ---- the caption of the rounds label ----

TEST(RoundsPlayed, OneRoundIsSingular)
{
    EXPECT_EQ(RoundsPlayedText(1), std::optional<QString>(QStringLiteral("1 Round Played")));
}

TEST(RoundsPlayed, MoreRoundsArePlural)
{
    EXPECT_EQ(RoundsPlayedText(2), std::optional<QString>(QStringLiteral("2 Rounds Played")));
    EXPECT_EQ(RoundsPlayedText(12), std::optional<QString>(QStringLiteral("12 Rounds Played")));
}

TEST(RoundsPlayed, BelowOneTheLabelIsHidden)
{
    EXPECT_FALSE(RoundsPlayedText(0).has_value());
    EXPECT_FALSE(RoundsPlayedText(-1).has_value());
}

TEST(CellTexts, NumbersShowAsTheyAreStored)
{
    EXPECT_EQ(CellText(qlonglong(5)), QStringLiteral("5"));
    EXPECT_EQ(CellText(4.0), QStringLiteral("4"));
    EXPECT_EQ(CellText(4.5), QStringLiteral("4.5"));
    EXPECT_EQ(CellText(kNull), QString());
}

// ---- a whole pass over the holes ----

// The pars of the card: 36 out, 36 in.
const int kPars[18] = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

struct PassCase {
    const char *name = "";
    std::map<int, QVector<QVariant>> rows; // by hole number, 1 to 18
    std::map<int, QString> parCaptions;    // captions that differ from kPars, by hole number
    std::map<int, QString> cells;          // every hole that is written, with its text
    std::map<int, int> toPar;              // every hole that is coloured, with best minus par
    std::optional<int> rounds;
    std::optional<int> out, in, total;
    UltimateOutcome outcome = UltimateOutcome::BothNines;
    int failure = 0; // the error number that stops the pass; 0 for none
};

std::map<int, QVector<QVariant>> everyHole(int from, int to, const QVector<QVariant> &scores)
{
    std::map<int, QVector<QVariant>> rows;
    for (int h = from; h <= to; ++h)
        rows[h] = scores;
    return rows;
}

std::map<int, QString> cellsOf(int from, int to, const QString &text)
{
    std::map<int, QString> cells;
    for (int h = from; h <= to; ++h)
        cells[h] = text;
    return cells;
}

PassCase bothNines()
{
    PassCase c;
    c.name = "BothNines";
    c.rows = {{1, {4, 5}}, {10, {3}}, {18, {6, 6, 7}}};
    c.cells = {{1, "4"}, {10, "3"}, {18, "6"}};
    c.toPar = {{1, 0}, {10, -1}, {18, 1}};
    c.rounds = 3; // hole 18, the last with rows, has three
    c.out = 4;
    c.in = 3 + 6;
    c.total = 4 + 9;
    return c;
}

PassCase frontOnly()
{
    PassCase c;
    c.name = "FrontNineOnly";
    c.rows = everyHole(1, 9, {5});
    c.rows[3] = {4, 2, 3}; // par 3: a birdie
    c.cells = cellsOf(1, 9, "5");
    c.cells[3] = "2";
    for (int h = 1; h <= 9; ++h)
        c.toPar[h] = 5 - kPars[h - 1];
    c.toPar[3] = -1;
    c.rounds = 1; // hole 9 has one row, though hole 3 has three
    c.out = 8 * 5 + 2;
    c.in = 0;
    c.total = 42;
    c.outcome = UltimateOutcome::FrontOnly;
    return c;
}

PassCase backOnly()
{
    PassCase c;
    c.name = "BackNineOnly";
    c.rows = everyHole(10, 18, {4, 4});
    c.cells = cellsOf(10, 18, "4");
    for (int h = 10; h <= 18; ++h)
        c.toPar[h] = 4 - kPars[h - 1];
    c.rounds = 2;
    c.out = 0;
    c.in = 36;
    c.total = 36;
    c.outcome = UltimateOutcome::BackOnly;
    return c;
}

PassCase noRows()
{
    PassCase c;
    c.name = "NoRowsAtAll";
    c.out = 0;
    c.in = 0;
    c.total = 0;
    c.outcome = UltimateOutcome::NoScores;
    return c;
}

PassCase zeroScores()
{
    // Rows there are, but they add up to nothing: the card has nothing to show.
    PassCase c;
    c.name = "ScoresOfZero";
    c.rows = {{1, {0}}, {12, {0, 0}}};
    c.cells = {{1, "0"}, {12, "0"}};
    c.toPar = {{1, -4}, {12, -3}};
    c.rounds = 2;
    c.out = 0;
    c.in = 0;
    c.total = 0;
    c.outcome = UltimateOutcome::NoScores;
    return c;
}

PassCase holeInOne()
{
    PassCase c;
    c.name = "HoleInOneOnAParFour";
    c.rows = {{1, {1, 4}}, {2, {2}}, {3, {2}}, {4, {6}}};
    c.cells = {{1, "1"}, {2, "2"}, {3, "2"}, {4, "6"}};
    c.toPar = {{1, -3}, {2, -2}, {3, -1}, {4, 1}};
    c.rounds = 1;
    c.out = 1 + 2 + 2 + 6;
    c.in = 0;
    c.total = 11;
    c.outcome = UltimateOutcome::FrontOnly;
    return c;
}

PassCase blankPar()
{
    // No par on hole 5: the strict conversion fails there, after the cell and the label were written.
    PassCase c;
    c.name = "BlankParStopsThePass";
    c.rows = everyHole(1, 9, {4});
    c.rows[5] = {5, 6};
    c.parCaptions = {{5, ""}};
    c.cells = {{1, "4"}, {2, "4"}, {3, "4"}, {4, "4"}, {5, "5"}};
    c.toPar = {{1, 0}, {2, 0}, {3, 1}, {4, -1}};
    c.rounds = 2;
    c.failure = QuillonError::TypeMismatch;
    return c;
}

PassCase firstScoreNull()
{
    PassCase c;
    c.name = "FirstScoreNullStopsThePass";
    c.rows = {{1, {3}}, {2, {kNull, 4}}, {3, {3}}};
    c.cells = {{1, "3"}, {2, ""}};
    c.toPar = {{1, -1}};
    c.rounds = 2;
    c.failure = QuillonError::TypeMismatch;
    return c;
}

PassCase textPar()
{
    PassCase c;
    c.name = "ParThatIsNoNumber";
    c.rows = {{10, {4}}};
    c.parCaptions = {{10, "x"}};
    c.cells = {{10, "4"}};
    c.rounds = 1;
    c.failure = QuillonError::TypeMismatch;
    return c;
}

PassCase nineOverflow()
{
    // 8 x 4000 = 32000 fits in 16 bits; the ninth 4000 does not.
    PassCase c;
    c.name = "FrontSumOutOfRange";
    c.rows = everyHole(1, 9, {4000});
    c.cells = cellsOf(1, 9, "4000");
    for (int h = 1; h <= 8; ++h)
        c.toPar[h] = 4000 - kPars[h - 1];
    c.rounds = 1;
    c.failure = QuillonError::Overflow;
    return c;
}

PassCase totalOverflow()
{
    // Each nine is 9 x 3000 = 27000; together 54000 leaves the range.
    PassCase c;
    c.name = "TotalOutOfRange";
    c.rows = everyHole(1, 18, {3000});
    c.cells = cellsOf(1, 18, "3000");
    for (int h = 1; h <= 18; ++h)
        c.toPar[h] = 3000 - kPars[h - 1];
    c.rounds = 1;
    c.out = 27000;
    c.in = 27000;
    c.failure = QuillonError::Overflow;
    return c;
}

PassCase halfStrokes()
{
    // 4.5 rounds to 4 (halves go to the even neighbour), in the sum and against par.
    PassCase c;
    c.name = "HalfStrokeRoundsToEven";
    c.rows = {{1, {4.5}}, {10, {5.5}}};
    c.cells = {{1, "4.5"}, {10, "5.5"}};
    c.toPar = {{1, 0}, {10, 2}};
    c.rounds = 1;
    c.out = 4;
    c.in = 6;
    c.total = 10;
    return c;
}

void PrintTo(const PassCase &c, std::ostream *os)
{
    *os << c.name;
}

class UltimatePassRules : public ::testing::TestWithParam<PassCase> {};

TEST_P(UltimatePassRules, LeaveTheCardAsTheRulesSay)
{
    const PassCase &c = GetParam();
    ScoresByHole scores;
    for (const auto &[hole, rows] : c.rows)
        scores[hole - 1] = rows;
    ParCaptions pars;
    for (int i = 0; i < 18; ++i)
        pars[i] = QString::number(kPars[i]);
    for (const auto &[hole, caption] : c.parCaptions)
        pars[hole - 1] = caption;

    const UltimatePass pass = BestScores(scores, pars);

    for (int h = 1; h <= 18; ++h) {
        const UltimateHole &hole = pass.holes[h - 1];
        const auto cell = c.cells.find(h);
        EXPECT_EQ(hole.played, cell != c.cells.end()) << "hole " << h;
        if (cell != c.cells.end()) {
            EXPECT_EQ(hole.best, cell->second) << "hole " << h;
        }
        const auto toPar = c.toPar.find(h);
        EXPECT_EQ(hole.toPar,
                  toPar == c.toPar.end() ? std::optional<int>() : std::optional<int>(toPar->second))
            << "hole " << h;
    }
    EXPECT_EQ(pass.roundsPlayed, c.rounds);
    const auto sum = [](const std::optional<qint16> &s) {
        return s ? std::optional<int>(*s) : std::optional<int>();
    };
    EXPECT_EQ(sum(pass.out), c.out);
    EXPECT_EQ(sum(pass.in), c.in);
    EXPECT_EQ(sum(pass.total), c.total);
    EXPECT_EQ(pass.failure ? pass.failure->number() : 0, c.failure);
    if (!c.failure) {
        EXPECT_EQ(int(pass.outcome), int(c.outcome));
        EXPECT_EQ(pass.ok(), c.outcome != UltimateOutcome::NoScores);
    } else {
        EXPECT_FALSE(pass.ok());
    }
}

INSTANTIATE_TEST_SUITE_P(Rules, UltimatePassRules,
                         ::testing::Values(bothNines(), frontOnly(), backOnly(), noRows(), zeroScores(),
                                           holeInOne(), blankPar(), firstScoreNull(), textPar(),
                                           nineOverflow(), totalOverflow(), halfStrokes()),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace

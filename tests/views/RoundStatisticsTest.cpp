#include "TestPrinting.h"
#include "views/RoundStatistics.h"
#include "views/ScoreColours.h"

#include <QLabel>

#include <gtest/gtest.h>

using namespace quillon;

namespace {

const int kPars[18] = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

// Holes first .. first + n - 1 with the given scores and putts on the card above; the rest blank.
QVector<DetailHole> round(int first, const QVector<int> &scores, const QStringList &putts,
                          const QList<int> &fairways = {})
{
    QVector<DetailHole> holes(18);
    for (int i = 0; i < 18; ++i)
        holes[i].par = kPars[i];
    for (int k = 0; k < scores.size(); ++k) {
        const int i = first + k;
        holes[i].score = QString::number(scores.at(k));
        holes[i].putts = putts.at(k);
        holes[i].fairway = fairways.contains(i);
    }
    return holes;
}

} // namespace

TEST(RoundStatistics, AFrontNineRoundCountsItsNineHolesOnly)
{
    const RoundStatistics s = ComputeRoundStatistics(
        round(0, {5, 4, 3, 6, 5, 4, 4, 5, 6}, {"2", "2", "1", "2", "2", "2", "2", "2", "2"}, {0, 4, 8}));
    EXPECT_EQ(s.putts, 17);
    EXPECT_EQ(s.chipIns, 0);
    EXPECT_EQ(s.onePutts, 1);
    EXPECT_EQ(s.twoPutts, 8);
    EXPECT_EQ(s.threePlusPutts, 0);
    // Par 3s: 3 and 4 -> 3.5; par 4s: 5, 4, 5, 4, 5 -> 4.6; par 5s: 6 and 6 -> 6.0.
    EXPECT_EQ(s.avgPar3, QStringLiteral("3.5"));
    EXPECT_EQ(s.avgPar4, QStringLiteral("4.6"));
    EXPECT_EQ(s.avgPar5, QStringLiteral("6.0"));
    EXPECT_EQ(s.pars, 3);
    EXPECT_EQ(s.bogeys, 6);
    EXPECT_EQ(s.birdies + s.eagles + s.doubleBogeys + s.tripleBogeys + s.others, 0);
    // Greens where strokes less putts is at most par less 2: holes 2 and 6 -> 2 of 9 = 22.2%.
    EXPECT_EQ(s.greens, QStringLiteral("22.2%"));
    // Fairways 3 of the 7 par 4 and 5 holes = 42.857 -> 42.9%.
    EXPECT_EQ(s.fairways, QStringLiteral("42.9%"));
}

TEST(RoundStatistics, ScoresToParFromEagleToOthersAndPuttsByTheirText)
{
    // On the back nine: par 4 2 (-2 eagle), par 4 3 (-1), par 3 3 (0), par 5 6 (+1), par 4 6 (+2),
    // par 4 7 (+3), par 3 7 (+4, others), par 4 1 (-3, others), par 5 5 (0).
    const RoundStatistics s =
        ComputeRoundStatistics(round(9, {2, 3, 3, 6, 6, 7, 7, 1, 5}, {"0", "1", "2", "3", "", "00", "2", "0", "2"}));
    EXPECT_EQ(s.eagles, 1);
    EXPECT_EQ(s.birdies, 1);
    EXPECT_EQ(s.pars, 2);
    EXPECT_EQ(s.bogeys, 1);
    EXPECT_EQ(s.doubleBogeys, 1);
    EXPECT_EQ(s.tripleBogeys, 1);
    EXPECT_EQ(s.others, 2) << "a hole-in-one on a par 4 and four over par are both others";
    EXPECT_EQ(s.chipIns, 2);
    EXPECT_EQ(s.onePutts, 1);
    EXPECT_EQ(s.twoPutts, 3);
    EXPECT_EQ(s.threePlusPutts, 3) << "3, an empty text and 00 count as three or more";
    EXPECT_EQ(s.putts, 0 + 1 + 2 + 3 + 0 + 0 + 2 + 0 + 2);
    EXPECT_EQ(s.fairways, QStringLiteral("0.0%")) << "no fairway hit; ##0.0 keeps the zero";
}

TEST(RoundStatistics, NoParFourOrFiveGivesNotApplicableFairways)
{
    QVector<DetailHole> holes(18);
    for (int i = 0; i < 9; ++i)
        holes[i] = {QStringLiteral("3"), QStringLiteral("2"), 3, false};
    const RoundStatistics s = ComputeRoundStatistics(holes);
    EXPECT_EQ(s.fairways, QStringLiteral("N/A"));
    EXPECT_EQ(s.avgPar3, QStringLiteral("3.0"));
    EXPECT_EQ(s.avgPar4, QStringLiteral("0.0"));
    EXPECT_EQ(s.greens, QStringLiteral("100.0%"));
    EXPECT_EQ(s.pars, 9);
}

TEST(RoundStatistics, HolesWithoutACourseRowCountOnlyTheirPuttsAndFairway)
{
    QVector<DetailHole> holes(18);
    for (int i = 0; i < 18; ++i)
        holes[i] = {QStringLiteral("4"), QStringLiteral("1"), std::nullopt, i == 0};
    const RoundStatistics s = ComputeRoundStatistics(holes);
    EXPECT_EQ(s.onePutts, 18);
    EXPECT_EQ(s.putts, 18);
    EXPECT_FALSE(s.greens.has_value()) << "a percentage over no hole keeps the label's text";
    EXPECT_EQ(s.fairways, QStringLiteral("N/A"));
    EXPECT_EQ(s.avgPar4, QStringLiteral("0.0"));
    EXPECT_EQ(s.pars + s.bogeys + s.others, 0);
}

TEST(RoundStatistics, AParOfAnotherValueCountsToParButInNoAverage)
{
    QVector<DetailHole> holes(18);
    holes[0] = {QStringLiteral("6"), QStringLiteral("2"), 6, true};
    const RoundStatistics s = ComputeRoundStatistics(holes);
    EXPECT_EQ(s.pars, 1);
    EXPECT_FALSE(s.greens.has_value());
    EXPECT_EQ(s.fairways, QStringLiteral("N/A"));
}

TEST(RoundStatistics, AnEmptyRoundCountsNothing)
{
    const RoundStatistics s = ComputeRoundStatistics(QVector<DetailHole>(18));
    EXPECT_EQ(s.putts + s.chipIns + s.onePutts + s.twoPutts + s.threePlusPutts, 0);
    EXPECT_FALSE(s.greens.has_value());
    EXPECT_EQ(s.fairways, QStringLiteral("N/A"));
    EXPECT_EQ(s.avgPar5, QStringLiteral("0.0"));
}

TEST(ScoreColours, MarksByScoreToParAndTextThatReadsOnThem)
{
    EXPECT_EQ(ScoreToParColour(0), QColor(255, 255, 0));
    EXPECT_EQ(ScoreToParColour(-1), QColor(0, 255, 0));
    EXPECT_EQ(ScoreToParColour(-2), QColor(0, 255, 255));
    for (int other : {-3, 1, 2, 5})
        EXPECT_FALSE(ScoreToParColour(other).has_value()) << other;
    for (int mark : {0, -1, -2})
        EXPECT_EQ(TextColourOn(*ScoreToParColour(mark)), QColor(Qt::black)) << "bright marks take dark text";
    EXPECT_EQ(TextColourOn(QColor(20, 20, 60)), QColor(Qt::white));

    // On a dark desktop the label's own text is light; a marked cell still reads dark on yellow.
    QLabel label;
    QPalette dark = label.palette();
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    label.setPalette(dark);
    PaintScoreLabel(label, ScoreToParColour(0));
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::black));
    EXPECT_EQ(label.palette().color(QPalette::Window), QColor(255, 255, 0));
    EXPECT_TRUE(label.autoFillBackground());
    EXPECT_EQ(label.property("scoreColour").toString(), QStringLiteral("#ffff00"));
    PaintScoreLabel(label, std::nullopt);
    EXPECT_FALSE(label.autoFillBackground());
    EXPECT_FALSE(label.property("scoreColour").isValid());
}

#include "handicap/AdjustedScore.h"
#include "HandicapFixture.h"
#include "handicap/MaximumIndex.h"

using namespace quillon;
using namespace quillon::test;

namespace {

const QString k18 = QStringLiteral("18-holes");
const QString kFront = QStringLiteral("9-holes (front)");
const QString kBack = QStringLiteral("9-holes (back)");

QVector<HoleScore> holes(const QVector<int> &scores, const QVector<int> &pars)
{
    QVector<HoleScore> out;
    for (int i = 0; i < scores.size(); ++i)
        out.append({scores.at(i), pars.at(i)});
    return out;
}

const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5}; // par 72

} // namespace

TEST(CourseHandicap, IsIndexTimesSlopeOver113Floored)
{
    const struct {
        float index;
        int slope;
        int courseHandicap;
    } table[] = {
        {12.4f, 113, 12},                   // edge: cap 7
        {9.9f, 125, 10},                    // 10.95
        {8.9f, 120, 9},                     // 9.45
        {36.4f, 130, 41},                   // a man without index: 41.88
        {40.4f, 113, 40},                   // a woman without index
        {36.4f, 125, 40},                   // 40.27
        {40.4f, 125, 44},                   // 44.69
        {10.4f, 130, 11},                   // 11.96: the USGA table rounds to 12, this program floors
        {15.2f, 135, 18},                   // 18.16
        {11.3f, 130, 13},                   // exactly 13 in single precision
        {0.0f, 125, 0},   {-2.5f, 113, -3}, // a negative index floors downward
        {-0.2f, 120, -1}, {2.0f, 155, 2},   {5.0f, 55, 2},
    };
    for (const auto &row : table)
        EXPECT_EQ(CourseHandicap(row.index, row.slope, k18), row.courseHandicap)
            << row.index << " on " << row.slope;
}

TEST(CourseHandicap, NinesUseTheFullIndexAndOtherHolesTextsGiveZero)
{
    EXPECT_EQ(CourseHandicap(12.4f, 124, kFront), 13); // 13.6
    EXPECT_EQ(CourseHandicap(12.4f, 126, kBack), 13);  // 13.8
    EXPECT_EQ(CourseHandicap(12.4f, 124, QStringLiteral("9 holes")), 0);
    EXPECT_EQ(CourseHandicap(12.4f, 124, QString()), 0);
}

TEST(HoleCap, FollowsTheTable)
{
    const struct {
        int courseHandicap;
        int cap; // 0: par plus 2
    } table[] = {{-5, 0}, {0, 0},  {9, 0},  {10, 7},  {19, 7},  {20, 8}, {23, 8},
                 {29, 8}, {30, 9}, {39, 9}, {40, 10}, {41, 10}, {54, 10}};
    for (const auto &row : table)
        EXPECT_EQ(HoleCap(qint16(row.courseHandicap)).value_or(0), row.cap) << row.courseHandicap;
}

TEST(AdjustedScore, Handicap12Point4OnSlope113CapsAHoleOfNineAtSeven)
{
    const qint16 ch = CourseHandicap(12.4f, 113, k18);
    ASSERT_EQ(ch, 12);
    ASSERT_EQ(HoleCap(ch), 7);
    QVector<int> scores = {5, 5, 4, 6, 9, 5, 4, 5, 6, 5, 5, 4, 6, 5, 5, 4, 5, 6}; // 94
    EXPECT_EQ(AdjustedScore(94, ch, holes(scores, kPars)), 92);
}

TEST(AdjustedScore, Handicap9Point9OnSlope125IsCappedAtSeven)
{
    const qint16 ch = CourseHandicap(9.9f, 125, k18);
    ASSERT_EQ(ch, 10);
    // an 8 on a par 5 counts 7; par plus 2 would have let it stand
    EXPECT_EQ(AdjustedScore(90, ch, holes({8, 6}, {5, 4})), 89);
}

TEST(AdjustedScore, Handicap8Point9OnSlope120CapsParThreeAtFive)
{
    const qint16 ch = CourseHandicap(8.9f, 120, k18);
    ASSERT_EQ(ch, 9);
    EXPECT_FALSE(HoleCap(ch).has_value());
    // 7 on a par 3 counts 5; 6 on a par 4 and 7 on a par 5 stand; 9 on a par 4 counts 6
    EXPECT_EQ(AdjustedScore(85, ch, holes({7, 6, 7, 9}, {3, 4, 5, 4})), 80);
}

TEST(AdjustedScore, NoIndexCapsAManAtTenOnSlope130AndAWomanAtTenOnSlope113)
{
    ASSERT_EQ(HoleCap(CourseHandicap(MaximumIndex(QStringLiteral("M")), 130, k18)), 10);
    ASSERT_EQ(HoleCap(CourseHandicap(MaximumIndex(QStringLiteral("F")), 113, k18)), 10);
    EXPECT_EQ(AdjustedScore(120, CourseHandicap(MaximumIndex(QStringLiteral("M")), 130, k18),
                            holes({12, 10, 11}, {4, 4, 5})),
              117);
}

TEST(AdjustedScore, CourseHandicap23LowersNineTenAndElevenOnParFoursBySix)
{
    EXPECT_EQ(HoleCap(23), 8);
    EXPECT_EQ(AdjustedScore(100, 23, holes({9, 10, 11, 5}, {4, 4, 4, 4})), 94);
}

TEST(AdjustedScore, HolesWithoutScoreOrWithoutParReduceNothing)
{
    QVector<HoleScore> h = {{9, std::nullopt}, {std::nullopt, 4}, {9, 4}};
    EXPECT_EQ(AdjustedScore(80, 5, h), 77);  // par plus 2: only the last hole
    EXPECT_EQ(AdjustedScore(80, 12, h), 76); // cap 7: both nines
}

TEST(AdjustedScore, TheTotalIsTheOneEnteredNotTheSumOfTheHoles)
{
    EXPECT_EQ(AdjustedScore(70, 15, holes({9}, {4})), 68);
}

TEST(ComputeDifferential, PublishedExamples)
{
    const struct {
        int adjusted;
        double rating;
        int slope;
        const char *text;
    } table[] = {
        {95, 71.5, 125, "21.2"}, // 21.244
        {69, 71.5, 125, "-2.3"}, // -2.26
        {88, 71.2, 125, "15.2"}, // 15.187
        {68, 71.0, 113, "-3.0"}, {85, 72.0, 113, "13.0"}, {72, 71.6, 113, ".4"},
        {72, 72.0, 130, ".0"},   {90, 70.2, 140, "16.0"}, // 15.98
        {80, 70.0, 60, "18.8"},                           // 18.8333
    };
    for (const auto &row : table) {
        const float d = ComputeDifferential(qint16(row.adjusted), row.rating, row.slope, k18);
        EXPECT_EQ(DifferentialText(d), QString::fromLatin1(row.text)) << row.adjusted << " " << row.rating;
    }
    EXPECT_EQ(ComputeDifferential(88, 71.2, 125, k18), float((88 - 71.2) * 113 / 125));
}

TEST(ComputeDifferential, NinesUseTheirOwnPairAndOtherTextsGiveZero)
{
    EXPECT_EQ(DifferentialText(ComputeDifferential(42, 35.7, 124, kFront)), QStringLiteral("5.7")); // 5.74
    EXPECT_EQ(ComputeDifferential(42, 35.7, 124, QStringLiteral("27-holes")), 0.0f);
    // skipped, so a slope of 0 does not divide
    EXPECT_EQ(ComputeDifferential(42, 35.7, 0, QString()), 0.0f);
}

TEST(ComputeDifferential, SlopeZeroIsDivisionByZero)
{
    try {
        ComputeDifferential(90, 71.5, 0, k18);
        FAIL() << "no fault";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), 11);
    }
}

TEST(DifferentialText, RoundsHalvesAwayFromZeroOnTheSingle)
{
    EXPECT_EQ(DifferentialText(14.25f), QStringLiteral("14.3"));
    EXPECT_EQ(DifferentialText(-14.25f), QStringLiteral("-14.3"));
    EXPECT_EQ(DifferentialText(0.04f), QStringLiteral(".0"));
}

// What the score form reads: the golfer's index, the tees' pair, the round's holes.
class ScoreInputsFromDatabase : public HandicapFixture {
protected:
    qint64 roundWithHoles(const QVector<int> &scores, int firstHole = 1, const QString &holesText = k18,
                          int total = 0)
    {
        RoundSpec r = spec;
        r.holes = holesText;
        r.date = QDate(2026, 5, 9);
        r.score = total;
        r.details = true;
        const qint64 index = addRound(db(), r);
        addHoleScores(db(), r, index, firstHole, scores, kPars.mid(firstHole - 1, scores.size()));
        return index;
    }
};

TEST_F(ScoreInputsFromDatabase, IndexIsTheHandicapOrTheMaximumByGender)
{
    addGolfer(db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"), QStringLiteral("M"), 12.4);
    addGolfer(db(), QStringLiteral("Sorenstam"), QStringLiteral("Annika"), QStringLiteral("F"));
    addGolfer(db(), QStringLiteral("Doe"), QStringLiteral("Pat"), QStringLiteral("M"));
    addGolfer(db(), QStringLiteral("O'Hara"), QStringLiteral("Kim"), QString());
    EXPECT_EQ(IndexForAdjustment(db(), QStringLiteral("Palmer"), QStringLiteral("Arnold")), 12.4f);
    EXPECT_EQ(IndexForAdjustment(db(), QStringLiteral("Sorenstam"), QStringLiteral("Annika")), 40.4f);
    EXPECT_EQ(IndexForAdjustment(db(), QStringLiteral("Doe"), QStringLiteral("Pat")), 36.4f);
    EXPECT_EQ(IndexForAdjustment(db(), QStringLiteral("O'Hara"), QStringLiteral("Kim")), 36.4f);
    try {
        IndexForAdjustment(db(), QStringLiteral("Nobody"), QStringLiteral("Here"));
        FAIL() << "no fault";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), 3021);
    }
}

TEST_F(ScoreInputsFromDatabase, RatingAndSlopeComeByTheHolesPlayed)
{
    CourseSpec course;
    course.name = QStringLiteral("St. Andrew's");
    addCourse(db(), course);
    const auto pair = [&](const QString &holesText) {
        const std::optional<RatingSlope> rs = CourseRatingSlope(db(), course.name, course.tees, holesText);
        return rs ? QStringLiteral("%1/%2").arg(rs->rating).arg(rs->slope) : QStringLiteral("none");
    };
    EXPECT_EQ(pair(k18), QStringLiteral("71.5/125"));
    EXPECT_EQ(pair(kFront), QStringLiteral("35.7/124"));
    EXPECT_EQ(pair(kBack), QStringLiteral("35.8/126"));
    EXPECT_EQ(pair(QStringLiteral("other")), QStringLiteral("0/0"));
    EXPECT_FALSE(CourseRatingSlope(db(), QStringLiteral("Nowhere"), course.tees, k18).has_value());
    Exec(db(), QStringLiteral("UPDATE CourseLog SET FrontRating = NULL, FrontSlope = NULL"));
    EXPECT_EQ(pair(kFront), QStringLiteral("0/0"));
}

TEST_F(ScoreInputsFromDatabase, AdjustedScoreOfASavedRound)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"), 12.4);
    CourseSpec course;
    course.overallSlope = 113;
    addCourse(db(), course);
    QVector<int> scores = {5, 5, 4, 6, 9, 5, 4, 5, 6,
                           5, 5, 4, 6, 5, 5, 4, 5, 8}; // a 9 on a par 4, an 8 on a par 5
    const qint64 index = roundWithHoles(scores);
    // course handicap 12: cap 7, so 9 -> 7 and 8 -> 7
    EXPECT_EQ(ComputeAdjustedScore(96, index, course.name, course.tees, QDate(2026, 5, 9), k18), 93);

    const ScoreInputs in =
        LoadScoreInputs(db(), spec.last, spec.first, index, course.name, course.tees, QDate(2026, 5, 9), k18);
    EXPECT_EQ(in.index, 12.4f);
    EXPECT_EQ(in.course.rating, 71.5);
    EXPECT_EQ(in.course.slope, 113);
    ASSERT_EQ(in.holes.size(), 18);
    EXPECT_EQ(*in.holes.at(4).score, 9);
    EXPECT_EQ(*in.holes.at(4).par, 4);

    // a round of another day or tees finds no holes: nothing is reduced
    EXPECT_EQ(ComputeAdjustedScore(96, index, course.name, QStringLiteral("Blue"), QDate(2026, 5, 9), k18),
              96);
    EXPECT_EQ(ComputeAdjustedScore(96, index, course.name, course.tees, QDate(2026, 5, 10), k18), 96);
}

TEST_F(ScoreInputsFromDatabase, NoIndexYetCapsAWomanAtTen)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("F"));
    CourseSpec course;
    course.overallSlope = 113;
    addCourse(db(), course);
    const qint64 index = roundWithHoles({12, 4, 3, 11});
    // 40.4 x 113 / 113 = 40: cap 10
    EXPECT_EQ(ComputeAdjustedScore(110, index, course.name, course.tees, QDate(2026, 5, 9), k18), 107);
}

TEST_F(ScoreInputsFromDatabase, ABackNineUsesTheBackSlope)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"), 8.4);
    CourseSpec course;
    course.backSlope = 140; // 8.4 x 140 / 113 = 10.4: cap 7; with the overall 125 it would be 9: par plus 2
    addCourse(db(), course);
    const qint64 index = roundWithHoles({5, 4, 3, 8, 4, 4, 3, 4, 5}, 10, kBack);
    // hole 13 is a par 5 with an 8: 7 counts
    EXPECT_EQ(ComputeAdjustedScore(40, index, course.name, course.tees, QDate(2026, 5, 9), kBack), 39);
}

TEST_F(ScoreInputsFromDatabase, ARoundWithoutHolesKeepsItsTotalHoweverHigh)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"), 2.0);
    addCourse(db());
    RoundSpec r = spec;
    r.score = 150;
    const qint64 index = addRound(db(), r);
    EXPECT_EQ(ComputeAdjustedScore(150, index, r.course, r.tees, r.date, k18), 150);
}

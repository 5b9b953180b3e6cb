#include "course/CourseTotals.h"
#include "course/RatingSlopeCalculator.h"

#include "TestApp.h"
#include "core/QuillonError.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

// The corrections for unrated tees as the repository ships them.
struct CsvBand {
    QString gender;
    int min = 0, max = 0;
    double ratingChange = 0;
    int slopeChange = 0;
};

QVector<CsvBand> shippedBands()
{
    QFile csv(QStringLiteral(QUILLON_TEST_DATA_DIR "/unrated_tees.csv"));
    EXPECT_TRUE(csv.open(QIODevice::ReadOnly | QIODevice::Text));
    QStringList lines = QString::fromUtf8(csv.readAll()).split('\n', Qt::SkipEmptyParts);
    lines.removeFirst();
    QVector<CsvBand> bands;
    for (const QString &line : lines) {
        const QStringList f = line.trimmed().split(',');
        bands.push_back({f[0], f[1].toInt(), f[2].toInt(), f[3].toDouble(), f[4].toInt()});
    }
    return bands;
}

class RatingSlope : public ::testing::Test {
protected:
    RatingSlopeOutcome calculate(const RatingSlopeInput &in)
    {
        return CalculateRatingSlope(in, [this](const QString &gender, int distance) {
            looked.push_back({gender, distance});
            return LookUpUnratedBand(app.db(), gender, distance);
        });
    }
    static RatingSlopeInput men(const QString &rated, const QString &unrated, const QString &rating = "72.0",
                                const QString &slope = "113")
    {
        return RatingSlopeInput{0, rated, rating, slope, unrated};
    }
    static RatingSlopeInput women(const QString &rated, const QString &unrated, const QString &rating = "72.0",
                                  const QString &slope = "113")
    {
        return RatingSlopeInput{1, rated, rating, slope, unrated};
    }

    TestApp app;
    QVector<QPair<QString, int>> looked;
};

// A finished estimate with nothing said on the way.
void expectEstimate(const RatingSlopeOutcome &out, const QString &rating, const QString &slope)
{
    EXPECT_TRUE(out.warning.isEmpty()) << out.warning.toStdString();
    EXPECT_TRUE(out.stop.isEmpty()) << out.stop.toStdString();
    EXPECT_FALSE(out.noBand);
    EXPECT_FALSE(out.failed);
    EXPECT_EQ(out.rating, rating);
    EXPECT_EQ(out.slope, slope);
}

} // namespace

TEST_F(RatingSlope, ShorterUnratedTeesForMenLowerBothFiguresByTheBandOfTheDifference)
{
    const RatingSlopeOutcome out = calculate(men("6500", "6100", "71.2", "125"));
    EXPECT_EQ(out.distance, 400);
    EXPECT_EQ(out.direction, -1);
    EXPECT_FALSE(out.doubled);
    // The band 385 to 406 for men corrects by 1.8 and 5.
    expectEstimate(out, "69.4", "120");
    EXPECT_EQ(looked, (QVector<QPair<QString, int>>{{"Men", 400}}));
}

TEST_F(RatingSlope, LongerUnratedTeesRaiseBothFigures)
{
    const RatingSlopeOutcome out = calculate(men("6100", "6500", "71.2", "125"));
    EXPECT_EQ(out.distance, 400);
    EXPECT_EQ(out.direction, 1);
    expectEstimate(out, "73.0", "130");
}

TEST_F(RatingSlope, EqualYardagesTakeTheSubtractingWayWithTheBandOfZero)
{
    const RatingSlopeOutcome out = calculate(women("5200", "5200", "70.3", "118"));
    EXPECT_EQ(out.distance, 0);
    EXPECT_EQ(out.direction, -1);
    expectEstimate(out, "70.3", "118");
}

TEST_F(RatingSlope, EveryBandEdgeOfBothGendersGivesThatBandsCorrectionsBothWays)
{
    const QVector<CsvBand> bands = shippedBands();
    ASSERT_GT(bands.size(), 100);
    int checked = 0;
    for (const CsvBand &band : bands) {
        for (const int edge : {band.min, band.max}) {
            const int gender = band.gender == QLatin1String("Men") ? 0 : 1;
            const QString rated = QString::number(6000);
            for (const int direction : {-1, 1}) {
                const QString unrated = QString::number(6000 + direction * edge);
                looked.clear();
                const RatingSlopeOutcome out = calculate(RatingSlopeInput{gender, rated, "72.0", "113", unrated});
                const std::string where = QStringLiteral("%1 %2 %3").arg(band.gender).arg(edge).arg(direction).toStdString();
                EXPECT_EQ(out.distance, edge) << where;
                EXPECT_EQ(out.direction, edge == 0 ? -1 : direction) << where;
                EXPECT_FALSE(out.doubled) << where;
                const int sign = edge == 0 ? -1 : direction;
                EXPECT_EQ(out.rating, QString::number(72.0 + sign * band.ratingChange, 'f', 1)) << where;
                EXPECT_EQ(out.slope, QString::number(113 + sign * band.slopeChange)) << where;
                EXPECT_EQ(looked, (QVector<QPair<QString, int>>{{band.gender, edge}})) << where;
                ++checked;
            }
        }
    }
    EXPECT_EQ(checked, bands.size() * 4);
}

TEST_F(RatingSlope, MenAt802UseTheLastBandAndAt803LookUpHalfAndDoubleBothCorrections)
{
    const RatingSlopeOutcome last = calculate(men("7000", "6198"));
    EXPECT_EQ(last.distance, 802);
    EXPECT_FALSE(last.doubled);
    expectEstimate(last, "68.4", "104"); // band 781 to 802: 3.6 and 9

    const RatingSlopeOutcome over = calculate(men("7000", "6197"));
    EXPECT_EQ(over.distance, 402);
    EXPECT_TRUE(over.doubled);
    expectEstimate(over, "68.4", "103"); // band 385 to 406 doubled: 3.6 and 10
}

TEST_F(RatingSlope, HalvesOfAnOddDifferenceGoToTheEvenNeighbour)
{
    EXPECT_EQ(calculate(men("7000", "6197")).distance, 402); // 803 / 2
    EXPECT_EQ(calculate(men("7000", "6196")).distance, 402); // 804 / 2
    EXPECT_EQ(calculate(men("7000", "6195")).distance, 402); // 805 / 2
    EXPECT_EQ(calculate(men("7000", "6193")).distance, 404); // 807 / 2
    EXPECT_EQ(calculate(women("6000", "4749")).distance, 626); // 1251 / 2
    EXPECT_EQ(calculate(women("6000", "4747")).distance, 626); // 1253 / 2
    EXPECT_EQ(calculate(women("6000", "4745")).distance, 628); // 1255 / 2
}

TEST_F(RatingSlope, WomenAt1250UseTheLastBandAndAt1251LookUpHalfAndDouble)
{
    const RatingSlopeOutcome last = calculate(women("6000", "4750"));
    EXPECT_EQ(last.distance, 1250);
    EXPECT_FALSE(last.doubled);
    expectEstimate(last, "65.1", "98"); // band 1233 to 1250: 6.9 and 15

    const RatingSlopeOutcome over = calculate(women("4749", "6000", "70.0", "120"));
    EXPECT_EQ(over.distance, 626);
    EXPECT_TRUE(over.doubled);
    EXPECT_EQ(over.direction, 1);
    expectEstimate(over, "77.0", "134"); // band 621 to 638 doubled: 7.0 and 14
}

TEST_F(RatingSlope, TheDoubledRangeEndsWhereHalfTheDifferenceLeavesTheTable)
{
    const RatingSlopeOutcome men1605 = calculate(men("7605", "6000"));
    EXPECT_EQ(men1605.distance, 802);
    expectEstimate(men1605, "64.8", "95"); // 3.6 and 9 doubled, taken off
    const RatingSlopeOutcome men1606 = calculate(men("7606", "6000"));
    EXPECT_EQ(men1606.distance, 803);
    EXPECT_TRUE(men1606.noBand);
    EXPECT_TRUE(men1606.rating.isEmpty());

    const RatingSlopeOutcome women2501 = calculate(women("6000", "3499"));
    EXPECT_EQ(women2501.distance, 1250);
    expectEstimate(women2501, "58.2", "83"); // 6.9 and 15 doubled, taken off
    EXPECT_TRUE(calculate(women("6000", "3498")).noBand);
}

TEST_F(RatingSlope, NoBandForTheDifferenceIsItsOwnOutcomeAndNoFailure)
{
    const RatingSlopeOutcome out = calculate(men("9999", "1"));
    EXPECT_TRUE(out.noBand);
    EXPECT_FALSE(out.failed);
    EXPECT_TRUE(out.stop.isEmpty());
    EXPECT_EQ(out.distance, 4999);
    EXPECT_EQ(NoBandMessage(), QStringLiteral("Unable to calculate the rating and slope for these tees."));
}

TEST_F(RatingSlope, AnEmptyTableHasNoBandForAnyDifference)
{
    Exec(app.db(), QStringLiteral("DELETE FROM UnratedTees"));
    EXPECT_TRUE(calculate(men("6500", "6100")).noBand);
}

TEST_F(RatingSlope, SlopeOutsideTheRangeWarnsAndTheCalculationStillFinishes)
{
    const RatingSlopeOutcome high = calculate(men("6500", "6100", "71.2", "200"));
    EXPECT_EQ(high.warning, QStringLiteral("Invalid slope!  Please enter a value from 55 to 155."));
    EXPECT_TRUE(high.stop.isEmpty());
    EXPECT_EQ(high.rating, QStringLiteral("69.4"));
    EXPECT_EQ(high.slope, QStringLiteral("195")); // the result is not kept within 55 to 155

    EXPECT_FALSE(calculate(men("6500", "6100", "71.2", "54")).warning.isEmpty());
    EXPECT_TRUE(calculate(men("6500", "6100", "71.2", "55")).warning.isEmpty());
    EXPECT_TRUE(calculate(men("6500", "6100", "71.2", "155")).warning.isEmpty());
    EXPECT_FALSE(calculate(men("6500", "6100", "71.2", "156")).warning.isEmpty());
}

TEST_F(RatingSlope, ChecksComeInTheirOrderAndEachStopsBeforeTheLookUp)
{
    struct Case {
        RatingSlopeInput in;
        const char *stop;
    } cases[] = {
        {{-1, "", "", "", ""}, "Please indicate your gender."},
        {{0, "", "", "", ""}, "Please enter the rating for the nearest set of rated tees."},
        {{1, "", "72.0", "", ""}, "Please enter the slope for the nearest set of rated tees."},
        {{0, "", "72.0", "113", ""}, "Please enter the yardage for the nearest set of rated tees."},
        {{0, "0", "72.0", "113", ""}, "Invalid value for rated yards.  Please enter a number greater than zero."},
        {{0, "6500", "72.0", "113", ""}, "Please enter the yardage for the unrated tees."},
        {{1, "6500", "72.0", "113", "0"}, "Invalid value for unrated yards.  Please enter a number greater than zero."},
    };
    for (const Case &c : cases) {
        looked.clear();
        const RatingSlopeOutcome out = calculate(c.in);
        EXPECT_EQ(out.stop, QLatin1String(c.stop));
        EXPECT_TRUE(out.warning.isEmpty());
        EXPECT_TRUE(out.rating.isEmpty());
        EXPECT_TRUE(looked.isEmpty()) << c.stop;
    }
}

TEST_F(RatingSlope, TheSlopeWarningComesBeforeALaterStop)
{
    const RatingSlopeOutcome out = calculate(RatingSlopeInput{0, "", "72.0", "300", ""});
    EXPECT_EQ(out.warning, QStringLiteral("Invalid slope!  Please enter a value from 55 to 155."));
    EXPECT_EQ(out.stop, QStringLiteral("Please enter the yardage for the nearest set of rated tees."));
}

TEST_F(RatingSlope, TextThatCannotBeConvertedIsACalculationFailure)
{
    for (const RatingSlopeInput &in : {RatingSlopeInput{0, "6500", "72.0", "1x3", "6100"},
                                       RatingSlopeInput{0, "65x0", "72.0", "113", "6100"},
                                       RatingSlopeInput{0, "6500", "72.0", "113", "6x00"}}) {
        const RatingSlopeOutcome out = calculate(in);
        EXPECT_TRUE(out.failed);
        EXPECT_TRUE(out.rating.isEmpty());
    }
}

TEST_F(RatingSlope, TheRatingIsReadLenientlyAndShownWithOneDecimal)
{
    // A second decimal point ends the number, as the lenient reading does.
    expectEstimate(calculate(men("6500", "6100", "71.2.5", "125")), "69.4", "120");
    expectEstimate(calculate(men("6500", "6100", "71", "125")), "69.2", "120");
    expectEstimate(calculate(men("6500", "6500", "71", "125")), "71.0", "125");
}

TEST(RatingSlopeSpinners, RatingStepsByATenthFromItsStrictValue)
{
    EXPECT_EQ(RatingStrictIncrease(QStringLiteral("72.0")), QStringLiteral("72.1"));
    EXPECT_EQ(RatingStrictIncrease(QStringLiteral("0.9")), QStringLiteral("1.0"));
    EXPECT_EQ(RatingDecrease(QStringLiteral("72.0")), QStringLiteral("71.9"));
    EXPECT_THROW(RatingStrictIncrease(QString()), QuillonError);
    EXPECT_THROW(RatingDecrease(QString()), QuillonError);
}

TEST(RatingSlopeSpinners, YardageStepsByOneFromItsLenientValueAndNotBelowZero)
{
    EXPECT_EQ(YardageIncrease(QString()), QStringLiteral("1"));
    EXPECT_EQ(YardageIncrease(QStringLiteral("6499")), QStringLiteral("6500"));
    EXPECT_EQ(YardageDecrease(QStringLiteral("6500")), QStringLiteral("6499"));
    EXPECT_EQ(YardageDecrease(QStringLiteral("1")), QStringLiteral("0"));
    EXPECT_EQ(YardageDecrease(QStringLiteral("0")), QStringLiteral("0"));
    EXPECT_EQ(YardageDecrease(QString()), QString());
}

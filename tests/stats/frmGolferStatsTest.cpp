#include "FrameFixture.h"
#include "TestPrinting.h"
#include "core/DateText.h"
#include "stats/frmGolferStats.h"

#include <QCheckBox>
#include <QLabel>
#include <QTabWidget>

using namespace quillon;
using namespace quillon::test;

namespace {

const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

class StatisticsScreen : public FrameFixture {
public:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addCourse(app.db(), CourseSpec{});
    }
    // An 18-hole round with every hole at par plus `over`, two putts each.
    qint64 detailedRound(const QDate &date, int over, int penalties = -1)
    {
        RoundSpec r;
        r.date = date;
        r.details = true;
        r.score = r.adjusted = 72 + 18 * over;
        const qint64 index = addRound(app.db(), r);
        Exec(app.db(), QStringLiteral("UPDATE ScoreLog SET Penalties = ? WHERE ScoreIndex = ?"), {penalties, index});
        QVector<int> scores;
        for (int par : kPars)
            scores << par + over;
        addHoleScores(app.db(), r, index, 1, scores, kPars);
        Exec(app.db(), QStringLiteral("UPDATE ScoreDetails SET Putts = 2, Fairway = 0, GreenInRegulation = 0 "
                                      "WHERE ScoreIndex = ?"),
             {index});
        return index;
    }
    frmGolferStats *stats() const
    {
        return qobject_cast<frmGolferStats *>(frame->views().loaded(QStringLiteral("frmGolferStats")));
    }
    QString text(const QString &name) const { return findControl<QLabel>(stats(), name)->text(); }
    QCheckBox *currentYear() const { return findControl<QCheckBox>(stats(), QStringLiteral("chkCurrentYear")); }
    QTabWidget *tabs() const { return findControl<QTabWidget>(stats(), QStringLiteral("tabStats")); }
    void open() { item(QStringLiteral("mnuViewGolferStatistics"))->trigger(); }
};

} // namespace

TEST_F(StatisticsScreen, OpensFromTheViewMenuOnTheAccuracyPageWithItsTips)
{
    detailedRound(QDate(2026, 3, 1), 1);
    startWithPalmer();
    open();
    ASSERT_NE(stats(), nullptr);
    EXPECT_EQ(stats()->windowTitle(), QStringLiteral("Statistics"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewGolferStatistics"});
    EXPECT_EQ(tabs()->count(), 5);
    const QStringList titles = {"Accuracy", "Putting", "Scoring", "Hole-by-Hole", "Overall Totals"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(tabs()->tabText(i), titles.at(i));
        EXPECT_TRUE(tabs()->isTabEnabled(i));
    }
    EXPECT_EQ(tabs()->currentIndex(), 0);
    EXPECT_EQ(currentYear()->text(), QStringLiteral("Show stats for current year only"));
    EXPECT_FALSE(currentYear()->isChecked());
    EXPECT_EQ(findControl<QLabel>(stats(), QStringLiteral("lblBounceBack"))->toolTip(),
              QStringLiteral("The number of times you were over par on one hole and under par on the next."));
    EXPECT_EQ(findControl<QLabel>(stats(), QStringLiteral("lblHolebyHoleLabel_7"))->toolTip(),
              findControl<QLabel>(stats(), QStringLiteral("lblBounceBack"))->toolTip());
    EXPECT_EQ(findControl<QLabel>(stats(), QStringLiteral("lblHolebyHole_10"))->text(), QStringLiteral("Par Breakers"));
    EXPECT_EQ(findControl<QLabel>(stats(), QStringLiteral("lblAccuracyLabel_6"))->text(),
              QStringLiteral("Total Bunker Shots"));
    // 18 holes at bogey: 18 bogeys of 18 holes, a 90.
    EXPECT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("1"));
    EXPECT_EQ(text("lblBest18HoleScore"), QStringLiteral("90"));
    EXPECT_EQ(text("lblTotalBogeys"), QStringLiteral("18"));
    EXPECT_EQ(text("lblBogeyPercentage"), QStringLiteral("100.0%"));
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}

TEST_F(StatisticsScreen, WithoutDetailsOnlyTheScoringPageIsUsable)
{
    RoundSpec r;
    r.date = QDate(2026, 3, 1);
    r.score = r.adjusted = 95;
    addRound(app.db(), r);
    startWithPalmer();
    open();
    ASSERT_NE(stats(), nullptr);
    for (int i : {0, 1, 3, 4})
        EXPECT_FALSE(tabs()->isTabEnabled(i)) << i;
    EXPECT_TRUE(tabs()->isTabEnabled(2));
    EXPECT_EQ(text("lblBest18HoleScore"), QStringLiteral("95"));
    EXPECT_EQ(text("lblBestFrontScore"), QStringLiteral("N/A"));
}

TEST_F(StatisticsScreen, TheCurrentYearBoxCarriesOverLabelsWithNoValueInThePeriod)
{
    detailedRound(QDate(2025, 6, 1), 0, 2); // last year: a par round with 2 penalties
    detailedRound(QDate(2026, 6, 1), 1);    // this year: a bogey round, penalties not recorded
    startWithPalmer();
    open();
    ASSERT_NE(stats(), nullptr);
    ASSERT_TRUE(currentYear()->isEnabled());
    EXPECT_EQ(text("lblTotalPenalties"), QStringLiteral("2"));
    EXPECT_EQ(text("lblAvgPenalties18"), QStringLiteral("2.0"));
    EXPECT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("2"));
    EXPECT_EQ(text("lblTotalPars"), QStringLiteral("18"));

    currentYear()->click();
    EXPECT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("1"));
    EXPECT_EQ(text("lblBest18HoleScore"), QStringLiteral("90"));
    EXPECT_EQ(text("lblTotalPars"), QStringLiteral("0")) << "filled again from this year's holes";
    // No penalty recorded this year: the labels keep the last calculation's text.
    EXPECT_EQ(text("lblTotalPenalties"), QStringLiteral("2"));
    EXPECT_EQ(text("lblAvgPenalties18"), QStringLiteral("2.0"));

    currentYear()->click();
    EXPECT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("2"));
    EXPECT_EQ(text("lblTotalPars"), QStringLiteral("18"));
}

TEST_F(StatisticsScreen, AGolferWhoseRoundsAllLieInEarlierYearsCannotUseTheBox)
{
    detailedRound(QDate(2024, 5, 1), 1);
    detailedRound(QDate(2025, 9, 1), 0);
    startWithPalmer();
    open();
    ASSERT_NE(stats(), nullptr);
    EXPECT_FALSE(currentYear()->isEnabled());
    EXPECT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("2"));
}

TEST_F(StatisticsScreen, WithTheBoxCheckedAndTheYearsLastRoundGoneTheFormStaysAsItWas)
{
    detailedRound(QDate(2025, 6, 1), 0);
    const qint64 thisYear = detailedRound(QDate(2026, 6, 1), 1);
    startWithPalmer();
    open();
    ASSERT_NE(stats(), nullptr);
    currentYear()->click();
    ASSERT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("1"));
    ASSERT_EQ(text("lblBest18HoleScore"), QStringLiteral("90"));

    // Deleted elsewhere; the next activation finds no row for the year.
    Exec(app.db(), QStringLiteral("DELETE FROM ScoreDetails WHERE ScoreIndex = ?"), {thisYear});
    Exec(app.db(), QStringLiteral("DELETE FROM ScoreLog WHERE ScoreIndex = ?"), {thisYear});
    stats()->FormActivate();
    EXPECT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("1"));
    EXPECT_EQ(text("lblBest18HoleScore"), QStringLiteral("90"));
    EXPECT_TRUE(currentYear()->isChecked());
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}

TEST_F(StatisticsScreen, NumbersAreFreshWhenTheViewComesBack)
{
    detailedRound(QDate(2026, 3, 1), 1);
    startWithPalmer();
    open();
    ASSERT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("1"));
    item(QStringLiteral("mnuViewScoreLog"))->trigger();
    detailedRound(QDate(2026, 4, 1), 0);
    open();
    EXPECT_EQ(text("lbl18HoleRoundsPlayed"), QStringLiteral("2"));
    EXPECT_EQ(text("lblBest18HoleScore"), QStringLiteral("72"));
}

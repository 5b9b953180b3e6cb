#include "FrameFixture.h"
#include "PrintedPages.h"
#include "TestPrinting.h"
#include "graphs/ChartData.h"
#include "graphs/frmGraphs.h"
#include "print/frmPrintScorecard.h"
#include "ui/FormInstance.h"
#include "stats/frmGolferStats.h"
#include "views/frmUltimateScore.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>

using namespace quillon;
using namespace quillon::test;

namespace {

const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

// The frame over a golfer with three detailed rounds at Pebble Creek, White tees.
class FramePrint : public FrameFixture {
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addCourse(app.db(), CourseSpec{});
        for (int r = 0; r < 3; ++r) {
            RoundSpec spec;
            spec.date = QDate(2026, 3, 1).addDays(14 * r);
            spec.details = true;
            QVector<int> scores;
            int total = 0;
            for (int h = 0; h < 18; ++h) {
                scores << kPars.at(h) + (h + r) % 3 + (h == 0 ? 2 * r : 0);
                total += scores.last();
            }
            spec.score = spec.adjusted = total;
            const qint64 index = addRound(app.db(), spec);
            addHoleScores(app.db(), spec, index, 1, scores, kPars);
        }
        startWithPalmer();
        app.platform().takeMessages();
    }
    // The pages of the last document printed.
    QStringList printedPages()
    {
        const QStringList &files = app.platform().printedFiles();
        if (!files.isEmpty() && qEnvironmentVariableIsSet("QUILLON_KEEP_PRINTS"))
            QFile::copy(files.last(), qEnvironmentVariable("QUILLON_KEEP_PRINTS") + QLatin1Char('/') +
                                          QString::fromLatin1(::testing::UnitTest::GetInstance()->current_test_info()->name()) +
                                          QStringLiteral(".pdf"));
        return files.isEmpty() ? QStringList() : PrintedPages(files.last());
    }
    frmGraphs *graphs() const
    {
        return qobject_cast<frmGraphs *>(frame->views().loaded(QStringLiteral("frmGraphs")));
    }
    void showGraph(const QString &entry)
    {
        item(QStringLiteral("mnuViewGraphs"))->trigger();
        ASSERT_NE(graphs(), nullptr);
        ChooseItem(findControl<QComboBox>(graphs(), QStringLiteral("cboGraphs")), entry);
    }
};

} // namespace

TEST_F(FramePrint, AGraphPrintsTheChosenChartWithItsAxisCaptionsAndDescription)
{
    showGraph(QStringLiteral("18 Hole Scoring Trend"));
    ASSERT_TRUE(enabled(QStringLiteral("mnuPrintGraph")));
    item(QStringLiteral("mnuPrintGraph"))->trigger();
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
    EXPECT_EQ(app.platform().previewed, QStringList{"Graph"});
    const QStringList pages = printedPages();
    ASSERT_EQ(pages.size(), 1);
    const QString text = pages[0].simplified();
    EXPECT_TRUE(text.contains(QStringLiteral("18 Hole Scoring Trend"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("From 3/1/2026 to 3/29/2026 (3 rounds)"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Score")));
    EXPECT_TRUE(text.contains(QStringLiteral("Description: Charts 18-hole scores over time (last 36 rounds).")));
    EXPECT_TRUE(text.contains(QStringLiteral("Printed with Quillon for Golf. Copyright \u00a9 2026")));
}

TEST_F(FramePrint, APiePrintsTheSameLegendFiguresAsTheScreen)
{
    showGraph(QStringLiteral("Putting Breakdown"));
    const ChartData data = BuildChart(app.db(), QStringLiteral("Putting Breakdown"), QStringLiteral("Palmer"),
                                      QStringLiteral("Arnold"));
    item(QStringLiteral("mnuPrintGraph"))->trigger();
    const QString text = printedPages().value(0).simplified();
    for (const PiePart &part : data.pie.parts)
        EXPECT_TRUE(text.contains(part.legend.trimmed())) << part.legend.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Description: Charts the percentage of putts by type")));
}

TEST_F(FramePrint, AGraphTakesTheOrientationOfThePrinterAsSetUp)
{
    showGraph(QStringLiteral("18 Hole Scoring Trend"));
    item(QStringLiteral("mnuPrintGraph"))->trigger();
    ASSERT_EQ(app.platform().printedFiles().size(), 1);
    const QSizeF size = PrintedPageSize(app.platform().printedFiles().last());
    EXPECT_LT(size.width(), size.height()) << "the scripted printer's own orientation is portrait";
}

TEST_F(FramePrint, TheUltimateScorecardPrintsItsPageWithTheLabelsAsTheyStand)
{
    item(QStringLiteral("mnuViewUltimateScorecard"))->trigger();
    auto *card = qobject_cast<frmUltimateScore *>(frame->views().loaded(QStringLiteral("frmUltimateScore")));
    ASSERT_NE(card, nullptr);
    PickByKeyboard(findControl<QComboBox>(card, QStringLiteral("dbcboCourses")), QStringLiteral("Pebble Creek"));
    PickByKeyboard(findControl<QComboBox>(card, QStringLiteral("cboTees")), QStringLiteral("White"));
    ASSERT_NE(card->printForm(), nullptr);
    const QString rounds = findControl<QLabel>(card->printForm(), QStringLiteral("lblNumRounds"))->text();
    ASSERT_TRUE(enabled(QStringLiteral("mnuPrintUltimateScorecard")));
    item(QStringLiteral("mnuPrintUltimateScorecard"))->trigger();
    EXPECT_EQ(app.platform().previewed, QStringList{"Ultimate Scorecard"});
    const QString text = printedPages().value(0).simplified();
    EXPECT_TRUE(text.contains(QStringLiteral("Ultimate Scorecard")));
    EXPECT_TRUE(text.contains(QStringLiteral("Arnold Palmer")));
    EXPECT_TRUE(text.contains(QStringLiteral("Pebble Creek")));
    EXPECT_TRUE(text.contains(QStringLiteral("Current Handicap:")));
    EXPECT_FALSE(rounds.isEmpty());
    EXPECT_TRUE(text.contains(rounds.simplified())) << rounds.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Front Nine")));
    EXPECT_TRUE(text.contains(QStringLiteral("Printed with Quillon for Golf.")));
}

TEST_F(FramePrint, TheScoreLogPrintsFromTheMenuInTheOrderOfTheView)
{
    item(QStringLiteral("mnuPrintScoreLog"))->trigger();
    EXPECT_EQ(app.platform().previewed, QStringList{"Score Log"});
    const QStringList lines = TextLines(printedPages().value(0));
    const int newest = lines.indexOf(lines.filter(QStringLiteral("3/29/2026")).value(0));
    const int oldest = lines.indexOf(lines.filter(QStringLiteral("3/1/2026")).value(0));
    EXPECT_GE(newest, 0);
    EXPECT_LT(newest, oldest);
    EXPECT_EQ(lines.filter(QStringLiteral("Golfer: Arnold Palmer")).size(), 1);
}

TEST_F(FramePrint, WithoutADefaultPrinterEveryPrintItemAnswersWithABoxAndNoPage)
{
    app.platform().printerName.clear();
    showGraph(QStringLiteral("18 Hole Scoring Trend"));
    item(QStringLiteral("mnuPrintGraph"))->trigger();
    auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Unable to print.  You must configure your system with a default printer."),
                  MsgIcon::Critical, QStringLiteral("Quillon for Golf"));
    item(QStringLiteral("mnuViewScoreLog"))->trigger();
    item(QStringLiteral("mnuPrintScoreLog"))->trigger();
    shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0],
                  QStringLiteral("Unable to obtain printer information from the system.  Make sure the printer is "
                                 "set up correctly."),
                  MsgIcon::Critical, QStringLiteral("Quillon for Golf"));
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
    EXPECT_TRUE(app.platform().previewed.isEmpty());
}

TEST_F(FramePrint, ScoreDetailsPrintForTheRoundSelectedInTheLog)
{
    ASSERT_TRUE(enabled(QStringLiteral("mnuPrintScoreDetails")));
    item(QStringLiteral("mnuPrintScoreDetails"))->trigger();
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
    EXPECT_EQ(app.platform().previewed, QStringList{"Score Details"});
    const QString text = printedPages().value(0).simplified();
    // The log's first row is the newest round: 94 strokes on the 29th of March.
    EXPECT_TRUE(text.contains(QStringLiteral("Pebble Creek"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("3/29/2026"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("94")));
}

TEST_F(FramePrint, StatisticsPrintFromTheirView)
{
    item(QStringLiteral("mnuViewGolferStatistics"))->trigger();
    ASSERT_TRUE(enabled(QStringLiteral("mnuPrintStatistics")));
    item(QStringLiteral("mnuPrintStatistics"))->trigger();
    EXPECT_EQ(app.platform().previewed, QStringList{"Statistics"});
    const QString text = printedPages().join(QLatin1Char(' ')).simplified();
    EXPECT_TRUE(text.contains(QStringLiteral("Golf Statistics for Arnold Palmer"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Best 18 Hole Score")));
}

TEST_F(FramePrint, AScorecardFromTheLogOffersTheSelectedRoundsCourseAndTees)
{
    item(QStringLiteral("mnuPrintScorecard"))->trigger();
    QWidget *dialog = &frmPrintScorecard::instance();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(findControl<QComboBox>(dialog, QStringLiteral("dbcboCourses"))->currentText(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(findControl<QComboBox>(dialog, QStringLiteral("cboTees"))->currentText(), QStringLiteral("White"));
    EXPECT_TRUE(app.platform().previewed.isEmpty()) << "nothing prints before the user says so";
}

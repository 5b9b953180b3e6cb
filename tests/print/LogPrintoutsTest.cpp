#include "print/LogPrintouts.h"

#include "Fixtures.h"
#include "PrintedPages.h"
#include "TestApp.h"
#include "TestPrinting.h"
#include "core/DateText.h"

#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kLast = QStringLiteral("O'Brien");
const QString kFirst = QStringLiteral("Pat");

class LogPrintout : public ::testing::Test {
protected:
    void SetUp() override { addGolfer(app.db(), kLast, kFirst); }

    // `count` rounds a day apart from the first of May 2025, scores 80 up.
    void addRounds(int count)
    {
        for (int i = 0; i < count; ++i) {
            RoundSpec r;
            r.last = kLast;
            r.first = kFirst;
            r.course = QStringLiteral("St. Andrew's Links");
            r.date = QDate(2025, 5, 1).addDays(i);
            r.score = 80 + i % 20;
            r.adjusted = r.score;
            r.rating = 71.8;
            r.slope = 128;
            r.differential = 12.5;
            addRound(app.db(), r);
        }
    }
    Recordset log()
    {
        return Query(app.db(), QStringLiteral("SELECT * FROM ScoreLog WHERE LastName = ? AND FirstName = ? "
                                              "ORDER BY Date DESC"),
                     {kLast, kFirst});
    }
    static ReportHead head(bool handicapMode = true)
    {
        return {QStringLiteral("Pat O'Brien"), QStringLiteral("Handicap: 12.4"), handicapMode};
    }
    // Print and read back the pages.
    QStringList print(const PrintJob &job)
    {
        EXPECT_TRUE(app.platform().print(job));
        EXPECT_FALSE(app.platform().printedFiles().isEmpty());
        return app.platform().printedFiles().isEmpty() ? QStringList()
                                                         : PrintedPages(app.platform().printedFiles().last());
    }
    static int rowLines(const QString &page)
    {
        return TextLines(page).filter(QStringLiteral("St. Andrew's Links")).size();
    }

    TestApp app;
};

} // namespace

TEST_F(LogPrintout, ThirtySixRowsTakeTwoPagesTheSecondHoldingOneRow)
{
    addRounds(36);
    Recordset rows = log();
    const QStringList pages = print(ScoreLogPrintout(rows, head()));
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].contains(QStringLiteral("Page 1 of 2")));
    EXPECT_TRUE(pages[1].contains(QStringLiteral("Page 2 of 2")));
    EXPECT_EQ(rowLines(pages[0]), 35);
    EXPECT_EQ(rowLines(pages[1]), 1);
    EXPECT_TRUE(pages[1].contains(QStringLiteral("Printed with Quillon for Golf")));
    EXPECT_FALSE(pages[0].contains(QStringLiteral("Printed with Quillon for Golf")));
    // Newest first, as the rows stand: the oldest round closes the log.
    EXPECT_TRUE(pages[1].contains(QStringLiteral("5/1/2025")));
    EXPECT_EQ(app.platform().previewed, QStringList{"Score Log"});
}

TEST_F(LogPrintout, ThirtyFiveRowsEndOnAHeadOnlyPageTwoOfOne)
{
    addRounds(35);
    Recordset rows = log();
    const QStringList pages = print(ScoreLogPrintout(rows, head()));
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].contains(QStringLiteral("Page 1 of 1")));
    EXPECT_EQ(rowLines(pages[0]), 35);
    EXPECT_TRUE(pages[1].contains(QStringLiteral("Page 2 of 1")));
    EXPECT_EQ(rowLines(pages[1]), 0);
    EXPECT_TRUE(pages[1].contains(QStringLiteral("Adj. Score")));
    EXPECT_TRUE(pages[1].contains(QStringLiteral("Printed with Quillon for Golf")));
}

TEST_F(LogPrintout, ThirtyFourRowsAreOnePage)
{
    addRounds(34);
    Recordset rows = log();
    const QStringList pages = print(ScoreLogPrintout(rows, head()));
    ASSERT_EQ(pages.size(), 1);
    EXPECT_TRUE(pages[0].contains(QStringLiteral("Page 1 of 1")));
    EXPECT_EQ(rowLines(pages[0]), 34);
}

TEST_F(LogPrintout, SeventyRowsEndOnPageThreeOfTwo)
{
    addRounds(70);
    Recordset rows = log();
    const QStringList pages = print(ScoreLogPrintout(rows, head()));
    ASSERT_EQ(pages.size(), 3);
    EXPECT_TRUE(pages[2].contains(QStringLiteral("Page 3 of 2")));
    EXPECT_EQ(rowLines(pages[0]) + rowLines(pages[1]) + rowLines(pages[2]), 70);
}

TEST_F(LogPrintout, HeadAndRowsStandInTheirColumnsInOrder)
{
    addRounds(1);
    Recordset rows = log();
    const QStringList pages = print(ScoreLogPrintout(rows, head()));
    ASSERT_EQ(pages.size(), 1);
    const QStringList lines = TextLines(pages[0]);
    ASSERT_GE(lines.size(), 6);
    SCOPED_TRACE(pages[0].toStdString());
    EXPECT_EQ(lines[0].trimmed(), QStringLiteral("Score Log"));
    const QString golfer = lines.filter(QStringLiteral("Golfer: Pat O'Brien")).value(0);
    EXPECT_LT(golfer.indexOf(QStringLiteral("Golfer:")), golfer.indexOf(QStringLiteral("Page 1 of 1")));
    EXPECT_EQ(lines.filter(QStringLiteral("Current Handicap: 12.4")).size(), 1);
    const QString headings = lines.filter(QStringLiteral("Course Rating")).value(0);
    const QStringList order = {"Course", "Tees", "Date", "Holes", "Adj. Score", "Course Rating", "Slope Rating",
                               "Differential"};
    int at = -1;
    for (const QString &h : order) {
        const int found = headings.indexOf(h, at + 1);
        EXPECT_GT(found, at) << h.toStdString();
        at = found;
    }
    const QString row = lines.filter(QStringLiteral("St. Andrew's Links")).value(0);
    const QStringList values = row.simplified().split(QLatin1Char(' '));
    EXPECT_EQ(values.mid(values.size() - 7),
              (QStringList{"White", "5/1/2025", "18-holes", "80", "71.8", "128", "12.5"}));
    // Each value starts under its heading's stretch of the line.
    EXPECT_GE(row.indexOf(QStringLiteral("12.5")), headings.indexOf(QStringLiteral("Differential")) - 1);
    EXPECT_GE(row.indexOf(QStringLiteral("128")), headings.indexOf(QStringLiteral("Slope Rating")) - 1);
}

TEST_F(LogPrintout, WithoutHandicapsTheScoreStandsInPlaceOfTheAdjustedScoreAndNoDifferential)
{
    addRounds(1);
    Recordset rows = log();
    const QStringList pages = print(ScoreLogPrintout(rows, head(false)));
    ASSERT_EQ(pages.size(), 1);
    EXPECT_FALSE(pages[0].contains(QStringLiteral("Differential")));
    EXPECT_FALSE(pages[0].contains(QStringLiteral("Adj. Score")));
    EXPECT_FALSE(pages[0].contains(QStringLiteral("Current Handicap")));
    EXPECT_TRUE(pages[0].contains(QStringLiteral("Score")));
    EXPECT_FALSE(pages[0].contains(QStringLiteral("12.5")));
}

TEST_F(LogPrintout, TheWalkEndsBackOnTheFirstRow)
{
    addRounds(3);
    Recordset rows = log();
    rows.moveLast();
    print(ScoreLogPrintout(rows, head()));
    EXPECT_EQ(rows.absolutePosition(), 1);
}

TEST_F(LogPrintout, ScoringRecordIsNewestFirstAndACombinedRowShowsOnlyItsDetails)
{
    const auto record = [&](const QDate &d, int score, const QString &used, const QString &details) {
        Exec(app.db(),
             QStringLiteral("INSERT INTO ScoringRecord (LastName, FirstName, CourseName, Date, Score, Rating, Slope, "
                            "Differential, Used, Details) VALUES (?, ?, ?, ?, ?, 71.8, 128, 12.5, ?, ?)"),
             {kLast, kFirst, details.isEmpty() ? QStringLiteral("St. Andrew's Links") : QStringLiteral("Combined"),
              IsoDate(d), score, used, details.isEmpty() ? QVariant() : QVariant(details)});
    };
    record(QDate(2025, 3, 1), 84, QStringLiteral("N"), QString());
    record(QDate(2025, 9, 1), 81, QStringLiteral("Y"), QString());
    record(QDate(2025, 6, 1), 77, QStringLiteral("Y"),
           QStringLiteral("Combined 9-hole scores from 5/1/2025 and 6/1/2025"));
    const QStringList pages =
        print(ScoringRecordPrintout(app.db(), kLast, kFirst, head()));
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(app.platform().previewed, QStringList{"Scoring Record"});
    SCOPED_TRACE(pages[0].toStdString());
    EXPECT_FALSE(pages[0].contains(QStringLiteral("Page ")));
    const QStringList lines = TextLines(pages[0]);
    const int sep = lines.indexOf(lines.filter(QStringLiteral("9/1/2025")).value(0));
    const int jun = lines.indexOf(lines.filter(QStringLiteral("6/1/2025")).value(0));
    const int mar = lines.indexOf(lines.filter(QStringLiteral("3/1/2025")).value(0));
    EXPECT_LT(sep, jun);
    EXPECT_LT(jun, mar);
    EXPECT_TRUE(lines.at(jun).contains(QStringLiteral("Combined 9-hole scores from 5/1/2025 and 6/1/2025")));
    // The course is no printed column: "Combined" appears only inside the details sentence.
    EXPECT_EQ(pages[0].count(QStringLiteral("Combined")), 1);
    const QString headings = lines.filter(QStringLiteral("Course Rating")).value(0);
    for (const char *h : {"Date", "Adj. Score", "Course Rating", "Slope Rating", "Differential", "Used", "Details"})
        EXPECT_TRUE(headings.contains(QLatin1String(h))) << h;
    EXPECT_TRUE(pages[0].simplified().contains(QStringLiteral("Printed with Quillon for Golf. Copyright \u00a9 2026")));
}

TEST_F(LogPrintout, AClosedPreviewPrintsNothing)
{
    addRounds(2);
    app.platform().previewAnswer = false;
    Recordset rows = log();
    EXPECT_FALSE(app.platform().print(ScoreLogPrintout(rows, head())));
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
}

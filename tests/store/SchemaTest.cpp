#include "Fixtures.h"
#include "TestApp.h"

#include <QFile>
#include <QSqlRecord>

using namespace quillon;
using namespace quillon::test;

namespace {

QStringList columnsOf(Connection &c, const QString &table)
{
    QStringList names;
    for (const QSqlRecord &r :
         Query(c, QStringLiteral("SELECT name FROM pragma_table_info(?) ORDER BY cid"), {table}).rows())
        names << r.value(0).toString();
    return names;
}

struct TableColumns {
    const char *table;
    QStringList columns;
};

} // namespace

TEST(Schema, HasExactlyTheEightTables)
{
    TestApp app;
    QStringList tables =
        columnValues(app.db(), QStringLiteral("SELECT name FROM sqlite_master WHERE type = "
                                              "'table' AND name NOT LIKE 'sqlite_%' ORDER BY name"));
    EXPECT_EQ(tables, (QStringList{"CourseDetails", "CourseLog", "DBVersion", "HandicapLog", "ScoreDetails",
                                   "ScoreLog", "ScoringRecord", "UnratedTees"}));
}

TEST(Schema, ColumnsStandInTheirOrder)
{
    TestApp app;
    const TableColumns expected[] = {
        {"HandicapLog", {"LastName", "FirstName", "Gender", "Handicap", "HomeCourseName"}},
        {"ScoreLog",
         {"LastName",     "FirstName",      "CourseName",    "Tees",      "Date",      "ScoreIndex",
          "Holes",        "Score",          "AdjustedScore", "Rating",    "Slope",     "Type",
          "Differential", "Used",           "Details",       "Penalties", "LostBalls", "Bunkers",
          "SandSaves",    "AttemptedSaves", "CombinedIndex"}},
        {"ScoreDetails",
         {"LastName", "FirstName", "CourseName", "Tees", "Date", "ScoreIndex", "Hole", "Score", "Putts",
          "PAR", "Fairway", "GreenInRegulation"}},
        {"ScoringRecord",
         {"LastName", "FirstName", "CourseName", "Date", "ScoreIndex", "CombinedIndex", "Score", "Rating",
          "Slope", "Differential", "Used", "Details"}},
        {"CourseLog",
         {"CourseName", "Tees", "OverallRating", "FrontRating", "BackRating", "OverallSlope", "FrontSlope",
          "BackSlope", "YardsIn", "YardsOut", "TotalYards", "ParIn", "ParOut", "TotalPar"}},
        {"CourseDetails", {"CourseName", "Tees", "Hole", "PAR", "Handicap", "Yards"}},
        {"UnratedTees", {"Gender", "MinDistance", "MaxDistance", "RatingChange", "SlopeChange"}},
        {"DBVersion", {"DatabaseVersion"}},
    };
    for (const TableColumns &t : expected)
        EXPECT_EQ(columnsOf(app.db(), QString::fromLatin1(t.table)), t.columns) << t.table;
}

TEST(Schema, ShipsOneVersionRow)
{
    TestApp app;
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT COUNT(*) FROM DBVersion")), QStringList{"1"});
    EXPECT_GE(Scalar(app.db(), QStringLiteral("SELECT DatabaseVersion FROM DBVersion")).toInt(), 1);
}

TEST(Schema, ShipsTheUnratedTeesRowsOfTheRepository)
{
    TestApp app;
    QFile csv(QStringLiteral(QUILLON_TEST_DATA_DIR "/unrated_tees.csv"));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly | QIODevice::Text));
    QStringList expected = QString::fromUtf8(csv.readAll()).split('\n', Qt::SkipEmptyParts);
    expected.removeFirst(); // the header
    for (QString &line : expected) {
        // Same text as the database gives back: whole numbers bare, the rating change with its decimal.
        QStringList f = line.trimmed().split(',');
        f[3] = QString::number(f[3].toDouble());
        line = f.join('|');
    }
    const QStringList stored = columnValues(
        app.db(), QStringLiteral("SELECT Gender, MinDistance, MaxDistance, RatingChange, SlopeChange FROM "
                                 "UnratedTees ORDER BY rowid"));
    EXPECT_EQ(stored, expected);
    EXPECT_GT(stored.size(), 100);
}

TEST(Schema, ScoreIndexNumbersAreNeverReused)
{
    TestApp app;
    const qint64 first = addRound(app.db(), RoundSpec{});
    const qint64 second = addRound(app.db(), RoundSpec{});
    EXPECT_EQ(second, first + 1);
    Exec(app.db(), QStringLiteral("DELETE FROM ScoreLog WHERE ScoreIndex = ?"), {second});
    EXPECT_EQ(addRound(app.db(), RoundSpec{}), second + 1);
}

TEST(Schema, TextComparesWithoutCase)
{
    TestApp app;
    addGolfer(app.db(), QStringLiteral("Pebble"), QStringLiteral("Ann"));
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT FirstName FROM HandicapLog WHERE LastName = ?"),
                           {QStringLiteral("pebble")}),
              QStringList{"Ann"});
}

TEST(Schema, OneDecimalValuesCompareEqualToTheirText)
{
    TestApp app;
    RoundSpec r;
    r.differential = QStringLiteral("8.3").toDouble();
    addRound(app.db(), r);
    EXPECT_EQ(
        columnValues(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreLog WHERE Differential = 8.3")),
        QStringList{"1"});
}

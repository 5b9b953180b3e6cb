#include "HandicapFixture.h"
#include "handicap/Handicap.h"

using namespace quillon;
using namespace quillon::test;

namespace {
const QString kFront = QStringLiteral("9-holes (front)");
const QString kBack = QStringLiteral("9-holes (back)");
} // namespace

using ComputeHandicapRun = HandicapFixture;

TEST_F(ComputeHandicapRun, WritesTheRecordTheMarksAndTheHandicap)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    const double eighteen[] = {14.0, 12.5, 20.1, 11.0, 16.3, 18.0};
    for (int day = 1; day <= 6; ++day)
        addRoundOn(day, eighteen[day - 1]);
    addRoundOn(7, 5.1, kFront);
    addRoundOn(8, 5.4, kBack);
    addRoundOn(9, 2.0, QStringLiteral("18-holes"), QStringLiteral("A"), QStringLiteral("E"));

    ComputeHandicap();

    // Seven scores: the two lowest count, the pair (10.5) and 11.0.
    EXPECT_EQ(record(), (QStringList{
                            "Palmer|Arnold|Pebble Creek|2026-01-01|1||90|71.5|125|14|N|",
                            "Palmer|Arnold|Pebble Creek|2026-01-02|2||90|71.5|125|12.5|N|",
                            "Palmer|Arnold|Pebble Creek|2026-01-03|3||90|71.5|125|20.1|N|",
                            "Palmer|Arnold|Pebble Creek|2026-01-04|4||90|71.5|125|11|Y|",
                            "Palmer|Arnold|Pebble Creek|2026-01-05|5||90|71.5|125|16.3|N|",
                            "Palmer|Arnold|Pebble Creek|2026-01-06|6||90|71.5|125|18|N|",
                            "Palmer|Arnold|Combined|2026-01-08|8|7|90|71.5|125|10.5|Y|"
                            "Combined 9-hole rounds from 1/7/2026 and 1/8/2026",
                        }));
    // 18-hole rows: CombinedIndex not written, Details an empty text
    EXPECT_EQ(
        columnValues(db(), QStringLiteral("SELECT COUNT(*) FROM ScoringRecord WHERE CombinedIndex IS NULL "
                                          "AND Details = '' AND CourseName <> 'Combined'")),
        QStringList{"6"});
    EXPECT_EQ(marks(),
              (QStringList{"1|N|1", "2|N|1", "3|N|1", "4|Y|1", "5|N|1", "6|N|1", "7|C|8", "8|C|7", "9|E|1"}));
    // (10.5 + 11.0) / 2 x 0.96 = 10.32
    EXPECT_EQ(storedHandicap().toDouble(), 10.3);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 10.3"));
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(true));
    EXPECT_TRUE(gender.asked.isEmpty());
}

TEST_F(ComputeHandicapRun, FewerThanFiveScoresPublishNotCalculated)
{
    addGolfer(db(), spec.last, spec.first, QString(), 12.0);
    for (int day = 1; day <= 4; ++day)
        addRoundOn(day, 10.0 + day, QStringLiteral("18-holes"), QStringLiteral("A"), QStringLiteral("Y"));
    display.calculatorEnabled = true;

    ComputeHandicap();

    EXPECT_EQ(record().size(), 4);
    EXPECT_EQ(marks(), (QStringList{"1|N|1", "2|N|1", "3|N|1", "4|N|1"}));
    EXPECT_EQ(storedHandicap().toDouble(), -1000.0);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: (not calculated)"));
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(false));
    EXPECT_TRUE(gender.asked.isEmpty());
    EXPECT_TRUE(storedGender().isNull());
}

// Five scores, the lowest of which makes the raw index: the caps by gender.
TEST_F(ComputeHandicapRun, CapsByGenderThroughARun)
{
    const struct {
        const char *stored; // nullptr: Null, asked
        const char *answer;
        double lowest;
        double handicap;
        const char *panel;
        const char *genderAfter;
    } table[] = {
        {"M", "M", 38.1, 36.4, "Handicap: 36.4", "M"}, // 36.576 -> 36.5 -> cap
        {"M", "M", 37.9, 36.3, "Handicap: 36.3", "M"}, // 36.384
        {"F", "M", 38.1, 36.5, "Handicap: 36.5", "F"},
        {"F", "M", 42.2, 40.4, "Handicap: 40.4", "F"}, // 40.512
        {"F", "M", 39.6, 38.0, "Handicap: 38.0", "F"}, // 38.016
        {"X", "M", 38.1, 36.4, "Handicap: 36.4", "X"},
        {nullptr, "F", 42.2, 40.4, "Handicap: 40.4", "F"},
        {nullptr, "F", 39.6, 38.0, "Handicap: 38.0", "F"},
        {nullptr, "M", 38.1, 36.4, "Handicap: 36.4", "M"},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.panel);
        Exec(db(), QStringLiteral("DELETE FROM HandicapLog"));
        Exec(db(), QStringLiteral("DELETE FROM ScoreLog"));
        addGolfer(db(), spec.last, spec.first, row.stored ? QString::fromLatin1(row.stored) : QString());
        ScriptedGenderQuestion question{QString::fromLatin1(row.answer)};
        basLogGlobals().genderQuestion = &question;
        addRoundOn(1, row.lowest);
        for (int day = 2; day <= 5; ++day)
            addRoundOn(day, 45.0 + day);

        ComputeHandicap();
        ComputeHandicap();

        EXPECT_EQ(storedHandicap().toDouble(), row.handicap);
        EXPECT_EQ(display.panel, QString::fromLatin1(row.panel));
        EXPECT_EQ(storedGender().toString(), QString::fromLatin1(row.genderAfter));
        // asked on the first run only, and only when nothing was stored
        EXPECT_EQ(question.asked, row.stored ? QStringList() : QStringList{"Arnold Palmer"});
        basLogGlobals().genderQuestion = &gender;
    }
}

TEST_F(ComputeHandicapRun, CombinedDifferentialIsStoredAsItsOneDecimalValueAndFound)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 4; ++day)
        addRoundOn(day, 10.0 + day);
    const qint64 front = addRoundOn(5, 4.1, kFront, QStringLiteral("H"));
    const qint64 back = addRoundOn(6, 4.2, kBack, QStringLiteral("H"));

    ComputeHandicap();

    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT COUNT(*) FROM ScoringRecord WHERE Differential = ?"), {8.3})
                  .toInt(),
              1);
    EXPECT_EQ(columnValues(db(), QStringLiteral("SELECT Used, ScoreIndex, CombinedIndex FROM ScoringRecord "
                                                "WHERE CourseName = 'Combined'")),
              QStringList{QStringLiteral("Y|%1|%2").arg(back).arg(front)});
    EXPECT_EQ(
        columnValues(db(),
                     QStringLiteral("SELECT Used, CombinedIndex FROM ScoreLog WHERE ScoreIndex IN (?, ?) "
                                    "ORDER BY ScoreIndex"),
                     {front, back}),
        (QStringList{QStringLiteral("C|%1").arg(back), QStringLiteral("C|%1").arg(front)}));
    // 8.3 x 0.96 = 7.968
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 7.9"));
}

// With no 18-hole round the period has no lower bound: the oldest nines pair too.
TEST_F(ComputeHandicapRun, WithoutEighteenHoleRoundsEveryRoundIsInThePeriod)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    const QDate dates[] = {QDate(1899, 12, 29), QDate(1950, 6, 1), QDate(2026, 1, 1),
                           QDate(2026, 1, 2),   QDate(2026, 1, 3), QDate(2026, 1, 4)};
    for (int i = 0; i < 6; ++i) {
        RoundSpec r = spec;
        r.date = dates[i]; // the first is before the original's zero date
        r.holes = i % 2 ? kBack : kFront;
        r.differential = 4.0 + i;
        addRound(db(), r);
    }

    ComputeHandicap();

    EXPECT_EQ(columnValues(
                  db(), QStringLiteral("SELECT CombinedIndex, ScoreIndex FROM ScoringRecord ORDER BY Date")),
              (QStringList{"1|2", "3|4", "5|6"}));
}

TEST_F(ComputeHandicapRun, MarksBeforeThePeriodAreResetAndExcludedRowsKept)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    const qint64 oldest =
        addRoundOn(1, 30.0, QStringLiteral("18-holes"), QStringLiteral("A"), QStringLiteral("Y"));
    const qint64 old =
        addRoundOn(2, 30.0, QStringLiteral("18-holes"), QStringLiteral("A"), QStringLiteral("n"));
    const qint64 excluded =
        addRoundOn(3, 1.0, QStringLiteral("18-holes"), QStringLiteral("A"), QStringLiteral("E"));
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET CombinedIndex = 77 WHERE ScoreIndex IN (?, ?)"),
         {oldest, excluded});
    for (int day = 4; day <= 23; ++day)
        addRoundOn(day, 20.0 + day / 10.0);

    ComputeHandicap();

    EXPECT_EQ(columnValues(db(),
                           QStringLiteral("SELECT ScoreIndex, Used, CombinedIndex FROM ScoreLog "
                                          "WHERE ScoreIndex IN (?, ?, ?) ORDER BY ScoreIndex"),
                           {oldest, old, excluded}),
              (QStringList{QStringLiteral("%1|N|1").arg(oldest), QStringLiteral("%1|N|1").arg(old),
                           QStringLiteral("%1|E|77").arg(excluded)}));
    EXPECT_EQ(record().size(), 20);
    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT COUNT(*) FROM ScoreLog WHERE Used = 'Y'")).toInt(), 10);
}

TEST_F(ComputeHandicapRun, OtherGolfersRowsAreLeftAlone)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    addGolfer(db(), QStringLiteral("Nicklaus"), QStringLiteral("Jack"), QStringLiteral("M"), 4.4);
    RoundSpec jack;
    jack.last = QStringLiteral("Nicklaus");
    jack.first = QStringLiteral("Jack");
    jack.used = QStringLiteral("Y");
    const qint64 jacks = addRound(db(), jack);
    Exec(db(),
         QStringLiteral(
             "INSERT INTO ScoringRecord (LastName, FirstName, CourseName, Date, ScoreIndex, Score, "
             "Rating, Slope, Differential, Used, Details) "
             "VALUES ('Nicklaus', 'Jack', 'Pebble Creek', '2026-01-01', ?, 90, 71.5, 125, 16.6, 'Y', '')"),
         {jacks});
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 10.0 + day);

    ComputeHandicap();

    EXPECT_EQ(columnValues(db(),
                           QStringLiteral("SELECT Used, CombinedIndex FROM ScoreLog WHERE ScoreIndex = ?"),
                           {jacks}),
              QStringList{"Y|1"});
    EXPECT_EQ(
        columnValues(
            db(), QStringLiteral("SELECT ScoreIndex, Used FROM ScoringRecord WHERE LastName = 'Nicklaus'")),
        QStringList{QStringLiteral("%1|Y").arg(jacks)});
    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT Handicap FROM HandicapLog WHERE LastName = 'Nicklaus'"))
                  .toDouble(),
              4.4);
    EXPECT_EQ(storedHandicap().toDouble(), 10.5); // 11.0 x 0.96 = 10.56
}

TEST_F(ComputeHandicapRun, GolferIsMatchedWithoutRegardToCaseAndApostrophesWork)
{
    spec.last = QStringLiteral("O'Brien");
    spec.first = QStringLiteral("Seán");
    addGolfer(db(), spec.last, spec.first, QStringLiteral("F"));
    app().setGolfer(QStringLiteral("o'brien"), QStringLiteral("Seán"));
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 10.0 + day);
    addRoundOn(6, 4.0, kFront);
    addRoundOn(7, 4.0, kFront);

    ComputeHandicap();

    const QStringList rows = record();
    ASSERT_EQ(rows.size(), 6);
    // rows carry the names as the rounds have them
    EXPECT_TRUE(rows.last().startsWith(QStringLiteral("O'Brien|Seán|Combined|2026-01-07|")));
    EXPECT_EQ(storedHandicap().toDouble(), 7.6); // 8.0 x 0.96 = 7.68
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 7.6"));
}

TEST_F(ComputeHandicapRun, RequeriesTheHeldScoreLogAndHandicapRow)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 10.0 + day);
    LogGlobals &g = basLogGlobals();
    const Params golfer = {spec.last, spec.first};
    g.gScoreLog = std::make_unique<HeldRecordset>(
        basLogGlobals().gConnection,
        QStringLiteral("SELECT ScoreIndex, Used FROM ScoreLog WHERE LastName = ? AND FirstName = ? "
                       "ORDER BY ScoreIndex"),
        golfer);
    g.gHandicapLog = std::make_unique<HeldRecordset>(
        basLogGlobals().gConnection,
        QStringLiteral("SELECT * FROM HandicapLog WHERE LastName = ? AND FirstName = ?"), golfer);

    ComputeHandicap();

    Recordset &log = g.gScoreLog->rows();
    log.moveFirst();
    EXPECT_EQ(log.value(QStringLiteral("Used")).toString(), QStringLiteral("Y"));
    Recordset &golferRow = g.gHandicapLog->rows();
    golferRow.moveFirst();
    EXPECT_EQ(golferRow.value(QStringLiteral("Handicap")).toDouble(), 10.5);
}

TEST_F(ComputeHandicapRun, RunsWithoutAFrameToShowIn)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 10.0 + day);
    basLogGlobals().handicapDisplay = nullptr;
    ComputeHandicap();
    EXPECT_EQ(storedHandicap().toDouble(), 10.5);
    EXPECT_TRUE(display.panel.isEmpty());
}

TEST_F(ComputeHandicapRun, WithoutAGolferRowSaysSoAndSetsThePanel)
{
    for (int day = 1; day <= 3; ++day)
        addRoundOn(day, 10.0 + day);
    ComputeHandicap();
    const QVector<ShownMessage> shown = platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown.at(0).text, QStringLiteral("Database Error: Unable to locate golfer's handicap record."));
    EXPECT_EQ(shown.at(0).icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown.at(0).title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(shown.at(0).buttons, MsgButtons::OK);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: (not calculated)"));
    EXPECT_EQ(record().size(), 3);

    // With five scores there is nobody to ask: the cap for anybody else applies.
    addRoundOn(4, 40.0);
    addRoundOn(5, 41.0);
    ComputeHandicap();
    expectMessages(platform(),
                   {QStringLiteral("Database Error: Unable to locate golfer's handicap record.")});
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 10.5"));
    EXPECT_TRUE(gender.asked.isEmpty());
}

using PublishHandicapStep = HandicapFixture;

TEST_F(PublishHandicapStep, StoresTheDoubleNearestTheSinglesTextAndShowsIt)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    PublishHandicap(8.8f);
    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT COUNT(*) FROM HandicapLog WHERE Handicap = 8.8")).toInt(),
              1);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 8.8"));
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(true));

    PublishHandicap(0.4f);
    EXPECT_EQ(storedHandicap().toDouble(), 0.4);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: .4"));

    PublishHandicap(-2.3f);
    EXPECT_EQ(storedHandicap().toDouble(), -2.3);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: -2.3"));

    PublishHandicap(12.0f);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 12.0"));

    PublishHandicap(kNoHandicap);
    EXPECT_EQ(storedHandicap().toDouble(), -1000.0);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: (not calculated)"));
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(false));
}

TEST_F(PublishHandicapStep, WithoutAGolferRowShowsTheMessageFirstAndThePanelAllTheSame)
{
    PublishHandicap(12.4f);
    const QVector<ShownMessage> shown = platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown.at(0).text, QStringLiteral("Database Error: Unable to locate golfer's handicap record."));
    EXPECT_EQ(shown.at(0).icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown.at(0).title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 12.4"));
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(true));
    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT COUNT(*) FROM HandicapLog")).toInt(), 0);
}

using MarkUsedScoresStep = HandicapFixture;

TEST_F(MarkUsedScoresStep, ACountWithoutRecordsSaysErrorComputingHandicap)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    addRoundOn(1, 10.0);
    Recordset none;
    qint16 count = 3;
    MarkUsedScores(count, none);
    const QVector<ShownMessage> shown = platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown.at(0).text, QStringLiteral("Error computing handicap."));
    EXPECT_EQ(shown.at(0).icon, MsgIcon::Critical);
    EXPECT_EQ(shown.at(0).title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(shown.at(0).buttons, MsgButtons::OK);
    EXPECT_EQ(marks(), QStringList{"1|N|1"});

    count = 0;
    MarkUsedScores(count, none);
    EXPECT_TRUE(platform().takeMessages().isEmpty());
}

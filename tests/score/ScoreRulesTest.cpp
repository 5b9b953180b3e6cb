#include "TestPrinting.h"
#include "score/ScoreGrid.h"
#include "score/ScoreValidation.h"
#include "store/Encodings.h"

#include <functional>
#include <gtest/gtest.h>

using namespace quillon;

namespace {

// A complete 18-hole entry in new mode: 5 on every hole, 2 putts, totals that agree.
ScoreEntry completeRound()
{
    ScoreEntry e;
    e.course = QStringLiteral("Pebble Creek");
    e.tees = QStringLiteral("White");
    e.date = QStringLiteral("11/22/2026");
    e.holes = Holes::Eighteen;
    e.type = 0;
    e.totalScoreVisible = false;
    for (int i = 0; i < 18; ++i) {
        e.score[i] = QStringLiteral("5");
        e.putts[i] = QStringLiteral("2");
    }
    e.out = QStringLiteral("45");
    e.in = QStringLiteral("45");
    e.total = QStringLiteral("90");
    e.totalScore = QStringLiteral("90");
    return e;
}

ScoreEntry totalOnly()
{
    ScoreEntry e = completeRound();
    for (int i = 0; i < 18; ++i)
        e.score[i] = e.putts[i] = QString();
    e.out = e.in = e.total = QString();
    e.totalScoreVisible = true;
    return e;
}

// Records the questions and answers them from a list (OK when it runs out).
struct Asker {
    QStringList asked;
    QList<bool> answers;
    bool operator()(const QString &question)
    {
        asked << question;
        return answers.isEmpty() ? true : answers.takeFirst();
    }
};

ScoreCheck check(const ScoreEntry &e, Asker &totals, const QString &home = QString())
{
    Asker homeAsker;
    return ValidateScore(
        e, home, [&totals](const QString &q) { return totals(q); }, [&homeAsker](const QString &q) { return homeAsker(q); });
}

ScoreCheck check(const ScoreEntry &e)
{
    Asker none;
    return check(e, none);
}

const char *const kFrontIncomplete = "Unable to accept incomplete score details.  Please enter all score details "
                                     "for the front 9 or clear the details you have entered.";
const char *const kBackIncomplete = "Unable to accept incomplete score details.  Please enter all score details for "
                                    "the back 9 or clear the details you have entered.";

} // namespace

TEST(ValidateScore, EveryStepInItsOrderWithItsMessageAndFocus)
{
    struct Case {
        const char *name;
        std::function<void(ScoreEntry &)> change;
        const char *message;
        const char *focus;
    };
    const Case cases[] = {
        {"no course", [](ScoreEntry &e) { e.course.clear(); e.tees.clear(); }, "Please select a course.", "cboCourses"},
        {"no tees", [](ScoreEntry &e) { e.tees.clear(); e.date.clear(); }, "Please select the tees.", "cboTees"},
        {"no date", [](ScoreEntry &e) { e.date.clear(); e.holes.clear(); }, "Please enter the date of play.", "txtDate"},
        {"13/45/2003", [](ScoreEntry &e) { e.date = "13/45/2003"; }, "Invalid Date!  Please enter a date in the format mm/dd/yyyy.", "txtDate"},
        {"31/02", [](ScoreEntry &e) { e.date = "31/02"; }, "Invalid Date!  Please enter a date in the format mm/dd/yyyy.", "txtDate"},
        {"2/30/2026", [](ScoreEntry &e) { e.date = "2/30/2026"; }, "Invalid Date!  Please enter a date in the format mm/dd/yyyy.", "txtDate"},
        {"no holes", [](ScoreEntry &e) { e.holes.clear(); e.totalScore.clear(); }, "Please select the holes played (front, back, or 18).", "cboHoles"},
        {"no score, grid carrying it", [](ScoreEntry &e) { e.totalScore.clear(); e.type = -1; }, "Please enter your score.", "txtTotal"},
        {"no score in the score box", [](ScoreEntry &e) { e = totalOnly(); e.totalScore.clear(); }, "Please enter your score.", "txtTotalScore"},
        {"no type", [](ScoreEntry &e) { e.type = -1; e.lostBalls = "1"; }, "Please select the type of round played (Away, Home or Tournament).", ""},
        {"lost ball without penalty", [](ScoreEntry &e) { e.lostBalls = "1"; e.attemptedSaves = "1"; }, "Invalid Misc. Stat!  You have recorded a lost ball without recording a penalty.", "txtPenalties"},
        {"lost ball with penalty 0", [](ScoreEntry &e) { e.lostBalls = "2"; e.penalties = "0"; }, "Invalid Misc. Stat!  You have recorded a lost ball without recording a penalty.", "txtPenalties"},
        {"attempted save without bunkers", [](ScoreEntry &e) { e.attemptedSaves = "1"; e.sandSaves = "1"; }, "Invalid Misc. Stat!  You have recorded an attempted sand save without recording total bunkers.", "txtAttemptedSaves"},
        {"sand save without bunkers", [](ScoreEntry &e) { e.sandSaves = "1"; }, "Invalid Misc. Stat!  You have recorded a sand save without recording total bunkers.", "txtAttemptedSaves"},
        {"sand save without attempt", [](ScoreEntry &e) { e.bunkers = "3"; e.sandSaves = "1"; }, "Invalid Misc. Stat!  You have recorded a sand save without recording an attempted sand save.", "txtAttemptedSaves"},
        {"front nine with eight putts", [](ScoreEntry &e) { e.putts[4].clear(); e.score[12].clear(); }, kFrontIncomplete, ""},
        {"front nine with eight scores", [](ScoreEntry &e) { e.score[0].clear(); }, kFrontIncomplete, ""},
        {"back nine with one putt missing", [](ScoreEntry &e) { e.putts[17].clear(); }, kBackIncomplete, ""},
    };
    for (const Case &c : cases) {
        ScoreEntry e = completeRound();
        c.change(e);
        const ScoreCheck result = check(e);
        EXPECT_EQ(result.message, QLatin1String(c.message)) << c.name;
        EXPECT_EQ(result.focus, QLatin1String(c.focus)) << c.name;
    }
}

TEST(ValidateScore, EditModeSkipsTheFirstFiveSteps)
{
    ScoreEntry e = completeRound();
    e.editMode = true;
    e.course.clear();
    e.date = QStringLiteral("not a date");
    e.holes.clear();
    EXPECT_TRUE(check(e).passed());
}

TEST(ValidateScore, TheStatisticsAreReadAsPlainNumbers)
{
    ScoreEntry e = totalOnly();
    e.penalties = QStringLiteral("2");
    e.lostBalls = QStringLiteral("1");
    e.bunkers = QStringLiteral("4");
    e.attemptedSaves = QStringLiteral("3");
    e.sandSaves = QStringLiteral("1");
    EXPECT_TRUE(check(e).passed());
    e.lostBalls = QStringLiteral("0");
    e.penalties.clear();
    EXPECT_TRUE(check(e).passed()) << "no lost ball asks for no penalty";
}

TEST(ValidateScore, NothingInTheGridPassesWithoutDetails)
{
    ScoreEntry e = totalOnly();
    e.fairway[3] = true; // a tick alone is no entry
    Asker totals;
    const ScoreCheck result = check(e, totals);
    EXPECT_TRUE(result.passed());
    EXPECT_FALSE(result.detailsEntered);
    EXPECT_TRUE(totals.asked.isEmpty()) << "no total checks without details";
}

TEST(ValidateScore, ACompleteGridPassesWithDetailsAndAsksNothing)
{
    Asker totals;
    const ScoreCheck result = check(completeRound(), totals);
    EXPECT_TRUE(result.passed());
    EXPECT_TRUE(result.detailsEntered);
    EXPECT_TRUE(totals.asked.isEmpty());
}

TEST(ValidateScore, AnEighteenHoleRoundWithTheFrontNineOnlyPassesAndAnEmptyInAgreesWithZero)
{
    ScoreEntry e = completeRound();
    for (int i = 9; i < 18; ++i)
        e.score[i] = e.putts[i] = QString();
    e.in.clear();
    e.totalScore = QStringLiteral("45");
    Asker totals;
    const ScoreCheck result = check(e, totals);
    EXPECT_TRUE(result.passed());
    EXPECT_TRUE(result.detailsEntered);
    EXPECT_TRUE(totals.asked.isEmpty());
}

TEST(ValidateScore, TotalsThatDifferAreAskedAboutInOrderAndOkTakesTheSums)
{
    ScoreEntry e = completeRound();
    e.out = QStringLiteral("44");
    e.in = QStringLiteral("47");
    e.totalScore = QStringLiteral("91");
    Asker totals;
    const ScoreCheck result = check(e, totals);
    EXPECT_TRUE(result.passed());
    EXPECT_EQ(totals.asked,
              (QStringList{"Quillon has calculated a front nine score of 45 rather than 44.  Press OK to accept this "
                           "total or Cancel to return to the Add Score screen.",
                           "Quillon has calculated a back nine score of 45 rather than 47.  Press OK to accept this "
                           "total or Cancel to return to the Add Score screen.",
                           "Quillon has calculated a total score of 90 rather than 91.  Press OK to accept this total "
                           "or Cancel to return to the Add Score screen."}));
    EXPECT_EQ(result.out, QStringLiteral("45"));
    EXPECT_EQ(result.in, QStringLiteral("45"));
    EXPECT_EQ(result.totalScore, QStringLiteral("90"));
}

TEST(ValidateScore, CancelAtATotalReturnsCancelledAndKeepsWhatWasAcceptedBefore)
{
    ScoreEntry e = completeRound();
    e.out = QStringLiteral("44");
    e.totalScore = QStringLiteral("89");
    Asker totals;
    totals.answers = {true, false};
    const ScoreCheck result = check(e, totals);
    EXPECT_EQ(result.message, QStringLiteral("Cancelled"));
    EXPECT_EQ(totals.asked.size(), 2);
    EXPECT_EQ(result.out, QStringLiteral("45")) << "accepted before the cancel";
    EXPECT_FALSE(result.totalScore.has_value());
}

TEST(ValidateScore, TheHomeRuleNeverFiresAsTheFormCallsIt)
{
    // The form hands the rule a home course that nothing fills.
    for (int type : {0, 1, 2}) {
        ScoreEntry e = totalOnly();
        e.type = type;
        bool asked = false;
        const ScoreCheck result =
            ValidateScore(e, QString(), [](const QString &) { return true; }, [&asked](const QString &) {
                asked = true;
                return false;
            });
        EXPECT_TRUE(result.passed()) << type;
        EXPECT_FALSE(asked) << type;
        EXPECT_FALSE(result.storeHomeCourse);
    }
}

TEST(HomeAwayRule, AsWrittenWithAHomeCourse)
{
    ScoreEntry e = totalOnly();
    QStringList asked;
    bool answer = false;
    const HomeQuestion ask = [&](const QString &q) {
        asked << q;
        return answer;
    };
    e.type = 1; // Home on another course
    ScoreCheck r = HomeAwayRule(e, QStringLiteral("Augusta"), ask);
    EXPECT_EQ(asked.last(), QStringLiteral("Your home course is currently Augusta.  Would you like to change your home "
                                           "course to Pebble Creek?"));
    EXPECT_EQ(r.message, QStringLiteral("Please change the type of round to Away or select Augusta as the course name."));
    answer = true;
    r = HomeAwayRule(e, QStringLiteral("Augusta"), ask);
    EXPECT_TRUE(r.passed());
    EXPECT_TRUE(r.storeHomeCourse);

    e.type = 0; // Away on the home course
    answer = false;
    r = HomeAwayRule(e, QStringLiteral("Pebble Creek"), ask);
    EXPECT_EQ(asked.last(), QStringLiteral("Your home course is currently Pebble Creek.  Would you like to change the "
                                           "type of round from Away to Home?"));
    EXPECT_EQ(r.message, QStringLiteral("Please change the type of round to Home or change the course name."));
    answer = true;
    r = HomeAwayRule(e, QStringLiteral("Pebble Creek"), ask);
    EXPECT_EQ(r.type, 1);

    e.type = 2;
    asked.clear();
    EXPECT_TRUE(HomeAwayRule(e, QStringLiteral("Augusta"), ask).passed());
    EXPECT_TRUE(asked.isEmpty()) << "a tournament passes without a question";
}

TEST(ScoreGrid, NineSumsReadEachBoxAsANumber)
{
    QStringList boxes(18, QString());
    EXPECT_EQ(NineScoreSum(boxes, 0), 0);
    boxes[0] = "4";
    boxes[8] = "00"; // not the text "0", but its value is 0
    boxes[9] = "7";
    EXPECT_EQ(NineScoreSum(boxes, 0), 4);
    EXPECT_EQ(NineScoreSum(boxes, 9), 7);
    EXPECT_EQ(SumText(0), QString());
    EXPECT_EQ(SumText(36), QStringLiteral("36"));
    EXPECT_EQ(TotalOfNines(QStringLiteral("40"), QString()), QStringLiteral("40"));
    EXPECT_EQ(TotalOfNines(QString(), QString()), QString());
    EXPECT_EQ(TotalOfNines(QStringLiteral("40"), QStringLiteral("45")), QStringLiteral("85"));
}

TEST(ScoreGrid, HolesOfferedByTheRatingsWithASecondChanceForTheNines)
{
    HolesOffer o = HolesOffered(71.5, 35.7, 35.8, true, true);
    EXPECT_EQ(o.items, (QStringList{Holes::FrontNine, Holes::BackNine, Holes::Eighteen}));
    EXPECT_EQ(o.chosen, 2);
    o = HolesOffered(71.5, 0, 0, true, true);
    EXPECT_EQ(o.items, (QStringList{Holes::Eighteen, Holes::FrontNine, Holes::BackNine}));
    EXPECT_EQ(o.chosen, 0);
    o = HolesOffered(71.5, 0, 0, false, false);
    EXPECT_EQ(o.items, QStringList{Holes::Eighteen});
    // No overall rating but a front one: the front nine alone, chosen as the list's first.
    o = HolesOffered(0, 33.2, 0, true, true);
    EXPECT_EQ(o.items, QStringList{Holes::FrontNine});
    EXPECT_EQ(o.chosen, 0);
    o = HolesOffered(0, 0, 0, true, true);
    EXPECT_TRUE(o.items.isEmpty());
    EXPECT_EQ(o.chosen, -1);
}

TEST(ScoreGrid, TheGridIsArrangedByWhatTheCourseHas)
{
    GridArrangement g = ArrangeGridFor(Holes::Eighteen, 18, true, true);
    EXPECT_TRUE(g.front && g.back && !g.nine);
    g = ArrangeGridFor(Holes::Eighteen, 17, true, true);
    EXPECT_FALSE(g.front || g.back);
    g = ArrangeGridFor(Holes::FrontNine, 9, true, false);
    EXPECT_TRUE(g.front && !g.back && g.nine);
    g = ArrangeGridFor(Holes::BackNine, 9, false, true);
    EXPECT_TRUE(!g.front && g.back && g.nine);
    // A back nine with a row for hole 10 but not for hole 11 offers no grid.
    g = ArrangeGridFor(Holes::BackNine, 1, false, false);
    EXPECT_FALSE(g.front || g.back);
    g = ArrangeGridFor(QStringLiteral("something else"), 18, true, true);
    EXPECT_FALSE(g.front || g.back);
}

TEST(ScoreGrid, StatisticsKeepEachOtherConsistent)
{
    using Map = QHash<StatBox, QString>;
    EXPECT_EQ(StatConsequences(StatBox::Penalties, "0"), (Map{{StatBox::LostBalls, "0"}}));
    EXPECT_EQ(StatConsequences(StatBox::Penalties, ""), (Map{{StatBox::LostBalls, "0"}})) << "an empty box is 0";
    EXPECT_TRUE(StatConsequences(StatBox::Penalties, "2").isEmpty());
    EXPECT_EQ(StatConsequences(StatBox::Bunkers, "0"),
              (Map{{StatBox::AttemptedSaves, "0"}, {StatBox::SandSaves, "0"}}));
    EXPECT_EQ(StatConsequences(StatBox::AttemptedSaves, ""), (Map{{StatBox::SandSaves, "0"}}));
    EXPECT_TRUE(StatConsequences(StatBox::LostBalls, "0").isEmpty());
    EXPECT_TRUE(StatConsequences(StatBox::SandSaves, "0").isEmpty());
}

TEST(ScoreGrid, HoleChecksOnLeavingABox)
{
    EXPECT_EQ(ScoreBoxLeft(2, "0", ""),
              QStringLiteral("Invalid score on Hole #3!  You must enter a score greater than zero."));
    EXPECT_EQ(ScoreBoxLeft(2, "00", ""), QString()) << "only the text 0 is refused";
    EXPECT_EQ(ScoreBoxLeft(0, "4", "4"), QStringLiteral("The score on Hole #1 must be greater than the number of putts."));
    EXPECT_EQ(ScoreBoxLeft(0, "4", "3"), QString());
    EXPECT_EQ(ScoreBoxLeft(0, "4", ""), QString());
    EXPECT_EQ(PuttsBoxLeft(17, "3", "5"), QStringLiteral("The number of putts on Hole #18 must be less than the score."));
    EXPECT_EQ(PuttsBoxLeft(17, "", "5"), QString());
    EXPECT_EQ(PuttsBoxLeft(17, "6", "5"), QString());
}

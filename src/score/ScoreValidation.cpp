#include "ScoreValidation.h"

#include "ScoreGrid.h"
#include "core/Convert.h"
#include "core/DateText.h"
#include "core/Int16.h"

namespace quillon {

namespace {

ScoreCheck fail(const QString &message, const QString &focus = QString())
{
    ScoreCheck c;
    c.message = message;
    c.focus = focus;
    return c;
}

QString statText(const char *what)
{
    return QStringLiteral("Invalid Misc. Stat!  You have recorded %1.").arg(QLatin1String(what));
}

// Whether a nine has anything entered and whether it is complete: nine scores and nine putts.
struct NineEntry {
    bool touched = false;
    bool complete = false;
};

NineEntry nineEntry(const ScoreEntry &e, int from)
{
    int scores = 0, putts = 0;
    for (int i = from; i < from + 9; ++i) {
        scores += e.score.at(i).isEmpty() ? 0 : 1;
        putts += e.putts.at(i).isEmpty() ? 0 : 1;
    }
    return {scores + putts > 0, scores == 9 && putts == 9};
}

QString totalQuestion(const char *which, qint16 sum, const QString &entered)
{
    return QStringLiteral("Quillon has calculated a %1 score of %2 rather than %3.  Press OK to accept this total or "
                          "Cancel to return to the Add Score screen.")
        .arg(QLatin1String(which))
        .arg(sum)
        .arg(entered);
}

} // namespace

ScoreCheck HomeAwayRule(const ScoreEntry &e, const QString &home, const HomeQuestion &ask)
{
    ScoreCheck c;
    if (e.type == 2 || home.isEmpty())
        return c;
    if (e.type == 1 && home != e.course) {
        if (ask(QStringLiteral("Your home course is currently %1.  Would you like to change your home course to %2?")
                    .arg(home, e.course))) {
            c.storeHomeCourse = true;
            return c;
        }
        return fail(QStringLiteral("Please change the type of round to Away or select %1 as the course name.").arg(home));
    }
    if (e.type == 0 && home == e.course) {
        if (ask(QStringLiteral("Your home course is currently %1.  Would you like to change the type of round from "
                               "Away to Home?")
                    .arg(home))) {
            c.type = 1;
            return c;
        }
        return fail(QStringLiteral("Please change the type of round to Home or change the course name."));
    }
    return c;
}

ScoreCheck ValidateScore(const ScoreEntry &e, const QString &home, const TotalQuestion &askTotal,
                         const HomeQuestion &askHome)
{
    if (!e.editMode) {
        if (e.course.isEmpty())
            return fail(QStringLiteral("Please select a course."), QStringLiteral("cboCourses"));
        if (e.tees.isEmpty())
            return fail(QStringLiteral("Please select the tees."), QStringLiteral("cboTees"));
        if (e.date.isEmpty())
            return fail(QStringLiteral("Please enter the date of play."), QStringLiteral("txtDate"));
        if (!ParseDateText(e.date).isValid())
            return fail(QStringLiteral("Invalid Date!  Please enter a date in the format mm/dd/yyyy."),
                        QStringLiteral("txtDate"));
        if (e.holes.isEmpty())
            return fail(QStringLiteral("Please select the holes played (front, back, or 18)."),
                        QStringLiteral("cboHoles"));
    }
    if (e.totalScore.isEmpty())
        return fail(QStringLiteral("Please enter your score."),
                    e.totalScoreVisible ? QStringLiteral("txtTotalScore") : QStringLiteral("txtTotal"));
    if (e.type < 0)
        return fail(QStringLiteral("Please select the type of round played (Away, Home or Tournament)."));

    ScoreCheck result = HomeAwayRule(e, home, askHome);
    if (!result.passed())
        return result;

    if (Val(e.lostBalls) > 0 && Val(e.penalties) == 0)
        return fail(statText("a lost ball without recording a penalty"), QStringLiteral("txtPenalties"));
    if (Val(e.bunkers) == 0 && Val(e.attemptedSaves) > 0)
        return fail(statText("an attempted sand save without recording total bunkers"),
                    QStringLiteral("txtAttemptedSaves"));
    // The focus goes to the attempted saves here too, not to the sand saves.
    if (Val(e.bunkers) == 0 && Val(e.sandSaves) > 0)
        return fail(statText("a sand save without recording total bunkers"), QStringLiteral("txtAttemptedSaves"));
    if (Val(e.sandSaves) > 0 && Val(e.attemptedSaves) == 0)
        return fail(statText("a sand save without recording an attempted sand save"),
                    QStringLiteral("txtAttemptedSaves"));

    const NineEntry front = nineEntry(e, 0);
    if (front.touched && !front.complete)
        return fail(QStringLiteral("Unable to accept incomplete score details.  Please enter all score details for "
                                   "the front 9 or clear the details you have entered."));
    const NineEntry back = nineEntry(e, 9);
    if (back.touched && !back.complete)
        return fail(QStringLiteral("Unable to accept incomplete score details.  Please enter all score details for "
                                   "the back 9 or clear the details you have entered."));
    if (!front.touched && !back.touched) {
        result.detailsEntered = false;
        return result;
    }

    // The totals of the grid against the boxes: the user accepts the program's sums or goes back.
    const qint16 frontSum = NineScoreSum(e.score, 0);
    const qint16 backSum = NineScoreSum(e.score, 9);
    // A total accepted stands in its box even when a later question is cancelled.
    const auto cancelled = [&result] {
        result.message = CancelledCheck();
        return result;
    };
    if (Val(e.out) != frontSum) {
        if (!askTotal(totalQuestion("front nine", frontSum, e.out)))
            return cancelled();
        result.out = QString::number(frontSum);
    }
    if (Val(e.in) != backSum) {
        if (!askTotal(totalQuestion("back nine", backSum, e.in)))
            return cancelled();
        result.in = QString::number(backSum);
    }
    const qint16 sum = (Int16(frontSum) + Int16(backSum)).value();
    if (Val(e.totalScore) != sum) {
        if (!askTotal(totalQuestion("total", sum, e.totalScore)))
            return cancelled();
        result.totalScore = QString::number(sum);
    }
    result.detailsEntered = true;
    return result;
}

} // namespace quillon

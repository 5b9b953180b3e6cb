#include "FrameFixture.h"
#include "TestPrinting.h"
#include "course/frmNewCourse.h"
#include "score/frmScore.h"
#include "views/frmScoreLog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

const int kPars[18] = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

// A golfer's season driven through the frame as a user would: the forms are opened from the
// menus and typed into.
class Story : public FrameFixture {
public:
    void settle() const
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    static void typeInBox(QWidget *form, const QString &name, const QString &text)
    {
        auto *box = findControl<QLineEdit>(form, name);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
    }
    static void choose(QWidget *form, const QString &list, const QString &text) { ChooseItem(findControl<QComboBox>(form, list), text); }

    void enterCourse()
    {
        item(QStringLiteral("mnuNewCourse"))->trigger();
        frmNewCourse *form = frmNewCourse::existing();
        ASSERT_NE(form, nullptr);
        typeInBox(form, QStringLiteral("txtCourse"), QStringLiteral("Pebble Creek"));
        typeInto(form, QStringLiteral("cboTees"), QStringLiteral("White"));
        typeInBox(form, QStringLiteral("txtOverallRating"), QStringLiteral("71.5"));
        typeInBox(form, QStringLiteral("txtOverallSlope"), QStringLiteral("125"));
        for (int i = 0; i < 18; ++i) {
            typeInBox(form, QStringLiteral("txtPar_%1").arg(i), QString::number(kPars[i]));
            typeInBox(form, QStringLiteral("txtYards_%1").arg(i), QString::number(350 + i));
            typeInBox(form, QStringLiteral("txtHdcp_%1").arg(i), QString::number(i + 1));
        }
        findControl<QPushButton>(form, QStringLiteral("cmdSave"))->click();
        const QVector<ShownMessage> shown = app.platform().takeMessages();
        ASSERT_EQ(shown.size(), 1);
        EXPECT_EQ(shown[0].title, QStringLiteral("New Course"));
        settle();
    }

    // One 18-hole round on Pebble Creek: `overPar` strokes over par on each hole, 2 putts.
    void enterRound(const QString &date, const QVector<int> &overPar, bool exclude = false)
    {
        item(QStringLiteral("mnuNewScore"))->trigger();
        frmScore *form = frmScore::existing();
        ASSERT_NE(form, nullptr);
        choose(form, QStringLiteral("cboCourses"), QStringLiteral("Pebble Creek"));
        typeInBox(form, QStringLiteral("txtDate"), date);
        for (int i = 0; i < 18; ++i) {
            typeInBox(form, QStringLiteral("txtScore_%1").arg(i), QString::number(kPars[i] + overPar.at(i)));
            typeInBox(form, QStringLiteral("txtPutts_%1").arg(i), QStringLiteral("2"));
        }
        if (exclude)
            findControl<QAbstractButton>(form, QStringLiteral("chkExclude"))->click();
        findControl<QPushButton>(form, QStringLiteral("cmdSave"))->click();
        EXPECT_TRUE(app.platform().takeMessages().isEmpty());
        settle();
        EXPECT_EQ(frmScore::existing(), nullptr) << "saved and closed";
    }

    static QVector<int> every(int over)
    {
        return QVector<int>(18, over);
    }
    QString handicapPanel() const { return panelText(QStringLiteral("Handicap")); }
    QStringList rounds()
    {
        return columnValues(app.db(), QStringLiteral("SELECT Date, Score, AdjustedScore, Differential, Used FROM "
                                                     "ScoreLog ORDER BY Date"));
    }
};

} // namespace

TEST_F(Story, ANewGolfersSeasonFromTheFirstRoundToADeletion)
{
    chooseGolfer(QStringLiteral("Palmer, Arnold"), true);
    app.platform().takeMessages();
    EXPECT_EQ(handicapPanel(), QStringLiteral("Handicap: (not calculated)"));
    enterCourse();

    // Before a handicap exists a man plays off 36.4: course handicap floor(36.4 x 125 / 113) = 40,
    // so no hole counts for more than 10.  Differential = (adjusted - 71.5) x 113 / 125.
    enterRound(QStringLiteral("10/1/2026"), every(1)); // 90: (90 - 71.5) x 0.904 = 16.724 -> 16.7
    QVector<int> blowUp = every(1);
    blowUp[0] = 8; // 12 on the par-4 first, cut to 10: 97 adjusted 95 -> 21.244 -> 21.2
    enterRound(QStringLiteral("10/8/2026"), blowUp);
    QVector<int> good = every(0);
    good[0] = good[1] = good[3] = good[4] = good[5] = good[7] = good[8] = good[9] = 1; // 80 -> 7.684 -> 7.7
    enterRound(QStringLiteral("10/15/2026"), good);
    QVector<int> eightyEight = every(1);
    eightyEight[0] = eightyEight[1] = 0; // 88 -> 14.916 -> 14.9
    enterRound(QStringLiteral("10/22/2026"), eightyEight);
    EXPECT_EQ(handicapPanel(), QStringLiteral("Handicap: (not calculated)")) << "four scores";

    QVector<int> eightyFive = every(1);
    eightyFive[0] = eightyFive[1] = eightyFive[2] = eightyFive[3] = eightyFive[4] = 0; // 85 -> 12.204 -> 12.2
    enterRound(QStringLiteral("10/29/2026"), eightyFive);
    // Five scores: the lowest differential counts, 7.7 x 0.96 = 7.392, cut to 7.3.
    EXPECT_EQ(handicapPanel(), QStringLiteral("Handicap: 7.3"));
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), 7.3);
    EXPECT_EQ(rounds(), (QStringList{"2026-10-01|90|90|16.7|N", "2026-10-08|97|95|21.2|N", "2026-10-15|80|80|7.7|Y",
                                     "2026-10-22|88|88|14.9|N", "2026-10-29|85|85|12.2|N"}));

    // An excluded sixth round: its differential is stored but it does not count.  With 7.3 the
    // course handicap is floor(7.3 x 125 / 113) = 8, so each hole is capped at par + 2: the 9
    // on the par-5 ninth counts 7.  76 strokes, adjusted 74: (74 - 71.5) x 0.904 = 2.26 -> 2.3.
    QVector<int> excluded = every(0);
    excluded[8] = 4;
    enterRound(QStringLiteral("11/5/2026"), excluded, true);
    EXPECT_EQ(handicapPanel(), QStringLiteral("Handicap: 7.3"));
    EXPECT_EQ(rounds().last(), QStringLiteral("2026-11-05|76|74|2.3|E"));

    // The 80 goes: four scores count again, and no handicap stands.
    auto *log = qobject_cast<frmScoreLog *>(frame->views().loaded(QStringLiteral("frmScoreLog")));
    ASSERT_NE(log, nullptr);
    int row = -1;
    for (int r = 0; r < 6; ++r) {
        log->selectRow(r);
        if (log->selectedValue(QStringLiteral("Date")).toString() == QLatin1String("2026-10-15"))
            row = r;
    }
    ASSERT_GE(row, 0);
    log->selectRow(row);
    app.platform().answer(MsgAnswer::Yes);
    item(QStringLiteral("mnuDeleteScore"))->trigger();
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Are you sure you want to delete the selected score?"));
    EXPECT_EQ(handicapPanel(), QStringLiteral("Handicap: (not calculated)"));
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), -1000.0);
    EXPECT_EQ(rounds().size(), 5);
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreDetails")).toInt(), 5 * 18);
}

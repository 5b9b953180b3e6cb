#include "course/frmHdcpCalculator.h"
#include "FrameFixture.h"
#include "core/QuillonError.h"
#include "course/CourseHandicap.h"
#include "store/HeldRecordset.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using namespace quillon;
using namespace quillon::test;

namespace {

// --- The plain calculation -----------------------------------------------------------------

struct HandicapCase {
    double index;
    const char *slope;
    qint16 expected;
};

// Worked by hand: index x slope / 113, rounded, exact halves to the even neighbour.
const HandicapCase kCases[] = {
    {5.65, "113", 6},    // 5.65: nearest is 6
    {6.5, "113", 6},     // an exact half goes down to the even 6
    {7.5, "113", 8},     // an exact half goes up to the even 8
    {12.4, "125", 14},   // 1550 / 113 = 13.717
    {12.4, "113", 12},   // the standard slope gives the index rounded
    {8.8, "113", 9},     // rounded, not truncated
    {10.0, "55", 5},     // 550 / 113 = 4.867
    {20.0, "155", 27},   // 3100 / 113 = 27.434
    {12.4, "40", 4},     // 496 / 113 = 4.389: no limit on the slope here
    {-1.9, "130", -2},   // plus handicap: -247 / 113 = -2.186
    {-2.6, "113", -3},   // plus handicap rounds away from zero past the half
    {-2.5, "113", -2},   // plus handicap exact half to the even -2
    {0.0, "113", 0},
    {12.4, "", 0},       // the lenient value of a blank text is 0
    {12.4, "120abc", 13}, // the lenient value reads the leading number: 1488 / 113 = 13.168
};

TEST(CourseHandicapFor, WorkedCasesRoundToTheNearestWithHalvesToEven)
{
    for (const HandicapCase &c : kCases)
        EXPECT_EQ(CourseHandicapFor(c.index, QLatin1String(c.slope)), c.expected)
            << c.index << " at " << c.slope;
}

TEST(CourseHandicapFor, AResultBeyondSixteenBitsIsAnOverflow)
{
    try {
        CourseHandicapFor(40000.0, QStringLiteral("113"));
        FAIL() << "no overflow";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), 6);
    }
}

// --- The dialog on the frame ---------------------------------------------------------------

const QString kTitle = QStringLiteral("Course Handicap Calculator");
const QString kNoHandicap = QStringLiteral("Unable to calculate a course handicap.  You must establish a handicap "
                                           "before calculating your handicap on a specific course.");
const QString kInvalidSlope = QStringLiteral("Invalid slope!  Please enter a value from 55 to 155.");
const QString kItem = QStringLiteral("mnuToolsCourseHdcpCalculator");

class HdcpCalculator : public FrameFixture {
protected:
    // Palmer with five rounds: the lowest differential counts, x 0.96, cut to a tenth.
    // 13.0 gives 12.48, so the index is 12.4.
    void startWithIndex(const QVector<double> &differentials = {13.0, 14.0, 15.0, 16.0, 17.0})
    {
        addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
        addWeeklyRounds(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"), QDate(2026, 1, 4),
                        differentials);
        startWithPalmer();
    }

    struct Outcome {
        QVector<ShownMessage> shown;
        QString result;
        bool openAfter = false;
        bool came = false;
    };
    // Open the calculator, put `slope` in the box, press Calculate; note what followed, and
    // cancel the form if it is still up.
    // Press Calculate on the open form, note what followed, and cancel the form if still up.
    Outcome press(QWidget *d)
    {
        Outcome out;
        out.came = true;
        findControl<QPushButton>(d, QStringLiteral("cmdCalculate"))->click();
        out.shown = app.platform().takeMessages();
        out.result = findControl<QLabel>(d, QStringLiteral("lblHandicap"))->text();
        out.openAfter = d->isVisible();
        if (d->isVisible())
            findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
        return out;
    }
    Outcome calculate(const QString &slope, bool fromMenu = false)
    {
        Outcome out;
        ModalScript script;
        script.expect(QStringLiteral("frmHdcpCalculator"), [&](QWidget *d) {
            findControl<QLineEdit>(d, QStringLiteral("txtSlope"))->setText(slope);
            out = press(d);
        });
        if (fromMenu)
            item(kItem)->trigger();
        else
            frmHdcpCalculator::instance().ShowCalculator();
        return out;
    }
    // Open the calculator and run `inside` on it, then cancel it.
    void withDialog(const std::function<void(QWidget *)> &inside)
    {
        ModalScript script;
        script.expect(QStringLiteral("frmHdcpCalculator"), [&](QWidget *d) {
            inside(d);
            if (d->isVisible())
                findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
        });
        frmHdcpCalculator::instance().ShowCalculator();
    }
};

TEST_F(HdcpCalculator, LoadsWithItsCaptionControlsAndInstructions)
{
    startWithIndex();
    withDialog([](QWidget *d) {
        EXPECT_EQ(d->windowTitle(), kTitle);
        auto *slope = findControl<QLineEdit>(d, QStringLiteral("txtSlope"));
        EXPECT_EQ(slope->text(), QStringLiteral("113"));
        EXPECT_EQ(slope->maxLength(), 3);
        EXPECT_EQ(findControl<QLabel>(d, QStringLiteral("lblHandicap"))->text(), QString());
        EXPECT_EQ(findControl<QLabel>(d, QStringLiteral("lblInstructions"))->text(),
                  QStringLiteral("The Course Handicap Calculator will calculate your handicap on a specific "
                                 "course.  Enter the slope of the course and press Calculate to obtain your "
                                 "course handicap.  If the tees are unrated, enter 113 for the slope."));
        auto *calculate = findControl<QPushButton>(d, QStringLiteral("cmdCalculate"));
        EXPECT_EQ(calculate->text(), QStringLiteral("&Calculate"));
        EXPECT_TRUE(calculate->isEnabled());
        EXPECT_EQ(findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->text(), QStringLiteral("&Cancel"));
        findControl<QToolButton>(d, QStringLiteral("cmdSlopeInc"));
        findControl<QToolButton>(d, QStringLiteral("cmdSlopeDec"));
        bool captionFound = false;
        for (const QLabel *l : d->findChildren<QLabel *>())
            captionFound = captionFound || l->text() == QLatin1String("Course Handicap:");
        EXPECT_TRUE(captionFound);
    });
}

TEST_F(HdcpCalculator, StandsCentredOnTheFrame)
{
    startWithIndex();
    QRect dialog;
    withDialog([&](QWidget *d) { dialog = d->frameGeometry(); });
    const QRect outer = frame->frameGeometry();
    EXPECT_EQ(dialog.left(), outer.left() + outer.width() / 2 - dialog.width() / 2);
    EXPECT_EQ(dialog.top(), outer.top() + outer.height() / 2 - dialog.height() / 2);
}

TEST_F(HdcpCalculator, IndexTwelvePointFourAtSlope125Gives14)
{
    startWithIndex();
    ASSERT_EQ(panelText(QStringLiteral("Handicap")), QStringLiteral("Handicap: 12.4"));
    const Outcome out = calculate(QStringLiteral("125"), true);
    EXPECT_TRUE(out.came);
    EXPECT_TRUE(out.shown.isEmpty());
    EXPECT_EQ(out.result, QStringLiteral("14"));
    EXPECT_TRUE(out.openAfter) << "the result is shown on the open form";
}

TEST_F(HdcpCalculator, DefaultSlope113GivesTheIndexRounded)
{
    // Lowest differential 9.2: 8.832, cut to 8.8; rounded 9, where a truncation would give 8.
    startWithIndex({10.0, 12.5, 9.2, 14.1, 11.0});
    ASSERT_EQ(panelText(QStringLiteral("Handicap")), QStringLiteral("Handicap: 8.8"));
    const Outcome out = calculate(QStringLiteral("113"));
    EXPECT_TRUE(out.shown.isEmpty());
    EXPECT_EQ(out.result, QStringLiteral("9"));
}

TEST_F(HdcpCalculator, PlusHandicapGoesThroughTheSameFormula)
{
    // Lowest differential -3.0: -2.88, cut to a tenth -2.8; at slope 130 -2.8 x 130 / 113 = -3.22.
    startWithIndex({-3.0, 5.0, 6.0, 7.0, 8.0});
    const QString panel = panelText(QStringLiteral("Handicap"));
    ASSERT_EQ(panel, QStringLiteral("Handicap: -2.8"));
    const Outcome out = calculate(QStringLiteral("130"));
    EXPECT_TRUE(out.shown.isEmpty());
    EXPECT_EQ(out.result, QStringLiteral("-3"));
}

TEST_F(HdcpCalculator, Slope40WarnsAndStillShowsTheResult)
{
    startWithIndex();
    const Outcome out = calculate(QStringLiteral("40"));
    ASSERT_EQ(out.shown.size(), 1);
    EXPECT_EQ(out.shown[0].text, kInvalidSlope);
    EXPECT_EQ(out.shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(out.shown[0].title, kTitle);
    EXPECT_EQ(out.result, QStringLiteral("4")); // 496 / 113 = 4.389
    EXPECT_TRUE(out.openAfter);
}

TEST_F(HdcpCalculator, SlopeAbove155WarnsAndStillShowsTheResult)
{
    startWithIndex();
    const Outcome out = calculate(QStringLiteral("200"));
    ASSERT_EQ(out.shown.size(), 1);
    EXPECT_EQ(out.shown[0].text, kInvalidSlope);
    EXPECT_EQ(out.result, QStringLiteral("22")); // 2480 / 113 = 21.947
}

TEST_F(HdcpCalculator, TheBoundsThemselvesAreValid)
{
    startWithIndex();
    Outcome low = calculate(QStringLiteral("55"));
    EXPECT_TRUE(low.shown.isEmpty());
    EXPECT_EQ(low.result, QStringLiteral("6")); // 682 / 113 = 6.035
    Outcome high = calculate(QStringLiteral("155"));
    EXPECT_TRUE(high.shown.isEmpty());
    EXPECT_EQ(high.result, QStringLiteral("17")); // 1922 / 113 = 17.009
    Outcome justBelow = calculate(QStringLiteral("54"));
    ASSERT_EQ(justBelow.shown.size(), 1);
    EXPECT_EQ(justBelow.shown[0].text, kInvalidSlope);
    Outcome justAbove = calculate(QStringLiteral("156"));
    ASSERT_EQ(justAbove.shown.size(), 1);
    EXPECT_EQ(justAbove.shown[0].text, kInvalidSlope);
}

TEST_F(HdcpCalculator, FewerThanFiveScoresOpenTheFormButCloseItAtCalculate)
{
    startWithIndex({13.0, 14.0, 15.0, 16.0});
    ASSERT_EQ(panelText(QStringLiteral("Handicap")), QStringLiteral("Handicap: (not calculated)"));
    bool openAtFirst = false;
    QVector<ShownMessage> atOpening;
    Outcome out;
    ModalScript script;
    script.expect(QStringLiteral("frmHdcpCalculator"), [&](QWidget *d) {
        openAtFirst = d->isVisible();
        atOpening = app.platform().takeMessages();
        out = press(d);
    });
    frmHdcpCalculator::instance().ShowCalculator();
    EXPECT_TRUE(openAtFirst);
    EXPECT_TRUE(atOpening.isEmpty());
    ASSERT_EQ(out.shown.size(), 1);
    EXPECT_EQ(out.shown[0].text, kNoHandicap);
    EXPECT_EQ(out.shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(out.shown[0].title, kTitle);
    EXPECT_EQ(out.result, QString()) << "no result is shown";
    EXPECT_FALSE(out.openAfter);
}

TEST_F(HdcpCalculator, NoGolferRowAtAllGivesTheMessageThenTheCalculationError)
{
    // No golfer chosen: the held HandicapLog row does not exist.
    ASSERT_EQ(basLogGlobals().gHandicapLog, nullptr);
    const Outcome out = calculate(QStringLiteral("113"));
    ASSERT_EQ(out.shown.size(), 2);
    EXPECT_EQ(out.shown[0].text, kNoHandicap);
    EXPECT_EQ(out.shown[0].title, kTitle);
    EXPECT_EQ(out.shown[1].text, QStringLiteral("Calculation error."));
    EXPECT_EQ(out.shown[1].icon, MsgIcon::Exclamation);
    EXPECT_EQ(out.shown[1].title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(out.result, QString());
    EXPECT_FALSE(out.openAfter);
}

TEST_F(HdcpCalculator, AGolferRowGoneSinceGivesTheMessageThenTheCalculationError)
{
    startWithIndex();
    Exec(app.db(), QStringLiteral("DELETE FROM HandicapLog"));
    basLogGlobals().gHandicapLog->requery();
    const Outcome out = calculate(QStringLiteral("125"));
    ASSERT_EQ(out.shown.size(), 2);
    EXPECT_EQ(out.shown[0].text, kNoHandicap);
    EXPECT_EQ(out.shown[1].text, QStringLiteral("Calculation error."));
    EXPECT_EQ(out.result, QString());
    EXPECT_FALSE(out.openAfter);
}

TEST_F(HdcpCalculator, CalculateIsEnabledExactlyWhenTheSlopeIsNotBlank)
{
    startWithIndex();
    withDialog([](QWidget *d) {
        auto *slope = findControl<QLineEdit>(d, QStringLiteral("txtSlope"));
        auto *calculate = findControl<QPushButton>(d, QStringLiteral("cmdCalculate"));
        slope->setFocus();
        slope->selectAll();
        QTest::keyClick(slope, Qt::Key_Backspace);
        EXPECT_EQ(slope->text(), QString());
        EXPECT_FALSE(calculate->isEnabled());
        QTest::keyClick(slope, Qt::Key_9);
        EXPECT_TRUE(calculate->isEnabled());
    });
}

TEST_F(HdcpCalculator, ABlankSlopeAtCalculateAsksForItAndTheFormStays)
{
    startWithIndex();
    QVector<ShownMessage> shown;
    bool open = false;
    QString result;
    withDialog([&](QWidget *d) {
        findControl<QLineEdit>(d, QStringLiteral("txtSlope"))->clear();
        frmHdcpCalculator::instance().cmdCalculate_Click(); // past the disabled button
        shown = app.platform().takeMessages();
        open = d->isVisible();
        result = findControl<QLabel>(d, QStringLiteral("lblHandicap"))->text();
    });
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Please enter the slope for the nearest set of rated tees."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown[0].title, kTitle);
    EXPECT_TRUE(open);
    EXPECT_EQ(result, QString());
}

TEST_F(HdcpCalculator, TheSlopeBoxTakesDigitsAndBackspaceOnlyAndSelectsOnFocus)
{
    startWithIndex();
    withDialog([](QWidget *d) {
        auto *slope = findControl<QLineEdit>(d, QStringLiteral("txtSlope"));
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->setFocus();
        slope->setFocus();
        QApplication::processEvents();
        EXPECT_EQ(slope->selectedText(), QStringLiteral("113"));
        QTest::keyClicks(slope, QStringLiteral("1a.-2 x"));
        EXPECT_EQ(slope->text(), QStringLiteral("12"));
        QTest::keyClick(slope, Qt::Key_Backspace);
        EXPECT_EQ(slope->text(), QStringLiteral("1"));
        QTest::keyClicks(slope, QStringLiteral("3+9e7"));
        EXPECT_EQ(slope->text(), QStringLiteral("139")) << "three characters at most";
    });
}

TEST_F(HdcpCalculator, SpinnersStopAt155And55)
{
    startWithIndex();
    withDialog([](QWidget *d) {
        auto *slope = findControl<QLineEdit>(d, QStringLiteral("txtSlope"));
        auto *inc = findControl<QToolButton>(d, QStringLiteral("cmdSlopeInc"));
        auto *dec = findControl<QToolButton>(d, QStringLiteral("cmdSlopeDec"));
        inc->click();
        EXPECT_EQ(slope->text(), QStringLiteral("114"));
        slope->setText(QStringLiteral("154"));
        inc->click();
        EXPECT_EQ(slope->text(), QStringLiteral("155"));
        inc->click();
        EXPECT_EQ(slope->text(), QStringLiteral("155"));
        slope->setText(QStringLiteral("56"));
        dec->click();
        EXPECT_EQ(slope->text(), QStringLiteral("55"));
        dec->click();
        EXPECT_EQ(slope->text(), QStringLiteral("55"));
        slope->setText(QStringLiteral("40")); // typed below the range: the increase walks it up
        inc->click();
        EXPECT_EQ(slope->text(), QStringLiteral("41"));
    });
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}

TEST_F(HdcpCalculator, IncreaseOnABlankBoxFailsAndDecreaseDoesNothing)
{
    startWithIndex();
    QVector<ShownMessage> afterInc, afterDec;
    QString textAfterInc, textAfterDec;
    withDialog([&](QWidget *d) {
        auto *slope = findControl<QLineEdit>(d, QStringLiteral("txtSlope"));
        slope->clear();
        findControl<QToolButton>(d, QStringLiteral("cmdSlopeInc"))->click();
        afterInc = app.platform().takeMessages();
        textAfterInc = slope->text();
        findControl<QToolButton>(d, QStringLiteral("cmdSlopeDec"))->click();
        afterDec = app.platform().takeMessages();
        textAfterDec = slope->text();
    });
    ASSERT_EQ(afterInc.size(), 1);
    EXPECT_EQ(afterInc[0].text, QStringLiteral("Run-time error '13':\n\nType mismatch"));
    EXPECT_EQ(textAfterInc, QString());
    EXPECT_TRUE(afterDec.isEmpty());
    EXPECT_EQ(textAfterDec, QString());
}

TEST_F(HdcpCalculator, CancelClosesWithoutAWord)
{
    startWithIndex();
    bool closed = false;
    ModalScript script;
    script.expect(QStringLiteral("frmHdcpCalculator"), [&](QWidget *d) {
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
        closed = !d->isVisible();
    });
    frmHdcpCalculator::instance().ShowCalculator();
    EXPECT_TRUE(closed);
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}

TEST_F(HdcpCalculator, EachOpeningStartsFromTheDefaults)
{
    startWithIndex();
    calculate(QStringLiteral("125"));
    withDialog([](QWidget *d) {
        EXPECT_EQ(findControl<QLineEdit>(d, QStringLiteral("txtSlope"))->text(), QStringLiteral("113"));
        EXPECT_EQ(findControl<QLabel>(d, QStringLiteral("lblHandicap"))->text(), QString());
    });
}

TEST_F(HdcpCalculator, MenuItemIsDisabledWithoutAHandicap)
{
    startWithIndex({13.0, 14.0, 15.0, 16.0});
    EXPECT_TRUE(frame->isBuilt(kItem));
    EXPECT_FALSE(enabled(kItem));
    frame->UpdateMenus(QStringLiteral("frmScoreLog"));
    EXPECT_FALSE(enabled(kItem));
}

TEST_F(HdcpCalculator, MenuItemIsEnabledWithAHandicapAndOpensTheCalculator)
{
    startWithIndex();
    EXPECT_TRUE(frame->isBuilt(kItem));
    EXPECT_TRUE(enabled(kItem));
    frame->UpdateMenus(QStringLiteral("frmScoreLog"));
    EXPECT_TRUE(enabled(kItem)) << "a wired command is not taken for an unbuilt one";
    const Outcome out = calculate(QStringLiteral("113"), true);
    EXPECT_TRUE(out.came);
    EXPECT_EQ(out.result, QStringLiteral("12"));
}

} // namespace

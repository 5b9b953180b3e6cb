#include "FrameFixture.h"
#include "course/frmNewCourse.h"
#include "course/frmRSCalculator.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kTitle = QStringLiteral("Rating/Slope Calculator");
const QString kInvalidSlope = QStringLiteral("Invalid slope!  Please enter a value from 55 to 155.");

// The calculator as a test sees it while it is up.
struct Calculator {
    QWidget *d;

    QLineEdit *box(const char *name) const { return findControl<QLineEdit>(d, QLatin1String(name)); }
    QPushButton *button(const char *name) const { return findControl<QPushButton>(d, QLatin1String(name)); }
    QRadioButton *gender(int i) const { return findControl<QRadioButton>(d, QStringLiteral("optGender_%1").arg(i)); }
    QString label(const char *name) const { return findControl<QLabel>(d, QLatin1String(name))->text(); }
    void spin(const char *name) const { findControl<QToolButton>(d, QLatin1String(name))->click(); }
    // Replace the text of a box by typing, key by key.
    void enter(const char *name, const QString &typed) const
    {
        QLineEdit *b = box(name);
        b->setFocus();
        b->selectAll();
        QTest::keyClicks(b, typed);
    }
    // The example of the men's tees: 6500 yards rated 71.2 / 125, the unrated tees 6100 yards.
    void fillMen(const QString &rated = "6500", const QString &unrated = "6100", const QString &rating = "71.2",
                 const QString &slope = "125") const
    {
        gender(0)->click();
        enter("txtRatedYards", rated);
        enter("txtRating", rating);
        enter("txtSlope", slope);
        enter("txtUnratedYards", unrated);
    }
    void calculate() const { button("cmdCalculate")->click(); }
    // No gender, blank yardages, the default rating and slope, no result, nothing to press.
    void expectFreshStart() const
    {
        EXPECT_FALSE(gender(0)->isChecked());
        EXPECT_FALSE(gender(1)->isChecked());
        EXPECT_EQ(box("txtRatedYards")->text(), QString());
        EXPECT_EQ(box("txtUnratedYards")->text(), QString());
        EXPECT_EQ(box("txtRating")->text(), QStringLiteral("72.0"));
        EXPECT_EQ(box("txtSlope")->text(), QStringLiteral("113"));
        EXPECT_EQ(label("lblRating"), QString());
        EXPECT_EQ(label("lblSlope"), QString());
        EXPECT_FALSE(button("cmdCalculate")->isEnabled());
        EXPECT_FALSE(button("cmdAccept")->isEnabled());
    }
    void close() const
    {
        if (d->isVisible())
            button("cmdCancel")->click();
    }
};

class RSCalculatorForm : public FrameFixture {
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        startWithPalmer();
    }
    // Open the calculator from the Tools menu and run `inside` on it; it is closed afterwards
    // when still up.
    void fromMenu(const std::function<void(const Calculator &)> &inside)
    {
        ModalScript script;
        script.expect(QStringLiteral("frmRSCalculator"), [&](QWidget *d) {
            const Calculator c{d};
            inside(c);
            c.close();
        });
        item(QStringLiteral("mnuToolsRSCalculator"))->trigger();
        EXPECT_EQ(script.answered(), QStringList{"frmRSCalculator"});
    }
    // Open a new course form and the calculator from its button.
    void fromCourseForm(const std::function<void(const Calculator &)> &inside)
    {
        if (!frmNewCourse::existing())
            item(QStringLiteral("mnuNewCourse"))->trigger();
        course = frmNewCourse::existing();
        ASSERT_NE(course, nullptr);
        ModalScript script;
        script.expect(QStringLiteral("frmRSCalculator"), [&](QWidget *d) {
            const Calculator c{d};
            inside(c);
            c.close();
        });
        findControl<QPushButton>(course, QStringLiteral("cmdCalculate"))->click();
        EXPECT_EQ(script.answered(), QStringList{"frmRSCalculator"});
    }
    QString courseBox(const char *name) const { return findControl<QLineEdit>(course, QLatin1String(name))->text(); }
    QVector<ShownMessage> messages() { return app.platform().takeMessages(); }

    frmNewCourse *course = nullptr;
};

} // namespace

TEST_F(RSCalculatorForm, OpensFromTheMenuWithItsCaptionsDefaultsAndACloseButton)
{
    fromMenu([&](const Calculator &c) {
        EXPECT_EQ(c.d->windowTitle(), kTitle);
        EXPECT_EQ(findControl<QGroupBox>(c.d, QStringLiteral("fraGender"))->title(), QStringLiteral("Gender"));
        EXPECT_EQ(c.gender(0)->text(), QStringLiteral("&Male"));
        EXPECT_EQ(c.gender(1)->text(), QStringLiteral("&Female"));
        EXPECT_FALSE(c.gender(0)->isChecked());
        EXPECT_FALSE(c.gender(1)->isChecked());
        EXPECT_EQ(c.label("lblRatings"), QStringLiteral("Enter the yardage, course rating, and slope rating for the "
                                                         "nearest set of rated tees on this course for your gender."));
        EXPECT_EQ(c.label("lblUnratedYards"), QStringLiteral("Enter the yardage for the unrated tees."));
        EXPECT_EQ(c.box("txtRating")->text(), QStringLiteral("72.0"));
        EXPECT_EQ(c.box("txtSlope")->text(), QStringLiteral("113"));
        EXPECT_EQ(c.box("txtRatedYards")->text(), QString());
        EXPECT_EQ(c.box("txtUnratedYards")->text(), QString());
        EXPECT_EQ(c.box("txtRatedYards")->maxLength(), 4);
        EXPECT_EQ(c.box("txtRating")->maxLength(), 4);
        EXPECT_EQ(c.box("txtSlope")->maxLength(), 3);
        EXPECT_EQ(c.box("txtUnratedYards")->maxLength(), 4);
        EXPECT_EQ(c.label("lblRating"), QString());
        EXPECT_EQ(c.label("lblSlope"), QString());
        EXPECT_EQ(c.button("cmdCalculate")->text(), QStringLiteral("&Calculate"));
        EXPECT_EQ(c.button("cmdAccept")->text(), QStringLiteral("&Accept"));
        EXPECT_EQ(c.button("cmdClear")->text(), QStringLiteral("C&lear"));
        EXPECT_EQ(c.button("cmdCancel")->text(), QStringLiteral("Cl&ose"));
        EXPECT_FALSE(c.button("cmdCalculate")->isEnabled());
        EXPECT_FALSE(c.button("cmdAccept")->isEnabled());
        for (const char *name : {"cmdRYardageInc", "cmdRYardageDec", "cmdUYardageInc", "cmdUYardageDec",
                                 "cmdRatingInc", "cmdRatingDec", "cmdSlopeInc", "cmdSlopeDec"})
            EXPECT_NE(c.d->findChild<QToolButton *>(QLatin1String(name)), nullptr) << name;
    });
}

TEST_F(RSCalculatorForm, StandsCentredOnTheFrame)
{
    QRect dialog;
    fromMenu([&](const Calculator &c) { dialog = c.d->frameGeometry(); });
    const QRect outer = frame->frameGeometry();
    EXPECT_EQ(dialog.left(), outer.left() + outer.width() / 2 - dialog.width() / 2);
    EXPECT_EQ(dialog.top(), outer.top() + outer.height() / 2 - dialog.height() / 2);
}

TEST_F(RSCalculatorForm, CalculateIsEnabledExactlyWhenTheFourBoxesHoldTextAndAGenderIsSet)
{
    fromMenu([&](const Calculator &c) {
        const auto enabled = [&] { return c.button("cmdCalculate")->isEnabled(); };
        c.enter("txtRatedYards", "6500");
        EXPECT_FALSE(enabled());
        c.enter("txtUnratedYards", "6100");
        EXPECT_FALSE(enabled()) << "no gender yet";
        c.gender(1)->click();
        EXPECT_TRUE(enabled());
        c.box("txtRating")->clear();
        EXPECT_FALSE(enabled());
        c.enter("txtRating", "70");
        EXPECT_TRUE(enabled());
        c.box("txtSlope")->clear();
        EXPECT_FALSE(enabled());
        c.enter("txtSlope", "9");
        EXPECT_TRUE(enabled());
        c.box("txtUnratedYards")->clear();
        EXPECT_FALSE(enabled());
    });
}

TEST_F(RSCalculatorForm, FromTheMenuTheEstimateIsShownAndAcceptStaysDisabled)
{
    fromMenu([&](const Calculator &c) {
        c.fillMen();
        c.calculate();
        EXPECT_TRUE(messages().isEmpty());
        EXPECT_EQ(c.label("lblRating"), QStringLiteral("69.4"));
        EXPECT_EQ(c.label("lblSlope"), QStringLiteral("120"));
        EXPECT_FALSE(c.button("cmdAccept")->isEnabled());
        EXPECT_EQ(c.button("cmdCancel")->text(), QStringLiteral("Cl&ose"));
        EXPECT_TRUE(c.d->isVisible());
        c.button("cmdCancel")->click();
        EXPECT_FALSE(c.d->isVisible());
    });
}

TEST_F(RSCalculatorForm, WomenLongerUnratedTeesRaiseBothFigures)
{
    fromMenu([&](const Calculator &c) {
        c.gender(1)->click();
        c.enter("txtRatedYards", "5000");
        c.enter("txtRating", "70.0");
        c.enter("txtSlope", "120");
        c.enter("txtUnratedYards", "6251"); // 1251: half looked up, doubled
        c.calculate();
        EXPECT_EQ(c.label("lblRating"), QStringLiteral("77.0"));
        EXPECT_EQ(c.label("lblSlope"), QStringLiteral("134"));
    });
}

TEST_F(RSCalculatorForm, FromTheCourseFormAcceptFillsOnlyTheOverallRatingAndSlopeAndCloses)
{
    bool closedByAccept = false;
    fromCourseForm([&](const Calculator &c) {
        EXPECT_EQ(c.button("cmdCancel")->text(), QStringLiteral("Ca&ncel"));
        c.fillMen();
        c.calculate();
        ASSERT_TRUE(c.button("cmdAccept")->isEnabled());
        c.button("cmdAccept")->click();
        closedByAccept = !c.d->isVisible();
    });
    EXPECT_TRUE(closedByAccept);
    EXPECT_EQ(courseBox("txtOverallRating"), QStringLiteral("69.4"));
    EXPECT_EQ(courseBox("txtOverallSlope"), QStringLiteral("120"));
    for (const char *name : {"txtFrontRating", "txtFrontSlope", "txtBackRating", "txtBackSlope"})
        EXPECT_EQ(courseBox(name), QString()) << name;
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(RSCalculatorForm, AcceptReplacesWhatTheCourseFormHeld)
{
    item(QStringLiteral("mnuNewCourse"))->trigger();
    typeInto(frmNewCourse::existing(), QStringLiteral("txtOverallRating"), QStringLiteral("70.5"));
    typeInto(frmNewCourse::existing(), QStringLiteral("txtFrontRating"), QStringLiteral("35.5"));
    fromCourseForm([&](const Calculator &c) {
        c.fillMen("6000", "6001", "70.5", "130"); // one yard longer: the band of 0 to 10
        c.calculate();
        c.button("cmdAccept")->click();
    });
    EXPECT_EQ(courseBox("txtOverallRating"), QStringLiteral("70.5"));
    EXPECT_EQ(courseBox("txtOverallSlope"), QStringLiteral("130"));
    EXPECT_EQ(courseBox("txtFrontRating"), QStringLiteral("35.5"));
}

TEST_F(RSCalculatorForm, CancelFromTheCourseFormLeavesItUntouched)
{
    fromCourseForm([&](const Calculator &c) {
        c.fillMen();
        c.calculate();
        c.button("cmdCancel")->click();
        EXPECT_FALSE(c.d->isVisible());
    });
    EXPECT_EQ(courseBox("txtOverallRating"), QString());
    EXPECT_EQ(courseBox("txtOverallSlope"), QString());
}

TEST_F(RSCalculatorForm, FromTheMenuWhileACourseFormIsOpenTheEstimateCanBeAccepted)
{
    item(QStringLiteral("mnuNewCourse"))->trigger();
    course = frmNewCourse::existing();
    ASSERT_TRUE(enabled(QStringLiteral("mnuToolsRSCalculator")));
    fromMenu([&](const Calculator &c) {
        EXPECT_EQ(c.button("cmdCancel")->text(), QStringLiteral("Ca&ncel"));
        c.fillMen();
        c.calculate();
        ASSERT_TRUE(c.button("cmdAccept")->isEnabled());
        c.button("cmdAccept")->click();
    });
    EXPECT_EQ(courseBox("txtOverallRating"), QStringLiteral("69.4"));
}

TEST_F(RSCalculatorForm, AfterTheCourseFormClosedTheMenuOpensItWithCloseAgain)
{
    fromCourseForm([&](const Calculator &) {});
    findControl<QPushButton>(course, QStringLiteral("cmdCancel"))->click();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(frmNewCourse::existing(), nullptr);
    fromMenu([&](const Calculator &c) {
        EXPECT_EQ(c.button("cmdCancel")->text(), QStringLiteral("Cl&ose"));
        c.fillMen();
        c.calculate();
        EXPECT_FALSE(c.button("cmdAccept")->isEnabled());
    });
}

TEST_F(RSCalculatorForm, AnyChangeAfterACalculationDisablesAcceptAndTheOldResultStays)
{
    const std::function<void(const Calculator &)> changes[] = {
        [](const Calculator &c) { c.enter("txtRatedYards", "6501"); },
        [](const Calculator &c) { c.enter("txtRating", "71.3"); },
        [](const Calculator &c) { c.enter("txtSlope", "126"); },
        [](const Calculator &c) { c.enter("txtUnratedYards", "6101"); },
        [](const Calculator &c) { c.gender(1)->click(); },
        [](const Calculator &c) { c.gender(0)->click(); }, // the same gender clicked again
        [](const Calculator &c) { c.spin("cmdRYardageInc"); },
        [](const Calculator &c) { c.spin("cmdUYardageDec"); },
        [](const Calculator &c) { c.spin("cmdRatingInc"); },
        [](const Calculator &c) { c.spin("cmdSlopeDec"); },
    };
    int n = 0;
    for (const auto &change : changes) {
        fromCourseForm([&](const Calculator &c) {
            c.fillMen();
            c.calculate();
            ASSERT_TRUE(c.button("cmdAccept")->isEnabled()) << n;
            change(c);
            EXPECT_FALSE(c.button("cmdAccept")->isEnabled()) << n;
            EXPECT_EQ(c.label("lblRating"), QStringLiteral("69.4")) << n;
            EXPECT_EQ(c.label("lblSlope"), QStringLiteral("120")) << n;
        });
        findControl<QPushButton>(course, QStringLiteral("cmdCancel"))->click();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ++n;
    }
}

TEST_F(RSCalculatorForm, NoBandForTheDifferenceShowsTheCriticalMessageAndClosesTheForm)
{
    bool openAfter = true;
    QVector<ShownMessage> shown;
    QString result;
    fromCourseForm([&](const Calculator &c) {
        c.fillMen("9999", "1");
        c.calculate();
        shown = messages();
        openAfter = c.d->isVisible();
        result = c.label("lblRating");
    });
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Unable to calculate the rating and slope for these tees."), MsgIcon::Critical,
                  kTitle);
    EXPECT_FALSE(openAfter);
    EXPECT_EQ(result, QString());
    EXPECT_EQ(courseBox("txtOverallRating"), QString());
}

TEST_F(RSCalculatorForm, NoRowsInTheTableTakeTheNoBandWay)
{
    Exec(app.db(), QStringLiteral("DELETE FROM UnratedTees WHERE Gender = 'Women'"));
    bool openAfter = true;
    fromMenu([&](const Calculator &c) {
        c.gender(1)->click();
        c.enter("txtRatedYards", "5000");
        c.enter("txtUnratedYards", "5000");
        c.calculate();
        openAfter = c.d->isVisible();
    });
    EXPECT_FALSE(openAfter);
    const auto shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
}

TEST_F(RSCalculatorForm, Slope200WarnsAndTheCalculationStillFinishes)
{
    QVector<ShownMessage> shown;
    fromMenu([&](const Calculator &c) {
        c.fillMen("6500", "6100", "71.2", "200");
        c.calculate();
        shown = messages();
        EXPECT_EQ(c.label("lblRating"), QStringLiteral("69.4"));
        EXPECT_EQ(c.label("lblSlope"), QStringLiteral("195"));
        EXPECT_TRUE(c.d->isVisible());
    });
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], kInvalidSlope, MsgIcon::Exclamation, kTitle);
}

TEST_F(RSCalculatorForm, EachStopShowsItsMessageUnderTheFormsCaptionAndKeepsTheFormOpen)
{
    fromMenu([&](const Calculator &c) {
        auto &form = frmRSCalculator::instance();
        form.cmdCalculate_Click(); // past the disabled button
        auto shown = messages();
        ASSERT_EQ(shown.size(), 1);
        expectMessage(shown[0], QStringLiteral("Please indicate your gender."), MsgIcon::Exclamation, kTitle);

        c.gender(0)->click();
        c.box("txtRating")->clear();
        form.cmdCalculate_Click();
        shown = messages();
        ASSERT_EQ(shown.size(), 1);
        expectMessage(shown[0], QStringLiteral("Please enter the rating for the nearest set of rated tees."),
                      MsgIcon::Exclamation, kTitle);

        c.enter("txtRating", "72");
        c.enter("txtSlope", "30");
        form.cmdCalculate_Click();
        shown = messages();
        ASSERT_EQ(shown.size(), 2);
        expectMessage(shown[0], kInvalidSlope, MsgIcon::Exclamation, kTitle);
        expectMessage(shown[1], QStringLiteral("Please enter the yardage for the nearest set of rated tees."),
                      MsgIcon::Exclamation, kTitle);

        c.enter("txtSlope", "113");
        c.enter("txtRatedYards", "6000");
        form.cmdCalculate_Click();
        shown = messages();
        ASSERT_EQ(shown.size(), 1);
        EXPECT_EQ(shown[0].text, QStringLiteral("Please enter the yardage for the unrated tees."));
        EXPECT_TRUE(c.d->isVisible());
        EXPECT_EQ(c.label("lblRating"), QString());
    });
}

TEST_F(RSCalculatorForm, TextThatCannotBeConvertedShowsCalculationErrorAndTheFormStays)
{
    QVector<ShownMessage> shown;
    fromMenu([&](const Calculator &c) {
        c.fillMen();
        c.box("txtRatedYards")->setText(QStringLiteral("6,5x")); // as a paste could leave it
        c.calculate();
        shown = messages();
        EXPECT_TRUE(c.d->isVisible());
        EXPECT_EQ(c.label("lblRating"), QString());
    });
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Calculation error."), MsgIcon::Exclamation,
                  QStringLiteral("Quillon for Golf"));
}

TEST_F(RSCalculatorForm, KeysOfTheBoxesAreFilteredAndFocusSelectsTheText)
{
    fromMenu([&](const Calculator &c) {
        c.enter("txtRatedYards", "0605x.");
        EXPECT_EQ(c.box("txtRatedYards")->text(), QStringLiteral("605")) << "no leading zero";
        c.enter("txtUnratedYards", "0a5-00");
        EXPECT_EQ(c.box("txtUnratedYards")->text(), QStringLiteral("500"));
        c.enter("txtRating", "07a1.-5");
        EXPECT_EQ(c.box("txtRating")->text(), QStringLiteral("071."));
        c.enter("txtSlope", "1.2x5");
        EXPECT_EQ(c.box("txtSlope")->text(), QStringLiteral("125"));
        QTest::keyClick(c.box("txtSlope"), Qt::Key_Backspace);
        EXPECT_EQ(c.box("txtSlope")->text(), QStringLiteral("12"));

        QApplication::setActiveWindow(c.d);
        c.box("txtRatedYards")->setFocus();
        QTest::keyClick(c.box("txtRatedYards"), Qt::Key_Tab);
        QCoreApplication::processEvents();
        EXPECT_EQ(c.box("txtRating")->selectedText(), QStringLiteral("071."));
    });
}

TEST_F(RSCalculatorForm, SpinnersStepAsTheirRulesSay)
{
    QVector<ShownMessage> shown;
    fromMenu([&](const Calculator &c) {
        c.spin("cmdRYardageDec");
        EXPECT_EQ(c.box("txtRatedYards")->text(), QString()) << "nothing below 0";
        c.spin("cmdRYardageInc");
        EXPECT_EQ(c.box("txtRatedYards")->text(), QStringLiteral("1")) << "a blank box counts as 0";
        c.spin("cmdRYardageDec");
        EXPECT_EQ(c.box("txtRatedYards")->text(), QStringLiteral("0"));
        c.enter("txtUnratedYards", "6100");
        c.spin("cmdUYardageInc");
        EXPECT_EQ(c.box("txtUnratedYards")->text(), QStringLiteral("6101"));
        c.spin("cmdUYardageDec");
        c.spin("cmdUYardageDec");
        EXPECT_EQ(c.box("txtUnratedYards")->text(), QStringLiteral("6099"));
        c.enter("txtUnratedYards", "9999");
        c.spin("cmdUYardageInc");
        EXPECT_EQ(c.box("txtUnratedYards")->text(), QStringLiteral("9999")) << "the box holds four digits";

        c.spin("cmdRatingInc");
        EXPECT_EQ(c.box("txtRating")->text(), QStringLiteral("72.1"));
        c.spin("cmdRatingDec");
        c.spin("cmdRatingDec");
        EXPECT_EQ(c.box("txtRating")->text(), QStringLiteral("71.9"));
        c.enter("txtRating", "70");
        c.spin("cmdRatingInc");
        EXPECT_EQ(c.box("txtRating")->text(), QStringLiteral("70.1"));

        c.enter("txtSlope", "154");
        c.spin("cmdSlopeInc");
        EXPECT_EQ(c.box("txtSlope")->text(), QStringLiteral("155"));
        c.spin("cmdSlopeInc");
        EXPECT_EQ(c.box("txtSlope")->text(), QStringLiteral("155"));
        c.enter("txtSlope", "56");
        c.spin("cmdSlopeDec");
        c.spin("cmdSlopeDec");
        EXPECT_EQ(c.box("txtSlope")->text(), QStringLiteral("55"));

        // The Up and Down keys in a box press its buttons.
        QTest::keyClick(c.box("txtSlope"), Qt::Key_Up);
        EXPECT_EQ(c.box("txtSlope")->text(), QStringLiteral("56"));
        QTest::keyClick(c.box("txtRatedYards"), Qt::Key_Down);
        EXPECT_EQ(c.box("txtRatedYards")->text(), QString("0"));
        EXPECT_TRUE(messages().isEmpty());

        // The rating buttons need a number: on a blank box they fail and the box stays blank.
        c.box("txtRating")->clear();
        c.spin("cmdRatingInc");
        c.spin("cmdRatingDec");
        shown = messages();
        EXPECT_EQ(c.box("txtRating")->text(), QString());
        EXPECT_TRUE(c.d->isVisible());
    });
    ASSERT_EQ(shown.size(), 2);
    expectMessage(shown[0], QStringLiteral("Run-time error '13':\n\nType mismatch"), MsgIcon::Critical,
                  QStringLiteral("Quillon for Golf"));
}

TEST_F(RSCalculatorForm, ClearUnsetsTheGenderBlanksTheYardsAndRestoresTheDefaults)
{
    fromCourseForm([&](const Calculator &c) {
        c.fillMen("6500", "6100", "70.1", "131");
        c.calculate();
        c.button("cmdClear")->click();
        c.expectFreshStart();
    });
}

TEST_F(RSCalculatorForm, EachOpeningStartsWithoutGenderYardsOrResult)
{
    fromMenu([&](const Calculator &c) {
        c.fillMen("6500", "6100", "70.1", "131");
        c.calculate();
    });
    fromMenu([&](const Calculator &c) { c.expectFreshStart(); });
}

TEST_F(RSCalculatorForm, TabFollowsTheReadingOrder)
{
    fromMenu([&](const Calculator &c) {
        c.fillMen();
        const QStringList visited = TabWalk(c.box("txtRatedYards"), 8);
        EXPECT_EQ(visited.mid(0, 8), (QStringList{"txtRatedYards", "txtRating", "txtSlope", "txtUnratedYards",
                                                  "cmdCalculate", "cmdClear", "cmdCancel", "optGender_0"}));
    });
}

TEST_F(RSCalculatorForm, TheWholeRoundTripWorksByKeyboard)
{
    fromCourseForm([&](const Calculator &c) {
        QApplication::setActiveWindow(c.d);
        c.gender(0)->setFocus();
        QTest::keyClick(c.gender(0), Qt::Key_Space);
        EXPECT_TRUE(c.gender(0)->isChecked());
        // Tab, and the box reached has its text selected so that typing replaces it.
        const auto tabAndType = [](const char *typed) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCoreApplication::processEvents();
            QTest::keyClicks(QApplication::focusWidget(), QLatin1String(typed));
        };
        tabAndType("6500");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("txtRatedYards"));
        tabAndType("71.2");
        tabAndType("125");
        tabAndType("6100");
        EXPECT_EQ(c.box("txtUnratedYards")->text(), QStringLiteral("6100"));
        // On to Calculate and press it; Accept comes next.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), c.button("cmdCalculate"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_EQ(c.label("lblRating"), QStringLiteral("69.4"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), c.button("cmdAccept"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_FALSE(c.d->isVisible());
    });
    EXPECT_EQ(courseBox("txtOverallRating"), QStringLiteral("69.4"));
    EXPECT_EQ(courseBox("txtOverallSlope"), QStringLiteral("120"));
}

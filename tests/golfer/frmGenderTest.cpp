#include "golfer/frmGender.h"
#include "TestApp.h"
#include "golfer/GenderDialogQuestion.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

using namespace quillon;

namespace {

template <typename T>
T *control(QWidget *form, const char *name)
{
    T *found = form->findChild<T *>(QLatin1String(name));
    if (!found)
        ADD_FAILURE() << "no control " << name << " in " << form->objectName().toStdString();
    return found;
}

// Runs `answer` on the modal dialog as soon as it is up.
void whenModal(std::function<void(QWidget *)> answer, int triesLeft = 300)
{
    QTimer::singleShot(10, [answer, triesLeft] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            answer(dialog);
            return;
        }
        if (triesLeft > 0)
            whenModal(answer, triesLeft - 1);
        else
            ADD_FAILURE() << "no modal dialog came up";
    });
}

// What the dialog showed when it came up.
struct Seen {
    QString instructions;
    bool femaleSet = true;
    bool maleSet = true;
    QRect frame;
};

// Answer the next question: check the given option (if any), note what was shown, and
// leave by `leave`.
void answerWith(Seen &seen, const char *option, std::function<void(QWidget *)> leave)
{
    whenModal([&seen, option, leave](QWidget *dialog) {
        seen.instructions = control<QLabel>(dialog, "lblInstructions")->text();
        seen.femaleSet = control<QRadioButton>(dialog, "optFemale")->isChecked();
        seen.maleSet = control<QRadioButton>(dialog, "optMale")->isChecked();
        seen.frame = dialog->frameGeometry();
        if (option)
            control<QRadioButton>(dialog, option)->click();
        leave(dialog);
    });
}

void pressOK(QWidget *dialog)
{
    control<QPushButton>(dialog, "cmdOK")->click();
}

class frmGenderTest : public ::testing::Test {
protected:
    test::TestApp app{false};
};

TEST_F(frmGenderTest, ControlsCarryTheirNamesAndCaptions)
{
    frmGender &form = frmGender::instance();
    EXPECT_EQ(form.objectName(), "frmGender");
    EXPECT_EQ(form.windowTitle(), "Gender");
    EXPECT_EQ(control<QGroupBox>(&form, "Frame1")->title(), "Gender");
    EXPECT_EQ(control<QRadioButton>(&form, "optFemale")->text(), "&Female");
    EXPECT_EQ(control<QRadioButton>(&form, "optMale")->text(), "&Male");
    EXPECT_EQ(control<QPushButton>(&form, "cmdOK")->text(), "&OK");
    EXPECT_EQ(&frmGender::instance(), &form);
}

TEST_F(frmGenderTest, InstructionsNameTheGolfer)
{
    Seen seen;
    answerWith(seen, "optMale", pressOK);
    frmGender::instance().GetGender("Mary", "O'Brien");
    EXPECT_EQ(seen.instructions, "Please indicate the gender of golfer Mary O'Brien.  This information is "
                                 "needed for the handicap calculations.");
}

TEST_F(frmGenderTest, FemaleAnswersF)
{
    Seen seen;
    answerWith(seen, "optFemale", pressOK);
    EXPECT_EQ(frmGender::instance().GetGender("Annika", "Sorenstam"), "F");
    EXPECT_FALSE(frmGender::instance().isVisible());
}

TEST_F(frmGenderTest, MaleAnswersM)
{
    Seen seen;
    answerWith(seen, "optMale", pressOK);
    EXPECT_EQ(frmGender::instance().GetGender("Arnold", "Palmer"), "M");
    EXPECT_FALSE(frmGender::instance().isVisible());
}

TEST_F(frmGenderTest, NeitherOptionSetAnswersM)
{
    Seen seen;
    answerWith(seen, nullptr, pressOK);
    EXPECT_EQ(frmGender::instance().GetGender("Arnold", "Palmer"), "M");
    EXPECT_FALSE(seen.femaleSet);
    EXPECT_FALSE(seen.maleSet);
}

TEST_F(frmGenderTest, EachQuestionStartsWithNeitherOptionSet)
{
    Seen first;
    answerWith(first, "optFemale", pressOK);
    ASSERT_EQ(frmGender::instance().GetGender("Annika", "Sorenstam"), "F");

    Seen second;
    answerWith(second, nullptr, pressOK);
    EXPECT_EQ(frmGender::instance().GetGender("Arnold", "Palmer"), "M");
    EXPECT_FALSE(second.femaleSet);
    EXPECT_FALSE(second.maleSet);
    EXPECT_TRUE(second.instructions.contains("Arnold Palmer"));
}

TEST_F(frmGenderTest, EscapeStillGivesAnAnswer)
{
    Seen seen;
    answerWith(seen, "optFemale", [](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_EQ(frmGender::instance().GetGender("Annika", "Sorenstam"), "F");

    answerWith(seen, nullptr, [](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_EQ(frmGender::instance().GetGender("Arnold", "Palmer"), "M");
}

TEST_F(frmGenderTest, CloseBoxStillGivesAnAnswer)
{
    Seen seen;
    answerWith(seen, "optFemale", [](QWidget *dialog) { dialog->close(); });
    EXPECT_EQ(frmGender::instance().GetGender("Annika", "Sorenstam"), "F");

    answerWith(seen, nullptr, [](QWidget *dialog) { dialog->close(); });
    EXPECT_EQ(frmGender::instance().GetGender("Arnold", "Palmer"), "M");
}

TEST_F(frmGenderTest, CentresOnTheMainWindow)
{
    QWidget mainWindow;
    mainWindow.setGeometry(40, 30, 700, 500);
    app.platform().setDialogParent(&mainWindow);

    Seen seen;
    answerWith(seen, "optMale", pressOK);
    frmGender::instance().GetGender("Arnold", "Palmer");
    app.platform().setDialogParent(nullptr);

    const QRect outer = mainWindow.frameGeometry();
    EXPECT_NEAR(seen.frame.left() + seen.frame.width() / 2.0, outer.left() + outer.width() / 2.0, 1.0);
    EXPECT_NEAR(seen.frame.top() + seen.frame.height() / 2.0, outer.top() + outer.height() / 2.0, 1.0);
    // The dialog is smaller than the window it stands on.
    EXPECT_TRUE(outer.contains(seen.frame));
}

TEST_F(frmGenderTest, FollowsTheMainWindowWhenItMoves)
{
    QWidget mainWindow;
    app.platform().setDialogParent(&mainWindow);

    Seen first;
    mainWindow.setGeometry(0, 0, 600, 400);
    answerWith(first, "optMale", pressOK);
    frmGender::instance().GetGender("Arnold", "Palmer");

    Seen second;
    mainWindow.setGeometry(100, 60, 600, 400);
    answerWith(second, "optMale", pressOK);
    frmGender::instance().GetGender("Arnold", "Palmer");
    app.platform().setDialogParent(nullptr);

    EXPECT_EQ(second.frame.topLeft() - first.frame.topLeft(), QPoint(100, 60));
}

TEST_F(frmGenderTest, AdapterAsksTheUser)
{
    GenderDialogQuestion question;
    Seen seen;
    answerWith(seen, "optFemale", pressOK);
    EXPECT_EQ(question.GetGender("Nancy", "Lopez"), "F");
    EXPECT_TRUE(seen.instructions.contains("golfer Nancy Lopez."));

    answerWith(seen, "optMale", pressOK);
    EXPECT_EQ(question.GetGender("Jack", "Nicklaus"), "M");
    EXPECT_TRUE(seen.instructions.contains("golfer Jack Nicklaus."));
}

} // namespace

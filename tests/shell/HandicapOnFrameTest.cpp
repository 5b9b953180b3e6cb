// The handicap engine publishing on the real frame, and asking through the real gender dialog.
#include "Fixtures.h"
#include "TestApp.h"
#include "handicap/Handicap.h"
#include "shell/MDIForm1.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

using namespace quillon;
using namespace quillon::test;

namespace {

class HandicapOnFrame : public ::testing::Test {
protected:
    void SetUp() override
    {
        MDIForm1::instance().show();
        app.setGolfer(QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    }
    void TearDown() override { MDIForm1::unload(); }

    void addRounds(const QVector<double> &differentials)
    {
        addWeeklyRounds(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"), QDate(2026, 3, 1),
                        differentials);
    }

    QString panelText() { return MDIForm1::instance().panel(QStringLiteral("Handicap"))->text(); }
    bool calculatorEnabled()
    {
        return MDIForm1::instance().menuItem(QStringLiteral("mnuToolsCourseHdcpCalculator"))->isEnabled();
    }
    double storedHandicap()
    {
        return Scalar(app.db(),
                      QStringLiteral("SELECT Handicap FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
                      {QStringLiteral("O'Brien"), QStringLiteral("Pat")})
            .toDouble();
    }

    TestApp app;
};

// Answers the gender dialog when it comes up, choosing the named option.
void answerGenderDialog(const char *option, QString *instructions, int *asked)
{
    QTimer::singleShot(0, [=] {
        QWidget *dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->objectName(), QStringLiteral("frmGender"));
        ++*asked;
        *instructions = dialog->findChild<QLabel *>(QStringLiteral("lblInstructions"))->text();
        dialog->findChild<QRadioButton *>(QString::fromLatin1(option))->setChecked(true);
        dialog->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    });
}

} // namespace

TEST_F(HandicapOnFrame, FiveScoresShowTheIndexAndOpenTheCalculator)
{
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("M"));
    addRounds({10.0, 12.5, 9.2, 14.1, 11.0});
    ComputeHandicap();
    EXPECT_EQ(panelText(), QStringLiteral("Handicap: 8.8"));
    EXPECT_TRUE(calculatorEnabled());
    EXPECT_EQ(storedHandicap(), 8.8);
}

TEST_F(HandicapOnFrame, FewerThanFiveScoresShowNotCalculatedAndCloseTheCalculator)
{
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("M"), 12.3);
    MDIForm1::instance().setCourseHdcpCalculatorEnabled(true);
    addRounds({10.0, 12.5, 9.2, 14.1});
    ComputeHandicap();
    EXPECT_EQ(panelText(), QStringLiteral("Handicap: (not calculated)"));
    EXPECT_FALSE(calculatorEnabled());
    EXPECT_EQ(storedHandicap(), -1000.0);
}

TEST_F(HandicapOnFrame, GolferWithoutGenderIsAskedThroughTheDialogOnceAndCappedByTheAnswer)
{
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"), QString());
    // Lowest differential 42.5: 42.5 x 0.96 = 40.8, above both caps.
    addRounds({42.5, 44.0, 45.0, 46.0, 47.0});
    QString instructions;
    int asked = 0;
    answerGenderDialog("optFemale", &instructions, &asked);
    ComputeHandicap();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(instructions,
              QStringLiteral("Please indicate the gender of golfer Pat O'Brien.  This information is "
                             "needed for the handicap calculations."));
    EXPECT_EQ(panelText(), QStringLiteral("Handicap: 40.4"));
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Gender FROM HandicapLog")).toString(),
              QStringLiteral("F"));

    ComputeHandicap(); // the stored answer holds: no second question
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(panelText(), QStringLiteral("Handicap: 40.4"));
}

TEST_F(HandicapOnFrame, MissingGolferRowIsReportedAndThePanelIsSetAllTheSame)
{
    addRounds({10.0, 12.5, 9.2, 14.1, 11.0});
    ComputeHandicap();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Database Error: Unable to locate golfer's handicap record."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(panelText(), QStringLiteral("Handicap: 8.8"));
}

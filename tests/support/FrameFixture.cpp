#include "FrameFixture.h"

#include "course/frmDeleteCourse.h"
#include "course/frmHdcpCalculator.h"
#include "course/frmNewCourse.h"
#include "course/frmRSCalculator.h"
#include "golfer/frmDeleteGolfer.h"
#include "golfer/frmGender.h"
#include "golfer/frmNewGolfer.h"
#include "help/frmAbout.h"
#include "help/frmHelp.h"
#include "print/frmPrintScoreDetails.h"
#include "print/frmPrintScorecard.h"
#include "score/frmScore.h"
#include "shell/frmProgress.h"
#include "ui/FormInstance.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace quillon::test {

void FrameFixture::SetUp()
{
    frame = &MDIForm1::instance();
    frame->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(frame));
}

void DestroyForms()
{
    MDIForm1::unload();
    FormInstance<frmNewGolfer>::destroy();
    FormInstance<frmDeleteGolfer>::destroy();
    FormInstance<frmGender>::destroy();
    FormInstance<frmDeleteCourse>::destroy();
    FormInstance<frmNewCourse>::destroy();
    FormInstance<frmHdcpCalculator>::destroy();
    FormInstance<frmRSCalculator>::destroy();
    FormInstance<frmProgress>::destroy();
    FormInstance<frmPrintScorecard>::destroy();
    FormInstance<frmPrintScoreDetails>::destroy();
    FormInstance<frmScore>::destroy();
    FormInstance<frmAbout>::destroy();
    FormInstance<frmHelp>::destroy();
}

void FrameFixture::TearDown()
{
    DestroyForms();
}

void FrameFixture::chooseGolfer(const QString &typed, bool isNew)
{
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [typed](QWidget *dialog) {
        auto *box = findControl<QLineEdit>(dialog, QStringLiteral("txtGolfer"));
        box->setFocus();
        QTest::keyClicks(box, typed);
        findControl<QPushButton>(dialog, QStringLiteral("cmdOK"))->click();
    });
    if (isNew)
        script.expect(QStringLiteral("frmGender"), [](QWidget *dialog) {
            findControl<QPushButton>(dialog, QStringLiteral("cmdOK"))->click();
        });
    frmNewGolfer::instance().GetNewGolfer();
}

void FrameFixture::startWithPalmer()
{
    basLogGlobals().gCourseCount =
        qint16(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM CourseLog")).toInt());
    const bool isNew = Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM HandicapLog WHERE LastName = "
                                                       "'Palmer' AND FirstName = 'Arnold'"))
                           .toInt() == 0;
    chooseGolfer(QStringLiteral("Palmer, Arnold"), isNew);
    expectMessages(app.platform(), isNew ? QStringList{"Add golfer Arnold Palmer?"} : QStringList{});
}

QStringList FrameFixture::checkedViews() const
{
    QStringList out;
    for (const char *name : {"mnuViewScoreLog", "mnuViewScoringRecord", "mnuViewGolferStatistics",
                             "mnuViewGraphs", "mnuViewUltimateScorecard", "mnuViewCourseInfo"})
        if (item(QLatin1String(name))->isChecked())
            out << QLatin1String(name);
    return out;
}

} // namespace quillon::test

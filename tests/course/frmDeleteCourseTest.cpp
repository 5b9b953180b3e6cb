#include "course/frmDeleteCourse.h"
#include "FrameFixture.h"
#include "TestPrinting.h"
#include "course/CourseData.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

class DeleteCourseData : public FrameFixture {
protected:
    // Pebble Creek with White and Blue tees, Augusta with Red; every set with its 18 holes.
    void SetUp() override
    {
        FrameFixture::SetUp();
        for (const auto &[course, tees] : {std::pair{"Pebble Creek", "White"},
                                           std::pair{"Pebble Creek", "Blue"}, std::pair{"Augusta", "Red"}}) {
            CourseSpec set;
            set.name = QLatin1String(course);
            set.tees = QLatin1String(tees);
            addCourse(app.db(), set);
        }
    }
    void start() { startWithPalmer(); }
    struct Outcome {
        QVector<ShownMessage> shown;
        bool formOpen = false;
    };
    // Choose the course, select the tees and press OK; then note what was said and whether the
    // form is still up, and cancel it.
    Outcome okThenCancel(const QString &course, const QStringList &tees)
    {
        Outcome out;
        ModalScript script;
        script.expect(QStringLiteral("frmDeleteCourse"), [&](QWidget *d) {
            chooseCourse(d, course);
            selectTees(d, tees);
            findControl<QPushButton>(d, QStringLiteral("cmdOK"))->click();
            out.shown = app.platform().takeMessages();
            out.formOpen = d->isVisible();
            findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
        });
        frmDeleteCourse::instance().DeleteCourse();
        return out;
    }
    // Choose the course, select the tees named and press OK.
    static ModalScript::Answer selectAndOk(const QString &course, const QStringList &tees)
    {
        return [course, tees](QWidget *d) {
            chooseCourse(d, course);
            selectTees(d, tees);
            findControl<QPushButton>(d, QStringLiteral("cmdOK"))->click();
        };
    }
    static void chooseCourse(QWidget *d, const QString &course)
    {
        auto *box = findControl<QComboBox>(d, QStringLiteral("dblstCourses"));
        const int index = box->findText(course);
        ASSERT_GE(index, 0) << course.toStdString();
        box->setCurrentIndex(index);
        emit box->activated(index);
    }
    static void selectTees(QWidget *d, const QStringList &tees)
    {
        auto *list = findControl<QListWidget>(d, QStringLiteral("lstTees"));
        for (const QString &t : tees) {
            const auto found = list->findItems(t, Qt::MatchExactly);
            ASSERT_EQ(found.size(), 1) << t.toStdString();
            found.first()->setSelected(true);
        }
    }
    static QStringList listItems(QWidget *d)
    {
        QStringList out;
        auto *list = findControl<QListWidget>(d, QStringLiteral("lstTees"));
        for (int i = 0; list && i < list->count(); ++i)
            out << list->item(i)->text();
        return out;
    }
    // The sets of tees stored, as "course|tees", and the hole rows of one set.
    QStringList teesRows()
    {
        return columnValues(
            app.db(), QStringLiteral("SELECT CourseName, Tees FROM CourseLog ORDER BY CourseName, Tees"));
    }
    int holeRows(const QString &course, const QString &tees)
    {
        return Scalar(app.db(),
                      QStringLiteral("SELECT COUNT(*) FROM CourseDetails WHERE CourseName = ? AND Tees = ?"),
                      {course, tees})
            .toInt();
    }
    int courseLogRows() { return Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM CourseLog")).toInt(); }
    void addScore(const QString &last, const QString &first, const QString &course, const QString &tees)
    {
        RoundSpec r;
        r.last = last;
        r.first = first;
        r.course = course;
        r.tees = tees;
        addRound(app.db(), r);
    }
    static QString refusal(const QString &tees, const QString &course)
    {
        return QStringLiteral(
                   "Unable to delete the course data for the %1 tees at %2 because a score has been "
                   "entered using this data.  You must delete all scores from the %1 tees on %2 "
                   "before deleting this course data.")
            .arg(tees, course);
    }
    static QString question(const QString &course)
    {
        return QStringLiteral("Are you sure you want to delete course data for the selected tees at %1?")
            .arg(course);
    }
};

} // namespace

TEST_F(DeleteCourseData, NoCoursesSaysThereAreNoCoursesToDelete)
{
    Exec(app.db(), QStringLiteral("DELETE FROM CourseDetails"));
    Exec(app.db(), QStringLiteral("DELETE FROM CourseLog"));
    start();
    ModalScript script; // the form must not come up
    frmDeleteCourse::instance().DeleteCourse();
    EXPECT_TRUE(script.answered().isEmpty());
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("There are no courses to delete."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown[0].title, QStringLiteral("Delete Course"));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
}

TEST_F(DeleteCourseData, FormListsCoursesInNameOrderAndTheTeesOfTheChosenCourse)
{
    start();
    QString caption, instructions;
    QStringList courses, augustaTees, pebbleTees;
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), [&](QWidget *d) {
        caption = d->windowTitle();
        instructions = findControl<QLabel>(d, QStringLiteral("lblInstructions"))->text();
        auto *box = findControl<QComboBox>(d, QStringLiteral("dblstCourses"));
        for (int i = 0; i < box->count(); ++i)
            courses << box->itemText(i);
        chooseCourse(d, QStringLiteral("Augusta"));
        augustaTees = listItems(d);
        chooseCourse(d, QStringLiteral("Pebble Creek"));
        pebbleTees = listItems(d);
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    item(QStringLiteral("mnuDeleteCourse"))->trigger();
    EXPECT_EQ(script.pending(), 0);
    EXPECT_EQ(caption, QStringLiteral("Delete Course"));
    EXPECT_EQ(instructions, QStringLiteral("Select the Course and one or more tees to delete."));
    EXPECT_EQ(courses, (QStringList{"Augusta", "Pebble Creek"}));
    EXPECT_EQ(augustaTees, QStringList{"Red"});
    pebbleTees.sort();
    EXPECT_EQ(pebbleTees, (QStringList{"Blue", "White"}));
}

TEST_F(DeleteCourseData, OkIsDisabledUntilTeesAreSelectedAndCancelDeletesNothing)
{
    start();
    bool before = true, selected = false, afterDeselecting = false;
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), [&](QWidget *d) {
        auto *ok = findControl<QPushButton>(d, QStringLiteral("cmdOK"));
        chooseCourse(d, QStringLiteral("Pebble Creek"));
        before = ok->isEnabled();
        selectTees(d, {QStringLiteral("Blue")});
        selected = ok->isEnabled();
        findControl<QListWidget>(d, QStringLiteral("lstTees"))->clearSelection();
        afterDeselecting = ok->isEnabled();
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmDeleteCourse::instance().DeleteCourse();
    EXPECT_FALSE(before);
    EXPECT_TRUE(selected);
    // Once on, OK stays on.
    EXPECT_TRUE(afterDeselecting);
    EXPECT_EQ(courseLogRows(), 3);
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}

TEST_F(DeleteCourseData, OkIsDisabledAgainWhenTheFormOpensAnotherTime)
{
    start();
    bool first = false, second = true;
    {
        ModalScript script;
        script.expect(QStringLiteral("frmDeleteCourse"), [&](QWidget *d) {
            selectTees(d, {QStringLiteral("Red")});
            first = findControl<QPushButton>(d, QStringLiteral("cmdOK"))->isEnabled();
            findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
        });
        frmDeleteCourse::instance().DeleteCourse();
    }
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), [&](QWidget *d) {
        second = findControl<QPushButton>(d, QStringLiteral("cmdOK"))->isEnabled();
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmDeleteCourse::instance().DeleteCourse();
    EXPECT_TRUE(first);
    EXPECT_FALSE(second);
}

TEST_F(DeleteCourseData, NoToTheQuestionLeavesEverythingAndTheFormOpen)
{
    start();
    app.platform().answer(MsgAnswer::No);
    const Outcome outcome = okThenCancel(QStringLiteral("Pebble Creek"), {QStringLiteral("White")});
    const QVector<ShownMessage> &shown = outcome.shown;
    const bool openAfterNo = outcome.formOpen;
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, question(QStringLiteral("Pebble Creek")));
    EXPECT_EQ(shown[0].icon, MsgIcon::Question);
    EXPECT_EQ(shown[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(shown[0].defaultButton, MsgAnswer::No);
    EXPECT_EQ(shown[0].title, QStringLiteral("Delete Course"));
    EXPECT_TRUE(openAfterNo);
    EXPECT_EQ(courseLogRows(), 3);
    EXPECT_EQ(holeRows(QStringLiteral("Pebble Creek"), QStringLiteral("White")), 18);
}

TEST_F(DeleteCourseData, YesDeletesTheSelectedTeesWithTheirHolesAndClosesTheForm)
{
    start();
    app.platform().answer(MsgAnswer::Yes);
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), selectAndOk(QStringLiteral("Pebble Creek"), {"White"}));
    item(QStringLiteral("mnuDeleteCourse"))->trigger();
    EXPECT_EQ(script.pending(), 0);
    expectMessages(app.platform(), {question(QStringLiteral("Pebble Creek"))});
    EXPECT_FALSE(frmDeleteCourse::instance().isVisible());
    EXPECT_EQ(teesRows(), (QStringList{"Augusta|Red", "Pebble Creek|Blue"}));
    EXPECT_EQ(holeRows(QStringLiteral("Pebble Creek"), QStringLiteral("White")), 0);
    EXPECT_EQ(holeRows(QStringLiteral("Pebble Creek"), QStringLiteral("Blue")), 18);
    EXPECT_EQ(holeRows(QStringLiteral("Augusta"), QStringLiteral("Red")), 18);
    EXPECT_EQ(basLogGlobals().gCourseCount, courseLogRows());
    EXPECT_EQ(basLogGlobals().gCourseCount, 2);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
}

TEST_F(DeleteCourseData, SeveralTeesGoTogetherAndTheCourseGoesWithItsLastTees)
{
    start();
    app.platform().answer(MsgAnswer::Yes);
    {
        ModalScript script;
        script.expect(QStringLiteral("frmDeleteCourse"),
                      selectAndOk(QStringLiteral("Pebble Creek"), {"White", "Blue"}));
        frmDeleteCourse::instance().DeleteCourse();
    }
    expectMessages(app.platform(), {question(QStringLiteral("Pebble Creek"))});
    EXPECT_EQ(teesRows(), QStringList{"Augusta|Red"});
    EXPECT_EQ(holeRows(QStringLiteral("Pebble Creek"), QStringLiteral("Blue")), 0);
    EXPECT_EQ(basLogGlobals().gCourseCount, 1);
    QStringList offeredAfter;
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), [&](QWidget *d) {
        auto *box = findControl<QComboBox>(d, QStringLiteral("dblstCourses"));
        for (int i = 0; i < box->count(); ++i)
            offeredAfter << box->itemText(i);
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmDeleteCourse::instance().DeleteCourse();
    EXPECT_EQ(offeredAfter, QStringList{"Augusta"});
}

TEST_F(DeleteCourseData, TeesWithAScoreAreRefusedAndTheOtherSelectedTeesAreDeleted)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addScore(QStringLiteral("Palmer"), QStringLiteral("Arnold"), QStringLiteral("Pebble Creek"),
             QStringLiteral("Blue"));
    start();
    app.platform().answer(MsgAnswer::Yes);
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"),
                  selectAndOk(QStringLiteral("Pebble Creek"), {"White", "Blue"}));
    frmDeleteCourse::instance().DeleteCourse();
    EXPECT_EQ(script.pending(), 0);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0].text, question(QStringLiteral("Pebble Creek")));
    EXPECT_EQ(shown[1].text, refusal(QStringLiteral("Blue"), QStringLiteral("Pebble Creek")));
    EXPECT_EQ(shown[1].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[1].title, QStringLiteral("Delete Course"));
    EXPECT_FALSE(frmDeleteCourse::instance().isVisible());
    EXPECT_EQ(teesRows(), (QStringList{"Augusta|Red", "Pebble Creek|Blue"}));
    EXPECT_EQ(holeRows(QStringLiteral("Pebble Creek"), QStringLiteral("Blue")), 18);
    EXPECT_EQ(holeRows(QStringLiteral("Pebble Creek"), QStringLiteral("White")), 0);
    EXPECT_EQ(basLogGlobals().gCourseCount, courseLogRows());
}

TEST_F(DeleteCourseData, RefusalHoldsForScoresOfAnyGolfer)
{
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    addScore(QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("Augusta"),
             QStringLiteral("Red"));
    start(); // Arnold Palmer, with no score at all
    app.platform().answer(MsgAnswer::Yes);
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), selectAndOk(QStringLiteral("Augusta"), {"Red"}));
    frmDeleteCourse::instance().DeleteCourse();
    expectMessages(app.platform(), {question(QStringLiteral("Augusta")),
                                    refusal(QStringLiteral("Red"), QStringLiteral("Augusta"))});
    EXPECT_EQ(courseLogRows(), 3);
    EXPECT_EQ(holeRows(QStringLiteral("Augusta"), QStringLiteral("Red")), 18);
    EXPECT_EQ(basLogGlobals().gCourseCount, 3);
}

TEST_F(DeleteCourseData, DeletingTheLastTeesLeavesTheScoreLogWithoutCourseInformation)
{
    Exec(app.db(), QStringLiteral("DELETE FROM CourseDetails WHERE CourseName = 'Pebble Creek'"));
    Exec(app.db(), QStringLiteral("DELETE FROM CourseLog WHERE CourseName = 'Pebble Creek'"));
    start();
    item(QStringLiteral("mnuViewCourseInfo"))->trigger();
    ASSERT_NE(frame->views().loaded(QStringLiteral("frmCourseInfo")), nullptr);
    ASSERT_EQ(checkedViews(), QStringList{"mnuViewCourseInfo"});
    app.platform().answer(MsgAnswer::Yes);
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), selectAndOk(QStringLiteral("Augusta"), {"Red"}));
    item(QStringLiteral("mnuDeleteCourse"))->trigger();
    EXPECT_EQ(script.pending(), 0);
    expectMessages(app.platform(), {question(QStringLiteral("Augusta"))});
    EXPECT_EQ(courseLogRows(), 0);
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM CourseDetails")).toInt(), 0);
    EXPECT_EQ(basLogGlobals().gCourseCount, 0);
    EXPECT_EQ(frame->views().loaded(QStringLiteral("frmCourseInfo")), nullptr);
    EXPECT_NE(frame->views().loaded(QStringLiteral("frmScoreLog")), nullptr);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
    // The menus of an empty course list.
    EXPECT_FALSE(enabled(QStringLiteral("mnuViewCourseInfo")));
    EXPECT_FALSE(enabled(QStringLiteral("mnuNewScore")));
    EXPECT_FALSE(enabled(QStringLiteral("mnuDeleteCourse")));
}

TEST_F(DeleteCourseData, DeletingSomeTeesFromTheCourseInformationViewKeepsThatView)
{
    start();
    item(QStringLiteral("mnuViewCourseInfo"))->trigger();
    ASSERT_NE(frame->views().loaded(QStringLiteral("frmCourseInfo")), nullptr);
    app.platform().answer(MsgAnswer::Yes);
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), selectAndOk(QStringLiteral("Pebble Creek"), {"Blue"}));
    item(QStringLiteral("mnuDeleteCourse"))->trigger();
    app.platform().takeMessages();
    EXPECT_EQ(teesRows(), (QStringList{"Augusta|Red", "Pebble Creek|White"}));
    EXPECT_EQ(basLogGlobals().gCourseCount, 2);
    EXPECT_NE(frame->views().loaded(QStringLiteral("frmCourseInfo")), nullptr);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmCourseInfo"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewCourseInfo"});
}

TEST_F(DeleteCourseData, CourseAndTeesWithApostrophesAreDeleted)
{
    CourseSpec stAndrews;
    stAndrews.name = QStringLiteral("St. Andrew's");
    stAndrews.tees = QStringLiteral("Members'");
    addCourse(app.db(), stAndrews);
    start();
    app.platform().answer(MsgAnswer::Yes);
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"),
                  selectAndOk(QStringLiteral("St. Andrew's"), {"Members'"}));
    frmDeleteCourse::instance().DeleteCourse();
    expectMessages(app.platform(), {question(QStringLiteral("St. Andrew's"))});
    EXPECT_EQ(teesRows(), (QStringList{"Augusta|Red", "Pebble Creek|Blue", "Pebble Creek|White"}));
    EXPECT_EQ(holeRows(QStringLiteral("St. Andrew's"), QStringLiteral("Members'")), 0);
    EXPECT_EQ(basLogGlobals().gCourseCount, 3);
}

TEST_F(DeleteCourseData, ScoreOnTeesWithApostrophesIsRefused)
{
    CourseSpec stAndrews;
    stAndrews.name = QStringLiteral("St. Andrew's");
    stAndrews.tees = QStringLiteral("Members'");
    addCourse(app.db(), stAndrews);
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    addScore(QStringLiteral("O'Brien"), QStringLiteral("Pat"), stAndrews.name, stAndrews.tees);
    start();
    app.platform().answer(MsgAnswer::Yes);
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteCourse"), selectAndOk(stAndrews.name, {stAndrews.tees}));
    frmDeleteCourse::instance().DeleteCourse();
    expectMessages(app.platform(), {question(stAndrews.name), refusal(stAndrews.tees, stAndrews.name)});
    EXPECT_EQ(holeRows(stAndrews.name, stAndrews.tees), 18);
    EXPECT_EQ(courseLogRows(), 4);
}

TEST_F(DeleteCourseData, DatabaseFailureShowsTheErrorAndKeepsTheFormAndTheRows)
{
    start();
    Exec(app.db(), QStringLiteral("DROP TABLE CourseDetails"));
    app.platform().answer(MsgAnswer::Yes);
    const Outcome outcome = okThenCancel(QStringLiteral("Pebble Creek"), {QStringLiteral("White")});
    const QVector<ShownMessage> &shown = outcome.shown;
    const bool openAfterFailure = outcome.formOpen;
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0].text, question(QStringLiteral("Pebble Creek")));
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("^Error \\d+: .*CourseDetails")).match(shown[1].text).hasMatch())
        << shown[1].text.toStdString();
    EXPECT_EQ(shown[1].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[1].title, QStringLiteral("Quillon for Golf"));
    EXPECT_FALSE(shown[1].pointerBusy);
    EXPECT_TRUE(openAfterFailure);
    EXPECT_EQ(courseLogRows(), 3);
    EXPECT_EQ(basLogGlobals().gCourseCount, 3);
    // The default pointer is back.
    ASSERT_FALSE(app.platform().pointerChanges().isEmpty());
    EXPECT_FALSE(app.platform().pointerChanges().last());
}

TEST_F(DeleteCourseData, HoleRowsStayWhenTheTeesRowCannotBeDeleted)
{
    start();
    // The second statement of the delete fails after the first has run.
    Exec(app.db(), QStringLiteral("CREATE TRIGGER KeepTees BEFORE DELETE ON CourseLog "
                                  "BEGIN SELECT RAISE(ABORT, 'tees kept'); END"));
    app.platform().answer(MsgAnswer::Yes);
    const Outcome outcome = okThenCancel(QStringLiteral("Augusta"), {QStringLiteral("Red")});
    const QVector<ShownMessage> &shown = outcome.shown;
    ASSERT_EQ(shown.size(), 2);
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^Error \\d+: tees kept")).match(shown[1].text).hasMatch())
        << shown[1].text.toStdString();
    EXPECT_EQ(shown[1].title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(courseLogRows(), 3);
    EXPECT_EQ(holeRows(QStringLiteral("Augusta"), QStringLiteral("Red")), 18);
}

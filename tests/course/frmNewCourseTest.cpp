#include "FrameFixture.h"
#include "TestPrinting.h"
#include "course/frmNewCourse.h"
#include "views/frmScoreLog.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kCourse = QStringLiteral("Pebble Creek");
const int kPars[18] = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

const char *const kLogSql =
    "SELECT CourseName, Tees, OverallRating, OverallSlope, FrontRating, FrontSlope, BackRating, BackSlope, "
    "YardsIn, YardsOut, TotalYards, ParIn, ParOut, TotalPar FROM CourseLog ORDER BY Tees";
const char *const kHolesSql =
    "SELECT Tees, Hole, PAR, Handicap, Yards FROM CourseDetails ORDER BY Tees, Hole";

class NewCourseForm : public FrameFixture {
public:
    void SetUp() override
    {
        FrameFixture::SetUp();
        chooseGolfer(QStringLiteral("Palmer, Arnold"), true);
        app.platform().takeMessages();
    }

    frmNewCourse *openNew()
    {
        item(QStringLiteral("mnuNewCourse"))->trigger();
        form = frmNewCourse::existing();
        EXPECT_NE(form, nullptr);
        return form;
    }
    void openEdit(const QString &course, const QString &tees)
    {
        frmNewCourse::instance().EditCourse(course, tees);
        form = frmNewCourse::existing();
    }
    QLineEdit *box(const QString &name) const { return findControl<QLineEdit>(form, name); }
    QString text(const QString &name) const
    {
        if (auto *label = form->findChild<QLabel *>(name))
            return label->text();
        if (auto *combo = form->findChild<QComboBox *>(name))
            return combo->currentText();
        return box(name)->text();
    }
    void type(const QString &name, const QString &typed) const { typeInto(form, name, typed); }
    void clearAndType(const QString &name, const QString &typed) const
    {
        box(name)->clear();
        type(name, typed);
    }
    QPushButton *button(const QString &name) const { return findControl<QPushButton>(form, name); }
    void click(const QString &name) const { findControl<QToolButton>(form, name)->click(); }
    // Holes first .. first + count - 1 typed in: par of the card, yards 300 + 10 per hole,
    // stroke index from `hdcpFrom` upwards.
    void typeHoles(int first, int count, int hdcpFrom, int yardsFrom = 300) const
    {
        for (int i = first; i < first + count; ++i) {
            type(QStringLiteral("txtPar_%1").arg(i), QString::number(kPars[i]));
            type(QStringLiteral("txtYards_%1").arg(i), QString::number(yardsFrom + 10 * i));
            type(QStringLiteral("txtHdcp_%1").arg(i), QString::number(hdcpFrom + i - first));
        }
    }
    void typeRatings(const QString &overall, const QString &overallSlope, const QString &front = {},
                     const QString &frontSlope = {}, const QString &back = {}, const QString &backSlope = {}) const
    {
        type(QStringLiteral("txtOverallRating"), overall);
        type(QStringLiteral("txtOverallSlope"), overallSlope);
        type(QStringLiteral("txtFrontRating"), front);
        type(QStringLiteral("txtFrontSlope"), frontSlope);
        type(QStringLiteral("txtBackRating"), back);
        type(QStringLiteral("txtBackSlope"), backSlope);
    }
    void save() const { button(QStringLiteral("cmdSave"))->click(); }
    // Let closed windows go and the view behind take the activation.
    void settle() const
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    bool formOpen() const
    {
        settle();
        return frmNewCourse::existing() != nullptr;
    }
    QVector<ShownMessage> messages() { return app.platform().takeMessages(); }
    QStringList logRows() { return columnValues(*basLogGlobals().gConnection, QLatin1String(kLogSql)); }
    QStringList holeRows() { return columnValues(*basLogGlobals().gConnection, QLatin1String(kHolesSql)); }

    frmNewCourse *form = nullptr;
};

} // namespace

TEST_F(NewCourseForm, NewCourseOpensOverTheViewsInNewModeAndLocksTheOtherCommands)
{
    openNew();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("New Course"));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmNewCourse"));
    EXPECT_TRUE(box("txtCourse")->isVisible());
    EXPECT_FALSE(findControl<QComboBox>(form, "cboCourses")->isVisible());
    auto *tees = findControl<QComboBox>(form, "cboTees");
    EXPECT_TRUE(tees->isEnabled());
    EXPECT_TRUE(tees->isEditable());
    QStringList presets;
    for (int i = 0; i < tees->count(); ++i)
        presets << tees->itemText(i);
    EXPECT_EQ(presets, (QStringList{"Championship", "Black", "Blue", "White", "Ladies White", "Red", "Gold"}));
    EXPECT_EQ(tees->currentText(), QString());
    EXPECT_FALSE(button("cmdSave")->isEnabled());
    EXPECT_TRUE(button("cmdCalculate")->isEnabled());
    EXPECT_EQ(button("cmdCalculate")->text(), QStringLiteral("C&alculate Rating/Slope"));
    EXPECT_EQ(button("cmdSave")->text(), QStringLiteral("&Save"));
    EXPECT_EQ(button("cmdCancel")->text(), QStringLiteral("&Cancel"));
    for (const char *menu : {"mnuFileNew", "mnuFilePrint", "mnuEdit", "mnuView", "mnuTools"})
        EXPECT_FALSE(enabled(QLatin1String(menu))) << menu;
    EXPECT_FALSE(frame->toolButton("NewCourse")->isEnabled());
    EXPECT_FALSE(frame->toolButton("ScoreLog")->isEnabled());

    type("txtCourse", kCourse);
    button("cmdCancel")->click();
    EXPECT_TRUE(messages().isEmpty()) << "Cancel asks nothing";
    EXPECT_FALSE(formOpen());
    EXPECT_TRUE(logRows().isEmpty());
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_TRUE(enabled("mnuView"));
    EXPECT_TRUE(enabled("mnuFileNew"));
}

TEST_F(NewCourseForm, RefusedKeysStayOutOfEveryBox)
{
    openNew();
    type("txtCourse", QStringLiteral("St. Andrew's 1st; \"Old\""));
    EXPECT_EQ(text("txtCourse"), QStringLiteral("St. Andrew's 1st; \"Old\""));
    type("txtPar_0", QStringLiteral("a2"));
    EXPECT_EQ(text("txtPar_0"), QString());
    type("txtPar_0", QStringLiteral("7"));
    EXPECT_EQ(text("txtPar_0"), QString()) << "7 is refused";
    type("txtPar_0", QStringLiteral("5"));
    EXPECT_EQ(text("txtPar_0"), QStringLiteral("5"));
    for (const char *digit : {"3", "4", "6"}) {
        box("txtPar_1")->clear();
        type("txtPar_1", QLatin1String(digit));
        EXPECT_EQ(text("txtPar_1"), QLatin1String(digit));
    }
    type("txtYards_0", QStringLiteral("0x-4.05"));
    EXPECT_EQ(text("txtYards_0"), QStringLiteral("405")) << "no leading zero, no letters, no sign or point";
    type("txtYards_1", QStringLiteral("1234"));
    EXPECT_EQ(text("txtYards_1"), QStringLiteral("123")) << "three characters";
    type("txtHdcp_0", QStringLiteral("010"));
    EXPECT_EQ(text("txtHdcp_0"), QStringLiteral("10"));
    type("txtOverallRating", QStringLiteral("7a1,.5x"));
    EXPECT_EQ(text("txtOverallRating"), QStringLiteral("71.5"));
    type("txtFrontRating", QStringLiteral("7.2.3"));
    EXPECT_EQ(text("txtFrontRating"), QStringLiteral("7.2."))
        << "points pass any number of times; four characters";
    type("txtOverallSlope", QStringLiteral("0-125"));
    EXPECT_EQ(text("txtOverallSlope"), QStringLiteral("125"));
    // Backspace passes.
    box("txtOverallSlope")->setFocus();
    box("txtOverallSlope")->end(false);
    QTest::keyClick(box("txtOverallSlope"), Qt::Key_Backspace);
    EXPECT_EQ(text("txtOverallSlope"), QStringLiteral("12"));
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(NewCourseForm, OutInAndTotalFollowTheTyping)
{
    openNew();
    for (int i = 0; i < 9; ++i)
        type(QStringLiteral("txtPar_%1").arg(i), QStringLiteral("4"));
    EXPECT_EQ(text("lblParOut"), QStringLiteral("36"));
    EXPECT_EQ(text("lblParIn"), QString());
    EXPECT_EQ(text("lblParTotal"), QStringLiteral("36"));
    type("txtPar_9", QStringLiteral("5"));
    EXPECT_EQ(text("lblParIn"), QStringLiteral("5"));
    EXPECT_EQ(text("lblParTotal"), QStringLiteral("41"));
    type("txtYards_17", QStringLiteral("450"));
    type("txtYards_0", QStringLiteral("380"));
    EXPECT_EQ(text("lblYardsOut"), QStringLiteral("380"));
    EXPECT_EQ(text("lblYardsIn"), QStringLiteral("450"));
    EXPECT_EQ(text("lblYardsTotal"), QStringLiteral("830"));
    box("txtPar_9")->setFocus();
    QTest::keyClick(box("txtPar_9"), Qt::Key_Backspace);
    EXPECT_EQ(text("lblParIn"), QString());
    EXPECT_EQ(text("lblParTotal"), QStringLiteral("36"));
    box("txtYards_0")->clear();
    box("txtYards_17")->clear();
    EXPECT_EQ(text("lblYardsOut"), QString());
    EXPECT_EQ(text("lblYardsTotal"), QString());
}

TEST_F(NewCourseForm, SaveIsOfferedOnceCourseAndTeesAreThereButTypingTheTeesAloneDoesNotOfferIt)
{
    openNew();
    type("txtCourse", kCourse);
    EXPECT_FALSE(button("cmdSave")->isEnabled());
    type("cboTees", QStringLiteral("Purple"));
    EXPECT_FALSE(button("cmdSave")->isEnabled()) << "typing into the tees runs no check";
    type("txtOverallRating", QStringLiteral("7"));
    EXPECT_TRUE(button("cmdSave")->isEnabled());
    box("txtCourse")->clear();
    EXPECT_FALSE(button("cmdSave")->isEnabled());
    type("txtCourse", kCourse);
    auto *tees = findControl<QComboBox>(form, "cboTees");
    tees->setEditText(QString());
    box("txtCourse")->setText(kCourse + "s");
    EXPECT_FALSE(button("cmdSave")->isEnabled());
    tees->setCurrentIndex(3);
    emit tees->activated(3);
    EXPECT_TRUE(button("cmdSave")->isEnabled()) << "a choice from the list";
}

TEST_F(NewCourseForm, AnEighteenHoleCourseWithTwoSetsOfTeesIsSavedColumnByColumn)
{
    EXPECT_EQ(basLogGlobals().gCourseCount, 0);
    EXPECT_FALSE(enabled("mnuEditCourse"));
    EXPECT_FALSE(enabled("mnuViewCourseInfo"));
    EXPECT_FALSE(enabled("mnuDeleteCourse"));

    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    typeRatings("71.5", "125", "35.7", "124", "35.8", "126");
    typeHoles(0, 18, 1);
    EXPECT_EQ(text("lblParTotal"), QStringLiteral("72"));
    EXPECT_EQ(text("lblYardsOut"), QStringLiteral("3060"));
    EXPECT_EQ(text("lblYardsIn"), QStringLiteral("3870"));
    EXPECT_EQ(form->property("unsavedInput").toBool(), true);
    save();
    QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0],
                  "Course information for the White tees at Pebble Creek has been saved.  You can now enter "
                  "scores for rounds played at this course.",
                  MsgIcon::Information, "New Course");
    EXPECT_FALSE(formOpen());
    EXPECT_EQ(basLogGlobals().gCourseCount, 1);
    EXPECT_TRUE(enabled("mnuEditCourse")) << "the course count enables the course commands";
    EXPECT_TRUE(enabled("mnuViewCourseInfo"));
    EXPECT_TRUE(enabled("mnuDeleteCourse"));

    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("Blue"));
    typeRatings("73.1", "131", "36.5", "130", "36.6", "132");
    typeHoles(0, 18, 1, 350);
    save();
    shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, "Course information for the Blue tees at Pebble Creek has been saved.  You can now "
                             "enter scores for rounds played at this course.");
    EXPECT_EQ(basLogGlobals().gCourseCount, 2) << "a count of sets of tees";

    EXPECT_EQ(logRows(), (QStringList{"Pebble Creek|Blue|73.1|131|36.5|130|36.6|132|4320|3510|7830|36|36|72",
                                      "Pebble Creek|White|71.5|125|35.7|124|35.8|126|3870|3060|6930|36|36|72"}));
    const QStringList holes = holeRows();
    ASSERT_EQ(holes.size(), 36);
    EXPECT_EQ(holes.at(0), QStringLiteral("Blue|1|4|1|350"));
    EXPECT_EQ(holes.at(17), QStringLiteral("Blue|18|5|18|520"));
    EXPECT_EQ(holes.at(20), QStringLiteral("White|3|3|3|320"));
}

TEST_F(NewCourseForm, ANineHoleCourseKeepsItsFrontNineOnly)
{
    openNew();
    type("txtCourse", QStringLiteral("Short Links"));
    type("cboTees", QStringLiteral("Red"));
    typeRatings("", "", "33.2", "110");
    typeHoles(0, 9, 1);
    save();
    ASSERT_EQ(messages().size(), 1);
    EXPECT_EQ(logRows(), (QStringList{"Short Links|Red|||33.2|110||||3060|3060||36|36"}));
    EXPECT_EQ(holeRows().size(), 9);
    EXPECT_EQ(holeRows().last(), QStringLiteral("Red|9|5|9|380"));
}

TEST_F(NewCourseForm, SameCourseAndTeesAreRefusedWithTheFocusOnTheName)
{
    addCourse(*basLogGlobals().gConnection, CourseSpec{"St. Andrew's", "White"});
    openNew();
    type("txtCourse", QStringLiteral("st. andrew's"));
    type("cboTees", QStringLiteral("WHITE"));
    typeRatings("72.1", "130");
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "Course already exists.  Please change the course name or select a different set of tees.",
                  MsgIcon::Exclamation, "Save Course Data");
    EXPECT_TRUE(formOpen());
    EXPECT_EQ(frame->focusWidget(), box("txtCourse"));
    EXPECT_EQ(logRows().size(), 1);

    findControl<QComboBox>(form, "cboTees")->setEditText(QStringLiteral("Blue"));
    save();
    ASSERT_EQ(messages().size(), 1);
    EXPECT_EQ(Scalar(*basLogGlobals().gConnection, "SELECT COUNT(*) FROM CourseLog WHERE CourseName = ?",
                     {"St. Andrew's"}).toInt(),
              2);
}

TEST_F(NewCourseForm, EachStopOutcomeShowsItsMessageAndMovesTheFocus)
{
    struct Step {
        std::function<void(NewCourseForm &)> change;
        const char *message;
        const char *focus; // empty: the focus stays on Save
    };
    const Step steps[] = {
        {[](NewCourseForm &t) { t.clearAndType("txtOverallSlope", "54"); },
         "Invalid overall (18-hole) slope.  Please enter a value from 55 to 155.", "txtOverallSlope"},
        {[](NewCourseForm &t) { t.clearAndType("txtOverallSlope", "125"); t.clearAndType("txtFrontSlope", "200"); },
         "Invalid front 9 slope.  Please enter a value from 55 to 155.", "txtFrontSlope"},
        {[](NewCourseForm &t) { t.box("txtFrontRating")->clear(); t.box("txtFrontSlope")->clear(); t.clearAndType("txtBackSlope", "40"); },
         "Invalid back 9 slope.  Please enter a value from 55 to 155.", "txtBackSlope"},
        {[](NewCourseForm &t) { t.clearAndType("txtBackSlope", "126"); t.box("txtBackRating")->clear(); t.box("txtOverallSlope")->clear(); },
         "Please enter the overall (18-hole) course slope.", "txtOverallSlope"},
        {[](NewCourseForm &t) { t.box("txtOverallRating")->clear(); },
         "Please enter course rating information for either the overall (18-hole) course, the front 9, or the back 9.",
         "txtOverallRating"},
        {[](NewCourseForm &t) { t.type("txtBackRating", "36"); t.box("txtBackSlope")->clear(); },
         "Please enter course slope information for either the overall (18-hole) course, the front 9 or the back 9.",
         "txtOverallRating"},
        {[](NewCourseForm &t) { t.type("txtFrontRating", "36"); t.type("txtFrontSlope", "120"); t.type("txtBackSlope", "121"); t.type("txtOverallSlope", "122"); },
         "Please enter the overall (18-hole) course rating.", "txtOverallRating"},
        {[](NewCourseForm &t) { t.type("txtOverallRating", "72"); t.typeHoles(0, 18, 1); t.clearAndType("txtHdcp_17", "17"); t.messages(); },
         "Handicap error!  Please make sure that the same handicap has not been assigned to more than one hole.", ""},
        {[](NewCourseForm &t) { t.box("txtCourse")->clear(); }, "Please enter the course name.", "txtCourse"},
        {[](NewCourseForm &t) { t.type("txtCourse", "Pebble Creek"); findControl<QComboBox>(t.form, "cboTees")->setEditText(QString()); t.type("txtOverallRating", ""); },
         "Please enter the tees.", "cboTees"},
    };
    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    typeRatings("71.5", "125", "35.7", "124", "35.8", "126");
    for (const Step &s : steps) {
        s.change(*this);
        button("cmdSave")->setEnabled(true); // the blank-name cases are reached by the rule, not the button
        button("cmdSave")->setFocus();
        save();
        const QVector<ShownMessage> shown = messages();
        ASSERT_EQ(shown.size(), 1) << s.message;
        expectMessage(shown[0], QLatin1String(s.message), MsgIcon::Exclamation, "Save Course Data");
        QWidget *expected = *s.focus ? form->findChild<QWidget *>(QLatin1String(s.focus)) : button("cmdSave");
        QWidget *focus = frame->focusWidget();
        if (auto *combo = qobject_cast<QComboBox *>(expected))
            EXPECT_TRUE(focus == combo || focus == combo->lineEdit()) << s.message;
        else
            EXPECT_EQ(focus, expected) << s.message;
        EXPECT_TRUE(formOpen());
    }
    EXPECT_TRUE(logRows().isEmpty());
}

TEST_F(NewCourseForm, AMissingFrontDetailPromptsAndOkSavesTheRatingsWithoutHoles)
{
    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    typeRatings("71.5", "125");
    typeHoles(0, 18, 1);
    box("txtYards_4")->clear();

    app.platform().answer(MsgAnswer::Cancel);
    save();
    QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0],
                  "Hole details for the front 9 are missing.  Press OK to save course data WITHOUT details or "
                  "Cancel to enter missing details.",
                  MsgIcon::None, "Save Course Data", MsgButtons::OKCancel);
    EXPECT_TRUE(formOpen());
    EXPECT_TRUE(logRows().isEmpty());

    app.platform().answer(MsgAnswer::OK);
    save();
    shown = messages();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[1].icon, MsgIcon::Information);
    EXPECT_FALSE(formOpen());
    EXPECT_EQ(logRows(), (QStringList{"Pebble Creek|White|71.5|125||||||||||"}));
    EXPECT_TRUE(holeRows().isEmpty());
}

TEST_F(NewCourseForm, AMissingBackDetailPromptsToo)
{
    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    typeRatings("71.5", "125");
    typeHoles(0, 18, 1);
    box("txtPar_13")->clear();
    app.platform().answer(MsgAnswer::Cancel);
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, "Hole details for the back 9 are missing.  Press OK to save course data WITHOUT "
                             "details or Cancel to enter missing details.");
    EXPECT_TRUE(formOpen());
}

TEST_F(NewCourseForm, AFrontRatingWithoutItsSlopeSavesSilentlyWithoutDetails)
{
    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    typeRatings("", "", "70.0", "", "35.8", "126");
    typeHoles(0, 18, 1);
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1) << "only the saved message";
    EXPECT_EQ(shown[0].icon, MsgIcon::Information);
    EXPECT_EQ(logRows(), (QStringList{"Pebble Creek|White|||70||35.8|126||||||"}));
    EXPECT_TRUE(holeRows().isEmpty());
}

TEST_F(NewCourseForm, AnAllBlankGridWithAnOverallPairSavesWithoutAPrompt)
{
    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    typeRatings("71.5", "125");
    save();
    ASSERT_EQ(messages().size(), 1);
    EXPECT_EQ(logRows(), (QStringList{"Pebble Creek|White|71.5|125||||||||||"}));
}

TEST_F(NewCourseForm, AHoleHandicapOutOfRangeIsToldAndStaysAsTyped)
{
    openNew();
    type("txtHdcp_3", QStringLiteral("19"));
    QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "Invalid handicap!  Please enter a value from 1 to 18", MsgIcon::Exclamation,
                  "Save Course Data");
    EXPECT_EQ(text("txtHdcp_3"), QStringLiteral("19"));
    box("txtHdcp_3")->clear();
    type("txtHdcp_3", QStringLiteral("18"));
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(NewCourseForm, SpinnerButtonsStepAndABlankRatingDecreaseIsAFailureTheUserSees)
{
    openNew();
    click("cmdOverallRatingInc");
    EXPECT_EQ(text("txtOverallRating"), QStringLiteral("0.1"));
    click("cmdOverallRatingInc");
    EXPECT_EQ(text("txtOverallRating"), QStringLiteral(".2"));
    click("cmdFrontRatingDec");
    QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "Run-time error '13':\n\nType mismatch", MsgIcon::Critical, "Quillon for Golf");
    EXPECT_EQ(text("txtFrontRating"), QString());
    EXPECT_TRUE(formOpen()) << "the program goes on";

    click("cmdBackSlopeInc");
    shown = messages();
    ASSERT_EQ(shown.size(), 1) << "a blank slope passes its test and then fails";
    EXPECT_EQ(shown[0].text, QStringLiteral("Run-time error '13':\n\nType mismatch"));
    click("cmdBackSlopeDec");
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_EQ(text("txtBackSlope"), QString());

    type("txtOverallSlope", QStringLiteral("153"));
    for (int i = 0; i < 4; ++i)
        click("cmdOverallSlopeInc");
    EXPECT_EQ(text("txtOverallSlope"), QStringLiteral("155"));
    clearAndType("txtOverallSlope", QStringLiteral("40"));
    click("cmdOverallSlopeInc");
    EXPECT_EQ(text("txtOverallSlope"), QStringLiteral("41"));
    click("cmdOverallSlopeDec");
    EXPECT_EQ(text("txtOverallSlope"), QStringLiteral("41"));
    clearAndType("txtFrontSlope", QStringLiteral("57"));
    for (int i = 0; i < 4; ++i)
        click("cmdFrontSlopeDec");
    EXPECT_EQ(text("txtFrontSlope"), QStringLiteral("55"));
    // The Up and Down keys in a box work its buttons.
    box("txtFrontSlope")->setFocus();
    QTest::keyClick(box("txtFrontSlope"), Qt::Key_Up);
    EXPECT_EQ(text("txtFrontSlope"), QStringLiteral("56"));
    clearAndType("txtBackRating", QStringLiteral("36"));
    QTest::keyClick(box("txtBackRating"), Qt::Key_Down);
    EXPECT_EQ(text("txtBackRating"), QStringLiteral("35.9"));
}

TEST_F(NewCourseForm, PastedLettersInASlopeAreATypeMismatchAndTheFormStaysOpen)
{
    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    type("txtOverallRating", QStringLiteral("71.5"));
    QApplication::clipboard()->setText(QStringLiteral("abc"));
    box("txtOverallSlope")->setFocus();
    box("txtOverallSlope")->paste();
    ASSERT_EQ(text("txtOverallSlope"), QStringLiteral("abc")) << "pasting is not typing";
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "Error 13: Type mismatch", MsgIcon::Critical, "Quillon for Golf");
    EXPECT_TRUE(formOpen());
    EXPECT_EQ(text("txtOverallSlope"), QStringLiteral("abc")) << "nothing typed is lost";
    EXPECT_TRUE(logRows().isEmpty());
}

TEST_F(NewCourseForm, ARatingThatIsNotANumberFailsAtTheWriteAndNothingIsStored)
{
    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    typeRatings("7.2.", "125");
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "Error 13: Type mismatch", MsgIcon::Critical, "Quillon for Golf");
    EXPECT_FALSE(formOpen()) << "a failed write ends the save as a finished one does";
    EXPECT_TRUE(logRows().isEmpty());
    EXPECT_EQ(basLogGlobals().gCourseCount, 0);
}

TEST_F(NewCourseForm, ADatabaseFailureWhileCheckingShowsItsNumberAndKeepsTheForm)
{
    openNew();
    type("txtCourse", QStringLiteral("St. Andrew's"));
    type("cboTees", QStringLiteral("White"));
    typeRatings("71.5", "125");
    Exec(*basLogGlobals().gConnection, "ALTER TABLE CourseLog RENAME TO CourseLogGone");
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown[0].text.startsWith(QStringLiteral("Error 3201: "))) << shown[0].text.toStdString();
    EXPECT_TRUE(shown[0].text.contains(QStringLiteral("CourseLog")));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    EXPECT_TRUE(formOpen());
    EXPECT_EQ(text("txtCourse"), QStringLiteral("St. Andrew's"));
}

TEST_F(NewCourseForm, ADuplicateKeyWhileWritingIsToldAsExistingTeesAndNothingIsHalfWritten)
{
    // A key the holes of one set cannot share: the second hole row collides.
    Exec(*basLogGlobals().gConnection, "CREATE UNIQUE INDEX OneHolePerCourse ON CourseDetails (CourseName)");
    openNew();
    type("txtCourse", kCourse);
    type("cboTees", QStringLiteral("White"));
    typeRatings("71.5", "125");
    typeHoles(0, 18, 1);
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0],
                  "Data for the White tees on Pebble Creek already exists.  Please select different tees or use "
                  "the Edit/Course menu option to update the course data.",
                  MsgIcon::Exclamation, "Save Course Data");
    EXPECT_TRUE(formOpen());
    EXPECT_TRUE(logRows().isEmpty());
    EXPECT_TRUE(holeRows().isEmpty());
}

TEST_F(NewCourseForm, EditShowsTheStoredTeesAndWritesAddedChangedAndRemovedHoles)
{
    CourseSpec white;
    white.name = kCourse;
    white.tees = QStringLiteral("White");
    addCourse(*basLogGlobals().gConnection, white);
    Exec(*basLogGlobals().gConnection,
         "UPDATE CourseLog SET ParOut = 36, ParIn = 36, TotalPar = 72, YardsOut = 3000, YardsIn = 3100, "
         "TotalYards = 6100, BackRating = 0");
    Exec(*basLogGlobals().gConnection, "UPDATE CourseDetails SET Yards = 300 + Hole, Handicap = Hole");
    Exec(*basLogGlobals().gConnection, "DELETE FROM CourseDetails WHERE Hole = 5");
    basLogGlobals().gCourseCount = 1;

    openEdit(kCourse, QStringLiteral("white"));
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Edit Course"));
    EXPECT_TRUE(findControl<QComboBox>(form, "cboCourses")->isVisible());
    EXPECT_FALSE(box("txtCourse")->isVisible());
    EXPECT_EQ(text("cboCourses"), kCourse);
    EXPECT_EQ(text("cboTees"), QStringLiteral("White"));
    EXPECT_EQ(text("txtCourse"), kCourse) << "the course is copied to the hidden name box";
    EXPECT_EQ(text("txtOverallRating"), QStringLiteral("71.5"));
    EXPECT_EQ(text("txtOverallSlope"), QStringLiteral("125"));
    EXPECT_EQ(text("txtBackRating"), QString()) << "0 is not entered";
    EXPECT_EQ(text("txtBackSlope"), QStringLiteral("126"));
    EXPECT_EQ(text("txtPar_4"), QString()) << "a hole without a row stays blank";
    EXPECT_EQ(text("txtYards_17"), QStringLiteral("318"));
    EXPECT_FALSE(button("cmdSave")->isEnabled());
    EXPECT_FALSE(form->property("unsavedInput").toBool());

    // The fifth hole added, the third changed, the back nine removed.
    type("txtPar_4", QStringLiteral("4"));
    type("txtYards_4", QStringLiteral("305"));
    type("txtHdcp_4", QStringLiteral("5"));
    clearAndType("txtYards_2", QStringLiteral("333"));
    for (int i = 9; i < 18; ++i)
        for (const char *row : {"txtPar_%1", "txtYards_%1", "txtHdcp_%1"})
            box(QString::fromLatin1(row).arg(i))->clear();
    clearAndType("txtBackSlope", QString());
    for (int i = 0; i < 9; ++i)
        clearAndType(QStringLiteral("txtHdcp_%1").arg(i), QString::number(i + 1));
    messages();
    EXPECT_TRUE(button("cmdSave")->isEnabled());
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "Course information has been updated.", MsgIcon::Information, "Edit Course");
    EXPECT_FALSE(formOpen());
    EXPECT_EQ(logRows(), (QStringList{"Pebble Creek|White|71.5|125|35.7|124|0|0|0|2775|2775|0|36|36"}));
    const QStringList holes = holeRows();
    ASSERT_EQ(holes.size(), 9);
    EXPECT_EQ(holes.at(2), QStringLiteral("White|3|3|3|333"));
    EXPECT_EQ(holes.at(4), QStringLiteral("White|5|4|5|305"));
}

TEST_F(NewCourseForm, EditFromTheLogTakesTheSelectedRoundsTeesAndNewTeesAddASet)
{
    Connection &c = *basLogGlobals().gConnection;
    addCourse(c, CourseSpec{kCourse, "White"});
    addCourse(c, CourseSpec{kCourse, "Blue"});
    RoundSpec r;
    r.tees = QStringLiteral("Blue");
    addRound(c, r);
    basLogGlobals().gCourseCount = 1;
    frame->RefreshActiveView();
    auto *log = qobject_cast<frmScoreLog *>(frame->views().loaded("frmScoreLog"));
    ASSERT_NE(log, nullptr);
    log->selectRow(0);
    frame->UpdateMenus(QStringLiteral("frmScoreLog"));
    ASSERT_TRUE(enabled("mnuEditCourse"));
    item("mnuEditCourse")->trigger();
    form = frmNewCourse::existing();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(text("cboCourses"), kCourse);
    EXPECT_EQ(text("cboTees"), QStringLiteral("Blue"));
    EXPECT_EQ(text("txtBackRating"), QStringLiteral("35.8"));

    auto *tees = findControl<QComboBox>(form, "cboTees");
    tees->lineEdit()->selectAll();
    QTest::keyClicks(tees->lineEdit(), QStringLiteral("Gold"));
    clearAndType("txtOverallRating", QStringLiteral("69.9"));
    save();
    ASSERT_EQ(messages().size(), 1);
    EXPECT_EQ(Scalar(c, "SELECT OverallRating FROM CourseLog WHERE Tees = 'Gold'").toDouble(), 69.9);
    EXPECT_EQ(Scalar(c, "SELECT COUNT(*) FROM CourseDetails WHERE Tees = 'Gold'").toInt(), 18);
    EXPECT_EQ(Scalar(c, "SELECT OverallRating FROM CourseLog WHERE Tees = 'Blue'").toDouble(), 71.5);
}

TEST_F(NewCourseForm, EditWithoutCoursesSaysSoAndCloses)
{
    frmNewCourse::instance().EditCourse(QString(), QString());
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0],
                  "There are no courses in the database.  Please select New Course from the File menu to enter a "
                  "course.",
                  MsgIcon::Critical, "Edit Course");
    EXPECT_FALSE(formOpen());
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
}

TEST_F(NewCourseForm, ClosingTheProgramWithTypedInputAsksFirst)
{
    openNew();
    type("txtCourse", kCourse);
    app.platform().answer(MsgAnswer::No);
    EXPECT_FALSE(frame->close());
    QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("You have entered information that has not been saved.  Close "
                                            "Quillon for Golf and lose it?"));
    EXPECT_TRUE(formOpen());
}

TEST_F(NewCourseForm, TabFollowsTheReadingOrder)
{
    openNew();
    QApplication::setActiveWindow(frame);
    const QStringList visited = TabWalk(box("txtCourse"), 70);
    const auto at = [&](const char *name) { return visited.indexOf(QLatin1String(name)); };
    ASSERT_GE(at("txtCourse"), 0);
    EXPECT_EQ(at("cboTees"), at("txtCourse") + 1);
    EXPECT_EQ(at("txtOverallRating"), at("cboTees") + 1);
    EXPECT_EQ(at("txtOverallSlope"), at("txtOverallRating") + 1);
    EXPECT_EQ(at("txtFrontRating"), at("txtOverallSlope") + 1);
    EXPECT_EQ(at("txtPar_0"), at("txtFrontSlope") + 1);
    EXPECT_EQ(at("txtYards_0"), at("txtPar_8") + 1);
    EXPECT_EQ(at("txtBackRating"), at("txtHdcp_8") + 1);
    EXPECT_EQ(at("txtPar_9"), at("txtBackSlope") + 1);
    EXPECT_EQ(at("cmdCalculate"), at("txtHdcp_17") + 1);
    EXPECT_EQ(at("cmdCancel"), at("cmdCalculate") + 1) << "the disabled Save is passed over";
}

TEST_F(NewCourseForm, EscapeCancelsInEitherMode)
{
    openNew();
    addCourse(*basLogGlobals().gConnection, CourseSpec{kCourse, "White"});
    type("txtCourse", kCourse);
    QTest::keyClick(box("txtCourse"), Qt::Key_Escape);
    EXPECT_FALSE(formOpen());
    openEdit(kCourse, QStringLiteral("White"));
    QTest::keyClick(box("txtOverallRating"), Qt::Key_Escape);
    EXPECT_FALSE(formOpen());
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_EQ(logRows().size(), 1);
}

TEST_F(NewCourseForm, F1OpensTheHelpOfTheMode)
{
    addCourse(*basLogGlobals().gConnection, CourseSpec{kCourse, "White"});
    openEdit(kCourse, QStringLiteral("White"));
    QTest::keyClick(box("txtOverallRating"), Qt::Key_F1);
    form->parentWidget()->close();
    settle();
    openNew();
    QTest::keyClick(box("txtCourse"), Qt::Key_F1);
    EXPECT_EQ(app.platform().helpAnchors(), (QStringList{"course.html#edit", "course.html#new"}));
}

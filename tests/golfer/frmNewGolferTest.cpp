#include "golfer/frmNewGolfer.h"
#include "FrameFixture.h"
#include "golfer/GolferNames.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

QStringList listItems(QWidget *dialog)
{
    QStringList out;
    auto *list = findControl<QListWidget>(dialog, QStringLiteral("lstGolferList"));
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text();
    return out;
}

class NewGolfer : public FrameFixture {
protected:
    // The golfers stored, read through a connection of the test's own: Exit releases the program's.
    QStringList golfers()
    {
        ConnectionPtr c = OpenDatabase(app.file(QStringLiteral("Quillon.qdl")));
        return columnValues(
            *c, QStringLiteral(
                    "SELECT LastName, FirstName, Gender, Handicap FROM HandicapLog ORDER BY LastName"));
    }
};

} // namespace

TEST(GolferNames, ParseTakesEitherForm)
{
    EXPECT_EQ(ParseGolferName(QStringLiteral("Smith, John"), {}), (GolferName{"Smith", "John"}));
    EXPECT_EQ(ParseGolferName(QStringLiteral("John Smith"), {}), (GolferName{"Smith", "John"}));
    EXPECT_EQ(ParseGolferName(QStringLiteral("Van der Berg, Jan"), {}), (GolferName{"Van der Berg", "Jan"}));
    EXPECT_EQ(ParseGolferName(QStringLiteral("Jan Van der Berg"), {}), (GolferName{"Van der Berg", "Jan"}));
    EXPECT_EQ(ParseGolferName(QStringLiteral("O'Brien,Pat"), {}), (GolferName{"O'Brien", "Pat"}));
    // Neither comma nor blank: the name stands as it was.
    EXPECT_EQ(ParseGolferName(QStringLiteral("Smith"), {}), (GolferName{}));
    EXPECT_EQ(ParseGolferName(QStringLiteral("Smith"), {"Doe", "Jane"}), (GolferName{"Doe", "Jane"}));
}

TEST(GolferNames, TypedNameInOtherCaseChoosesTheStoredGolfer)
{
    const QStringList items = {"Palmer, Arnold", "O'Brien, Pat"};
    GolferChoice c = ChooseGolfer(items, -1, QStringLiteral("PAT O'BRIEN"), {});
    EXPECT_FALSE(c.isNew);
    EXPECT_EQ(c.chosen, (GolferName{"O'Brien", "Pat"}));
    c = ChooseGolfer(items, 0, QStringLiteral("whatever"), {});
    EXPECT_FALSE(c.isNew);
    EXPECT_EQ(c.chosen, (GolferName{"Palmer", "Arnold"}));
    c = ChooseGolfer(items, -1, QStringLiteral("Nicklaus, Jack"), {});
    EXPECT_TRUE(c.isNew);
    EXPECT_EQ(c.parsed, (GolferName{"Nicklaus", "Jack"}));
    c = ChooseGolfer({}, -1, QStringLiteral("Jack Nicklaus"), {});
    EXPECT_TRUE(c.isNew);
    EXPECT_EQ(c.parsed, (GolferName{"Nicklaus", "Jack"}));
}

TEST_F(NewGolfer, FirstRunShowsAnEmptyListAndExitAndTheNameMustBeTyped)
{
    QStringList seen;
    QString cancel;
    bool okEnabled = true;
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        seen = listItems(d);
        cancel = findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->text();
        okEnabled = findControl<QPushButton>(d, QStringLiteral("cmdOK"))->isEnabled();
        EXPECT_EQ(d->windowTitle(), QStringLiteral("New Golfer"));
        EXPECT_TRUE(findControl<QLineEdit>(d, QStringLiteral("txtGolfer"))->hasFocus());
        auto *box = findControl<QLineEdit>(d, QStringLiteral("txtGolfer"));
        QTest::keyClicks(box, QStringLiteral("Smith, John"));
        EXPECT_TRUE(findControl<QPushButton>(d, QStringLiteral("cmdOK"))->isEnabled());
        box->clear();
        EXPECT_FALSE(findControl<QPushButton>(d, QStringLiteral("cmdOK"))->isEnabled());
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmNewGolfer::instance().GetNewGolfer();
    EXPECT_TRUE(seen.isEmpty());
    EXPECT_EQ(cancel, QStringLiteral("E&xit"));
    EXPECT_FALSE(okEnabled);
}

TEST_F(NewGolfer, NewGolferIsAddedAskedGenderAndShownWithoutHandicap)
{
    chooseGolfer(QStringLiteral("O'Brien, Pat"), true);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Add golfer Pat O'Brien?"));
    EXPECT_EQ(shown[0].icon, MsgIcon::Question);
    EXPECT_EQ(shown[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(shown[0].title, QStringLiteral("New Golfer"));
    EXPECT_EQ(golfers(), QStringList{"O'Brien|Pat|M|-1000"});
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("O'Brien"));
    EXPECT_EQ(basLogGlobals().gFirstName, QStringLiteral("Pat"));
    EXPECT_EQ(panelText("GolferName"), QStringLiteral("Golfer: Pat O'Brien"));
    EXPECT_EQ(panelText("Handicap"), QStringLiteral("Handicap: (not calculated)"));
    EXPECT_FALSE(enabled("mnuToolsCourseHdcpCalculator"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_TRUE(frame->mdiArea()->activeSubWindow()->isMaximized());
}

TEST_F(NewGolfer, FirstNameLastNameFormAddsTheSameGolfer)
{
    chooseGolfer(QStringLiteral("Anne D'Arcy"), true);
    expectMessages(app.platform(), {"Add golfer Anne D'Arcy?"});
    EXPECT_EQ(golfers(), QStringList{"D'Arcy|Anne|M|-1000"});
}

TEST_F(NewGolfer, StoredNameTypedInCapitalsChoosesTheStoredGolferWithoutAQuestion)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"), QStringLiteral("M"));
    chooseGolfer(QStringLiteral("ARNOLD PALMER"));
    EXPECT_TRUE(app.platform().messages().isEmpty());
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("Palmer"));
    EXPECT_EQ(basLogGlobals().gFirstName, QStringLiteral("Arnold"));
    EXPECT_EQ(golfers(), QStringList{"Palmer|Arnold|M|-1000"});
    EXPECT_EQ(panelText("GolferName"), QStringLiteral("Golfer: Arnold Palmer"));
}

TEST_F(NewGolfer, ExistingGolferHasTheHandicapRunAndShown)
{
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("M"));
    addWeeklyRounds(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"), QDate(2026, 3, 1),
                    {10.0, 12.5, 9.2, 14.1, 11.0});
    chooseGolfer(QStringLiteral("o'brien, pat"));
    EXPECT_EQ(panelText("Handicap"), QStringLiteral("Handicap: 8.8"));
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), 8.8);
}

TEST_F(NewGolfer, ClickOnARowCopiesItAndDoubleClickChoosesIt)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    QString copied;
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        auto *list = findControl<QListWidget>(d, QStringLiteral("lstGolferList"));
        QListWidgetItem *obrien = list->findItems(QStringLiteral("O'Brien, Pat"), Qt::MatchExactly).value(0);
        ASSERT_NE(obrien, nullptr);
        QApplication::processEvents();
        const QRect r = list->visualItemRect(obrien);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, r.center());
        copied = findControl<QLineEdit>(d, QStringLiteral("txtGolfer"))->text();
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, r.center());
    });
    frmNewGolfer::instance().GetNewGolfer();
    EXPECT_EQ(copied, QStringLiteral("O'Brien, Pat"));
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("O'Brien"));
}

TEST_F(NewGolfer, OneWordIsAnInvalidNameAndTheDialogStands)
{
    bool stillOpen = false;
    QString selected;
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        auto *box = findControl<QLineEdit>(d, QStringLiteral("txtGolfer"));
        QTest::keyClicks(box, QStringLiteral("Smith"));
        QTest::keyClick(box, Qt::Key_Return);
        stillOpen = d->isVisible();
        selected = box->selectedText();
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmNewGolfer::instance().GetNewGolfer();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Invalid Name -- Please enter a first and last name."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("New Golfer"));
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(selected, QStringLiteral("Smith"));
    EXPECT_TRUE(golfers().isEmpty());
}

TEST_F(NewGolfer, AnsweringNoEmptiesTheBoxAndTheDialogStands)
{
    app.platform().answer(MsgAnswer::No);
    QString after = QStringLiteral("unchanged");
    bool stillOpen = false;
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        auto *box = findControl<QLineEdit>(d, QStringLiteral("txtGolfer"));
        QTest::keyClicks(box, QStringLiteral("Nicklaus, Jack"));
        findControl<QPushButton>(d, QStringLiteral("cmdOK"))->click();
        after = box->text();
        stillOpen = d->isVisible();
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmNewGolfer::instance().GetNewGolfer();
    expectMessages(app.platform(), {"Add golfer Jack Nicklaus?"});
    EXPECT_EQ(after, QString());
    EXPECT_TRUE(stillOpen);
    EXPECT_TRUE(golfers().isEmpty());
}

TEST_F(NewGolfer, EnterInAnEmptyBoxAsksForAName)
{
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        QTest::keyClick(findControl<QLineEdit>(d, QStringLiteral("txtGolfer")), Qt::Key_Return);
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmNewGolfer::instance().GetNewGolfer();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text,
              QStringLiteral("Please select a golfer from the list or \nenter the name of a new golfer."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown[0].title, QStringLiteral("ERROR:  New Golfer"));
}

TEST_F(NewGolfer, AfterAChoiceCancelReadsCancelAndBringsTheViewBack)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    item("mnuNewGolfer")->setEnabled(true);
    QString cancel;
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        cancel = findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->text();
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    item("mnuNewGolfer")->trigger();
    EXPECT_EQ(cancel, QStringLiteral("&Cancel"));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog")) << "the view came back";
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("Palmer"));
    EXPECT_NE(basLogGlobals().gConnection, nullptr);
}

TEST_F(NewGolfer, SwitchingGolfersShowsTheOtherGolfersLog)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    RoundSpec r;
    r.last = QStringLiteral("O'Brien");
    r.first = QStringLiteral("Pat");
    addRound(app.db(), r);
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    EXPECT_EQ(basLogGlobals().gScoreLog->rows().rowCount(), 0);
    chooseGolfer(QStringLiteral("Pat O'Brien"));
    EXPECT_EQ(basLogGlobals().gScoreLog->rows().rowCount(), 1);
    EXPECT_EQ(panelText("GolferName"), QStringLiteral("Golfer: Pat O'Brien"));
    EXPECT_EQ(frame->mdiArea()->subWindowList().size(), 1) << "one view open";
}

TEST_F(NewGolfer, DialogStandsCentredOnTheFrame)
{
    QRect dialog;
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        dialog = d->frameGeometry();
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmNewGolfer::instance().GetNewGolfer();
    const QRect outer = frame->frameGeometry();
    EXPECT_EQ(dialog.left(), outer.left() + outer.width() / 2 - dialog.width() / 2);
    EXPECT_EQ(dialog.top(), outer.top() + outer.height() / 2 - dialog.height() / 2);
}

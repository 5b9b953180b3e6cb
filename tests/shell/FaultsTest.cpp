// The program running over a real database file when the ground moves under it: the file made
// read-only, deleted, or out of room while the frame stands with a golfer chosen.  Each time the
// user is told, nothing crashes, and every row saved before is still in the file.
//
// Tests run as root here, and root writes through any permission, so the faults are made by means
// that hold for every user: the engine's own read-only switch, an unlinked file, and the engine's
// own limit on the size of the file.
#include "FileFixtures.h"
#include "FrameFixture.h"
#include "score/frmScore.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

const int kPars[18] = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};
const QString kRoundsOfPalmer = QStringLiteral(
    "SELECT Date, Score, AdjustedScore, Differential, Used FROM ScoreLog WHERE LastName = 'Palmer' ORDER BY Date");

class Faults : public FrameFixture {
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
        addCourse(app.db());
        RoundSpec r;
        r.details = true;
        addSeason(app.db(), r, 40);
        startWithPalmer();
        settle();
        saved = DatabaseRows(app.db());
        ASSERT_GT(saved.size(), 40 * 19);
    }

    void TearDown() override
    {
        if (frmScore *form = frmScore::existing())
            findControl<QPushButton>(form, QStringLiteral("cmdCancel"))->click();
        settle();
        FrameFixture::TearDown();
    }

    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    QString working() const { return app.file(QStringLiteral("Quillon.qdl")); }

    // An 18-hole round on Pebble Creek, one over par on every hole, typed into a new score form
    // and saved; the form is left as the save left it.
    void typeAndSaveRound(const QString &date)
    {
        item(QStringLiteral("mnuNewScore"))->trigger();
        frmScore *form = frmScore::existing();
        ASSERT_NE(form, nullptr);
        ChooseItem(findControl<QComboBox>(form, QStringLiteral("cboCourses")), QStringLiteral("Pebble Creek"));
        typeInBox(form, QStringLiteral("txtDate"), date);
        for (int i = 0; i < 18; ++i) {
            typeInBox(form, QStringLiteral("txtScore_%1").arg(i), QString::number(kPars[i] + 1));
            typeInBox(form, QStringLiteral("txtPutts_%1").arg(i), QStringLiteral("2"));
        }
        findControl<QPushButton>(form, QStringLiteral("cmdSave"))->click();
        settle();
    }

    // The save failed: one critical message with the program's title, and the form still open
    // with the round as typed, so that the user can save it again once the fault is gone.
    void expectFailedSave(const QString &text)
    {
        const QVector<ShownMessage> shown = app.platform().takeMessages();
        ASSERT_EQ(shown.size(), 1) << (shown.isEmpty() ? "" : shown.last().text.toStdString());
        expectMessage(shown[0], text, MsgIcon::Critical, QStringLiteral("Quillon for Golf"));
        frmScore *form = frmScore::existing();
        ASSERT_NE(form, nullptr) << "the form stays open after a failed save";
        EXPECT_EQ(findControl<QLineEdit>(form, QStringLiteral("txtScore_0"))->text(), QStringLiteral("5"));
    }

    // The user presses Save again on the open form.
    void saveAgain()
    {
        frmScore *form = frmScore::existing();
        ASSERT_NE(form, nullptr);
        findControl<QPushButton>(form, QStringLiteral("cmdSave"))->click();
        settle();
        EXPECT_TRUE(app.platform().takeMessages().isEmpty());
        EXPECT_EQ(frmScore::existing(), nullptr) << "saved and closed";
    }

    static void typeInBox(QWidget *form, const QString &name, const QString &text)
    {
        auto *box = findControl<QLineEdit>(form, name);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
    }

    // The lines of one table among the lines of a whole database.
    static QStringList rowsOf(const QStringList &rows, const char *table)
    {
        const QString prefix = QLatin1String(table) + QLatin1Char(':');
        QStringList out;
        for (const QString &row : rows)
            if (row.startsWith(prefix))
                out << row;
        return out;
    }

    QStringList saved;
};

} // namespace

TEST_F(Faults, DatabaseMadeReadOnlyWhileRunningRefusesTheSaveAndKeepsEveryRow)
{
    // The engine's read-only switch refuses writes exactly as a read-only file does.
    app.db().runOnce(QStringLiteral("PRAGMA query_only = ON"));
    typeAndSaveRound(QStringLiteral("11/20/2026"));
    expectFailedSave(QStringLiteral("Error 70: attempt to write a readonly database"));
    EXPECT_EQ(DatabaseRows(app.db()), saved);
    EXPECT_EQ(DatabaseRows(working()), saved);

    // Writable again: the same form saves the round as typed.
    app.db().runOnce(QStringLiteral("PRAGMA query_only = OFF"));
    saveAgain();
    const QStringList rounds = columnValues(app.db(), kRoundsOfPalmer);
    ASSERT_EQ(rounds.size(), 41);
    EXPECT_TRUE(rounds.last().startsWith(QStringLiteral("2026-11-20|90|90|")));
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreDetails WHERE Date = '2026-11-20'")).toInt(),
              18);
}

TEST_F(Faults, DatabaseDeletedWhileOpenIsWrittenBackWithEveryRowSavedBefore)
{
    ASSERT_TRUE(QFile::remove(working()));
    ASSERT_FALSE(QFile::exists(working()));

    typeAndSaveRound(QStringLiteral("11/20/2026"));
    expectFailedSave(QStringLiteral(
        "Error 70: The Quillon database was deleted while the program was running.  It has been written back "
        "with everything saved before; the last change was not saved."));
    ASSERT_TRUE(QFile::exists(working())) << "the rows live on only in the open file";
    EXPECT_EQ(DatabaseRows(working()), saved);

    // The program goes on with the file written back: the round and its holes save into it.
    saveAgain();
    const QStringList now = DatabaseRows(working());
    EXPECT_EQ(rowsOf(now, "ScoreLog").size(), 41);
    const QStringList holesBefore = rowsOf(saved, "ScoreDetails");
    const QStringList holesNow = rowsOf(now, "ScoreDetails");
    ASSERT_EQ(holesNow.size(), holesBefore.size() + 18);
    EXPECT_EQ(holesNow.mid(0, holesBefore.size()), holesBefore);
}

TEST_F(Faults, DiskFullRefusesTheSaveWithoutAHalfSavedRound)
{
    // The file may not grow by a page: the round and its holes need new pages.
    // A limit below the size of the file stops it at its size.
    app.db().runOnce(QStringLiteral("PRAGMA max_page_count = 1"));
    typeAndSaveRound(QStringLiteral("11/20/2026"));
    expectFailedSave(QStringLiteral("Error 3213: database or disk is full"));
    EXPECT_EQ(DatabaseRows(app.db()), saved);
    EXPECT_EQ(DatabaseRows(working()), saved);
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreLog WHERE Date = '2026-11-20'")).toInt(), 0);

    // Room again: the same form saves the round with its holes.
    app.db().runOnce(QStringLiteral("PRAGMA max_page_count = 1073741823"));
    saveAgain();
    EXPECT_EQ(columnValues(app.db(), kRoundsOfPalmer).size(), 41);
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreDetails WHERE Date = '2026-11-20'")).toInt(),
              18);
}

#include "golfer/frmDeleteGolfer.h"
#include "FrameFixture.h"
#include "golfer/GolferNames.h"

#include <QListWidget>
#include <QMdiArea>
#include <QPushButton>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

class DeleteGolfer : public FrameFixture {
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        for (const auto &name :
             {GolferName{"Palmer", "Arnold"}, GolferName{"O'Brien", "Pat"}, GolferName{"D'Arcy", "Anne"}}) {
            addGolfer(app.db(), name.last, name.first);
            RoundSpec r;
            r.last = name.last;
            r.first = name.first;
            const qint64 index = addRound(app.db(), r);
            addHoleScores(app.db(), r, index, 1, {4, 5, 3}, {4, 4, 3});
        }
    }
    // Select the rows named and press OK.
    void deleteThrough(const QStringList &rows)
    {
        ModalScript script;
        script.expect(QStringLiteral("frmDeleteGolfer"), [rows](QWidget *d) {
            auto *list = findControl<QListWidget>(d, QStringLiteral("lstGolferList"));
            for (int i = 0; i < list->count(); ++i)
                list->item(i)->setSelected(rows.contains(list->item(i)->text()));
            findControl<QPushButton>(d, QStringLiteral("cmdOK"))->click();
        });
        frmDeleteGolfer::instance().DeleteGolfer();
    }
    int rowsOf(const QString &last)
    {
        int n = 0;
        for (const char *table : {"HandicapLog", "ScoreLog", "ScoreDetails"})
            n +=
                Scalar(app.db(),
                       QStringLiteral("SELECT COUNT(*) FROM %1 WHERE LastName = ?").arg(QLatin1String(table)),
                       {last})
                    .toInt();
        return n;
    }
};

} // namespace

TEST_F(DeleteGolfer, DeletingAnotherGolferLeavesTheViewBehindAsItWas)
{
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    app.platform().answer(MsgAnswer::Yes);
    deleteThrough({"O'Brien, Pat"});
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Are you sure you want to delete golfer Pat O'Brien?"));
    EXPECT_EQ(shown[0].icon, MsgIcon::Question);
    EXPECT_EQ(shown[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(shown[0].defaultButton, MsgAnswer::No);
    EXPECT_EQ(shown[0].title, QStringLiteral("Delete Golfer"));
    EXPECT_EQ(rowsOf(QStringLiteral("O'Brien")), 0);
    EXPECT_EQ(rowsOf(QStringLiteral("Palmer")), 5);
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("Palmer"));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_EQ(panelText("GolferName"), QStringLiteral("Golfer: Arnold Palmer"));
}

TEST_F(DeleteGolfer, DeletingTheCurrentGolferClosesEveryViewAndAsksAgainWithExit)
{
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    app.platform().answer(MsgAnswer::Yes);
    QString cancel;
    QStringList offered;
    int viewsOpen = -1;
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteGolfer"), [](QWidget *d) {
        auto *list = findControl<QListWidget>(d, QStringLiteral("lstGolferList"));
        list->findItems(QStringLiteral("Palmer, Arnold"), Qt::MatchExactly).value(0)->setSelected(true);
        findControl<QPushButton>(d, QStringLiteral("cmdOK"))->click();
    });
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        cancel = findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->text();
        auto *list = findControl<QListWidget>(d, QStringLiteral("lstGolferList"));
        for (int i = 0; i < list->count(); ++i)
            offered << list->item(i)->text();
        viewsOpen = frame->mdiArea()->subWindowList().size();
        // Choose another golfer, so that the program goes on.
        typeInto(d, QStringLiteral("txtGolfer"), QStringLiteral("O'Brien, Pat"));
        findControl<QPushButton>(d, QStringLiteral("cmdOK"))->click();
    });
    frmDeleteGolfer::instance().DeleteGolfer();
    app.platform().takeMessages();
    EXPECT_EQ(cancel, QStringLiteral("E&xit"));
    offered.sort();
    EXPECT_EQ(offered, (QStringList{"D'Arcy, Anne", "O'Brien, Pat"}));
    EXPECT_EQ(viewsOpen, 0);
    EXPECT_EQ(rowsOf(QStringLiteral("Palmer")), 0);
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("O'Brien"));
}

TEST_F(DeleteGolfer, DeletingTheOnlyGolferLeavesAnEmptyList)
{
    Exec(app.db(), QStringLiteral("DELETE FROM HandicapLog WHERE LastName <> 'Palmer'"));
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    app.platform().answer(MsgAnswer::Yes);
    QStringList offered = {"not read"};
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteGolfer"), [](QWidget *d) {
        findControl<QListWidget>(d, QStringLiteral("lstGolferList"))->item(0)->setSelected(true);
        findControl<QPushButton>(d, QStringLiteral("cmdOK"))->click();
    });
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *d) {
        offered.clear();
        auto *list = findControl<QListWidget>(d, QStringLiteral("lstGolferList"));
        for (int i = 0; i < list->count(); ++i)
            offered << list->item(i)->text();
        d->close();
    });
    frmDeleteGolfer::instance().DeleteGolfer();
    app.platform().takeMessages();
    EXPECT_TRUE(offered.isEmpty());
    ConnectionPtr c = OpenDatabase(app.file(QStringLiteral("Quillon.qdl")));
    EXPECT_TRUE(columnValues(*c, QStringLiteral("SELECT * FROM HandicapLog")).isEmpty());
}

TEST_F(DeleteGolfer, NoToOneOfSeveralGoesOnWithTheNext)
{
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    // The list stands in name order: Anne D'Arcy is asked first.
    app.platform().answer(MsgAnswer::No);
    app.platform().answer(MsgAnswer::Yes);
    deleteThrough({"O'Brien, Pat", "D'Arcy, Anne"});
    expectMessages(app.platform(), {"Are you sure you want to delete golfer Anne D'Arcy?",
                                    "Are you sure you want to delete golfer Pat O'Brien?"});
    EXPECT_EQ(rowsOf(QStringLiteral("D'Arcy")), 5);
    EXPECT_EQ(rowsOf(QStringLiteral("O'Brien")), 0);
}

TEST_F(DeleteGolfer, OkIsEnabledOnlyWhileARowIsSelectedAndCancelDeletesNothing)
{
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    bool before = true, during = false;
    ModalScript script;
    script.expect(QStringLiteral("frmDeleteGolfer"), [&](QWidget *d) {
        auto *ok = findControl<QPushButton>(d, QStringLiteral("cmdOK"));
        before = ok->isEnabled();
        findControl<QListWidget>(d, QStringLiteral("lstGolferList"))->item(0)->setSelected(true);
        during = ok->isEnabled();
        findControl<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
    });
    frmDeleteGolfer::instance().DeleteGolfer();
    EXPECT_FALSE(before);
    EXPECT_TRUE(during);
    EXPECT_EQ(rowsOf(QStringLiteral("O'Brien")), 5);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
}

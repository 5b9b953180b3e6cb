#include "ui/DialogPlacement.h"

#include "ScriptedPlatform.h"

#include <QDialog>
#include <QMainWindow>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

class DialogPlacement : public ::testing::Test {
protected:
    void SetUp() override
    {
        auto p = std::make_unique<ScriptedPlatform>(QDir::tempPath());
        installPlatform(std::move(p));
        frame.resize(800, 600);
        frame.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
        platform().setDialogParent(&frame);
    }
    void TearDown() override { installPlatform(nullptr); }

    QMainWindow frame;
};

} // namespace

TEST_F(DialogPlacement, AFormWithoutParentIsOwnedByTheFrameWhileItIsUp)
{
    QDialog form; // a single-instance form is made without a parent
    CentreOnFrame(form);
    QWindow *owner = nullptr;
    QTimer::singleShot(0, &form, [&] {
        owner = form.windowHandle() ? form.windowHandle()->transientParent() : nullptr;
        form.reject();
    });
    form.exec();
    EXPECT_EQ(owner, frame.windowHandle());
}

TEST_F(DialogPlacement, ADialogWithAParentKeepsItsParentAsOwner)
{
    QDialog parent(&frame);
    QDialog child(&parent);
    CentreOnFrame(child);
    EXPECT_EQ(child.parentWidget(), &parent);
    EXPECT_NE(child.windowHandle()->transientParent(), frame.windowHandle());
}

TEST_F(DialogPlacement, WithoutAFrameNothingChanges)
{
    platform().setDialogParent(nullptr);
    QDialog form;
    CentreOnFrame(form);
    EXPECT_TRUE(!form.windowHandle() || !form.windowHandle()->transientParent());
}

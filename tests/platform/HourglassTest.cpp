// The hourglass goes through the installed platform and never covers a question to the user.
#include "platform/Hourglass.h"
#include "ScriptedPlatform.h"
#include "TestApp.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

namespace quillon::test {
namespace {

using Changes = QVector<bool>;

// A scripted platform that runs some code while its message box is up.
class InterruptedPlatform : public ScriptedPlatform {
public:
    using ScriptedPlatform::ScriptedPlatform;
    std::function<void()> whileUp;

protected:
    MsgAnswer showMessageBox(const QString &text, MsgIcon icon, const QString &title, MsgButtons buttons,
                             MsgAnswer defaultButton) override
    {
        const MsgAnswer answer = ScriptedPlatform::showMessageBox(text, icon, title, buttons, defaultButton);
        if (whileUp)
            whileUp();
        return answer;
    }
};

// A platform whose message box fails while it is up.
class FailingPlatform : public ScriptedPlatform {
public:
    using ScriptedPlatform::ScriptedPlatform;

protected:
    MsgAnswer showMessageBox(const QString &, MsgIcon, const QString &, MsgButtons, MsgAnswer) override
    {
        throw std::runtime_error("the box could not be shown");
    }
};

// Installs a platform of type P for one test and takes it away after.
template <typename P>
class Installed {
public:
    Installed()
    {
        auto p = std::make_unique<P>(m_dir.path());
        m_platform = p.get();
        installPlatform(std::move(p));
    }
    ~Installed() { installPlatform(nullptr); }
    P &operator*() { return *m_platform; }
    P *operator->() { return m_platform; }

private:
    QTemporaryDir m_dir;
    P *m_platform = nullptr;
};

TEST(Hourglass, ShowsTheBusyPointerForItsScope)
{
    TestApp app(false);
    EXPECT_FALSE(app.platform().pointerBusy());
    {
        const Hourglass hourglass;
        EXPECT_TRUE(app.platform().pointerBusy());
    }
    EXPECT_FALSE(app.platform().pointerBusy());
    EXPECT_EQ(app.platform().pointerChanges(), Changes({true, false}));
}

TEST(Hourglass, MessageBoxShowsTheNormalPointerAndTheHourglassComesBackAfter)
{
    TestApp app(false);
    {
        const Hourglass hourglass;
        app.platform().messageBox(QStringLiteral("Unable to open the Quillon database."), MsgIcon::Critical,
                                  appTitle());
        EXPECT_TRUE(app.platform().pointerBusy());
    }
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_FALSE(shown[0].pointerBusy);
    EXPECT_EQ(app.platform().pointerChanges(), Changes({true, false, true, false}));
}

TEST(Hourglass, MessageBoxWithoutHourglassLeavesThePointerAlone)
{
    TestApp app(false);
    app.platform().messageBox(QStringLiteral("Done."), MsgIcon::Information, appTitle());
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_FALSE(shown[0].pointerBusy);
    EXPECT_FALSE(app.platform().pointerBusy());
    EXPECT_TRUE(app.platform().pointerChanges().isEmpty());
}

TEST(Hourglass, NestedHourglassesShowOneBusyPointerUntilTheOuterEnds)
{
    TestApp app(false);
    {
        const Hourglass outer;
        {
            const Hourglass inner;
            EXPECT_TRUE(app.platform().pointerBusy());
        }
        EXPECT_TRUE(app.platform().pointerBusy());
    }
    EXPECT_FALSE(app.platform().pointerBusy());
    EXPECT_EQ(app.platform().pointerChanges(), Changes({true, false}));
}

TEST(Hourglass, ReleaseEndsItsShareOnceAndTheScopeEndDoesNotAgain)
{
    TestApp app(false);
    const Hourglass outer;
    {
        Hourglass inner;
        inner.release();
        EXPECT_TRUE(app.platform().pointerBusy()) << "the outer hourglass still holds the pointer";
        inner.release();
    }
    EXPECT_TRUE(app.platform().pointerBusy()) << "the inner one ended twice";
}

TEST(Hourglass, ReleasedBeforeTheScopeEndsShowsTheNormalPointer)
{
    TestApp app(false);
    Hourglass hourglass;
    hourglass.release();
    EXPECT_FALSE(app.platform().pointerBusy());
    EXPECT_EQ(app.platform().pointerChanges(), Changes({true, false}));
}

TEST(Hourglass, DoesNothingWithoutAPlatform)
{
    installPlatform(nullptr);
    auto hourglass = std::make_unique<Hourglass>();
    TestApp app(false);
    hourglass.reset();
    EXPECT_FALSE(app.platform().pointerBusy());
    EXPECT_TRUE(app.platform().pointerChanges().isEmpty());
}

TEST(Hourglass, OutlivingItsPlatformLeavesTheNextOneAlone)
{
    std::unique_ptr<Hourglass> hourglass;
    {
        TestApp first(false);
        hourglass = std::make_unique<Hourglass>();
        EXPECT_TRUE(first.platform().pointerBusy());
    }
    TestApp second(false);
    const Hourglass held;
    hourglass.reset();
    EXPECT_TRUE(second.platform().pointerBusy());
    EXPECT_EQ(second.platform().pointerChanges(), Changes({true}));
}

TEST(Hourglass, ComesBackWhenTheMessageBoxFails)
{
    Installed<FailingPlatform> p;
    const Hourglass hourglass;
    EXPECT_THROW(p->messageBox(QStringLiteral("x"), MsgIcon::None, appTitle()), std::runtime_error);
    EXPECT_TRUE(p->pointerBusy());
    EXPECT_EQ(p->pointerChanges(), Changes({true, false, true}));
}

TEST(Hourglass, EndedWhileTheBoxIsUpDoesNotComeBack)
{
    Installed<InterruptedPlatform> p;
    auto hourglass = std::make_unique<Hourglass>();
    p->whileUp = [&] { hourglass->release(); };
    p->messageBox(QStringLiteral("Saved."), MsgIcon::Information, appTitle());
    p->takeMessages();
    EXPECT_FALSE(p->pointerBusy());
    EXPECT_EQ(p->pointerChanges(), Changes({true, false}));
}

TEST(Hourglass, BegunWhileTheBoxIsUpShowsOnlyAfterIt)
{
    Installed<InterruptedPlatform> p;
    std::unique_ptr<Hourglass> hourglass;
    bool busyWhileUp = true;
    p->whileUp = [&] {
        hourglass = std::make_unique<Hourglass>();
        busyWhileUp = p->pointerBusy();
    };
    p->messageBox(QStringLiteral("Update now?"), MsgIcon::Question, appTitle(), MsgButtons::YesNo);
    p->takeMessages();
    EXPECT_FALSE(busyWhileUp);
    EXPECT_TRUE(p->pointerBusy());
    EXPECT_EQ(p->pointerChanges(), Changes({true}));
}

TEST(Hourglass, FileDialogsAndPrinterSetUpShowTheNormalPointerToo)
{
    TestApp app(false);
    const Hourglass hourglass;
    app.platform().getSaveFileName(QStringLiteral("Backup"), QStringLiteral("Quillon Data (*.qdl)|*.qdl"),
                                   QStringLiteral("Backup.qdl"));
    app.platform().getOpenFileName(QStringLiteral("Restore"), QStringLiteral("Quillon Data (*.qdl)|*.qdl"));
    app.platform().printSetup();
    EXPECT_TRUE(app.platform().pointerBusy());
    EXPECT_EQ(app.platform().pointerChanges(), Changes({true, false, true, false, true, false, true}));
}

} // namespace
} // namespace quillon::test

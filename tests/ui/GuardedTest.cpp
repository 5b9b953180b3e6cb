#include "ui/Guarded.h"
#include "TestApp.h"
#include "core/QuillonError.h"
#include "store/basDatabase.h"

#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

TEST(Guarded, FaultIsShownAsErrorNumberAndDescriptionAndEndsTheHandler)
{
    TestApp app(false);
    bool after = false;
    EXPECT_FALSE(RunGuarded([&] {
        throw QuillonError(3022, QStringLiteral("UNIQUE constraint failed: HandicapLog.LastName"));
        after = true;
    }));
    EXPECT_FALSE(after);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Error 3022: UNIQUE constraint failed: HandicapLog.LastName"));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
}

TEST(Guarded, HandlerWithoutFaultShowsNothing)
{
    TestApp app(false);
    int runs = 0;
    EXPECT_TRUE(RunGuarded([&] { ++runs; }));
    EXPECT_EQ(runs, 1);
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST(Guarded, DatabaseFaultOfARealStatementIsShownWithTheEnginesText)
{
    TestApp app;
    RunGuarded([&] { Exec(app.db(), QStringLiteral("DELETE FROM NoSuchTable")); });
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Error 3201: no such table: NoSuchTable"));
}

TEST(Guarded, ConnectableFormRunsUnderTheTrap)
{
    TestApp app(false);
    auto handler = Guarded([] { throw QuillonError::divisionByZero(); });
    handler(true); // a signal's argument is ignored
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Error 11: Division by zero"));
}

#pragma once

#include "Fixtures.h"
#include "TestApp.h"
#include "Widgets.h"
#include "shell/MDIForm1.h"

#include <QAction>
#include <QLabel>

namespace quillon::test {

// Every form gone, the frame first, as when the program's process ends.
void DestroyForms();

// The frame on screen over a fresh database, with the scripted platform; a golfer is chosen
// through the real golfer dialog when a test asks.
class FrameFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Open the golfer dialog and answer it by typing `typed` and pressing OK; a new golfer is
    // asked its gender, answered "M".
    void chooseGolfer(const QString &typed, bool isNew = false);
    // As the program starts over the fixture's rows: the course count taken, then golfer
    // Palmer, Arnold chosen (added first when he is not there, which asks one question).
    void startWithPalmer();
    // A menu item by name; triggering it runs its command as a click would.
    QAction *item(const QString &name) const { return frame->menuItem(name); }
    bool enabled(const QString &name) const { return item(name)->isEnabled(); }
    QString panelText(const QString &key) const { return frame->panel(key)->text(); }
    QStringList checkedViews() const;

    TestApp app;
    MDIForm1 *frame = nullptr;
};

} // namespace quillon::test

#pragma once

#include "store/HeldRecordset.h"
#include "store/basDatabase.h"

#include <QString>
#include <memory>

class QAction;
class QLabel;
class QMenu;
class QWidget;

namespace quillon {
class ViewForm;
}

namespace quillon {

// What the forms ask of the frame; set by MDIForm1.  Forms reach each other through it
// rather than being handed one another.
class FrameServices {
public:
    virtual ~FrameServices() = default;
    // Decide what the menus and toolbar offer for the form now active.
    virtual void UpdateMenus(const QString &formName) = 0;
    // Show the checked view again after something changed under it.
    virtual void RefreshActiveView() = 0;
    virtual QAction *menuItem(const QString &name) const = 0;
    virtual QMenu *menu(const QString &name) const = 0;
    // A status-bar panel by key: GolferName, ScoreDetails, Handicap; null if unknown.
    virtual QLabel *panel(const QString &key) const = 0;
    virtual void setPanelText(const QString &key, const QString &text) = 0;
    // The score log, maximized in the frame.
    virtual void ShowScoreLog() = 0;
    // Unload every view of the frame.
    virtual void UnloadForms() = 0;
    // Unload one view, if it is loaded.
    virtual void unloadView(const QString &formName) = 0;
    // End the program now, releasing what it holds.
    virtual void EndProgram() = 0;
    virtual QWidget *frameWidget() = 0;
    // A round was saved: the open view that shows rounds reads them again.
    virtual void ScoreSaved() = 0;
    // Show an entry form over the views, active, in its own size.
    virtual void openChild(ViewForm *form) = 0;
};

// What the handicap engine shows on the frame: the status-bar panel "Handicap"
// and whether the course handicap calculator may be used.
class HandicapDisplay {
public:
    virtual ~HandicapDisplay() = default;
    virtual void setHandicapPanel(const QString &text) = 0;
    virtual void setCourseHdcpCalculatorEnabled(bool enabled) = 0;
};

// Asks the user for a golfer's gender: "F" or "M", always one of them.
class GenderQuestion {
public:
    virtual ~GenderQuestion() = default;
    virtual QString GetGender(const QString &first, const QString &last) = 0;
};

// The application's few globals: the connection, the current golfer and the golfer's long-lived rows.
struct LogGlobals {
    ConnectionPtr gConnection;
    QString gHelpFile;
    std::unique_ptr<HeldRecordset> gScoreLog;
    std::unique_ptr<HeldRecordset> gHandicapLog;
    qint16 gCourseCount = 0;
    // The switch between the full program and a handicap-free one; always "-h".
    QString gCommandString;
    QString gLastName;
    QString gFirstName;

    // Where the engine publishes and whom it asks; set by the frame (tests set their own).
    HandicapDisplay *handicapDisplay = nullptr;
    GenderQuestion *genderQuestion = nullptr;
    FrameServices *frame = nullptr;

    // Release the golfer's rows and the connection, in that order.
    void releaseAll();
};

LogGlobals &basLogGlobals();

// The connection, or a fault when there is none.
Connection &db();
// The frame, or a fault when there is none.
FrameServices &frame();

} // namespace quillon

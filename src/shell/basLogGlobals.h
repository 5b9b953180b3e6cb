#pragma once

#include "store/HeldRecordset.h"
#include "store/basDatabase.h"

#include <QString>
#include <memory>

namespace quillon {

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

    // Release the golfer's rows and the connection, in that order.
    void releaseAll();
};

LogGlobals &basLogGlobals();

// The connection, or a fault when there is none.
Connection &db();

} // namespace quillon

#pragma once

#include "ScriptedPlatform.h"
#include "shell/basLogGlobals.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

// Path of the empty database the build generates.
QString shippedDatabase();

// A fresh application directory with the scripted platform installed.
// withDatabase: "Quillon.qdl" is laid there from the shipped empty database and opened as gConnection.
// The globals are reset on entry and released on exit, so tests do not see each other.
class TestApp {
public:
    explicit TestApp(bool withDatabase = true);
    ~TestApp();

    ScriptedPlatform &platform() { return *m_platform; }
    QString dir() const { return m_dir.path(); }
    QString file(const QString &name) const;
    Connection &db();
    // Lay "Quillon.qdl" (or another name) from the shipped empty database.
    void layDatabase(const QString &name = QStringLiteral("Quillon.qdl"));
    void openDatabase();

    // Current golfer in the globals.
    void setGolfer(const QString &last, const QString &first);

private:
    QTemporaryDir m_dir;
    ScriptedPlatform *m_platform = nullptr;
};

// Expect one shown message to be this text, with this icon, title and buttons.
void expectMessage(const ShownMessage &m, const QString &text, MsgIcon icon, const QString &title,
                   MsgButtons buttons = MsgButtons::OK);

// Expect exactly these message texts since the last take, in order.
void expectMessages(ScriptedPlatform &p, const QStringList &texts);

} // namespace quillon::test

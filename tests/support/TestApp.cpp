#include "TestApp.h"

#include <QFile>

namespace quillon::test {

QString shippedDatabase()
{
    return QStringLiteral(QUILLON_TEST_UPDATE_QDL);
}

TestApp::TestApp(bool withDatabase)
{
    EXPECT_TRUE(m_dir.isValid());
    auto p = std::make_unique<ScriptedPlatform>(m_dir.path());
    m_platform = p.get();
    installPlatform(std::move(p));
    LogGlobals &g = basLogGlobals();
    g.releaseAll();
    g = LogGlobals();
    g.gCommandString = QStringLiteral("-h");
    if (withDatabase) {
        layDatabase();
        openDatabase();
    }
}

TestApp::~TestApp()
{
    LogGlobals &g = basLogGlobals();
    g.releaseAll();
    g = LogGlobals();
    installPlatform(nullptr);
}

QString TestApp::file(const QString &name) const
{
    return m_dir.filePath(name);
}

Connection &TestApp::db()
{
    return quillon::db();
}

void TestApp::layDatabase(const QString &name)
{
    QFile::remove(file(name));
    ASSERT_TRUE(QFile::copy(shippedDatabase(), file(name)))
        << "no shipped database at " << shippedDatabase().toStdString();
    QFile::setPermissions(file(name), QFile::ReadOwner | QFile::WriteOwner);
}

void TestApp::openDatabase()
{
    basLogGlobals().gConnection = OpenDatabase(file(QStringLiteral("Quillon.qdl")));
    ASSERT_TRUE(basLogGlobals().gConnection != nullptr);
}

void TestApp::setGolfer(const QString &last, const QString &first)
{
    basLogGlobals().gLastName = last;
    basLogGlobals().gFirstName = first;
}

void expectMessage(const ShownMessage &m, const QString &text, MsgIcon icon, const QString &title,
                   MsgButtons buttons)
{
    EXPECT_EQ(m.text, text);
    EXPECT_EQ(m.icon, icon);
    EXPECT_EQ(m.title, title);
    EXPECT_EQ(m.buttons, buttons);
}

void expectMessages(ScriptedPlatform &p, const QStringList &texts)
{
    QStringList shown;
    for (const ShownMessage &m : p.takeMessages())
        shown << m.text;
    EXPECT_EQ(shown, texts);
}

} // namespace quillon::test

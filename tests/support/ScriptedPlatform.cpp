#include "ScriptedPlatform.h"

#include <QPdfWriter>
#include <gtest/gtest.h>

namespace quillon::test {

ScriptedPlatform::ScriptedPlatform(QString appDir) : m_appDir(std::move(appDir)) {}

ScriptedPlatform::~ScriptedPlatform()
{
    // A message that no test looked at is a message nobody expected.
    for (const ShownMessage &m : m_messages)
        ADD_FAILURE() << "unexpected message box: \"" << m.text.toStdString() << "\" titled \""
                      << m.title.toStdString() << "\"";
}

MsgAnswer ScriptedPlatform::messageBox(const QString &text, MsgIcon icon, const QString &title,
                                       MsgButtons buttons, MsgAnswer defaultButton)
{
    m_messages.push_back({text, icon, title, buttons, defaultButton});
    if (m_answers.empty())
        return defaultButton;
    const MsgAnswer a = m_answers.front();
    m_answers.pop_front();
    return a;
}

QString ScriptedPlatform::getSaveFileName(const QString &, const QString &, const QString &)
{
    if (m_saveFiles.empty())
        return QString();
    QString p = m_saveFiles.front();
    m_saveFiles.pop_front();
    return p;
}

QString ScriptedPlatform::getOpenFileName(const QString &, const QString &)
{
    if (m_openFiles.empty())
        return QString();
    QString p = m_openFiles.front();
    m_openFiles.pop_front();
    return p;
}

std::unique_ptr<QPagedPaintDevice> ScriptedPlatform::openPrinter(const QString &documentName)
{
    if (printerName.isEmpty())
        return nullptr;
    const QString path = QDir(m_appDir).filePath(QStringLiteral("printed-%1.pdf").arg(m_printed.size() + 1));
    m_printed << path;
    auto writer = std::make_unique<QPdfWriter>(path);
    writer->setTitle(documentName);
    return writer;
}

QVector<ShownMessage> ScriptedPlatform::takeMessages()
{
    QVector<ShownMessage> out;
    out.swap(m_messages);
    return out;
}

} // namespace quillon::test

#include "ScriptedPlatform.h"

#include "core/QuillonError.h"

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

MsgAnswer ScriptedPlatform::showMessageBox(const QString &text, MsgIcon icon, const QString &title,
                                           MsgButtons buttons, MsgAnswer defaultButton)
{
    m_messages.push_back({text, icon, title, buttons, defaultButton, pointerBusy()});
    if (m_answers.empty())
        return answerer ? answerer(ShownMessage(m_messages.back())) : defaultButton;
    const MsgAnswer a = m_answers.front();
    m_answers.pop_front();
    return a;
}

QString ScriptedPlatform::showSaveFileDialog(const QString &, const QString &filter, const QString &defaultName)
{
    m_fileFilters << filter;
    m_saveDefaultNames << defaultName;
    if (m_saveFiles.empty())
        return QString();
    QString p = m_saveFiles.front();
    m_saveFiles.pop_front();
    return p;
}

QString ScriptedPlatform::showOpenFileDialog(const QString &, const QString &filter)
{
    m_fileFilters << filter;
    if (m_openFiles.empty())
        return QString();
    QString p = m_openFiles.front();
    m_openFiles.pop_front();
    return p;
}

bool ScriptedPlatform::showPrintSetup()
{
    ++printSetupCount;
    return printSetupAnswer;
}

std::unique_ptr<QPagedPaintDevice> ScriptedPlatform::openPrinter(const QString &documentName)
{
    if (printerName.isEmpty())
        return nullptr;
    return openPdfPrinter(QDir(m_appDir).filePath(QStringLiteral("printed-%1.pdf").arg(m_printed.size() + 1)),
                          documentName);
}

std::unique_ptr<QPagedPaintDevice> ScriptedPlatform::openPdfPrinter(const QString &path,
                                                                    const QString &documentName)
{
    m_printed << path;
    auto writer = std::make_unique<QPdfWriter>(path);
    writer->setTitle(documentName);
    return writer;
}

bool ScriptedPlatform::showPrintPreview(const PrintJob &job)
{
    previewed << job.documentName;
    if (!previewAnswer)
        return false;
    std::unique_ptr<QPagedPaintDevice> device = openPrinter(job.documentName);
    if (!device)
        throw QuillonError(482, QStringLiteral("Printer error"));
    if (job.orientation != PageOrientation::AsSetUp)
        device->setPageOrientation(job.orientation == PageOrientation::Landscape ? QPageLayout::Landscape
                                                                                 : QPageLayout::Portrait);
    job.paint(*device);
    return true;
}

void ScriptedPlatform::progress(int value, int maximum, const QString &text)
{
    m_progressSteps.push_back({value, maximum, text});
    m_progressShowing = true;
}

void ScriptedPlatform::progressDone()
{
    ++m_progressDone;
    m_progressShowing = false;
}

void ScriptedPlatform::showHelp(const QString &anchor)
{
    m_helpAnchors << anchor;
    callHelpHandler(anchor);
}

QVector<ShownMessage> ScriptedPlatform::takeMessages()
{
    QVector<ShownMessage> out;
    out.swap(m_messages);
    return out;
}

} // namespace quillon::test

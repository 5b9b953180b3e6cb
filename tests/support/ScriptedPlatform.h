#pragma once

#include "platform/Platform.h"

#include <QDir>
#include <QStringList>
#include <QVector>
#include <deque>

namespace quillon::test {

struct ShownMessage {
    QString text;
    MsgIcon icon = MsgIcon::None;
    QString title;
    MsgButtons buttons = MsgButtons::OK;
    MsgAnswer defaultButton = MsgAnswer::OK;
};

// The platform for tests: message boxes are recorded and answered from a queue
// (the default button when the queue is empty), file dialogs answer from their
// queues, the printer writes PDF files into the application directory, and "today" is fixed.
class ScriptedPlatform : public Platform {
public:
    explicit ScriptedPlatform(QString appDir);
    ~ScriptedPlatform() override;

    MsgAnswer messageBox(const QString &text, MsgIcon icon, const QString &title, MsgButtons buttons,
                         MsgAnswer defaultButton) override;
    QString getSaveFileName(const QString &title, const QString &filter, const QString &defaultName) override;
    QString getOpenFileName(const QString &title, const QString &filter) override;
    QString defaultPrinterName() override { return printerName; }
    bool printSetup() override { return true; }
    std::unique_ptr<QPagedPaintDevice> openPrinter(const QString &documentName) override;
    QDate today() override { return todayDate; }
    QString appDir() override { return m_appDir; }

    // Answers for the next message boxes and file dialogs, in order.
    void answer(MsgAnswer a) { m_answers.push_back(a); }
    void answerSaveFile(const QString &path) { m_saveFiles.push_back(path); }
    void answerOpenFile(const QString &path) { m_openFiles.push_back(path); }

    // Every message shown so far; taking them tells the platform the test has seen them.
    QVector<ShownMessage> takeMessages();
    const QVector<ShownMessage> &messages() const { return m_messages; }
    // Texts of the PDF documents printed so far (their paths).
    const QStringList &printedFiles() const { return m_printed; }

    QString printerName = QStringLiteral("Scripted PDF Printer");
    QDate todayDate = QDate(2026, 11, 22);

private:
    QString m_appDir;
    std::deque<MsgAnswer> m_answers;
    std::deque<QString> m_saveFiles;
    std::deque<QString> m_openFiles;
    QVector<ShownMessage> m_messages;
    QStringList m_printed;
};

} // namespace quillon::test

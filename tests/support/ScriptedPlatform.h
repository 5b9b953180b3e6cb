#pragma once

#include "platform/Platform.h"

#include <QDir>
#include <QStringList>
#include <QVector>
#include <deque>
#include <functional>

namespace quillon::test {

struct ShownMessage {
    QString text;
    MsgIcon icon = MsgIcon::None;
    QString title;
    MsgButtons buttons = MsgButtons::OK;
    MsgAnswer defaultButton = MsgAnswer::OK;
    // Whether the hourglass showed while the box was up (it never should).
    bool pointerBusy = false;
};

struct ProgressStep {
    int value = 0;
    int maximum = 0;
    QString text;
};

// The platform for tests: message boxes are recorded and answered from a queue
// (the default button when the queue is empty), file dialogs answer from their
// queues, the printer writes PDF files into the application directory, and "today" is fixed.
// Progress, help requests and every change of the pointer are recorded.
class ScriptedPlatform : public Platform {
public:
    explicit ScriptedPlatform(QString appDir);
    ~ScriptedPlatform() override;

    QString defaultPrinterName() override { return printerName; }
    std::unique_ptr<QPagedPaintDevice> openPrinter(const QString &documentName) override;
    std::unique_ptr<QPagedPaintDevice> openPdfPrinter(const QString &path,
                                                      const QString &documentName) override;
    QDate today() override { return todayDate; }
    QString appDir() override { return m_appDir; }
    void progress(int value, int maximum, const QString &text) override;
    void progressDone() override;
    // Recorded, then passed to the frame's help handler when one is installed.
    void showHelp(const QString &anchor) override;

    // Answers for the next message boxes and file dialogs, in order.
    void answer(MsgAnswer a) { m_answers.push_back(a); }
    void answerSaveFile(const QString &path) { m_saveFiles.push_back(path); }
    void answerOpenFile(const QString &path) { m_openFiles.push_back(path); }

    // Every message shown so far; taking them tells the platform the test has seen them.
    QVector<ShownMessage> takeMessages();
    const QVector<ShownMessage> &messages() const { return m_messages; }
    // Paths of the PDF documents printed so far.
    const QStringList &printedFiles() const { return m_printed; }
    // The file filters the file dialogs were asked with, in order.
    const QStringList &fileFilters() const { return m_fileFilters; }
    // The names the save dialogs were opened with, in order.
    const QStringList &saveDefaultNames() const { return m_saveDefaultNames; }

    // Progress as reported, and how many times it was taken away.
    const QVector<ProgressStep> &progressSteps() const { return m_progressSteps; }
    int progressDoneCount() const { return m_progressDone; }
    // Whether progress is showing now: reported and not yet taken away.
    bool progressShowing() const { return m_progressShowing; }

    // The help anchors asked for, in order.
    const QStringList &helpAnchors() const { return m_helpAnchors; }

    // Each change of the pointer, in order: true for the hourglass, false for the normal pointer.
    const QVector<bool> &pointerChanges() const { return m_pointerChanges; }

    // Answers the message boxes the queue has no answer for; unset, the box's default button
    // answers.  A randomized user answers each box itself through it.
    std::function<MsgAnswer(const ShownMessage &)> answerer;

    QString printerName = QStringLiteral("Scripted PDF Printer");
    QDate todayDate = QDate(2026, 11, 22);
    // The answer of the printer set-up dialog, and how many times it was shown.
    bool printSetupAnswer = true;
    int printSetupCount = 0;
    // The answer of the print preview (true: print), and the documents previewed, in order.
    bool previewAnswer = true;
    QStringList previewed;

protected:
    MsgAnswer showMessageBox(const QString &text, MsgIcon icon, const QString &title, MsgButtons buttons,
                             MsgAnswer defaultButton) override;
    QString showSaveFileDialog(const QString &title, const QString &filter,
                               const QString &defaultName) override;
    QString showOpenFileDialog(const QString &title, const QString &filter) override;
    bool showPrintSetup() override;
    bool showPrintPreview(const PrintJob &job) override;
    void showBusyPointer(bool busy) override { m_pointerChanges << busy; }

private:
    QString m_appDir;
    std::deque<MsgAnswer> m_answers;
    std::deque<QString> m_saveFiles;
    std::deque<QString> m_openFiles;
    QVector<ShownMessage> m_messages;
    QStringList m_printed;
    QStringList m_fileFilters;
    QStringList m_saveDefaultNames;
    QVector<ProgressStep> m_progressSteps;
    int m_progressDone = 0;
    bool m_progressShowing = false;
    QStringList m_helpAnchors;
    QVector<bool> m_pointerChanges;
};

} // namespace quillon::test

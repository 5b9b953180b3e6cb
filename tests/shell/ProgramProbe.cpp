// The program itself, with the desktop's message boxes replaced by lines on standard output
// and a scripted user: tests start it as a real process and read how it ended.
//
//   QUILLON_PROBE_GOLFER   the name typed into the golfer dialog ("Exit" presses its Exit);
//                          unset, the dialog is left for the person at the screen
//   QUILLON_PROBE_ACTION   what the user does once the program runs: exit-menu, close, quit,
//                          help, about, sort (a click on the Course heading), delete-golfer
//   QUILLON_PROBE_ANSWERS  answers to the message boxes in order (yes, no, ok, cancel)
#include "desktop/DesktopPlatform.h"
#include "shell/MDIForm1.h"
#include "shell/Program.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <cstdio>

using namespace quillon;

namespace {

class ProbePlatform : public DesktopPlatform {
public:
    ProbePlatform()
    {
        for (const QString &a :
             qEnvironmentVariable("QUILLON_PROBE_ANSWERS").split(QLatin1Char(','), Qt::SkipEmptyParts))
            m_answers << a.trimmed().toLower();
    }

protected:
    MsgAnswer showMessageBox(const QString &text, MsgIcon, const QString &title, MsgButtons,
                             MsgAnswer defaultButton) override
    {
        std::printf("MESSAGE|%s|%s|%s\n", qPrintable(title), qPrintable(text),
                    pointerBusy() ? "busy" : "normal");
        std::fflush(stdout);
        if (m_answers.isEmpty())
            return defaultButton;
        const QString a = m_answers.takeFirst();
        if (a == QLatin1String("yes"))
            return MsgAnswer::Yes;
        if (a == QLatin1String("no"))
            return MsgAnswer::No;
        if (a == QLatin1String("cancel"))
            return MsgAnswer::Cancel;
        return MsgAnswer::OK;
    }

private:
    QStringList m_answers;
};

// A button pressed once this turn of the user has ended: what the press opens runs in a loop
// of its own, where the user must be able to act again.
void press(QWidget *dialog, const char *button)
{
    QMetaObject::invokeMethod(dialog->findChild<QPushButton *>(QLatin1String(button)), "click",
                              Qt::QueuedConnection);
}

// Plays the user: answers the golfer and gender dialogs, then does the action once.
void playUser()
{
    static bool acted = false;
    QWidget *modal = QApplication::activeModalWidget();
    if (qEnvironmentVariableIsSet("QUILLON_PROBE_TRACE"))
        std::printf("TRACE|%s\n", modal ? qPrintable(modal->objectName()) : "-");
    if (modal && modal->objectName() == QLatin1String("frmNewGolfer") &&
        qEnvironmentVariableIsSet("QUILLON_PROBE_GOLFER")) {
        const QString golfer = qEnvironmentVariable("QUILLON_PROBE_GOLFER");
        if (golfer == QLatin1String("Exit")) {
            press(modal, "cmdCancel");
            return;
        }
        modal->findChild<QLineEdit *>(QStringLiteral("txtGolfer"))->setText(golfer);
        press(modal, "cmdOK");
        return;
    }
    if (modal && modal->objectName() == QLatin1String("frmGender")) {
        press(modal, "cmdOK");
        return;
    }
    MDIForm1 *frame = MDIForm1::existing();
    if (modal || acted || !frame || !frame->isVisible())
        return;
    acted = true;
    const QString action = qEnvironmentVariable("QUILLON_PROBE_ACTION");
    std::printf("ACTION|%s\n", qPrintable(action));
    std::fflush(stdout);
    if (action == QLatin1String("exit-menu"))
        QMetaObject::invokeMethod(frame->menuItem(QStringLiteral("mnuCourseExit")), "trigger",
                                  Qt::QueuedConnection);
    else if (action == QLatin1String("close"))
        QMetaObject::invokeMethod(frame, "close", Qt::QueuedConnection);
    else if (action == QLatin1String("help"))
        QMetaObject::invokeMethod(frame->menuItem(QStringLiteral("mnuHelpContents")), "trigger",
                                  Qt::QueuedConnection);
    else if (action == QLatin1String("about"))
        QMetaObject::invokeMethod(frame->menuItem(QStringLiteral("mnuHelpAbout")), "trigger",
                                  Qt::QueuedConnection);
    else if (action == QLatin1String("sort"))
        QMetaObject::invokeMethod(
            frame->findChild<QTableView *>(QStringLiteral("DBGrid1"))->horizontalHeader(), "sectionClicked",
            Qt::QueuedConnection, Q_ARG(int, 2));
    else if (action == QLatin1String("delete-golfer"))
        QMetaObject::invokeMethod(frame->menuItem(QStringLiteral("mnuDeleteGolfer")), "trigger",
                                  Qt::QueuedConnection);
    else if (action == QLatin1String("quit"))
        QMetaObject::invokeMethod(QCoreApplication::instance(), "quit", Qt::QueuedConnection);
}

} // namespace

int main(int argc, char **argv)
{
    int qtArgc = 1;
    QApplication app(qtArgc, argv);
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    installPlatform(std::make_unique<ProbePlatform>());

    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &playUser);
    user.start(50);

    const int status = RunProgram(arguments);
    user.stop();
    installPlatform(nullptr);
    std::printf("STATUS|%d\n", status);
    std::fflush(stdout);
    return status;
}

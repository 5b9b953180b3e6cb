#pragma once

#include <QMainWindow>
#include <QString>
#include <QUrl>

class QAction;
class QTextBrowser;

namespace quillon {

// The help window: the HTML pages that stand in the "help" folder beside the executable.
// It is not modal, so that the user can read it beside the program.
class frmHelp : public QMainWindow {
    Q_OBJECT
public:
    explicit frmHelp(QWidget *parent = nullptr);

    // The one instance, created on first use.
    static frmHelp &instance();

    // Shows the window at a help anchor and brings it to the front.  An empty anchor is the
    // contents page; "scorelog" is the page scorelog.html, "golfer#add" the place "add" on golfer.html.
    void ShowHelp(const QString &anchor = QString());

    // The folder the pages are read from.
    static QString helpFolder();
    // The page and place an anchor stands for, in the help folder.
    static QUrl anchorUrl(const QString &anchor);

private:
    void showContents();
    void go(const QUrl &url);
    void followLink(const QUrl &link);
    void showMissing(const QString &what);
    void updateTitle();

    QTextBrowser *m_txtHelp = nullptr;
    QAction *m_cmdContents = nullptr;
    QAction *m_cmdBack = nullptr;
    QAction *m_cmdForward = nullptr;
};

} // namespace quillon

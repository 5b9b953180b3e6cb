#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;

namespace quillon {

// Removes golfers, several at once, with all their rounds.  Deleting the current golfer closes
// every view and asks for a golfer again.
class frmDeleteGolfer : public QDialog {
    Q_OBJECT
public:
    explicit frmDeleteGolfer(QWidget *parent = nullptr);
    static frmDeleteGolfer &instance();

    // Show the dialog modally and carry out what it was closed with.
    void DeleteGolfer();

    void cmdOK_Click();
    void cmdCancel_Click();

private:
    QListWidget *m_lstGolferList = nullptr;
    QPushButton *m_cmdOK = nullptr;
    QPushButton *m_cmdCancel = nullptr;
    // What follows the dialog: the golfer dialog when the current golfer went, else the view again.
    bool m_currentGolferGone = false;
};

} // namespace quillon

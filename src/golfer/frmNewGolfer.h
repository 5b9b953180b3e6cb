#pragma once

#include "GolferNames.h"

#include <QDialog>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace quillon {

// Chooses an existing golfer or adds a new one; the only way to change the current golfer.
// A first choice can only be left by exiting the program.
class frmNewGolfer : public QDialog {
    Q_OBJECT
public:
    explicit frmNewGolfer(QWidget *parent = nullptr);
    static frmNewGolfer &instance();

    // Fill and show the dialog modally; on a choice the score log opens for the golfer.
    void GetNewGolfer();

    void cmdOK_Click();
    void cmdCancel_Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void reject() override;

private:
    // False when the dialog stays open.
    bool AddGolfer();
    void ActivateGolfer(bool isNew);
    int selectedRow() const;

    QLineEdit *m_txtGolfer = nullptr;
    QListWidget *m_lstGolferList = nullptr;
    QPushButton *m_cmdOK = nullptr;
    QPushButton *m_cmdCancel = nullptr;
    GolferName m_parsed;
    bool m_closing = false;
};

} // namespace quillon

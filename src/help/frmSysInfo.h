#pragma once

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

namespace quillon {

// The system information of the About box: read-only text the user can select and copy
// into a message to whoever helps them.
class frmSysInfo : public QDialog {
    Q_OBJECT
public:
    explicit frmSysInfo(const QString &text, QWidget *parent = nullptr);

private:
    QPlainTextEdit *m_txtSysInfo = nullptr;
    QPushButton *m_cmdClose = nullptr;
};

} // namespace quillon

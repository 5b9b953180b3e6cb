#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quillon {

// Tells the current golfer the course handicap for a Slope Rating, from the handicap index of
// the golfer's held HandicapLog row.  Stores nothing.
class frmHdcpCalculator : public QDialog {
    Q_OBJECT
public:
    explicit frmHdcpCalculator(QWidget *parent = nullptr);
    static frmHdcpCalculator &instance();

    // Show the calculator modally, fresh as when it loads, centred over the main window.
    void ShowCalculator();

    void cmdCalculate_Click();
    void cmdCancel_Click();

private:
    void calculate();
    // Put the defaults back: the slope 113 and no result.
    void resetFields();

    QLineEdit *m_txtSlope = nullptr;
    QLabel *m_lblHandicap = nullptr;
    QLabel *m_lblInstructions = nullptr;
    QPushButton *m_cmdCalculate = nullptr;
    QPushButton *m_cmdCancel = nullptr;
};

} // namespace quillon

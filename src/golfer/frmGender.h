#pragma once

#include <QDialog>
#include <QString>

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace quillon {

// The small modal question for a golfer's gender, asked for a new golfer and for a
// stored golfer whose gender is missing.  It has no cancel: every way out gives an answer.
class frmGender : public QDialog {
    Q_OBJECT
public:
    explicit frmGender(QWidget *parent = nullptr);

    // The one instance, created on first use.
    static frmGender &instance();

    // "F" if Female was chosen, otherwise "M".
    QString GetGender(const QString &first, const QString &last);

private:
    void clearOptions();

    QLabel *m_lblInstructions = nullptr;
    QGroupBox *m_frame1 = nullptr;
    QRadioButton *m_optFemale = nullptr;
    QRadioButton *m_optMale = nullptr;
    QPushButton *m_cmdOK = nullptr;
};

} // namespace quillon

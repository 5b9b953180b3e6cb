#pragma once

#include <QDialog>
#include <QString>
#include <functional>

class QLabel;
class QPushButton;

namespace quillon {

// The About box: the program's title and version, its notices, and the way to the
// system information that whoever helps the user will ask for.
class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget *parent = nullptr);

    // The one instance, created on first use.
    static frmAbout &instance();

    // Shows the box modally, centred on the main window.
    void ShowAbout();

    // Shows the system information in a dialog of its own, or a message when there is none to show.
    void StartSysInfo();

    // Where the system information comes from; by default what Qt and the system report.
    // An empty text counts as unavailable.
    void setSysInfoSource(std::function<QString()> source);

private:
    void centreOnFrame();

    QLabel *m_picIcon = nullptr;
    QLabel *m_lblTitle = nullptr;
    QLabel *m_lblVersion = nullptr;
    QLabel *m_lblDescription = nullptr;
    QLabel *m_lblDisclaimer = nullptr;
    QLabel *m_lblCopyright = nullptr;
    QPushButton *m_cmdOK = nullptr;
    QPushButton *m_cmdSysInfo = nullptr;
    std::function<QString()> m_sysInfoSource;
};

} // namespace quillon

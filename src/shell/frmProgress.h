#pragma once

#include "store/UpgradeProgress.h"

#include <QDialog>

class QLabel;
class QProgressBar;

namespace quillon {

// The small form that stands while an upgrade carries the user's rows into a new database:
// what is happening, what is being copied now, and how far it has got.  It cannot be closed:
// the work runs to its end, well or not, and then takes the form away.
class frmProgress : public QDialog, public UpgradeProgress {
    Q_OBJECT
public:
    explicit frmProgress(QWidget *parent = nullptr);

    // The one instance, created on first use; unload() destroys it.
    static frmProgress &instance();
    static frmProgress *existing();
    static void unload();

    // UpgradeProgress: each change is painted at once, since the work holds the event loop.
    void Show() override;
    void SetRange(int maximum) override;
    void SetStatus(const QString &text) override;
    void SetValue(int value) override;
    void Unload() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void centreOnScreen();
    void letMessagesRun();

    QLabel *m_picIcon = nullptr;
    QLabel *m_lblTitle = nullptr;
    QLabel *m_lblDesc = nullptr;
    QLabel *m_lblStatus = nullptr;
    QProgressBar *m_pbUpdate = nullptr;
    bool m_working = false;
};

} // namespace quillon

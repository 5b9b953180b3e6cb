#pragma once

#include <QDate>
#include <QString>
#include <memory>

class QPagedPaintDevice;
class QWidget;

namespace quillon {

enum class MsgIcon { None, Critical, Exclamation, Question, Information };
enum class MsgButtons { OK, OKCancel, YesNo };
enum class MsgAnswer { OK, Cancel, Yes, No };

// Everything the program asks of the desktop goes through here, so that tests
// can script the answers and read what was shown.
class Platform {
public:
    virtual ~Platform() = default;

    virtual MsgAnswer messageBox(const QString &text, MsgIcon icon, const QString &title,
                                 MsgButtons buttons = MsgButtons::OK,
                                 MsgAnswer defaultButton = MsgAnswer::OK) = 0;

    // An empty result means the user cancelled.
    virtual QString getSaveFileName(const QString &title, const QString &filter,
                                    const QString &defaultName) = 0;
    virtual QString getOpenFileName(const QString &title, const QString &filter) = 0;

    // The default printer's device name; empty when the system has none.
    virtual QString defaultPrinterName() = 0;
    // The printer set-up dialog; false when cancelled.
    virtual bool printSetup() = 0;
    // A page device for one document; null when printing is impossible.
    virtual std::unique_ptr<QPagedPaintDevice> openPrinter(const QString &documentName) = 0;

    virtual QDate today() = 0;

    // The directory of the executable: every file the program touches is formed from it.
    virtual QString appDir() = 0;

    // The window that dialogs are centred on (the frame once it exists).
    void setDialogParent(QWidget *parent) { m_dialogParent = parent; }
    QWidget *dialogParent() const { return m_dialogParent; }

private:
    QWidget *m_dialogParent = nullptr;
};

// The installed platform.  The program installs the desktop one at start; tests install a scripted one.
Platform &platform();
bool platformInstalled();
void installPlatform(std::unique_ptr<Platform> p);
// Full path of a file in the application directory.
QString appFile(const QString &fileName);

// The application's title, used as the default title of its message boxes.
inline QString appTitle()
{
    return QStringLiteral("Quillon for Golf");
}

} // namespace quillon

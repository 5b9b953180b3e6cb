#pragma once

#include <QDate>
#include <QString>
#include <functional>
#include <memory>

class QPagedPaintDevice;
class QWidget;

namespace quillon {

enum class MsgIcon { None, Critical, Exclamation, Question, Information };
enum class MsgButtons { OK, OKCancel, YesNo };
enum class MsgAnswer { OK, Cancel, Yes, No };
// AsSetUp: the orientation chosen in printer set-up, or the printer's own default.
enum class PageOrientation { AsSetUp, Portrait, Landscape };

// One document to print: its name, the orientation of its pages, and how the pages are painted
// on a device.  The painting may run more than once (for the preview, then for the printer).
struct PrintJob {
    QString documentName;
    PageOrientation orientation = PageOrientation::AsSetUp;
    std::function<void(QPagedPaintDevice &device)> paint;
};

// Everything the program asks of the desktop goes through here, so that tests
// can script the answers and read what was shown.
//
// The questions the user answers (message boxes, file dialogs, printer set-up) are
// asked through the public functions below, which show the normal pointer while
// the question is up and bring the hourglass back afterwards; implementations
// supply only the dialogs themselves.
class Platform {
public:
    using HelpHandler = std::function<void(const QString &anchor)>;

    Platform();
    virtual ~Platform();
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;

    MsgAnswer messageBox(const QString &text, MsgIcon icon, const QString &title,
                         MsgButtons buttons = MsgButtons::OK, MsgAnswer defaultButton = MsgAnswer::OK);

    // Filters come as "description|pattern" pairs, e.g. "Quillon Data (*.qdl)|*.qdl".
    // An empty result means the user cancelled.
    QString getSaveFileName(const QString &title, const QString &filter, const QString &defaultName);
    QString getOpenFileName(const QString &title, const QString &filter);

    // The printer set-up dialog; false when cancelled.
    bool printSetup();

    // Shows the document in a preview, from which the user sends it to the printer chosen in
    // printer set-up (or to a PDF file the user names, when that is what was chosen).  False
    // when the user closed the preview without printing; throws QuillonError when no printer
    // can be opened.
    bool print(const PrintJob &job);

    // The system's default printer's device name; empty when the system has none.
    virtual QString defaultPrinterName() = 0;
    // A page device for one document, with the settings chosen in printer set-up;
    // null when printing is impossible.
    virtual std::unique_ptr<QPagedPaintDevice> openPrinter(const QString &documentName) = 0;
    // A page device that writes the document as PDF into path, printer or no printer.
    virtual std::unique_ptr<QPagedPaintDevice> openPdfPrinter(const QString &path,
                                                              const QString &documentName) = 0;

    virtual QDate today() = 0;

    // The directory of the executable: every file the program touches is formed from it.
    virtual QString appDir() = 0;

    // Progress of long work (a database upgrade): value out of maximum, with a line of text.
    // progressDone() takes the progress away.
    virtual void progress(int value, int maximum, const QString &text) = 0;
    virtual void progressDone() = 0;

    // Opens the help at an anchor.  The help window belongs to the frame, which installs
    // the handler; the seam only passes the request on.
    virtual void showHelp(const QString &anchor) = 0;
    void setHelpHandler(HelpHandler handler) { m_helpHandler = std::move(handler); }

    // True while the hourglass is showing: some work holds an Hourglass and no question is up.
    bool pointerBusy() const { return m_busyDepth > 0 && m_questionsUp == 0; }

    // The window that dialogs are centred on (the frame once it exists).
    void setDialogParent(QWidget *parent) { m_dialogParent = parent; }
    QWidget *dialogParent() const { return m_dialogParent; }

protected:
    virtual MsgAnswer showMessageBox(const QString &text, MsgIcon icon, const QString &title,
                                     MsgButtons buttons, MsgAnswer defaultButton) = 0;
    virtual QString showSaveFileDialog(const QString &title, const QString &filter,
                                       const QString &defaultName) = 0;
    virtual QString showOpenFileDialog(const QString &title, const QString &filter) = 0;
    virtual bool showPrintSetup() = 0;
    virtual bool showPrintPreview(const PrintJob &job) = 0;

    // Called when the pointer must change between the hourglass and the normal pointer.
    virtual void showBusyPointer(bool busy);

    // Passes a help request to the frame's handler; false when none is installed yet.
    bool callHelpHandler(const QString &anchor) const;

private:
    friend class Hourglass;
    class QuestionUp;

    void beginBusy();
    void endBusy();
    void updatePointer();

    // Tells platforms apart over their lifetimes, so that an hourglass begun on one
    // never ends on another that took its place (and perhaps its address).
    const quint64 m_serial;
    QWidget *m_dialogParent = nullptr;
    HelpHandler m_helpHandler;
    int m_busyDepth = 0;
    int m_questionsUp = 0;
    bool m_pointerShownBusy = false;
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

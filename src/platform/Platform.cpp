#include "Platform.h"

#include <QDir>

namespace quillon {

namespace {
std::unique_ptr<Platform> &installed()
{
    static std::unique_ptr<Platform> instance;
    return instance;
}
} // namespace

// Holds the normal pointer for as long as a question is up, however the dialog ends.
class Platform::QuestionUp {
public:
    explicit QuestionUp(Platform &p) : m_platform(p)
    {
        ++m_platform.m_questionsUp;
        m_platform.updatePointer();
    }
    ~QuestionUp()
    {
        --m_platform.m_questionsUp;
        m_platform.updatePointer();
    }
    QuestionUp(const QuestionUp &) = delete;
    QuestionUp &operator=(const QuestionUp &) = delete;

private:
    Platform &m_platform;
};

Platform::Platform()
    : m_serial([] {
          static quint64 made = 0;
          return ++made;
      }())
{
}

Platform::~Platform() = default;

MsgAnswer Platform::messageBox(const QString &text, MsgIcon icon, const QString &title, MsgButtons buttons,
                               MsgAnswer defaultButton)
{
    const QuestionUp up(*this);
    return showMessageBox(text, icon, title, buttons, defaultButton);
}

QString Platform::getSaveFileName(const QString &title, const QString &filter, const QString &defaultName)
{
    const QuestionUp up(*this);
    return showSaveFileDialog(title, filter, defaultName);
}

QString Platform::getOpenFileName(const QString &title, const QString &filter)
{
    const QuestionUp up(*this);
    return showOpenFileDialog(title, filter);
}

bool Platform::printSetup()
{
    const QuestionUp up(*this);
    return showPrintSetup();
}

bool Platform::print(const PrintJob &job)
{
    const QuestionUp up(*this);
    return showPrintPreview(job);
}

void Platform::showBusyPointer(bool) {}

bool Platform::callHelpHandler(const QString &anchor) const
{
    if (!m_helpHandler)
        return false;
    m_helpHandler(anchor);
    return true;
}

void Platform::beginBusy()
{
    ++m_busyDepth;
    updatePointer();
}

void Platform::endBusy()
{
    if (m_busyDepth == 0)
        return;
    --m_busyDepth;
    updatePointer();
}

void Platform::updatePointer()
{
    // The hook hears only of changes, so a desktop cursor stack stays balanced.
    const bool busy = pointerBusy();
    if (busy == m_pointerShownBusy)
        return;
    m_pointerShownBusy = busy;
    showBusyPointer(busy);
}

Platform &platform()
{
    auto &p = installed();
    Q_ASSERT_X(p, "platform()", "no platform installed");
    return *p;
}

bool platformInstalled()
{
    return installed() != nullptr;
}

void installPlatform(std::unique_ptr<Platform> p)
{
    installed() = std::move(p);
}

QString appFile(const QString &fileName)
{
    return QDir(platform().appDir()).filePath(fileName);
}

} // namespace quillon

#include "SingleInstance.h"

#include <QFile>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace quillon {

SingleInstance::SingleInstance(QString lockPath) : m_path(std::move(lockPath)) {}

SingleInstance::~SingleInstance()
{
    if (m_fd >= 0)
        ::close(m_fd); // releases the lock; the file stays for the next run
}

bool SingleInstance::previousInstance()
{
    if (m_fd >= 0)
        return false;
    const QByteArray path = QFile::encodeName(m_path);
    // An existing lock file is opened without being written; only the first run ever creates it.
    int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        fd = ::open(path.constData(), O_RDONLY | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0)
        return false; // a directory we cannot write to: nothing to share, so nothing to refuse
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        return true;
    }
    m_fd = fd;
    return false;
}

} // namespace quillon

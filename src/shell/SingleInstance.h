#pragma once

#include <QString>

namespace quillon {

// One running program per installation.  An advisory lock on a file beside the
// database: the kernel drops it when the holder ends, however it ends, so a
// crashed run never locks the user out.
class SingleInstance {
public:
    explicit SingleInstance(QString lockPath);
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    // True when another process holds the lock.  Otherwise this process takes it
    // (once) and keeps it until it ends.  Looking writes nothing.
    bool previousInstance();

    static QString defaultLockName() { return QStringLiteral("Quillon.lock"); }

private:
    QString m_path;
    int m_fd = -1;
};

} // namespace quillon

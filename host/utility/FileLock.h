#pragma once

#include <QLockFile>
#include <QString>

#include <chrono>

namespace kesto::utility {

// The lock file of a file ("NAME.lock" beside it) for a read-modify-write that other processes
// may make at the same time. A lock left by a process that ended is taken over.
class CFileLock {
public:
    explicit CFileLock(const QString& file);

    // Waits up to wait for another process; false with a reason (Japanese) otherwise.
    bool lock(std::chrono::milliseconds wait, QString* error);

private:
    QString m_file;
    QLockFile m_lock;
};

} // namespace kesto::utility

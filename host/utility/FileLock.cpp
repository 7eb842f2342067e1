#include "utility/FileLock.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>

namespace kesto::utility {

namespace {
QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::utility::CFileLock", text);
}
} // namespace

CFileLock::CFileLock(const QString& file)
    : m_file(file)
    , m_lock(file + QStringLiteral(".lock"))
{}

bool CFileLock::lock(std::chrono::milliseconds wait, QString* error)
{
    // QLockFile's own wait sleeps from 100 ms up to seconds; several writers need short turns.
    const QDeadlineTimer deadline(wait);
    int pause = 1;
    while (!m_lock.tryLock(0)) {
        if (m_lock.error() != QLockFile::LockFailedError) {
            if (error)
                *error = tr("フォルダ %1 に書き込めません。")
                             .arg(QDir::toNativeSeparators(QFileInfo(m_file).absolutePath()));
            return false;
        }
        if (deadline.hasExpired()) {
            if (error)
                *error = tr("%1 はほかのプログラムが書き込み中です。")
                             .arg(QDir::toNativeSeparators(m_file));
            return false;
        }
        QThread::msleep(QRandomGenerator::global()->bounded(1, pause + 1));
        pause = std::min(pause * 2, 20);
    }
    return true;
}

} // namespace kesto::utility

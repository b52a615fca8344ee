// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/logreader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <atomic>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Utils {
namespace LoggingSystem {

namespace {

// Identity of the file behind a path: a replaced file has a new one.
quint64 fileIdentity(const QString &path)
{
#ifdef _WIN32
    const QFileInfo info(path);
    return info.exists() ? quint64(info.birthTime().toMSecsSinceEpoch()) : 0;
#else
    struct stat buffer;
    if (::stat(QFile::encodeName(path).constData(), &buffer) != 0)
        return 0;
    return quint64(buffer.st_ino) ^ (quint64(buffer.st_dev) << 40);
#endif
}

} // namespace

struct LogReader::Private
{
    // Written by the owning thread, read by the loop at every turn.
    std::atomic<bool> running{false};
    QString path;
    // Opened and read only on the reader's thread while it runs.
    QFile file;
    QByteArray partial;
    quint64 identity = 0;
};

LogReader::LogReader()
    : d(std::make_unique<Private>())
{
}

LogReader::LogReader(const QString &path)
    : LogReader()
{
    bSetLogFilePath(path);
}

LogReader::~LogReader()
{
    stopAndWait();
    d->file.close();
}

bool LogReader::bSetLogFilePath(const QString &path)
{
    stopAndWait();
    d->file.close();
    d->partial.clear();
    d->path = path;
    d->file.setFileName(path);
    if (!d->file.open(QIODevice::ReadOnly))
        return false;
    d->identity = fileIdentity(path);
    // The loop opens the file itself on its own thread.
    d->file.close();
    start();
    return true;
}

bool LogReader::bIsRunning() const
{
    return d->running.load();
}

void LogReader::start()
{
    d->running.store(true);
    QThread::start(QThread::InheritPriority);
}

void LogReader::stopAndWait()
{
    d->running.store(false);
    // The loop notices the cleared flag within a millisecond; wait until it has
    // ended, however loaded the machine: a QThread destroyed while running aborts.
    if (!QThread::wait(5))
        QThread::wait();
}

void LogReader::run()
{
    QFile &file = d->file;
    if (!file.open(QIODevice::ReadOnly))
        return;
    int turns = 0;
    while (d->running.load()) {
        bool readSome = false;
        while (d->running.load() && file.isOpen() && file.bytesAvailable() > 0) {
            d->partial += file.read(64 * 1024);
            readSome = true;
            int start = 0;
            for (int end = d->partial.indexOf('\n', start); end >= 0; end = d->partial.indexOf('\n', start)) {
                Q_EMIT vDataAvailable(QString::fromUtf8(d->partial.constData() + start, end - start + 1));
                start = end + 1;
            }
            d->partial.remove(0, start);
        }
        // About ten times a second: is it still the same file, as long as before?
        if (++turns >= 100) {
            turns = 0;
            const quint64 identity = fileIdentity(d->path);
            const bool replaced = identity != 0 && identity != d->identity;
            const bool truncated = !replaced && identity != 0 && QFileInfo(d->path).size() < file.pos();
            if (replaced || truncated || (identity == 0 && file.isOpen())) {
                file.close();
                d->partial.clear();
                d->identity = identity;
                if (identity != 0)
                    file.open(QIODevice::ReadOnly);
            } else if (!file.isOpen() && identity != 0) {
                d->identity = identity;
                file.open(QIODevice::ReadOnly);
            }
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 500);
        if (!readSome)
            QThread::msleep(1);
    }
    file.close();
}

} // namespace LoggingSystem
} // namespace Utils

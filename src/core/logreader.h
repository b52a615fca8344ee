// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_LOGREADER_H
#define UTILS_LOGREADER_H

#include "utils_export.h"

#include <QThread>

#include <memory>

namespace Utils {
namespace LoggingSystem {

/*!
    \brief Follows a text file on a thread of its own and announces each new line.

    Started with a file (the constructor or bSetLogFilePath()), the reader reads
    every complete line from where the file stands and emits vDataAvailable()
    with it, line feed included; the signal reaches receivers on other threads
    queued. It keeps following: a line written later is announced when its line
    feed arrives. A file that is truncated is read again from its start; a file
    that is replaced is followed under its name from the new file's start; a
    file that is deleted is waited for until it appears again.

    Destroying a running reader stops its loop and waits until the thread has
    ended, so a reader can be destroyed at any time from the thread that made
    it (the loop notices the stop within about a millisecond).
*/
class UTILS_EXPORT LogReader : public QThread
{
    Q_OBJECT

public:
    //! Not running, no file.
    LogReader();
    //! Opens \a path and, when that succeeds, starts following it.
    explicit LogReader(const QString &path);
    //! Stops the loop and waits for the thread to end, then closes the file.
    ~LogReader() override;

    //! Follows \a path instead; false (and idle) when it cannot be opened.
    bool bSetLogFilePath(const QString &path);
    //! Whether the loop runs (or is about to).
    bool bIsRunning() const;

public Q_SLOTS:
    //! Sets the running flag and starts the thread.
    void start();

Q_SIGNALS:
    //! One line read from the file, its line feed included.
    void vDataAvailable(const QString &line);

protected:
    void run() override;

private:
    void stopAndWait();

    Q_DISABLE_COPY(LogReader)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace LoggingSystem
} // namespace Utils

#endif // UTILS_LOGREADER_H

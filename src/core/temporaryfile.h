// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TEMPORARYFILE_H
#define UTILS_TEMPORARYFILE_H

#include "core/observer.h"
#include "utils_export.h"

#include <QTemporaryFile>

namespace Utils {
namespace LoggingSystem {

class Log;

/*!
    \brief A self-removing scratch log file beside the executable.

    The file is named "<application dir>/<application name>-log-XXXXXX", opened
    read-write and unbuffered at construction, and removed when the object is
    destroyed. It holds one reference to the logger passed in (obtained by the
    caller through Log::requestInstance()) and gives it back on destruction.

    The Observer base is only a type marker: a TemporaryFile must never be
    attached to an Observable. Should it be notified anyway, update() only warns.
*/
class UTILS_EXPORT TemporaryFile : public QTemporaryFile, public Utils::Observer
{
    Q_OBJECT

public:
    explicit TemporaryFile(Log *log = nullptr);
    ~TemporaryFile() override;

    //! (Re)opens the file read-write and unbuffered; a failure is not reported.
    void open();

private:
    void update(void *subject) override;

    Log *m_poLog;
};

} // namespace LoggingSystem
} // namespace Utils

#endif // UTILS_TEMPORARYFILE_H

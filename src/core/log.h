// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_LOG_H
#define UTILS_LOG_H

#include "utils_export.h"

#include <QObject>
#include <QString>

#include <string>

namespace Utils {
namespace LoggingSystem {

class Log;
namespace Internal {
Log *existingLog();
}

/*!
    \brief The process-wide logger, a counted singleton.

    Obtain it with requestInstance() and give the reference back with
    releaseInstance(). Lines have the layout
    "hh:mm:ss.zzz | dd.MM.yyyy | LEVEL | Module | message".

    vLog() composes a line and then drops it: lines reach listeners such as the
    log viewer only when the host emits emitLastLogged() with a finished line.
*/
class UTILS_EXPORT Log : public QObject
{
    Q_OBJECT

public:
    enum TLogLevel {
        eError = 0,
        eWarning = 1,
        eInfo = 2,
        eDebug = 3
    };
    Q_ENUM(TLogLevel)

    //! Size of the message buffer; a message keeps at most MessageBufferSize - 1 bytes.
    static constexpr int MessageBufferSize = 100000;

    static Log *requestInstance();
    static void releaseInstance(bool force = false);

    //! Composes one line from \a level, \a module and a printf-style message.
    void vLog(TLogLevel level, std::string module, const char *format, ...)
#if defined(__GNUC__)
        __attribute__((format(printf, 4, 5)))
#endif
        ;

Q_SIGNALS:
    void emitLastLogged(const QString &line);

protected:
    std::string oLogLevelToString(TLogLevel level);

private:
    Log();
    Log(const Log &);
    Log &operator=(const Log &);
    ~Log() override;
    static Log *m_poInstance;
    static qint32 m_nReferenceCounter;

    friend Log *Internal::existingLog();
};

} // namespace LoggingSystem
} // namespace Utils

#endif // UTILS_LOG_H

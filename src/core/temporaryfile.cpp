// SPDX-License-Identifier: LGPL-2.1-or-later
#include "temporaryfile.h"

#include "core/log.h"

#include <QCoreApplication>

namespace Utils {
namespace LoggingSystem {

TemporaryFile::TemporaryFile(Log *log)
    : QTemporaryFile()
    , m_poLog(log)
{
    setFileTemplate(QCoreApplication::applicationDirPath() + QLatin1Char('/') + QCoreApplication::applicationName()
                    + QLatin1String("-log-") + QLatin1String("XXXXXX"));
    setAutoRemove(true);
    open();
}

TemporaryFile::~TemporaryFile()
{
    if (m_poLog)
        Log::releaseInstance(false);
}

void TemporaryFile::open()
{
    // ReadWrite | Unbuffered, value 35.
    if (QTemporaryFile::open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return;
    // Beside an executable in a read-only folder there is no scratch log; the
    // host learns it once instead of never.
    static bool warned = false;
    if (!warned) {
        warned = true;
        qWarning("Utils::LoggingSystem::TemporaryFile: cannot create the scratch log %s: %s",
                 qUtf8Printable(fileTemplate()), qUtf8Printable(errorString()));
    }
}

void TemporaryFile::update(void *)
{
    qWarning("Utils::LoggingSystem::TemporaryFile is not meant to observe anything; notification ignored");
}

} // namespace LoggingSystem
} // namespace Utils

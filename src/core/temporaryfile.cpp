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
    QTemporaryFile::open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

void TemporaryFile::update(void *)
{
    qWarning("Utils::LoggingSystem::TemporaryFile is not meant to observe anything; notification ignored");
}

} // namespace LoggingSystem
} // namespace Utils

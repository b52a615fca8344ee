// SPDX-License-Identifier: LGPL-2.1-or-later
#include "log.h"
#include "log_p.h"

#include <QDateTime>

#include <cstdio>

namespace Utils {
namespace LoggingSystem {

Log *Log::m_poInstance = nullptr;
qint32 Log::m_nReferenceCounter = 0;

Log::Log()
    : QObject(nullptr)
{
}

Log::~Log() = default;

Log *Log::requestInstance()
{
    if (!m_poInstance)
        m_poInstance = new Log();
    ++m_nReferenceCounter;
    return m_poInstance;
}

Log *Internal::existingLog()
{
    return Log::m_poInstance;
}

void Log::releaseInstance(bool force)
{
    const qint32 before = m_nReferenceCounter--;
    // A forced release destroys the logger even while others hold it and still
    // counts down, so the count may go below zero; holders must not use it after.
    if (before == 1 || force) {
        delete m_poInstance;
        m_poInstance = nullptr;
    }
}

namespace {

const char *levelText(int level)
{
    switch (level) {
    case Log::eError:
        return "ERROR";
    case Log::eWarning:
        return "WARNING";
    case Log::eInfo:
        return "INFO";
    case Log::eDebug:
        return "DEBUG";
    }
    return "";
}

// Length of the longest prefix of text[0..length) that does not end inside a
// UTF-8 multi-byte sequence.
int wholeUtf8Length(const char *text, int length)
{
    int start = length;
    // Walk back over at most three continuation bytes to the lead byte.
    while (start > 0 && length - start < 4 && (static_cast<unsigned char>(text[start - 1]) & 0xC0) == 0x80)
        --start;
    if (start == 0)
        return length;
    const unsigned char lead = static_cast<unsigned char>(text[start - 1]);
    int needed = 1;
    if ((lead & 0xE0) == 0xC0)
        needed = 2;
    else if ((lead & 0xF0) == 0xE0)
        needed = 3;
    else if ((lead & 0xF8) == 0xF0)
        needed = 4;
    const int have = length - start + 1;
    return have >= needed ? length : start - 1;
}

} // namespace

std::string Log::oLogLevelToString(TLogLevel level)
{
    return levelText(level);
}

namespace Internal {

QString composeLogLine(int level, const std::string &module, const QDateTime &now, const char *format, va_list args)
{
    constexpr int MessageBufferSize = Log::MessageBufferSize;
    char message[MessageBufferSize];
    int length = 0;
    if (format) {
        const int written = std::vsnprintf(message, sizeof message, format, args);
        if (written < 0) {
            length = 0;
        } else if (written >= MessageBufferSize) {
            length = wholeUtf8Length(message, MessageBufferSize - 1);
        } else {
            length = written;
        }
    }
    message[length] = '\0';

    static const QString separator = QStringLiteral(" | ");
    QString line;
    line.reserve(48 + int(module.size()) + length);
    line.append(QStringLiteral("%1").arg(now.time().toString(QStringLiteral("hh:mm:ss.zzz")), 0, QLatin1Char(' ')));
    line.append(separator);
    line.append(QStringLiteral("%1").arg(now.date().toString(QStringLiteral("dd.MM.yyyy")), 0, QLatin1Char(' ')));
    line.append(separator);
    line.append(QLatin1String(levelText(level)));
    line.append(separator);
    line.append(QString::fromLocal8Bit(module.data(), int(module.size())));
    line.append(separator);
    line.append(QString::fromLocal8Bit(message, length));
    line.replace(QChar(10), QChar(' '));
    line.replace(QChar(13), QChar(' '));
    return line;
}

} // namespace Internal

void Log::vLog(TLogLevel level, std::string module, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    const QString line = Internal::composeLogLine(level, module, QDateTime::currentDateTime(), format, args);
    va_end(args);
    // Deliberately dropped: lines reach listeners only when the host emits
    // emitLastLogged() itself.
    Q_UNUSED(line)
}

} // namespace LoggingSystem
} // namespace Utils

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_LOG_P_H
#define UTILS_LOG_P_H

// Internal to the library and its tests; not installed.

#include "utils_export.h"

#include <QString>

#include <cstdarg>
#include <string>

class QDateTime;

namespace Utils {
namespace LoggingSystem {

class Log;

namespace Internal {

/*!
    Builds the line Log::vLog() composes, for the given local date and time:
    "hh:mm:ss.zzz | dd.MM.yyyy | LEVEL | Module | message", with line feeds and
    carriage returns replaced by blanks. An unknown \a level leaves the level
    field empty. A message longer than the buffer is cut to
    Log::MessageBufferSize - 1 bytes, shortened further to the last whole UTF-8
    character; a null format or one the formatter rejects gives an empty message.
*/
/*!
    The logger if somebody holds it, else null; never creates it. Code that logs
    on a path run per event or per sample uses it instead of requesting and
    releasing the logger around each line, which would create and destroy the
    logger and its buffer every time nobody else holds it. Nothing is lost when
    it is null: vLog() drops its line anyway.
*/
Log *existingLog();

UTILS_EXPORT QString composeLogLine(int level, const std::string &module, const QDateTime &now, const char *format,
                                    va_list args);

} // namespace Internal
} // namespace LoggingSystem
} // namespace Utils

#endif // UTILS_LOG_P_H

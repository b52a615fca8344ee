// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDSSTRING_P_H
#define UTILS_THRESHOLDSSTRING_P_H

// Helpers shared by the threshold records for the sensor's 16-digit string.
// Internal: not installed.

#include "core/log.h"
#include "core/log_p.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

namespace Utils {
namespace ThresholdsString {

//! Truncates toward zero like an int cast, but saturates instead of overflowing
//! (values set with noUpperLimit may be far outside int); NaN gives 0.
inline int truncated(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(value);
}

/*!
    Formats four words with "%.4X" each. A word is printed as the sensor's
    unsigned 32-bit register would hold it: a negative word shows as its two's
    complement (FFFFFFxx) and no word is cut to four digits.
*/
inline std::string fourWords(std::int64_t w1, std::int64_t w2, std::int64_t w3, std::int64_t w4)
{
    char text[4 * 8 + 1];
    std::snprintf(text, sizeof text, "%.4X%.4X%.4X%.4X", unsigned(std::uint32_t(w1)), unsigned(std::uint32_t(w2)),
                  unsigned(std::uint32_t(w3)), unsigned(std::uint32_t(w4)));
    return text;
}

//! Reads four hexadecimal digits at \a offset of \a text (which holds at least
//! offset + 4 bytes). A word with any non-hexadecimal byte reads as 0.
inline int hexWord(const std::string &text, std::size_t offset)
{
    int value = 0;
    for (std::size_t i = offset; i < offset + 4; ++i) {
        const char c = text[i];
        int digit;
        if (c >= '0' && c <= '9')
            digit = c - '0';
        else if (c >= 'A' && c <= 'F')
            digit = c - 'A' + 10;
        else if (c >= 'a' && c <= 'f')
            digit = c - 'a' + 10;
        else
            return 0;
        value = value * 16 + digit;
    }
    return value;
}

//! Writes two values, space-separated, to the logger at debug level when somebody holds it.
inline void logPair(const char *module, double first, double second)
{
    if (LoggingSystem::Log *log = LoggingSystem::Internal::existingLog())
        log->vLog(LoggingSystem::Log::eDebug, module, "%g %g", first, second);
}

} // namespace ThresholdsString
} // namespace Utils

#endif // UTILS_THRESHOLDSSTRING_P_H

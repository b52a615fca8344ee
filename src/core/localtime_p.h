// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_LOCALTIME_P_H
#define UTILS_LOCALTIME_P_H

// Internal to the library and its tests; not installed.

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <algorithm>
#include <cstring>
#include <ctime>

namespace Utils {
namespace LocalTime {

/*!
    Local date and time texts of times in ms since the epoch, equal to
    QDateTime::fromMSecsSinceEpoch(ms).toString(pattern) but without building a
    QDateTime: the time axis labels every tick at each replot and the CSV export
    writes a time per row.

    Patterns are Qt date-time formats made of the fields "dd", "MM", "yyyy",
    "hh", "mm", "ss" and "zzz" and of characters that are not letters, which are
    copied as they are.
*/

/*!
    The last ms that QDateTime converts with the C library's local time
    (2037-12-31 23:59:59 UTC). Before 1970 and after it, it applies rules of its
    own (no daylight saving before 1970; later years take 2037's rules), and such
    times are formatted by QDateTime itself.
*/
constexpr qint64 lastPlainMs = Q_INT64_C(2145916799000);

//! True when \a ms is converted through the C library's local time.
constexpr bool isPlain(qint64 ms)
{
    return ms >= 0 && ms <= lastPlainMs;
}

//! A local date and time broken down into the fields of the patterns.
struct Fields
{
    int year = 1970;
    int month = 1; // 1 to 12
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int msec = 0;
};

/*!
    The local fields of \a ms; only for isPlain(\a ms). Uses the time zone the C
    library has loaded: QDateTime reloads it (tzset) before each conversion, this
    does not, so that a label costs no file system look-up. Call reloadZone()
    where a change of the zone must be seen.
*/
inline Fields plainFields(qint64 ms)
{
    const std::time_t seconds = std::time_t(ms / 1000);
    std::tm local {};
#ifdef _WIN32
    localtime_s(&local, &seconds);
#else
    localtime_r(&seconds, &local);
#endif
    Fields fields;
    fields.year = local.tm_year + 1900;
    fields.month = local.tm_mon + 1;
    fields.day = local.tm_mday;
    fields.hour = local.tm_hour;
    fields.minute = local.tm_min;
    fields.second = local.tm_sec;
    fields.msec = int(ms % 1000);
    return fields;
}

//! Has the C library read the time zone (TZ, the system zone) again.
inline void reloadZone()
{
#ifdef _WIN32
    _tzset();
#else
    tzset();
#endif
}

namespace Detail {

inline char *digits(char *out, int value, int count)
{
    for (int i = count - 1; i >= 0; --i) {
        out[i] = char('0' + value % 10);
        value /= 10;
    }
    return out + count;
}

} // namespace Detail

/*!
    Writes \a fields by \a pattern at \a out and returns the end; at most
    strlen(pattern) bytes. Pure: no clock, no zone, no I/O. A year is written
    with four digits, as Qt does for the years 1000 to 9999.
*/
inline char *writeFields(char *out, const Fields &fields, const char *pattern)
{
    while (*pattern) {
        if (std::strncmp(pattern, "yyyy", 4) == 0) {
            out = Detail::digits(out, fields.year, 4);
            pattern += 4;
        } else if (std::strncmp(pattern, "zzz", 3) == 0) {
            out = Detail::digits(out, fields.msec, 3);
            pattern += 3;
        } else if (pattern[0] == pattern[1] && std::strchr("dMhms", pattern[0])) {
            const char field = pattern[0];
            const int value = field == 'd' ? fields.day
                : field == 'M'             ? fields.month
                : field == 'h'             ? fields.hour
                : field == 'm'             ? fields.minute
                                           : fields.second;
            out = Detail::digits(out, value, 2);
            pattern += 2;
        } else {
            *out++ = *pattern++;
        }
    }
    return out;
}

/*!
    Writes the local time of \a ms by \a pattern at \a out, where \a room bytes
    are free (at least strlen(\a pattern)), and returns the end. Times outside
    the plain range go through QDateTime, whose text may be longer than the
    pattern (years beyond 9999, a sign); it is cut at \a room.
*/
inline char *write(char *out, int room, qint64 ms, const char *pattern)
{
    Q_ASSERT(int(std::strlen(pattern)) <= room);
    if (isPlain(ms))
        return writeFields(out, plainFields(ms), pattern);
    const QByteArray text = QDateTime::fromMSecsSinceEpoch(ms).toString(QLatin1String(pattern)).toLatin1();
    const int length = std::min(text.size(), room);
    std::memcpy(out, text.constData(), size_t(length));
    return out + length;
}

//! The local time of \a ms by \a pattern (at most 64 characters) as a QString.
inline QString text(qint64 ms, const char *pattern)
{
    if (!isPlain(ms))
        return QDateTime::fromMSecsSinceEpoch(ms).toString(QLatin1String(pattern));
    char buffer[64];
    Q_ASSERT(std::strlen(pattern) <= sizeof buffer);
    const char *end = writeFields(buffer, plainFields(ms), pattern);
    return QString::fromLatin1(buffer, int(end - buffer));
}

} // namespace LocalTime
} // namespace Utils

#endif // UTILS_LOCALTIME_P_H

// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_WALLCLOCK_P_H
#define UTILS_WALLCLOCK_P_H

// Internal to the library: the clock that stamps samples without a time of
// their own. Not installed.

#include <chrono>

namespace Utils {
namespace Charts {

/*!
    Wall-clock time in ms since the epoch with a fraction: samples of a fast
    sensor within one millisecond keep their order and stay apart. Reads the
    system clock and nothing else (no QDateTime object, no allocation).
*/
inline double wallClockMs()
{
    using namespace std::chrono;
    return double(duration_cast<microseconds>(system_clock::now().time_since_epoch()).count()) / 1000.0;
}

/*!
    The time a sample is stored at: its own, or the wall clock for a time of 1.0
    or less (0, negative, NaN mean "now"). The clock is read only then.
*/
inline double sampleTime(double timeValue)
{
    return timeValue > 1.0 ? timeValue : wallClockMs();
}

} // namespace Charts
} // namespace Utils

#endif // UTILS_WALLCLOCK_P_H

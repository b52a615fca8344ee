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

} // namespace Charts
} // namespace Utils

#endif // UTILS_WALLCLOCK_P_H

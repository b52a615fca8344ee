// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PROBES_H
#define UTILS_PROBES_H

#include "utils_export.h"

#include <cstdint>

/*!
    \file probes.h
    \brief Stop-watch and memory probes for quick profiling by the host.

    Stamps are counter ticks times 1000, unsigned 64-bit. On Windows the counter is
    the high-resolution performance counter; elsewhere it is the monotonic clock
    read in ticks of 100 ns (frequency 10 000 000). The probes keep their state in hidden
    process-wide variables and take no lock: use them from one thread at a time.
*/

#if defined(_MSC_VER)
typedef unsigned __int64 UtilsUInt64;
#else
typedef unsigned long long UtilsUInt64;
#endif

//! Starts the stop-watch; the stamp is kept and also stored at \a start when not null.
UTILS_EXPORT void vStartTimer(UtilsUInt64 *start);
//! Stores the current stamp at \a stop, which must not be null; the kept start stays.
UTILS_EXPORT void vStopTimer(UtilsUInt64 *stop);
//! Milliseconds between two stamps, unsigned (a stop before the start wraps), cut to 32 bits.
UTILS_EXPORT std::uint32_t GetTimeMs(UtilsUInt64 start, UtilsUInt64 stop);
//! Microseconds between two stamps, unsigned, cut to 32 bits.
UTILS_EXPORT std::uint32_t GetTimeUs(UtilsUInt64 start, UtilsUInt64 stop);
//! Microseconds since the last vStartTimer(). Call vStartTimer() first: this does not read the frequency.
UTILS_EXPORT std::uint32_t ulTimestampUs();

//! Private committed memory of the process in bytes; kept as the reference for the gap functions.
UTILS_EXPORT double GetMemoryUsageBytes();
//! As GetMemoryUsageBytes(), in kibibytes (the kept reference stays in bytes).
UTILS_EXPORT double GetMemoryUsageKBytes();
//! Absolute difference in bytes between the current usage and the last usage reading.
UTILS_EXPORT double GetMemoryGapBytes();
//! As GetMemoryGapBytes(), in kibibytes.
UTILS_EXPORT double GetMemoryGapKBytes();

#endif // UTILS_PROBES_H

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "probes.h"

#include <cmath>

#if defined(_WIN32)
#include <windows.h>
#include <psapi.h>
#else
#include <fcntl.h>
#include <time.h>
#include <unistd.h>
#endif

namespace {

UtilsUInt64 s_frequency = 0;
UtilsUInt64 s_startStamp = 0;
double s_memoryReading = 0.0;

constexpr double KiB = 0.0009765625; // 1 / 1024

#if defined(_WIN32)
UtilsUInt64 readFrequency()
{
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return static_cast<UtilsUInt64>(frequency.QuadPart);
}

UtilsUInt64 readCounter()
{
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return static_cast<UtilsUInt64>(counter.QuadPart);
}

bool readPrivateBytes(double *bytes)
{
    PROCESS_MEMORY_COUNTERS counters;
    const HANDLE process = GetCurrentProcess();
    const bool ok = K32GetProcessMemoryInfo(process, &counters, sizeof counters);
    if (ok)
        *bytes = static_cast<double>(counters.PagefileUsage);
    CloseHandle(process);
    return ok;
}
#else
// The monotonic nanosecond clock is read in ticks of 100 ns, the frequency the
// Windows performance counter reports on current systems. Stamps are ticks times
// 1000 and GetTimeUs() multiplies a difference by 1000 again; with nanosecond
// ticks that product would wrap after 18 s, with 100 ns ticks after half an hour,
// as on Windows.
constexpr UtilsUInt64 TickNs = 100;

UtilsUInt64 readFrequency()
{
    return 1000000000ULL / TickNs;
}

UtilsUInt64 readCounter()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<UtilsUInt64>(now.tv_sec) * (1000000000ULL / TickNs)
        + static_cast<UtilsUInt64>(now.tv_nsec) / TickNs;
}

// The data segment of /proc/self/statm (heap, anonymous mappings and stacks) is
// the process's private committed memory, the closest match of PagefileUsage.
// Read with plain system calls so that probing does not itself allocate.
bool readPrivateBytes(double *bytes)
{
    const int fd = ::open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    char buffer[256];
    const ssize_t length = ::read(fd, buffer, sizeof buffer - 1);
    ::close(fd);
    if (length <= 0)
        return false;
    buffer[length] = '\0';
    // Fields: size resident shared text lib data dt, in pages; data is the sixth.
    unsigned long long fields[7] = {};
    int field = 0;
    bool inNumber = false;
    for (const char *c = buffer; *c && field < 7; ++c) {
        if (*c >= '0' && *c <= '9') {
            fields[field] = fields[field] * 10 + static_cast<unsigned>(*c - '0');
            inNumber = true;
        } else if (inNumber) {
            ++field;
            inNumber = false;
        }
    }
    if (field < 6)
        return false;
    const long pageSize = ::sysconf(_SC_PAGESIZE);
    *bytes = static_cast<double>(fields[5]) * static_cast<double>(pageSize > 0 ? pageSize : 4096);
    return true;
}
#endif

void initialiseFrequency()
{
    if (s_frequency == 0) {
        s_frequency = readFrequency();
        s_startStamp = 0;
    }
}

double currentPrivateBytes()
{
    double bytes = 0.0;
    if (!readPrivateBytes(&bytes))
        bytes = 0.0;
    return bytes;
}

} // namespace

void vStartTimer(UtilsUInt64 *start)
{
    initialiseFrequency();
    s_startStamp = readCounter() * 1000ULL;
    if (start)
        *start = s_startStamp;
}

void vStopTimer(UtilsUInt64 *stop)
{
    *stop = readCounter() * 1000ULL;
}

std::uint32_t GetTimeMs(UtilsUInt64 start, UtilsUInt64 stop)
{
    initialiseFrequency();
    return static_cast<std::uint32_t>((stop - start) / s_frequency);
}

std::uint32_t GetTimeUs(UtilsUInt64 start, UtilsUInt64 stop)
{
    initialiseFrequency();
    return static_cast<std::uint32_t>(((stop - start) * 1000ULL) / s_frequency);
}

std::uint32_t ulTimestampUs()
{
    // Deliberately no frequency initialisation: meant only after vStartTimer().
    const UtilsUInt64 stamp = readCounter() * 1000ULL;
    return static_cast<std::uint32_t>(((stamp - s_startStamp) * 1000ULL) / s_frequency);
}

double GetMemoryUsageBytes()
{
    s_memoryReading = 0.0;
    s_memoryReading = currentPrivateBytes();
    return s_memoryReading;
}

double GetMemoryUsageKBytes()
{
    return GetMemoryUsageBytes() * KiB;
}

double GetMemoryGapBytes()
{
    return std::fabs(currentPrivateBytes() - s_memoryReading);
}

double GetMemoryGapKBytes()
{
    return GetMemoryGapBytes() * KiB;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/probes.h"

#include <QtTest>

#include <cstdlib>
#include <limits>

#if !defined(_WIN32)
#include <sys/mman.h>
#endif

namespace {
#if defined(_WIN32)
UtilsUInt64 frequency()
{
    LARGE_INTEGER f;
    QueryPerformanceFrequency(&f);
    return UtilsUInt64(f.QuadPart);
}
#else
// Elsewhere the probes count in ticks of 100 ns.
UtilsUInt64 frequency()
{
    return 10000000ULL;
}
#endif
} // namespace

// The probes keep hidden process-wide state; the first function must run before
// anything takes a memory reading.
class tst_Probes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void gapBeforeAnyUsageIsTheWholeUsage()
    {
        const double gap = GetMemoryGapBytes();
        const double usage = GetMemoryUsageBytes();
        QVERIFY(usage > 0.0);
        // Against a kept reading of 0 the gap is the process's whole usage.
        QVERIFY2(std::abs(gap - usage) < 1024.0 * 1024.0, qPrintable(QStringLiteral("%1 vs %2").arg(gap).arg(usage)));
    }

    void usageInKibibytesAndGap()
    {
        const double bytes = GetMemoryUsageBytes();
        const double kib = GetMemoryUsageKBytes();
        QCOMPARE(kib, bytes * 0.0009765625);
        QCOMPARE(GetMemoryGapBytes(), 0.0);
        QCOMPARE(GetMemoryGapKBytes(), 0.0);
        QCOMPARE(GetMemoryGapBytes(), 0.0); // gap calls do not move the reference
    }

    void gapFollowsAllocations()
    {
        const double mib = 1024.0 * 1024.0;
        const size_t size = 64 * 1024 * 1024;
        GetMemoryUsageBytes();
        // Mapped directly rather than through malloc, whose freed blocks a sanitizer
        // keeps in quarantine, so that giving the block back shows too.
#if defined(_WIN32)
        void *block = std::malloc(size);
        QVERIFY(block);
#else
        void *block = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        QVERIFY(block != MAP_FAILED);
#endif
        const double grown = GetMemoryGapBytes();
        QVERIFY2(grown >= 63 * mib, qPrintable(QString::number(grown)));
        QCOMPARE(GetMemoryGapKBytes(), grown * 0.0009765625);
#if defined(_WIN32)
        std::free(block);
#else
        ::munmap(block, size);
#endif
        QVERIFY2(GetMemoryGapBytes() < 8 * mib, qPrintable(QString::number(GetMemoryGapBytes())));
    }

    void timeArithmetic_data()
    {
        QTest::addColumn<UtilsUInt64>("start");
        QTest::addColumn<UtilsUInt64>("stop");
        QTest::addColumn<quint32>("ms");
        QTest::addColumn<quint32>("us");

        const UtilsUInt64 second = frequency() * 1000ULL;
        const UtilsUInt64 max = std::numeric_limits<UtilsUInt64>::max();
        QTest::newRow("same stamp") << UtilsUInt64(12345) << UtilsUInt64(12345) << 0u << 0u;
        QTest::newRow("one second") << UtilsUInt64(0) << second << 1000u << 1000000u;
        QTest::newRow("one second later on") << second * 7 << second * 8 << 1000u << 1000000u;
        QTest::newRow("half a millisecond truncates") << UtilsUInt64(0) << second / 2000 << 0u << 500u;
        // A stop before the start wraps to a huge difference, cut to 32 bits.
        const UtilsUInt64 wrapped = max - 999; // (1000 - 2000) mod 2^64
        QTest::newRow("stop before start") << UtilsUInt64(2000) << UtilsUInt64(1000)
                                           << quint32(wrapped / frequency())
                                           << quint32((wrapped * 1000ULL) / frequency());
        // The microsecond product wraps in 64 bits before the division.
        const UtilsUInt64 big = max / 1000ULL + 5;
        QTest::newRow("microsecond product wraps") << UtilsUInt64(0) << big << quint32(big / frequency())
                                                   << quint32((big * 1000ULL) / frequency());
    }

    void timeArithmetic()
    {
        QFETCH(UtilsUInt64, start);
        QFETCH(UtilsUInt64, stop);
        QTEST(GetTimeMs(start, stop), "ms");
        QTEST(GetTimeUs(start, stop), "us");
    }

    void stopWatch()
    {
        vStartTimer(nullptr); // allowed
        UtilsUInt64 start = 0;
        vStartTimer(&start);
        QVERIFY(start != 0);
        QVERIFY(start % 1000 == 0); // stamps are ticks times 1000

        QTest::qSleep(20);
        UtilsUInt64 stop = 0;
        vStopTimer(&stop);
        const quint32 ms = GetTimeMs(start, stop);
        QVERIFY2(ms >= 19 && ms < 10000, qPrintable(QString::number(ms)));

        // vStopTimer leaves the kept start alone: the timestamp still counts from it.
        const quint32 sinceStart = ulTimestampUs();
        QVERIFY2(sinceStart >= GetTimeUs(start, stop), qPrintable(QString::number(sinceStart)));
        QVERIFY(ulTimestampUs() >= sinceStart);
    }
};

QTEST_GUILESS_MAIN(tst_Probes)
#include "tst_probes.moc"

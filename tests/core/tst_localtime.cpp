// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/localtime_p.h"
#include "testhelpers.h"

#include <QtTest>

namespace {

// Every pattern the library formats times with: the time axis labels and the CSV export.
const char *const patterns[] = {
    "hh:mm:ss",
    "hh:mm",
    "dd.MM.yyyy",
    "dd.MM.yyyy \r\nhh:mm:ss",
    "dd.MM.yyyy \r\nhh:mm",
    "dd-MM-yyyy hh:mm:ss.zzz",
};

// POSIX rules need no time zone database.
const QByteArray europe = "CET-1CEST,M3.5.0,M10.5.0/3";
const QByteArray america = "EST5EDT,M3.2.0,M11.1.0";
const QByteArray australia = "AEST-10AEDT,M10.1.0,M4.1.0/3";

} // namespace

class tst_LocalTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameTextAsQDateTime_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<qint64>("first");
        QTest::addColumn<qint64>("step");

        // Each row checks 8 times from first on, step apart, in every pattern.
        QTest::newRow("UTC, milliseconds") << QByteArray("UTC0") << Q_INT64_C(1763057585250) << Q_INT64_C(7);
        QTest::newRow("half-hour offset") << QByteArray("IST-5:30") << Q_INT64_C(1763057585250) << Q_INT64_C(600000);
        QTest::newRow("spring forward") << europe << Q_INT64_C(1774746000000) - 2000 << Q_INT64_C(500);
        QTest::newRow("fall back") << europe << Q_INT64_C(1792890000000) - 2000 << Q_INT64_C(500);
        QTest::newRow("west of Greenwich, spring forward")
            << america << Q_INT64_C(1772953200000) - 2000 << Q_INT64_C(500);
        QTest::newRow("southern hemisphere, fall back")
            << australia << Q_INT64_C(1775318400000) - 2000 << Q_INT64_C(500);
        QTest::newRow("midnight and new year") << europe << Q_INT64_C(1798758000000) - 2000 << Q_INT64_C(500);
        QTest::newRow("around the epoch") << europe << Q_INT64_C(-1001) << Q_INT64_C(333);
        QTest::newRow("before 1970, summer") << europe << Q_INT64_C(-1500000000000) << Q_INT64_C(86400000);
        QTest::newRow("west of Greenwich, before 1970") << america << Q_INT64_C(-3000) << Q_INT64_C(999);
        QTest::newRow("across 2038") << europe << Q_INT64_C(2145916799000) - 3000 << Q_INT64_C(1000);
        // After 2037 Qt shifts the date into 2037 and takes that year's switch day (29 March, not 28).
        QTest::newRow("2038 spring forward, by 2037's rules")
            << europe << Q_INT64_C(2153350800000) - 2000 << Q_INT64_C(500);
        QTest::newRow("beyond year 9999") << QByteArray("UTC0") << Q_INT64_C(300000000000000) << Q_INT64_C(1000);
        QTest::newRow("far before the epoch") << QByteArray("UTC0") << Q_INT64_C(-300000000000000) << Q_INT64_C(1000);
    }

    void sameTextAsQDateTime()
    {
        QFETCH(QByteArray, zone);
        QFETCH(qint64, first);
        QFETCH(qint64, step);

        const TestSupport::Zone inZone(zone);
        for (int i = 0; i < 8; ++i) {
            const qint64 ms = first + i * step;
            for (const char *pattern : patterns) {
                const QString expected = QDateTime::fromMSecsSinceEpoch(ms).toString(QLatin1String(pattern));
                const QString text = Utils::LocalTime::text(ms, pattern);
                QVERIFY2(text == expected,
                    qPrintable(QStringLiteral("%1 as \"%2\": %3, QDateTime: %4")
                                   .arg(ms)
                                   .arg(QLatin1String(pattern), text, expected)));
                char buffer[64];
                const char *end = Utils::LocalTime::write(buffer, int(sizeof buffer), ms, pattern);
                QCOMPARE(QString::fromLatin1(buffer, int(end - buffer)), expected);
            }
        }
    }

    void writeCutsAtRoom()
    {
        // QDateTime's text of a far-off year is longer than the pattern; write() stops at the room it was given.
        const TestSupport::Zone inZone("UTC0");
        const qint64 ms = Q_INT64_C(-300000000000000);
        const QByteArray full = QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("dd.MM.yyyy")).toLatin1();
        QVERIFY(full.size() > 10);
        char buffer[16] = {};
        const char *end = Utils::LocalTime::write(buffer, 10, ms, "dd.MM.yyyy");
        QCOMPARE(QByteArray(buffer, int(end - buffer)), full.left(10));
    }
};

QTEST_GUILESS_MAIN(tst_LocalTime)
#include "tst_localtime.moc"

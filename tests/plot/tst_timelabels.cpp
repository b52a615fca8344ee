// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plottesthelpers.h"

#include <plot/timescaledraw.h>

#include <qwt_scale_div.h>

#include <QDateTime>
#include <QtTest>

#include <limits>

namespace {

// POSIX rules need no time zone database.
const QByteArray europe = "CET-1CEST,M3.5.0,M10.5.0/3";
const QByteArray america = "EST5EDT,M3.2.0,M11.1.0";

} // namespace

/*
    The time axis formats its labels itself; they must read exactly as QDateTime's
    text of the value truncated to whole ms, and as the epoch where there is no
    date. The zones' own rules are tst_localtime's, the format of each span tst_plot's.
*/
class tst_TimeLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { PlotTest::useAxisType(-1); }

    void sameAsQDateTime_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<double>("value");
        QTest::addColumn<qint64>("ms"); // the time the label shows

        // The zone changes from row to row: vRefresh() is how a host has the change seen.
        const double inf = std::numeric_limits<double>::infinity();
        QTest::newRow("fraction truncated") << europe << 1700000000123.9 << Q_INT64_C(1700000000123);
        QTest::newRow("negative fraction towards zero") << america << -0.9 << Q_INT64_C(0);
        QTest::newRow("before 1970") << europe << -1000.5 << Q_INT64_C(-1000);
        QTest::newRow("NaN: the epoch") << america << std::numeric_limits<double>::quiet_NaN() << Q_INT64_C(0);
        QTest::newRow("infinity: the epoch") << europe << inf << Q_INT64_C(0);
        QTest::newRow("minus infinity: the epoch") << america << -inf << Q_INT64_C(0);
        QTest::newRow("9e18: the epoch") << europe << 9.0e18 << Q_INT64_C(0);
        QTest::newRow("-9e18: the epoch") << america << -9.0e18 << Q_INT64_C(0);
        QTest::newRow("just below 9e18") << europe << 8.99e18 << qint64(8.99e18);
    }

    void sameAsQDateTime()
    {
        QFETCH(QByteArray, zone);
        QFETCH(double, value);
        QFETCH(qint64, ms);

        Utils::TimeScaleDraw draw;
        draw.label(0.0); // reads the settings, which re-reads the zone as a side effect
        const TestSupport::Zone inZone(zone, false); // QDateTime, below, re-reads the zone by itself
        draw.vRefresh();
        draw.setScaleDiv(QwtScaleDiv(1.7e12, 1.7e12 + 59999.0));
        const QString time = draw.label(value).text(); // before QDateTime has read the zone
        draw.setScaleDiv(QwtScaleDiv(1.7e12, 1.7e12 + 8.64e7));
        const QString date = draw.label(value).text();
        QCOMPARE(time, QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("hh:mm:ss")));
        QCOMPARE(date, QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("dd.MM.yyyy")));
    }
};

QTEST_MAIN(tst_TimeLabels)
#include "tst_timelabels.moc"

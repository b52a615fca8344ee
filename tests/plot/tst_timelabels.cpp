// SPDX-License-Identifier: LGPL-2.1-or-later
#include <plot/timescaledraw.h>

#include <qwt_scale_div.h>

#include <QDateTime>
#include <QFile>
#include <QSettings>
#include <QtTest>

#include <ctime>
#include <limits>

namespace {

// POSIX rules need no time zone database.
const QByteArray europe = "CET-1CEST,M3.5.0,M10.5.0/3";
const QByteArray america = "EST5EDT,M3.2.0,M11.1.0";

QString settingsFile()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/settings.ini");
}

void useAxisType(int type)
{
    QSettings(settingsFile(), QSettings::IniFormat).setValue(QStringLiteral("plot/xPlotAxisType"), type);
    Utils::TimeScaleDraw::vReloadSettings();
}

} // namespace

// The time axis formats its labels itself; they must read exactly as QDateTime's text.
class tst_TimeLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void sameAsQDateTime_data();
    void sameAsQDateTime();

private:
    QByteArray m_tz;
};

void tst_TimeLabels::initTestCase()
{
    m_tz = qgetenv("TZ");
}

void tst_TimeLabels::cleanupTestCase()
{
    if (m_tz.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", m_tz);
    tzset();
    QFile::remove(settingsFile());
    Utils::TimeScaleDraw::vReloadSettings();
}

void tst_TimeLabels::sameAsQDateTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("ms"); // the time the label shows

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    QTest::newRow("fraction truncated") << europe << 1700000000123.9 << Q_INT64_C(1700000000123);
    QTest::newRow("negative fraction towards zero") << america << -0.9 << Q_INT64_C(0);
    QTest::newRow("before 1970") << europe << -1000.5 << Q_INT64_C(-1000);
    QTest::newRow("last ms before spring forward") << europe << 1774745999999.5 << Q_INT64_C(1774745999999);
    QTest::newRow("repeated hour after fall back") << europe << 1792891800000.0 << Q_INT64_C(1792891800000);
    QTest::newRow("west of Greenwich, after spring forward") << america << 1772953200001.0 << Q_INT64_C(1772953200001);
    QTest::newRow("NaN: the epoch") << america << nan << Q_INT64_C(0);
    QTest::newRow("infinity: the epoch") << europe << inf << Q_INT64_C(0);
    QTest::newRow("minus infinity: the epoch") << america << -inf << Q_INT64_C(0);
    QTest::newRow("9e18: the epoch") << europe << 9.0e18 << Q_INT64_C(0);
    QTest::newRow("-9e18: the epoch") << america << -9.0e18 << Q_INT64_C(0);
    QTest::newRow("just below 9e18") << europe << 8.99e18 << qint64(8.99e18);
}

void tst_TimeLabels::sameAsQDateTime()
{
    QFETCH(QByteArray, zone);
    QFETCH(double, value);
    QFETCH(qint64, ms);

    Utils::TimeScaleDraw draw;
    struct Span
    {
        double ms;
        const char *time; // the format, without the date of "Date + Time"
    };
    const Span spans[] = { { 59999.0, "hh:mm:ss" }, { 3.6e6, "hh:mm" }, { 8.64e7, nullptr } };
    for (int axisType : { 0, 1 }) {
        useAxisType(axisType);
        draw.label(0.0); // reads the settings file, which re-reads the zone as a side effect
        // Rows change the zone; vRefresh() is how a host has the change seen.
        // (QDateTime, below, re-reads the zone by itself.)
        qputenv("TZ", zone);
        draw.vRefresh();
        for (const Span &span : spans) {
            draw.setScaleDiv(QwtScaleDiv(1.7e12, 1.7e12 + span.ms));
            QString format = QStringLiteral("dd.MM.yyyy");
            if (span.time)
                format = (axisType == 1 ? format + QStringLiteral(" \r\n") : QString()) + QLatin1String(span.time);
            const QString label = draw.label(value).text();
            QCOMPARE(label, QDateTime::fromMSecsSinceEpoch(ms).toString(format));
        }
    }
}

QTEST_MAIN(tst_TimeLabels)
#include "tst_timelabels.moc"

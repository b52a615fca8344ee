// SPDX-License-Identifier: LGPL-2.1-or-later
#include <charts/valueovertime.h>

#include <QDateTime>
#include <QPointF>
#include <QTest>
#include <QVector>

using Utils::ValueOverTime;

namespace {

using Samples = QVector<QPointF>; // (x, y)

Samples samplesOf(const double *x, const double *y, int count)
{
    Samples samples;
    for (int i = 0; i < count; ++i)
        samples << QPointF(x[i], y[i]);
    return samples;
}

//! Connected by text signature, as a plot's curves are; keeps what each call showed.
class Recorder : public QObject
{
    Q_OBJECT

public:
    explicit Recorder(ValueOverTime &series)
    {
        connected = connect(&series, SIGNAL(vDataUpdated(const double *, const double *, const int)), this,
            SLOT(record(const double *, const double *, int)));
    }
    bool connected = false;
    QVector<const double *> xs;
    QVector<Samples> shown;

public Q_SLOTS:
    void record(const double *x, const double *y, int count)
    {
        xs << x;
        shown << samplesOf(x, y, count);
    }
};

enum class Edit { None, Erase, Remove, Replace, Clear };

} // namespace

Q_DECLARE_METATYPE(Samples)
Q_DECLARE_METATYPE(Edit)

class tst_ValueOverTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void appendAndEdit_data()
    {
        QTest::addColumn<Samples>("appended");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<int>("index");
        QTest::addColumn<Samples>("stored");
        QTest::addColumn<int>("emitted");

        const QPointF a(1000, 5);
        const Samples five { { 10, 1 }, { 20, 2 }, { 30, 3 }, { 40, 4 }, { 50, 5 } };
        Samples replaced = five;
        replaced[0] = QPointF(0.0, 9.0); // 0.0 is not "now" here
        QTest::newRow("exact repeat dropped") << Samples { a, a } << Edit::None << 0 << Samples { a } << 1;
        QTest::newRow("same time, other value")
            << Samples { a, { 1000, 6 } } << Edit::None << 0 << Samples { a, { 1000, 6 } } << 2;
        QTest::newRow("same value, other time")
            << Samples { a, { 1001, 5 } } << Edit::None << 0 << Samples { a, { 1001, 5 } } << 2;
        QTest::newRow("repeat of an older sample")
            << Samples { a, { 2000, 6 }, a } << Edit::None << 0 << Samples { a, { 2000, 6 }, a } << 3;
        QTest::newRow("-0.0 repeats 0.0")
            << Samples { { 7, 0.0 }, { 7, -0.0 } } << Edit::None << 0 << Samples { { 7, 0.0 } } << 1;
        QTest::newRow("time going backwards")
            << Samples { a, { 10, 5 } } << Edit::None << 0 << Samples { a, { 10, 5 } } << 2;
        QTest::newRow("erase fewer than held") << five << Edit::Erase << 2 << five.mid(2) << 5;
        QTest::newRow("erase all held") << five << Edit::Erase << 5 << Samples() << 5;
        QTest::newRow("erase more than held") << five << Edit::Erase << 6 << five << 5;
        QTest::newRow("erase negative") << five << Edit::Erase << -2 << five << 5;
        QTest::newRow("remove middle") << five << Edit::Remove << 2 << Samples { five[0], five[1], five[3], five[4] }
                                       << 6;
        QTest::newRow("remove past the end") << five << Edit::Remove << 5 << five << 5;
        QTest::newRow("remove negative") << five << Edit::Remove << -1 << five << 5;
        QTest::newRow("replace first") << five << Edit::Replace << 0 << replaced << 6;
        QTest::newRow("replace past the end") << five << Edit::Replace << 5 << five << 5;
        QTest::newRow("clear") << five << Edit::Clear << 0 << Samples() << 6;
        QTest::newRow("clear empty") << Samples() << Edit::Clear << 0 << Samples() << 0;
    }

    void appendAndEdit()
    {
        QFETCH(Samples, appended);
        QFETCH(Edit, edit);
        QFETCH(int, index);
        QFETCH(Samples, stored);
        QFETCH(int, emitted);

        ValueOverTime series;
        Recorder recorder(series);
        QVERIFY(recorder.connected);
        for (const QPointF &sample : appended)
            series.vAppend(sample.y(), sample.x());
        switch (edit) {
        case Edit::None:
            break;
        case Edit::Erase:
            series.vEraseFirstValues(index);
            break;
        case Edit::Remove:
            series.vRemove(index);
            break;
        case Edit::Replace:
            series.vReplace(index, 9.0, 0.0);
            break;
        case Edit::Clear:
            series.vClear();
            break;
        }

        QCOMPARE(samplesOf(series.pxData(), series.pyData(), series.size()), stored);
        QCOMPARE(series.pxData() == nullptr, stored.isEmpty());
        QCOMPARE(series.pyData() == nullptr, stored.isEmpty());
        QCOMPARE(series.oFirst(), stored.isEmpty() ? QPointF() : stored.first());
        QCOMPARE(series.oLast(), stored.isEmpty() ? QPointF() : stored.last());
        QCOMPARE(series.s64Range(), stored.isEmpty() ? 0.0 : stored.last().x() - stored.first().x());
        QCOMPARE(recorder.shown.size(), emitted);
        if (emitted > 0 && edit != Edit::Erase) {
            // The last call shows the series as it is now.
            QCOMPARE(recorder.shown.last(), stored);
            QCOMPARE(recorder.xs.last(), series.pxData());
        }
    }

    void timeZeroIsNow_data()
    {
        QTest::addColumn<double>("time");
        QTest::addColumn<bool>("now");

        QTest::newRow("0.0") << 0.0 << true;
        QTest::newRow("-0.0") << -0.0 << true;
        // Unlike the chart's "1.0 or less", the series takes these as given.
        QTest::newRow("1.0") << 1.0 << false;
        QTest::newRow("-1.0") << -1.0 << false;
    }

    void timeZeroIsNow()
    {
        QFETCH(double, time);
        QFETCH(bool, now);

        ValueOverTime series;
        const double before = double(QDateTime::currentMSecsSinceEpoch());
        series.vAppend(3.0, time);
        series.vAppend(3.0, time); // 0.0 never repeats the stored time
        const double after = double(QDateTime::currentMSecsSinceEpoch());

        QCOMPARE(series.size(), now ? 2 : 1);
        for (int i = 0; i < series.size(); ++i) {
            const double x = series.pxData()[i];
            QVERIFY2(now ? (x >= before && x <= after) : x == time, qPrintable(QString::number(x, 'f')));
        }
    }

    void trimAndRefillKeepsArrays()
    {
        // The live chart's cycle: fill to 900,000, drop the oldest 225,000, refill.
        ValueOverTime series;
        double t = 1.0;
        auto refill = [&]() {
            while (series.size() < 900000)
                series.vAppend(t, t), t += 1.0;
        };
        refill();
        const double *x = series.pxData();
        const double *y = series.pyData();
        const int capacity = series.capacity();

        series.vEraseFirstValues(225000);
        QCOMPARE(series.oFirst(), QPointF(225001.0, 225001.0));
        refill();
        QCOMPARE(series.pxData(), x);
        QCOMPARE(series.pyData(), y);
        QCOMPARE(series.capacity(), capacity);

        // reserve() makes room up front; growing past the old capacity moves the arrays and says so.
        Recorder recorder(series);
        series.reserve(capacity + 1);
        QCOMPARE(recorder.xs, QVector<const double *> { series.pxData() });
        QVERIFY(series.pxData() != x);
    }

    void copyAndAssign()
    {
        ValueOverTime original;
        original.vAppend(1.0, 10.0);
        original.vAppend(2.0, 20.0);

        ValueOverTime copy(original);
        copy.vAppend(3.0, 30.0);
        QCOMPARE(original.size(), 2);
        QCOMPARE(copy.oLast(), QPointF(30.0, 3.0));

        ValueOverTime target;
        target.vAppend(9.0, 90.0);
        Recorder recorder(target);
        target = copy;
        QCOMPARE(samplesOf(target.pxData(), target.pyData(), target.size()),
            samplesOf(copy.pxData(), copy.pyData(), copy.size()));
        // Assignment may move the arrays; whoever draws from them gets the new ones.
        QCOMPARE(recorder.xs, QVector<const double *> { target.pxData() });
        QCOMPARE(recorder.shown.last().size(), 3);
    }
};

QTEST_GUILESS_MAIN(tst_ValueOverTime)

#include "tst_valueovertime.moc"

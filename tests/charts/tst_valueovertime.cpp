// SPDX-License-Identifier: LGPL-2.1-or-later
#include <charts/valueovertime.h>

#include <QDateTime>
#include <QPointF>
#include <QTest>
#include <QVector>

using Utils::ValueOverTime;

namespace {

using Samples = QVector<QPointF>; // (x, y)

Samples samplesOf(const ValueOverTime &series)
{
    Samples samples;
    for (int i = 0; i < series.size(); ++i)
        samples << QPointF(series.pxData()[i], series.pyData()[i]);
    return samples;
}

void fill(ValueOverTime &series, const Samples &samples)
{
    for (const QPointF &sample : samples)
        series.vAppend(sample.y(), sample.x());
}

//! Connected by text signature, as the curves of a plot are.
class Recorder : public QObject
{
    Q_OBJECT

public:
    struct Call
    {
        const double *x;
        const double *y;
        int count;
        Samples samples; // what the pointers showed at the time
    };
    QVector<Call> calls;

public Q_SLOTS:
    void record(const double *x, const double *y, int count)
    {
        Samples samples;
        for (int i = 0; i < count; ++i)
            samples << QPointF(x[i], y[i]);
        calls.push_back({ x, y, count, samples });
    }
};

bool listen(ValueOverTime &series, Recorder &recorder)
{
    return QObject::connect(&series, SIGNAL(vDataUpdated(const double *, const double *, const int)), &recorder,
                            SLOT(record(const double *, const double *, int)));
}

enum class Edit { Erase, Remove, Replace, Clear };

} // namespace

Q_DECLARE_METATYPE(Samples)
Q_DECLARE_METATYPE(Edit)

class tst_ValueOverTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void append_data();
    void append();
    void timeZeroIsNow_data();
    void timeZeroIsNow();
    void edit_data();
    void edit();
    void ends_data();
    void ends();
    void trimAndRefillKeepsArrays();
    void copyAndAssign();
    void reserve();
};

void tst_ValueOverTime::append_data()
{
    QTest::addColumn<Samples>("appended");
    QTest::addColumn<Samples>("stored");

    const QPointF a(1000.0, 5.0);
    QTest::newRow("exact repeat dropped") << Samples { a, a } << Samples { a };
    QTest::newRow("same time, other value") << Samples { a, { 1000.0, 6.0 } } << Samples { a, { 1000.0, 6.0 } };
    QTest::newRow("same value, other time") << Samples { a, { 1001.0, 5.0 } } << Samples { a, { 1001.0, 5.0 } };
    QTest::newRow("repeat of an older sample") << Samples { a, { 2000.0, 6.0 }, a }
                                               << Samples { a, { 2000.0, 6.0 }, a };
    QTest::newRow("time going backwards kept") << Samples { a, { 10.0, 5.0 } } << Samples { a, { 10.0, 5.0 } };
    QTest::newRow("-0.0 value repeats 0.0") << Samples { { 7.0, 0.0 }, { 7.0, -0.0 } } << Samples { { 7.0, 0.0 } };
}

void tst_ValueOverTime::append()
{
    QFETCH(Samples, appended);
    QFETCH(Samples, stored);

    ValueOverTime series;
    Recorder recorder;
    QVERIFY(listen(series, recorder));
    fill(series, appended);

    QCOMPARE(samplesOf(series), stored);
    // One signal per stored sample, each showing the series as it was then.
    QCOMPARE(recorder.calls.size(), stored.size());
    for (int i = 0; i < stored.size(); ++i)
        QCOMPARE(recorder.calls[i].samples, stored.mid(0, i + 1));
    QCOMPARE(recorder.calls.last().x, series.pxData());
    QCOMPARE(recorder.calls.last().y, series.pyData());
}

void tst_ValueOverTime::timeZeroIsNow_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<bool>("now");

    QTest::newRow("0.0") << 0.0 << true;
    QTest::newRow("-0.0") << -0.0 << true;
    // Unlike the chart's "1.0 or less", the series itself takes these as given.
    QTest::newRow("1.0") << 1.0 << false;
    QTest::newRow("smallest positive") << 5e-324 << false;
    QTest::newRow("-1.0") << -1.0 << false;
}

void tst_ValueOverTime::timeZeroIsNow()
{
    QFETCH(double, time);
    QFETCH(bool, now);

    ValueOverTime series;
    const double before = double(QDateTime::currentMSecsSinceEpoch());
    series.vAppend(3.0, time);
    series.vAppend(3.0, time); // with 0.0 the stored times differ from the argument: never a repeat
    const double after = double(QDateTime::currentMSecsSinceEpoch());

    if (now) {
        QCOMPARE(series.size(), 2);
        for (int i = 0; i < 2; ++i) {
            QVERIFY(series.pxData()[i] >= before);
            QVERIFY(series.pxData()[i] <= after);
        }
    } else {
        QCOMPARE(samplesOf(series), Samples { QPointF(time, 3.0) });
    }
}

void tst_ValueOverTime::edit_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<int>("index");
    QTest::addColumn<Samples>("stored");
    QTest::addColumn<bool>("signalled");

    const Samples five { { 10, 1 }, { 20, 2 }, { 30, 3 }, { 40, 4 }, { 50, 5 } };
    QTest::newRow("erase fewer than held") << Edit::Erase << 2 << five.mid(2) << false;
    QTest::newRow("erase all held") << Edit::Erase << 5 << Samples() << false;
    QTest::newRow("erase more than held") << Edit::Erase << 6 << five << false;
    QTest::newRow("erase none") << Edit::Erase << 0 << five << false;
    QTest::newRow("erase negative") << Edit::Erase << -2 << five << false;
    QTest::newRow("remove middle") << Edit::Remove << 2 << Samples { { 10, 1 }, { 20, 2 }, { 40, 4 }, { 50, 5 } }
                                   << true;
    QTest::newRow("remove last") << Edit::Remove << 4 << five.mid(0, 4) << true;
    QTest::newRow("remove past the end") << Edit::Remove << 5 << five << false;
    QTest::newRow("remove negative") << Edit::Remove << -1 << five << false;
    Samples replaced = five;
    replaced[0] = QPointF(0.0, 9.0); // 0.0 stays 0.0 here
    QTest::newRow("replace first") << Edit::Replace << 0 << replaced << true;
    QTest::newRow("replace past the end") << Edit::Replace << 5 << five << false;
    QTest::newRow("clear") << Edit::Clear << 0 << Samples() << true;
}

void tst_ValueOverTime::edit()
{
    QFETCH(Edit, edit);
    QFETCH(int, index);
    QFETCH(Samples, stored);
    QFETCH(bool, signalled);

    ValueOverTime series;
    fill(series, { { 10, 1 }, { 20, 2 }, { 30, 3 }, { 40, 4 }, { 50, 5 } });
    Recorder recorder;
    QVERIFY(listen(series, recorder));
    switch (edit) {
    case Edit::Erase: series.vEraseFirstValues(index); break;
    case Edit::Remove: series.vRemove(index); break;
    case Edit::Replace: series.vReplace(index, 9.0, 0.0); break;
    case Edit::Clear: series.vClear(); break;
    }

    QCOMPARE(samplesOf(series), stored);
    QCOMPARE(recorder.calls.size(), signalled ? 1 : 0);
    if (signalled) {
        QCOMPARE(recorder.calls[0].samples, stored);
        QCOMPARE(recorder.calls[0].x, series.pxData());
    }
}

void tst_ValueOverTime::ends_data()
{
    QTest::addColumn<Samples>("samples");
    QTest::addColumn<QPointF>("first");
    QTest::addColumn<QPointF>("last");
    QTest::addColumn<double>("range");

    QTest::newRow("empty") << Samples() << QPointF() << QPointF() << 0.0;
    QTest::newRow("one sample") << Samples { { 1000, 5 } } << QPointF(1000, 5) << QPointF(1000, 5) << 0.0;
    QTest::newRow("three samples") << Samples { { 1000, 5 }, { 1500, 6 }, { 4000, 7 } } << QPointF(1000, 5)
                                   << QPointF(4000, 7) << 3000.0;
    QTest::newRow("time going backwards") << Samples { { 4000, 5 }, { 1000, 6 } } << QPointF(4000, 5)
                                          << QPointF(1000, 6) << -3000.0;
}

void tst_ValueOverTime::ends()
{
    QFETCH(Samples, samples);
    QFETCH(QPointF, first);
    QFETCH(QPointF, last);
    QFETCH(double, range);

    ValueOverTime series;
    fill(series, samples);
    QCOMPARE(series.size(), samples.size());
    QCOMPARE(series.oFirst(), first);
    QCOMPARE(series.oLast(), last);
    QCOMPARE(series.s64Range(), range);
    QCOMPARE(series.pxData() == nullptr, samples.isEmpty());
    QCOMPARE(series.pyData() == nullptr, samples.isEmpty());
}

void tst_ValueOverTime::trimAndRefillKeepsArrays()
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
    QCOMPARE(series.size(), 675000);
    QCOMPARE(series.oFirst(), QPointF(225001.0, 225001.0));
    refill();

    QCOMPARE(series.pxData(), x);
    QCOMPARE(series.pyData(), y);
    QCOMPARE(series.capacity(), capacity);
    QCOMPARE(series.oLast(), QPointF(1125000.0, 1125000.0));
}

void tst_ValueOverTime::copyAndAssign()
{
    ValueOverTime original;
    fill(original, { { 10, 1 }, { 20, 2 } });

    ValueOverTime copy(original);
    copy.vAppend(3.0, 30.0);
    QCOMPARE(samplesOf(original), (Samples { { 10, 1 }, { 20, 2 } }));
    QVERIFY(copy.pxData() != original.pxData());

    ValueOverTime target;
    target.vAppend(9.0, 90.0);
    Recorder recorder;
    QVERIFY(listen(target, recorder));
    target = copy;
    QCOMPARE(samplesOf(target), samplesOf(copy));
    // Assignment may move the arrays; whoever draws from them gets the new ones.
    QCOMPARE(recorder.calls.size(), 1);
    QCOMPARE(recorder.calls[0].x, target.pxData());
    QCOMPARE(recorder.calls[0].count, 3);

    target = target;
    QCOMPARE(recorder.calls.size(), 1);
    QCOMPARE(target.size(), 3);
}

void tst_ValueOverTime::reserve()
{
    ValueOverTime series;
    series.vAppend(1.0, 1.0);
    Recorder recorder;
    QVERIFY(listen(series, recorder));

    series.reserve(1000);
    QVERIFY(series.capacity() >= 1000);
    QCOMPARE(recorder.calls.size(), 1); // the arrays moved
    QCOMPARE(recorder.calls[0].x, series.pxData());

    const double *x = series.pxData();
    for (int i = 2; i <= 1000; ++i)
        series.vAppend(double(i), double(i));
    QCOMPARE(series.pxData(), x);

    series.reserve(10); // less than held: nothing happens
    QCOMPARE(series.size(), 1000);
    QCOMPARE(series.pxData(), x);
}

QTEST_GUILESS_MAIN(tst_ValueOverTime)

#include "tst_valueovertime.moc"

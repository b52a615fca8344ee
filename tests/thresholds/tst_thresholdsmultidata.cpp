// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholds/thresholdsmultidata.h"
#include "thresholds/thresholdsmultidatacolor.h"

#include <QtTest>

#include <memory>

using Utils::ThresholdsMultiData;
using Utils::ThresholdsMultiDataColor;

namespace {

struct CountingObserver : Utils::Observer
{
    int calls = 0;
    void update(void *) override { ++calls; }
};

template<typename Record>
using Field = std::pair<void (Record::*)(int, const double &), double (Record::*)(int) const>;

/*
    Gives every field and the noise of entry 1 a value of its own (negative and
    fractional ones too) and reads them back: stored unchanged, each set notified
    once, entry 0 untouched. The constant and window flag are stored silently.
*/
template<typename Record>
void checkFields(Record &data, std::initializer_list<Field<Record>> fields)
{
    CountingObserver observer;
    data.attach(&observer);
    double value = -2.5;
    for (const Field<Record> &field : fields)
        (data.*field.first)(1, value++);
    data.setNoise(1, -7);
    data.setThresholdConstant(1, 5);
    data.setHasWindow(1, true);
    data.detach(&observer);
    QCOMPARE(observer.calls, int(fields.size()) + 1);
    value = -2.5;
    for (const Field<Record> &field : fields) {
        QCOMPARE((data.*field.second)(0), 0.0);
        QCOMPARE((data.*field.second)(1), value++);
    }
    QCOMPARE(data.noise(1), -7);
    QVERIFY(data.hasWindow(1) && !data.hasWindow(0));
}

} // namespace

class tst_ThresholdsMultiData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields()
    {
        using M = ThresholdsMultiData;
        ThresholdsMultiData data(3);
        checkFields<M>(data, {{&M::setLow, &M::low}, {&M::setHigh, &M::high}, {&M::setMiddle, &M::midle},
                              {&M::setMiddle1, &M::midle1}});
        using C = ThresholdsMultiDataColor;
        ThresholdsMultiDataColor colour(2);
        checkFields<C>(colour, {{&C::setColorRed, &C::red},           {&C::setColorGreen, &C::green},
                                {&C::setColorBlue, &C::blue},         {&C::setColorLight, &C::light},
                                {&C::setColorRedHigh, &C::redHigh},   {&C::setColorRedLow, &C::redLow},
                                {&C::setColorGreenHigh, &C::greenHigh}, {&C::setColorGreenLow, &C::greenLow},
                                {&C::setColorBlueHigh, &C::blueHigh}, {&C::setColorBlueLow, &C::blueLow},
                                {&C::setColorLightHigh, &C::lightHigh}, {&C::setColorLightLow, &C::lightLow}});
    }

    void invalidIndexes_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("index");
        QTest::newRow("index equal to count") << 2 << 2;
        QTest::newRow("negative") << 2 << -1;
        QTest::newRow("most negative") << 2 << std::numeric_limits<int>::min();
        QTest::newRow("empty list") << 0 << 0;
        QTest::newRow("negative count gives an empty list") << -3 << 0;
    }

    void invalidIndexes()
    {
        QFETCH(int, count);
        QFETCH(int, index);
        ThresholdsMultiData data(count);
        CountingObserver observer;
        data.attach(&observer);
        data.setLow(index, 1.0);
        data.setHigh(index, 1.0);
        data.setMiddle(index, 1.0);
        data.setMiddle1(index, 1.0);
        data.setNoise(index, 1);
        data.setThresholdConstant(index, 1);
        data.setHasWindow(index, true);
        data.setFromValues(index, 1, 2, 3, 4);
        QCOMPARE(qMakePair(data.low(index), data.high(index)), qMakePair(-1.0, -1.0));
        QCOMPARE(data.midle(index), -1.0);
        QCOMPARE(data.midle1(index), -1.0);
        QCOMPARE(data.noise(index), -1);
        QCOMPARE(data.hasWindow(index), false);
        QCOMPARE(data.toHexString(index), std::string());
        for (int i = 0; i < count; ++i)
            QCOMPARE(data.toHexString(i), std::string("0000000000000000"));

        ThresholdsMultiDataColor colour(count);
        colour.attach(&observer);
        colour.setColorRed(index, 1.0);
        colour.setColorLightLow(index, 1.0);
        colour.setNoise(index, 1);
        colour.setThresholdConstant(index, 1);
        colour.setHasWindow(index, true);
        QCOMPARE(observer.calls, 0);
        QCOMPARE(colour.red(index), -1.0);
        QCOMPARE(colour.lightLow(index), -1.0);
        QCOMPARE(colour.noise(index), -1);
        QVERIFY(!colour.hasWindow(index));
    }

    void toHexString_data()
    {
        QTest::addColumn<uint>("constant");
        QTest::addColumn<int>("noise");
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<QString>("text");

        QTest::newRow("word 4 below 0 becomes 0000") << 0u << 5 << 3.0 << 0.0 << "0005000000030000";
        QTest::newRow("sensor zero point") << 0x8000u << 10 << 100.0 << 300.0 << "8136812C8064805A";
        QTest::newRow("truncated values") << 0u << 0 << 1.99 << 2.99 << "0002000200010001";
        // Only word 4 is held at 0; the others show a negative value's bits.
        QTest::newRow("negative high") << 0u << 0 << 0.0 << -1.0 << "FFFFFFFFFFFFFFFF00000000";
        QTest::newRow("not cut to four digits") << 0x12345u << 0 << 0.0 << 0.0 << "12345123451234512345";
    }

    void toHexString()
    {
        QFETCH(uint, constant);
        QFETCH(int, noise);
        QFETCH(double, low);
        QFETCH(double, high);

        ThresholdsMultiData data(2);
        data.setThresholdConstant(1, constant);
        data.setNoise(1, noise);
        data.setLow(1, low);
        data.setHigh(1, high);
        QTEST(QString::fromStdString(data.toHexString(1)), "text");
    }

    void setFromValues_data()
    {
        QTest::addColumn<uint>("constant");
        QTest::addColumn<double>("a");
        QTest::addColumn<double>("b");
        QTest::addColumn<double>("c");
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<int>("noise");

        QTest::newRow("round trip of the zero-point string") << 0x8000u << double(0x8136) << double(0x812C)
                                                             << double(0x8064) << 100.0 << 300.0 << 10;
        QTest::newRow("low below offset, high above: low 0") << 0x8000u << double(0x8010) << double(0x8010)
                                                             << 5.0 << 0.0 << 16.0 << 0;
        QTest::newRow("both below offset: low -1") << 0x8000u << 3.0 << 2.0 << 1.0 << -1.0 << 0.0 << 1;
        QTest::newRow("high exactly 0: low -1") << 10u << 10.0 << 10.0 << 9.0 << -1.0 << 0.0 << 0;
        QTest::newRow("negative noise, truncated") << 0u << 5.0 << 10.7 << 2.0 << 2.0 << 10.7 << -5;
    }

    void setFromValues()
    {
        QFETCH(uint, constant);
        QFETCH(double, a);
        QFETCH(double, b);
        QFETCH(double, c);

        ThresholdsMultiData data(1);
        CountingObserver observer;
        data.attach(&observer);
        data.setThresholdConstant(0, constant);
        data.setFromValues(0, a, b, c, 12345.0);
        QCOMPARE(observer.calls, 1);
        QTEST(data.low(0), "low");
        QTEST(data.high(0), "high");
        QTEST(data.noise(0), "noise");
    }

    void copiesShareValues()
    {
        auto source = std::make_unique<ThresholdsMultiData>(2);
        CountingObserver sourceObserver;
        source->attach(&sourceObserver);

        ThresholdsMultiData copy(*source);
        copy.setHigh(1, 99.0);
        QCOMPARE(source->high(1), 99.0);
        QCOMPARE(sourceObserver.calls, 0);

        ThresholdsMultiData assigned(5);
        assigned = copy;
        QCOMPARE(assigned.toHexString(2), std::string()); // now two entries, like its source
        source.reset();
        assigned.setMiddle1(0, 3.0);
        QCOMPARE(copy.midle1(0), 3.0);
        QCOMPARE(copy.high(1), 99.0);

        ThresholdsMultiDataColor colour(1);
        ThresholdsMultiDataColor colourCopy(colour);
        colourCopy.setColorGreenHigh(0, 4.0);
        colourCopy.setHasWindow(0, true);
        QCOMPARE(colour.greenHigh(0), 4.0);
        QVERIFY(colour.hasWindow(0));
    }
};

QTEST_GUILESS_MAIN(tst_ThresholdsMultiData)
#include "tst_thresholdsmultidata.moc"
